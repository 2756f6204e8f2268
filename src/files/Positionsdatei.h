#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/Anweisungen.h"
#include "files/Textdatei.h"
#include "model/Wand.h"

// The position file: one position in a fixed sequence of text statements, all inputs and nothing computed.
// It has no version number; a shorter file of an older layout loads as far as it goes.

namespace rippenscheibe {

// Message when a file of another kind is to be opened, and the title of its box.
inline constexpr std::string_view falscheEndung = "Datei passt nicht zum Programm!";
// Message when nothing in a file could be read as a position.
inline constexpr std::string_view keinePosition = "Die Datei enthält keine Position.";

// Whether a file name ends in the three small characters "rsw"; "RSW" is another ending.
bool istPositionsdatei(std::string_view dateiname);
// Why a path cannot be opened as a position, as a German sentence, with what may have been meant: it is a
// folder, it has no ending or that of another kind. Nothing for a path that can be tried.
std::optional<std::string> einwand(const std::filesystem::path& datei);
// The name to save under: without that ending ".rsw" is appended.
std::string mitEndung(std::string dateiname);

// Takes the statements of a file (UTF-8) into the record. The remarks are emptied first; every other field
// that is missing or does not parse keeps its value. EigenesMaterial 0 and AnzahlAnker 0, which older files
// lack, become 1. Returns the fields that kept their values, in the order of the file.
// Derived values are not refreshed: `zuweisen` has to follow.
std::vector<Uebersprungen> liesPositionstext(std::string_view text, Wand& w);

// The statements of a position, UTF-8.
std::string positionstext(const Wand& w);

// How far a text (UTF-8) is a position.
struct Positionsbefund {
    std::size_t ganzeAnweisungen = 0;  // statements of which every field could be read
    bool masse = false;                // the measures of the wall among them: no other kind of file has them
};
Positionsbefund positionsbefund(std::string_view text);

// The same from and to a file; the value is the fields that kept theirs. A missing file reads like an empty
// one: the record holds no remarks then. An unreadable one leaves it alone. Saving needs `zuweisen` before.
Gelesen<std::vector<Uebersprungen>> liesPosition(const std::filesystem::path& datei, Wand& w);
[[nodiscard]] std::optional<Dateifehler> schreibePosition(const std::filesystem::path& datei, const Wand& w);

}  // namespace rippenscheibe
