#pragma once

#include "plausibility/Plausibilitaetslauf.h"

// The checks of sheathing and fasteners, a side at a time. All of them append to w.Hinweise.

namespace rippenscheibe {

// The detailed checks of side n in fixed order: panel thickness, diameter, penetration depth, tensile
// strength, thread length, head diameter (kinds 2, 4 and 5), fastener length. Sets w.lef[n] (mm).
void pruefeBeplankungUndVerbindungsmittel(Wand& w, Seite n);

// Their parts; the last one looks at lef.
void pruefePlattendicke(Wand& w, Seite n);
void pruefeDurchmesserUndFestigkeit(Wand& w, Seite n);
void pruefeGewindeKopfUndLaenge(Wand& w, Seite n);

// Least thickness of the sheathing opposite a gypsum fibre board. Looks at both sides, on a one-sided
// wall too.
void pruefeGegenseiteDerGipsfaserplatte(Wand& w);

}  // namespace rippenscheibe
