#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "files/Anweisungen.h"

namespace rippenscheibe {
namespace {

// What a field reads as when the value was 7 (text "alt", truth value true) before.
struct Fall {
    std::string name, zeile;
    double zahl;
    std::int16_t ganz;
    bool wahr;
    std::string text;
};

template <class T>
T gelesen(const std::string& zeile, T vorher) {
    Anweisungsleser leser(zeile);
    leser.lies(ziel("x", vorher));
    return vorher;
}

TEST(Anweisungen, AFieldReadsByTheTypeOfItsTarget) {
    const Fall faelle[] = {
        {"number", "12.5", 12.5, 12, true, "12.5"},
        {"half goes to even", "2.5", 2.5, 2, true, "2.5"},
        {"half goes to even, upwards", "-3.5", -3.5, -4, true, "-3.5"},
        {"blanks around", " \t 4 \t", 4, 4, true, "4"},
        {"exponent E", "1E-05", 1e-5, 0, true, "1E-05"},
        {"exponent D", "2d2", 200, 200, true, "2d2"},
        {"point first", ".5", 0.5, 0, true, ".5"},
        {"point last, plus sign", "+5.", 5, 5, true, "+5."},
        {"empty", " ", 0, 0, false, ""},
        {"empty between blanks", "  ,9", 0, 0, false, ""},
        {"true", "#TRUE#", -1, -1, true, "#TRUE#"},
        {"false", "#FALSE#", 0, 0, false, "#FALSE#"},
        {"zero as truth value", "0.0", 0, 0, false, "0.0"},
        {"largest whole number", "32767.4", 32767.4, 32767, true, "32767.4"},
        {"whole number out of range", "32767.5", 32767.5, 7, true, "32767.5"},
        {"too small is zero", "1e-99999999999999999999", 0, 0, false, "1e-99999999999999999999"},
        {"too large does not parse", "1E+400", 7, 7, true, "1E+400"},
        {"decimal comma ends the field", "3,5", 3, 3, true, "3"},
        {"quoted digits are a text", "\"12\"", 7, 7, true, "12"},
        {"quoted nothing is a text", "\"\"", 7, 7, true, ""},
        {"words are a text", "inf", 7, 7, true, "inf"},
        {"number with a tail", "12mm", 7, 7, true, "12mm"},
        {"two numbers", "1 2", 7, 7, true, "1 2"},
        {"lone exponent", "1E", 7, 7, true, "1E"},
        {"hexadecimal", "0x10", 7, 7, true, "0x10"},
        {"quoted with comma", "\"a,b\"", 7, 7, true, "a,b"},
        {"quoted keeps its blanks", "  \" a \" ", 7, 7, true, " a "},
        {"behind the closing quote is dropped", "\"a\"b\"c,1", 7, 7, true, "a"},
        {"quote inside an unquoted text", "a\"b", 7, 7, true, "a\"b"},
        {"quoted with line end", "\"a\r\nb\"", 7, 7, true, "a\r\nb"},
        {"quote that never closes", "\"a", 7, 7, true, "alt"},
        {"lower case truth value", "#true#", 7, 7, true, "#true#"},
    };
    for (const Fall& f : faelle) {
        for (const std::string ende : {"", "\n", "\r\n"}) {
            SCOPED_TRACE(f.name);
            EXPECT_EQ(gelesen(f.zeile + ende, 7.0), f.zahl);
            EXPECT_EQ(gelesen(f.zeile + ende, std::int16_t{7}), f.ganz);
            EXPECT_EQ(gelesen(f.zeile + ende, true), f.wahr);
            EXPECT_EQ(gelesen(f.zeile + ende, std::string("alt")), f.text);
        }
    }
}

struct Satz {
    double a = -1, b = -2, c = -3;
    std::string t = "alt";
};

std::vector<Uebersprungen> lies(const std::string& text, Satz& eins, Satz& zwei) {
    Anweisungsleser leser(text);
    for (Satz* s : {&eins, &zwei})
        leser.lies(ziel("a", s->a), ziel("b", s->b), ziel("t", s->t), ziel("c", s->c));
    return leser.uebersprungen();
}

TEST(Anweisungen, AFaultEndsItsStatementAndTheNextReadsFromTheNextLine) {
    struct Zeilenfall {
        std::string name, text;
        Satz eins, zwei;
    };
    const Zeilenfall faelle[] = {
        {"both whole", "1,2,\"x\",3\r\n4,5,\"y\",6\r\n", {1, 2, 3, "x"}, {4, 5, 6, "y"}},
        {"LF alone, no last line end", "1,2,\"x\",3\n4,5,\"y\",6", {1, 2, 3, "x"}, {4, 5, 6, "y"}},
        {"fault in the second field", "1,?,\"x\",3\r\n4,5,\"y\",6\r\n", {1, -2, -3, "alt"}, {4, 5, 6, "y"}},
        {"too few fields", "1,2\r\n4,5,\"y\",6\r\n", {1, 2, -3, "alt"}, {4, 5, 6, "y"}},
        {"a last comma begins an empty field", "1,\r\n4,5,\"y\",6\r\n", {1, 0, -3, "alt"}, {4, 5, 6, "y"}},
        {"surplus fields", "1,2,\"x\",3,9,9\r\n4,5,\"y\",6,9\r\n", {1, 2, 3, "x"}, {4, 5, 6, "y"}},
        {"empty line", "\r\n4,5,\"y\",6\r\n", {0, -2, -3, "alt"}, {4, 5, 6, "y"}},
        {"short file", "1,2,\"x\",3\r\n", {1, 2, 3, "x"}, {}},
        {"no file", "", {}, {}},
        {"statement ends behind the quoted line end",
         "1,2,\"x\r\ny\",3,9\r\n4\r\n",
         {1, 2, 3, "x\r\ny"},
         {4}},
        {"open quote keeps to its line", "1,2,\"x,3\r\n4,5,6,7\r\n", {1, 2, -3, "alt"}, {4, 5, 7, "6"}},
    };
    for (const Zeilenfall& f : faelle) {
        SCOPED_TRACE(f.name);
        Satz eins;
        Satz zwei;
        lies(f.text, eins, zwei);
        for (const auto& [ist, soll] : {std::pair{eins, f.eins}, std::pair{zwei, f.zwei}}) {
            EXPECT_EQ(ist.a, soll.a);
            EXPECT_EQ(ist.b, soll.b);
            EXPECT_EQ(ist.c, soll.c);
            EXPECT_EQ(ist.t, soll.t);
        }
    }
}

TEST(Anweisungen, EverySkippedFieldIsReportedWithLineNameFoundAndKept) {
    Satz eins;
    Satz zwei;
    const auto felder = lies("1,zwei,\"x\",3\r\n4,5,\"y\"\r\n", eins, zwei);
    ASSERT_EQ(felder.size(), 4U);
    EXPECT_EQ(beschreibung(felder[0]), "Zeile 1, b: nicht lesbar (zwei), beibehalten: -2");
    EXPECT_EQ(beschreibung(felder[1]),
              "Zeile 1, t: steht hinter einem nicht lesbaren Feld, beibehalten: \"alt\"");
    EXPECT_EQ(beschreibung(felder[2]), "Zeile 1, c: steht hinter einem nicht lesbaren Feld, beibehalten: -3");
    EXPECT_EQ(beschreibung(felder[3]), "Zeile 2, c: fehlt, beibehalten: -3");
    // 59 letters and the first byte of an umlaut would fit.
    const Uebersprungen lang{1, "t", Grund::unlesbar, std::string(59, 'x') + "ää", "0"};
    EXPECT_EQ(beschreibung(lang),
              "Zeile 1, t: nicht lesbar (" + std::string(59, 'x') + "...), beibehalten: 0");
}

TEST(Anweisungen, NumbersAreWrittenAtFifteenOrSevenDigits) {
    struct Schreibfall {
        double wert;
        std::string text;
    };
    const Schreibfall doppelt[] = {
        {0.35, "0.35"},
        {625, "625"},
        {-1, "-1"},
        {-0.0, "0"},
        {1.0 / 3, "0.333333333333333"},
        {1e-5, "1E-05"},
        {1e-4, "0.0001"},
        {1e15, "1E+15"},
        {123456789012345.0, "123456789012345"},
        {0.1 + 0.2, "0.3"},
        {1e-300, "1E-300"},
    };
    for (const Schreibfall& f : doppelt) EXPECT_EQ(schreibweise(f.wert), f.text);
    const Schreibfall einfach[] = {
        {0.35, "0.35"}, {100000, "100000"}, {1e7, "1E+07"}, {1.0 / 3, "0.3333333"}};
    for (const Schreibfall& f : einfach) EXPECT_EQ(schreibweise(static_cast<float>(f.wert)), f.text);
}

TEST(Anweisungen, AFreelyTypedFieldIsWrittenAsItWasRead) {
    for (const std::string zeile : {"", "\"\"", "\"12\"", "12.5", "#TRUE#", "#FALSE#", "\"a,b\""}) {
        Freiwert wert = 99.0;
        Anweisungsleser leser(zeile);
        uebernimm(Rohfeld{}, wert);
        leser.lies(ziel("x", wert));
        EXPECT_EQ(schreibweise(wert), zeile);
    }
}

}  // namespace
}  // namespace rippenscheibe
