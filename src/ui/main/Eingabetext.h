#pragma once

#include <QString>
#include <vector>

#include "model/Wand.h"

namespace rippenscheibe {

// An input as it is read: "Nutzungsklasse der Rippen" and "2", "Plattenmaterial, Seite 1" and "OSB/3".
struct Eingabetext {
    QString name;
    QString wert;
};

// All inputs in the order of the position file, choices in words, numbers to seven digits in the unit in
// which they are entered. Left out is what another input says already.
std::vector<Eingabetext> eingabetexte(const Wand& w);

}  // namespace rippenscheibe
