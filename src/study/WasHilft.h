#pragma once

#include <string>
#include <utility>
#include <vector>

#include "study/Bewertung.h"
#include "study/Faeden.h"

// "Was hilft?": what real next steps do to a wall, each judged by runs of its own. No derivatives: with two
// equal sides a nearer spacing on one of them makes the wall weaker, because the other one then counts 80 %.

namespace rippenscheibe {

struct Hilfeschritt {
    std::string text;  // "av1, av2 60 -> 55"
    std::vector<std::pair<int, Feldwert>> setzt;
    Bewertung bewertung;
};

struct Hilfe {
    Bewertung heute;
    // By the new utilisation; steps with findings at the end.
    std::vector<Hilfeschritt> schritte;
};

// Spacing 5 mm nearer and wider, on one and on both sides; the next row of the catalogue, the next board, the
// next rib size; rib spacing, a second anchor.
Hilfe wasHilft(const Eingaben& vorlage, const EigeneMaterialien& materialien, const Bewertungsregel& regel,
               const Ausfuehrung& ausfuehrung);

}  // namespace rippenscheibe
