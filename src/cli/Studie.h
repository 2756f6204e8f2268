#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/Studienausgabe.h"
#include "study/Auslegung.h"
#include "study/Stapel.h"
#include "study/Tafel.h"

namespace CLI {
class App;
}

// The verbs that compute many walls: their options and what they do.

namespace rippenscheibe {

struct Auftrag;
struct Ausgaben;
enum class Rueckgabe : int;

struct Studienauftrag {
    // all verbs
    Grenzen grenzen = Grenzen::beachten;
    Csvform csv;
    std::optional<int> faeden;
    Studienausgabe ausgabe = Studienausgabe::text;
    // stapel
    std::vector<std::string> felder;
    Zeilenform eingabe = Zeilenform::json;
    bool streng = false;
    bool schema = false;
    // the verbs that judge walls
    std::optional<std::filesystem::path> lastfaelle;
    bool beideRichtungen = true;
    bool mitLuecken = false;
    bool trotzdem = false;
    std::vector<std::string> achsen;  // --feld
    // lege-aus
    std::vector<std::string> gebiete;  // --variiere
    std::size_t zahl = 5;
    double hoechstens = 1;
    Auslegungsziel ziel = Auslegungsziel::kosten;
    std::optional<std::filesystem::path> preise;
    bool eigengewicht = false;
    double zwischenrippen = 1;
    // projekt
    std::filesystem::path ordner;
    // tafel
    Tafelwunsch wunsch;
};

// Adds the verbs to the command line. `befehl` makes a verb of a name and an explanation.
struct Studienverben {
    std::function<CLI::App&(const std::string& name, const std::string& erklaerung, int befehl)> befehl;
    std::function<void(CLI::App&, bool mehrere)> dateien;  // positions to read
    std::function<void(CLI::App&)> vorlage;                // --vorlage
    std::function<void(CLI::App&)> material;               // --material
    std::function<void(CLI::App&)> laeufe;
    std::function<void(CLI::App&)> nach;  // -o
};
void fuegeStudienHinzu(const Studienverben& verben, Studienauftrag& auftrag);

// A position as it was read, before `zuweisen`.
struct Vorlage {
    std::string datei;
    Eingaben eingaben;
};

// What the verbs need of the tool around them.
struct Studienumgebung {
    const Auftrag& auftrag;
    const Ausgaben& ausgaben;
    const EigeneMaterialien& materialien;
    std::filesystem::path programmordner;
    std::vector<Vorlage> vorlagen;
    std::function<void(std::string_view)> gibAus;
};
// How a verb ended. What did not become whole takes the place of no file.
struct Studienende {
    Rueckgabe rueckgabe;
    bool ganz;
};
Studienende fuehreStudieAus(const Studienumgebung& umgebung);

}  // namespace rippenscheibe
