#pragma once

#include <array>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

#include "basis/Herkunft.h"

// Failing arithmetic. Every calculation routine goes on when a statement fails, and the failing
// assignment leaves its target unchanged. `Zahl` carries the failure through a formula, `Feld` and
// its kin refuse to store it. So a formula reads as in the standard and needs no guard by hand.

namespace rippenscheibe {

// A double that may have failed: by division by zero (0/0 too), overflow, the root of a negative
// number, a power without real value, or a read outside an array. Everything computed from a failed
// value has failed too, and every comparison with one is false, `!=` included.
// A failed value is held as NaN: stored values are always finite, so no other NaN can arise.
class Zahl {
  public:
    template <class T>
    requires std::integral<T> || std::floating_point<T>
    constexpr Zahl(T wert) : wert_(endlich(static_cast<double>(wert))) {}  // NOLINT: implicit by design

    constexpr Zahl(const Konstante& k) : Zahl(k.value()) {}     // NOLINT: implicit by design
    constexpr Zahl(const Tabellenwert& t) : Zahl(t.value()) {}  // NOLINT: implicit by design

    static constexpr Zahl fehlgeschlagen() { return Zahl(std::numeric_limits<double>::quiet_NaN()); }

    constexpr bool failed() const { return wert_ != wert_; }
    // The plain double; NaN when the value has failed.
    constexpr double value() const { return wert_; }

  private:
    static constexpr double endlich(double x) {
        constexpr double groesste = std::numeric_limits<double>::max();
        return (x >= -groesste && x <= groesste) ? x : std::numeric_limits<double>::quiet_NaN();
    }

    double wert_;
};

// Free functions, so that stored fields and literals convert on either side.
constexpr Zahl operator+(Zahl a, Zahl b) { return a.value() + b.value(); }
constexpr Zahl operator-(Zahl a, Zahl b) { return a.value() - b.value(); }
constexpr Zahl operator*(Zahl a, Zahl b) { return a.value() * b.value(); }
constexpr Zahl operator/(Zahl a, Zahl b) {
    return b.value() == 0.0 ? Zahl::fehlgeschlagen() : Zahl(a.value() / b.value());
}
constexpr Zahl operator-(Zahl a) { return -a.value(); }

constexpr bool operator==(Zahl a, Zahl b) { return a.value() == b.value(); }
constexpr bool operator!=(Zahl a, Zahl b) { return !a.failed() && !b.failed() && a.value() != b.value(); }
constexpr bool operator<(Zahl a, Zahl b) { return a.value() < b.value(); }
constexpr bool operator<=(Zahl a, Zahl b) { return a.value() <= b.value(); }
constexpr bool operator>(Zahl a, Zahl b) { return a.value() > b.value(); }
constexpr bool operator>=(Zahl a, Zahl b) { return a.value() >= b.value(); }

inline Zahl sqrt(Zahl x) { return std::sqrt(x.value()); }
inline Zahl sin(Zahl x) { return std::sin(x.value()); }
inline Zahl abs(Zahl x) { return std::fabs(x.value()); }
// x to the power y; fails for a negative x with a broken y and for 0 with a negative y.
inline Zahl pow(Zahl x, Zahl y) {
    if (x.failed() || y.failed()) return Zahl::fehlgeschlagen();
    return std::pow(x.value(), y.value());
}
// The largest whole number not above x.
inline Zahl Int(Zahl x) { return std::floor(x.value()); }
// x times 10^stellen, rounded half to even, divided by 10^stellen; 0 to 22 places.
inline Zahl Round(Zahl x, int stellen) {
    double faktor = 1;  // powers of ten up to 10^22 are exact
    for (int i = 0; i < stellen; ++i) faktor *= 10;
    return Zahl(std::nearbyint((x * faktor).value())) / faktor;
}

// Walk the arguments from the first and keep the running value on a tie. One failed argument fails
// the whole, wherever it stands.
template <class... Rest>
Zahl Min(Zahl x, Rest... rest) {
    bool failed = x.failed();
    ((failed = failed || Zahl(rest).failed(), x = Zahl(rest) < x ? Zahl(rest) : x), ...);
    return failed ? Zahl::fehlgeschlagen() : x;
}
template <class... Rest>
Zahl Max(Zahl x, Rest... rest) {
    bool failed = x.failed();
    ((failed = failed || Zahl(rest).failed(), x = Zahl(rest) > x ? Zahl(rest) : x), ...);
    return failed ? Zahl::fehlgeschlagen() : x;
}

// A stored value of the record. Assigning a `Zahl` that has failed, or that is too large for the
// type, does nothing. A whole number is taken half to even.
template <class T>
class Gespeichert {
  public:
    using Typ = T;

