#include "study/Faeden.h"

#include <algorithm>

namespace rippenscheibe {

int kernzahl() { return static_cast<int>(std::max(1U, std::thread::hardware_concurrency())); }

}  // namespace rippenscheibe
