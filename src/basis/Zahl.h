#pragma once

#include <algorithm>
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
// A failed value is held as an infinity or NaN: stored values are always finite, so neither can arise
// otherwise. Adding and multiplying never make a finite number of one again, so that only a quotient and a
// comparison have to ask.
class Zahl {
  public:
    template <class T>
    requires std::integral<T> || std::floating_point<T>
    constexpr Zahl(T wert) : wert_(static_cast<double>(wert)) {}  // NOLINT: implicit by design

    constexpr Zahl(const Konstante& k) : Zahl(k.value()) {}     // NOLINT: implicit by design
    constexpr Zahl(const Tabellenwert& t) : Zahl(t.value()) {}  // NOLINT: implicit by design

    static constexpr Zahl fehlgeschlagen() { return Zahl(std::numeric_limits<double>::quiet_NaN()); }

    constexpr bool failed() const { return !std::isfinite(wert_); }
    // The plain double; NaN when the value has failed.
    constexpr double value() const { return failed() ? fehlgeschlagen().wert_ : wert_; }
    // The same as computed: an infinity or NaN when the value has failed.
    constexpr double roh() const { return wert_; }

  private:
    double wert_;
};

// Free functions, so that stored fields and literals convert on either side.
constexpr Zahl operator+(Zahl a, Zahl b) { return a.roh() + b.roh(); }
constexpr Zahl operator-(Zahl a, Zahl b) { return a.roh() - b.roh(); }
constexpr Zahl operator*(Zahl a, Zahl b) { return a.roh() * b.roh(); }
constexpr Zahl operator/(Zahl a, Zahl b) {
    return b.roh() == 0.0 || b.failed() ? Zahl::fehlgeschlagen() : Zahl(a.roh() / b.roh());
}
constexpr Zahl operator-(Zahl a) { return -a.roh(); }

constexpr bool operator==(Zahl a, Zahl b) { return a.roh() == b.roh() && !a.failed(); }
constexpr bool operator!=(Zahl a, Zahl b) { return a.roh() != b.roh() && !a.failed() && !b.failed(); }
constexpr bool operator<(Zahl a, Zahl b) { return a.roh() < b.roh() && !a.failed() && !b.failed(); }
constexpr bool operator<=(Zahl a, Zahl b) { return a.roh() <= b.roh() && !a.failed() && !b.failed(); }
constexpr bool operator>(Zahl a, Zahl b) { return b < a; }
constexpr bool operator>=(Zahl a, Zahl b) { return b <= a; }

inline Zahl sqrt(Zahl x) { return std::sqrt(x.roh()); }
inline Zahl sin(Zahl x) { return std::sin(x.roh()); }
inline Zahl abs(Zahl x) { return std::fabs(x.roh()); }
// x to the power y; fails for a negative x with a broken y and for 0 with a negative y.
inline Zahl pow(Zahl x, Zahl y) {
    if (x.failed() || y.failed()) return Zahl::fehlgeschlagen();
    return std::pow(x.roh(), y.roh());
}
// The largest whole number not above x.
inline Zahl Int(Zahl x) { return std::floor(x.roh()); }
// x times 10^stellen, rounded half to even, divided by 10^stellen; 0 to 22 places.
inline Zahl Round(Zahl x, int stellen) {
    double faktor = 1;  // powers of ten up to 10^22 are exact
    for (int i = 0; i < stellen; ++i) faktor *= 10;
    return Zahl(std::nearbyint((x * faktor).roh())) / faktor;
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
            const double ganz = std::nearbyint(z.roh());
            if (ganz < std::numeric_limits<T>::min() || ganz > std::numeric_limits<T>::max()) return *this;
            wert_ = static_cast<T>(ganz);
        } else {
            if (std::fabs(z.roh()) > std::numeric_limits<T>::max()) return *this;
            wert_ = static_cast<T>(z.roh());
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
// outside 0..200 has failed, a write there is ignored. Copying and clearing cost as many elements as were
// written: those behind are 0 still.
class Rippenfeld {
  public:
    static constexpr std::size_t laenge = 201;

    // One element, to be read as a `Zahl` and assigned as a `Feld`.
    class Stelle {
      public:
        Stelle& operator=(Zahl z) {
            feld_->weiseZu(index_, z);
            return *this;
        }
        Stelle& operator=(const Stelle& andere) { return *this = Zahl(andere); }
        Stelle(const Stelle&) = default;
        Stelle& operator+=(Zahl z) { return *this = Zahl(*this) + z; }
        operator Zahl() const { return feld_->lies(index_); }  // NOLINT: implicit by design

      private:
        friend class Rippenfeld;
        Stelle(Rippenfeld* feld, std::size_t index) : feld_(feld), index_(index) {}
        Rippenfeld* feld_;
        std::size_t index_;
    };

    Rippenfeld() = default;
    Rippenfeld(const Rippenfeld& anderes) { *this = anderes; }
    Rippenfeld& operator=(const Rippenfeld& anderes) {
        std::copy_n(anderes.werte_.begin(), anderes.belegt_, werte_.begin());
        leereAb(anderes.belegt_);
        belegt_ = anderes.belegt_;
        return *this;
    }

    Stelle operator()(Zahl i) { return Stelle(this, index(i)); }
    Zahl operator()(Zahl i) const { return lies(index(i)); }
    // The same by a whole number, as the loops over the ribs count: there is nothing to round.
    template <std::integral I>
    Stelle operator()(I i) {
        return Stelle(this, static_cast<std::size_t>(i));
    }
    template <std::integral I>
    Zahl operator()(I i) const {
        return lies(static_cast<std::size_t>(i));
    }

    // Sets every element to 0.
    void leere() { leereAb(0); }

  private:
    // Negative and failed indices come out beyond the array.
    static std::size_t index(Zahl i) {
        const double ganz = std::nearbyint(i.roh());
        return ganz >= 0.0 && ganz < static_cast<double>(laenge) ? static_cast<std::size_t>(ganz) : laenge;
    }
    Zahl lies(std::size_t i) const { return i < laenge ? Zahl(werte_[i]) : Zahl::fehlgeschlagen(); }
    void weiseZu(std::size_t i, Zahl z) {
        if (i >= laenge || z.failed()) return;
        werte_[i] = z.roh();
        belegt_ = std::max(belegt_, i + 1);
    }
    void leereAb(std::size_t erstes) {
        while (belegt_ > erstes) werte_[--belegt_] = 0.0;
    }

    std::array<double, laenge> werte_{};
    std::size_t belegt_ = 0;  // one above the last element that was written
};

}  // namespace rippenscheibe
