#pragma once

#include <array>
#include <cstddef>

namespace rippenscheibe {

// The two sides of the panel: Beplankung 1 and Beplankung 2.
enum class Seite : std::size_t { eins = 0, zwei = 1 };

inline constexpr std::array<Seite, 2> beideSeiten{Seite::eins, Seite::zwei};

// The number under which a side stands in names, messages and the report.
constexpr int nummer(Seite n) { return n == Seite::eins ? 1 : 2; }
constexpr Seite gegenueber(Seite n) { return n == Seite::eins ? Seite::zwei : Seite::eins; }

// A field that exists once a side, indexed by the side: `w.Rd[n]` is Rd1 or Rd2.
template <class T>
struct Paar {
    std::array<T, 2> werte{};

    constexpr T& operator[](Seite n) { return werte[static_cast<std::size_t>(n)]; }
    constexpr const T& operator[](Seite n) const { return werte[static_cast<std::size_t>(n)]; }
};

}  // namespace rippenscheibe
