#include "design/Beanspruchungen.h"

#include <algorithm>
#include <array>

#include "design/Beanspruchbarkeiten.h"
#include "design/Rippen.h"
#include "design/Stabilitaet.h"
#include "design/Verbindungsmittelabstaende.h"
#include "materials/Querschnittswerte.h"
#include "materials/Teilsicherheitsbeiwerte.h"

namespace rippenscheibe {

namespace {

constexpr Seite S1 = Seite::eins;
constexpr Seite S2 = Seite::zwei;

// Capacity of each rib for the distribution of vertical loads, N.
void rippentragfaehigkeit(Wand& w) {
    // A term that fails keeps the value of the rib before.
    Feld term1;
    Feld term2;
    fuerJedeRippe(w, [&](int i) {
        const Rippenlage ort = lage(w, i);
        const bool innen = ort == Rippenlage::innen;
        const Zahl km = innen ? w.kmInnenrippe : w.kmRandrippe;
        // Meant: the modulus about the weak axis, although the stability proof uses the strong one.
        soVorgegeben("die Verteilung nimmt das Widerstandsmoment der schwachen Achse");
        const Zahl Wz = innen ? w.WzInnenrippe : w.WzRandrippe;
        const Zahl A = innen ? w.AInnenrippe : w.ARandrippe;
        term1 = (1 - 1000 * w.Myd(i) / (km * w.fmd * Wz)) * w.kc * w.fc0d * A * 100;
        // Meant: the left edge rib has no contact area here, so that its term is 0.
        if (ort == Rippenlage::links)
            soVorgegeben("die linke Randrippe hat keine Aufstandsfläche: ihr Querdruckterm ist 0");
        const Zahl Aef = ort == Rippenlage::links ? Zahl(0) : innen ? w.AefInnenrippe : w.AefRechts;
        term2 = w.kc90 * Aef * w.fc90d * 1.2 * 100;
        w.RdRippe(i) = Min(term2, term1);
        w.RdRippenSumme(i) = w.RdRippenSumme(i - 1) + w.RdRippe(i);
    });
    w.RdRippenGesamt = w.RdRippenSumme(w.AnzahlRippen);
}

struct Plattenfall {
    bool gilt;
    Zahl Rd;  // N
};

// Capacity of the sheathing, N: the fasteners where they govern, the panel where it does. The cases ask
// which term made up fv90d, by exact equality.
Zahl plattentragfaehigkeit(const Wand& w) {
    const Zahl T1 = w.fv90dTerm1[S1];
    const Zahl T2 = w.fv90dTerm1[S2];
    const Zahl f1 = w.fv90dn[S1];
    const Zahl f2 = w.fv90dn[S2];
    const Zahl f = w.fv90d;
    const Zahl L = 1000 * w.Wandlaenge;
    const bool av1 = w.av[S1] != 0;
    const bool beide = av1 && w.av[S2] != 0;
    const Zahl VM1 = w.nVM[S1] * w.Rd[S1];
    const Zahl VM2 = w.nVM[S2] * w.Rd[S2];

    const std::array<Plattenfall, 8> faelle{{
        {T1 == f && av1, VM1},
        {T1 + T2 == f && beide, VM1 + VM2},
        {T1 + 0.8 * T2 == f && beide, VM1 + w.nVM[S2] * 0.8 * w.Rd[S2]},
        {0.8 * T1 + T2 == f && beide, 0.8 * w.nVM[S1] * w.Rd[S1] + VM2},
        {f1 + 0.8 * f2 == f && T1 != f1 && T2 == f2 && beide, L * f1 + w.nVM[S2] * 0.8 * w.Rd[S2]},
        {0.8 * f1 + f2 == f && T1 != f1 && T2 == f2 && beide, 0.8 * L * f1 + VM2},
        // In these two the factor 0.8 stands with the side as it is told here.
        {f1 + 0.8 * f2 == f && T1 == f1 && T2 != f2 && beide, 0.8 * L * f2 + VM1},
        {0.8 * f1 + f2 == f && T1 == f1 && T2 != f2 && beide, L * f2 + 0.8 * w.nVM[S1] * w.Rd[S1]},
    }};
    const auto* treffer = std::find_if(faelle.begin(), faelle.end(), [](const auto& x) { return x.gilt; });
    // Meant: the two last cases, with the factor 0.8 where it stands.
    if (treffer != faelle.end() && treffer - faelle.begin() >= 6)
        soVorgegeben("der Beiwert 0,8 steht bei der Seite, deren Platte oder Verbindungsmittel hier zählen");
    return treffer != faelle.end() ? treffer->Rd : L * f;
}

void verteileVertikallastenGenau(Wand& w) {
    beanspruchbarkeitSenkrecht(w);
    querdruckbeiwert(w);
    verbindungsmittelanzahl(w);
    knickbeiwert(w);
    kippbeiwerte(w);
    rippentragfaehigkeit(w);
    w.RdBeplankung = plattentragfaehigkeit(w);
    w.AnteilRippen = w.RdRippenGesamt / (w.RdRippenGesamt + w.RdBeplankung);
    w.AnteilBeplankung = w.RdBeplankung / (w.RdRippenGesamt + w.RdBeplankung);
    w.sv90d =
        (w.gd + w.qd + w.AnzahlRippen * w.Fcgd / w.Wandlaenge + w.AnzahlRippen * w.Fcqd / w.Wandlaenge) *
        w.AnteilBeplankung;
    for (Feld* last : {&w.gd, &w.qd, &w.Fcgd, &w.Fcqd}) {
        soVorgegeben("jeder Durchgang eines Laufs mindert die Lasten erneut um den Anteil der Rippen");
        *last *= w.AnteilRippen;
    }
}

void windAufRippe(Wand& w, int i) {
    const Zahl wind = abs(w.wd);
    w.wdRippe(i) = wind * einzugsbreite(w, i) / 1000;
    w.Myd(i) = w.wdRippe(i) * (w.Wandhoehe * w.Wandhoehe) / 8;
    if (w.wd < 0) {
        w.Faxd(i) =
            lage(w, i) == Rippenlage::innen ? 1.25 * w.wdRippe(i) * w.av[S1] : w.av[S1] * w.wdRippe(i);
    }
    const Zahl ar = w.Rippenabstand / 1000;
    w.mdBeplankung = ar * ar * wind / 8;
    w.SigmaBiegung = w.mdBeplankung * 1e6 / w.WBeplankung1;
}

void horizontallastAufRippe(Wand& w, int i) {
    const Rippenlage ort = lage(w, i);
    if (ort == zugrand(w)) {
        w.FcdSchwelle(i) = 0;
    } else if (ort == druckrand(w)) {
        const bool gedrungen = 0.5 * w.Wandhoehe < w.Wandlaenge;
        w.FcdVeraenderlich(i) = w.FEdge;
        w.FcdSchwelle(i) = !gedrungen ? Zahl(w.FEdge) : w.Einseitig ? 0.75 * w.FEdge : 0.67 * w.FEdge;
    } else {
        w.FcdStabilitaet(i) = 0;
        w.FcdVeraenderlich(i) = 0.2 * w.FEdge;
        w.FcdSchwelle(i) = 0.2 * w.FEdge;
    }
}

void vertikallastAufRippe(Wand& w, int i) {
    const Zahl breite = einzugsbreite(w, i);
    w.FcdStabilitaet(i) += w.gd * breite / 1000;
    w.FcdVeraenderlich(i) += w.qd * breite / 1000;
    w.FcdSchwelle(i) += (w.gd + w.qd) * breite / 1000;
    w.FcdStabilitaet(i) += w.Fcgd;
    w.FcdVeraenderlich(i) += w.Fcqd;
    w.FcdSchwelle(i) += w.Fcgd + w.Fcqd;
}

// Meant: a net compression on the tension edge does not reduce its tension.
void zugInRippe(Wand& w, int i) {
    const Zahl summe = w.FcdStabilitaet(i) + w.FcdVeraenderlich(i);
    // By index: the only rib of a wall is the tension edge whichever way the load points.
    const bool zugkante = w.Fvd >= 0 ? i == 1 : w.AnzahlRippen == i;
    const Zahl kante = zugkante ? Zahl(w.FEdge) : Zahl(0);
    if (summe < 0) {
        w.Ftd(i) = -summe + kante;
        w.FcdStabilitaet(i) = 0;
        w.FcdVeraenderlich(i) = 0;
        w.FcdSchwelle(i) = 0;
    } else {
        if (zugkante && summe != 0)
            soVorgegeben("Druck aus Vertikallasten mindert den Zug der Zugkante nicht");
        w.Ftd(i) = kante;
    }
}

}  // namespace

void bemessungslasten(Wand& w) {
    w.Fvd = gammaQ * w.Fvk;
    w.Fcgd = gammaG * w.Fcgk;
    w.Fcqd = gammaQ * w.Fcqk;
    w.gd = gammaG * (w.gk + w.gkWand);
    w.qd = gammaQ * w.qk;
    w.wd = gammaQ * w.wk;
}

void verbindungsmittelanzahl(Wand& w) {
    for (const Seite n : beideSeiten) verbindungsmittelabstaende(w, n);
    const auto anzahl = [&](Seite n) {
        return Int((1000 * w.Wandlaenge - 2 * Max(w.aPlatte[n], w.aRand[n])) / w.av[n]);
    };
    if (w.av[S1] != 0) w.nVM[S1] = anzahl(S1);
    if (w.Einseitig) {
        w.nVM[S2] = 0;
    } else if (w.av[S2] != 0) {
        w.nVM[S2] = anzahl(S2);
    }
}

void beanspruchungen(Wand& w) {
    rippenzahl(w);
    letztesFeld(w);
    w.sv0d = 0;
    w.sv90d = 0;
    fuerJedeRippe(w, [&](int i) {
        for (Rippenfeld* feld : {&w.FcdStabilitaet, &w.FcdVeraenderlich, &w.FcdSchwelle, &w.Faxd, &w.Ftd})
            (*feld)(i) = 0;
    });
    if (w.VertikallastVerteilung == 2) verteileVertikallastenGenau(w);
    // kN/m equals N/mm.
    w.sv0d = abs(w.Fvd) / w.Wandlaenge;
    w.FEdge = abs(w.Fvd) * w.Wandhoehe / w.Wandlaenge;
    fuerJedeRippe(w, [&](int i) {
        windAufRippe(w, i);
        horizontallastAufRippe(w, i);
        vertikallastAufRippe(w, i);
        zugInRippe(w, i);
    });
}

}  // namespace rippenscheibe
