#include <gtest/gtest.h>

#include "model/VMReihen.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

double stueck(const Wand& w, double zwischenrippen = 1) {
    double summe = 0;
    for (const VMReihe& reihe : vmReihen(w, S1, {zwischenrippen})) summe += reihe.stueck();
    return summe;
}

// The default wall: 5.0 x 2.5 m, ribs at 625 mm, panels of 1250 mm, av 60 mm. Along the wall Int(5000 / 60) +
// 1 = 84, over its height Int(2500 / 60) + 1 = 42, at 120 mm 21. Three joints, seven inner ribs, four of them
// without joint.
TEST(VMReihen, CountEveryPanelEdgeAndEveryInnerRibOnce) {
    Wand w;
    EXPECT_EQ(vmReihen(w, S1).size(), 2U + 2 + 3 * 2 + 4);
    EXPECT_EQ(stueck(w), 2 * 84 + (2 + 6 + 4) * 42);
    EXPECT_EQ(stueck(w, 2), 2 * 84 + (2 + 6) * 42 + 4 * 21);
    w.Gestossen[S1] = true;
    EXPECT_EQ(stueck(w), 4 * 84 + 12 * 42);
    w.Zweireihig[S1] = true;
    EXPECT_EQ(stueck(w), 2 * (4 * 84 + 12 * 42));
}

TEST(VMReihen, TakeJointsBesideTheRibsAndARestOfTheLastPanel) {
    Wand w;
    w.Plattenbreite[S1] = 1200;  // four joints, none within 40 mm of a rib
    EXPECT_EQ(vmReihen(w, S1).size(), 2U + 2 + 4 * 2 + 7);
    w.Wandlaenge = 5.1;  // one more rib 100 mm before the end
    EXPECT_EQ(vmReihen(w, S1).size(), 2U + 2 + 4 * 2 + 8);
    w.Plattenbreite[S1] = 5100;
    EXPECT_EQ(vmReihen(w, S1).size(), 2U + 2 + 8);
}

}  // namespace
}  // namespace rippenscheibe
