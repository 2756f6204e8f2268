#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Rd of staples (kind 3) on side n, any sheathing but gypsum fibre board; 0 outside the rules. The two
// shanks count double, a back at less than 30 degrees to the grain 0.7 times. There is no rule for the
// rib depth and no rope effect.
void klammernVereinfacht(Wand& w, Seite n);  // DIN 1052 (2008), 12.2 to 12.8
void klammernGenau(Wand& w, Seite n);        // annex G.2.2

// Steps that staples on gypsum board and gypsum fibre board share.

// True when the staple is too short for its diameter or for the sheathing.
bool klammerAusgeschlossen(const Wand& w, Seite n);
// Rd of both shanks from Rk, times the factor of the angle.
Zahl klammerRdVereinfacht(const Wand& w, Seite n);
// Rd as the smallest failure mode, times the factor of the angle.
Zahl klammerRdGenau(const Wand& w, Seite n);

}  // namespace rippenscheibe
