#include "fasteners/Schrauben.h"

#include <algorithm>
#include <array>

#include "fasteners/Einhaengeeffekt.h"

namespace rippenscheibe {

namespace {

constexpr double anteilEinhaengen = 1.0;  // the gain may reach the whole shear capacity

// Smallest head diameter; it holds for these three diameters exactly and for no other. mm.
struct Mindestkopf {
    double d;
    double dk;
};
// clang-format off
constexpr std::array<Mindestkopf, 3> mindestkoepfe{{
    {4.0, 7.5},
    {4.5, 8.3},
    {5.0, 9.2},
}};
// clang-format on
static_assert(mindestkoepfe.size() == 3);

bool kopfZuKlein(const Wand& w, Seite n) {
    return std::ranges::any_of(mindestkoepfe,
                               [&](const Mindestkopf& m) { return w.d[n] == m.d && w.dk[n] < m.dk; });
}
bool gewindeZuKurz(const Wand& w, Seite n) { return w.lg[n] < 0.6 * w.ln[n]; }

constexpr std::array<Ausschluss, 6> ausschluesse{randrippeZuDuenn, durchmesserUnter4, durchmesserAb8,
                                                 kopfZuKlein,      gewindeZuKurz,     einbindungUnter4d};

bool hatFliessmoment(const Wand& w, Seite n, Verfahren verfahren) {
    const bool zugfest = w.fuk[n] >= 400;
    const bool imBereich = w.d[n] >= 4 && w.d[n] < 8;
    if (verfahren == Verfahren::genau) return zugfest && imBereich;
    // Meant: side 1 does not look at fuk, side 2 knows the diameter 4 alone.
    if (n == Seite::eins && !zugfest) soVorgegeben("Seite 1 fragt nicht nach der Zugfestigkeit");
    if (n == Seite::zwei) soVorgegeben("Seite 2 kennt allein den Durchmesser 4 mm");
    return n == Seite::eins ? imBereich : zugfest && w.d[n] == 4;
}

void setzeFliessmoment(Wand& w, Seite n, Verfahren verfahren) {
    const bool vorhanden = hatFliessmoment(w, n, verfahren);
    w.Myk[n] = vorhanden ? fliessmoment(fliessmomentSchraube, w.fuk[n], w.d[n]) : Zahl(0);
}

// lef, f1k, f2k and Rxk. Both methods take the density of the ribs.
void setzeRxk(Wand& w, Seite n, Verfahren verfahren) {
    setzeEinbindelaenge(w, n);
    // Meant: side 1, simplified, leaves f1k1 alone, so that the minimum below works with what an earlier
    // calculation left there, 0 after program start.
    if (!(n == Seite::eins && verfahren == Verfahren::vereinfacht)) {
        w.f1k[n] = ausziehparameter(cSchraube, w.rhok);
    } else {
        soVorgegeben("Seite 1 lässt f1,k im vereinfachten Verfahren stehen");
    }
    switch (pruefeEinbindung(w, n, mindesteinbindungSchraube)) {
        case Einbindung::zuKurz:
            w.Rxk[n] = 0;
            break;
        case Einbindung::grenze:
            break;
        case Einbindung::genuegt:
            setzeRxkNachDicke(w, n, cKopf);
            break;
    }
}

constexpr Einhaengeregel einhaengeregel{setzeRxk, anteilEinhaengen};

}  // namespace

void setzeGruppenDerSchrauben(Wand& w, Seite n) {
    const Zahl d = w.d[n];
    if (istOsb(w, n) || istSpanplatteOderWeiter(w, n)) {
        setzeGruppe(w, n, Lochleibung::holzwerkstoff, {0.8, 7 * d, 4 * d});
    } else if (n == Seite::zwei) {
        // Meant: all the rest takes the fibre-board value, predrilled too, and the required thickness goes by
        // d1, the diameter of side 1.
        soVorgegeben("Seite 2 nimmt sonst den Wert der Gipsfaserplatte, A = 0 und d1 von Seite 1");
        w.fhkPlatte[n] = lochleibung(w, n, Lochleibung::gipsfaser);
        setzeBeiwerte(w, n, {0, 7 * w.d[Seite::eins], 30});
    } else if (istGipskarton(w, n)) {
        setzeGruppe(w, n, Lochleibung::gipskarton, {0, 10 * d, 4 * d});
    }
}

void schraubenVereinfacht(Wand& w, Seite n) {
    setzeFliessmoment(w, n, Verfahren::vereinfacht);
    setzeGruppenDerSchrauben(w, n);
    if (istEigenesMaterial(w, n)) setzeEigenesMaterial(w, n, 0.8);
    setzeRk(w, n);
    setzeZuwachsVereinfacht(w, n, einhaengeregel);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : bemessungswert(w, n, w.Rk[n] + w.deltaRk[n]);
}

void schraubenGenau(Wand& w, Seite n) {
    setzeFliessmoment(w, n, Verfahren::genau);
    versenke(w, n);
    setzeLochleibungNachGruppe(w, n);
    setzeVersagensarten(w, n, Schaefte::einer);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : kleinsteVersagensart(w, n);
    setzeZuwachsGenau(w, n, einhaengeregel);
    addiereDeltaRd(w, n);
}

}  // namespace rippenscheibe
