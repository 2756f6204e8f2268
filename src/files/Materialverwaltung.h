#pragma once

#include <filesystem>
#include <optional>

#include "files/Dateischreiber.h"
#include "model/EigeneMaterialien.h"

// Keeping the file of the own-material table, which several programs share.

namespace rippenscheibe {

// Writes the table. Rows that another running program wrote since `gelesen` are appended behind it, so that
// no row number changes; they are in `tabelle` too then. Rows beyond the hundredth are left out. A table
// equal to `gelesen` is not written where there is a file: `tabelle` becomes what the file holds. A file that
// cannot be read is left alone.
[[nodiscard]] std::optional<Dateifehler> sichereEigeneMaterialien(const std::filesystem::path& datei,
                                                                  EigeneMaterialien& tabelle,
                                                                  const EigeneMaterialien& gelesen);

}  // namespace rippenscheibe
