#include <gtest/gtest.h>

#include "Pruefwand.h"

namespace rippenscheibe {
namespace {

TEST(Verteiler, AFastenerUnknownToTheBoardKeepsItsCapacityThroughFloorAndRaise) {
    struct Fall {
        double vorher;
        bool erhoehung;
        double nachher;
    };
    for (const auto& fall :
         {Fall{19.9, false, 0}, {20, false, 20}, {20, true, 24}, {19.9, true, 0}, {-5, true, 0}}) {
        Wand w = wand({Art::schrauben, 7}, einfach);  // screws on gypsum fibre board
        w.VMArt[s2] = 9;
        w.Erhoehung20 = fall.erhoehung;
        for (const Seite n : beideSeiten) {
            w.Rd[n] = fall.vorher;
            verteiler(w, n);
            EXPECT_EQ(w.Rd[n].value(), fall.nachher);
        }
    }
}

TEST(Verteiler, ABoardBesideGypsumFibreBoardNeeds12Millimetres) {
    for (const Seite faser : beideSeiten) {
        for (const auto& [dicke, traegt] : {std::pair(11.9, false), {12.0, true}}) {
            Wand w = wand({Art::naegel, 1, dicke}, einfach);
            w.Einseitig = true;  // plays no part
            setze(w, faser, {Art::naegel, 7, 10, 2.5, 50, 600});
            const Seite andere = gegenueber(faser);
            w.Rd[andere] = 500;
            verteiler(w, faser);  // acts on the other side at once
            EXPECT_EQ(w.Rd[andere].value(), traegt ? 500 : 0);
            verteiler(w, andere);
            EXPECT_EQ(w.Rd[andere].value() > 0, traegt);
            EXPECT_GT(w.Rd[faser].value(), 0);
        }
    }
}

TEST(Verteiler, TwoGypsumFibreBoardsMayBeThinner) {
    Wand w = wand({Art::naegel, 7, 10, 2.5}, einfach);
    for (const Seite n : beideSeiten) verteiler(w, n);
    for (const Seite n : beideSeiten) EXPECT_GT(w.Rd[n].value(), 0);
}

TEST(Verteiler, TheFibreBoardRuleSeesTheCountersunkThickness) {
    Wand w = wand({Art::naegel, 1, 13}, genau);
    setze(w, s1, {Art::naegel, 7, 12.5, 2.5, 50, 600});
    w.Versenkt[s2] = true;
    verteiler(w, s2);
    EXPECT_EQ(w.t[s2].value(), 11);
    EXPECT_EQ(w.Rd[s2].value(), 0);
}

TEST(Verteiler, AnyMethodBut1IsTheExactOne) {
    for (const auto& [verfahren, Rd] : {std::pair(1, 384.11), {2, 465.37}, {0, 465.37}, {7, 465.37}}) {
        Wand w = wand({Art::naegel, 1, 15}, einfach);
        w.GenauesVerfahren = verfahren;
        verteiler(w, s1);
        EXPECT_NEAR(w.Rd[s1].value(), Rd, 0.01);
    }
}

TEST(Verteiler, CountersinkingTakesTheSheathingOrRaisesWhatItNeeds) {
    for (const Seite n : beideSeiten) {
        Wand exakt = wand({Art::klammern, 1, 15, 1.8, 50, 800}, genau);
        exakt.Versenkt[n] = true;
        verteiler(exakt, n);
        verteiler(exakt, n);
        EXPECT_EQ(exakt.t[n].value(), 13);  // from the entered thickness, not once more

        Wand einfacher = wand({Art::klammern, 1, 15, 1.8, 50, 800}, einfach);
        einfacher.Versenkt[n] = true;
        verteiler(einfacher, n);
        EXPECT_EQ(einfacher.t[n].value(), 15);
        EXPECT_NEAR(einfacher.treqPlatte[n].value(), 7 * 1.8 + 2, 1e-12);
    }
}

TEST(Verteiler, CountersinkingAddsToAnUnassignedThicknessEachTime) {
    Wand w = wand({Art::schnellbauschrauben, 1, 15, 4.5, 50, 400}, einfach);  // OSB has no group here
    w.Versenkt[s1] = true;
    w.treqPlatte[s1] = 40;
    verteiler(w, s1);
    verteiler(w, s1);
    EXPECT_EQ(w.treqPlatte[s1].value(), 44);
}

TEST(Verteiler, TheReductionsReach1AtTheRequiredValues) {
    // 7 d = 14 and 9 d = 18; t = 7 and 9 mm in the rib are half of that
    for (const auto& [t, laenge, tvorh, treq] : {std::tuple(14.0, 32.0, 1.0, 1.0),
                                                 {15.0, 50.0, 1.0, 1.0},
                                                 {7.0, 25.0, 0.5, 1.0},
                                                 {14.0, 23.0, 1.0, 0.5}}) {
        Wand w = wand({Art::naegel, 1, t, 2, laenge, 600}, einfach);
        verteiler(w, s2);
        EXPECT_EQ(w.tvorh[s2].value(), tvorh);
        EXPECT_EQ(w.treq[s2].value(), treq);
    }
}

TEST(Verteiler, WithoutEmbedmentStrengthTheRatioIsUnboundedAndFailingModesStay) {
    Wand w = wand({Art::schnellbauschrauben, 1, 15, 4.5, 50, 400}, genau);
    w.RkD[s2] = 777;
    w.RdF[s2] = 55;
    verteiler(w, s2);  // OSB of side 2: fhkPlatte is 0
    EXPECT_EQ(w.betaFh[s2].value(), 1e28);
    EXPECT_EQ(w.RkA[s2].value(), 0);
    EXPECT_EQ(w.RkD[s2].value(), 777);
    EXPECT_EQ(w.RdF[s2].value(), 0);
    EXPECT_EQ(w.Rd[s2].value(), 0);
}

}  // namespace
}  // namespace rippenscheibe
