#pragma once

#include <QString>
#include <cstddef>

#include "ui/basics/Programm.h"

// What is said of a run, in the words of all windows.

namespace rippenscheibe {

// "✓ Alle Nachweise erfüllt", "✗ 1 Nachweis überschritten", "✗ 2 Nachweise überschritten".
QString nachweissatz(int ueberschritten);
// "1 Hinweis", "3 Hinweise".
QString hinweiszahl(std::size_t hinweise);
// "0,73": two decimals; above 1 as many as tell the value from 1; "∞" when there is no resistance.
QString etatext(double eta, char zeichen = dezimalzeichen());

}  // namespace rippenscheibe
