#include "fasteners/Schrauben_Zulassung.h"

#include <array>

#include "fasteners/Einhaengeeffekt.h"
#include "fasteners/Schrauben.h"

namespace rippenscheibe {

namespace {

constexpr double anteilEinhaengen = 1.0;

// Meant: side 2, simplified, measures the rib depth by d1, the diameter of side 1.
bool randrippeZuDuennFuerD1(const Wand& w, Seite n) {
    soVorgegeben("Seite 2 misst die Rippe mit d1 von Seite 1");
    return w.hRandrippe < 14 * w.d[Seite::eins] && !w.Vorgebohrt[n];
}

constexpr std::array<Ausschluss, 4> ausschluesse{randrippeZuDuenn, durchmesserUnter4, durchmesserAb8,
                                                 einbindungUnter4d};
constexpr std::array<Ausschluss, 4> ausschluesseSeite2Vereinfacht{randrippeZuDuennFuerD1, durchmesserUnter4,
                                                                  durchmesserAb8, einbindungUnter4d};

bool hatFliessmoment(const Wand& w, Seite n, Verfahren verfahren) {
    const bool zugfest = w.fuk[n] >= 400;
    const bool imBereich = w.d[n] >= 4 && w.d[n] < 8;
    // Meant: the conditions of the four routines are all different but for the form.
    soVorgegeben("wann es ein Fließmoment gibt, ist je Seite und Verfahren verschieden");
    if (verfahren == Verfahren::vereinfacht) {
        return n == Seite::eins ? zugfest && imBereich : zugfest && w.d[n] == 4;
    }
    return n == Seite::eins ? imBereich : zugfest && w.d[n] > 4 && w.d[n] < 8;
}

void setzeFliessmoment(Wand& w, Seite n, Verfahren verfahren) {
    const bool vorhanden = hatFliessmoment(w, n, verfahren);
    w.Myk[n] = vorhanden ? fliessmoment(fliessmomentSchraube, w.fuk[n], w.d[n]) : Zahl(0);
}

bool istGipskartonGenau(const Wand& w, Seite n) {
    // Meant: side 1 takes its upper bound from the material of side 2.
    if (n == Seite::eins) {
        soVorgegeben("Seite 1 nimmt die obere Grenze der Gipskartonplatten vom Material der Seite 2");
        return plattenmaterial(w, Seite::eins) >= Platte::GKB &&
               plattenmaterial(w, Seite::zwei) <= Platte::GKFI;
    }
    return istGipskarton(w, n);
}

// Rxk of a screw that reaches deep enough. Below 12 mm the parameters are not assigned.
void setzeRxkTiefGenug(Wand& w, Seite n, Verfahren verfahren) {
    const Dickenband band = dickenband(w, n);
    if (band == Dickenband::unter12) {
        w.Rxk[n] = RxkDuennePlatte;
        return;
    }
    const Tragfaehigkeitsklasse* k = tragfaehigkeitsklasse(w, n);
    if (k != nullptr) w.f1k[n] = ausziehparameter(k->schrauben, w.rhok);
    if (band == Dickenband::bis20) {
        w.f2k[n] = f2kBis20;
    } else if (k != nullptr) {
        w.f2k[n] = kopfdurchziehparameter(k->kopf);
    }
    // Meant: side 2, exact, up to 20 mm computes the parameters only; Rxk2 keeps its value.
    if (n == Seite::zwei && verfahren == Verfahren::genau && band == Dickenband::bis20) {
        soVorgegeben("Rx,k und Rx,d der Seite 2 behalten bis 20 mm Dicke ihren Wert");
        return;
    }
    w.Rxk[n] = ausziehtragfaehigkeit(w, n);
}

void setzeRxk(Wand& w, Seite n, Verfahren verfahren) {
    setzeEinbindelaenge(w, n);
    switch (pruefeEinbindung(w, n, mindesteinbindungSchraube)) {
        case Einbindung::zuKurz:
            w.Rxk[n] = 0;
            break;
        case Einbindung::grenze:
            break;
        case Einbindung::genuegt:
            setzeRxkTiefGenug(w, n, verfahren);
            break;
    }
}

// Side difference: in the band that leaves Rxk2 alone, as it says, Rxd2 keeps its value too, and the gain is
// formed from it.
bool laesstRxdStehen(const Wand& w, Seite n) {
    return n == Seite::zwei && dickenband(w, n) == Dickenband::bis20 &&
           pruefeEinbindung(w, n, mindesteinbindungSchraube) == Einbindung::genuegt;
}

constexpr Einhaengeregel einhaengeregel{setzeRxk, anteilEinhaengen, laesstRxdStehen};

}  // namespace

void schraubenZulassungVereinfacht(Wand& w, Seite n) {
    setzeFliessmoment(w, n, Verfahren::vereinfacht);
    setzeGruppenDerSchrauben(w, n);
    setzeRk(w, n);
    setzeZuwachsVereinfacht(w, n, einhaengeregel);
    const auto& regeln = n == Seite::eins ? ausschluesse : ausschluesseSeite2Vereinfacht;
    w.Rd[n] = ausgeschlossen(w, n, regeln) ? Zahl(0) : bemessungswert(w, n, w.Rk[n] + w.deltaRk[n]);
}

void schraubenZulassungGenau(Wand& w, Seite n) {
    setzeFliessmoment(w, n, Verfahren::genau);
    versenke(w, n);
    if (istOsb(w, n) || istSpanplatteOderWeiter(w, n)) {
        setzeLochleibung(w, n, Lochleibung::holzwerkstoff);
    } else if (istGipskartonGenau(w, n)) {
        setzeLochleibung(w, n, Lochleibung::gipskarton);
    }
    setzeVersagensarten(w, n, Schaefte::einer);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : kleinsteVersagensart(w, n);
    setzeZuwachsGenau(w, n, einhaengeregel);
    addiereDeltaRd(w, n);
}

}  // namespace rippenscheibe
