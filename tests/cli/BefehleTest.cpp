#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <string>
#include <vector>

#include "cli/Befehle.h"
#include "files/Dateischreiber.h"
#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"
#include "support/Ordnerprobe.h"

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;

const fs::path beispiele = RIPPENSCHEIBE_BEISPIELE;

std::string beispiel(const std::string& name) { return (beispiele / (name + ".rsw")).string(); }

struct Ergebnis {
    int rueckgabe = 0;
    std::string ausgabe, meldungen;
};

// Runs the tool with the folder of the examples as the program's folder.
Ergebnis tool(const std::vector<std::string>& angaben) {
    const auto gelesen = liesKommandozeile(angaben);
    if (const auto* auskunft = std::get_if<Auskunft>(&gelesen)) {
        return {static_cast<int>(auskunft->rueckgabe), auskunft->text, {}};
    }
    Ergebnis ergebnis;
    const Ausgaben ausgaben{[&](std::string_view text) { ergebnis.ausgabe += text; },
                            [&](std::string_view text) { ergebnis.meldungen += text; }};
    ergebnis.rueckgabe = static_cast<int>(fuehreAus(std::get<Auftrag>(gelesen), beispiele, ausgaben));
    return ergebnis;
}

nlohmann::ordered_json json(const std::vector<std::string>& angaben) {
    const std::string ausgabe = tool(angaben).ausgabe;
    return nlohmann::ordered_json::parse(ausgabe.substr(ausgabe.find_last_of('\n', ausgabe.size() - 2) + 1));
}

using Befehle = Ordnerprobe;

TEST_F(Befehle, AWrongCallIsToldInGermanWithCode64) {
    struct Fall {
        std::vector<std::string> angaben;
        std::string text;
    };
    const Fall faelle[] = {
        {{}, "Es fehlt ein Befehl."},
        {{"quatsch"}, "Unbekannter Befehl: quatsch"},
        {{"rechen"}, "Unbekannter Befehl: rechen. Meinten Sie rechne?"},
        {{"pruef", "a.rsw"}, "Unbekannter Befehl: pruef. Meinten Sie pruefe?"},
        {{"a.rsw"}, "Unbekannter Befehl: a.rsw. Meinten Sie rechne a.rsw?"},
        {{"rechne"}, "Es fehlt eine Angabe: DATEI."},
        {{"rechne", "a.rsw", "--wild"}, "Unbekannte Angabe: --wild"},
        {{"rechne", "a.rsw", "--form"}, "Nach --form fehlt der Wert."},
        {{"rechne", "a.rsw", "--form", "breit"},
         "--form: „breit“ ist nicht zulässig; erlaubt: ansicht, lang, kurz"},
        {{"rechne", "a.rsw", "--form", "lang", "--form", "kurz"}, "--form darf nur einmal stehen."},
        {{"rechne", "a.rsw", "--laeufe", "0"},
         "--laeufe: „0“ ist nicht zulässig; erlaubt: eine ganze Zahl ab 1"},
        {{"rechne", "a.rsw", "--laeufe", "2x"},
         "--laeufe: „2x“ ist nicht zulässig; erlaubt: eine ganze Zahl ab 1"},
        {{"uebertrage", "a.rsw"}, "Die Option -o DATEI fehlt."},
        {{"uebertrage", "a.rsw", "b.rsw", "-o", "c.rsw"}, "DATEI darf nur einmal stehen."},
        {{"felder", "--ausgabe", "rtf"}, "--ausgabe: „rtf“ ist nicht zulässig; erlaubt: text, json"},
        {{"herleite", "a.rsw", "--ausgabe", "rtf", "--tief"},
         "--felder, --tief: nicht mit --ausgabe rtf, dem ganzen Rechenweg"},
    };
    for (const Fall& f : faelle) {
        const Ergebnis e = tool(f.angaben);
        EXPECT_EQ(e.rueckgabe, 64) << f.text;
        EXPECT_EQ(e.ausgabe, f.text + "\nHilfe: rippenscheibe-cli --help\n");
    }
}

