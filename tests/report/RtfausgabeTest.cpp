#include "report/Rtfausgabe.h"

namespace rippenscheibe {
namespace {

// What stands between the font of the only run and the end of its group.
std::string geschrieben(const std::string& text, const Schrift& schrift = {}) {
    const std::string rtf = alsRtf({Absatz{{{text, schrift}}}});
    const std::size_t von = rtf.find("{\\f", rtf.find("\\pard")) + 1;
    return rtf.substr(von, rtf.find("}\\par\n") - von);
}

TEST(Rtfausgabe, EveryCharacterComesThrough) {
    const std::vector<std::pair<std::string, std::string>> faelle{
        {"{a\\b}", "\\{a\\\\b\\}"},
        {"ä²°", "\\u228\\'e4\\u178\\'b2\\u176\\'b0"},
        {"≤", "\\u8804\\'3f"},
        {"\uFFFD", "\\u-3\\'3f"},              // signed 16 bit
        {"𝜎", "\\u-10187\\'3f\\u-8434\\'3f"},  // U+1D70E: D835 DF0E
        {"\xE4"
         "b",
         "\\u-3\\'3fb"},                                     // no UTF-8
        {"\xE2\x89", "\\u-3\\'3f\\u-3\\'3f"},                // cut off
        {"\xC0\x80", "\\u-3\\'3f\\u-3\\'3f"},                // too long a form
        {"\xED\xA0\x80", "\\u-3\\'3f\\u-3\\'3f\\u-3\\'3f"},  // half a pair
        {"a\x01\nb\tc", "a\\line b\\tab c"},
        {"a   b ", "a \\'20\\'20b "},  // blanks that readers would join
        {" a", "\\'20a"},
    };
    for (const auto& [text, rtf] : faelle) EXPECT_EQ(geschrieben(text), "\\f0\\fs20 " + rtf);
}

TEST(Rtfausgabe, StylesColoursAndFontsAreNamed) {
    const Fliesstext text{Absatz{{{"t", schrift(Stil::titel)},
                                  {"k", schrift(Stil::bemerkung)},
                                  {"i", {.groesse = 9, .kursiv = true}}}}};
    const std::string rtf = alsRtf(text);
    EXPECT_NE(rtf.find("{\\fonttbl{\\f0\\fnil Arial;}{\\f1\\fnil Courier New;}}"), std::string::npos);
    EXPECT_NE(rtf.find("{\\colortbl;\\red0\\green0\\blue128;}"), std::string::npos);
    EXPECT_NE(rtf.find("{\\f0\\fs28\\cf1\\b\\ul t}{\\f1\\fs20 k}{\\f0\\fs18\\i i}\\par"), std::string::npos);
}

TEST(Rtfausgabe, APictureIsItsBytesAndItsSize) {
    const std::string rtf = alsRtf({Absatz{{}, {{std::string("\x89PNG\x00", 5), 25.4, 50.8}}, {}}});
    EXPECT_NE(rtf.find("{\\pict\\pngblip\\picwgoal1440\\pichgoal2880\n89504e4700}"), std::string::npos);
}

TEST(Rtfausgabe, AHeadingKeepsWithTheFirstLineBelowIt) {
    const Absatz kopf{{{"1. System", schrift(Stil::ueberschrift1)}}};
    const Absatz zeile{{{"l = 5,000 m", {}}}};
    const std::string rtf = alsRtf({zeile, kopf, {}, kopf, {}, zeile, {}, zeile});
    std::string absaetze;  // k: keeps with the next
    for (std::size_t i = rtf.find("\\pard"); i != std::string::npos; i = rtf.find("\\pard", i + 1))
        absaetze += rtf.compare(i, 11, "\\pard\\keepn") == 0 ? 'k' : '-';
    EXPECT_EQ(absaetze, "-kkkk---");
}

}  // namespace
}  // namespace rippenscheibe
