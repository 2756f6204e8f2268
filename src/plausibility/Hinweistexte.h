#pragma once

#include <string>
#include <string_view>

#include "basis/Seite.h"
#include "model/Platten.h"
#include "model/VMArten.h"

// How the texts of findings are put together.

namespace rippenscheibe {

// The texts of findings are written for side 1: on side 2 every "Beplankung 1" reads "Beplankung 2".
std::string fuerSeite(std::string_view text, Seite n);
// The same with the prefix "Beplankung 1: " or "Beplankung 2: " in front.
std::string mitSeite(std::string_view text, Seite n);
// The text with the names of fastener and sheathing in place of "{VMArt}" and "{Material}".
std::string ausgefuellt(std::string_view text, Art art, Platte platte);

}  // namespace rippenscheibe
