#include <gtest/gtest.h>

#include <string>

#include "basis/Zahlenformat.h"

namespace rippenscheibe {
namespace {

TEST(Zahlenformat, RoundsTheFifteenDigitsOfADoubleHalfAwayFromZero) {
    struct Fall {
        std::string name, maske;
        double wert;
        std::string erwartet;
    };
    const Fall faelle[] = {
        {"a half goes up", "0.0", 0.25, "0,3"},
        {"a negative half goes down", "0.0", -0.25, "-0,3"},
        // The double nearest to 1.005 lies below it; its 15 digits are 1.00500000000000.
        {"a double just below a half counts as the half", "0.00", 1.005, "1,01"},
        {"the same, negative", "0.00", -2.675, "-2,68"},
        {"a carry runs through all digits", "0.00", 999.995, "1000,00"},
        {"a carry makes the first digit", "0.0", 0.95, "1,0"},
        {"a half below the first place goes up", "0.000", 0.0005, "0,001"},
        {"below that it is zero", "0.000", 0.00049999, "0,000"},
        {"far below the mask", "0.0", 1e-300, "0,0"},
        {"a negative value that rounds to zero has no minus", "0.00", -0.004, "0,00"},
        {"minus zero", "0", -0.0, "0"},
        {"no decimal places", "0", 2.5, "3"},
        {"places are filled with zeros", "0.000", 625, "625,000"},
        {"beyond 15 digits stand zeros", "0.0", 12345678901234567.0, "12345678901234600,0"},
        {"a widened single keeps its value", "0.000", static_cast<double>(0.35F), "0,350"},
    };
    for (const Fall& f : faelle) EXPECT_EQ(formatiere(f.maske, f.wert, ','), f.erwartet) << f.name;
    EXPECT_EQ(formatiere("0.00", -1234.5, '.'), "-1234.50");
}

}  // namespace
}  // namespace rippenscheibe