TEST_F(Befehle, HelpIsTheSameWithEveryVersionOfTheLibrary) {
    EXPECT_EQ(tool({"uebertrage", "--help"}).ausgabe,
              "liest eine Position und schreibt sie wieder\n"
              "Aufruf: rippenscheibe-cli uebertrage [Optionen] DATEI\n"
              "\nAngaben:\n"
              "  DATEI                       Positionsdatei (.rsw)\n"
              "\nOptionen:\n"
              "  -h,--help                   diese Hilfe\n"
              "  -o DATEI (muss stehen)      dorthin schreiben\n\n");
    const Ergebnis ganz = tool({"--help"});
    EXPECT_EQ(ganz.rueckgabe, 0);
    for (const std::string zeile :
         {"\nAufruf: rippenscheibe-cli [Optionen] BEFEHL\n\nOptionen:\n  -h,--help   ",
          "\nBefehle:\n  rechne                      bemisst ", "\n\nRückgabewert: 0 "})
        EXPECT_NE(ganz.ausgabe.find(zeile), std::string::npos) << zeile;
    EXPECT_NE(tool({"rechne", "--help"}).ausgabe.find("[Optionen] DATEI...\n"), std::string::npos);
}

TEST_F(Befehle, AnOwnMaterialWithoutARowIsTold) {
    const std::string frei = beispiel("eigenes_material");
    const std::string leer = schreibe("leer.dat", "0\r\n");
    for (const std::string verb : {"rechne", "pruefe", "herleite", "stueckliste"}) {
        EXPECT_EQ(tool({verb, frei}).meldungen.find("eigene Material"), std::string::npos) << verb;
        EXPECT_NE(tool({verb, "--material", leer, frei})
                      .meldungen.find(frei + ": Beplankung 1: Das eigene Material 1 "),
                  std::string::npos)
            << verb;
    }
}

TEST_F(Befehle, OneJsonLineAFileHoldsEveryFieldInFixedOrder) {
    const auto j = json({"rechne", "--ausgabe", "json", beispiel("zweiseitig")});
    std::vector<std::string> schluessel;
    for (const auto& [name, wert] : j.items()) schluessel.push_back(name);
    EXPECT_EQ(schluessel,
              (std::vector<std::string>{"datei", "hinweise", "erfuellt", "eingaben", "ergebnisse"}));
    EXPECT_EQ(j["erfuellt"], true);
    EXPECT_EQ(j["eingaben"]["Projekt"], "Einfamilienhaus Am Hang");
    EXPECT_EQ(j["eingaben"]["Zusatzbemerkungen"].size(), 2U);
    EXPECT_EQ(j["eingaben"]["Vorbemerkungen"].size(), 3U);
    EXPECT_EQ(j["eingaben"]["FussrippeLinksDurchgehend"], false);
    // Single precision, widened: the float nearest to 0.45.
    EXPECT_EQ(j["eingaben"]["gkWand"], static_cast<double>(0.45F));
    EXPECT_EQ(j["eingaben"]["gkWand"].dump(), "0.44999998807907104");
    EXPECT_EQ(j["ergebnisse"]["Ftd"].size(), 11U);  // 6.25 m / 0.625 m + 1 ribs

    // The index names the same fields, each once.
    const auto felder = nlohmann::ordered_json::parse(tool({"felder", "--ausgabe", "json"}).ausgabe);
    std::set<std::string> namen;
    for (const auto& feld : felder) {
        const std::string name = feld["name"];
        EXPECT_TRUE(namen.insert(name).second) << name;
        EXPECT_TRUE(j[feld["art"] == "Eingabe" ? "eingaben" : "ergebnisse"].contains(name)) << name;
        EXPECT_FALSE(feld["bedeutung"].get<std::string>().empty()) << name;
    }
    EXPECT_EQ(felder.size(), j["eingaben"].size() + j["ergebnisse"].size());
}

