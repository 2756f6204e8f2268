#include "design/Verbindungsmittelabstaende.h"

namespace rippenscheibe {

namespace {

bool nagelartig(const Wand& w, Seite n) { return istNagel(vmArt(w, n)) || istSchraube(vmArt(w, n)); }

struct Vielfache {
    double a1;
    double a2;
    double a3;
    double a4;
    double aRand;
};

// Meant: the routine of side 2 never writes a42 and aRand2.
void setzeRippe(Wand& w, Seite n, const Vielfache& v) {
    if (n == Seite::zwei) soVorgegeben("Seite 2 setzt a4 und aRand nicht");
    w.a1[n] = v.a1 * w.d[n];
    w.a2[n] = v.a2 * w.d[n];
    w.a3[n] = v.a3 * w.d[n];
    if (n == Seite::eins) {
        w.a4[n] = v.a4 * w.d[n];
        w.aRand[n] = v.aRand * w.d[n];
    }
}

// Density up to 420 kg/m³, not predrilled.
void leichteRippe(Wand& w, Seite n) {
    if (n == Seite::eins) {
        setzeRippe(w, n, w.d[n] < 5 ? Vielfache{5, 5, 7, 12, 7} : Vielfache{5, 5, 10, 15, 10});
        return;
    }
    // Meant: on side 2 the row of 7d asks for d1 < 5 and the row of 10d for d2 >= 5. With different
    // diameters both or neither may apply; the later one stands.
    soVorgegeben("auf Seite 2 gilt a3 = 7 d bei d1 < 5 und 10 d bei d2 ≥ 5; a4 und aRand setzt sie nicht");
    w.a1[n] = 5 * w.d[n];
    w.a2[n] = 5 * w.d[n];
    if (w.d[Seite::eins] < 5) w.a3[n] = 7 * w.d[n];
    if (w.d[Seite::zwei] >= 5) w.a3[n] = 10 * w.d[n];
}

void rippeNagelartig(Wand& w, Seite n) {
    if (w.Vorgebohrt[n]) {
        setzeRippe(w, n, {3, 3, 7, 12, 7});
    } else if (w.rhok <= 420) {
        leichteRippe(w, n);
    } else if (w.rhok < 500) {
        setzeRippe(w, n, w.d[n] < 5 ? Vielfache{7, 7, 9, 20, 15} : Vielfache{7, 7, 12, 20, 15});
    }
}

void plattenrandNagelartig(Wand& w, Seite n) {
    const Platte p = plattenmaterial(w, n);
    const auto setze = [&](double unbelastet, double belastet) {
        w.aPlatteUnbelastet[n] = unbelastet * w.d[n];
        w.aPlatte[n] = belastet * w.d[n];
    };
    // Chipboard with approval is among them, although gypsum-like distances exist for it.
    if (istOsb(p) || istSpanplatteOderWeiter(p)) {
        setze(3, 7);
    } else if (istGipskarton(p)) {
        setze(7, 10);
    } else if (istGipsfaser(p)) {
        setze(4, 7);
    }
}

void klammern(Wand& w, Seite n) {
    const Zahl d = w.d[n];
    if (istGipsfaser(plattenmaterial(w, n))) {
        w.aPlatteUnbelastet[n] = 9 * d;
        w.aPlatte[n] = 12 * d;
        return;
    }
    // Meant: the sine takes the degrees as they stand, without conversion to radians.
    const Zahl sinus = sin(w.beta);
    soVorgegeben("der Sinus nimmt die Gradzahl, ohne sie umzurechnen");
    w.a1[n] = (w.beta >= 30 ? 10 * sinus + 5 : Zahl(10)) * d;
    w.a2[n] = (5 * sinus + 5) * d;
    w.a3[n] = 10 * d;
    // Meant: a4 and aRand on side 1 only.
    if (n == Seite::zwei) soVorgegeben("Seite 2 setzt a4 und aRand nicht");
    w.aPlatteUnbelastet[n] = (5 * sinus + 5) * d;
    w.aPlatte[n] = 10 * d;
    if (n == Seite::eins) {
        w.a4[n] = 20 * d;
        w.aRand[n] = 15 * d;
    }
}

}  // namespace

void verbindungsmittelabstaende(Wand& w, Seite n) {
    if (nagelartig(w, n)) {
        rippeNagelartig(w, n);
        plattenrandNagelartig(w, n);
    }
    if (istKlammer(w, n)) klammern(w, n);
}

}  // namespace rippenscheibe
