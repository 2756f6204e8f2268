#include "design/Herausziehen.h"

#include <array>

#include "design/Rippen.h"
#include "model/Kataloge.h"

namespace rippenscheibe {

namespace {

constexpr Seite S1 = Seite::eins;
constexpr double kein = 0.000001;  // N: too little for any proof, but no division by zero

struct Klassenzeile {
    double sondernaegel;  // factors c of f1k and f2k = c * 10^-6 * rho²
    double schrauben;
    double kopf;
};

// clang-format off
// Withdrawal parameters by load-capacity class 1A to 3C (DIN 1052 (2008), tables 14 and 15).
constexpr std::array<Klassenzeile, 9> klassen{{
    {30, 60,  60},
    {30, 60,  80},
    {30, 60, 100},
    {40, 70,  60},
    {40, 70,  80},
    {40, 70, 100},
    {50, 80,  60},
    {50, 80,  80},
    {50, 80, 100},
}};
// clang-format on

const Klassenzeile* klasse(const Wand& w) {
    const int k = w.VMKlasse[S1].value();
    return k >= 1 && k <= static_cast<int>(klassen.size()) ? &klassen[static_cast<std::size_t>(k) - 1]
                                                           : nullptr;
}

// Parameters of one kind of fastener.
struct Ausziehart {
    double mindestens;                    // least penetration as a multiple of d
    Zahl f1k;                             // N/mm²; failed: not assigned
    Zahl kopfparameter;                   // factor of f2k above 20 mm; failed: not assigned
    Zahl kopfflaeche;                     // dk², mm²
    Zahl duenn = Zahl::fehlgeschlagen();  // below this thickness no resistance, mm; failed: no such limit
    bool f1kErstAb12 = false;             // f1k is assigned only where the thickness asks for it
};

// The resistance of one shank by the thickness of the sheathing, N.
void widerstand(Wand& w, const Ausziehart& art) {
    const Zahl d = w.d[S1];
    const Zahl t = w.t[S1];
    const Zahl schwelle = art.mindestens * d;
    if (!art.f1kErstAb12) w.f1k[S1] = art.f1k;
    if (w.lef[S1] < schwelle || t < art.duenn) {
        w.Rxk[S1] = kein;
        return;
    }
    // A penetration of exactly the least one matches no case and keeps the earlier value.
    if (!(w.lef[S1] > schwelle)) return;
    if (t < 12) {
        w.Rxk[S1] = 400;
        return;
    }
    w.f1k[S1] = art.f1k;
    // Meant: the head term has the fixed density 380 kg/m³.
    w.f2k[S1] = t <= 20 ? Zahl(8) : art.kopfparameter * 1e-6 * (380.0 * 380.0);
    w.Rxk[S1] = Min(w.f1k[S1] * d * w.lef[S1], w.f2k[S1] * art.kopfflaeche);
}

void begrenze(Feld& lef, Zahl grenze) {
    if (lef > grenze) lef = grenze;
}

void ausziehwiderstand(Wand& w) {
    const Zahl d = w.d[S1];
    const Zahl rho2 = w.rhok * w.rhok;
    const Zahl kopf2 = w.dk[S1] * w.dk[S1];
    const Zahl einschlag = w.ln[S1] - w.t[S1];
    const bool vorgebohrt = w.Vorgebohrt[S1];
    const Klassenzeile* zeile = klasse(w);
    const Zahl kopfklasse = zeile != nullptr ? Zahl(zeile->kopf) : Zahl::fehlgeschlagen();

    switch (static_cast<Art>(w.VMArt[S1].value())) {
        case Art::sondernaegel: {
            w.lef[S1] = Min(einschlag, w.lg[S1]);
            begrenze(w.lef[S1], 20 * d);
            Zahl f1k = zeile != nullptr ? zeile->sondernaegel * 1e-6 * rho2 : Zahl::fehlgeschlagen();
            if (vorgebohrt) f1k = 0.7 * f1k;
            widerstand(w, {8, f1k, kopfklasse, kopf2});
            break;
        }
        case Art::naegel:
            w.lef[S1] = einschlag;
            begrenze(w.lef[S1], 20 * d);
            widerstand(w, {8, vorgebohrt ? Zahl(0) : 18 * 1e-6 * rho2, 60, kopf2});
            break;
        case Art::klammern:
            w.lef[S1] = einschlag;
            begrenze(w.lef[S1], 20 * d);
            widerstand(w, {12, 40 * 1e-6 * rho2, 60, 5.8 * (d * d), 8});
            // Two shanks.
            w.Rxk[S1] = w.beta >= 30 ? 2 * w.Rxk[S1] : 2 * 0.7 * w.Rxk[S1];
            break;
        case Art::schrauben:
            w.lef[S1] = Min(einschlag, w.lg[S1]);
            widerstand(w, {4, 70 * 1e-6 * rho2, 60, kopf2});
            break;
        case Art::schraubenMitZulassung: {
            w.lef[S1] = Min(einschlag, w.lg[S1]);
            const Zahl f1k = zeile != nullptr ? zeile->schrauben * 1e-6 * rho2 : Zahl::fehlgeschlagen();
            // Meant: thinner sheathing leaves f1k1 as it was.
            widerstand(w, {.mindestens = 4,
                           .f1k = f1k,
                           .kopfparameter = kopfklasse,
                           .kopfflaeche = kopf2,
                           .f1kErstAb12 = true});
            break;
        }
        default:
            w.Rxk[S1] = kein;
    }
    w.Rxd[S1] = w.kmodVM[S1] * w.Rxk[S1] / 1.3;
}

}  // namespace

void nachweisHerausziehen(Wand& w) {
    ausziehwiderstand(w);
    fuerJedeRippe(w, [&](int i) {
        if (w.wd == 0) {
            w.etaHerausziehenRippe(i) = 0;
        } else if (w.Rxd[S1] == 0) {
            w.etaHerausziehenRippe(i) = 100;
        } else {
            // Meant: one row halves the force in place, two rows do not.
            if (!w.Zweireihig[S1]) w.Faxd(i) = w.Faxd(i) / 2;
            w.etaHerausziehenRippe(i) = Round(w.Faxd(i) / w.Rxd[S1], 4);
        }
    });
}

}  // namespace rippenscheibe
