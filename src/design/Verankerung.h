#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// Ftdst (kN), the tension to be anchored at a wall end, by the chosen method. The simplified one raises
// FEdge in place for load cases 2 and 3.
void ankerzugkraft(Wand& w);

// RdAnker (kN per anchor) of a catalogue anchor from nails, load duration and cap; the free anchor
// keeps its own.
void ankertragfaehigkeit(Wand& w);

// The anchorage proof: RdAnker and Fbd (kN), the force in the concrete anchor.
void nachweisVerankerung(Wand& w);

}  // namespace rippenscheibe
