#include <gtest/gtest.h>

#include "study/Raster.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

Achse achse(std::string_view text) {
    auto gelesen = achseAus(text, Grenzen::beachten);
    EXPECT_TRUE(std::holds_alternative<Achse>(gelesen)) << std::get<std::string>(gelesen);
    return std::get<Achse>(gelesen);
}

std::string fehler(std::string_view text) {
    const auto gelesen = achseAus(text, Grenzen::beachten);
    return std::holds_alternative<std::string>(gelesen) ? std::get<std::string>(gelesen) : "";
}

TEST(Raster, ValuesAreTheDoublesNearestToTheirDecimalTexts) {
    const Achse a = achse("Wandlaenge=0.3:100:0.1");
    ASSERT_EQ(a.werte.size(), 998U);
    EXPECT_EQ(a.werte[0].text, "0.3");
    // A running sum arrives at 0.7999999999999999.
    EXPECT_EQ(a.werte[5].text, "0.8");
    EXPECT_EQ(std::get<double>(a.werte[5].setzt[0].second), 0.8);
    EXPECT_EQ(a.werte.back().text, "100.0");
    EXPECT_EQ(dezimalreihe("-0.5", "0.5", "0.25"),
              (std::vector<std::string>{"-0.50", "-0.25", "0.00", "0.25", "0.50"}));
}

TEST(Raster, FieldsJoinedByACommaMoveTogetherAndTheFirstAxisIsSlowest) {
    const Raster raster({achse("av1,av2=50:60:5"), achse("Einseitig=false,true")});
    ASSERT_EQ(raster.anzahl(), 6U);
    Wand w;
    Feldzugriff felder(w);
    raster.setze(3, felder);
    EXPECT_EQ(w.av[S1].value(), 55);
    EXPECT_EQ(w.av[S2].value(), 55);
    EXPECT_TRUE(w.Einseitig);
}

TEST(Raster, NamesOfTheCataloguesSetWhatChoosingThemSets) {
    Wand w;
    Feldzugriff felder(w);
    const auto setze = [&](std::string_view text, std::size_t nummer) {
        Raster({achse(text)}).setze(nummer, felder);
    };
    setze("Material1=1,OSB/4", 1);
    EXPECT_EQ(w.Material[S1].value(), 2);
    setze("KLED=ständig,sehr kurz", 1);
    EXPECT_EQ(w.KLED.value(), 5);
    setze("Ankertyp=HTT5", 0);
    EXPECT_EQ(w.Ankertyp.value(), 6);
    setze("VMTyp1,VMTyp2=2,7x60,3,4x90", 1);
    EXPECT_EQ(w.d[S1].value(), 3.4);
    EXPECT_EQ(w.ln[S2].value(), 90);
    EXPECT_EQ(w.dk[S2].value(), 7.7);
    EXPECT_EQ(achse("VMTyp1=3,2,7x60").felder.size(), 4U);  // a number sets one of them
    setze("VMKatalog2=Klammern 1,53x50", 0);
    EXPECT_EQ(w.d[S2].value(), 1.53);
    EXPECT_EQ(w.ln[S2].value(), 50);
    EXPECT_EQ(w.VMArt[S2].value(), 1);  // the catalogue leaves the kind alone
}

TEST(Raster, WhatCannotBeReadIsToldByName) {
    EXPECT_EQ(fehler("av1"), "\"av1\": erwartet FELD=WERTE, etwa av1,av2=50:150:5");
    EXPECT_EQ(fehler("av3=50"), "unbekanntes Feld \"av3\"");
    for (const std::string bereich : {"50:20:5", "0:100000000000000:0.000000001", "0:1:0.0000001", "1:2"})
        EXPECT_EQ(fehler("av1=" + bereich),
                  "av1: \"" + bereich +
                      "\" ist kein Bereich VON:BIS:SCHRITT (Dezimalpunkt, höchstens 1000000 Werte)");
    EXPECT_EQ(fehler("av1,av1=50"), "av1 steht zweimal");
    EXPECT_EQ(doppeltesFeld(Raster({achse("VMTyp1=2,7x60"), achse("d1=3")})), "zwei Achsen setzen d1");
    EXPECT_EQ(fehler("av1=500"), "av1 = 500 liegt nicht zwischen 20 und 200");
    EXPECT_EQ(fehler("Material1=OSB/5"),
              "Material1 = \"OSB/5\" steht nicht in der Liste: OSB/3; OSB/4; Gipskartonplatte GKB; "
              "Gipskartonplatte "
              "GKBI; Gipskartonplatte GKF; Gipskartonplatte GKFI; Fermacell Gipsfaserplatte; Spanplatte P4; "
              "Spanplatte P5; Spanplatte P6; Spanplatte P7; Kronoply F****; freies Material");
    EXPECT_TRUE(
        fehler("VMTyp1=2,7x60,3x60").starts_with("VMTyp1 = \"3x60\" steht nicht in der Liste: 2,0x45; "));
    EXPECT_EQ(fehler("VMKatalog1=Nagel"), "\"Nagel\" steht nicht im Katalog der Verbindungsmittel");
}

TEST(Raster, ALoadThatTheDialogWouldClearIsNamed) {
    struct Fall {
        std::vector<std::string> achsen;
        int lastfall;
        std::string_view last;
    };
    for (const Fall& fall : {Fall{{"Fvk=1,2"}, 2, "Fvk"},
                             {{"Fvk=1,2"}, 3, ""},
                             {{"gk=1,2"}, 1, "gk"},
                             {{"gk=1,2", "Lastfall=2,3"}, 1, ""},
                             {{"Fvk=1,2", "Lastfall=2,3"}, 1, "Fvk"},
                             {{"wk=1"}, 1, "wk"},
                             {{"wk=1", "WindQuer=true"}, 1, ""},
                             {{"av1=50"}, 2, ""}}) {
        Wand w;
        w.Lastfall = fall.lastfall;
        std::vector<Achse> achsen;
        for (const std::string& text : fall.achsen) achsen.push_back(achse(text));
        const std::string satz = geloeschteLast(Raster(achsen), w).value_or("");
        EXPECT_EQ(satz.substr(0, satz.find(' ')), fall.last) << fall.achsen.front();
    }
}

}  // namespace
}  // namespace rippenscheibe