TEST_F(Befehle, FindingsStopTheRunUnlessToldOtherwise) {
    const auto angehalten = json({"rechne", "--ausgabe", "json", beispiel("hinweise")});
    EXPECT_GE(angehalten["hinweise"].size(), 6U);
    EXPECT_TRUE(angehalten["erfuellt"].is_null());
    EXPECT_TRUE(angehalten["ergebnisse"].is_null());
    const auto gerechnet = json({"rechne", "--ausgabe", "json", "--trotz-hinweisen", beispiel("hinweise")});
    EXPECT_TRUE(gerechnet["erfuellt"].is_boolean());
    EXPECT_EQ(gerechnet["hinweise"], angehalten["hinweise"]);

    const Ergebnis text = tool({"rechne", beispiel("hinweise")});
    EXPECT_EQ(text.ausgabe, "");
    EXPECT_NE(
        text.meldungen.find("Es liegen konstruktive Fehler vor, bitte Hinweise beachten und Fehler beheben!"),
        std::string::npos);
    const Ergebnis pruefung = tool({"pruefe", beispiel("hinweise"), beispiel("einseitig")});
    EXPECT_EQ(pruefung.rueckgabe, 2);
    EXPECT_NE(pruefung.ausgabe.find("einseitig.rsw: keine Hinweise\n"), std::string::npos);
}

TEST_F(Befehle, TheHighestCodeOfAllFilesCounts) {
    const std::string gut = beispiel("einseitig");
    const std::string schwach = beispiel("nicht_erfuellt");
    const std::string fehlerhaft = beispiel("hinweise");
    EXPECT_EQ(tool({"rechne", gut}).rueckgabe, 0);
    EXPECT_EQ(tool({"rechne", schwach, gut}).rueckgabe, 1);
    EXPECT_EQ(tool({"rechne", schwach, fehlerhaft, gut}).rueckgabe, 2);
    const Ergebnis fehlend = tool({"rechne", datei("fehlt.rsw"), gut, fehlerhaft});
    EXPECT_EQ(fehlend.rueckgabe, 3);
    EXPECT_NE(fehlend.meldungen.find("fehlt.rsw\" kann nicht gelesen werden: nicht vorhanden."),
              std::string::npos);
    EXPECT_FALSE(fehlend.ausgabe.empty());
    EXPECT_EQ(tool({"rechne", "--material", datei("fehlt.dat"), gut}).rueckgabe, 3);
    EXPECT_EQ(tool({"rechne", gut, "-o", datei("kein/ordner.txt")}).rueckgabe, 3);
}

TEST_F(Befehle, WhatIsNoPositionIsRefusedWithWhatMayHaveBeenMeant) {
    const std::string gross = schreibe("wand.RSW", liesDatei(beispiel("einseitig")).bytes);
    const std::pair<std::string, std::string> faelle[] = {
        {gross, "Datei passt nicht zum Programm!"},
        {datei("wand"), "Es fehlt die Endung. Meinten Sie " + datei("wand.rsw") + "?"},
        {ordner.string(), "Das ist ein Ordner. Meinten Sie die Positionen darin: " + datei("*.rsw") + "?"},
    };
    for (const auto& [name, text] : faelle) {
        const Ergebnis e = tool({"rechne", name});
        EXPECT_EQ(e.rueckgabe, 3);
        EXPECT_EQ(e.meldungen, name + ": " + text + "\n");
    }
}

TEST_F(Befehle, SkippedFieldsAreReportedWithLineFieldAndWhatWasKept) {
    std::string bytes = liesDatei(beispiel("einseitig")).bytes;
    const std::size_t zahl = bytes.find("3.75,2.6,");
    ASSERT_NE(zahl, std::string::npos);
    bytes.replace(zahl, 4, "drei");
    const std::string name = schreibe("wand.rsw", bytes);
    const Ergebnis e = tool({"uebertrage", name, "-o", datei("neu.rsw")});
    EXPECT_EQ(e.rueckgabe, 0);
    EXPECT_TRUE(
        e.meldungen.starts_with(name + ": Zeile 7, Wandlaenge: nicht lesbar (drei), beibehalten: 5\n"));
}

