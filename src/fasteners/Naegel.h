#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Rd of nails (kind 1) on side n, any sheathing but gypsum fibre board; 0 outside the rules. Nails have no
// rope effect.
void naegelVereinfacht(Wand& w, Seite n);  // DIN 1052 (2008), 12.2 to 12.8
void naegelGenau(Wand& w, Seite n);        // annex G.2.2

}  // namespace rippenscheibe
