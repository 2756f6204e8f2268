#pragma once

#include <QString>
#include <optional>

#include "run/Urteil.h"

namespace rippenscheibe {

// "✓ Alle Nachweise erfüllt" or "✗ 2 Nachweise überschritten" or the number of findings.
QString urteilssatz(const Wand& w, Laufergebnis ergebnis = Laufergebnis::gerechnet);
// "maßgebend 0,61 · 5.1 Scheibenschub parallel"; without demand "keine Beanspruchung".
QString massgebendsatz(const Wand& w, Laufergebnis ergebnis = Laufergebnis::gerechnet);

// What a run without a history says where this one says something else.
struct Frischvergleich {
    QString urteil;   // verdict and decisive value of the fresh run
    QString ursache;  // why the two differ
};

// Results stay in the record between runs, and some enter the next run: that is required. Compares all
// printed lines with those of a fresh run of the same inputs; nothing when they are the same.
std::optional<Frischvergleich> frischvergleich(const Wand& w);

}  // namespace rippenscheibe
