#pragma once

#include <concepts>
#include <string_view>

// What a number of the calculation says about itself. For the run these are plain doubles; the build of
// `trace` puts types that remember in their place.

namespace rippenscheibe {

// A named constant: the symbol that a derivation shows ("γ_{M}"), and its value.
class Konstante {
  public:
    constexpr Konstante(std::string_view /*zeichen*/, double wert) : wert_(wert) {}
    constexpr double value() const { return wert_; }

  private:
    double wert_;
};

// A cell of a table.
class Tabellenwert {
  public:
    constexpr Tabellenwert() = default;
    template <class T>
    requires std::integral<T> || std::floating_point<T>
    constexpr Tabellenwert(T wert) : wert_(static_cast<double>(wert)) {}  // NOLINT: implicit by design
    constexpr double value() const { return wert_; }

  private:
    double wert_ = 0.0;
};

// Says what an array of rows of such cells is; a derivation then names it with the row of each value.
class Tabellenangabe {
  public:
    template <class Tabelle>
    constexpr Tabellenangabe(const Tabelle& /*tabelle*/, std::string_view /*name*/) {}
};

// Stands where the calculation does what looks odd and is meant: the next step of a derivation shows the
// sentence behind "so vorgegeben: ".
constexpr void soVorgegeben(std::string_view /*satz*/) {}

}  // namespace rippenscheibe
