#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "study/Bewertung.h"
#include "study/Csv.h"
#include "study/Raster.h"

// The load cases of a wall: a table beside the position, never in it. A run proves one load duration, so that
// a wall needs a case for each. Columns: name, Lastfall, KLED, Fvk, gk, qk, wk, WindQuer, Fcgk, Fcqk.

namespace rippenscheibe {

// The columns behind the name, inputs all of them.
std::span<const std::string_view> lastfallspalten();
// A cell of such a column as a value; "1" and "ja" are true. A sentence when it fits nothing the field takes.
std::variant<Feldwert, std::string> lastfallwert(std::string_view spalte, const std::string& zelle,
                                                 const Csvform& form = {});
std::string lastfallzelle(const Feldwert& wert, const Csvform& form = {});

// A table from the text of a file; a sentence with the line when it cannot be read. Columns may be left out,
// their fields keep the value of the position; an empty cell does so too.
std::variant<std::vector<Lastfallzeile>, std::string> lastfaelleAus(std::string_view text,
                                                                    const Csvform& form = {});
// The same from a file; the sentence then begins with its name.
std::variant<std::vector<Lastfallzeile>, std::string> lastfaelleAusDatei(const std::filesystem::path& datei,
                                                                         const Csvform& form = {});
// A field of the grid that the cases set too, and so would undo: a sentence. Nothing when there is none.
std::optional<std::string> ueberschriebenesFeld(const Raster& raster,
                                                const std::vector<Lastfallzeile>& faelle);
std::string lastfaelletext(const std::vector<Lastfallzeile>& faelle, const Csvform& form = {});

// Proposed cases of a wall: both directions of Fv with full and with the smallest vertical load, the vertical
// load alone with medium and permanent duration, pressure and suction of the wind across the wall. What the
// wall does not carry is left out.
std::vector<Lastfallzeile> vorgeschlageneLastfaelle(const Eingaben& wand);

}  // namespace rippenscheibe
