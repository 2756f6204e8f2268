#pragma once

#include <QString>
#include <span>
#include <utility>
#include <vector>

#include "study/Raster.h"

// Inputs and their values in the words of the dialogs.

namespace rippenscheibe {

class Programm;

using Zuweisungen = std::vector<std::pair<int, Feldwert>>;

// "Abstand der Verbindungsmittel, beide Seiten" for fields that move together.
QString feldname(std::span<const int> felder);
// The same with its unit: "Wandlänge [m]".
QString mitEinheit(std::span<const int> felder);
// The head of a column: the symbol, else the first word.
QString spaltenname(std::span<const int> felder);
// A value as a dialog shows it: the entry of a list by its name, a number with unit.
QString werttext(int feld, const Feldwert& wert);
// The value of the wall.
QString werttext(int feld, const Wand& w);
// A value of an axis: rows of a catalogue of fasteners have names of their own.
QString werttext(const Achsenwert& wert);
// What the wall has on this axis, both sides where they differ.
QString achsentext(const Achse& achse, const Wand& w);
// What changes against `heute`, in one line: "Abstand der Verbindungsmittel, beide Seiten: 60 mm → 55 mm".
QString aenderungstext(const Wand& heute, const Zuweisungen& setzt);

// The wall as a run would take it: with the three fields of the main window.
Wand studienwand(const Programm& programm);
// The wall with other values, derived values with them.
Wand mitZuweisungen(const Wand& w, const Zuweisungen& setzt);
// The position takes these values; a step of undo of this name.
void uebernimm(Programm& programm, const QString& schritt, const Zuweisungen& setzt);

}  // namespace rippenscheibe
