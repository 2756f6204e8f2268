#pragma once

namespace rippenscheibe {

// Partial factors of the actions (DIN 1055-100): permanent, variable, and permanent where it stabilises.
inline constexpr double gammaG = 1.35;
inline constexpr double gammaQ = 1.5;
inline constexpr double gammaGStabilisierend = 0.9;

// Partial factor of timber and sheathing (DIN 1052 (2008), table 1).
inline constexpr double gammaM = 1.3;

}  // namespace rippenscheibe
