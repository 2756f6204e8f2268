#pragma once

#include <string>
#include <string_view>

#include "basis/Seite.h"
#include "plausibility/Plausibilitaetslauf.h"

// How the texts of findings are put together and found again.

namespace rippenscheibe {

// One text of a finding and where its input is made.
struct Meldung {
    std::string_view text;
    Eingabeort ort;
};

// The texts of findings are written for side 1: on side 2 every "Beplankung 1" reads "Beplankung 2".
std::string fuerSeite(std::string_view text, Seite n);
// The same with the prefix "Beplankung 1: " or "Beplankung 2: " in front.
std::string mitSeite(std::string_view text, Seite n);
// A finding as its table holds it: written for side 1, without prefix.
std::string ohneSeite(std::string_view hinweis);

}  // namespace rippenscheibe
