#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "run/Luecken.h"
#include "run/Urteil.h"
#include "study/Stapel.h"
#include "support/Strom.h"
#include "support/Walls.h"
#include "support/Zufallswand.h"

namespace rippenscheibe {
namespace {

using nlohmann::json;
std::string antworten(const Stapelauftrag& auftrag, const std::string& zeilen, int faeden = 1,
                      Stapelergebnis* ergebnis = nullptr) {
    Textstrom strom(zeilen);
    const Stapelergebnis e = stapel(auftrag, strom.strom(), {.faeden = faeden});
    if (ergebnis != nullptr) *ergebnis = e;
    return strom.ausgabe;
}

// All inputs of a wall as one line.
std::string zeile(const Eingaben& eingaben, int id) {
    Wand w;
    static_cast<Eingaben&>(w) = eingaben;
    const Feldzugriff felder(w);
    std::string text = "{\"id\":" + std::to_string(id);
    for (std::size_t i = 0; i < eingabefelder().size(); ++i) {
        if (eingabefelder()[i].typ == Feldart::feld) continue;
        text.append(",\"").append(eingabefelder()[i].angabe.name).append("\":");
        felder.anfuegeEingabe(text, static_cast<int>(i));
    }
    return text + "}\n";
}

TEST(Stapel, AnswersEachLineWithTheFreshRunOfItsWallWhateverStandsBefore) {
    Zufallswaende waende(3);
    std::vector<Eingaben> alle;
    std::string zeilen;
    for (int i = 0; i < 300; ++i) {
        alle.push_back(waende.naechste());
        zeilen += zeile(alle.back(), i) + (i % 10 == 9 ? "{}\n{\"av1\":1e9}\n" : "");
    }
    for (const int laeufe : {1, 2}) {
        const Stapelauftrag auftrag{.felder = {"Rd1", "Ftd", "RdAnker", "Fvk"}, .laeufe = laeufe};
        const std::string einer = antworten(auftrag, zeilen);
        for (const int faeden : {2, 7}) EXPECT_EQ(antworten(auftrag, zeilen, faeden), einer);

        std::size_t gerechnet = 0;
        std::istringstream antwort(einer);
        for (std::string text; std::getline(antwort, text);) {
            const json j = json::parse(text);
            if (!j.contains("id")) continue;
            const FrischeWand frisch = frischerLauf(alle[j["id"].get<std::size_t>()], {}, laeufe);
            const Wand& w = frisch.wand;
            const Urteil u = urteil(w, frisch.ergebnis);
            ASSERT_EQ(j["ok"], true) << text;
            EXPECT_EQ(j["hinweise"].get<Texte>(), texte(w.Hinweise));
            EXPECT_EQ(j["maxEta"].is_null(), !u.maxEta.has_value());
            if (!u.maxEta) continue;
            ++gerechnet;
            EXPECT_EQ(j["maxEta"], *u.maxEta);
            EXPECT_EQ(j["erfuellt"], w.AlleNachweiseErfuellt);
            EXPECT_EQ(j["luecken"].get<std::vector<std::string>>(), lueckensaetze(w));
            EXPECT_EQ(j["Rd1"], w.Rd[S1].value());
            EXPECT_EQ(j["RdAnker"], w.RdAnker.value());
            EXPECT_EQ(j["Ftd"].size(), static_cast<std::size_t>(w.AnzahlRippen.value()));
        }
        EXPECT_GT(gerechnet, 20U);
    }
}

TEST(Stapel, TellsWhatIsWrongWithALineAndGoesOn) {
    struct Fall {
        std::string_view zeile, fehler;
    };
    const Fall faelle[] = {
        {R"({"av1":"sechzig"})", R"(av1 = "sechzig" ist keine Zahl)"},
        {R"({"av1":null})", R"(av1 = null ist keine Zahl)"},
        {R"({"av3":1})", R"(unbekanntes Feld "av3")"},
        {R"({"Rd1":1})", "Rd1 ist ein Ergebnis, keine Eingabe"},
        {R"({"av1":1,"av1":2})", "av1 = 1 liegt nicht zwischen 20 und 200"},
        {R"({"av1":40,"av1":50})", "av1 steht zweimal"},
        {R"({"Material1":1.5})", "Material1 = 1.5 ist keine ganze Zahl"},
        {R"({"Einseitig":1})", "Einseitig = 1 ist kein Wahrheitswert (true oder false)"},
        {R"({"Position":7})", "Position = 7 ist kein Text"},
        {R"({"Vorbemerkungen":["a"]})", "Vorbemerkungen ist eine Liste und lässt sich hier nicht setzen"},
        {R"({"av1":[60]})", "av1 = [60] ist keine Zahl"},
        {"[1]", "kein JSON-Objekt"},
        {"{\"av1\":60", "kein gültiges JSON"},
        {"", "kein gültiges JSON"},
        {"{\"av1\":1e999}", "kein gültiges JSON"},
        {"\xff", "kein gültiges JSON"},
    };
    std::string zeilen;
    for (const Fall& fall : faelle) zeilen.append(fall.zeile).append("\r\n");
    zeilen += "{\"id\":{\"a\":[1]}}";  // the last line needs no end
    Stapelergebnis ergebnis;
    std::istringstream antwort(antworten({}, zeilen, 1, &ergebnis));
    std::string text;
    int nummer = 0;
    for (const Fall& fall : faelle) {
        std::getline(antwort, text);
        const json j = json::parse(text);
        EXPECT_EQ(j["ok"], false);
        EXPECT_EQ(j["error"], "Zeile " + std::to_string(++nummer) + ": " + std::string(fall.fehler));
    }
    std::getline(antwort, text);
    EXPECT_TRUE(text.starts_with(R"({"id":{"a":[1]},"ok":true)")) << text;
    EXPECT_EQ(ergebnis.fehlerhaft, std::size(faelle));
    EXPECT_EQ(ergebnis.zeilen, std::size(faelle) + 1);

    const std::string weit = antworten({.grenzen = Grenzen::uebergehen}, "{\"Fvk\":2000}");
    EXPECT_TRUE(weit.starts_with(R"({"ok":true)"));
    for (const std::size_t laenge : {(1U << 20U) + 1, 3U << 20U}) {
        const std::string lang = antworten({}, std::string(laenge, ' ') + "\n{}\n");
        EXPECT_TRUE(lang.starts_with("{\"ok\":false,\"error\":\"Zeile 1: länger als 1 MiB\"}\n{\"ok\":true"));
    }
    Textstrom einzeln("\xEF\xBB\xBF{}", 1);
    EXPECT_EQ(stapel({}, einzeln.strom(), {}).fehlerhaft, 0U);
}

TEST(Stapel, ReadsAndWritesTablesWithToldMarks) {
    Stapelauftrag auftrag;
    auftrag.felder = {"av1", "gkWand", "Position"};
    auftrag.eingabe = auftrag.ausgabe = Zeilenform::csv;
    auftrag.csv = {';', ','};
    const std::string tabelle = "id;av1;gkWand;Position\n1;60;0,35;\"a;b\"\n2;;;\n3;sechzig;;\n4;60\n";
    std::istringstream antwort(antworten(auftrag, tabelle));
    std::string kopf;
    std::vector<std::string> zeilen(4);
    std::getline(antwort, kopf);
    for (std::string& zeile : zeilen) std::getline(antwort, zeile);
    EXPECT_EQ(kopf, "id;ok;error;erfuellt;maxEta;massgebend;hinweise;luecken;av1;gkWand;Position");
    EXPECT_TRUE(zeilen[0].starts_with("1;true;;true;0,05"));
    EXPECT_TRUE(zeilen[0].ends_with(";60;0,35;\"a;b\"")) << zeilen[0];
    EXPECT_TRUE(zeilen[1].ends_with(";60;0,35;1")) << zeilen[1];
    EXPECT_EQ(zeilen[2], "3;false;\"Zeile 4: av1 = \"\"sechzig\"\" ist keine Zahl\";;;;;;;;");
    EXPECT_EQ(zeilen[3], ";false;Zeile 5: 2 Werte statt 4;;;;;;;;");
}

TEST(Stapel, AnswersInTheFormThatWasToldWhateverIsWrong) {
    Stapelauftrag auftrag;
    auftrag.eingabe = auftrag.ausgabe = Zeilenform::csv;
    const std::string kopf = "id;ok;error;erfuellt;maxEta;massgebend;hinweise;luecken\n";
    EXPECT_EQ(antworten(auftrag, "av3\n60\n"),
              kopf + ";false;\"Zeile 1: unbekanntes Feld \"\"av3\"\"\";;;;;\n");
    EXPECT_EQ(antworten(auftrag, "av1\n" + std::string(3U << 20U, ' ') + "\n"),
              kopf + ";false;Zeile 2: länger als 1 MiB;;;;;\n");
}

TEST(Stapel, StopsWhenNobodyReads) {
    Textstrom strom(std::string(50000, '\n'));
    int geschrieben = 0;
    const Strom taub{strom.strom().lies, [&](std::string_view) { return ++geschrieben < 2; }};
    for (const int faeden : {1, 3}) {
        geschrieben = 0;
        stapel({}, taub, {.faeden = faeden});
        EXPECT_LE(geschrieben, 2);
    }
}

TEST(Stapelschema, NamesEveryInputWithTypeAndRange) {
    const json schema = json::parse(stapelschema());
    EXPECT_EQ(schema["properties"]["av1"]["minimum"], 20);
    EXPECT_EQ(schema["properties"]["KLED"]["type"], "integer");
    EXPECT_EQ(schema["properties"]["Einseitig"]["type"], "boolean");
    EXPECT_EQ(schema["additionalProperties"], false);
}

}  // namespace
}  // namespace rippenscheibe
