#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/Wand.h"

namespace rippenscheibe {

// Checks the whole input and fills w.Hinweise in fixed order. It changes no input, but lef of both sides and,
// for some findings, Rd. Any finding blocks the run.
void plausibilitaetslauf(Wand& w);

// The general fastener check of both sides, which the fastener dialog also runs on accept.
std::vector<Hinweis> allgemeinePruefung(const Wand& w);

// The first refusal of the sheathing dialog, or nothing. It looks at side 2 of a one-sided wall too.
std::optional<std::string> beplankungPruefung(const Wand& w);

// The thicknesses (mm, rising) in which the sheathing of side n is made, where the check knows only these;
// empty for a board of any thickness.
std::vector<double> festePlattendicken(const Wand& w, Seite n);

}  // namespace rippenscheibe
