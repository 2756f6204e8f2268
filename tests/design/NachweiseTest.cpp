#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "design/Herausziehen.h"
#include "design/Nachweise.h"
#include "design/Stabilitaet.h"
#include "design/Verbindungsmittelabstaende.h"
#include "materials/Querschnittswerte.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

Wand bemessbareWand() {
    Wand w;
    for (const Seite n : beideSeiten) {
        w.t[n] = 15;
        w.Rd[n] = 300;
        w.fvd[n] = 4;
        w.fcd[n] = 10;
        w.fmdBeplankung[n] = 5;
        w.Gmean[n] = 1000;
        w.rhokBeplankung[n] = 550;
        w.kmodVM[n] = 0.9F;
    }
    w.rhok = 350;
    w.fmk = 24;
    w.fc0k = 21;
    w.E0mean = 11000;
    w.E005 = 7000;
    w.G05Holz = 460;
    w.E90mean = 370;
    w.fmd = 16;
    w.fc0d = 14;
    w.fc90d = 2;
    w.ft0d = 10;
    w.betac = 0.2;
    querschnittswerte(w);
    return w;
}

TEST(Schubnachweis, OfAStrengthOfZeroFailsWithTenAndSkipsTheCombination) {
    Wand w = bemessbareWand();
    w.fvd[S1] = 0;
    w.fvd[S2] = 0;
    w.fcd[S1] = 0;
    w.fcd[S2] = 0;
    w.Fvd = 10;
    w.etaKombi = 0.25;
    nachweise(w);
    zusammenfassung(w);
    EXPECT_EQ(w.etaSv0.value(), 10);
    EXPECT_EQ(w.etaSv90.value(), 10);
    EXPECT_EQ(w.etaKombi.value(), 0.25);
    EXPECT_FALSE(w.AlleNachweiseErfuellt);
}

TEST(Schubnachweis, CombinedOverwritesTheRoundedUtilisationsAndTakesTheParallelStrength) {
    Wand w = bemessbareWand();
    w.VertikallastVerteilung = 2;
    w.Fvd = 11;  // sv0d 2.2 N/mm against fv0d = 10 N/mm
    w.gd = 20;
    nachweise(w);
    ASSERT_NE(w.sv90d.value(), 0);
    EXPECT_NEAR(w.etaSv0.value(), 0.22, eps);
    EXPECT_NEAR(w.etaKombi.value(), 0.22 / 0.7, eps);
    EXPECT_NEAR(w.etaSv90.value(), w.sv90d.value() / 10, 1e-12);
}

TEST(Schubnachweis, WithoutAnyShearKeepsTheCombinedUtilisation) {
    Wand w = bemessbareWand();
    w.Fvd = 0;
    w.etaKombi = 0.5;
    nachweise(w);
    EXPECT_EQ(w.etaKombi.value(), 0.5);
}

TEST(Schwellenpressung, OfTheLeftEdgeRibKeepsWhatItHeld) {
    Wand w = bemessbareWand();  // bottom rib 60 mm: kc90 = 1.25
    for (int i = 1; i <= 9; ++i) w.FcdSchwelle(i) = 11.2;
    w.SigmaC90d(1) = 0.3;
    nachweisSchwellenpressung(w);
    EXPECT_NEAR(wert(w.SigmaC90d(1)), 0.3, eps);
    EXPECT_NEAR(wert(w.etaC90(1)), 0.1, eps);
    EXPECT_NEAR(wert(w.SigmaC90d(2)), 112.0 / 224, eps);
    EXPECT_NEAR(wert(w.SigmaC90d(9)), 112.0 / 176, eps);
    EXPECT_NEAR(wert(w.etaC90(9)), 0.2121, eps);  // 0.63636 / (1.2 * 1.25 * 2) = 0.21212
    w.bKopfFussrippe = 313;
    w.Holzart = 6;
    querdruckbeiwert(w);
    EXPECT_EQ(w.kc90.value(), 1.0);
    w.bKopfFussrippe = 312.5;
    querdruckbeiwert(w);
    EXPECT_EQ(w.kc90.value(), 1.5);
}

TEST(Stabilitaet, AddsBucklingAndBendingPerRib) {
    Wand w = bemessbareWand();
    w.FcdStabilitaet(2) = 10;
    w.FcdVeraenderlich(2) = 6;
    w.Myd(2) = 0.4;
    nachweisStabilitaet(w);
    // i = 0.04624 m, lambda = 54.066, lambdaRel = 54.066 / pi * sqrt(0.003) = 0.94261
    // k = 0.5 (1 + 0.2 * 0.64261 + 0.88852) = 1.00852, kc = 1 / (1.00852 + sqrt(1.01711 - 0.88852)) = 0.7315
    EXPECT_NEAR(w.lambdaRel.value(), 0.94261, 1e-5);
    EXPECT_NEAR(w.kc.value(), 0.7315, 1e-9);
    EXPECT_NEAR(wert(w.SigmaC0d(2)), 160.0 / 128, eps);
    EXPECT_NEAR(wert(w.SigmaMd(2)), 400 / (160.0 * 160 * 80 / 6000), eps);
    EXPECT_NEAR(wert(w.etaStabilitaet(2)), 1.25 / (0.7315 * 14) + 1.171875 / 16, eps);
}

