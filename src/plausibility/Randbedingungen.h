#pragma once

#include "model/Wand.h"

// The conditions that DIN 1052 (2008) sets on the wall as a whole.

namespace rippenscheibe {

// All boundary conditions in fixed order, those of side 2 last and only for a wall sheathed on both
// sides. Appends to w.Hinweise; sets w.Rd[n] to 0 where rib or fastener of side n are unusable.
void pruefeRandbedingungen(Wand& w);

}  // namespace rippenscheibe
