#pragma once

namespace rippenscheibe {

inline constexpr double mmJeZoll = 25.4;
inline constexpr double punkteJeZoll = 72.0;  // points of type

}  // namespace rippenscheibe
