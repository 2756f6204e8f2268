#pragma once

#include <optional>
#include <string_view>

#include "plausibility/Plausibilitaetslauf.h"

// The conditions that DIN 1052 (2008) sets on the wall as a whole.

namespace rippenscheibe {

// All boundary conditions in fixed order, those of side 2 last and only for a wall sheathed on both
// sides. Appends to w.Hinweise; sets w.Rd[n] to 0 where rib or fastener of side n are unusable.
void pruefeRandbedingungen(Wand& w);

// Where the input of a finding of these checks is made; nothing for any other text.
std::optional<Eingabeort> ortDerRandbedingung(std::string_view hinweis);

}  // namespace rippenscheibe
