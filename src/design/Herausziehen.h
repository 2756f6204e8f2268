#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Withdrawal resistance Rxd (N) of one fastener of sheathing 1 and the proof against the forces from
// wind suction (DIN 1052 (2008), 12.8.2 and 12.8.3). Fasteners of sheathing 2 are not proved.
void nachweisHerausziehen(Wand& w);

}  // namespace rippenscheibe
