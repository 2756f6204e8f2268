#include "design/Stabilitaet.h"

#include "design/Rippen.h"
#include "materials/Querschnittswerte.h"

namespace rippenscheibe {

namespace {

constexpr Konstante pi{"π", 3.14159265358979};

bool randrippe(const Wand& w, int i) { return lage(w, i) != Rippenlage::innen; }

Zahl kippschlankheit(const Wand& w, Zahl h, Zahl b) {
    return sqrt(1000 * w.Wandhoehe * h / (b * b * pi)) * sqrt(w.fmk / sqrt(w.E005 * w.G05Holz));
}

Zahl km(Zahl lambdaM) {
    if (lambdaM <= 0.75) return 1;
    if (lambdaM <= 1.4) return 1.56 - 0.75 * lambdaM;
    return 1 / (lambdaM * lambdaM);
}

}  // namespace

void querdruckbeiwert(Wand& w) {
    if (2 * w.bKopfFussrippe <= w.Rippenabstand) {
        if (w.Holzart >= 1 && w.Holzart <= 5) w.kc90 = 1.25;
        if (w.Holzart >= 6 && w.Holzart <= 13) w.kc90 = 1.5;
    } else {
        w.kc90 = 1;
    }
}

void knickbeiwert(Wand& w) {
    w.iRandrippe = w.hRandrippe / 1000 * 0.289;
    w.lambda = w.Wandhoehe / w.iRandrippe;
    w.lambdaRel = w.lambda / pi * sqrt(w.fc0k / w.E005);
    w.kKnick = 0.5 * (1 + w.betac * (w.lambdaRel - 0.3) + w.lambdaRel * w.lambdaRel);
    w.kc = Min(1, 1 / (w.kKnick + sqrt(w.kKnick * w.kKnick - w.lambdaRel * w.lambdaRel)));
    w.kc = Round(w.kc, 4);
}

void kippbeiwerte(Wand& w) {
    w.lambdaMRandrippe = kippschlankheit(w, w.hRandrippe, w.bRandrippe);
    w.lambdaMInnenrippe = kippschlankheit(w, w.hInnenrippe, w.bInnenrippe);
    const bool randSchlank = w.hRandrippe / w.bRandrippe > 4;
    const bool innenSchlank = w.hInnenrippe / w.bInnenrippe > 4;

    // Sheathing holds a rib that is not slender, and on both sides every rib with thick enough panels.
    // Meant: with one side sheathed and neither rib slender both are computed.
    const bool nurInnenSchlank = w.Einseitig && !randSchlank && innenSchlank;
    const bool nurRandSchlank = w.Einseitig && randSchlank && !innenSchlank;
    if (w.Einseitig && !randSchlank && !innenSchlank)
        soVorgegeben("einseitig beplankt hält die Beplankung gedrungene Rippen nicht: km wird gerechnet");
    const bool beideGehalten =
        !w.Einseitig && 50 * w.t[Seite::eins] >= w.Rippenabstand && 50 * w.t[Seite::zwei] >= w.Rippenabstand;
    w.kmRandrippe = nurInnenSchlank || beideGehalten ? Zahl(1) : km(w.lambdaMRandrippe);
    w.kmInnenrippe = nurRandSchlank || beideGehalten ? Zahl(1) : km(w.lambdaMInnenrippe);
}

void nachweisSchwellenpressung(Wand& w) {
    randrippen(w);
    innenrippen(w);
    querdruckbeiwert(w);
    if (w.fc90d == 0 || w.kc90 == 0) return;
    fuerJedeRippe(w, [&](int i) {
        // Meant: the left edge rib has no contact area here, so that its stress keeps what it held.
        if (lage(w, i) == Rippenlage::rechts) w.SigmaC90d(i) = 10 * w.FcdSchwelle(i) / w.AefRechts;
        if (lage(w, i) == Rippenlage::innen) w.SigmaC90d(i) = 10 * w.FcdSchwelle(i) / w.AefInnenrippe;
        if (lage(w, i) == Rippenlage::links)
            soVorgegeben("die linke Randrippe hat keine Aufstandsfläche: ihre Spannung bleibt, wie sie war");
        w.etaC90(i) = Round(w.SigmaC90d(i) / (1.2 * w.kc90 * w.fc90d), 4);
    });
}

void nachweisStabilitaet(Wand& w) {
    knickbeiwert(w);
    kippbeiwerte(w);
    fuerJedeRippe(w, [&](int i) {
        const Zahl A = randrippe(w, i) ? w.ARandrippe : w.AInnenrippe;
        const Zahl Wy = randrippe(w, i) ? w.WyRandrippe : w.WyInnenrippe;
        const Zahl kmRippe = randrippe(w, i) ? w.kmRandrippe : w.kmInnenrippe;
        w.SigmaC0d(i) = (w.FcdStabilitaet(i) + w.FcdVeraenderlich(i)) * 10 / A;
        w.SigmaMd(i) = 1000 * w.Myd(i) / Wy;
        w.etaStabilitaetDruck(i) = w.SigmaC0d(i) / (w.kc * w.fc0d);
        w.etaStabilitaetBiegung(i) = w.SigmaMd(i) / (kmRippe * w.fmd);
        w.etaStabilitaet(i) = w.etaStabilitaetDruck(i) + w.etaStabilitaetBiegung(i);
    });
}

void nachweisZug(Wand& w) {
    if (w.ft0d == 0) return;
    fuerJedeRippe(w, [&](int i) {
        w.SigmaT0d(i) = 10 * w.Ftd(i) / (randrippe(w, i) ? w.ARandrippe : w.AInnenrippe);
        w.etaT0(i) = Round(w.SigmaT0d(i) / w.ft0d, 4);
    });
}

}  // namespace rippenscheibe
