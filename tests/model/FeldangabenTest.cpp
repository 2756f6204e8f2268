#include <gtest/gtest.h>

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
