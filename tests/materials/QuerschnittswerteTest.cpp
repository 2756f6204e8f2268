#include <gtest/gtest.h>

#include "materials/Querschnittswerte.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

TEST(Querschnittswerte, CountTheRibsByAnExactQuotient) {
    struct Fall {
        double laenge, abstand, rippen, rest;
    };
    for (const auto& fall : {Fall{2.50, 625, 5, 0}, Fall{2.60, 625, 6, 100}, Fall{0.5, 625, 2, 500},
                             // the length is just above three spacings: one more rib and a tiny last bay
                             Fall{0.1 + 0.2, 100, 5, (0.1 + 0.2) * 1000 - 300}}) {
        SCOPED_TRACE(fall.laenge);
        Wand w;
        w.Wandlaenge = fall.laenge;
        w.Rippenabstand = fall.abstand;
        rippenzahl(w);
        letztesFeld(w);
        EXPECT_EQ(w.AnzahlRippen.value(), fall.rippen);
        EXPECT_NEAR(w.RippenabstandRest.value(), fall.rest, eps);
    }
}

TEST(Querschnittswerte, WithoutSpacingHaveOneRibAndKeepTheLastBay) {
    Wand w;
    w.RippenabstandRest = 12;
    w.Rippenabstand = 0;
    rippenzahl(w);
    letztesFeld(w);
    EXPECT_EQ(w.AnzahlRippen.value(), 1);
    EXPECT_EQ(w.RippenabstandRest.value(), 12);
}

TEST(Querschnittswerte, OfAnEdgeRibCountTheOverhangOnOneOrBothSides) {
    Wand w;  // ribs 80 x 160
    randrippen(w);
    EXPECT_NEAR(w.AefLinks.value(), (80 + 30) * 160 / 100.0, eps);
    EXPECT_NEAR(w.AefRandrippe.value(), 176, eps);
    w.FussrippeRechtsDurchgehend = true;
    randrippen(w);
    EXPECT_NEAR(w.AefLinks.value(), 176, eps);
    EXPECT_NEAR(w.AefRechts.value(), 224, eps);
    EXPECT_NEAR(w.AefRandrippe.value(), 224, eps);
    EXPECT_NEAR(w.WzRandrippe.value(), 80.0 * 80 * 160 / 6000, eps);
    EXPECT_NEAR(w.WyRandrippe.value(), 160.0 * 160 * 80 / 6000, eps);
    EXPECT_NEAR(w.WyRandrippeGerundet.value(), 341.3, eps);
}

TEST(Eigengewicht, AddsRibsSheathingAndInsulation) {
    Wand w;  // 5.0 x 2.5 m, nine ribs 80 x 160, OSB 15 mm on both sides
    querschnittswerte(w);
    for (const Seite n : beideSeiten) {
        w.t[n] = 15;
        w.Wichte[n] = 6;
    }
    w.DickeDaemmung = 16;
    eigengewicht(w, Daemmung::vorhanden);
    // ribs: (2 * 2.34 * 0.0128 + 7 * 2.34 * 0.0128 + 2 * 5 * 0.0128) * 5 kN/m³
    const double holz = (2 * 2.34 * 0.0128 + 7 * 2.34 * 0.0128 + 2 * 5.0 * 0.0128) * 5;
    const double platte = 6 * 2.5 * 5 * 0.015;
    const double daemmung = 0.01 * 16 * (5 - 0.16 - 7 * 0.08) * 2.34;
    EXPECT_NEAR(w.GewichtHolz.value(), holz, eps);
    EXPECT_NEAR(w.GewichtGesamt.value(), holz + 2 * platte + daemmung, eps);
    w.Einseitig = true;
    eigengewicht(w, Daemmung::keine);
    EXPECT_NEAR(w.GewichtGesamt.value(), holz + platte, eps);
}

}  // namespace
}  // namespace rippenscheibe
