#include <gtest/gtest.h>

#include <string>

#include "files/Zeichensatz.h"

namespace rippenscheibe {
namespace {

TEST(Zeichensatz, EveryByteOfWindows1252SurvivesTheWayThroughUtf8) {
    std::string alle;
    for (int b = 0; b < 256; ++b) alle += static_cast<char>(b);
    EXPECT_EQ(kodiert(dekodiert(alle)), alle);
    EXPECT_EQ(dekodiert("\xE4\x80\x9F\x81"), "ä€Ÿ\xC2\x81");
}

TEST(Zeichensatz, ACharacterOutsideMakesTheWholeFileUtf8WithMark) {
    EXPECT_EQ(kodiert("Größe"),
              "Gr\xF6\xDF"
              "e");
    EXPECT_EQ(kodiert("Größe ≤ 5 𝄞"),
              "\xEF\xBB\xBF"
              "Größe ≤ 5 𝄞");
    EXPECT_EQ(dekodiert("\xEF\xBB\xBF"
                        "Größe ≤ 5 𝄞"),
              "Größe ≤ 5 𝄞");
    // U+0080 has no byte in Windows-1252, although 80 is a number below 100.
    EXPECT_EQ(kodiert("\xC2\x80"), "\xEF\xBB\xBF\xC2\x80");
}

TEST(Zeichensatz, ATextThatWouldLookLikeTheMarkIsNotMistakenForIt) {
    EXPECT_EQ(dekodiert(kodiert("ï»¿x")), "ï»¿x");
}

TEST(Zeichensatz, BytesThatAreNoUtf8ReadAsWindows1252) {
    struct Fall {
        std::string name, bytes, erwartet;
    };
    const Fall faelle[] = {
        {"single byte", "\xE4 ä", "ä ä"},
        {"cut off at the end", "x\xE2\x82", "xâ‚"},
        {"overlong", "\xC0\xAF", "À¯"},
        {"surrogate", "\xED\xA0\x80", "í\xC2\xA0€"},
        {"beyond the last character", "\xF5\x80\x80\x80", "õ€€€"},
    };
    for (const Fall& f : faelle) EXPECT_EQ(dekodiert("\xEF\xBB\xBF" + f.bytes), f.erwartet) << f.name;
}

}  // namespace
}  // namespace rippenscheibe
