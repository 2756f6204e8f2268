#include "fasteners/DIN18182.h"

#include <array>

#include "fasteners/Grundlagen.h"
#include "fasteners/Klammern.h"

namespace rippenscheibe {

namespace {

// Lengths of nails by diameter (DIN 18182-2), mm; both ends are allowed.
// clang-format off
constexpr std::array<Laengengrenze, 3> nagellaengen{{
    {2.2, 28, 50},
    {2.5, 30, 70},
    {2.8, 41, 70},
}};
// clang-format on
static_assert(nagellaengen.size() == 3);

bool ohneBeplankung(const Wand& w, Seite n) { return w.t[n] == 0; }
bool nagellaengeFalsch(const Wand& w, Seite n) { return laengeUnzulaessig(w, n, nagellaengen); }

constexpr std::array<Ausschluss, 4> ausschluesseNaegel{ohneBeplankung, randrippeZuDuenn, nagellaengeFalsch,
                                                       einbindungUnter4d};

void setzeFliessmomentNagel(Wand& w, Seite n) {
    w.Myk[n] = w.fuk[n] >= 600 ? fliessmoment(fliessmomentNagel, w.fuk[n], w.d[n]) : Zahl(0);
}

void setzeFliessmomentKlammer(Wand& w, Seite n) {
    const bool duenn = w.fuk[n] >= 950 && w.d[n] <= 1.25;
    const bool dick = w.fuk[n] >= 680 && w.d[n] > 1.25;
    w.Myk[n] = duenn || dick ? fliessmoment(fliessmomentNagel, w.fuk[n], w.d[n]) : Zahl(0);
}

// Nails and staples to this standard read the own material only when not predrilled.
bool istEigenesMaterialUngebohrt(const Wand& w, Seite n) {
    return istEigenesMaterial(w, n) && !w.Vorgebohrt[n];
}

// Meant: chipboard with approval is in the group of wood-based boards on neither side.
bool istKlammerHolzwerkstoff(const Wand& w, Seite n) {
    if (istSpanplatteMitZulassung(plattenmaterial(w, n)) && !istSpanplatte(plattenmaterial(w, n)))
        soVorgegeben("Spanplatten mit Zulassung zählen bei diesen Klammern nicht zu den Holzwerkstoffen");
    return istOsb(w, n) || istSpanplatte(plattenmaterial(w, n));
}

// Meant: all other materials of side 2 have A = 0; their embedment strength, formed with d2 and t2, is
// written to the field of side 1.
void setzeRestgruppeKlammernSeite2(Wand& w) {
    constexpr Seite n = Seite::zwei;
    if (!hatFormel(w, n, Lochleibung::gipsfaser)) return;
    soVorgegeben("Seite 2 schreibt ihre Lochleibungsfestigkeit in das Feld von Seite 1 und hat A = 0");
    w.fhkPlatte[Seite::eins] = lochleibung(w, n, Lochleibung::gipsfaser);
    setzeBeiwerte(w, n, {0, 7 * w.d[n], 30});
}

}  // namespace

void naegelDin18182Vereinfacht(Wand& w, Seite n) {
    const Zahl d = w.d[n];
    setzeFliessmomentNagel(w, n);
    if (istGipskarton(w, n)) {
        setzeGruppe(w, n, Lochleibung::gipskarton, {1.1, 10 * d, 9 * d});
    } else {
        setzeGruppe(w, n, Lochleibung::gipsfaser, {0, 7 * d, 30});
    }
    if (istEigenesMaterialUngebohrt(w, n)) setzeEigenesMaterial(w, n, 0);
    setzeRk(w, n);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesseNaegel) ? Zahl(0) : bemessungswert(w, n, w.Rk[n]);
}

void naegelDin18182Genau(Wand& w, Seite n) {
    setzeFliessmomentNagel(w, n);
    versenke(w, n);
    if (istGipskarton(w, n)) {
        setzeLochleibung(w, n, Lochleibung::gipskarton);
    } else {
        w.fhkPlatte[n] = 0;
    }
    if (istEigenesMaterialUngebohrt(w, n)) setzeLochleibungEigen(w, n);
    setzeVersagensarten(w, n, Schaefte::einer);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesseNaegel) ? Zahl(0) : kleinsteVersagensart(w, n);
}

void klammernDin18182Vereinfacht(Wand& w, Seite n) {
    const Zahl d = w.d[n];
    setzeFliessmomentKlammer(w, n);
    if (istKlammerHolzwerkstoff(w, n)) {
        setzeGruppe(w, n, Lochleibung::holzwerkstoff, {0.8, 7 * d, 9 * d});
    } else if (istGipskarton(w, n)) {
        setzeGruppe(w, n, Lochleibung::gipskarton, {1.1, 10 * d, 9 * d});
    } else if (n == Seite::zwei) {
        // Side difference: side 1 assigns nothing on the other materials.
        setzeRestgruppeKlammernSeite2(w);
    }
    // Meant: staples in the own material have no capacity on side 2.
    const double AFaktorEigen = n == Seite::eins ? 0.8 : 0;
    if (n == Seite::zwei && istEigenesMaterialUngebohrt(w, n))
        soVorgegeben("diese Klammern haben im eigenen Material auf Seite 2 A = 0");
    if (istEigenesMaterialUngebohrt(w, n)) setzeEigenesMaterial(w, n, AFaktorEigen);
    setzeRk(w, n);
    w.Rd[n] = klammerAusgeschlossen(w, n) ? Zahl(0) : klammerRdVereinfacht(w, n);
}

void klammernDin18182Genau(Wand& w, Seite n) {
    setzeFliessmomentKlammer(w, n);
    versenke(w, n);
    if (istKlammerHolzwerkstoff(w, n)) {
        setzeLochleibung(w, n, Lochleibung::holzwerkstoff);
    } else if (istGipskarton(w, n)) {
        setzeLochleibung(w, n, Lochleibung::gipskarton);
    } else if (istEigenesMaterialUngebohrt(w, n)) {
        setzeLochleibungEigen(w, n);
    }
    setzeVersagensarten(w, n, Schaefte::zwei);
    w.Rd[n] = klammerAusgeschlossen(w, n) ? Zahl(0) : klammerRdGenau(w, n);
}

}  // namespace rippenscheibe
