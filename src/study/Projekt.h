#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "run/FrischerLauf.h"
#include "run/Luecken.h"
#include "run/Urteil.h"
#include "study/Bewertung.h"
#include "study/Faeden.h"
#include "study/Mengen.h"

// All positions of a folder: read, computed fresh, judged and counted. Nothing is written.

namespace rippenscheibe {

// One load case of a wall, from a fresh run.
struct Fallurteil {
    std::string name;
    Urteil urteil;
    std::vector<std::string> hinweise;
    std::vector<std::pair<Lueckenart, std::string>> luecken;
};

// Each case as it stands, in its direction alone.
std::vector<Fallurteil> fallurteile(const Eingaben& wand, const EigeneMaterialien& materialien,
                                    const std::vector<Lastfallzeile>& faelle);
// The place of the case that governs: the first one stopped by findings, else the first with the largest
// utilisation. -1 without cases.
int massgebenderFall(const std::vector<Fallurteil>& urteile);
// The governing proof behind the name of its case: "Windsog: 5.6 VM auf Herausziehen". Without a proof the
// name alone.
std::string massgebendText(const Fallurteil& fall);

// The table of load cases that belongs to a position: NAME.lastfaelle.csv beside NAME.rsw.
std::filesystem::path lastfalldatei(const std::filesystem::path& position);
// The cases in it, none when there is no such file; a sentence when it cannot be read.
std::variant<std::vector<Lastfallzeile>, std::string> liesLastfaelle(const std::filesystem::path& datei);

// A file by what tells whether it changed.
struct Dateistand {
    std::filesystem::path datei;
    std::filesystem::file_time_type zeit;
    std::uintmax_t groesse = 0;
    bool operator==(const Dateistand&) const = default;
};

// Without a time where there is no such file.
Dateistand dateistand(const std::filesystem::path& datei);

struct Projektdatei {
    Dateistand position;
    Dateistand lastfaelle;  // without a time when there are none
    bool operator==(const Projektdatei&) const = default;
};

// The position files of a folder by name, numbers in names by value (W2 before W10). Files whose ending is
// "RSW" are among them, so that somebody says why they do not open. A sentence when the folder cannot be
// read.
std::variant<std::vector<Projektdatei>, std::string> projektdateien(const std::filesystem::path& ordner);

// What is read of a folder: its positions and their tables of load cases, there or not.
std::vector<std::filesystem::path> projekteingaben(const std::filesystem::path& ordner);

// What a folder is called, "." and a slash at the end included.
std::string ordnername(const std::filesystem::path& ordner);

enum class Projekturteil { erfuellt, nichtErfuellt, hinweise, unlesbar };

struct Projektposition {
    Projektdatei datei;
    std::string fehler;                      // why it cannot be opened; the rest is empty then
    std::vector<std::string> uebersprungen;  // fields that kept their default, as sentences
    std::string lastfallfehler;              // why the table of load cases does not count
    Eingaben eingaben;                       // as read
    // What a row says of the wall: "5 × 2,5 m", "OSB/3 15 mm", "Nägel 2,7x50, av 60 mm", "2 × HTT5". Both
    // sides are one text where they are equal.
    std::string masse;
    std::string beplankung;
    std::string befestigung;
    std::string verankerung;
    // What a fresh run says, as a printout of the position would; with load cases the governing one.
    Urteil urteil;
    std::string massgebend;  // with the name of its load case
    int lastfaelle = 0;
    std::vector<std::string> hinweise;
    // Each kind of gap once. Where a table tries both directions the left edge rib is none, as long as all
    // pass.
    std::vector<std::string> luecken;
    // What a wall that passes here fails at when Fv turns round or when the start button is pressed again.
    std::string sonst;
    Mengen mengen;

    Projekturteil stand() const;
};

// Opens a position as the windows do and computes it.
Projektposition liesProjektposition(const Projektdatei& datei, const EigeneMaterialien& materialien);

// All files of the list on several threads; `schreibe` gets the positions in their order and ends the work by
// false.
void liesProjekt(const std::vector<Projektdatei>& dateien, const EigeneMaterialien& materialien,
                 const Ausfuehrung& ausfuehrung, const std::function<bool(Projektposition)>& schreibe);

}  // namespace rippenscheibe
