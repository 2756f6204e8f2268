#pragma once

#include <string_view>

namespace rippenscheibe {

// The version of the program, "2.0.0"; in a build that is no release the commit stands behind it,
// "2.0.0+g1a2b3c4".
std::string_view programmversion();

}  // namespace rippenscheibe
