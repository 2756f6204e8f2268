#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace rippenscheibe {

// The names of the rows of a catalogue, for lists to choose from.
template <class Zeile, std::size_t anzahl>
constexpr std::array<std::string_view, anzahl> namenAus(const std::array<Zeile, anzahl>& zeilen) {
    std::array<std::string_view, anzahl> namen{};
    for (std::size_t i = 0; i < anzahl; ++i) namen[i] = zeilen[i].name;
    return namen;
}

}  // namespace rippenscheibe
