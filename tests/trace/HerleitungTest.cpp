#include <gtest/gtest.h>
#include <muParser.h>

#include <cmath>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "cli/Befehle.h"
#include "cli/Herleitung.h"
#include "files/Dateischreiber.h"
#include "files/EigeneMaterialienDatei.h"
#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"
#include "run/Berechnungslauf.h"
#include "support/Walls.h"
#include "support/Zufallswand.h"
#include "trace/Herleitung.h"

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
// Evaluates a formula of the derivation; knows nothing of the calculation. The optimiser of the library
// changes bits.
class Rechner {
  public:
    Rechner() {
        parser_.EnableOptimizer(false);
        parser_.DefineFun("floor", [](double x) { return std::floor(x); });
        parser_.DefineFun("rund", [](double x, double n) {
            const double faktor = std::pow(10.0, n);
            return std::nearbyint(x * faktor) / faktor;
        });
    }
    double operator()(const Json& schritt) {
        parser_.ClearVar();
        std::map<std::string, double> werte;
        for (const auto& [name, operand] : schritt["operanden"].items()) {
            werte[name] = operand["wert"];
            parser_.DefineVar(name, &werte[name]);
        }
        parser_.SetExpr(schritt["formel"]);
        return parser_.Eval();
    }

  private:
    mu::Parser parser_;
};

double gespeichert(double x, const std::string& typ) {
    if (typ == "f32") return static_cast<double>(static_cast<float>(x));
    return typ == "i16" ? std::nearbyint(x) : x;
}

using Stelle = std::pair<std::string, int>;  // field and rib, 0 without

// The fields of a record, inputs included.
std::map<Stelle, double> felderVon(const Wand& w) {
    std::map<Stelle, double> werte;
    const auto lies = [&](const Feldangabe& angabe, const auto& feld) {
        using T = std::remove_cvref_t<decltype(feld)>;
        const std::string name(angabe.name);
        if constexpr (std::is_same_v<T, bool>) {
            werte[{name, 0}] = feld ? 1 : 0;
        } else if constexpr (std::is_same_v<T, Rippenfeld>) {
            for (int i = 1; i <= 200; ++i) werte[{name, i}] = feld(i).value();
        } else if constexpr (requires { static_cast<double>(feld.value()); }) {
            werte[{name, 0}] = static_cast<double>(feld.value());
        }
    };
    jedeEingabe(w, lies);
    jedesErgebnis(w, lies);
    return werte;
}

struct Zaehlung {
    int schritte = 0;
    int behalten = 0;
    int letzte = 0;
};

// The derivation of the last of several runs of this wall, checked step by step.
Zaehlung pruefe(Wand w, int laeufe) {
    static Rechner rechner;
    Zaehlung zaehlung;
    const Grundmasse felder = grundmasse(w);
    zuweisen(w, felder);
    for (int lauf = 1; lauf < laeufe; ++lauf) {
        zuweisen(w, felder);
        berechnungslauf(w);
    }
    const herleitung::Graph graph = leiteHer(w, felder);
    zuweisen(w, felder);
    berechnungslauf(w);

    std::istringstream zeilen(herleitungJson(graph, {}));
    std::map<int, double> werte;
    std::map<Stelle, double> letzte;
    for (std::string zeile; std::getline(zeilen, zeile);) {
        const Json o = Json::parse(zeile);
        const bool wahrheit = o["wert"].is_boolean();
        const double wert = wahrheit ? (o["wert"].get<bool>() ? 1.0 : 0.0) : o["wert"].get<double>();
        if (!o.contains("vonFrueher")) {
            for (const auto& [name, operand] : o["operanden"].items()) {
                if (operand.contains("schritt")) {
                    EXPECT_EQ(werte.at(operand["schritt"]), operand["wert"]) << zeile;
                }
            }
            if (o.contains("behalten")) {
                ++zaehlung.behalten;
            } else {
                EXPECT_EQ(gespeichert(rechner(o), o.value("typ", "")), wert) << zeile;
            }
            ++zaehlung.schritte;
        }
        werte[o["schritt"]] = wert;
        letzte[{o["feld"], o.value("rippe", 0)}] = wert;
    }
    const std::map<Stelle, double> ist = felderVon(w);
    for (const auto& [stelle, wert] : letzte) {
        EXPECT_EQ(ist.at(stelle), wert) << stelle.first << "(" << stelle.second << ")";
        ++zaehlung.letzte;
    }
    return zaehlung;
}

