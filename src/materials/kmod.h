#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Modification factors of the ribs, of the sheathing of side n and of its fasteners, from service class
// and load duration (DIN 1052 (2008), table F.1). Single precision throughout.
void modifikationsbeiwerte(Wand& w, Seite n);

// kmod of timber by load duration, in double precision; 0 for a number outside 1 to 5.
Zahl kmodHolz(int KLED);

}  // namespace rippenscheibe
