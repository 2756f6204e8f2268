#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// kc90: 1.25 for solid timber, 1.5 for glued laminated timber, 1.0 under a bottom rib wider than half
// the spacing (DIN 1052 (2008), 10.2.4).
void querdruckbeiwert(Wand& w);
// kc and the values it comes from, for the depth of the edge rib (10.3.1).
void knickbeiwert(Wand& w);
// kmRandrippe, kmInnenrippe and their slenderness (10.3.2).
void kippbeiwerte(Wand& w);

// Sill pressure (10.2.4) of each rib, N/mm². Does nothing when fc90d or kc90 is 0.
void nachweisSchwellenpressung(Wand& w);
// Compression with bending (10.3.3) of each rib.
void nachweisStabilitaet(Wand& w);
// Rib tension (10.2.1). Does nothing when ft0d is 0.
void nachweisZug(Wand& w);

}  // namespace rippenscheibe
