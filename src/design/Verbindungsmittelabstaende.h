#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Minimum spacings and edge distances of the fasteners of side n in mm, as multiples of the diameter
// (DIN 1052 (2008), tables 8, 10 and 11).
void verbindungsmittelabstaende(Wand& w, Seite n);

}  // namespace rippenscheibe
