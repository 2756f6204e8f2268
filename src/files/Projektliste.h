#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/Textdatei.h"

namespace rippenscheibe {

inline constexpr std::string_view projektlistendatei = "Hdat.dat";
inline constexpr std::string_view uebergabedatei = "Posdat.dat";
inline constexpr std::string_view seitendatei = "DSeite.dat";

struct Projekteintrag {
    std::string name;
    std::string pfad;  // folder of its position files
    bool operator==(const Projekteintrag&) const = default;
};

// The project list: the current project name and the known projects.
struct Projektliste {
    std::string Projekt;
    std::vector<Projekteintrag> eintraege;
    bool operator==(const Projektliste&) const = default;
};

// The list in a file text (UTF-8). A count below 1, and a missing file, is taken as one project, so that a
// list read has at least one entry; names and paths that are missing are empty.
Projektliste projektlisteAus(std::string_view text);
// An empty list is written with the count 0, and one empty name and path still follow it.
std::string projektlistentext(const Projektliste& liste);

Gelesen<Projektliste> liesProjektliste(const std::filesystem::path& datei);
[[nodiscard]] std::optional<Dateifehler> schreibeProjektliste(const std::filesystem::path& datei,
                                                              const Projektliste& liste);

// What to write at program end when another running program has changed the file since this one read it:
// the own list and behind it the entries that the other one added. `gelesen` is the list as this program
// read it, `aufDerPlatte` the one that is in the file now.
Projektliste zusammengefuehrt(Projektliste eigene, const Projektliste& gelesen,
                              const Projektliste& aufDerPlatte);
// Merges and writes while no other program of this kind does the same. A file that cannot be read is left
// alone.
[[nodiscard]] std::optional<Dateifehler> sichereProjektliste(const std::filesystem::path& datei,
                                                             const Projektliste& eigene,
                                                             const Projektliste& gelesen);

// The path of a position that the project manager handed over, "" if there is none; it is taken out of the
// file, so that it is used once only. What follows is loaded whether the file could be emptied or not.
std::string holeUebergabe(const std::filesystem::path& datei);
// Hands a position over.
[[nodiscard]] std::optional<Dateifehler> schreibeUebergabe(const std::filesystem::path& datei,
                                                           const std::string& position);

// The last page number printed; 0 when the file is missing or holds none.
int liesLetzteSeite(const std::filesystem::path& datei);
[[nodiscard]] std::optional<Dateifehler> schreibeLetzteSeite(const std::filesystem::path& datei, int seite);

}  // namespace rippenscheibe
