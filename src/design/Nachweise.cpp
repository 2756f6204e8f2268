#include "design/Nachweise.h"

#include "design/Beanspruchbarkeiten.h"
#include "design/Beanspruchungen.h"
#include "design/Herausziehen.h"
#include "design/Rippen.h"
#include "design/Stabilitaet.h"
#include "design/Verankerung.h"
#include "design/Verformungen.h"

namespace rippenscheibe {

namespace {

constexpr double keineFestigkeit = 10;  // utilisation shown for a strength of 0

void schubParallel(Wand& w) {
    beanspruchbarkeitParallel(w);
    w.etaSv0 = w.fv0d == 0 ? Zahl(keineFestigkeit) : w.sv0d / w.fv0d;
    w.etaSv0 = Round(w.etaSv0, 4);
}

void schubSenkrecht(Wand& w) {
    beanspruchbarkeitSenkrecht(w);
    w.etaSv90 = w.fv90d == 0 ? Zahl(keineFestigkeit) : w.sv90d / w.fv90d;
    w.etaSv90 = Round(w.etaSv90, 4);
}

// Both shear flows at once reduce the strengths by 0.7 (8.7.7).
void schubKombiniert(Wand& w) {
    if (w.fv0d == 0 || w.fv90d == 0) return;
    if (w.sv0d != 0 && w.sv90d != 0) {
        w.sv0dKombi = w.sv0d;
        w.sv90dKombi = w.sv90d;
        w.fv0dKombi = 0.7 * w.fv0d;
        w.fv90dKombi = 0.7 * w.fv90d;
        // Meant: the parallel quotient always governs, and the perpendicular utilisation is taken with
        // the parallel strength. Both overwrite the rounded values of the single proofs, unrounded.
        soVorgegeben("der kombinierte Nachweis nimmt nur den Quotienten parallel zum Rand");
        w.etaKombi = w.sv0d / w.fv0dKombi;
        w.etaSv0 = w.sv0d / w.fv0d;
        soVorgegeben("bei Kombination steht fv,0,d im Nenner, wo der Bericht fv,90,d nennt");
        w.etaSv90 = w.sv90d / w.fv0d;
    } else if (w.sv0d != 0) {
        w.etaKombi = w.sv0d / w.fv0d;
    } else if (w.sv90d != 0) {
        w.etaKombi = w.sv90d / w.fv90d;
    }
}

// Only sheathing 1 is proved.
void beplankungBiegung(Wand& w) {
    if (w.fmdBeplankung[Seite::eins] == 0) return;
    w.etaBiegung = Round(w.SigmaBiegung / w.fmdBeplankung[Seite::eins], 4);
}

void hebeAuf(Feld& groesster, Zahl wert) {
    if (wert > groesster) groesster = wert;
}

}  // namespace

void nachweise(Wand& w) {
    beanspruchungen(w);
    schubParallel(w);
    schubSenkrecht(w);
    schubKombiniert(w);
    nachweisSchwellenpressung(w);
    nachweisStabilitaet(w);
    nachweisZug(w);
    nachweisHerausziehen(w);
    ankerzugkraft(w);
    beplankungBiegung(w);
    nachweisVerformung(w);
}

void zusammenfassung(Wand& w) {
    for (Feld* feld : {&w.maxEtaStabilitaet, &w.maxEtaC90, &w.maxEtaT0, &w.etaHerausziehen, &w.maxSigmaC0d,
                       &w.maxSigmaMd, &w.maxSigmaC90d, &w.maxSigmaT0d, &w.maxMyd, &w.maxFcdSchwelle,
                       &w.maxFcdStabilitaet, &w.maxFtd, &w.maxFaxd})
        *feld = 0;
    fuerJedeRippe(w, [&](int i) {
        hebeAuf(w.maxEtaStabilitaet, w.etaStabilitaet(i));
        hebeAuf(w.maxEtaC90, w.etaC90(i));
        hebeAuf(w.maxEtaT0, w.etaT0(i));
        hebeAuf(w.etaHerausziehen, w.etaHerausziehenRippe(i));
        hebeAuf(w.maxSigmaC0d, w.SigmaC0d(i));
        hebeAuf(w.maxSigmaMd, w.SigmaMd(i));
        hebeAuf(w.maxSigmaC90d, w.SigmaC90d(i));
        hebeAuf(w.maxSigmaT0d, w.SigmaT0d(i));
        hebeAuf(w.maxMyd, w.Myd(i));
        hebeAuf(w.maxFcdSchwelle, w.FcdSchwelle(i));
        hebeAuf(w.maxFcdStabilitaet, w.FcdStabilitaet(i) + w.FcdVeraenderlich(i));
        hebeAuf(w.maxFtd, w.Ftd(i));
        hebeAuf(w.maxFaxd, w.Faxd(i));
    });
    const bool ankerZuSchwach = w.NachweisVerankerung && w.AnzahlAnker * w.RdAnker < w.Ftdst;
    const bool zuWeich = w.uGesGebrauch > w.uZulGebrauch || w.uGesTragfaehigkeit > w.uZulTragfaehigkeit;
    bool ueberlastet = false;
    for (const Feld* eta : {&w.maxEtaStabilitaet, &w.maxEtaC90, &w.maxEtaT0, &w.etaHerausziehen,
                            &w.etaBiegung, &w.etaSv0, &w.etaSv90, &w.etaKombi})
        ueberlastet = ueberlastet || *eta > 1;
    w.AlleNachweiseErfuellt = !ankerZuSchwach && !zuWeich && !ueberlastet;
}

}  // namespace rippenscheibe