TEST_F(Befehle, AnOutputIsNotWrittenWhereSomethingWouldBeLost) {
    const std::string wand = schreibe("wand.rsw", liesDatei(beispiel("einseitig")).bytes);
    const std::string bericht =
        schreibe("alt.rsw", "Ein Bericht\r\nmit zehn Zeilen\r\n\r\n\r\n\r\na\r\nb\r\n1\r\nc");
    fs::create_hard_link(wand, datei("zweiter.rsw"));
    struct Fall {
        std::string name;
        std::vector<std::string> angaben;
        int rueckgabe;
        std::string text;
    };
    const Fall faelle[] = {
        {"nothing could be read", {"rechne", datei("fehlt.rsw"), "-o", bericht}, 3, "nicht vorhanden"},
        {"an input", {"rechne", wand, "-o", wand}, 64, "gelesene Datei"},
        {"an input by another name", {"uebertrage", wand, "-o", datei("zweiter.rsw")}, 64, "gelesene Datei"},
        {"the materials", {"rechne", "--material", bericht, wand, "-o", bericht}, 64, "gelesene Datei"},
        {"an input of a search", {"hilft", wand, "-o", wand}, 64, "gelesene Datei"},
        {"the load cases", {"hilft", wand, "--lastfaelle", bericht, "-o", bericht}, 64, "gelesene Datei"},
        {"the prices", {"lege-aus", wand, "--preise", bericht, "-o", bericht}, 64, "gelesene Datei"},
        {"a position of the folder", {"projekt", ordner.string(), "-o", wand}, 64, "gelesene Datei"},
        {"a table without its columns",
         {"tafel", wand, "--groesste", "Fvk", "--zeilen", "av1=50:60:5", "-o", bericht},
         64,
         "Es fehlt --spalten"},
        {"a file of another kind", {"neu", "-o", bericht}, 3, "ist keine Position"},
        {"another ending", {"uebertrage", wand, "-o", datei("neu.txt")}, 3, "passt nicht zum Programm"},
        {"an empty input", {"rechne", schreibe("leer.rsw", ""), "-o", bericht}, 3, "enthält keine Position"},
        {"no statement whole", {"pruefe", schreibe("wirr.rsw", "wirr")}, 3, "enthält keine Position"},
        {"too large",
         {"rechne", schreibe("gross.rsw", std::string((16U << 20U) + 1, ','))},
         3,
         "größer als 16 MB"},
    };
    const std::string vorher = inhalt(bericht);
    for (const Fall& f : faelle) {
        const Ergebnis e = tool(f.angaben);
        EXPECT_EQ(e.rueckgabe, f.rueckgabe) << f.name;
        EXPECT_NE(e.meldungen.find(f.text), std::string::npos) << f.name << ": " << e.meldungen;
        EXPECT_EQ(inhalt(bericht), vorher) << f.name;
        EXPECT_EQ(inhalt(wand), inhalt(beispiel("einseitig"))) << f.name;
    }
    EXPECT_FALSE(fs::exists(datei("neu.txt")));
    EXPECT_EQ(tool({"rechne", datei("fehlt.rsw"), wand, "-o", bericht}).rueckgabe, 3);
    EXPECT_NE(inhalt(bericht), vorher);  // one of the two could be read
}