    constexpr Gespeichert() = default;
    constexpr explicit Gespeichert(T wert) : wert_(wert) {}

    Gespeichert& operator=(Zahl z) {
        if (z.failed()) return *this;
        if constexpr (std::integral<T>) {
            const double ganz = std::nearbyint(z.value());
            if (ganz < std::numeric_limits<T>::min() || ganz > std::numeric_limits<T>::max()) return *this;
            wert_ = static_cast<T>(ganz);
        } else {
            if (std::fabs(z.value()) > std::numeric_limits<T>::max()) return *this;
            wert_ = static_cast<T>(z.value());
        }
        return *this;
    }
    Gespeichert& operator+=(Zahl z) { return *this = Zahl(*this) + z; }
    Gespeichert& operator*=(Zahl z) { return *this = Zahl(*this) * z; }

    constexpr operator Zahl() const { return wert_; }  // NOLINT: implicit by design
    constexpr T value() const { return wert_; }

  private:
    T wert_{};
};

using Feld = Gespeichert<double>;
using Feld32 = Gespeichert<float>;
using Ganzzahl = Gespeichert<std::int16_t>;

// The type that holds a field of this type in the record. The build of `trace` puts one that remembers in
// place of a truth value.
template <class T>
using Feldtyp = T;

// One double a rib: index 1 is the left edge rib, the last the right one, 0 is never written. A read
// outside 0..200 has failed, a write there is ignored.
class Rippenfeld {
  public:
    static constexpr std::size_t laenge = 201;

    // One element, to be read as a `Zahl` and assigned as a `Feld`.
    class Stelle {
      public:
        Stelle& operator=(Zahl z) {
            if (element_ != nullptr && !z.failed()) *element_ = z.value();
            return *this;
        }
        Stelle& operator=(const Stelle& andere) { return *this = Zahl(andere); }
        Stelle(const Stelle&) = default;
        Stelle& operator+=(Zahl z) { return *this = Zahl(*this) + z; }
        operator Zahl() const {
            return element_ != nullptr ? Zahl(*element_) : Zahl::fehlgeschlagen();
        }  // NOLINT

      private:
        friend class Rippenfeld;
        explicit Stelle(double* element) : element_(element) {}
        double* element_;
    };

    Stelle operator()(Zahl i) { return Stelle(enthaelt(i) ? &werte_[index(i)] : nullptr); }
    Zahl operator()(Zahl i) const { return enthaelt(i) ? Zahl(werte_[index(i)]) : Zahl::fehlgeschlagen(); }
    // The same by a whole number, as the loops over the ribs count: there is nothing to round.
    template <std::integral I>
    Stelle operator()(I i) {
        return Stelle(enthaelt(i) ? &werte_[static_cast<std::size_t>(i)] : nullptr);
    }
    template <std::integral I>
    Zahl operator()(I i) const {
        return enthaelt(i) ? Zahl(werte_[static_cast<std::size_t>(i)]) : Zahl::fehlgeschlagen();
    }

    // Sets every element to 0.
    void leere() { werte_.fill(0.0); }

  private:
    static bool enthaelt(Zahl i) {
        const double ganz = std::nearbyint(i.value());
        return ganz >= 0.0 && ganz < static_cast<double>(laenge);
    }
    template <std::integral I>
    static bool enthaelt(I i) {
        return std::in_range<std::size_t>(i) && static_cast<std::size_t>(i) < laenge;
    }
    static std::size_t index(Zahl i) { return static_cast<std::size_t>(std::nearbyint(i.value())); }

    std::array<double, laenge> werte_{};
};

}  // namespace rippenscheibe
