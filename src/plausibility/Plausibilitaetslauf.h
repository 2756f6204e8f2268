#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Wand.h"

namespace rippenscheibe {

// Where the input that a finding names is made: the three fields of the main window (Abmessungen) or
// one of the input dialogs.
enum class Eingabeort { unbekannt, Abmessungen, Rippen, Beplankung, Verbindungsmittel };

// Checks the whole input and fills w.Hinweise with one German text a finding, in fixed order. It
// changes no input, but lef of both sides and, for some findings, Rd. Any finding blocks the run.
void plausibilitaetslauf(Wand& w);

// The general fastener check of both sides, which the fastener dialog also runs on accept.
Texte allgemeinePruefung(const Wand& w);

// The first refusal of the sheathing dialog, or nothing. It looks at side 2 of a one-sided wall too.
std::optional<std::string> beplankungPruefung(const Wand& w);

// The thicknesses (mm, rising) in which the sheathing of side n is made, where the check knows only these;
// empty for a board of any thickness.
std::vector<double> festePlattendicken(const Wand& w, Seite n);

// Where the input is made that a finding of the plausibility run names; `unbekannt` for any text that
// is none of its findings.
Eingabeort ort(std::string_view hinweis);

}  // namespace rippenscheibe
