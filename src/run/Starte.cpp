#include "plausibility/Plausibilitaetslauf.h"
#include "run/Berechnungslauf.h"

namespace rippenscheibe {

Laufergebnis starte(Wand& w, Hinweisbehandlung hinweise) {
    plausibilitaetslauf(w);
    if (!w.Hinweise.empty() && hinweise == Hinweisbehandlung::beachten) return Laufergebnis::hinweise;
    berechnungslauf(w);
    return Laufergebnis::gerechnet;
}

}  // namespace rippenscheibe
