#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Horizontal deflection of the wall head in mm, as a sum of five shares, in the serviceability and in
// the ultimate limit state, with their limits h/150 and h/100 (DIN 1052 (2008), 8.7.5 and annex E).
void nachweisVerformung(Wand& w);

// The five shares once more under design loads with mean moduli, and the shear stiffness of the wall
// from them.
void wandsteifigkeit(Wand& w);

}  // namespace rippenscheibe