Wand beispiel(const fs::path& datei) {
    Wand w;
    const fs::path ordner = RIPPENSCHEIBE_BEISPIELE;
    w.eigeneMaterialien = eigeneMaterialienAus(dekodiert(liesDatei(ordner / "Plattenwerte.dat").bytes));
    liesPositionstext(dekodiert(liesDatei(datei).bytes), w);
    return w;
}

TEST(Herleitung, EveryFormulaYieldsTheBitsOfItsFieldInTheExamples) {
    int dateien = 0;
    for (const auto& eintrag : fs::directory_iterator(RIPPENSCHEIBE_BEISPIELE)) {
        if (eintrag.path().extension() != ".rsw") continue;
        ++dateien;
        for (const int laeufe : {1, 2, 3}) {
            SCOPED_TRACE(eintrag.path().filename().string() + ", runs: " + std::to_string(laeufe));
            const Zaehlung z = pruefe(beispiel(eintrag.path()), laeufe);
            EXPECT_GT(z.schritte, 400);
            EXPECT_GT(z.letzte, 200);
        }
    }
    EXPECT_GE(dateien, 10);
}

TEST(Herleitung, EveryFormulaYieldsTheBitsOfItsFieldInRandomWalls) {
    Zufallswaende waende(14);
    int behalten = 0;
    for (int i = 0; i < 100; ++i) {
        SCOPED_TRACE(i);
        Wand w;
        static_cast<Eingaben&>(w) = waende.naechste();
        behalten += pruefe(std::move(w), 1 + i % 3).behalten;
    }
    EXPECT_GT(behalten, 0) << "assignments that fail have to be among them";
}

// The last step of a field as it reads, with all it rests on.
std::string gelesen(Wand w, const std::string& feld) {
    zuweisen(w, grundmasse(w));
    return herleitungText(leiteHer(w, grundmasse(w)), {{feld}, true});
}

// What the tool says with these arguments, messages behind the output.
std::string tool(const std::vector<std::string>& angaben) {
    std::string text;
    const auto sammle = [&](std::string_view stueck) { text += stueck; };
    const auto gelesen = liesKommandozeile(angaben);
    if (const auto* auskunft = std::get_if<Auskunft>(&gelesen)) return auskunft->text;
    fuehreAus(std::get<Auftrag>(gelesen), RIPPENSCHEIBE_BEISPIELE, {sammle, sammle});
    return text;
}

TEST(Herleitung, TheToolTellsTheFieldsAskedFor) {
    const std::string datei = std::string(RIPPENSCHEIBE_BEISPIELE) + "/zweiseitig.rsw";
    const std::string text = tool({"herleite", datei, "--felder", "fmd,Rd1"});
    EXPECT_EQ(std::count(text.begin(), text.end(), '['), 2) << text;
    EXPECT_NE(tool({"herleite", datei, "--felder", "fmd,fxy"}).find("Unbekanntes Feld: fxy"),
              std::string::npos);
}

TEST(Herleitung, TheToolWritesTheDocumentToAFile) {
    const fs::path datei = fs::temp_directory_path() / "rippenscheibe-herleitung.rtf";
    const std::string wand = std::string(RIPPENSCHEIBE_BEISPIELE) + "/zweiseitig.rsw";
    EXPECT_EQ(tool({"herleite", wand, "--ausgabe", "rtf", "-o", datei.string()}).find("{\\rtf1"),
              std::string::npos);
    const std::string rtf = liesDatei(datei).bytes;
    EXPECT_TRUE(rtf.starts_with("{\\rtf1"));
    EXPECT_NE(rtf.find("SHA-256 der Datei: "), std::string::npos);
    EXPECT_NE(rtf.find("fm,d = kmod,Rippen"), std::string::npos);
    fs::remove(datei);
}

TEST(Herleitung, AStepReadsAsFormulaNumbersAndReason) {
    Wand w = vorgabewand();
    EXPECT_NE(gelesen(w, "Rd1").find("= min("), std::string::npos);
    w.ln[S1] = 20;
    EXPECT_NE(gelesen(w, "Rd1").find(" = 5 < 4 · "), std::string::npos) << "too short, and the step says so";
    w.EigenesMaterial[S2] = 7;
    EXPECT_NE(gelesen(w, "kmodEigen2").find("behält den Wert 0 von vor dem Lauf"), std::string::npos);
}

}  // namespace
}  // namespace rippenscheibe
