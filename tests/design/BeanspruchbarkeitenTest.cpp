#include <gtest/gtest.h>

#include "design/Beanspruchbarkeiten.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

// Rd 300 N at 60 mm, fv,d 4 and fc,d 10 N/mm², t 15 mm, ar 625 mm. Two-sided, with kv2 = 0.5:
//   parallel       300/60 = 5; 0.5*4*15 = 30; 0.5*4*35*225/625 = 25.2
//   perpendicular  300/60 = 5; 0.5*10*15 = 75; 0.5*10*20*225/625 = 36
Wand wand() {
    Wand w;
    for (const Seite n : beideSeiten) {
        w.Rd[n] = 300;
        w.fvd[n] = 4;
        w.fcd[n] = 10;
        w.t[n] = 15;
    }
    return w;
}

TEST(Beanspruchbarkeiten, OfEqualSidesAddUpWithoutReduction) {
    Wand w = wand();
    beanspruchbarkeitParallel(w);
    beanspruchbarkeitSenkrecht(w);
    EXPECT_NEAR(w.fv0dTerm2[S1].value(), 30, eps);
    EXPECT_NEAR(w.fv0dTerm3[S2].value(), 25.2, eps);
    EXPECT_NEAR(w.fv90dTerm2[S1].value(), 75, eps);
    EXPECT_NEAR(w.fv90dTerm3[S1].value(), 36, eps);
    EXPECT_NEAR(w.fv0d.value(), 10, eps);
    EXPECT_NEAR(w.fv90d.value(), 10, eps);
}

TEST(Beanspruchbarkeiten, OfTheWeakerSideCountWithEightyPercentHoweverOftenTheyAreFormed) {
    Wand w = wand();
    w.Rd[S1] = 240;  // 4 N/mm
    for (int durchgang = 0; durchgang < 3; ++durchgang) {
        beanspruchbarkeitParallel(w);
        beanspruchbarkeitSenkrecht(w);
    }
    EXPECT_NEAR(w.fv0dn[S1].value(), 3.2, eps);
    EXPECT_NEAR(w.fv0dTerm1[S1].value(), 4, eps);
    EXPECT_NEAR(w.fv0d.value(), 8.2, eps);
    EXPECT_NEAR(w.fv90d.value(), 8.2, eps);
    w.Rd[S1] = 360;  // 6 N/mm: now side 2 is the weaker one
    beanspruchbarkeitParallel(w);
    EXPECT_NEAR(w.fv0d.value(), 6 + 0.8 * 5, eps);
}

TEST(Beanspruchbarkeiten, OfOneSideTakeItsOwnFactorAndDoubleOnlyTheFastenersOfTwoRows) {
    Wand w = wand();
    w.Einseitig = true;
    w.Zweireihig[S1] = true;
    beanspruchbarkeitParallel(w);
    EXPECT_NEAR(w.fv0dTerm1[S1].value(), 10, eps);
    EXPECT_NEAR(w.fv0dTerm2[S1].value(), 0.33 * 4 * 15, eps);
    EXPECT_NEAR(w.fv0d.value(), 10, eps);
}

TEST(Beanspruchbarkeiten, OfJointedSheathingLoseASixthUnderHorizontalLoadWithShortPanels) {
    Wand w = wand();
    w.Gestossen[S1] = true;
    beanspruchbarkeitParallel(w);
    EXPECT_NEAR(w.fv0dn[S1].value(), 5, eps) << "half the height equals the panel width";
    w.Plattenbreite[S1] = 1249;
    beanspruchbarkeitParallel(w);
    EXPECT_NEAR(w.fv0dTerm3[S1].value(), 21, eps);
    EXPECT_NEAR(w.fv0dn[S1].value(), 0.8 * 5 * 5 / 6, eps) << "and is the weaker side then";
    beanspruchbarkeitSenkrecht(w);
    EXPECT_NEAR(w.fv90dn[S1].value(), 5, eps) << "not perpendicular to the edge";
    w.Lastfall = 2;
    beanspruchbarkeitParallel(w);
    EXPECT_NEAR(w.fv0dn[S1].value(), 5, eps);
}

TEST(Beanspruchbarkeiten, StayAsTheyWereWithoutFastenerSpacing) {
    Wand w = wand();
    beanspruchbarkeitParallel(w);
    w.Rd[S1] = 600;
    w.av[S2] = 0;
    beanspruchbarkeitParallel(w);
    EXPECT_NEAR(w.fv0d.value(), 10, eps);
    w.Einseitig = true;
    w.av[S1] = 0;
    beanspruchbarkeitParallel(w);
    EXPECT_NEAR(w.fv0d.value(), 10, eps);
}

}  // namespace
}  // namespace rippenscheibe
