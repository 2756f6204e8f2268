#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basis/Dateischreiber.h"
#include "model/Wand.h"

// The remarks of a position as texts to edit, and the named templates for them. Lines end with CR LF.

namespace rippenscheibe {

inline constexpr std::string_view vorlagenVorbemerkungen = "Textvorlage1.dat";
inline constexpr std::string_view vorlagenZusatzbemerkungen = "Textvorlage2.dat";

// The lines of a text without their line ends. The last line needs no line end; a text whose first line is
// empty has no lines.
Texte zeilenAus(std::string_view text);
// The lines joined with CR LF.
std::string verbunden(const Texte& zeilen);
// Whether a text may stand as preliminary remarks: at most three lines.
bool passtInVorbemerkungen(std::string_view text);

// The remarks of the record as texts, empty lines at their end left out, and back. Closing remarks without
// a line leave 200 empty rows and the count 0.
std::string vorbemerkungstext(const Wand& w);
std::string zusatzbemerkungstext(const Wand& w);
void setzeVorbemerkungen(Wand& w, std::string_view text);
void setzeZusatzbemerkungen(Wand& w, std::string_view text);

struct Textvorlage {
    std::string name;
    std::string text;
    bool operator==(const Textvorlage&) const = default;
};
using Textvorlagen = std::vector<Textvorlage>;

// The templates in a file text (UTF-8): the count, then name and text of each. A count that is missing or
// below 1 leaves none; a short file ends the list.
Textvorlagen textvorlagenAus(std::string_view text);
std::string textvorlagentext(const Textvorlagen& vorlagen);

Textvorlagen liesTextvorlagen(const std::filesystem::path& datei);
[[nodiscard]] std::optional<Dateifehler> schreibeTextvorlagen(const std::filesystem::path& datei,
                                                              const Textvorlagen& vorlagen);

// The template as the file can hold it: double quotes become single ones.
Textvorlage speicherbar(Textvorlage vorlage);

// Stores one template as `speicherbar` makes it: a known name gets the new text, another one is added. The
// file is read again before, so that templates of another running program stay, and rewritten whole.
// `vorlagen` is what it holds then.
[[nodiscard]] std::optional<Dateifehler> sichereTextvorlage(const std::filesystem::path& datei,
                                                            const Textvorlage& eingabe,
                                                            Textvorlagen& vorlagen);

}  // namespace rippenscheibe
