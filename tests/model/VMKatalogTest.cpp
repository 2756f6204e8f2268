#include <gtest/gtest.h>

#include <string>

#include "model/VMKatalog.h"

namespace rippenscheibe {
namespace {

struct Stichprobe {
    int zeile;
    float d, ln, dk;
};

// The first and last row of every series, and the two rows that break the pattern of theirs (12, 40).
constexpr Stichprobe stichproben[] = {
    {1, 4.0F, 40, 8},       {3, 4.0F, 60, 8},       {6, 6.0F, 70, 12},      {7, 1.53F, 38, 1.53F},
    {11, 1.53F, 63, 1.53F}, {12, 1.53F, 38, 1.83F}, {13, 1.83F, 44, 1.83F}, {16, 1.83F, 63, 1.83F},
    {17, 4.0F, 45, 8},      {23, 4.0F, 100, 8},     {24, 4.5F, 45, 9},      {31, 5.0F, 45, 10},
    {37, 5.0F, 100, 10},    {39, 4.0F, 50, 8},      {40, 4.0F, 60, 6},      {41, 4.0F, 70, 8},
    {44, 4.0F, 100, 8},     {51, 4.5F, 100, 9},     {58, 5.0F, 100, 10},    {59, 4.0F, 45, 7},
    {62, 4.3F, 55, 8},      {63, 5.1F, 45, 9},      {66, 5.5F, 55, 10},     {67, 1.2F, 32, 1.2F},
    {68, 1.2F, 38, 1.2F},   {69, 2.2F, 50, 5},      {70, 2.5F, 50, 6},      {71, 2.8F, 50, 7},
};

TEST(VMKatalog, HoldsTheRowsOfTheCatalogue) {
    ASSERT_EQ(VMKatalog().size(), 71U);
    for (const auto& s : stichproben) {
        SCOPED_TRACE("row " + std::to_string(s.zeile));
        const auto& zeile = VMKatalog()[static_cast<std::size_t>(s.zeile - 1)];
        EXPECT_EQ(zeile.d, s.d);
        EXPECT_EQ(zeile.ln, s.ln);
        EXPECT_EQ(zeile.dk, s.dk);
    }
}

TEST(VMKatalog, GroupsCoverEveryRowOnce) {
    int naechste = 1;
    for (const auto& gruppe : VMKataloggruppen()) {
        SCOPED_TRACE(std::string(gruppe.name));
        EXPECT_EQ(gruppe.ersteZeile, naechste);
        naechste = gruppe.letzteZeile + 1;
    }
    EXPECT_EQ(naechste, 72);
}

}  // namespace
}  // namespace rippenscheibe
