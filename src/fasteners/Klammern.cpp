#include "fasteners/Klammern.h"

#include <array>

#include "fasteners/Grundlagen.h"

namespace rippenscheibe {

namespace {

constexpr int schaefte = static_cast<int>(Schaefte::zwei);
constexpr double beiwertFlacherWinkel = 0.7;

bool duenneKlammerZuKurz(const Wand& w, Seite n) { return w.ln[n] < 29 && w.d[n] >= 1 && w.d[n] <= 1.3; }
bool dickeKlammerZuKurz(const Wand& w, Seite n) { return w.ln[n] < 35 && w.d[n] > 1.3 && w.d[n] < 1.6; }

constexpr std::array<Ausschluss, 3> ausschluesse{duenneKlammerZuKurz, dickeKlammerZuKurz, einbindungUnter8d};

bool istHolzwerkstoff(const Wand& w, Seite n) {
    return istOsb(w, n) || istSpanplatteMitZulassung(plattenmaterial(w, n));
}

Zahl winkelbeiwert(const Wand& w) {
    return w.KlammerWinkelOption != 1 ? Zahl(beiwertFlacherWinkel) : Zahl(1);
}

}  // namespace

bool klammerAusgeschlossen(const Wand& w, Seite n) { return ausgeschlossen(w, n, ausschluesse); }

Zahl klammerRdVereinfacht(const Wand& w, Seite n) {
    return winkelbeiwert(w) * bemessungswert(w, n, w.Rk[n] * schaefte);
}

Zahl klammerRdGenau(const Wand& w, Seite n) { return winkelbeiwert(w) * kleinsteVersagensart(w, n); }

void klammernVereinfacht(Wand& w, Seite n) {
    const Zahl d = w.d[n];
    w.Myk[n] = w.fuk[n] >= 800 ? fliessmoment(fliessmomentNagel, w.fuk[n], d) : Zahl(0);
    if (istHolzwerkstoff(w, n)) {
        setzeGruppe(w, n, Lochleibung::holzwerkstoff, {0.8, 7 * d, 9 * d});
    } else if (n == Seite::zwei) {
        // Meant: side 2 has no gypsum group; all the rest has A = 0 and no fhkPlatte2.
        soVorgegeben("Klammern auf Seite 2 kennen außer Holzwerkstoffen keine Gruppe: A = 0");
        setzeBeiwerte(w, n, {0, 7 * d, 9 * d});
    } else if (istGipskarton(w, n)) {
        setzeGruppe(w, n, Lochleibung::gipskarton, {1.1, 10 * d, 9 * d});
    }
    if (istEigenesMaterial(w, n)) setzeEigenesMaterial(w, n, 0.8);
    setzeRk(w, n);
    w.Rd[n] = klammerAusgeschlossen(w, n) ? Zahl(0) : klammerRdVereinfacht(w, n);
}

void klammernGenau(Wand& w, Seite n) {
    // Meant: side 2 tests its own fuk2, but forms the moment with fuk1.
    const Zahl fukMoment = n == Seite::zwei ? w.fuk[Seite::eins] : w.fuk[n];
    if (n == Seite::zwei) soVorgegeben("Seite 2 bildet das Fließmoment mit der Zugfestigkeit von Seite 1");
    w.Myk[n] = w.fuk[n] >= 800 ? fliessmoment(fliessmomentNagel, fukMoment, w.d[n]) : Zahl(0);
    versenke(w, n);
    if (istHolzwerkstoff(w, n)) {
        setzeLochleibung(w, n, Lochleibung::holzwerkstoff);
    } else if (istGipskarton(w, n)) {
        setzeLochleibung(w, n, Lochleibung::gipskarton);
    } else if (istEigenesMaterial(w, n)) {
        setzeLochleibungEigen(w, n);
    }
    setzeVersagensarten(w, n, Schaefte::zwei);
    w.Rd[n] = klammerAusgeschlossen(w, n) ? Zahl(0) : klammerRdGenau(w, n);
}

}  // namespace rippenscheibe
