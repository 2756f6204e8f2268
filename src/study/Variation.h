#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "run/Urteil.h"
#include "study/Bewertung.h"
#include "study/Faeden.h"
#include "study/Raster.h"

// All walls of a grid, judged one by one.

namespace rippenscheibe {

struct Variationsauftrag {
    Eingaben vorlage{};
    EigeneMaterialien materialien{};
    Bewertungsregel regel{};
    Raster raster{};
    std::vector<std::string> felder{};  // inputs and results to give back, by name
    bool mitAbschnitten = false;        // the largest value of each section of the proofs
};

struct Variationspunkt {
    std::size_t nummer = 0;  // in the grid
    Bewertung bewertung{};
    std::vector<std::string> luecken{};  // as sentences
    // Of the first run in the direction and load case that govern, as JSON values.
    std::vector<std::string> felder{};
    std::vector<Abschnittsurteil> abschnitte{};  // empty when findings stop a run
};

// Calls the visitor for each point in the order of the grid; false from it ends the work.
void variiere(const Variationsauftrag& auftrag, const Ausfuehrung& ausfuehrung,
              const std::function<bool(const Variationspunkt&)>& besucher);

}  // namespace rippenscheibe
