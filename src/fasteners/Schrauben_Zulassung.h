#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Rd of screws with approval (kind 5) on side n, any sheathing but gypsum fibre board; 0 outside the rules.
// With the rope effect by load-capacity class when DeltaRd is set. The own material counts as wood-based.
void schraubenZulassungVereinfacht(Wand& w, Seite n);  // DIN 1052 (2008), 12.2 to 12.8
void schraubenZulassungGenau(Wand& w, Seite n);        // annex G.2.2

}  // namespace rippenscheibe
