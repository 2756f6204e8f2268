#pragma once

#include "basis/Herkunft.h"

namespace rippenscheibe {

// Partial factors of the actions (DIN 1055-100): permanent, variable, and permanent where it stabilises.
inline constexpr Konstante gammaG{"γ_{G}", 1.35};
inline constexpr Konstante gammaQ{"γ_{Q}", 1.5};
inline constexpr Konstante gammaGStabilisierend{"γ_{G,stb}", 0.9};

// Partial factor of timber and sheathing (DIN 1052 (2008), table 1).
inline constexpr Konstante gammaM{"γ_{M}", 1.3};

}  // namespace rippenscheibe
