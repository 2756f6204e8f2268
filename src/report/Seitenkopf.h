#pragma once

#include <string_view>

#include "model/Einstellungen.h"
#include "report/Zeichenflaeche.h"

namespace rippenscheibe {

inline constexpr std::string_view Programmzeile = "Rippenscheibe 2.0 - DIN 1052 (2008)";

// Draws the page head; an empty page label prints none. Afterwards the surface has a thin line and
// Arial 10 plain.
void druckeKopf(Zeichenflaeche& f, const Einstellungen& e, std::string_view seitenzahl);

// Draws the foot line, if it is switched on.
void druckeFuss(Zeichenflaeche& f, const Einstellungen& e, std::string_view projekt,
                std::string_view position);

}  // namespace rippenscheibe
