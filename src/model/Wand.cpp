#include "model/Wand.h"

#include <utility>

namespace rippenscheibe {

void setzeVorgaben(Wand& w) {
    std::string projekt = std::move(w.Projekt);
    static_cast<Eingaben&>(w) = Eingaben{};
    w.Projekt = std::move(projekt);
}

}  // namespace rippenscheibe
