#include "fasteners/Sondernaegel.h"

#include <array>

#include "fasteners/Einhaengeeffekt.h"

namespace rippenscheibe {

namespace {

constexpr double anteilEinhaengen = 0.5;  // the gain reaches half the shear capacity at most

bool dickerAls8(const Wand& w, Seite n) { return w.d[n] > 8; }

constexpr std::array<Ausschluss, 4> ausschluesse{randrippeZuDuenn, dickerAls8, kuerzerAls10,
                                                 einbindungUnter4d};

void setzeFliessmoment(Wand& w, Seite n) {
    w.Myk[n] = w.fuk[n] >= 600 ? fliessmoment(fliessmomentNagel, w.fuk[n], w.d[n]) : Zahl(0);
}

void setzeGruppen(Wand& w, Seite n) {
    const Zahl d = w.d[n];
    if (istOsb(w, n) || istSpanplatteOderWeiter(w, n)) {
        setzeGruppe(w, n, Lochleibung::holzwerkstoff, {0.8, 7 * d, 9 * d});
    } else if (n == Seite::zwei) {
        // Meant: side 2 has no gypsum group; all the rest has A = 0 and no fhkPlatte2.
        soVorgegeben("Sondernägel auf Seite 2 kennen außer Holzwerkstoffen keine Gruppe: A = 0");
        setzeBeiwerte(w, n, {0, 7 * d, 9 * d});
    } else if (istGipskarton(w, n)) {
        setzeGruppe(w, n, Lochleibung::gipskarton, {1.1, 10 * d, 9 * d});
    }
    if (istEigenesMaterial(w, n)) setzeEigenesMaterial(w, n, 0.8);
}

// lef, f1k, f2k and Rxk. Classes below 3A have no withdrawal capacity.
void setzeRxk(Wand& w, Seite n, Verfahren verfahren) {
    setzeEinbindelaenge(w, n);
    begrenzeEinbindelaenge(w, n);
    if (!istKlasse3(w, n)) {
        w.Rxk[n] = 0;
        return;
    }
    const Tragfaehigkeitsklasse& klasse = *tragfaehigkeitsklasse(w, n);
    // Meant: the simplified method has no density: f1k is 0 there, and only a sheathing below 12 mm gives a
    // gain.
    if (verfahren == Verfahren::vereinfacht)
        soVorgegeben("das vereinfachte Verfahren kennt hier keine Rohdichte: f1,k = 0");
    const Zahl rho = verfahren == Verfahren::vereinfacht ? Zahl(0) : Zahl(w.rhok);
    const Zahl f1k = ausziehparameter(klasse.sondernaegel, rho);
    w.f1k[n] = w.Vorgebohrt[n] ? beiwertVorgebohrt * f1k : f1k;

    const Einbindung einbindung = pruefeEinbindung(w, n, mindesteinbindungNagel);
    if (einbindung == Einbindung::zuKurz) {
        w.Rxk[n] = 0;
        return;
    }
    // Meant: at lef = 8 d exactly the simplified method keeps Rxk, the exact one goes on.
    if (einbindung == Einbindung::grenze && verfahren == Verfahren::vereinfacht) {
        soVorgegeben("bei lef = 8 d behält Rx,k im vereinfachten Verfahren seinen Wert");
        return;
    }
    setzeRxkNachDicke(w, n, klasse.kopf);
}

constexpr Einhaengeregel einhaengeregel{setzeRxk, anteilEinhaengen};

}  // namespace

void sondernaegelVereinfacht(Wand& w, Seite n) {
    setzeFliessmoment(w, n);
    setzeGruppen(w, n);
    setzeRk(w, n);
    setzeZuwachsVereinfacht(w, n, einhaengeregel);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : bemessungswert(w, n, w.Rk[n] + w.deltaRk[n]);
}

void sondernaegelGenau(Wand& w, Seite n) {
    setzeFliessmoment(w, n);
    versenke(w, n);
    // Both sides alike: here side 2 knows gypsum board too.
    setzeLochleibungNachGruppe(w, n);
    setzeVersagensarten(w, n, Schaefte::einer);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : kleinsteVersagensart(w, n);
    setzeZuwachsGenau(w, n, einhaengeregel);
    addiereDeltaRd(w, n);
}

}  // namespace rippenscheibe
