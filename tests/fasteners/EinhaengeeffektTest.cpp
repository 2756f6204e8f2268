#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "Pruefwand.h"

namespace rippenscheibe {
namespace {

Wand seilwand(const Mittel& mittel, Verfahren verfahren, int klasse = 9) {
    Wand w = wand(mittel, verfahren);
    w.DeltaRd = true;
    for (const Seite n : beideSeiten) w.VMKlasse[n] = klasse;
    return w;
}

// d, t, ln, fuk, dk, lg of the screws of the capacities by hand.
const Mittel schraube4{Art::schrauben, 9, 22, 4, 40, 400, 8, 24};
const Mittel schraube5{Art::schrauben, 9, 22, 5, 50, 400, 10, 30};
const Mittel zulassung5{Art::schraubenMitZulassung, 9, 22, 5, 50, 400, 10, 30};
const Mittel sondernagel{Art::sondernaegel, 1, 22, 3, 60, 600, 10, 30};

TEST(Einhaengeeffekt, RaisesAScrewInAModeWithAPlasticHinge) {
    // lef = min(28; 30), f1k = 70e-6*350² = 8.575, f2k = 60e-6*380² = 8.664:
    // Rxk = min(8.575*5*28 = 1200.5; 8.664*10² = 866.4); Rxd = 0.9*866.4/1.3 = 599.82; gain 149.95 on F =
    // 760.04
    for (const Seite n : beideSeiten) {
        Wand w = seilwand(schraube5, genau);
        verteiler(w, n);
        EXPECT_NEAR(w.lef[n].value(), 28, 1e-12);
        EXPECT_NEAR(w.Rxk[n].value(), 866.4, 0.01);
        EXPECT_NEAR(w.Rxd[n].value(), 599.82, 0.01);
        EXPECT_NEAR(w.Rd[n].value(), 909.99, 0.02);
    }
}

TEST(Einhaengeeffekt, IsAddedInModesDAndEButNotInModeC) {
    struct Fall {
        Mittel mittel;
        double ohneZuwachs;  // the governing mode
        double Rxk, Rd;
    };
    // clang-format off
    for (const auto& fall : {
             // D: fh = 27.229, b = 0.6504: 783.8*0.9/1.2 = 587.85; Rxk = 8*10²; a quarter of 553.85 is 138.46
             Fall{{Art::schrauben, 1, 13, 5, 60, 400, 10, 40}, 587.85, 800.0, 726.31},
             // E: fh = 30.312, b = 0.5842, t2 = 22: 890.6*0.9/1.2 = 667.98; Rxk = 866.4; a quarter is 149.95
             Fall{{Art::schrauben, 1, 38, 5, 60, 400, 10, 40}, 667.98, 866.4, 817.94},
             // C: My = 9849.5, fh = 28.700, b = 0.6170, t2 = 21: 1034.4*0.9/1.3 = 716.14; nothing is added
             Fall{{Art::schrauben, 1, 22, 5, 43, 1000, 10, 40}, 716.14, 866.4, 716.14},
         }) {
        // clang-format on
        Wand w = seilwand(fall.mittel, genau);
        verteiler(w, s2);
        EXPECT_NEAR(kleinsteVersagensart(w, s2).value(), fall.ohneZuwachs, 0.01);
        EXPECT_NEAR(w.Rxk[s2].value(), fall.Rxk, 0.01);
        EXPECT_GT(w.deltaRd[s2].value(), 100);
        EXPECT_NEAR(w.Rd[s2].value(), fall.Rd, 0.01);
    }
}

TEST(Einhaengeeffekt, ThicknessBandsGiveTheHeadParameter) {
    struct Band {
        double t;
        double Rxk;  // dk = 10, the head governs
    };
    for (const auto& band : {Band{11.9, 400}, {12, 800}, {20, 800}, {20.1, 866.4}}) {
        Wand w = seilwand(schraube5, genau);
        for (const Seite n : beideSeiten) {
            w.t[n] = band.t;
            verteiler(w, n);
            EXPECT_NEAR(w.Rxk[n].value(), band.Rxk, 0.01) << band.t;
        }
    }
}

TEST(Einhaengeeffekt, AtTheLeastEmbedmentExactlyTheEarlierWithdrawalStaysAndRxdIsFormedFromIt) {
    for (const auto& [laenge, Rxk] : {std::pair(41.9, 0.0), {42.0, 130.0}, {42.1, 861.79}}) {
        Wand w = seilwand(schraube5, genau);
        w.ln[s1] = laenge;  // lef = ln - 22, 4 d = 20; 8.575*5*20.1 = 861.79
        w.Rxk[s1] = 130;
        verteiler(w, s1);
        EXPECT_NEAR(w.Rxk[s1].value(), Rxk, 0.01);
        EXPECT_NEAR(w.Rxd[s1].value(), 0.9 * Rxk / 1.3, 0.01);
    }
}

TEST(Einhaengeeffekt, WithoutDeltaRdOnlyTheGainIsCleared) {
    for (const Mittel& mittel : {schraube5, zulassung5, sondernagel}) {
        for (const Verfahren verfahren : {einfach, genau}) {
            Wand w = wand(mittel, verfahren);
            for (auto* feld : {&w.deltaRk, &w.deltaRd, &w.Rxk, &w.Rxd, &w.lef, &w.f1k, &w.f2k})
                (*feld)[s1] = 7;
            verteiler(w, s1);
            EXPECT_EQ((verfahren == genau ? w.deltaRd : w.deltaRk)[s1].value(), 0);
            for (auto* feld : {&w.Rxk, &w.Rxd, &w.lef, &w.f1k, &w.f2k}) EXPECT_EQ((*feld)[s1].value(), 7);
        }
    }
}

TEST(Einhaengeeffekt, SimplifiedItCountsForWoodBasedBoardsOnly) {
    for (const Art art : {Art::sondernaegel, Art::schrauben, Art::schraubenMitZulassung}) {
        for (const auto& [material, Zuwachs] :
             {std::pair(1, 100.0), {12, 100.0}, {13, 100.0}, {3, 0.0}, {6, 0.0}}) {
            Wand w = seilwand({art, material, 11, 4, 50, 600, 8, 40}, einfach);
            w.deltaRk[s1] = 55;
            verteiler(w, s1);
            EXPECT_NEAR(w.deltaRk[s1].value(), Zuwachs, 1e-9) << static_cast<int>(art) << " " << material;
        }
    }
}

TEST(Einhaengeeffekt, SimplifiedScrewsOfSide1WorkWithTheF1kLeftThere) {
    struct Fall {
        double f1kAlt, Rxk1;
    };
    // lef = 18; head 8.664*8² = 554.50; withdrawal 0 and 6*4*18 = 432; side 2 has 8.575*4*18 = 617.4
    for (const auto& fall : {Fall{0, 0}, Fall{6, 432}}) {
        Wand w = seilwand(schraube4, einfach);
        for (const Seite n : beideSeiten) {
            w.f1k[n] = fall.f1kAlt;
            verteiler(w, n);
        }
        EXPECT_EQ(w.f1k[s1].value(), fall.f1kAlt);
        EXPECT_NEAR(w.f1k[s2].value(), 8.575, 1e-9);
        EXPECT_NEAR(w.Rxk[s1].value(), fall.Rxk1, 0.01);
        EXPECT_NEAR(w.Rxk[s2].value(), 554.50, 0.01);
        // Rk = 483.63: Rd = 0.9*(483.63 + 0.25*Rxk)/1.1
        EXPECT_NEAR(w.Rd[s1].value(), 0.9 * (483.63 + 0.25 * fall.Rxk1) / 1.1, 0.01);
        EXPECT_NEAR(w.Rd[s2].value(), 0.9 * (483.63 + 138.62) / 1.1, 0.01);
    }
}

TEST(Einhaengeeffekt, ApprovedScrewsTakeBothParametersFromTheirClass) {
    // 1A to 3C: the digit gives f1k = (60, 70, 80)e-6*350², the letter f2k = (60, 80, 100)e-6*380²
    constexpr std::array f1k{7.350, 7.350, 7.350, 8.575, 8.575, 8.575, 9.800, 9.800, 9.800};
    constexpr std::array f2k{8.664, 11.552, 14.440, 8.664, 11.552, 14.440, 8.664, 11.552, 14.440};
    for (std::size_t i = 0; i < f1k.size(); ++i) {
        Wand w = seilwand(zulassung5, genau, static_cast<int>(i) + 1);
        for (const Seite n : beideSeiten) {
            verteiler(w, n);
            EXPECT_NEAR(w.f1k[n].value(), f1k[i], 1e-9);
            EXPECT_NEAR(w.f2k[n].value(), f2k[i], 1e-9);
            EXPECT_NEAR(w.Rxk[n].value(), std::min(f1k[i] * 5 * 28, f2k[i] * 100), 1e-6);
        }
    }
}

TEST(Einhaengeeffekt, ApprovedScrewsBelow12MillimetresLeaveTheParameters) {
    Wand w = seilwand(zulassung5, genau);
    w.t[s1] = 11;
    w.f1k[s1] = 3;
    verteiler(w, s1);
    EXPECT_EQ(w.f1k[s1].value(), 3);
    EXPECT_EQ(w.Rxk[s1].value(), 400);
}

TEST(Einhaengeeffekt, ApprovedScrewsOfSide2ExactFrom12To20FormTheGainFromEarlierValues) {
    for (const Seite n : beideSeiten) {
        for (const Verfahren verfahren : {einfach, genau}) {
            Wand w = seilwand({Art::schraubenMitZulassung, 1, 20, 4.1, 50, 400, 10, 30}, verfahren, 7);
            w.Rxk[n] = 77;
            w.Rxd[n] = 56;
            verteiler(w, n);
            EXPECT_NEAR(w.f1k[n].value(), 9.8, 1e-9);
            EXPECT_EQ(w.f2k[n].value(), 8);
            const bool stehengelassen = n == s2 && verfahren == genau;
            EXPECT_NEAR(w.Rxk[n].value(), stehengelassen ? 77 : 800, 1e-9);  // min(9.8*4.1*30; 8*10²)
            if (stehengelassen) {
                EXPECT_EQ(w.Rxd[n].value(), 56);
                EXPECT_EQ(w.deltaRd[n].value(), 14);
            }
        }
    }
}

TEST(Einhaengeeffekt, SpecialNailsHaveItInTheClasses3ATo3COnly) {
    constexpr std::array<double, 9> f2k{0, 0, 0, 0, 0, 0, 8.664, 11.552, 14.44};
    for (int klasse = 1; klasse <= 9; ++klasse) {
        Wand w = seilwand(sondernagel, genau, klasse);
        w.Rxk[s2] = 7;
        verteiler(w, s2);
        // lef = 30: 6.125*3*30 = 551.25 governs over (60, 80, 100)e-6*380²*10²
        EXPECT_NEAR(w.Rxk[s2].value(), klasse < 7 ? 0 : 551.25, 1e-6);
        EXPECT_NEAR(w.f2k[s2].value(), f2k[static_cast<std::size_t>(klasse) - 1], 1e-9);
    }
}

TEST(Einhaengeeffekt, SpecialNailsCountAtMost20DiametersAndLessWhenPredrilled) {
    Wand w = seilwand({Art::sondernaegel, 1, 15, 3, 120, 600, 30, 100}, genau);
    w.Vorgebohrt[s2] = true;
    for (const Seite n : beideSeiten) verteiler(w, n);
    EXPECT_EQ(w.lef[s1].value(), 60);
    EXPECT_NEAR(w.f1k[s1].value(), 6.125, 1e-9);   // 50e-6*350²
    EXPECT_NEAR(w.f1k[s2].value(), 4.2875, 1e-9);  // 0.7 times that
}

TEST(Einhaengeeffekt, SpecialNailsGainHalfTheirShearCapacityAtMost) {
    // rhok = 450: f1k = 10.125, lef = 60; Rxk = min(10.125*3*60; 8*14²) = 1568, a quarter of Rxd is 271.4
    Wand w = seilwand({Art::sondernaegel, 1, 12, 3, 90, 600, 14, 70}, genau);
    w.rhok = 450;
    verteiler(w, s1);
    EXPECT_NEAR(w.Rxd[s1].value(), 1085.54, 0.01);
    EXPECT_LT(w.deltaRd[s1].value(), 271);
    EXPECT_NEAR(w.Rd[s1].value(), 1.5 * w.RdD[s1].value(), 1e-9);
}

TEST(Einhaengeeffekt, SpecialNailsSimplifiedHaveNoDensityAndGainBelow12MillimetresOnly) {
    for (const auto& [dicke, zuwachs] : {std::pair(11.0, 100.0), {15.0, 0.0}, {22.0, 0.0}}) {
        Wand w = seilwand({Art::sondernaegel, 1, dicke, 3, 60, 600, 10, 30}, einfach);
        w.f1k[s2] = 9;
        verteiler(w, s2);
        EXPECT_EQ(w.f1k[s2].value(), 0);
        EXPECT_NEAR(w.deltaRk[s2].value(), zuwachs, 1e-9);
    }
}

TEST(Einhaengeeffekt, SpecialNailsAtTheLeastEmbedmentDifferByMethod) {
    for (const auto& [verfahren, Rxk] : {std::pair(einfach, 77.0), {genau, 441.0}}) {
        Wand w = seilwand({Art::sondernaegel, 1, 16, 3, 40, 600, 10, 30}, verfahren);  // lef = 24 = 8 d
        w.Rxk[s1] = 77;
        verteiler(w, s1);
        EXPECT_NEAR(w.Rxk[s1].value(), Rxk, 1e-9);  // exact: 6.125*3*24
    }
}

TEST(Einhaengeeffekt, SpecialNailsOnFibreBoardOfSide1AddWhatAnotherFastenerLeft) {
    Wand w = wand({Art::sondernaegel, 7, 12.5, 2.8, 35, 600}, einfach);
    for (const Seite n : beideSeiten) {
        w.deltaRk[n] = 50;
        verteiler(w, n);
    }
    EXPECT_NEAR(w.Rd[s1].value(), 0.9 * (231.23 + 50) / 1.1, 0.01);
    EXPECT_NEAR(w.Rd[s2].value(), 0.9 * 231.23 / 1.1, 0.01);
}

}  // namespace
}  // namespace rippenscheibe
