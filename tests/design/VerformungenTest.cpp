#include <gtest/gtest.h>

#include <cmath>

#include "design/Verankerung.h"
#include "design/Verformungen.h"
#include "materials/Querschnittswerte.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

// 5.0 x 2.5 m, one-sided, nails 2.7 at 60 mm in OSB 15 mm, ribs C24.
Wand wand() {
    Wand w;
    w.Einseitig = true;
    for (const Seite n : beideSeiten) {
        w.t[n] = 15;
        w.Gmean[n] = 1080;
        w.rhokBeplankung[n] = 550;
        w.fv0dn[n] = 4;
    }
    w.fv0d = 8;
    w.rhok = 350;
    w.E0mean = 11000;
    w.E90mean = 370;
    w.Fvd = 15;
    w.sv0d = 3;
    w.Ftdst = 6;
    w.kserAnker = 20;
    querschnittswerte(w);
    w.SigmaC90d(9) = 0.6;
    return w;
}

TEST(Verformung, AddsItsFiveSharesInBothLimitStates) {
    Wand w = wand();
    nachweisVerformung(w);
    const double kser = std::pow(std::sqrt(350.0 * 550), 1.5) * std::pow(2.7, 0.8) / 25;
    EXPECT_NEAR(w.kser[S1].value(), kser, eps);
    // 4 panels: 2 * (4 - 1) + 2 = 8 vertical edges, 2 horizontal ones; loads divided by 1.5
    const double uVM = 3 / 1.5 * 60 * (2 / kser + 8 / kser * 2500 / 1250);
    const double uRippe = (2.5 * 2.5 * 2.5 / 25 * 1000 + 5000) * (2.0 / 3 * 10 * 10 / (11000.0 * 128));
    const double uSchub = 10.0 * 1000 * 0.5 / (1080 * 15);
    const double uSchwelle = 0.4 * 60 / 370 * 0.5;
    const double uAnker = 0.5 * 6 / 20;  // the anchor force is not divided
    EXPECT_NEAR(w.uVMGebrauch.value(), uVM, eps);
    EXPECT_NEAR(w.uRippeGebrauch.value(), uRippe, eps);
    EXPECT_NEAR(w.uSchubGebrauch.value(), uSchub, eps);
    EXPECT_NEAR(w.uSchwelleGebrauch.value(), uSchwelle, eps);
    EXPECT_NEAR(w.uAnkerGebrauch.value(), uAnker, eps);
    EXPECT_NEAR(w.uGesGebrauch.value(), uVM + uRippe + uSchub + uSchwelle + uAnker, eps);
    EXPECT_NEAR(w.uZulGebrauch.value(), 2500.0 / 150, eps);
    // ultimate: design loads (1.5 times), stiffness 2/3/1.3, moduli /1.3
    const double weicher = 1.5 * 1.3;
    EXPECT_NEAR(w.uGesTragfaehigkeit.value(),
                weicher * (1.5 * uVM + uRippe + uSchub + uSchwelle) + 1.5 * 1.3 * uAnker, 1e-8);
    EXPECT_NEAR(w.uZulTragfaehigkeit.value(), 25, eps);
}

TEST(Verformung, DividesByTheSmallerFactorOnlyWithVariableLoadsInLoadCaseThree) {
    Wand w = wand();
    w.Lastfall = 3;
    nachweisVerformung(w);
    EXPECT_NEAR(w.FvCharakt.value(), 10, eps);
    w.qd = 1;
    nachweisVerformung(w);
    EXPECT_NEAR(w.FvCharakt.value(), 15 / 1.35, eps);
}

TEST(Verformung, OfTwoSidesIsTheLargerAndStaplesOfSideTwoNeedStaplesOnSideOne) {
    Wand w = wand();
    w.Einseitig = false;
    w.VMArt[S2] = 3;
    nachweisVerformung(w);
    EXPECT_EQ(w.kser[S2].value(), 0);
    EXPECT_EQ(w.uVMGebrauch.value(), 0);
    EXPECT_NEAR(w.uSchubGebrauch.value(), 10.0 * 1000 * 4 / 8 * 0.5 / (1080 * 15), eps);
    w.VMArt[S1] = 8;
    w.Material[S1] = 7;
    nachweisVerformung(w);
    EXPECT_EQ(w.kser[S1].value(), 545);
    EXPECT_NEAR(w.kser[S2].value(), 2 * std::pow(350.0 * 550, 0.75) * std::pow(2.7, 0.8) / 60, eps);
    EXPECT_GT(w.uVMGebrauch.value(), 0);
}

TEST(Verformung, SlipModulusFollowsSheathingPredrillingAndRows) {
    const double genagelt = std::pow(350.0 * 550, 0.75) * std::pow(2.7, 0.8) / 25;
    struct Fall {
        int material;
        bool vorgebohrt, zweireihig;
        double kser;
    };
    for (const Fall& fall : {Fall{2, false, true, 2 * genagelt},
                             {3, false, false, 0.6 * genagelt},
                             {6, false, true, 1.2 * genagelt},
                             {7, false, true, 1090},
                             {8, true, false, std::pow(350.0 * 550, 0.75) * 2.7 / 20}}) {
        Wand w = wand();
        w.Material[S1] = fall.material;
        w.Vorgebohrt[S1] = fall.vorgebohrt;
        w.Zweireihig[S1] = fall.zweireihig;
        nachweisVerformung(w);
        EXPECT_NEAR(w.kser[S1].value(), fall.kser, eps) << fall.material;
    }
}

