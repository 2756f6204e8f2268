#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>

#include "basis/Dateischreiber.h"
#include "model/EigeneMaterialien.h"

// Keeping the own-material table: what may be added and deleted, and its file shared by several programs.

namespace rippenscheibe {

// Whether another material fits into the table.
bool nimmtWeitereAuf(const EigeneMaterialien& tabelle);
// Takes row `zeile` (from 0) out; the rows behind it move up one place, so that positions that stored their
// numbers then point at other materials. False, and nothing done, for the last material left.
bool loesche(EigeneMaterialien& tabelle, std::size_t zeile);

// Writes the table. Rows that another running program wrote since `gelesen` are appended behind it, so that
// no row number changes; they are in `tabelle` too then. Rows beyond the hundredth are left out. A table
// equal to `gelesen` is not written where there is a file: `tabelle` becomes what the file holds.
[[nodiscard]] std::optional<Dateifehler> sichereEigeneMaterialien(const std::filesystem::path& datei,
                                                                  EigeneMaterialien& tabelle,
                                                                  const EigeneMaterialien& gelesen);

}  // namespace rippenscheibe
