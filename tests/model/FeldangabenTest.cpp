#include <gtest/gtest.h>

#include <vector>

#include "model/Anker.h"
#include "model/Feldangaben.h"

namespace rippenscheibe {
namespace {

TEST(Feldangaben, ARangeIsToldInTheUnitThatIsShown) {
    const auto text = [](std::string_view name, std::string_view einheit, double teiler) {
        return bereichstext(eingabeangabe(name).value().bereich, einheit, ',', teiler);
    };
    EXPECT_EQ(text("av2", "mm", 1), "20 bis 200 mm");
    EXPECT_EQ(text("Rippenabstand", "m", 1000), "0,2 bis 5 m");
    EXPECT_EQ(text("EigenesMaterial1", "", 1), "mindestens 1");
    EXPECT_EQ(text("hInnenrippe", "cm", 10), "");      // follows another field
    EXPECT_FALSE(eingabeangabe("fv0d1").has_value());  // a result
}

// What an input dialog refuses begins at these limits.
TEST(Feldangaben, TheRangesAreThoseOfTheDialogs) {
    struct Zeile {
        std::string_view name;
        double min, max;
    };
    // clang-format off
    for (const Zeile& z : {
             Zeile{"Wandlaenge", 0.2, 100}, {"Wandhoehe", 0.2, 100}, {"Rippenabstand", 200, 5000},
             {"bRandrippe", 40, 10000}, {"bInnenrippe", 40, 10000}, {"bKopfFussrippe", 40, 10000}, {"hRandrippe", 40, 10000},
             {"Plattendicke1", 6, 200}, {"Plattendicke2", 6, 200}, {"Plattenbreite1", 200, 20000},
             {"av1", 20, 200}, {"d2", 0.5, 100}, {"ln1", 10, 300}, {"fuk2", 20, 5000}, {"dk1", 2, 80}, {"lg2", 2, 300},
             {"AnzahlAnker", 1, 2}, {"AnzahlAnkerNaegel", 2, 100}, {"RdAnker", 0.1, 5000}, {"kserAnker", 0.1, 100000},
             {"Fvk", -1000, 1000}, {"gk", -100, 100}, {"qk", -100, 100}, {"wk", -100, 100}, {"Fcgk", -1000, 1000},
             {"Fcqk", -1000, 1000}, {"gkWand", 0, 1000}, {"beta", 30, 90}}) {
        // clang-format on
        EXPECT_EQ(eingabeangabe(z.name).value().bereich, (Wertebereich{z.min, z.max})) << z.name;
    }
}

TEST(Anker, TakeAtMostSoManyNails) {
    const std::vector<int> naegel{25, 30, 53, 53, 60, 18, 18, 40, 11, 11, 0, 0, 0};
    for (std::size_t i = 0; i < naegel.size(); ++i)
        EXPECT_EQ(anker(static_cast<int>(i) + 1)->naegelHoechstens, naegel[i]) << i + 1;
    EXPECT_EQ(naegelVoll, 16);
    EXPECT_EQ(naegelTeilweise, 8);
}

TEST(EigeneMaterialien, EachColumnHasItsRange) {
    for (int spalte = 2; spalte <= 22; ++spalte) {
        const bool kmod = (spalte >= 12 && spalte <= 19) || spalte > 20;
        Wertebereich bereich{0.1, kmod ? 10.0 : 1000.0};
        if (spalte == 6) bereich = {0.5, 500};
        if (spalte == 7) bereich = {1, 5};
        if (spalte == 8 || spalte == 9) bereich = {0.1, 100000};
        if (spalte == 10) bereich = {0.1, 10000};
        if (spalte == 11) bereich = {0, 1000};
        EXPECT_EQ(materialbereich(spalte), bereich) << spalte;
    }
}

// A default that its own field would refuse could not be left in a dialog.
TEST(Feldangaben, EveryDefaultLiesInItsRange) {
    const Wand w;
    jedeEingabe(w, [](const Feldangabe& angabe, const auto& feld) {
        if constexpr (requires { static_cast<double>(feld.value()); }) {
            EXPECT_TRUE(angabe.bereich.enthaelt(static_cast<double>(feld.value()))) << angabe.name;
        }
    });
}

}  // namespace
}  // namespace rippenscheibe
