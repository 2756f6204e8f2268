#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Rd of nails (kind 1), special nails (kind 2) and staples (kind 3) on gypsum fibre board, Material 7 of
// side n; 0 outside the rules.
void naegelFermacellVereinfacht(Wand& w, Seite n);        // DIN 1052 (2008), 12.2 to 12.8
void naegelFermacellGenau(Wand& w, Seite n);              // annex G.2.2
void sondernaegelFermacellVereinfacht(Wand& w, Seite n);  // DIN 1052 (2008), 12.2 to 12.8
void sondernaegelFermacellGenau(Wand& w, Seite n);        // annex G.2.2
void klammernFermacellVereinfacht(Wand& w, Seite n);      // DIN 1052 (2008), 12.2 to 12.8
void klammernFermacellGenau(Wand& w, Seite n);            // annex G.2.2

}  // namespace rippenscheibe
