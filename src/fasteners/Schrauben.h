#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Rd of screws to DIN 7997 (kind 4) on side n, any sheathing but gypsum fibre board; 0 outside the rules.
// With the rope effect when DeltaRd is set.
void schraubenVereinfacht(Wand& w, Seite n);  // DIN 1052 (2008), 12.2 to 12.8
void schraubenGenau(Wand& w, Seite n);        // annex G.2.2

// The material groups of the simplified method that all screws share; the own material counts as wood-based.
void setzeGruppenDerSchrauben(Wand& w, Seite n);

}  // namespace rippenscheibe
