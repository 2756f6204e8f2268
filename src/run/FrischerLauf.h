#pragma once

#include "run/Berechnungslauf.h"

// The run of a position that knows nothing of what was computed before: inputs and own materials decide
// alone. A start button does not promise that, because results stay in the record between runs.

namespace rippenscheibe {

// The results after program start: the defaults with Zuweisen.
const Ergebnisse& ergebnisseNachProgrammstart();

// Gives the record the results of program start and no findings, opens its inputs (Zuweisen) and presses the
// start button `laeufe` times. Inputs stay but for what a run writes: RdAnker of a catalogue anchor.
// Allocates nothing unless there are findings.
Laufergebnis rechneFrisch(Wand& w, int laeufe = 1, Hinweisbehandlung hinweise = Hinweisbehandlung::beachten);

struct FrischeWand {
    Wand wand;
    Laufergebnis ergebnis;
};

// The same in a record of its own.
FrischeWand frischerLauf(const Eingaben& eingaben, const EigeneMaterialien& materialien, int laeufe = 1);

}  // namespace rippenscheibe