struct Kippfall {
    std::string name;
    bool einseitig;
    double bRand, bInnen;
    bool randGekippt, innenGekippt;
};

TEST(Kippbeiwerte, HoldARibByThickSheathingOrByTheOtherBeingSlender) {
    // h = 160: slender from b below 40; both lambdaM lie above 0.75 at these widths.
    const std::vector<Kippfall> faelle{
        {"one-sided, only the inner rib slender", true, 40, 30, false, true},
        {"one-sided, only the edge rib slender", true, 30, 40, true, false},
        {"one-sided, both slender", true, 30, 30, true, true},
        {"one-sided, neither slender", true, 40, 40, true, true},
        {"two-sided, thick sheathing", false, 30, 30, false, false},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.name);
        Wand w = bemessbareWand();
        w.Einseitig = fall.einseitig;
        w.bRandrippe = fall.bRand;
        w.bInnenrippe = fall.bInnen;
        kippbeiwerte(w);
        EXPECT_EQ(w.kmRandrippe != 1, fall.randGekippt);
        EXPECT_EQ(w.kmInnenrippe != 1, fall.innenGekippt);
    }
    Wand w = bemessbareWand();
    w.t[S2] = 12;  // 50 t2 = 600 mm, below the spacing
    w.bRandrippe = 40;
    kippbeiwerte(w);
    // lambdaM = sqrt(1000*2.5*160 / (1600 pi)) * sqrt(24 / sqrt(7000*460)) = 8.92062 * 0.115650 = 1.03167
    EXPECT_NEAR(w.lambdaMRandrippe.value(), 1.03167, 1e-5);
    EXPECT_NEAR(w.kmRandrippe.value(), 1.56 - 0.75 * w.lambdaMRandrippe.value(), eps);
    w.bRandrippe = 30;  // lambdaM = 1.03167 * 40 / 30 = 1.37556, just below 1.4
    kippbeiwerte(w);
    EXPECT_NEAR(w.kmRandrippe.value(), 1.56 - 0.75 * 1.37556, 1e-5);
    w.bRandrippe = 25;
    kippbeiwerte(w);
    EXPECT_NEAR(w.kmRandrippe.value(), std::pow(w.lambdaMRandrippe.value(), -2), eps);
}

struct Ausziehfall {
    std::string name;
    int art, klasse;
    bool vorgebohrt;
    double d, ln, t, lg, dk;
    double Rxk;  // N, by hand with rho = 350: rho² 1e-6 = 0.1225, 380² 1e-6 = 0.1444
};

TEST(Herausziehen, FollowsKindClassAndThickness) {
    constexpr double stale = 55;
    const std::vector<Ausziehfall> faelle{
        {"nail, shaft governs", 1, 1, false, 3, 60, 15, 0, 6.8, 18 * 0.1225 * 3 * 45},
        {"nail, head governs", 1, 1, false, 3, 75, 15, 0, 3.5, 8 * 3.5 * 3.5},
        {"nail, penetration capped at 20 d", 1, 1, false, 3, 90, 25, 0, 20, 18 * 0.1225 * 3 * 60},
        {"nail, predrilled", 1, 1, true, 3, 60, 15, 0, 6.8, 0},
        {"nail, thin sheathing", 1, 1, false, 3, 60, 10, 0, 6.8, 400},
        {"nail, sheathing countersunk away", 1, 1, false, 3, 60, -0.5, 0, 6.8, 400},
        {"nail, too short", 1, 1, false, 3, 38, 15, 0, 6.8, 0.000001},
        {"nail, exactly 8 d keeps the value of before", 1, 1, false, 3, 39, 15, 0, 6.8, stale},
        {"special nail 2B", 2, 5, false, 4, 60, 20, 36, 10, 40 * 0.1225 * 4 * 36},
        {"special nail 3A, predrilled", 2, 7, true, 4, 60, 22, 36, 12, 0.7 * 50 * 0.1225 * 4 * 36},
        {"staple", 3, 1, false, 1.8, 50, 15, 0, 0, 2 * 8 * 5.8 * 1.8 * 1.8},
        {"staple, thin sheathing", 3, 1, false, 1.8, 50, 8, 0, 0, 800},
        {"staple, too thin sheathing", 3, 1, false, 1.8, 50, 7.9, 0, 0, 0.000002},
        {"screw", 4, 1, false, 5, 80, 22, 48, 10, 60 * 0.1444 * 100},
        {"approved screw 3C", 5, 9, false, 5, 80, 22, 28, 10, 80 * 0.1225 * 5 * 28},
        {"drywall screw", 6, 1, false, 4.3, 55, 12.5, 40, 8, 0.000001},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.name);
        Wand w = bemessbareWand();
        w.VMArt[S1] = fall.art;
        w.VMKlasse[S1] = fall.klasse;
        w.Vorgebohrt[S1] = fall.vorgebohrt;
        w.d[S1] = fall.d;
        w.ln[S1] = fall.ln;
        w.t[S1] = fall.t;
        w.lg[S1] = fall.lg;
        w.dk[S1] = fall.dk;
        w.Rxk[S1] = stale;
        nachweisHerausziehen(w);
        EXPECT_NEAR(w.Rxk[S1].value(), fall.Rxk, 1e-9 * (1 + fall.Rxk));
        EXPECT_NEAR(w.Rxd[S1].value(), static_cast<double>(0.9F) * fall.Rxk / 1.3, 1e-9 * (1 + fall.Rxk));
    }
}

