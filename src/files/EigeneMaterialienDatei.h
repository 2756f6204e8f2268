#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "files/Textdatei.h"
#include "model/EigeneMaterialien.h"

namespace rippenscheibe {

inline constexpr std::string_view materialdatei = "Plattenwerte.dat";

// The own-material table in a file text (UTF-8): the count, then 30 statements a row. A count that is
// missing or below 1 leaves no rows; a cell that is missing or does not parse is empty.
EigeneMaterialien eigeneMaterialienAus(std::string_view text);
// A table without rows is written with the count 1 and one empty row.
std::string eigeneMaterialienText(const EigeneMaterialien& tabelle);

Gelesen<EigeneMaterialien> liesEigeneMaterialien(const std::filesystem::path& datei);

// The bytes of the table that the program is delivered with.
std::string_view gelieferteMaterialien();
// The own materials of whoever runs the program: the table of the program's folder or, where there is none,
// the delivered one, which is only read. A file that cannot be read is told, and there are no materials then.
Gelesen<EigeneMaterialien> ladeEigeneMaterialien(const std::filesystem::path& programmordner);
[[nodiscard]] std::optional<Dateifehler> schreibeEigeneMaterialien(const std::filesystem::path& datei,
                                                                   const EigeneMaterialien& tabelle);

}  // namespace rippenscheibe
