#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;

// A default position, statement by statement.
const std::vector<std::string> vorgabezeilen{
    R"("","1","")",
    R"("")",
    R"("")",
    R"("")",
    R"("")",
    "0",
    "5,2.5,625,80,80,60,160,160",
    "#FALSE#,#FALSE#",
    "2,1,1,#FALSE#",
    "#FALSE#,#FALSE#,15,15,1250,1250",
    "1,1,1",
    "60,60,2.7,2.7,50,50,600,600,1,1",
    "1,1,6.1,6.1,25,25",
    "#FALSE#,#FALSE#,#FALSE#,#FALSE#,4,4",
    R"(1,#FALSE#,16,12,1,100000,"",1)",
    "3,0,0,0,0,0,1,#FALSE#,0.35,4",
    "2,#FALSE#,#FALSE#,30,1,1,2",
    "#FALSE#,#FALSE#,1,1,1",
};

std::string verbundeneZeilen(const std::vector<std::string>& zeilen) {
    std::string text;
    for (const std::string& zeile : zeilen) text += zeile + "\r\n";
    return text;
}

std::string mitZeile(std::size_t nummer, const std::string& zeile) {
    std::vector<std::string> zeilen = vorgabezeilen;
    zeilen[nummer - 1] = zeile;
    return verbundeneZeilen(zeilen);
}

// Every input differs from its default, so that a swapped or forgotten field shows.
std::string lauterVerschiedeneWerte() {
    return "\"Haus Müller, Bau 2\",\"W "
           "12\",\"12.03.2011\"\r\n\"erste\"\r\n\"\"\r\n\"dritte\"\r\n\"kurz\"\r\n2\r\n"
           "\"oben, links\"\r\n\"unten\"\r\n"
           "5.1,2.6,626,81,82,61,161,162\r\n#TRUE#,#FALSE#\r\n3,4,5,#TRUE#\r\n#FALSE#,#TRUE#,16.5,17.5,1251,"
           "1252\r\n"
           "2,1,2\r\n61,62,2.8,2.9,51,52,601,602,2,3\r\n4,5,6.2,6.3,26,27\r\n#TRUE#,#FALSE#,#FALSE#,#TRUE#,6,"
           "7\r\n"
           "8,#TRUE#,17,12.5,2,99.5,\"Anker \",2\r\n3.1,0.1,0.2,-0.3,0.4,0.5,3,#TRUE#,0.36,5\r\n"
           "1,#TRUE#,#FALSE#,45.5,2,2,1\r\n#FALSE#,#TRUE#,2,3,4\r\n";
}

TEST(Positionsdatei, ADefaultPositionIsThisText) {
    EXPECT_EQ(positionstext(Wand{}), verbundeneZeilen(vorgabezeilen));
}

TEST(Positionsdatei, AWrittenPositionReadsBackAndIsWrittenTheSame) {
    Wand w;
    EXPECT_TRUE(liesPositionstext(lauterVerschiedeneWerte(), w).empty());
    EXPECT_EQ(positionstext(w), lauterVerschiedeneWerte());
    EXPECT_EQ(w.Zusatzbemerkungen, (Texte{"oben, links", "unten"}));
    EXPECT_EQ(w.hInnenrippe, 162);
    EXPECT_EQ(w.Material[Seite::zwei], 5);
    EXPECT_EQ(w.VMTyp[Seite::zwei], 7);
    EXPECT_EQ(w.gkWand, 0.36F);
    EXPECT_TRUE(w.Zweireihig[Seite::zwei]);
}

std::vector<std::string> geteilt(const std::string& zeile) {
    std::vector<std::string> felder;
    std::istringstream strom(zeile);
    for (std::string feld; std::getline(strom, feld, ',');) felder.push_back(feld);
    return felder;
}

