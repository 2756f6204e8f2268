#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "files/EigeneMaterialienDatei.h"
#include "files/Einstellungsdatei.h"
#include "files/Materialverwaltung.h"
#include "files/Projektliste.h"
#include "files/Textvorlagen.h"
#include "files/Zeichensatz.h"
#include "model/Bemerkungen.h"
#include "support/Ordnerprobe.h"

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;

using Programmdateien = Ordnerprobe;

const std::string einstellungsbeispiel =
    "3,\"Büro Müller\",\"Statik\"\r\n"
    "\"D:\\Bau\\\",\"Times\",\"Courier\",#TRUE#,#FALSE#\r\n"
    "12.5,\"alt\",#FALSE#,#TRUE#,#TRUE#,#FALSE#,#TRUE#,#FALSE#\r\n"
    "#FALSE#,#TRUE#,#FALSE#,#FALSE#,#TRUE#,4\r\n";
const std::string projektbeispiel = "\"Haus A\",2\r\n\"Haus A\"\r\n\"Haus B\"\r\n\"C:\\A\\\"\r\n\"\"\r\n";
const std::string vorlagenbeispiel =
    "2\r\n\"kurz\"\r\n\"eine Zeile\"\r\n\"lang\"\r\n\"Zeile 1\r\nZeile 2\"\r\n";

std::string materialbeispiel() {
    std::string text = "1\r\n\"Holzfaser, 15\"\r\n";
    for (int k = 2; k <= 22; ++k) text += std::to_string(k) + ".5\r\n";
    for (int k = 23; k <= 30; ++k) text += "\r\n";
    return text;
}

std::string einstellungenZurueck(const std::string& text) {
    Einstellungen e;
    liesEinstellungstext(text, e);
    return einstellungstext(e);
}
std::string projekteZurueck(const std::string& text) { return projektlistentext(projektlisteAus(text)); }
std::string vorlagenZurueck(const std::string& text) { return textvorlagentext(textvorlagenAus(text)); }
std::string materialZurueck(const std::string& text) {
    return eigeneMaterialienText(eigeneMaterialienAus(text));
}

using Hinundher = std::function<std::string(const std::string&)>;
std::vector<std::pair<std::string, Hinundher>> alleDateien() {
    return {{einstellungsbeispiel, einstellungenZurueck},
            {projektbeispiel, projekteZurueck},
            {vorlagenbeispiel, vorlagenZurueck},
            {materialbeispiel(), materialZurueck}};
}

TEST_F(Programmdateien, ReadAndWrittenAgainEachIsTheSame) {
    for (const auto& [text, zurueck] : alleDateien()) EXPECT_EQ(zurueck(text), text);
}

TEST_F(Programmdateien, TornAtEveryByteOrWithAnyBitFlippedEachStillLoads) {
    for (const auto& [text, zurueck] : alleDateien()) {
        const std::string heil = kodiert(text);
        std::vector<std::string> beschaedigt;
        for (std::size_t n = 0; n < heil.size(); ++n) beschaedigt.push_back(heil.substr(0, n));
        for (std::size_t i = 0; i < heil.size() * 8; ++i) {
            beschaedigt.push_back(heil);
            char& byte = beschaedigt.back()[i / 8];
            byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << (i % 8)));
        }
        for (const std::string& bytes : beschaedigt) {
            const std::string einmal = zurueck(dekodiert(bytes));
            const std::string zweimal = zurueck(einmal);
            // Only a quote that came into a text, which the format does not escape, may be lost.
            const auto quotes = [](const std::string& t) { return std::count(t.begin(), t.end(), '"'); };
            EXPECT_TRUE(zweimal == einmal || quotes(zweimal) < quotes(einmal)) << bytes;
        }
    }
}

TEST_F(Programmdateien, SettingsOfAnOlderShorterFileHaveNoSuffixAndNoBlatt) {
    Einstellungen e;
    e.BlattStattSeite = true;
    e.Suffix = 7;
    liesEinstellungstext("1,\"a\",\"b\"\r\n\"\",\"c\"\r\n", e);
    EXPECT_FALSE(e.BlattStattSeite);
    EXPECT_EQ(e.Suffix, 0);
    EXPECT_EQ(e.Kopf1Schrift, "c");
    EXPECT_EQ(e.Kopf2Schrift, "Arial");
    EXPECT_TRUE(e.SystembildStandard);
}

