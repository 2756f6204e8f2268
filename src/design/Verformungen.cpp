#include "design/Verformungen.h"

#include "design/Rippen.h"
#include "materials/Teilsicherheitsbeiwerte.h"

namespace rippenscheibe {

namespace {

constexpr Seite S1 = Seite::eins;
constexpr Seite S2 = Seite::zwei;

// Slip modulus of one fastener in N/mm (annex G, table G.1), 0 when no row applies.
Zahl verschiebungsmodul(const Wand& w, Seite n) {
    const Zahl rho15 = pow(w.rhoM[n], 1.5);
    if (w.Vorgebohrt[n]) return istKlammer(w, n) ? Zahl(0) : rho15 * w.d[n] / 20;
    if (!istKlammer(w, n)) return rho15 * pow(w.d[n], 0.8) / 25;
    // Meant: staples of either side count only when side 1 has staples.
    if (istKlammer(w, S1)) return 2 * rho15 * pow(w.d[n], 0.8) / 60;
    soVorgegeben("Klammern haben nur dann einen Verschiebungsmodul, wenn Seite 1 Klammern hat");
    return 0;
}

void verschiebungsmoduln(Wand& w) {
    for (const Seite n : beideSeiten) {
        w.rhoM[n] = sqrt(w.rhok * w.rhokBeplankung[n]);
        w.kser[n] = 0;
        w.kser[n] = verschiebungsmodul(w, n);
        if (istGipskarton(plattenmaterial(w, n))) w.kser[n] = 0.6 * w.kser[n];
        if (istGipsfaser(plattenmaterial(w, n))) w.kser[n] = 545;
        if (w.Zweireihig[n]) w.kser[n] = 2 * w.kser[n];
    }
}

void plattenraender(Wand& w) {
    const auto vertikal = [&](Seite n) {
        const Zahl platten = w.Wandlaenge * 1000 / w.Plattenbreite[n];
        return Int(platten) == platten ? 2 * (Int(platten) - 1) + 2 : 2 * Int(platten) + 2;
    };
    if (w.Plattenbreite[S1] != 0 && w.Plattenbreite[S2] != 0) {
        w.nVertikalRaender[S1] = vertikal(S1);
        w.nVertikalRaender[S2] = w.Einseitig ? Zahl(0) : vertikal(S2);
    }
    for (const Seite n : beideSeiten) w.nHorizontalRaender[n] = w.Gestossen[n] ? 4 : 2;
}

// What sets one calculation of the five shares apart.
struct Zustand {
    Zahl sv;           // shear flow, N/mm
    Zahl Fv;           // horizontal load, kN
    Zahl SigmaC90;     // sill pressure at the compressed edge, N/mm²
    Zahl Ft;           // anchor force, kN
    Zahl kserAnker;    // anchor stiffness, kN/mm
    Paar<Zahl> kser;   // slip moduli, N/mm
    Zahl gammaModuln;  // divisor of the moduli
};

struct Anteile {
    Feld& uVM;
    Feld& uRippe;
    Feld& uSchub;
    Feld& uSchwelle;
    Feld& uAnker;
};

// The larger share of two sides; a side whose quotient fails counts as 0.
Zahl groesste(Zahl eins, Zahl zwei) {
    return Max(eins.failed() ? Zahl(0) : eins, zwei.failed() ? Zahl(0) : zwei);
}

Zahl nachgiebigkeit(const Wand& w, const Zustand& z, Seite n) {
    return w.nHorizontalRaender[n] / z.kser[n] +
           w.nVertikalRaender[n] / z.kser[n] * w.Wandhoehe * 1000 / w.Plattenbreite[n];
}

void anteilVerbindungsmittel(const Wand& w, const Zustand& z, Feld& uVM) {
    if (w.Einseitig) {
        if (z.kser[S1] != 0 && w.Plattenbreite[S1] != 0) uVM = z.sv * w.av[S1] * nachgiebigkeit(w, z, S1);
        return;
    }
    if (z.kser[S1] == 0 || z.kser[S2] == 0 || w.fv0d == 0 || w.Plattenbreite[S1] == 0 ||
        w.Plattenbreite[S2] == 0)
        return;
    const auto seite = [&](Seite n) {
        return z.sv * w.fv0dn[n] / w.fv0d * w.av[n] * nachgiebigkeit(w, z, n);
    };
    uVM = groesste(seite(S1), seite(S2));
}

void anteilSchub(const Wand& w, const Zustand& z, Feld& uSchub) {
    const auto G = [&](Seite n) { return w.Gmean[n] / z.gammaModuln; };
    const Zahl verhaeltnis = w.Wandhoehe / w.Wandlaenge;
    if (w.Einseitig) {
        if (w.Gmean[S1] != 0) uSchub = z.Fv * 1000 * verhaeltnis / (G(S1) * w.t[S1]);
        return;
    }
    if (w.Gmean[S1] == 0 || w.Gmean[S2] == 0) return;
    const auto seite = [&](Seite n) {
        return z.Fv * 1000 * w.fv0dn[n] / w.fv0d * verhaeltnis / (G(n) * w.t[n]);
    };
    uSchub = groesste(seite(S1), seite(S2));
}

void berechne(const Wand& w, const Zustand& z, const Anteile& u) {
    for (Feld* anteil : {&u.uVM, &u.uRippe, &u.uSchub, &u.uSchwelle, &u.uAnker}) *anteil = 0;
    const Zahl h = w.Wandhoehe;
    const Zahl l = w.Wandlaenge;
    anteilVerbindungsmittel(w, z, u.uVM);
    u.uRippe = (h * h * h / (l * l) * 1000 + l * 1000) *
               (Zahl(2) / 3 * z.Fv * 10 / (w.E0mean / z.gammaModuln * w.ARandrippe));
    anteilSchub(w, z, u.uSchub);
    u.uSchwelle = z.SigmaC90 * w.bKopfFussrippe / (w.E90mean / z.gammaModuln) * h / l;
    if (z.kserAnker != 0) u.uAnker = h / l * z.Ft / z.kserAnker;
}

Anteile anteileGebrauch(Wand& w) {
    return {w.uVMGebrauch, w.uRippeGebrauch, w.uSchubGebrauch, w.uSchwelleGebrauch, w.uAnkerGebrauch};
}
Anteile anteileTragfaehigkeit(Wand& w) {
    return {w.uVMTragfaehigkeit, w.uRippeTragfaehigkeit, w.uSchubTragfaehigkeit, w.uSchwelleTragfaehigkeit,
            w.uAnkerTragfaehigkeit};
}
Anteile anteileSteifigkeit(Wand& w) {
    return {w.uVMSteifigkeit, w.uRippeSteifigkeit, w.uSchubSteifigkeit, w.uSchwelleSteifigkeit,
            w.uAnkerSteifigkeit};
}

Zahl summe(const Wand& w, const Anteile& u) {
    return u.uVM + u.uRippe + u.uSchub + u.uSchwelle + u.uAnker / w.AnzahlAnker;
}

// Divisor that takes a design load back to its characteristic value.
// Meant: 1.35 beside a variable vertical load or wind across the wall.
Zahl lastteiler(const Wand& w) {
    const bool veraenderlich = w.Fcqd != 0 || w.qd != 0 || w.wd != 0;
    if (w.Lastfall == 3 && veraenderlich)
        soVorgegeben("neben veränderlicher Vertikallast oder Wind wird die Horizontallast durch γG geteilt");
    return w.Lastfall == 3 && veraenderlich ? gammaG : gammaQ;
}

void gebrauchstauglichkeit(Wand& w) {
    verschiebungsmoduln(w);
    plattenraender(w);
    const Zahl teiler = lastteiler(w);
    w.FvCharakt = w.Fvd / teiler;
    w.svCharakt = w.sv0d / teiler;
    w.SigmaC90Charakt = w.SigmaC90d(druckrandrippe(w)) / teiler;
    // Meant: the anchor force is not divided.
    soVorgegeben("die Ankerzugkraft wird nicht auf den Gebrauchszustand zurückgerechnet");
    w.FtCharakt = w.Ftdst > 0 ? Zahl(w.Ftdst) : Zahl(0);
    const Anteile u = anteileGebrauch(w);
    berechne(w,
             {w.svCharakt,
              w.FvCharakt,
              w.SigmaC90Charakt,
              w.FtCharakt,
              w.kserAnker,
              {{w.kser[S1], w.kser[S2]}},
              1},
             u);
    w.uGesGebrauch = summe(w, u);
    w.uZulGebrauch = w.Wandhoehe * 1000 / 150;
}

void tragfaehigkeit(Wand& w) {
    const auto abgemindert = [](Zahl kser) { return kser * 2 / 3 / gammaM; };
    const Anteile u = anteileTragfaehigkeit(w);
    berechne(w,
             {w.sv0d,
              w.Fvd,
              w.SigmaC90d(druckrandrippe(w)),
              w.Ftdst,
              abgemindert(w.kserAnker),
              {{abgemindert(w.kser[S1]), abgemindert(w.kser[S2])}},
              gammaM},
             u);
    w.uGesTragfaehigkeit = summe(w, u);
    w.uZulTragfaehigkeit = w.Wandhoehe * 1000 / 100;
}

}  // namespace

void nachweisVerformung(Wand& w) {
    gebrauchstauglichkeit(w);
    tragfaehigkeit(w);
}

void wandsteifigkeit(Wand& w) {
    const Anteile u = anteileSteifigkeit(w);
    berechne(w, {w.sv0d, w.Fvd, w.SigmaC90d(druckrandrippe(w)), w.Ftdst, 0, {{w.kser[S1], w.kser[S2]}}, 1},
             u);
    // Meant: the anchor counts as missing here, its share is 0.
    soVorgegeben("der Anker zählt in der Wandsteifigkeit nicht mit");
    const Zahl h3 = w.Wandhoehe * w.Wandhoehe * w.Wandhoehe;
    w.SteifigkeitGesamt = h3 * w.Fvd / (3 * (u.uVM + u.uRippe + u.uSchub + u.uSchwelle + u.uAnker));
    w.SteifigkeitOhneVM = h3 * w.Fvd / (3 * (u.uRippe + u.uSchub + u.uSchwelle));
}

}  // namespace rippenscheibe
