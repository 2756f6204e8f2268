#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "materials/Materialkennwerte.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

constexpr double vorher = 77;  // what an earlier run left in every field

struct Plattenfall {
    std::string name;
    Seite seite;
    int material;
    double t;
    double fvk, fck, fmk, rhok, Gmean, G05;
};

// The band limits with their open and closed ends, and every place where the sides differ on purpose.
const std::vector<Plattenfall> plattenfaelle{
    {"OSB/3 at the closed end of the first band", S1, 1, 10, 6.8, 15.9, 9.0, 550, 1080, 918},
    {"OSB/3 just above it", S2, 1, 10.1, 6.8, 15.4, 8.2, 550, 1080, 918},
    {"OSB/3 of 6 mm, side 1 keeps its density", S1, 1, 6, 0, 0, 0, 550, 1080, 918},
    {"OSB/3 of 6 mm, side 2 has none", S2, 1, 6, 0, 0, 0, 0, 1080, 918},
    {"OSB/4 of 5 mm", S1, 2, 5, 0, 0, 0, 550, 1090, 926.5},
    {"OSB/4 of 6 mm, side 1 keeps the bending strength", S1, 2, 6, 0, 0, vorher, 550, 1090, 926.5},
    {"OSB/4 above 25 mm, side 1 keeps the bending strength", S1, 2, 25.1, 0, 0, vorher, 550, 1090, 926.5},
    {"OSB/4 above 25 mm, side 2", S2, 2, 25.1, 0, 0, 0, 0, 1090, 926.5},
    {"GKB of 12.5 mm, side 1", S1, 3, 12.5, 1, 3.5, 2.0, 680, 700, 630},
    {"GKB of 12.5 mm, side 2 has twice the shear strength", S2, 3, 12.5, 2, 3.5, 2.0, 680, 700, 630},
    {"GKBI of 12.5 mm, side 2", S2, 4, 12.5, 1, 3.5, 2.0, 680, 700, 630},
    {"GKF of a thickness that is not listed", S1, 5, 12.6, 0, 0, 0, 800, 700, 630},
    {"GKFI of 18 mm", S2, 6, 18, 1, 5.5, 1.5, 800, 700, 630},
    {"gypsum fibre board of 10 mm", S1, 7, 10, 3.7, 8.5, 4.6, 680, 1600, 1440},
    {"P4 of 45 mm, side 1", S1, 8, 45, 4.2, 6.1, 5.8, 500, 700550, 560440},
    {"P4 of 45 mm, side 2", S2, 8, 45, 4.2, 6.1, 5.8, 500, 550, 440},
    {"P5 of 6 mm", S1, 9, 6, 0, 0, 0, 0, 10, 8},
    {"P6 of 50 mm", S2, 10, 50, 5.5, 10.4, 10, 500, 880, 704},
    {"P7 of 40 mm, shear over compression", S1, 11, 40, 13.2, 7.2, 13.3, 500, 1050, 840},
    {"P7 above 50 mm, side 1", S1, 11, 51, 0, 0, 0, 0, 1000, 800},
    {"P7 above 50 mm, side 2", S2, 11, 51, 0, 0, 0, 0, 10, 8},
    {"F**** of 16 mm, side 1", S1, 12, 16, 8, 14, 14, 600, 1000, 900},
    {"F**** of 16 mm, side 2 has no band", S2, 12, 16, 0, 0, 0, 600, 1000, 900},
    {"F**** of 10 mm, side 2", S2, 12, 10, 8, 14, 14, 600, 1000, 900},
    {"F**** of 9.9 mm, side 1", S1, 12, 9.9, 0, 0, 0, 600, 1000, 900},
    {"F**** of 30 mm, side 2", S2, 12, 30, 7, 12.5, 12.5, 600, 1000, 900},
};

TEST(Beplankungswerte, FollowTheTableOfTheirMaterialAndSide) {
    for (const auto& fall : plattenfaelle) {
        SCOPED_TRACE(fall.name);
        Wand w;
        w.Material[fall.seite] = fall.material;
        w.t[fall.seite] = fall.t;
        w.kmod[fall.seite] = 0.5;
        w.fmkBeplankung[fall.seite] = vorher;
        beplankungswerte(w, fall.seite);
        EXPECT_NEAR(w.fvk[fall.seite].value(), fall.fvk, eps);
        EXPECT_NEAR(w.fck[fall.seite].value(), fall.fck, eps);
        EXPECT_NEAR(w.fmkBeplankung[fall.seite].value(), fall.fmk, eps);
        EXPECT_NEAR(w.rhokBeplankung[fall.seite].value(), fall.rhok, eps);
        EXPECT_NEAR(w.Gmean[fall.seite].value(), fall.Gmean, eps);
        EXPECT_NEAR(w.G05[fall.seite].value(), fall.G05, eps);
        EXPECT_NEAR(w.fvd[fall.seite].value(), 0.5 * fall.fvk / 1.3, eps);
        EXPECT_NEAR(w.fmdBeplankung[fall.seite].value(), 0.5 * fall.fmk / 1.3, eps);
    }
}

TEST(Beplankungswerte, OfAMissingOwnMaterialStayAndStillFormTheDesignValues) {
    Wand w;
    w.Material[S2] = 13;
    w.EigenesMaterial[S2] = 2;
    w.eigeneMaterialien.zeilen.resize(1);
    w.fvk[S2] = 2.6;
    w.kmod[S2] = 0.5;
    beplankungswerte(w, S2);
    EXPECT_NEAR(w.fvk[S2].value(), 2.6, eps);
    EXPECT_NEAR(w.fvd[S2].value(), 1.0, eps);
    w.eigeneMaterialien.zeilen.resize(2);
    w.eigeneMaterialien.zeilen[1].zellen[2] = {5.2, false};
    beplankungswerte(w, S2);
    EXPECT_NEAR(w.fvd[S2].value(), 2.0, eps);
    EXPECT_EQ(w.fck[S2].value(), 0.0) << "an empty cell counts as 0";
}

TEST(Beplankungswerte, OfAMaterialOutsideTheCatalogueStayAsTheyWere) {
    Wand w;
    w.fvk[S1] = 3;
    w.fvd[S1] = 4;
    for (const int material : {0, 14}) {
        w.Material[S1] = material;
        beplankungswerte(w, S1);
        EXPECT_EQ(w.fvk[S1].value(), 3.0);
        EXPECT_EQ(w.fvd[S1].value(), 4.0);
    }
}

TEST(Holzwerte, TakeTheirFractilesFromTheMeanByTwoThirdsOrFiveSixths) {
    Wand w;
    w.kmodRippen = 0.9F;
    w.Holzart = 2;
    holzwerte(w);
    EXPECT_NEAR(w.E005.value(), 22000.0 / 3, eps);
    EXPECT_NEAR(w.fmd.value(), static_cast<double>(0.9F) * 24 / 1.3, eps);
    EXPECT_EQ(w.betac.value(), 0.2);
    w.Holzart = 8;
    holzwerte(w);
    EXPECT_NEAR(w.G05Holz.value(), 650, eps);
    EXPECT_EQ(w.GmeanHolz.value(), 690) << "GL28h leaves GmeanHolz of the run before";
    EXPECT_NEAR(w.E9005.value(), 350, eps);
    EXPECT_EQ(w.betac.value(), 0.1);
}

}  // namespace
}  // namespace rippenscheibe