TEST_F(Befehle, RunsInOneStateAreThoseOfAFileOpenedAgain) {
    // The exact distribution of vertical loads compounds from pass to pass: a second run differs.
    const std::string wand = beispiel("decke_und_wind");
    const auto einer = json({"rechne", "--ausgabe", "json", wand})["ergebnisse"];
    const auto zwei = json({"rechne", "--ausgabe", "json", "--laeufe", "2", wand})["ergebnisse"];
    const auto wieder = json({"rechne", "--ausgabe", "json", "--sitzung", wand, wand})["ergebnisse"];
    const auto getrennt = json({"rechne", "--ausgabe", "json", wand, wand})["ergebnisse"];
    EXPECT_NE(einer, zwei);
    EXPECT_EQ(zwei, wieder);
    EXPECT_EQ(einer, getrennt);
}

TEST_F(Befehle, ExamplesAreTransferredByteForByte) {
    int anzahl = 0;
    for (const auto& eintrag : fs::recursive_directory_iterator(beispiele)) {
        if (eintrag.path().extension() != ".rsw") continue;
        ++anzahl;
        const Ergebnis e = tool({"uebertrage", eintrag.path().string(), "-o", datei("neu.rsw")});
        EXPECT_EQ(e.meldungen, "");
        EXPECT_EQ(liesDatei(datei("neu.rsw")).bytes, liesDatei(eintrag.path()).bytes) << eintrag.path();
    }
    EXPECT_GE(anzahl, 8);
}

TEST_F(Befehle, ReportsGoWhereTheyAreToldWithTheMarkTheyAreTold) {
    const std::string wand = beispiel("einseitig");
    const std::string komma = tool({"rechne", wand}).ausgabe;
    const std::string punkt = tool({"rechne", "--dezimal", "punkt", wand}).ausgabe;
    EXPECT_NE(komma.find("2,600 m"), std::string::npos);
    EXPECT_NE(punkt.find("2.600 m"), std::string::npos);
    EXPECT_EQ(tool({"rechne", wand, "-o", datei("bericht.txt")}).ausgabe, "");
    EXPECT_EQ(liesDatei(datei("bericht.txt")).bytes, komma);

    // Several files make one rich text.
    const std::string rtf = tool({"rechne", "--ausgabe", "rtf", wand, wand}).ausgabe;
    EXPECT_EQ(rtf.find("{\\rtf1"), 0U);
    EXPECT_EQ(rtf.find("{\\rtf1", 1), std::string::npos);
}

TEST_F(Befehle, ANewPositionHasAllDefaults) {
    EXPECT_EQ(tool({"neu"}).ausgabe, positionstext(Wand{}));
    EXPECT_EQ(tool({"neu", "-o", datei("neu.rsw")}).rueckgabe, 0);
    EXPECT_EQ(tool({"rechne", datei("neu.rsw")}).meldungen, "");
}