TEST_F(Programmdateien, EachSwitchOfTheSettingsHasItsPlaceInTheFile) {
    using Schalter = bool Einstellungen::*;
    using E = Einstellungen;
    for (const auto& [schalter, zeile, feld] :
         std::vector<std::tuple<Schalter, int, int>>{{&E::Kopf1Unterstrichen, 1, 3},
                                                     {&E::Kopf2Unterstrichen, 1, 4},
                                                     {&E::Kopf1Fett, 2, 2},
                                                     {&E::Kopf2Fett, 2, 3},
                                                     {&E::Kopf1Kursiv, 2, 4},
                                                     {&E::Kopf2Kursiv, 2, 5},
                                                     {&E::LogoDrucken, 2, 6},
                                                     {&E::FusszeileDrucken, 2, 7},
                                                     {&E::SeitenzahlStandard, 3, 0},
                                                     {&E::SystembildStandard, 3, 1},
                                                     {&E::SchnittkraftStandard, 3, 2},
                                                     {&E::ProgrammnameDrucken, 3, 3},
                                                     {&E::BlattStattSeite, 3, 4}}) {
        std::string text = einstellungsbeispiel;
        std::size_t stelle = 0;
        for (int i = 0; i < zeile; ++i) stelle = text.find("\r\n", stelle) + 2;
        for (int i = 0; i < feld; ++i) stelle = text.find(',', stelle) + 1;
        Einstellungen e;
        for (const bool an : {true, false}) {
            text.replace(stelle, text.find('#', stelle + 1) + 1 - stelle, an ? "#TRUE#" : "#FALSE#");
            liesEinstellungstext(text, e);
            EXPECT_EQ(e.*schalter, an) << zeile << "." << feld;
        }
    }
}

TEST_F(Programmdateien, AProjectListHasAtLeastOneEntry) {
    for (const std::string text : {"", "\"P\",0\r\n", "\"P\",-4\r\n", "\"P\",viele\r\n"}) {
        EXPECT_EQ(projektlisteAus(text).eintraege, std::vector<Projekteintrag>(1)) << text;
    }
    // A name never assigned is an empty line, a text never assigned is not.
    EXPECT_EQ(projektlistentext({"", {}}), "\"\",0\r\n\r\n\"\"\r\n");
    // The file ends behind the names.
    EXPECT_EQ(projektlisteAus("\"P\",2\r\n\"A\"\r\n\"B\"\r\n").eintraege,
              (std::vector<Projekteintrag>{{"A", ""}, {"B", ""}}));
}

TEST_F(Programmdateien, TwoProgramsThatEndLoseNoProject) {
    const fs::path datei = ordner / projektlistendatei;
    const Projektliste gelesen{"A", {{"A", "a"}, {"B", "b"}}};
    Projektliste erste = gelesen;
    erste.eintraege.push_back({"C", "c"});
    Projektliste zweite{"B", {{"B", "b"}, {"D", "d"}}};  // A was taken out here
    ASSERT_FALSE(schreibeProjektliste(datei, gelesen));
    ASSERT_FALSE(sichereProjektliste(datei, erste, gelesen));
    ASSERT_FALSE(sichereProjektliste(datei, zweite, gelesen));
    EXPECT_EQ(liesProjektliste(datei).wert.eintraege,
              (std::vector<Projekteintrag>{{"B", "b"}, {"D", "d"}, {"C", "c"}}));
}

TEST_F(Programmdateien, ProgramsThatEndAtTheSameTimeLoseNoProject) {
    constexpr int programme = 6;
    constexpr int projekte = 10;
    const fs::path datei = ordner / projektlistendatei;
    std::vector<pid_t> kinder;
    for (int p = 0; p < programme; ++p) {
        const pid_t kind = ::fork();
        ASSERT_GE(kind, 0);
        if (kind == 0) {
            bool gut = true;
            for (int i = 0; i < projekte; ++i) {
                const Projekteintrag neu{std::to_string(p), std::to_string(i)};
                gut = !sichereProjektliste(datei, {"P", {neu}}, {}) && gut;
            }
            ::_exit(gut ? 0 : 1);
        }
        kinder.push_back(kind);
    }
    for (const pid_t kind : kinder) {
        int status = -1;
        ::waitpid(kind, &status, 0);
        EXPECT_EQ(status, 0);
    }
    EXPECT_EQ(liesProjektliste(datei).wert.eintraege.size(), std::size_t{programme * projekte});
}

