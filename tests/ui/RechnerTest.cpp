#include <gtest/gtest.h>

#include <string_view>

#include "ui/Rechner.h"

namespace rippenscheibe {
namespace {

// Presses one key a character: digits . + - X / = % , "C" for all, "E" for the entry.
Rechner::Meldung druecke(Rechner& rechner, std::string_view tasten) {
    using Taste = Rechner::Taste;
    auto letzte = Rechner::Meldung::keine;
    for (const char c : tasten) {
        switch (c) {
            case '+':
                letzte = rechner.operation(Taste::plus);
                break;
            case '-':
                letzte = rechner.operation(Taste::minus);
                break;
            case 'X':
                letzte = rechner.operation(Taste::mal);
                break;
            case '/':
                letzte = rechner.operation(Taste::durch);
                break;
            case '=':
                letzte = rechner.operation(Taste::gleich);
                break;
            case '.':
                rechner.dezimal();
                break;
            case '%':
                rechner.prozent();
                break;
            case 'C':
                rechner.loeschen();
                break;
            case 'E':
                rechner.eingabeLoeschen();
                break;
            default:
                rechner.ziffer(c - '0');
        }
    }
    return letzte;
}

struct Tastenfolge {
    const char* name;
    std::string_view tasten;
    std::string_view anzeige;
};

class RechnerTastenfolgen : public testing::TestWithParam<Tastenfolge> {};

TEST_P(RechnerTastenfolgen, EndWithTheDisplay) {
    Rechner rechner;
    druecke(rechner, GetParam().tasten);
    EXPECT_EQ(rechner.anzeige(), GetParam().anzeige);
}

INSTANTIATE_TEST_SUITE_P(Entry, RechnerTastenfolgen,
                         testing::Values(Tastenfolge{"StartsAtZero", "", "0."},
                                         Tastenfolge{"DigitsGoBeforeThePoint", "123", "123."},
                                         Tastenfolge{"ALeadingZeroStays", "05", "05."},
                                         Tastenfolge{"DigitsBehindThePoint", "1.25", "1.25"},
                                         Tastenfolge{"APointAloneBeginsWithZero", ".5", "0.5"},
                                         Tastenfolge{"ASecondPointChangesNothing", "1.2.5", "1.25"},
                                         Tastenfolge{"MinusFirstIsASign", "-", "-0."},
                                         Tastenfolge{"SignedNumber", "-7", "-7."},
                                         Tastenfolge{"SignedFraction", "-.5", "-0.5"},
                                         Tastenfolge{"ASecondSignChangesNothing", "--7", "-7."},
                                         Tastenfolge{"OtherOperatorsAtTheStartDoNothing", "+X7", "7."},
                                         Tastenfolge{"SignSurvivesAnotherOperator", "-+7", "-7."}),
                         [](const auto& fall) { return fall.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Calculation, RechnerTastenfolgen,
    testing::Values(Tastenfolge{"Sum", "5+3=", "8."}, Tastenfolge{"Difference", "5-8=", "-3."},
                    Tastenfolge{"Product", "1.5X4=", "6."}, Tastenfolge{"Quotient", "1/4=", "0.25"},
                    Tastenfolge{"LeftToRight", "2+3X4=", "20."},
                    Tastenfolge{"AnOperatorShowsTheRunningResult", "2+3X", "5."},
                    Tastenfolge{"TheLastOfTwoOperatorsCounts", "6+X3=", "18."},
                    Tastenfolge{"MinusAfterAnOperatorIsASign", "5X-", "-"},
                    Tastenfolge{"ProductWithASignedNumber", "5X-3=", "-15."},
                    Tastenfolge{"MinusAfterTheResultSubtracts", "5+3=-2=", "6."},
                    Tastenfolge{"TheResultIsCarriedOn", "5+3=X2=", "16."},
                    Tastenfolge{"ANumberAfterTheResultBeginsAnew", "5+3=7+1=", "8."},
                    Tastenfolge{"ASignThatIsFollowedByAnOperatorStays", "5X-+3=", "-15."},
                    Tastenfolge{"EqualsAloneKeepsTheNumber", "5=", "5."},
                    Tastenfolge{"RepeatedEqualsChangesNothing", "5+3===", "8."},
                    Tastenfolge{"TwelveThousandthsRoundTo15Digits", "1.1X1.1=", "1.21"},
                    Tastenfolge{"LargeResultsTakeAnExponent", "1000000000X10000000000=", "1.E+19"},
                    Tastenfolge{"SmallResultsTakeAnExponent", "3/20000000=", "1.5E-07"}),
    [](const auto& fall) { return fall.param.name; });

INSTANTIATE_TEST_SUITE_P(PercentAndClear, RechnerTastenfolgen,
                         testing::Values(Tastenfolge{"PercentShowsTheHundredth", "50%", "0.5"},
                                         Tastenfolge{"PercentOfANumber", "200X5%=", "10."},
                                         Tastenfolge{"PercentThenOperatorGoesOnWithIt", "50%X8=", "4."},
                                         // The first operand is still 0: percent alone has not set it.
                                         Tastenfolge{"PercentThenNumberMultipliesZero", "50%8=", "0."},
                                         // Three operands: nothing is computed any more until "C".
                                         Tastenfolge{"PercentTwiceBlocksUntilClear", "200X5%%=", "0.0005"},
                                         Tastenfolge{"ClearFreesABlockedCalculator", "200X5%%=C2+2=", "4."},
                                         Tastenfolge{"ClearEntryForgetsOnlyTheEntry", "5+3E4=", "9."},
                                         Tastenfolge{"ClearEntryShowsZero", "5+3E", "0."},
                                         Tastenfolge{"ClearForgetsEverything", "5+3C4=", "4."},
                                         Tastenfolge{"ADigitAfterClearEntryBeginsBeforeThePoint", "1.5E2",
                                                     "2."}),
                         [](const auto& fall) { return fall.param.name; });

TEST(Rechner, ReportsADivisionByZeroAndKeepsTheFirstOperand) {
    Rechner rechner;
    EXPECT_EQ(druecke(rechner, "7/0="), Rechner::Meldung::divisionDurchNull);
    EXPECT_EQ(rechner.anzeige(), "7.");
    EXPECT_EQ(druecke(rechner, "+1="), Rechner::Meldung::keine);
    EXPECT_EQ(rechner.anzeige(), "8.");
}

TEST(Rechner, KeepsTheFirstOperandWhenTheResultIsTooLarge) {
    Rechner rechner;
    druecke(rechner, std::string(200, '9') + "X");
    const std::string vorher = rechner.anzeige();
    druecke(rechner, std::string(200, '9') + "=");
    EXPECT_EQ(rechner.anzeige(), rechnertext(1e200));
    EXPECT_EQ(vorher, std::string(200, '9') + ".");
}

}  // namespace
}  // namespace rippenscheibe