TEST_F(Befehle, VerbsOverManyWallsAnswerWithCodeAndSentence) {
    const std::string wand = beispiel("zuganker");
    const std::string preise = (beispiele / "Preise.csv").string();
    struct Fall {
        std::vector<std::string> angaben;
        int rueckgabe;
        std::string text;
    };
    const Fall faelle[] = {
        {{"variiere", wand}, 64, "Es fehlt --feld FELD=WERTE."},
        {{"variiere", wand, "--feld", "av3=50"}, 64, "unbekanntes Feld \"av3\""},
        {{"variiere", wand, "--feld", "gk=1,2"},
         64,
         "gk wirkt nicht bei Lastfall 1 (nur horizontal); --trotzdem lässt es zu"},
        {{"variiere", wand, "--feld", "gk=1,2", "--trotzdem"}, 0, ""},
        {{"variiere", wand, "--feld", "av1=60", "--felder", "quatsch"}, 64, "Unbekanntes Feld: quatsch"},
        {{"variiere", wand, "--feld", "av1=60", "--felder", "Rd1,,Rd1"}, 64, "Rd1 steht zweimal"},
        {{"lege-aus", wand, "--feld", "KLED=1,2", "--preise", preise},
         64,
         "KLED wird beim Auslegen nicht verändert"},
        {{"lege-aus", wand, "--feld", "av1=60", "--variiere", "platte"},
         64,
         "Entweder --feld oder --variiere."},
        {{"lege-aus", wand, "--hoechstens", "1.2"}, 64, "erlaubt: eine Zahl von 0.01 bis 1"},
        {{"lege-aus", wand, "--faeden", "100000"}, 64, "erlaubt: eine ganze Zahl von 1 bis 1024"},
        {{"variiere", wand, "--feld", "av1=60", "--feld", "av2,av1=70"}, 64, "zwei Achsen setzen av1"},
        {{"variiere", wand, "--feld", "VMTyp1=3,2,7x60", "--ausgabe", "csv"}, 0, "\n3;2.7;60;6.1;true"},
        {{"tafel", wand, "--groesste", "Fvk", "--zeilen", "gk=0", "--spalten", "av1=60", "--stufe", "0,5"},
         64,
         "--stufe: \"0,5\" ist keine Zahl mit Dezimalpunkt"},
        {{"lege-aus", wand, "--preise", datei("fehlt.csv")}, 3, "fehlt.csv\" kann nicht gelesen werden"},
        {{"lege-aus", wand, "--feld", "Plattendicke1=14", "--preise", preise}, 3, "kein Preis für Platte"},
        {{"lege-aus", wand, "--feld", "av1=150", "--preise", preise}, 1, "1 von 1 Kandidaten geprüft"},
        {{"lege-aus", wand, "--preise", preise, "--ausgabe", "json"}, 0, "Beispielpreise"},
        {{"tafel", wand, "--groesste", "Fvk", "--zeilen", "Wandlaenge=5"}, 64, "Es fehlt --spalten."},
        {{"projekt", beispiele.string()}, 2, "hinweise.rsw: Hinweis: "},
        {{"projekt", beispiele.string(), "--ausgabe", "json"}, 2, "\"uebersprungen\":[],\"fehler\":null}"},
        {{"projekt", beispiele.string()}, 2, "1 nicht erfüllt, 1 mit Hinweisen\n\nart "},
        {{"projekt", (beispiele / "haus").string()}, 1, "13 erfüllt, 1 nicht erfüllt"},
        {{"projekt", ordner.string()}, 3, "liegt keine Position."},
        {{"projekt", datei("fehlt")}, 3, "kann nicht gelesen werden."},
        {{"projekt"}, 64, "Es fehlt eine Angabe: ORDNER."},
        {{"tafel", wand, "--groesste", "Fvk", "--zeilen", "Wandlaenge=5", "--spalten", "av1=60",
          "--lastfaelle", schreibe("f.csv", "name;Fvk\nA;3\n")},
         64,
         "Fvk setzt auch der Lastfall \"A\" und hebt es wieder auf"},
        {{"rechne", wand, "--lastfaelle", schreibe("g.csv", "name;Fvk\nA;3\nB;7,5\n")}, 0, "maßgebend B: 5."},
    };
    for (const Fall& fall : faelle) {
        const Ergebnis e = tool(fall.angaben);
        EXPECT_EQ(e.rueckgabe, fall.rueckgabe) << fall.text << e.meldungen;
        EXPECT_NE((e.meldungen + e.ausgabe).find(fall.text), std::string::npos) << e.meldungen << e.ausgabe;
    }
    const auto entwurf = json({"lege-aus", wand, "--preise", preise, "--ausgabe", "json", "--zahl", "1"});
    EXPECT_EQ(entwurf["rang"], 1);
    EXPECT_TRUE(entwurf["felder"].contains("av1"));
    const auto zelle = json({"tafel", wand, "--groesste", "Fvk", "--zeilen", "Wandlaenge=2.5", "--spalten",
                             "av1,av2=100", "--bis", "20", "--ausgabe", "json"});
    EXPECT_EQ(zelle["zeile"]["Wandlaenge"], 2.5);
    EXPECT_EQ(zelle["groesste"], 8.2);
    EXPECT_EQ(zelle["massgebend"], "5.1 Scheibenschub parallel");
}

}  // namespace
}  // namespace rippenscheibe
