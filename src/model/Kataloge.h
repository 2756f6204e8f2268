#pragma once

#include <span>
#include <string_view>

#include "model/Anker.h"
#include "model/Platten.h"
#include "model/VMArten.h"

// The catalogues, filled at program start and never changed. Indices count from 1; a combo box counts
// from 0, so a stored index is its list index + 1.

namespace rippenscheibe {

// One row of the nail table: name, diameter, length and head diameter in mm.
struct Nageltyp {
    std::string_view name;
    double d;
    double ln;
    double dk;
};

std::span<const std::string_view> Holzarten();   // 13
std::span<const std::string_view> VMKlassen();   // 9, "1A" to "3C"
std::span<const std::string_view> KLEDNamen();   // 5
std::span<const Nageltyp> VMTypen();             // 31
std::span<const std::string_view> Nagelnamen();  // of the same

// Entry `index` (from 1) of a catalogue, "" outside of it.
std::string_view eintrag(std::span<const std::string_view> katalog, int index);
// Name of row `index` (from 1) of the nail table, "" outside of it.
std::string_view nagelname(int index);

// What the number of this input chooses from, in words: of "Material1" the sheathing materials, of "Lastfall"
// "horizontal" and so on. Empty for an input that chooses from nothing.
std::span<const std::string_view> katalog(std::string_view eingabe);
// What the number of an input is called, "OSB/3" for 1 of "Material1"; "" where it has no name.
std::string_view katalogwort(std::string_view eingabe, int zahl);

}  // namespace rippenscheibe
