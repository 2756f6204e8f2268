#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Modification factors of the ribs, of the sheathing of side n and of its fasteners, from service class
// and load duration (DIN 1052 (2008), table F.1). Single precision throughout.
void modifikationsbeiwerte(Wand& w, Seite n);

}  // namespace rippenscheibe
