#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Rd of drywall screws to DIN 18182-2 (kind 6) on side n, meant for gypsum board; 0 outside the rules. No
// rope effect.
void schnellbauschraubenVereinfacht(Wand& w, Seite n);  // DIN 1052 (2008), 12.2 to 12.8
void schnellbauschraubenGenau(Wand& w, Seite n);        // annex G.2.2

}  // namespace rippenscheibe