TEST(Positionsdatei, EachFieldStandsAtItsPlace) {
    const std::vector<std::string> namen{
        "Wandlaenge,Wandhoehe,Rippenabstand,bRandrippe,bInnenrippe,bKopfFussrippe,hRandrippe,hInnenrippe",
        "FussrippeLinksDurchgehend,FussrippeRechtsDurchgehend",
        "Holzart,Material1,Material2,Einseitig",
        "Gestossen1,Gestossen2,Plattendicke1,Plattendicke2,Plattenbreite1,Plattenbreite2",
        "NKLRippen,NKLBeplankung1,NKLBeplankung2",
        "av1,av2,d1,d2,ln1,ln2,fuk1,fuk2,VMArt1,VMArt2",
        "VMKlasse1,VMKlasse2,dk1,dk2,lg1,lg2",
        "Vorgebohrt1,Vorgebohrt2,Versenkt1,Versenkt2,VMTyp1,VMTyp2",
        "Ankertyp,NachweisVerankerung,AnzahlAnkerNaegel,RdAnker,Kammnagel,kserAnker,FreierAnkerName,"
        "Teilausnagelung",
        "Fvk,gk,qk,wk,Fcgk,Fcqk,Lastfall,WindQuer,gkWand,KLED",
        "GenauesVerfahren,Erhoehung20,DeltaRd,beta,KlammerWinkelOption,VertikallastVerteilung,"
        "LagesicherungVerfahren",
        "Zweireihig1,Zweireihig2,AnzahlAnker,EigenesMaterial1,EigenesMaterial2",
    };
    Wand w;
    liesPositionstext(lauterVerschiedeneWerte(), w);
    std::map<std::string, std::string> gelesen;
    jedeEingabe(w, [&](const Feldangabe& angabe, const auto& feld) {
        if constexpr (requires { schreibweise(feld); })
            gelesen[std::string(angabe.name)] = schreibweise(feld);
    });
    std::istringstream strom(lauterVerschiedeneWerte());
    std::string zeile;
    for (int kopf = 0; kopf < 8; ++kopf) std::getline(strom, zeile);
    for (const std::string& namenszeile : namen) {
        std::getline(strom, zeile);
        zeile.pop_back();  // CR
        const std::vector<std::string> felder = geteilt(namenszeile);
        const std::vector<std::string> werte = geteilt(zeile);
        ASSERT_EQ(felder.size(), werte.size());
        for (std::size_t i = 0; i < felder.size(); ++i) EXPECT_EQ(gelesen[felder[i]], werte[i]) << felder[i];
    }
}

TEST(Positionsdatei, AFieldThatDoesNotParseLeavesItAndTheRestOfItsLine) {
    Wand w;
    const auto felder = liesPositionstext(mitZeile(7, "6,2.7,zwei,90,91,92,93,94"), w);
    EXPECT_EQ(w.Wandhoehe, 2.7);
    EXPECT_EQ(w.Rippenabstand, 625);
    EXPECT_EQ(w.hInnenrippe, 160);
    EXPECT_EQ(w.KLED, 4);
    ASSERT_EQ(felder.size(), 6U);
    EXPECT_EQ(beschreibung(felder[0]), "Zeile 7, Rippenabstand: nicht lesbar (zwei), beibehalten: 625");
    EXPECT_EQ(felder[5].feld, "hInnenrippe");
}

TEST(Positionsdatei, AnOlderFileWithoutItsLastStatementKeepsTheseFields) {
    Wand w;
    w.AnzahlAnker = 0;
    w.EigenesMaterial[Seite::eins] = 0;
    w.Zweireihig[Seite::eins] = true;
    std::vector<std::string> zeilen = vorgabezeilen;
    zeilen.pop_back();
    EXPECT_EQ(liesPositionstext(verbundeneZeilen(zeilen), w).size(), 5U);
    EXPECT_TRUE(w.Zweireihig[Seite::eins]);
    EXPECT_EQ(w.AnzahlAnker, 1);
    EXPECT_EQ(w.EigenesMaterial[Seite::eins], 1);
}

TEST(Positionsdatei, ZeroIsRepairedForAnchorsAndOwnMaterialsOnly) {
    Wand w;
    liesPositionstext(mitZeile(18, "#FALSE#,#FALSE#,0,0,0"), w);
    EXPECT_EQ(w.AnzahlAnker, 1);
    EXPECT_EQ(w.EigenesMaterial[Seite::eins], 1);
    EXPECT_EQ(w.EigenesMaterial[Seite::zwei], 1);
    liesPositionstext(mitZeile(9, "2,0,0,#FALSE#"), w);
    EXPECT_EQ(w.Material[Seite::eins], 0);
}

