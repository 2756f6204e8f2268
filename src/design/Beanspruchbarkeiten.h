#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Length-related strengths of the sheathing in N/mm, per side and in total, from the capacity of one
// fastener, the strength and the buckling of the sheathing (DIN 1052 (2008), 8.7.2 and 10.6).
// With av1 = 0, or a two-sided panel with av2 = 0, nothing is changed.
void beanspruchbarkeitParallel(Wand& w);
void beanspruchbarkeitSenkrecht(Wand& w);

}  // namespace rippenscheibe
