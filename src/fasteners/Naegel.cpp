#include "fasteners/Naegel.h"

#include <array>

#include "fasteners/Grundlagen.h"

namespace rippenscheibe {

namespace {

constexpr std::array<Ausschluss, 3> ausschluesse{randrippeZuDuenn, kuerzerAls10, einbindungUnter4d};

void setzeFliessmoment(Wand& w, Seite n) {
    const bool zulaessig = w.fuk[n] >= 600 && w.d[n] <= 8;
    w.Myk[n] = zulaessig ? fliessmoment(fliessmomentNagel, w.fuk[n], w.d[n]) : Zahl(0);
}

// Side 1: everything but gypsum is wood-based, numbers outside the catalogue too.
void setzeGruppeSeite1(Wand& w) {
    constexpr Seite n = Seite::eins;
    const Zahl d = w.d[n];
    if (!istGips(plattenmaterial(w, n))) {
        setzeGruppe(w, n, Lochleibung::holzwerkstoff, {0.8, 7 * d, 9 * d});
    } else if (istGipskarton(w, n)) {
        setzeGruppe(w, n, Lochleibung::gipskarton, {1.1, 10 * d, 9 * d});
    }
}

// Meant: side 2 has no gypsum group; nails in gypsum board have A = 0 there, and fhkPlatte2 is not assigned.
void setzeGruppeSeite2(Wand& w) {
    constexpr Seite n = Seite::zwei;
    const Zahl d = w.d[n];
    if (plattenmaterial(w, n) < Platte::GKB || istSpanplatteMitZulassung(plattenmaterial(w, n))) {
        setzeGruppe(w, n, Lochleibung::holzwerkstoff, {0.8, 7 * d, 9 * d});
    } else {
        soVorgegeben("Nägel auf Seite 2 kennen außer Holzwerkstoffen keine Gruppe: A = 0");
        setzeBeiwerte(w, n, {0, 7 * d, 9 * d});
    }
}

// Meant: on both sides chipboard P4 takes the formula of gypsum fibre board here, P5 to P7 do not.
void setzeLochleibungGenau(Wand& w, Seite n) {
    if (plattenmaterial(w, n) == Platte::P4) {
        if (hatFormel(w, n, Lochleibung::gipsfaser))
            soVorgegeben("Spanplatte P4 rechnet mit der Formel der Gipsfaserplatte");
        setzeLochleibung(w, n, Lochleibung::gipsfaser);
    } else if (istOsb(w, n) || istSpanplatteMitZulassung(plattenmaterial(w, n))) {
        setzeLochleibung(w, n, Lochleibung::holzwerkstoff);
    } else if (istGipskarton(w, n)) {
        setzeLochleibung(w, n, Lochleibung::gipskarton);
    } else if (istEigenesMaterial(w, n)) {
        setzeLochleibungEigen(w, n);
    }
}

}  // namespace

void naegelVereinfacht(Wand& w, Seite n) {
    setzeFliessmoment(w, n);
    // Side difference: the material groups.
    if (n == Seite::eins) {
        setzeGruppeSeite1(w);
    } else {
        setzeGruppeSeite2(w);
    }
    if (istEigenesMaterial(w, n)) setzeEigenesMaterial(w, n, 0.8);
    setzeRk(w, n);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : bemessungswert(w, n, w.Rk[n]);
}

void naegelGenau(Wand& w, Seite n) {
    setzeFliessmoment(w, n);
    versenke(w, n);
    setzeLochleibungGenau(w, n);
    setzeVersagensarten(w, n, Schaefte::einer);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesse) ? Zahl(0) : kleinsteVersagensart(w, n);
}

}  // namespace rippenscheibe
