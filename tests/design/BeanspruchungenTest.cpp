#include <gtest/gtest.h>

#include <vector>

#include "design/Beanspruchbarkeiten.h"
#include "design/Beanspruchungen.h"
#include "materials/Materialkennwerte.h"
#include "materials/Querschnittswerte.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

void expectRippen(const Rippenfeld& feld, const std::vector<double>& soll, const char* name) {
    for (std::size_t i = 0; i < soll.size(); ++i)
        EXPECT_NEAR(feld(i + 1).value(), soll[i], eps) << name << " of rib " << i + 1;
}

// 2.6 x 2.6 m, spacing 625 mm: six ribs, the last bay is 100 mm wide.
Wand wand() {
    Wand w;
    w.Wandlaenge = 2.6;
    w.Wandhoehe = 2.6;
    for (const Seite n : beideSeiten) w.t[n] = 15;
    querschnittswerte(w);
    return w;
}

TEST(Beanspruchungen, FromAHorizontalLoadPressOneEdgeAndPullTheOther) {
    Wand w = wand();
    w.Fvd = 10;
    beanspruchungen(w);
    EXPECT_NEAR(w.sv0d.value(), 10 / 2.6, eps);
    EXPECT_NEAR(w.FEdge.value(), 10, eps);
    expectRippen(w.FcdSchwelle, {0, 2, 2, 2, 2, 6.7}, "FcdSchwelle");
    expectRippen(w.FcdVeraenderlich, {0, 2, 2, 2, 2, 10}, "FcdVeraenderlich");
    expectRippen(w.Ftd, {10, 0, 0, 0, 0, 0}, "Ftd");

    w.Fvd = -10;
    w.Einseitig = true;
    beanspruchungen(w);
    expectRippen(w.FcdSchwelle, {7.5, 2, 2, 2, 2, 0}, "FcdSchwelle, mirrored, one-sided");
    expectRippen(w.Ftd, {0, 0, 0, 0, 0, 10}, "Ftd, mirrored");

    w.Wandlaenge = 1.3;  // half the height: the whole force reaches the sill
    beanspruchungen(w);
    EXPECT_NEAR(w.FcdSchwelle(1).operator Zahl().value(), 20, eps);
}

TEST(Beanspruchungen, FromVerticalLoadsFollowTheBaysAndTheShortLastOne) {
    Wand w = wand();
    w.gd = 4;
    w.qd = 8;
    w.Fcgd = 1;
    w.Fcqd = 3;
    beanspruchungen(w);
    // tributary lengths: 0.3125, 0.625, 0.625, 0.625, (0.1 + 0.625) / 2, 0.05 m
    expectRippen(w.FcdStabilitaet, {2.25, 3.5, 3.5, 3.5, 2.45, 1.2}, "FcdStabilitaet");
    expectRippen(w.FcdVeraenderlich, {5.5, 8, 8, 8, 5.9, 3.4}, "FcdVeraenderlich");
    expectRippen(w.FcdSchwelle, {7.75, 11.5, 11.5, 11.5, 8.35, 4.6}, "FcdSchwelle");
}

TEST(Beanspruchungen, FromLiftingLoadsPullAndLeaveNoCompression) {
    Wand w = wand();
    w.Fvd = 10;
    w.Fcgd = 1;
    w.Fcqd = -4;  // -3 a rib, against +2 from the horizontal load in inner ribs
    beanspruchungen(w);
    expectRippen(w.Ftd, {13, 1, 1, 1, 1, 0}, "Ftd");
    expectRippen(w.FcdStabilitaet, {0, 0, 0, 0, 0, 1}, "FcdStabilitaet");
    w.Fcqd = 0;  // compression on the tension edge does not reduce its tension
    beanspruchungen(w);
    EXPECT_NEAR(w.Ftd(1).operator Zahl().value(), 10, eps);
}

TEST(Beanspruchungen, FromWindSuctionPullTheFastenersOfSideOne) {
    Wand w = wand();
    w.wd = -0.8;
    beanspruchungen(w);
    // wind 0.8 kN/m² on the tributary widths; Faxd = 60 mm * w, 1.25 times that in inner ribs
    expectRippen(w.wdRippe, {0.25, 0.5, 0.5, 0.5, 0.29, 0.04}, "wdRippe");
    expectRippen(w.Faxd, {15, 37.5, 37.5, 37.5, 21.75, 2.4}, "Faxd");
    EXPECT_NEAR(w.Myd(2).operator Zahl().value(), 0.5 * 2.6 * 2.6 / 8, eps);
    EXPECT_NEAR(w.SigmaBiegung.value(), 0.625 * 0.625 * 0.8 / 8 * 1e6 / 37500, eps);
    w.wd = 0.8;
    beanspruchungen(w);
    expectRippen(w.Faxd, {0, 0, 0, 0, 0, 0}, "Faxd under pressure");
}