TEST(Herausziehen, HalvesTheForceOfOneRowAndNotOfTwo) {
    Wand w = bemessbareWand();
    w.wd = -1;
    w.Faxd(2) = 100;
    nachweisHerausziehen(w);
    EXPECT_NEAR(wert(w.Faxd(2)), 50, eps);
    EXPECT_NEAR(wert(w.etaHerausziehenRippe(2)), std::round(50 / w.Rxd[S1].value() * 1e4) / 1e4, eps);
    w.Zweireihig[S1] = true;
    nachweisHerausziehen(w);
    EXPECT_NEAR(wert(w.Faxd(2)), 50, eps);
    w.Vorgebohrt[S1] = true;  // no resistance
    nachweisHerausziehen(w);
    EXPECT_EQ(wert(w.etaHerausziehenRippe(2)), 100);
    w.wd = 0;
    nachweisHerausziehen(w);
    EXPECT_EQ(wert(w.etaHerausziehenRippe(2)), 0);
}

struct Abstandsfall {
    std::string name;
    Seite seite;
    int art, material;
    double d1, d2, rhok;
    bool vorgebohrt;
    double a1, a3, aRand, aPlatte;
};

TEST(Verbindungsmittelabstaende, AreMultiplesOfTheDiameterWithSideTwoOnItsOwn) {
    constexpr double alt = 1;
    const double sinus = std::sin(30.0);  // of 30 as it stands
    const std::vector<Abstandsfall> faelle{
        {"nail, light rib", S1, 1, 1, 3, 3, 420, false, 15, 21, 21, 21},
        {"nail of 5 mm, light rib", S1, 1, 3, 5, 5, 350, false, 25, 50, 50, 50},
        {"nail, heavy rib", S1, 1, 7, 3, 3, 430, false, 21, 27, 45, 21},
        {"nail, predrilled", S1, 1, 12, 3, 3, 600, true, 9, 21, 21, 21},
        {"nail, too heavy a rib", S1, 1, 1, 3, 3, 500, false, alt, alt, alt, 21},
        {"side 2, both conditions: 10 d stands", S2, 1, 1, 3, 6, 350, false, 30, 60, alt, 42},
        {"side 2, neither condition", S2, 1, 1, 6, 3, 350, false, 15, alt, alt, 21},
        {"staple", S1, 3, 1, 2, 2, 350, false, (10 * sinus + 5) * 2, 20, 30, 20},
        {"staple, side 2 without edge distance", S2, 8, 1, 2, 2, 350, false, (10 * sinus + 5) * 2, 20, alt,
         20},
        {"staple on fibre board", S1, 3, 7, 2, 2, 350, false, alt, alt, alt, 24},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(fall.name);
        Wand w;
        const Seite n = fall.seite;
        w.VMArt[n] = fall.art;
        w.Material[n] = fall.material;
        w.d[S1] = fall.d1;
        w.d[S2] = fall.d2;
        w.rhok = fall.rhok;
        w.Vorgebohrt[n] = fall.vorgebohrt;
        for (auto* feld : {&w.a1, &w.a2, &w.a3, &w.a4, &w.aRand, &w.aPlatte}) (*feld)[n] = alt;
        verbindungsmittelabstaende(w, n);
        EXPECT_NEAR(w.a1[n].value(), fall.a1, eps);
        EXPECT_NEAR(w.a3[n].value(), fall.a3, eps);
        EXPECT_NEAR(w.aRand[n].value(), fall.aRand, eps);
        EXPECT_NEAR(w.aPlatte[n].value(), fall.aPlatte, eps);
    }
}

}  // namespace
}  // namespace rippenscheibe
