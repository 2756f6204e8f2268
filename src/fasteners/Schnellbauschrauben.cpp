#include "fasteners/Schnellbauschrauben.h"

#include <array>

#include "fasteners/Grundlagen.h"

namespace rippenscheibe {

namespace {

// Lengths by diameter (DIN 18182-2), mm; both ends are allowed.
// clang-format off
constexpr std::array<Laengengrenze, 4> laengen{{
    {4.0, 25,  55},
    {4.3, 25,  55},
    {5.1, 70, 130},
    {5.5, 70, 130},
}};
// clang-format on
static_assert(laengen.size() == 4);

bool laengeFalsch(const Wand& w, Seite n) { return laengeUnzulaessig(w, n, laengen); }

constexpr std::array<Ausschluss, 3> ausschluesse{randrippeZuDuenn, laengeFalsch, einbindungUnter4d};

void setzeFliessmoment(Wand& w, Seite n) {
    const bool imBereich = w.d[n] >= 4 && w.d[n] < 8;
    // Meant: side 1 does not look at fuk, in both methods.
    if (n == Seite::eins && w.fuk[n] < 400) soVorgegeben("Seite 1 fragt nicht nach der Zugfestigkeit");
    const bool vorhanden = n == Seite::eins ? imBereich : w.fuk[n] >= 400 && imBereich;
    w.Myk[n] = vorhanden ? fliessmoment(fliessmomentSchraube, w.fuk[n], w.d[n]) : Zahl(0);
}

}  // namespace

void schnellbauschraubenVereinfacht(Wand& w, Seite n) {
    const Zahl d = w.d[n];
    setzeFliessmoment(w, n);
    // Meant: side 1 knows gypsum board only and leaves all fields alone on other materials; side 2 takes
    // every material for gypsum board, with 9 d of penetration in place of 4 d.
    if (n == Seite::eins && !istGipskarton(w, n))
        soVorgegeben("Seite 1 kennt nur Gipskarton: andere Materialien lassen die Beiwerte stehen");
    if (n == Seite::zwei) {
        soVorgegeben("Seite 2 nimmt jedes Material für Gipskarton, mit 9 d statt 4 d in der Rippe");
        setzeGruppe(w, n, Lochleibung::gipskarton, {1.1, 10 * d, 9 * d});
    } else if (istGipskarton(w, n)) {
        setzeGruppe(w, n, Lochleibung::gipskarton, {1.1, 10 * d, 4 * d});
    }
    if (istEigenesMaterial(w, n)) setzeEigenesMaterial(w, n, 1.1);
    setzeRk(w, n);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : bemessungswert(w, n, w.Rk[n]);
}

void schnellbauschraubenGenau(Wand& w, Seite n) {
    setzeFliessmoment(w, n);
    versenke(w, n);
    if (istGipskarton(w, n)) {
        setzeLochleibung(w, n, Lochleibung::gipskarton);
    } else if (istEigenesMaterial(w, n)) {
        setzeLochleibungEigen(w, n);
    } else if (n == Seite::zwei) {
        // Meant: on other materials side 1 keeps the earlier value, side 2 has none.
        soVorgegeben("hier hat Seite 2 keine Lochleibungsfestigkeit, Seite 1 behält die frühere");
        w.fhkPlatte[n] = 0;
    }
    setzeVersagensarten(w, n, Schaefte::einer);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : kleinsteVersagensart(w, n);
}

}  // namespace rippenscheibe
