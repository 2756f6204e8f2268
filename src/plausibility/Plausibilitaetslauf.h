#pragma once

#include <optional>
#include <string>

#include "model/Wand.h"

namespace rippenscheibe {

// Checks the whole input and fills w.Hinweise with one German text a finding, in fixed order. It
// changes no input, but lef of both sides and, for some findings, Rd. Any finding blocks the run.
void plausibilitaetslauf(Wand& w);

// The general fastener check of both sides, which the fastener dialog also runs on accept.
Texte allgemeinePruefung(const Wand& w);

// The first refusal of the sheathing dialog, or nothing.
std::optional<std::string> beplankungPruefung(const Wand& w);

}  // namespace rippenscheibe