TEST(Beanspruchungen, OfASingleRibPressItAsTheLeftEdgeRibAndPullItEitherWay) {
    Wand w = wand();
    w.Rippenabstand = 0;
    w.Fvd = -10;
    beanspruchungen(w);
    EXPECT_EQ(w.AnzahlRippen.value(), 1);
    EXPECT_NEAR(w.FcdVeraenderlich(1).operator Zahl().value(), 10, eps);
    EXPECT_NEAR(w.Ftd(1).operator Zahl().value(), 10, eps);

    w.Fcgd = -14;  // lifts more than the edge presses
    beanspruchungen(w);
    EXPECT_NEAR(w.Ftd(1).operator Zahl().value(), 14 - 10 + 10, eps);
}

// Exact distribution: OSB one-sided, three ribs at 625 mm on 1.25 m, no wind.
//   ribs:  rib 1 counts 0 (no contact area), rib 2 and 3 take the smaller of buckling and contact
//   panel: its fasteners, nVM1 = Int((1250 - 2 * 18.9) / 60) = 20, 20 * 300 = 6000 N
TEST(Beanspruchungen, DistributedExactlyCompoundFromPassToPass) {
    Wand w;
    w.Einseitig = true;
    w.Wandlaenge = 1.25;
    w.VertikallastVerteilung = 2;
    w.kmodRippen = 0.8F;
    w.kmod[S1] = 0.7F;
    for (const Seite n : beideSeiten) w.t[n] = 15;
    querschnittswerte(w);
    holzwerte(w);
    beplankungswerte(w, S1);
    w.Rd[S1] = 300;
    w.gd = 10;
    w.Fcgd = 2;
    beanspruchungen(w);

    const double fc90d = static_cast<double>(0.8F) * 2.5 / 1.3;
    const double rechts = 1.25 * 176 * fc90d * 1.2 * 100;
    const double innen = 1.25 * 224 * fc90d * 1.2 * 100;
    const double fc0d = static_cast<double>(0.8F) * 21 / 1.3;
    const double knicken = w.kc.value() * fc0d * 128 * 100;
    ASSERT_LT(innen, knicken) << "contact governs in this wall";
    EXPECT_EQ(w.nVM[S1].value(), 20);
    EXPECT_EQ(w.RdRippe(1).operator Zahl().value(), 0.0);
    EXPECT_NEAR(w.RdRippenGesamt.value(), innen + rechts, 1e-6);
    EXPECT_NEAR(w.RdBeplankung.value(), 6000, eps);
    const double anteil = (innen + rechts) / (innen + rechts + 6000);
    EXPECT_NEAR(w.AnteilRippen.value(), anteil, eps);
    EXPECT_NEAR(w.sv90d.value(), (10 + 3 * 2 / 1.25) * (1 - anteil), eps);
    EXPECT_NEAR(w.gd.value(), 10 * anteil, eps);

    beanspruchungen(w);
    EXPECT_NEAR(w.gd.value(), 10 * anteil * anteil, eps) << "the second pass starts from the reduced load";
    EXPECT_NEAR(w.sv90d.value(), (10 + 3 * 2 / 1.25) * anteil * (1 - anteil), eps);
}

TEST(Beanspruchungen, DistributedExactlyTheFastenersOfTheWeakerSideCountWithEightyPercent) {
    for (const Seite schwach : beideSeiten) {
        Wand w = wand();
        w.VertikallastVerteilung = 2;
        for (const Seite n : beideSeiten) w.fcd[n] = 10;
        w.Rd[gegenueber(schwach)] = 300;
        w.Rd[schwach] = 240;
        w.gd = 10;
        beanspruchungen(w);
        EXPECT_NEAR(w.fv90d.value(), 5 + 0.8 * 4, eps);
        EXPECT_NEAR(w.RdBeplankung.value(), w.nVM[S1].value() * (300 + 0.8 * 240), 1e-6);
    }
}

TEST(Beanspruchungen, OfMoreThan200RibsLeaveTheScalarsAndTouchNoMemoryOutside) {
    Wand w = wand();
    w.Wandlaenge = 100;
    w.Rippenabstand = 200;
    w.Fvd = 10;
    w.VertikallastVerteilung = 2;
    w.RdRippenGesamt = 5;
    beanspruchungen(w);
    EXPECT_EQ(w.AnzahlRippen.value(), 501);
    EXPECT_NEAR(w.sv0d.value(), 0.1, eps);
    EXPECT_NEAR(w.FcdSchwelle(200).operator Zahl().value(), 0.2 * 10 * 2.6 / 100, eps) << "an inner rib";
    EXPECT_EQ(w.RdRippenGesamt.value(), 5) << "the sum of rib 501 cannot be read";
}

}  // namespace
}  // namespace rippenscheibe
