#pragma once

#include "model/Wand.h"

namespace rippenscheibe {

// The whole design in its fixed sequence: modification factors, material values, capacities,
// resistances, proofs, deformation, anchorage, verdict.
void berechnungslauf(Wand& w);

// The pass of resistances and proofs behind the dispatch of either side, when all sides in use have capacity
// and spacing. It is no rehearsal: the exact distribution of vertical loads compounds from pass to pass. On a
// two-sided panel the pass behind side 1 sees Rd2 of the run before.
void zwischendurchgang(Wand& w);

enum class Hinweisbehandlung { beachten, uebergehen };
enum class Laufergebnis { gerechnet, hinweise };

// What a start button does with the position: Zuweisen has to come before. Plausibility run, then,
// unless findings stop it, the calculation run.
Laufergebnis starte(Wand& w, Hinweisbehandlung hinweise = Hinweisbehandlung::beachten);

}  // namespace rippenscheibe
