#include "run/Berechnungslauf.h"

#include "design/Beanspruchbarkeiten.h"
#include "design/Beanspruchungen.h"
#include "design/Nachweise.h"
#include "design/Verankerung.h"
#include "design/Verformungen.h"
#include "fasteners/Verteiler.h"
#include "materials/Materialkennwerte.h"
#include "materials/kmod.h"
#include "plausibility/Plausibilitaetslauf.h"

namespace rippenscheibe {

void berechnungslauf(Wand& w) {
    for (const Seite n : beideSeiten) {
        w.tvorh[n] = 1;
        w.treq[n] = 1;
    }
    modifikationsbeiwerte(w, Seite::eins);
    if (!w.Einseitig) modifikationsbeiwerte(w, Seite::zwei);
    holzwerte(w);
    beplankungswerte(w, Seite::eins);
    if (!w.Einseitig) beplankungswerte(w, Seite::zwei);
    // Side 2 is dispatched on a one-sided panel too: no result uses its capacity, but it adds a pass of
    // resistances and proofs, and the exact distribution of vertical loads compounds from pass to pass.
    verteiler(w, Seite::eins);
    verteiler(w, Seite::zwei);
    beanspruchbarkeitParallel(w);
    beanspruchbarkeitSenkrecht(w);
    beanspruchungen(w);
    nachweise(w);
    wandsteifigkeit(w);
    if (w.NachweisVerankerung) nachweisVerankerung(w);
    zusammenfassung(w);
}

Laufergebnis starte(Wand& w, Hinweisbehandlung hinweise) {
    plausibilitaetslauf(w);
    if (!w.Hinweise.empty() && hinweise == Hinweisbehandlung::beachten) return Laufergebnis::hinweise;
    berechnungslauf(w);
    return Laufergebnis::gerechnet;
}

}  // namespace rippenscheibe
