#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Tables as text: a line a row, cells in quotes where they need it.

namespace rippenscheibe {

struct Csvform {
    char trenner = ';';
    char dezimal = '.';
};

// The cells of a line; nothing when a quote is left open or followed by something.
std::optional<std::vector<std::string>> zellenAus(std::string_view zeile, const Csvform& form);
// The cells as a line with its line feed.
std::string csvZeile(std::span<const std::string> zellen, const Csvform& form);

// A number of a cell with the decimal mark of the form, as a number with point.
std::string mitPunkt(std::string_view zahl, const Csvform& form);
// The other way round; texts that are no number stay.
std::string mitDezimalzeichen(std::string zahl, const Csvform& form);

// A JSON value as a cell: texts bare, lists joined by " | ", null empty.
std::string zelleAusJson(std::string_view json, const Csvform& form);

// The text of a table file: UTF-8, or Windows-1252 where it is none, as spreadsheets write it.
std::string tabellentext(std::string_view bytes);

// The lines of a text without their ends (LF or CR LF), a byte order mark left out.
std::vector<std::string_view> zeilenVon(std::string_view text);

// Columns set under each other for reading: the first row is the head. Numbers stand at the right, or all.
enum class Buendigkeit { nachInhalt, rechts };
std::string alsTabelle(std::span<const std::vector<std::string>> zeilen,
                       Buendigkeit buendigkeit = Buendigkeit::nachInhalt);

}  // namespace rippenscheibe
