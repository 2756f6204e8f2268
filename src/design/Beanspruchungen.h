#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// The characteristic loads with their partial factors 1.35 and 1.5 (DIN 1055-100): Fvd, Fcgd, Fcqd in
// kN, gd and qd in kN/m, wd in kN/m².
void bemessungslasten(Wand& w);

// Shear flow, compression into the sheathing and, rib by rib, compression, tension, wind moment and
// fastener pull-out forces (DIN 1052 (2008), 8.7.4 and 8.7.5). With the exact distribution of vertical
// loads each call reduces gd, qd, Fcgd and Fcqd in place by the share of the ribs, so that the passes
// of one run compound.
void beanspruchungen(Wand& w);

// nVM: fasteners along the wall of both sides.
void verbindungsmittelanzahl(Wand& w);

}  // namespace rippenscheibe
