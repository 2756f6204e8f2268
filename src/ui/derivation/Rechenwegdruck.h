#pragma once

#include <memory>
#include <string>

#include "run/Zuweisen.h"
#include "trace/Rechenweg.h"
#include "ui/paper/Dokument.h"

namespace rippenscheibe {

class Programm;

// A run as it was: the record before and after it, and what the first page of its derivation tells.
struct Rechenweglauf {
    const Wand& vorher;
    const Grundmasse& felder;
    const Wand& nachher;
    Pruefblatt blatt;
    char dezimalzeichen = ',';  // of the result view
};
// The last run of the open position.
Rechenweglauf letzterLauf(const Programm& programm);

// The document "Rechenweg" with typeset formulas; nothing when the run is not known any more.
std::shared_ptr<const Dokument> rechenwegdokument(const Rechenweglauf& lauf);
// The same as RTF, "" when the run is not known any more.
std::string rechenwegRtf(const Rechenweglauf& lauf);

}  // namespace rippenscheibe
