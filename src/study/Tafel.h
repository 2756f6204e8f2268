#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "study/Bewertung.h"
#include "study/Faeden.h"
#include "study/Raster.h"

// Design tables: in each cell the largest value of one input for which the wall passes, up to which every
// value of a grid from the start on passes. A plain scan upwards, since passing has holes: with wind and the
// exact distribution, with uplift, over the length of the wall.

namespace rippenscheibe {

struct Tafelauftrag {
    Eingaben vorlage{};
    EigeneMaterialien materialien{};
    Bewertungsregel regel{};
    Achse groesste{};  // the input that grows, its values from the start on
    Achse zeilen{};
    Achse spalten{};
};

// A table as words ask for it.
struct Tafelwunsch {
    std::string groesste{};     // "Fvk"
    std::string zeilen{};       // "Wandlaenge=2.5:5:0.625"
    std::string spalten{};      // "av1,av2=50:150:25"
    std::string von = "0";      // where the search begins
    std::string bis{};          // where it ends; empty: where the dialog does
    std::string stufe = "0.1";  // its step
    Grenzen grenzen = Grenzen::beachten;
    bool trotzdem = false;  // loads too that do not act
};
// `rahmen` with the axes of the wish, or what is missing or wrong with it as a sentence.
std::variant<Tafelauftrag, std::string> tafelauftrag(const Tafelwunsch& wunsch, Tafelauftrag rahmen);

struct Tafelzelle {
    std::string groesste;    // as on the grid; empty: the start fails already
    std::string massgebend;  // what fails at the next step, or at the start; empty: nothing up to the end
    // Stretches of the grid that pass, first and last value. More than one, or one that does not begin at the
    // start: passing has holes.
    std::vector<std::pair<std::string, std::string>> intervalle;
    bool besteht() const { return !groesste.empty(); }
    bool hatLoecher() const { return intervalle.size() > (besteht() ? 1U : 0U); }
};

struct Tafel {
    std::vector<std::vector<Tafelzelle>> zellen;  // by row and column
    bool vollstaendig = true;
};

Tafel bemessungstafel(const Tafelauftrag& auftrag, const Ausfuehrung& ausfuehrung);

// The table for reading: a head row, then a row each; a cell is the value, "*" behind it where passing has
// holes, and the sign of what governs; "–" where the start fails.
std::vector<std::vector<std::string>> tafelzeilen(const Tafelauftrag& auftrag, const Tafel& tafel,
                                                  char dezimal);
// What the signs mean, a line each.
std::string tafellegende(const Tafel& tafel);
// All that governs in some cell, in the order of the table.
std::vector<std::string> massgebende(const Tafel& tafel);

}  // namespace rippenscheibe
