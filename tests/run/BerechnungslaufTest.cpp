#include <gtest/gtest.h>

#include <cmath>

#include "run/Berechnungslauf.h"
#include "run/Zuweisen.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

// Two-sided default wall under horizontal and vertical load, vertical loads distributed exactly.
Wand wand() {
    Wand w;
    w.Lastfall = 3;
    w.gk = 8;
    w.qk = 4;
    w.VertikallastVerteilung = 2;
    w.hInnenrippe = 160;
    return w;
}

void druckeStart(Wand& w) {
    zuweisen(w, grundmasse(w));
    ASSERT_EQ(starte(w), Laufergebnis::gerechnet);
}

TEST(Zwischendurchgang, RunsWhenAllSidesInUseCarry) {
    struct Fall {
        bool einseitig;
        double av1, av2, Rd2;
        bool laeuft;
    };
    for (const auto& fall : {Fall{true, 60, 0, 0, true},
                             {true, 0, 60, 50, false},
                             {false, 60, 60, 50, true},
                             {false, 60, 60, 0, false},
                             {false, 60, 0, 50, false},
                             {false, 0, 60, 50, false}}) {
        Wand w = wand();
        w.Einseitig = fall.einseitig;
        w.av[S1] = fall.av1;
        w.av[S2] = fall.av2;
        w.Rd[S1] = 300;
        w.Rd[S2] = fall.Rd2;
        w.fv0d = -1;
        zwischendurchgang(w);
        EXPECT_EQ(w.fv0d.value() != -1, fall.laeuft);
    }
}

TEST(Zuweisen, TakesTheFieldsThroughMetresAndFormsTheDesignLoads) {
    Wand w;
    w.gk = 2;
    zuweisen(w, {4.2, 2.75, 0.625});
    EXPECT_EQ(w.Rippenabstand.value(), 625);
    EXPECT_EQ(w.AnzahlRippen.value(), 8);
    EXPECT_NEAR(w.RippenabstandRest.value(), 450, eps);
    EXPECT_EQ(w.gd.value(), 1.35 * (2 + static_cast<double>(0.35F))) << "the self-weight is single precision";
    EXPECT_EQ(w.t[S2].value(), 15);
}

TEST(Berechnungslauf, RestoresTheLoadsAndThicknessesOfTheRunBeforeByZuweisen) {
    Wand w = wand();
    w.Versenkt[S1] = true;
    druckeStart(w);
    EXPECT_EQ(w.t[S1].value(), 13) << "countersunk, exact method";
    EXPECT_LT(w.gd.value(), 1.35 * 8) << "reduced by the share of the ribs, pass by pass";
    zuweisen(w, grundmasse(w));
    EXPECT_EQ(w.t[S1].value(), 15);
    EXPECT_NEAR(w.gd.value(), 1.35 * (8 + static_cast<double>(0.35F)), eps);
}

// The pass that the dispatch of side 1 starts asks for Rd2, which is still that of the run before: the
// first run after program start has one pass fewer, and the distribution compounds once less.
TEST(Berechnungslauf, OfATwoSidedWallHasOnePassMoreTheSecondTime) {
    Wand w = wand();
    druckeStart(w);
    const double ersterLauf = w.gd.value();
    const double anteil = w.AnteilRippen.value();
    druckeStart(w);
    // No wind: each pass multiplies by the same share.
    EXPECT_NEAR(w.AnteilRippen.value(), anteil, eps);
    EXPECT_NEAR(w.gd.value(), ersterLauf * anteil, eps);
    const double zweiterLauf = w.gd.value();
    druckeStart(w);
    EXPECT_NEAR(w.gd.value(), zweiterLauf, eps) << "from then on nothing changes any more";
    // Three passes: side 2's close, the run's own, the proofs.
    EXPECT_NEAR(ersterLauf, 1.35 * (8 + static_cast<double>(0.35F)) * anteil * anteil * anteil, eps);
}

TEST(Berechnungslauf, DispatchesSideTwoOfAOneSidedWallToo) {
    Wand w = wand();
    w.Einseitig = true;
    w.kmodVM[S2] = 0.9F;
    druckeStart(w);
    EXPECT_GT(w.Rd[S2].value(), 20);
    // Four passes already in the first run: both closes ask for side 1 only.
    const double g = 1.35 * (8 + static_cast<double>(0.35F));
    EXPECT_NEAR(w.gd.value(), g * std::pow(w.AnteilRippen.value(), 4), eps);
}

TEST(Berechnungslauf, ProvesTheAnchorageOnlyWhenAskedAndOverwritesTheCatalogueAnchor) {
    Wand w = wand();
    druckeStart(w);
    EXPECT_EQ(w.RdAnker.value(), 12);
    w.NachweisVerankerung = true;
    druckeStart(w);
    EXPECT_NEAR(w.RdAnker.value(), 17 / 1.3, eps);
}

TEST(Start, DoesNotCalculateWhileThereIsAFinding) {
    Wand w = wand();
    w.d[S1] = 9;
    zuweisen(w, grundmasse(w));
    EXPECT_EQ(starte(w), Laufergebnis::hinweise);
    EXPECT_FALSE(w.Hinweise.empty());
    EXPECT_EQ(w.rhok.value(), 0) << "no material value was looked up";
    EXPECT_EQ(starte(w, Hinweisbehandlung::uebergehen), Laufergebnis::gerechnet);
    EXPECT_EQ(w.rhok.value(), 350);
}

TEST(Start, ClearsNoResultOfTheRunBefore) {
    Wand w = wand();
    druckeStart(w);
    const double etaSv0 = w.etaSv0.value();
    setzeVorgaben(w);
    w.d[S1] = 9;
    zuweisen(w, grundmasse(w));
    starte(w);
    EXPECT_EQ(w.etaSv0.value(), etaSv0);
}

}  // namespace
}  // namespace rippenscheibe
