#pragma once

#include <array>
#include <concepts>
#include <string_view>

#include "trace/spur/Aufzeichnung.h"

// What stands in place of basis/Herkunft.h in the build that remembers.

namespace rippenscheibe {

class Konstante {
  public:
    constexpr Konstante(std::string_view zeichen, double wert) : zeichen_(zeichen), wert_(wert) {}
    constexpr double value() const { return wert_; }
    constexpr std::string_view zeichen() const { return zeichen_; }

  private:
    std::string_view zeichen_;
    double wert_;
};

// A copy remembers the cell it came from.
class Tabellenwert {
  public:
    constexpr Tabellenwert() = default;
    template <class T>
    requires std::integral<T> || std::floating_point<T>
    constexpr Tabellenwert(T wert) : wert_(static_cast<double>(wert)) {}  // NOLINT: implicit by design
    constexpr Tabellenwert(const Tabellenwert& andere) : wert_(andere.wert_), zelle_(andere.zelle()) {}
    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): it owns nothing
    constexpr Tabellenwert& operator=(const Tabellenwert& andere) {
        wert_ = andere.wert_;
        zelle_ = andere.zelle();
        return *this;
    }
    constexpr double value() const { return wert_; }
    constexpr const Tabellenwert* zelle() const { return zelle_ != nullptr ? zelle_ : this; }

  private:
    double wert_ = 0.0;
    const Tabellenwert* zelle_ = nullptr;
};

class Tabellenangabe {
  public:
    template <class Tabelle>
    Tabellenangabe(const Tabelle& tabelle, std::string_view name) {
        herleitung::meldeTabelleAn({tabelle.data(), sizeof(*tabelle.data()), tabelle.size(), name});
    }
};

inline void soVorgegeben(std::string_view satz) {
    if (herleitung::Aufzeichnung* a = herleitung::Aufzeichnung::aktive()) a->vorgabe(satz);
}

}  // namespace rippenscheibe
