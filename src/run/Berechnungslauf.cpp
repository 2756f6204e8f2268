#include "run/Berechnungslauf.h"

#include "design/Beanspruchbarkeiten.h"
#include "design/Beanspruchungen.h"
#include "design/Nachweise.h"
#include "design/Verankerung.h"
#include "design/Verformungen.h"
#include "fasteners/Verteiler.h"
#include "materials/Materialkennwerte.h"
#include "materials/kmod.h"

namespace rippenscheibe {

namespace {

bool traegt(const Wand& w, Seite n) { return w.av[n] != 0 && w.Rd[n] != 0; }

}  // namespace

void zwischendurchgang(Wand& w) {
    if (!traegt(w, Seite::eins) || !(w.Einseitig || traegt(w, Seite::zwei))) return;
    beanspruchbarkeitParallel(w);
    beanspruchbarkeitSenkrecht(w);
    nachweise(w);
}

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
    for (const Seite n : beideSeiten) {
        verteiler(w, n);
        // Meant: the pass behind side 1 sees Rd2 of the run before.
        if (n == Seite::eins && !w.Einseitig && traegt(w, Seite::eins) && traegt(w, Seite::zwei))
            soVorgegeben("der Durchgang nach Seite 1 rechnet mit Rd2 des vorigen Laufs");
        zwischendurchgang(w);
    }
    beanspruchbarkeitParallel(w);
    beanspruchbarkeitSenkrecht(w);
    beanspruchungen(w);
    nachweise(w);
    wandsteifigkeit(w);
    if (w.NachweisVerankerung) nachweisVerankerung(w);
    zusammenfassung(w);
}

}  // namespace rippenscheibe
