#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "study/Bewertung.h"
#include "study/Faeden.h"
#include "study/Preise.h"
#include "study/Raster.h"

// The cheapest walls of a grid that pass. What a wall costs is known without a run, so that candidates are
// tried from the cheapest upwards until enough have passed: a proven optimum of the grid.

namespace rippenscheibe {

enum class Auslegungsziel { kosten, verbindungsmittel, gewicht };

// What an order by value has room for.
inline constexpr std::size_t hoechstensKandidaten = 50'000'000;

struct Auslegungsauftrag {
    Eingaben vorlage{};
    EigeneMaterialien materialien{};
    Bewertungsregel regel{};
    Raster raster{};
    Auslegungsziel ziel = Auslegungsziel::kosten;
    Preise preise{};
    Reihenregel reihen{};
    bool eigengewicht = false;  // gkWand follows the wall
    std::size_t zahl = 5;
};

struct Entwurf {
    std::size_t nummer = 0;  // in the grid
    double wert = 0;         // of the aim: cost, pieces or kN
    Bewertung bewertung{};
};

struct Auslegungsergebnis {
    std::vector<Entwurf> entwuerfe;      // by value, then utilisation, then place in the grid
    std::vector<Entwurf> knappVerfehlt;  // when nothing passes: the smallest utilisations above the limit
    std::size_t kandidaten = 0;
    std::size_t geprueft = 0;   // in order of value, all with a value below the last design's
    std::size_t bestanden = 0;  // of those, more than asked for where they cost the same
    bool vollstaendig = true;   // not ended by the stop token
    // Why the cheaper ones drop out.
    std::map<std::string_view, std::size_t> anNachweis;
    std::map<Lueckenart, std::size_t> anLuecke;
    std::size_t mitHinweis = 0;
};

// "98 an 5.1 Scheibenschub parallel, 20 mit Hinweis, 3 mit Lücke: ...": why candidates drop out, or "".
std::string ausscheidegruende(const Auslegungsergebnis& ergebnis);

// A field that a search never varies stands on an axis: methods, options, service classes, load durations,
// load case, loads, the switch of the anchorage proof. Empty when none does.
std::string festesFeld(const Raster& raster);
// The inputs that stay as they are in every design.
std::vector<int> festeFelder();

// A sentence when a price is missing or the grid is too large.
std::variant<Auslegungsergebnis, std::string> legeAus(const Auslegungsauftrag& auftrag,
                                                      const Ausfuehrung& ausfuehrung);

// The wall of a design on a record: the inputs of grid place `nummer`, gkWand with them where it follows.
void setzeEntwurf(const Auslegungsauftrag& auftrag, std::size_t nummer, Pruefstand& stand);

// The usual thicknesses of a board in mm, as text.
std::vector<std::string> ueblicheDicken(int material);

// Ranges that make sense for a wall, both sides together where they have the same kind: spacing of the
// fasteners, rows of the catalogue of the fasteners in use, thickness of the boards, width and depth of the
// ribs, strength class, anchor.
struct Standardachse {
    std::string_view name;  // "abstand"
    Achse achse;
};
std::vector<Standardachse> standardachsen(const Eingaben& wand);

}  // namespace rippenscheibe
