#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Rd of nails (kind 7) and staples (kind 8) to DIN 18182-2 on side n, meant for gypsum board; 0 outside the
// rules. No rope effect.
void naegelDin18182Vereinfacht(Wand& w, Seite n);    // DIN 1052 (2008), 12.2 to 12.8
void naegelDin18182Genau(Wand& w, Seite n);          // annex G.2.2
void klammernDin18182Vereinfacht(Wand& w, Seite n);  // DIN 1052 (2008), 12.2 to 12.8
void klammernDin18182Genau(Wand& w, Seite n);        // annex G.2.2

}  // namespace rippenscheibe
