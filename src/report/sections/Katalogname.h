#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "model/Kataloge.h"

namespace rippenscheibe {

// A catalogue has more rows than names; the rows behind them are empty.
inline constexpr int zeilenHolzarten = 20;
inline constexpr int zeilenPlattenmaterialien = 20;
inline constexpr int zeilenVMArten = 10;
inline constexpr int zeilenVMTypen = 31;

// What stands in row `index` of a catalogue; nothing when there is no such row, and the line falls out.
inline std::optional<std::string_view> katalogname(std::span<const std::string_view> katalog, int zeilen,
                                                   int index) {
    if (index < 1 || index > zeilen) return std::nullopt;
    return eintrag(katalog, index);
}

}  // namespace rippenscheibe