TEST(Verformung, WithoutAnchorsKeepsTheTotalOfBefore) {
    Wand w = wand();
    nachweisVerformung(w);
    const double vorher = w.uGesGebrauch.value();
    w.AnzahlAnker = 0;
    w.Fvd = 30;
    nachweisVerformung(w);
    EXPECT_EQ(w.uGesGebrauch.value(), vorher);
}

TEST(Ankerzugkraft, SimplifiedTakesThePermanentCompressionOfTheTensionEdgeAndRaisesTheEdgeForceInPlace) {
    Wand w = wand();
    w.LagesicherungVerfahren = 1;
    w.FEdge = 9;
    w.FcdStabilitaet(1) = 2.7;
    ankerzugkraft(w);
    EXPECT_NEAR(w.Ftdst.value(), 9 - 0.9 / 1.35 * 2.7, eps);
    for (const int vertikal : {2, 3}) {
        w.Lastfall = vertikal;
        w.FEdge = 9;
        ankerzugkraft(w);
        EXPECT_NEAR(w.FEdge.value(), 10, eps);
        EXPECT_NEAR(w.Ftdst.value(), 10 - 1.8, eps);
    }
    w.FcdStabilitaet(1) = 27;
    ankerzugkraft(w);
    EXPECT_EQ(w.Ftdst.value(), 0);
}

TEST(Ankerzugkraft, ExactSumsTheMomentsAboutTheCompressedSupport) {
    // 2.6 m at 625 mm: six ribs at 0, 0.625, 1.25, 1.875, 2.5 and 2.6 m
    Wand w;
    w.Wandlaenge = 2.6;
    querschnittswerte(w);
    w.Fvd = 1;
    for (int i = 1; i <= 6; ++i) w.FcdStabilitaet(i) = 1;
    w.Ftd(1) = 10;
    w.gd = 1;
    ankerzugkraft(w);
    const double stab = 0.9 / 1.35 * (2.6 + 1.975 + 1.35 + 0.725 + 0.1);
    EXPECT_NEAR(w.MStabSumme.value(), stab, eps);
    EXPECT_NEAR(w.Ftdst.value(), (1.5 / 1.35 * 26 - stab) / 2.6, eps);
    w.gd = 0;
    ankerzugkraft(w);
    EXPECT_NEAR(w.MDstSumme.value(), 26, eps) << "no vertical load: no other factor";

    w.Fvd = -1;
    w.Ftd(1) = 0;
    w.Ftd(6) = 10;
    ankerzugkraft(w);
    EXPECT_NEAR(w.MStabSumme.value(), 0.9 / 1.35 * (0.625 + 1.25 + 1.875 + 2.5 + 2.6), eps);
    EXPECT_NEAR(w.MDstSumme.value(), 26, eps);
}

TEST(Ankertragfaehigkeit, IsLimitedByNailsOrByTheAnchor) {
    struct Fall {
        const char* name;
        int typ, nagel, anzahl, teil, KLED;
        double RdAnker, Fbd;  // kN, for Ftdst = 10
    };
    for (const auto& fall : {
             Fall{"nails govern", 1, 1, 10, 1, 4, 1.83 * 10 * 0.9 / 1.3, 11.9},
             Fall{"the anchor governs", 1, 4, 25, 1, 4, 17 / 1.3, 11.9},
             Fall{"type 5", 5, 2, 60, 1, 5, 31.9 / 1.3, 14.7},
             Fall{"type 6, three and a half nails off", 6, 1, 10, 1, 1, 6.5 * 1.84 * 0.6 / 1.3, 10},
             Fall{"type 7, capped with the load duration", 7, 4, 18, 1, 5, 1.1 * 30.87 / 1.3, 10},
             Fall{"type 6 with too few nails", 6, 1, 3, 1, 4, -0.5 * 1.84 * 0.9 / 1.3, 10},
             Fall{"type 11 fully nailed counts 16", 11, 1, 2, 1, 1, 12.8 / 1.3, 15.5},
             Fall{"type 12 partly nailed counts 8", 12, 1, 2, 2, 1, 1.83 * 8 * 0.6 / 1.3, 12.8},
             Fall{"free anchor as entered", 13, 1, 2, 2, 1, 4.5, 10},
         }) {
        SCOPED_TRACE(fall.name);
        Wand w;
        w.Ankertyp = fall.typ;
        w.Kammnagel = fall.nagel;
        w.AnzahlAnkerNaegel = fall.anzahl;
        w.Teilausnagelung = fall.teil;
        w.KLED = fall.KLED;
        w.RdAnker = 4.5;
        w.Ftdst = 10;
        nachweisVerankerung(w);
        EXPECT_NEAR(w.RdAnker.value(), fall.RdAnker, eps);
        EXPECT_NEAR(w.Fbd.value(), fall.Fbd, eps);
    }
}

}  // namespace
}  // namespace rippenscheibe
