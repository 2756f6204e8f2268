#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "model/VMKatalog.h"
#include "study/Felder.h"

// Grids over inputs: axes of values, each value one or more assignments. Nothing is coupled silently: a
// number sets its field alone; the name of a catalogue row sets what choosing it sets.

namespace rippenscheibe {

// One value of an axis: how it prints and what it sets.
struct Achsenwert {
    std::string text;
    std::vector<std::pair<int, Feldwert>> setzt;
};

struct Achse {
    std::vector<int> felder;  // all inputs that some value sets
    std::string name;         // their names, joined by commas
    std::vector<Achsenwert> werte;
};

// An axis from a text such as "av1,av2=50:150:5", "Material1=1,2,7", "Material1=OSB/3,OSB/4",
// "VMTyp1=2,7x60" (a nail: d, ln, dk with it), "VMKatalog1=Klammern 1,53x50" (a row of the catalogue of
// fasteners: d, ln, dk), "Ankertyp=HTT5". Ranges are from:to:step; each of their values is the
// double nearest to its decimal text. A German sentence when it cannot be read.
std::variant<Achse, std::string> achseAus(std::string_view text, Grenzen grenzen);

// The decimal texts from `von` by `schritt` up to `bis`, all with as many places as the step needs; nothing
// when one of them is no decimal number of at most nine places before and behind the point, the step is not
// above 0 or there are more than a million.
std::optional<std::vector<std::string>> dezimalreihe(std::string_view von, std::string_view bis,
                                                     std::string_view schritt);

// What a row of a fastener catalogue sets on one side.
std::vector<std::pair<int, Feldwert>> setztNagel(Seite n, int typ);
std::vector<std::pair<int, Feldwert>> setztKatalogzeile(Seite n, int zeile);
// The rows of the catalogue for a kind of fastener (VMArt 1 to 8); nails have none, their list is the nail
// table.
const VMKataloggruppe& kataloggruppe(int art);
// "Klammern 1,53x50", as an axis names it.
std::string katalogzeilenname(int zeile);

// All combinations, the first axis slowest. Combination 0 has the first value of each. More than a number
// holds count as the largest number.
class Raster {
  public:
    Raster() = default;
    explicit Raster(std::vector<Achse> achsen);
    const std::vector<Achse>& achsen() const { return achsen_; }
    std::size_t anzahl() const { return anzahl_; }
    // The place on axis `achse` of combination `nummer`.
    std::size_t stelle(std::size_t nummer, std::size_t achse) const;
    const Achsenwert& wert(std::size_t nummer, std::size_t achse) const;
    void setze(std::size_t nummer, Feldzugriff& felder) const;

  private:
    std::vector<Achse> achsen_;
    std::vector<std::size_t> weiten_;  // combinations between two values of an axis
    std::size_t anzahl_ = 1;
};

// A field that two axes set, so that one would undo the other: a sentence that names it.
std::optional<std::string> doppeltesFeld(const Raster& raster);

// A load of the axes that the load dialog would clear: a sentence that names it. `w` holds the other inputs.
std::optional<std::string> geloeschteLast(const Raster& raster, const Eingaben& w);

}  // namespace rippenscheibe
