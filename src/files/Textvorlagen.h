#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/Textdatei.h"

// The named templates for the remarks of a position. Lines end with CR LF.

namespace rippenscheibe {

inline constexpr std::string_view vorlagenVorbemerkungen = "Textvorlage1.dat";
inline constexpr std::string_view vorlagenZusatzbemerkungen = "Textvorlage2.dat";

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

Gelesen<Textvorlagen> liesTextvorlagen(const std::filesystem::path& datei);
[[nodiscard]] std::optional<Dateifehler> schreibeTextvorlagen(const std::filesystem::path& datei,
                                                              const Textvorlagen& vorlagen);

// The template as the file can hold it: double quotes become single ones.
Textvorlage speicherbar(Textvorlage vorlage);

// Stores one template as `speicherbar` makes it: a known name gets the new text, another one is added. The
// file is read again before, so that templates of another running program stay, and rewritten whole.
// `vorlagen` is what it holds then. A file that cannot be read is left alone.
[[nodiscard]] std::optional<Dateifehler> sichereTextvorlage(const std::filesystem::path& datei,
                                                            const Textvorlage& eingabe,
                                                            Textvorlagen& vorlagen);

}  // namespace rippenscheibe
