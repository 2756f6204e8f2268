#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Capacity Rd (N) of one fastener of side n by design method, sheathing material and fastener kind,
// then the rules that hold for all fasteners.
void verteiler(Wand& w, Seite n);

}  // namespace rippenscheibe
