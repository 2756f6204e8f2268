#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/Anweisungen.h"
#include "files/Textdatei.h"
#include "model/Einstellungen.h"

namespace rippenscheibe {

inline constexpr std::string_view einstellungsdatei = "Hset.dat";
inline constexpr std::string_view logodatei = "Logo.jpg";

// Takes the four statements of a settings file (UTF-8) into the settings: fields that are missing or do not
// parse keep their values, but BlattStattSeite and Suffix, which older files lack, become 0.
std::vector<Uebersprungen> liesEinstellungstext(std::string_view text, Einstellungen& e);
std::string einstellungstext(const Einstellungen& e);

// The same from and to a file. A missing file leaves the settings as they are (those two aside), an
// unreadable one all of them. The value is the fields that kept theirs.
Gelesen<std::vector<Uebersprungen>> liesEinstellungen(const std::filesystem::path& datei, Einstellungen& e);
[[nodiscard]] std::optional<Dateifehler> schreibeEinstellungen(const std::filesystem::path& datei,
                                                               const Einstellungen& e);

}  // namespace rippenscheibe