TEST_F(Programmdateien, AHandedOverPositionIsTakenOnce) {
    const fs::path datei = ordner / uebergabedatei;
    EXPECT_EQ(holeUebergabe(datei), "");
    EXPECT_FALSE(fs::exists(datei));
    ASSERT_FALSE(schreibeUebergabe(datei, "C:\\Bau, Nord\\wänd.rsw"));
    EXPECT_EQ(holeUebergabe(datei), "C:\\Bau, Nord\\wänd.rsw");
    EXPECT_EQ(holeUebergabe(datei), "");
    EXPECT_EQ(liesDatei(datei).bytes, "\"\"\r\n");
}

TEST_F(Programmdateien, TheLastPageIsOneNumber) {
    const fs::path datei = ordner / seitendatei;
    EXPECT_EQ(liesLetzteSeite(datei), 0);
    ASSERT_FALSE(schreibeLetzteSeite(datei, 12));
    EXPECT_EQ(liesDatei(datei).bytes, "12\r\n");
    EXPECT_EQ(liesLetzteSeite(datei), 12);
}

TEST_F(Programmdateien, OwnMaterialsThatAreMissingGiveNoRowsOrEmptyCells) {
    for (const std::string text : {"", "0\r\n", "-1\r\n", "x\r\n"}) {
        EXPECT_TRUE(eigeneMaterialienAus(text).zeilen.empty()) << text;
    }
    const EigeneMaterialien kurz = eigeneMaterialienAus("2\r\n\"A\"\r\n5.5\r\n\r\n\"7\"\r\n");
    ASSERT_EQ(kurz.zeilen.size(), 2U);
    EXPECT_EQ(kurz(2, 1), 5.5);
    for (int spalte : {3, 4, 5}) {  // empty, a text, missing
        EXPECT_EQ(kurz(spalte, 1), 0);
        EXPECT_TRUE(kurz.zeilen[0].zellen[static_cast<std::size_t>(spalte)].leer);
    }
    EXPECT_EQ(*kurz.name(2), "");
    std::string leereZeile = "1\r\n";
    for (int k = 1; k <= 30; ++k) leereZeile += "\r\n";
    EXPECT_EQ(eigeneMaterialienText({}), leereZeile);
}

TEST_F(Programmdateien, TheDeliveredMaterialsServeWhereTheUserHasNone) {
    const auto geladen = [&] { return ladeEigeneMaterialien(ordner); };
    ASSERT_GE(geladen().wert.zeilen.size(), 3U);
    EXPECT_TRUE(fs::is_empty(ordner)) << "only read";
    ASSERT_FALSE(schreibeEigeneMaterialien(ordner / materialdatei, {}));
    EXPECT_EQ(geladen().wert.zeilen.size(), 1U);
    fs::remove(ordner / materialdatei);
    fs::create_directory(ordner / materialdatei);  // no table can be read there
    EXPECT_TRUE(geladen().stoerung());
    EXPECT_TRUE(geladen().wert.zeilen.empty());
}

TEST_F(Programmdateien, ATemplateReplacesItsNameAndOthersStay) {
    const fs::path datei = ordner / vorlagenVorbemerkungen;
    Textvorlagen vorlagen;
    ASSERT_FALSE(sichereTextvorlage(datei, {"A", "eins"}, vorlagen));
    ASSERT_FALSE(sichereTextvorlage(datei, {"B", "zwei\r\ndrei"}, vorlagen));
    ASSERT_FALSE(sichereTextvorlage(datei, {"A", "neu"}, vorlagen));
    EXPECT_EQ(vorlagen, (Textvorlagen{{"A", "neu"}, {"B", "zwei\r\ndrei"}}));
    EXPECT_EQ(liesTextvorlagen(datei).wert, vorlagen);
}

