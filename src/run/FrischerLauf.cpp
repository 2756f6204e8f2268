#include "run/FrischerLauf.h"

#include "run/Zuweisen.h"

namespace rippenscheibe {

const Ergebnisse& ergebnisseNachProgrammstart() {
    static const Ergebnisse ergebnisse = [] {
        Wand w;
        zuweisen(w, grundmasse(w));
        return static_cast<Ergebnisse&>(w);
    }();
    return ergebnisse;
}

Laufergebnis rechneFrisch(Wand& w, int laeufe, Hinweisbehandlung hinweise) {
    static_cast<Ergebnisse&>(w) = ergebnisseNachProgrammstart();
    w.Hinweise.clear();
    // Opening and every start button assign the same three fields; a second time changes nothing.
    const Grundmasse felder = grundmasse(w);
    Laufergebnis ergebnis = Laufergebnis::hinweise;
    for (int lauf = 0; lauf < laeufe; ++lauf) {
        zuweisen(w, felder);
        ergebnis = starte(w, hinweise);
    }
    return ergebnis;
}

FrischeWand frischerLauf(const Eingaben& eingaben, const EigeneMaterialien& materialien, int laeufe) {
    FrischeWand frisch;
    static_cast<Eingaben&>(frisch.wand) = eingaben;
    frisch.wand.eigeneMaterialien = materialien;
    frisch.ergebnis = rechneFrisch(frisch.wand, laeufe);
    return frisch;
}

}  // namespace rippenscheibe
