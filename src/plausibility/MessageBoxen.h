#pragma once

#include <optional>
#include <string_view>

#include "plausibility/Plausibilitaetslauf.h"

// The checks of sheathing and fasteners, a side at a time.

namespace rippenscheibe {

// The detailed checks of side n in fixed order: panel thickness, diameter, penetration depth, tensile
// strength, thread length, head diameter (kinds 2, 4 and 5), fastener length. Appends to w.Hinweise
// and sets w.lef[n] (mm).
void pruefeBeplankungUndVerbindungsmittel(Wand& w, Seite n);

// Least thickness of the sheathing opposite a gypsum fibre board. Looks at both sides, on a one-sided
// wall too. Appends to w.Hinweise.
void pruefeGegenseiteDerGipsfaserplatte(Wand& w);

// Where the input of a finding of these checks is made; nothing for any other text.
std::optional<Eingabeort> ortDerEinzelpruefung(std::string_view hinweis);

}  // namespace rippenscheibe
