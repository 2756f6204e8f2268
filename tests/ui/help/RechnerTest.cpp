#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

#include "ui/help/Rechner.h"

namespace rippenscheibe {
namespace {

// Presses one key a character: digits . + - X / = % , "C" for all, "E" for the entry.
Rechner::Meldung druecke(Rechner& rechner, std::string_view tasten) {
    constexpr std::string_view operationen = "+-X/=";  // in the order of Rechner::Taste
    auto letzte = Rechner::Meldung::keine;
    for (const char c : tasten) {
        const std::size_t taste = operationen.find(c);
        if (taste != std::string_view::npos) letzte = rechner.operation(static_cast<Rechner::Taste>(taste));
        if (c == '.') rechner.dezimal();
        if (c == '%') rechner.prozent();
        if (c == 'C') rechner.loeschen();
        if (c == 'E') rechner.eingabeLoeschen();
        if (c >= '0' && c <= '9') rechner.ziffer(c - '0');
    }
    return letzte;
}

TEST(Rechner, KeySequencesEndWithTheirDisplay) {
    struct Tastenfolge {
        std::string_view tasten, anzeige;
    };
    // clang-format off
    constexpr std::array faelle = std::to_array<Tastenfolge>({
        // Entry: a leading zero stays, a second point or sign changes nothing, minus first is a sign.
        {"", "0."},            {"123", "123."},   {"05", "05."},      {"1.25", "1.25"},  {".5", "0.5"},
        {"1.2.5", "1.25"},     {"-", "-0."},      {"-7", "-7."},      {"-.5", "-0.5"},   {"--7", "-7."},
        {"+X7", "7."},         {"-+7", "-7."},
        // Calculation from left to right; the last of two operators counts, but minus after one is a sign.
        {"5+3=", "8."},        {"5-8=", "-3."},   {"1.5X4=", "6."},   {"1/4=", "0.25"},  {"2+3X4=", "20."},
        {"2+3X", "5."},        {"6+X3=", "18."},  {"5X-", "-"},       {"5X-3=", "-15."}, {"5X-+3=", "-15."},
        // The result is carried on by an operator, a number after it begins anew.
        {"5+3=-2=", "6."},     {"5+3=X2=", "16."}, {"5+3=7+1=", "8."}, {"5=", "5."},     {"5+3===", "8."},
        // Rounded to 15 digits; very large and very small results take an exponent.
        {"1.1X1.1=", "1.21"},  {"1000000000X10000000000=", "1.E+19"}, {"3/20000000=", "1.5E-07"},
        {"50%", "0.5"},        {"200X5%=", "10."}, {"50%X8=", "4."},
        // The first operand is still 0: percent alone has not set it.
        {"50%8=", "0."},
        // Three operands: nothing is computed any more until "C".
        {"200X5%%=", "0.0005"}, {"200X5%%=C2+2=", "4."},
        {"5+3E4=", "9."},      {"5+3E", "0."},    {"5+3C4=", "4."},   {"1.5E2", "2."},
    });
    // clang-format on
    for (const Tastenfolge& fall : faelle) {
        Rechner rechner;
        druecke(rechner, fall.tasten);
        EXPECT_EQ(rechner.anzeige(), fall.anzeige) << fall.tasten;
    }
}

TEST(Rechner, ReportsADivisionByZeroAndKeepsTheFirstOperand) {
    Rechner rechner;
    EXPECT_EQ(druecke(rechner, "7/0="), Rechner::Meldung::divisionDurchNull);
    EXPECT_EQ(rechner.anzeige(), "7.");
    EXPECT_EQ(druecke(rechner, "+1="), Rechner::Meldung::keine);
    EXPECT_EQ(rechner.anzeige(), "8.");
}

TEST(Rechner, KeepsTheFirstOperandWhenTheResultIsTooLarge) {
    Rechner rechner;
    druecke(rechner, std::string(200, '9') + "X" + std::string(200, '9') + "=");
    EXPECT_EQ(rechner.anzeige(), rechnertext(1e200));
}

}  // namespace
}  // namespace rippenscheibe
