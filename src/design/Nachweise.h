#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// All proofs in their fixed order, the actions first. Utilisations are action over resistance.
void nachweise(Wand& w);
// The maxima over the ribs and the verdict AlleNachweiseErfuellt.
void zusammenfassung(Wand& w);

}  // namespace rippenscheibe
