#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Characteristic and design values of the ribs from Holzart and kmodRippen (DIN 1052 (2008), annex F).
// N/mm², kg/m³.
void holzwerte(Wand& w);
// Characteristic and design values of the sheathing of side n from Material, t and kmod.
void beplankungswerte(Wand& w, Seite n);

}  // namespace rippenscheibe