TEST_F(Programmdateien, AFileThatCannotBeReadIsToldAndLeftAlone) {
    Textvorlagen vorlagen;
    EigeneMaterialien tabelle{{{"neu", {}}}};
    const std::pair<std::string, std::function<std::optional<Dateifehler>(const fs::path&)>> schreiber[] = {
        {"templates",
         [&](const fs::path& d) {
             return sichereTextvorlage(d, {"A", "eins"}, vorlagen);
         }},
        {"materials", [&](const fs::path& d) { return sichereEigeneMaterialien(d, tabelle, {}); }},
        {"projects",
         [](const fs::path& d) {
             return sichereProjektliste(d, {"P", {{"n", "p"}}}, {});
         }},
    };
    const fs::path datei = ordner / "schleife";
    fs::create_symlink("schleife", datei);  // neither a file nor none
    for (const auto& [name, sichere] : schreiber) {
        const auto fehler = sichere(datei);
        ASSERT_TRUE(fehler) << name;
        EXPECT_NE(fehler->text.find("kann nicht gelesen werden"), std::string::npos) << fehler->text;
        EXPECT_FALSE(sichere(ordner / name)) << "a missing file is made";
    }
    Einstellungen e;
    e.Suffix = 7;
    EXPECT_TRUE(liesEinstellungen(datei, e).stoerung());
    EXPECT_EQ(e.Suffix, 7);
    EXPECT_EQ(liesTextvorlagen(ordner / "fehlt").lage, Dateilage::fehlt);
    EXPECT_FALSE(liesTextvorlagen(ordner / "fehlt").stoerung());
    EXPECT_EQ(dateienIn(ordner), 4U);
}

TEST_F(Programmdateien, ATemplateWithQuotesSparesTheOnesBehindIt) {
    const fs::path datei = ordner / vorlagenZusatzbemerkungen;
    Textvorlagen vorlagen;
    ASSERT_FALSE(sichereTextvorlage(datei, {"\"A\"", "Achse \"1\", oben"}, vorlagen));
    ASSERT_FALSE(sichereTextvorlage(datei, {"B", "zwei"}, vorlagen));
    EXPECT_EQ(liesTextvorlagen(datei).wert, (Textvorlagen{{"'A'", "Achse '1', oben"}, {"B", "zwei"}}));
    ASSERT_FALSE(sichereTextvorlage(datei, {"\"A\"", "neu"}, vorlagen));  // the same name again
    EXPECT_EQ(liesTextvorlagen(datei).wert, (Textvorlagen{{"'A'", "neu"}, {"B", "zwei"}}));
}

TEST(Bemerkungen, ATextIsSplitAtEachCrLf) {
    struct Fall {
        std::string name, text;
        Texte zeilen;
    };
    const Fall faelle[] = {
        {"no line end", "a", {"a"}},
        {"the last line may have one", "a\r\nb\r\n", {"a", "b"}},
        {"empty line in between", "a\r\n\r\nb", {"a", "", "b"}},
        {"empty text", "", {}},
        {"empty first line", "\r\na", {}},
        {"LF alone splits nothing", "a\nb", {"a\nb"}},
    };
    for (const Fall& f : faelle) EXPECT_EQ(zeilenAus(f.text), f.zeilen) << f.name;
    EXPECT_TRUE(passtInVorbemerkungen("a\r\nb\r\nc"));
    EXPECT_FALSE(passtInVorbemerkungen("a\r\nb\r\nc\r\nd"));
}

TEST(Bemerkungen, TheyGoIntoTheRecordAndBack) {
    Wand w;
    setzeVorbemerkungen(w, "a\r\n\r\nc");
    EXPECT_EQ(w.Vorbemerkungen, (Vorbemerkungszeilen{"a", "", "c"}));
    setzeVorbemerkungen(w, "b");
    EXPECT_EQ(w.Vorbemerkungen, (Vorbemerkungszeilen{"b", "", ""}));
    EXPECT_EQ(vorbemerkungstext(w), "b");

    setzeZusatzbemerkungen(w, "a\r\nb");
    EXPECT_EQ(w.AnzahlZusatzbemerkungen, 2);
    EXPECT_EQ(zusatzbemerkungstext(w), "a\r\nb");
    setzeZusatzbemerkungen(w, "a\r\n\r\n");  // an empty closing line survives the way there and back
    EXPECT_EQ(w.AnzahlZusatzbemerkungen, 2);
    EXPECT_EQ(zusatzbemerkungstext(w), "a\r\n\r\n");
    setzeZusatzbemerkungen(w, "\r\nb");
    EXPECT_EQ(w.AnzahlZusatzbemerkungen, 0);
    EXPECT_EQ(w.Zusatzbemerkungen, Texte(200));
    EXPECT_EQ(zusatzbemerkungstext(w), "");
}

}  // namespace
}  // namespace rippenscheibe
