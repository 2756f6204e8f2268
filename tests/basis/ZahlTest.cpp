#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "basis/Zahl.h"

namespace rippenscheibe {
namespace {

struct Fehlschlag {
    std::string name;
    Zahl wert;
};

std::vector<Fehlschlag> jedeArtZuScheitern() {
    const Feld null;
    const Feld gross{std::numeric_limits<double>::max()};
    const Rippenfeld rippen;
    return {
        {"quotient by zero", 1 / null},
        {"zero by zero", null / null},
        {"overflow of a product", gross * 2},
        {"overflow of a sum", gross + gross},
        {"quotient by an overflow", 1 / (gross * 2)},
        {"whole part of an overflow", Int(-gross * 2)},
        {"root of a negative number", sqrt(Zahl(-1))},
        {"broken power of a negative number", pow(-2, 0.5)},
        {"negative power of zero", pow(0, -0.7)},
        {"overflow of a power", pow(10, 400)},
        {"rib index below 0", rippen(-1)},
        {"rib index above 200", rippen(201)},
        {"rib index that failed", rippen(1 / null)},
        {"sum with a failed value", 1 + 1 / null},
        {"smallest, failed value first", Min(1 / null, 2)},
        {"smallest, failed value last", Min(1, 2, 1 / null)},
        {"largest, failed value in between", Max(5, 1 / null, 7)},
        {"rounded failed value", Round(1 / null, 4)},
        {"whole part of a failed value", Int(null / null)},
    };
}

TEST(Zahl, EveryWayToFailLeavesTheTargetUnchanged) {
    for (const auto& fall : jedeArtZuScheitern()) {
        SCOPED_TRACE(fall.name);
        EXPECT_TRUE(fall.wert.failed());
        Feld feld{42.0};
        Feld32 feld32{43.0F};
        Ganzzahl ganzzahl{44};
        Rippenfeld rippen;
        rippen(3) = 45;
        feld = fall.wert;
        feld32 = fall.wert;
        ganzzahl = fall.wert;
        rippen(3) = fall.wert;
        feld += fall.wert;
        EXPECT_EQ(feld.value(), 42.0);
        EXPECT_EQ(feld32.value(), 43.0F);
        EXPECT_EQ(ganzzahl.value(), 44);
        EXPECT_EQ(rippen(3).operator Zahl().value(), 45.0);
    }
}

TEST(Zahl, EveryComparisonWithAFailedValueIsFalse) {
    const Zahl one = 1;
    for (const auto& [name, failed] : jedeArtZuScheitern()) {
        EXPECT_FALSE(failed == one || one == failed || failed == failed) << name;
        EXPECT_FALSE(failed != one || one != failed || failed != failed) << name;
        EXPECT_FALSE(failed < one || one < failed || failed > one || one > failed) << name;
        EXPECT_FALSE(failed <= one || one <= failed || failed >= one || one >= failed) << name;
        EXPECT_TRUE(std::isnan(failed.value())) << name;
    }
}

TEST(Zahl, ATypeTooSmallForTheValueKeepsItsOwn) {
    Feld32 feld32{1.5F};
    feld32 = 1e39;
    EXPECT_EQ(feld32.value(), 1.5F);
    Ganzzahl ganzzahl{7};
    ganzzahl = 32768;
    EXPECT_EQ(ganzzahl.value(), 7);
    ganzzahl = -32768.4;
    EXPECT_EQ(ganzzahl.value(), -32768);
    ganzzahl = 2.5;
    EXPECT_EQ(ganzzahl.value(), 2);
    ganzzahl = 3.5;
    EXPECT_EQ(ganzzahl.value(), 4);
}

TEST(Zahl, RoundTakesAHalfToTheEvenDigit) {
    EXPECT_EQ(Round(0.5, 0).value(), 0.0);
    EXPECT_EQ(Round(1.5, 0).value(), 2.0);
    EXPECT_EQ(Round(0.125, 2).value(), 0.12);
    EXPECT_EQ(Round(0.375, 2).value(), 0.38);
    EXPECT_EQ(Round(1.00004999, 4).value(), 1.0);
}

TEST(Zahl, MinAndMaxKeepTheRunningValueAndTakeNoArray) {
    EXPECT_EQ(Min(5, 3, 7).value(), 3.0);
    EXPECT_EQ(Max(5, 3, 7).value(), 7.0);
    EXPECT_EQ(Min(5).value(), 5.0);
}

TEST(Rippenfeld, TakesIndices0To200AndIgnoresWritesOutside) {
    Rippenfeld rippen;
    for (const int i : {0, 1, 200}) rippen(i) = i + 0.5;
    for (const int i : {-1, 201, 40000}) rippen(i) = 99;
    EXPECT_EQ(Zahl(rippen(0)).value(), 0.5);
    EXPECT_EQ(Zahl(rippen(200)).value(), 200.5);
    EXPECT_TRUE(Zahl(rippen(201)).failed());
    rippen(2) = rippen(1);
    rippen(1) = 8;
    EXPECT_EQ(Zahl(rippen(2)).value(), 1.5);
    Rippenfeld kurz;
    kurz(3) = 7;
    rippen = kurz;
    for (const int i : {0, 2, 3, 4, 200}) EXPECT_EQ(Zahl(rippen(i)).value(), i == 3 ? 7 : 0) << i;
    rippen.leere();
    EXPECT_EQ(Zahl(rippen(3)).value(), 0);
}

}  // namespace
}  // namespace rippenscheibe
