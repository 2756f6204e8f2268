#pragma once

#include "model/Wand.h"

// Walls that tests start from.

namespace rippenscheibe::inline tests {

constexpr Seite S1 = Seite::eins;
constexpr Seite S2 = Seite::zwei;
constexpr double eps = 1e-9;

// All defaults of a new position: 5.0 x 2.5 m, spacing 625 mm, OSB/3 15 mm nailed on both sides.
inline Wand vorgabewand() { return Wand{}; }

inline double wert(Zahl z) { return z.value(); }

}  // namespace rippenscheibe::inline tests
