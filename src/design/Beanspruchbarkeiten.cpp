#include "design/Beanspruchbarkeiten.h"

namespace rippenscheibe {

namespace {

enum class Fall { keiner, einseitig, zweiseitig };

Fall fall(const Wand& w) {
    if (w.av[Seite::eins] == 0) return Fall::keiner;
    if (w.Einseitig) return Fall::einseitig;
    return w.av[Seite::zwei] != 0 ? Fall::zweiseitig : Fall::keiner;
}

void setzeBeiwerte(Wand& w, Fall f) {
    w.kv1 = 1;
    w.kv2 = f == Fall::einseitig ? 0.33 : 0.5;
}

Zahl reihen(const Wand& w, Seite n) { return w.Zweireihig[n] ? 2 : 1; }

// Jointed sheathing under horizontal load whose panels are shorter than half the wall (8.7.5).
bool mindertUmEinSechstel(const Wand& w, Seite n) {
    return w.Gestossen[n] && 0.5 * w.Wandhoehe > w.Plattenbreite[n] / 1000 &&
           (w.Lastfall == 1 || w.Lastfall == 3);
}

void seiteParallel(Wand& w, Seite n) {
    w.fv0dTerm1[n] = reihen(w, n) * w.kv1 * w.Rd[n] / w.av[n];
    w.fv0dTerm2[n] = w.kv1 * w.kv2 * w.fvd[n] * w.t[n];
    w.fv0dTerm3[n] = w.kv1 * w.kv2 * w.fvd[n] * 35 * (w.t[n] * w.t[n]) / w.Rippenabstand;
    w.fv0dn[n] = Min(w.fv0dTerm1[n], w.fv0dTerm2[n], w.fv0dTerm3[n]);
    if (mindertUmEinSechstel(w, n))
        for (Feld* feld : {&w.fv0dn[n], &w.fv0dTerm1[n], &w.fv0dTerm2[n], &w.fv0dTerm3[n]})
            *feld *= Zahl(5) / 6;
}

// No reduction of jointed sheathing in this direction.
void seiteSenkrecht(Wand& w, Seite n) {
    w.fv90dTerm1[n] = reihen(w, n) * w.Rd[n] / w.av[n];
    w.fv90dTerm2[n] = w.kv2 * w.fcd[n] * w.t[n];
    w.fv90dTerm3[n] = w.kv2 * w.fcd[n] * 20 * (w.t[n] * w.t[n]) / w.Rippenabstand;
    w.fv90dn[n] = Min(w.fv90dTerm1[n], w.fv90dTerm2[n], w.fv90dTerm3[n]);
}

// The weaker of two sides counts with 80 %; equal sides stay whole.
Zahl summeMitAchtzigProzent(Paar<Feld>& festigkeit) {
    Feld& eins = festigkeit[Seite::eins];
    Feld& zwei = festigkeit[Seite::zwei];
    if (eins < zwei) {
        eins = 0.8 * eins;
    } else if (eins > zwei) {
        zwei = 0.8 * zwei;
    }
    return eins + zwei;
}

}  // namespace

void beanspruchbarkeitParallel(Wand& w) {
    const Fall f = fall(w);
    if (f == Fall::keiner) return;
    setzeBeiwerte(w, f);
    seiteParallel(w, Seite::eins);
    if (f == Fall::einseitig) {
        w.fv0d = w.fv0dn[Seite::eins];
        return;
    }
    seiteParallel(w, Seite::zwei);
    w.fv0d = summeMitAchtzigProzent(w.fv0dn);
}

void beanspruchbarkeitSenkrecht(Wand& w) {
    const Fall f = fall(w);
    if (f == Fall::keiner) return;
    setzeBeiwerte(w, f);
    seiteSenkrecht(w, Seite::eins);
    if (f == Fall::einseitig) {
        w.fv90d = w.fv90dn[Seite::eins];
        return;
    }
    seiteSenkrecht(w, Seite::zwei);
    w.fv90d = summeMitAchtzigProzent(w.fv90dn);
}

}  // namespace rippenscheibe
