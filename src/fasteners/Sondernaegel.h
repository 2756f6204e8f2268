#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Rd of special nails (kind 2) on side n, any sheathing but gypsum fibre board; 0 outside the rules. With the
// rope effect of the classes 3A to 3C when DeltaRd is set.
void sondernaegelVereinfacht(Wand& w, Seite n);  // DIN 1052 (2008), 12.2 to 12.8
void sondernaegelGenau(Wand& w, Seite n);        // annex G.2.2

}  // namespace rippenscheibe