TEST(Positionsdatei, TheCountDecidesHowManyClosingRemarksAreRead) {
    Wand w;
    liesPositionstext(lauterVerschiedeneWerte(), w);
    // The count does not parse: the old one, 2, holds, and two lines are read as remarks.
    std::vector<std::string> zeilen = vorgabezeilen;
    zeilen[5] = "zwei";
    zeilen.insert(zeilen.begin() + 6, {"\"neu\"", "\"auch neu\""});
    liesPositionstext(verbundeneZeilen(zeilen), w);
    EXPECT_EQ(w.Zusatzbemerkungen, (Texte{"neu", "auch neu"}));
    EXPECT_EQ(w.Wandlaenge, 5.0);
    EXPECT_EQ(w.Zweireihig[Seite::zwei], false);

    liesPositionstext(verbundeneZeilen(vorgabezeilen), w);
    EXPECT_EQ(w.AnzahlZusatzbemerkungen, 0);
    EXPECT_EQ(w.Zusatzbemerkungen, Texte(200));
}

TEST(Positionsdatei, AMissingFileEmptiesTheRemarksAndLeavesTheRest) {
    Wand w;
    liesPositionstext(lauterVerschiedeneWerte(), w);
    EXPECT_TRUE(liesPosition("gibt-es-nicht/wand.rsw", w).fehler);
    EXPECT_EQ(w.Vorbemerkungen, Vorbemerkungszeilen{});
    EXPECT_EQ(w.Zusatzbemerkungen, Texte(2));
    EXPECT_EQ(w.Projekt, "Haus Müller, Bau 2");
    EXPECT_EQ(w.Wandlaenge, 5.1);
}

TEST(Positionsdatei, FilesAreWindows1252UnlessACharacterNeedsMore) {
    const fs::path datei =
        fs::temp_directory_path() / ("rippenscheibe-" + std::to_string(::getpid()) + ".rsw");
    Wand w;
    liesPositionstext(lauterVerschiedeneWerte(), w);
    ASSERT_FALSE(schreibePosition(datei, w));
    EXPECT_EQ(liesDatei(datei).bytes.substr(0, 12), "\"Haus M\xFCller");
    w.Position = "W ≥ 12";
    ASSERT_FALSE(schreibePosition(datei, w));
    Wand gelesen;
    EXPECT_TRUE(liesPosition(datei, gelesen).wert.empty());
    EXPECT_EQ(positionstext(gelesen), positionstext(w));
    fs::remove(datei);
}

TEST(Positionsdatei, TheEndingIsExactlyRsw) {
    EXPECT_TRUE(istPositionsdatei("wand.rsw"));
    for (const auto* name : {"wand.RSW", "wand.rs", "", "wand.rsw "})
        EXPECT_FALSE(istPositionsdatei(name)) << name;
    EXPECT_EQ(mitEndung("Wand.RSW"), "Wand.RSW.rsw");
    EXPECT_EQ(mitEndung("Wand.rsw"), "Wand.rsw");
}

bool hatAnfuehrungszeichen(const std::string& text) { return text.find('"') != std::string::npos; }

// Loads whatever it is and writes a position that reads back as itself. Only a double quote inside a text,
// which the format does not escape, may not come back.
void pruefeBeschaedigt(const std::string& bytes, const std::string& was) {
    Wand w;
    liesPositionstext(dekodiert(bytes), w);
    const std::string geschrieben = positionstext(w);
    bool unvertraeglich = false;
    jedeEingabe(w, [&](const Feldangabe&, const auto& feld) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(feld)>, std::string>) {
            unvertraeglich = unvertraeglich || hatAnfuehrungszeichen(feld);
        }
    });
    for (const std::string& zeile : w.Vorbemerkungen) unvertraeglich |= hatAnfuehrungszeichen(zeile);
    for (const std::string& zeile : w.Zusatzbemerkungen) unvertraeglich |= hatAnfuehrungszeichen(zeile);
    if (unvertraeglich) return;
    Wand zweite;
    liesPositionstext(dekodiert(kodiert(geschrieben)), zweite);
    ASSERT_EQ(positionstext(zweite), geschrieben) << was;
}

TEST(Positionsdatei, TornAtEveryByteOrWithAnyBitFlippedItStillLoads) {
    const std::string heil = kodiert(lauterVerschiedeneWerte());
    for (std::size_t n = 0; n <= heil.size(); ++n)
        pruefeBeschaedigt(heil.substr(0, n), "torn at " + std::to_string(n));
    for (std::size_t i = 0; i < heil.size(); ++i) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            std::string bytes = heil;
            bytes[i] = static_cast<char>(static_cast<unsigned char>(bytes[i]) ^ (1U << bit));
            pruefeBeschaedigt(bytes, "byte " + std::to_string(i) + " bit " + std::to_string(bit));
        }
    }
}

}  // namespace
}  // namespace rippenscheibe
