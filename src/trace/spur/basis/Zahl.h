#pragma once

#include <array>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "basis/Herkunft.h"
#include "trace/spur/Aufzeichnung.h"

// The failing arithmetic once more, for the build of the calculation that remembers: a `Zahl` knows the node
// it came from, a field the node of what it holds. It stands in place of basis/Zahl.h, has its interface and
// yields the same bits; what the types mean is told there.

namespace rippenscheibe {

using herleitung::Aufzeichnung;
using herleitung::Op;
using herleitung::Ort;
using herleitung::Vergleich;

class Zahl {
  public:
    template <class T>
    requires std::integral<T> || std::floating_point<T>
    constexpr Zahl(T wert) : wert_(endlich(static_cast<double>(wert))) {}  // NOLINT: implicit by design
    constexpr Zahl(double wert, Ort knoten) : wert_(endlich(wert)), knoten_(knoten) {}

    Zahl(const Konstante& k) : wert_(endlich(k.value())) {  // NOLINT: implicit by design
        if (Aufzeichnung* a = Aufzeichnung::aktive()) knoten_ = a->konstante(wert_, k.zeichen());
    }
    Zahl(const Tabellenwert& t) : wert_(endlich(t.value())) {  // NOLINT: implicit by design
        if (Aufzeichnung* a = Aufzeichnung::aktive()) knoten_ = a->tabellenwert(wert_, t.zelle());
    }

    static constexpr Zahl fehlgeschlagen() { return Zahl(std::numeric_limits<double>::quiet_NaN()); }

    constexpr bool failed() const { return wert_ != wert_; }
    constexpr double value() const { return wert_; }

    constexpr Ort herkunft() const { return knoten_; }
    Ort knoten(Aufzeichnung& a) const {
        if (knoten_ != herleitung::keiner) return knoten_;
        return a.knoten(failed() ? Op::fehlt : Op::zahl, wert_);
    }

  private:
    static constexpr double endlich(double x) {
        constexpr double groesste = std::numeric_limits<double>::max();
        return (x >= -groesste && x <= groesste) ? x : std::numeric_limits<double>::quiet_NaN();
    }

    double wert_;
    Ort knoten_ = herleitung::keiner;
};

namespace spur {

inline Zahl ergebnis(Op op, double wert, Zahl a) {
    Aufzeichnung* auf = Aufzeichnung::aktive();
    const Zahl z(wert);
    return auf == nullptr ? z : Zahl(wert, auf->knoten(op, z.value(), a.knoten(*auf)));
}
inline Zahl ergebnis(Op op, double wert, Zahl a, Zahl b) {
    Aufzeichnung* auf = Aufzeichnung::aktive();
    const Zahl z(wert);
    if (auf == nullptr) return z;
    const Ort links = a.knoten(*auf);
    return Zahl(wert, auf->knoten(op, z.value(), links, b.knoten(*auf)));
}
// A comparison of two numbers of the code tells nothing.
inline bool verglichen(Vergleich v, Zahl a, Zahl b, bool gilt) {
    Aufzeichnung* auf = Aufzeichnung::aktive();
    if (auf != nullptr && (a.herkunft() != herleitung::keiner || b.herkunft() != herleitung::keiner)) {
        const Ort links = a.knoten(*auf);
        auf->vergleich(v, links, b.knoten(*auf), gilt);
    }
    return gilt;
}

template <std::size_t N>
Zahl auswahl(Op op, const std::array<Zahl, N>& werte) {
    Zahl gewaehlt = werte[0];
    bool failed = false;
    std::array<Ort, N> orte{};
    Aufzeichnung* auf = Aufzeichnung::aktive();
    for (std::size_t i = 0; i < N; ++i) {
        const Zahl z = werte[i];
        failed = failed || z.failed();
        const bool besser = op == Op::kleinstes ? z.value() < gewaehlt.value() : z.value() > gewaehlt.value();
        if (besser) gewaehlt = z;
        if (auf != nullptr) orte[i] = z.knoten(*auf);
    }
    const double wert = failed ? Zahl::fehlgeschlagen().value() : gewaehlt.value();
    return auf == nullptr ? Zahl(wert) : Zahl(wert, auf->auswahl(op, wert, orte));
}

}  // namespace spur

inline Zahl operator+(Zahl a, Zahl b) { return spur::ergebnis(Op::plus, a.value() + b.value(), a, b); }
inline Zahl operator-(Zahl a, Zahl b) { return spur::ergebnis(Op::minus, a.value() - b.value(), a, b); }
inline Zahl operator*(Zahl a, Zahl b) { return spur::ergebnis(Op::mal, a.value() * b.value(), a, b); }
inline Zahl operator/(Zahl a, Zahl b) {
    const double wert = b.value() == 0.0 ? Zahl::fehlgeschlagen().value() : a.value() / b.value();
    return spur::ergebnis(Op::durch, wert, a, b);
}
inline Zahl operator-(Zahl a) { return spur::ergebnis(Op::negativ, -a.value(), a); }

inline bool operator==(Zahl a, Zahl b) {
    return spur::verglichen(Vergleich::gleich, a, b, a.value() == b.value());
}
inline bool operator!=(Zahl a, Zahl b) {
    const bool gilt = !a.failed() && !b.failed() && a.value() != b.value();
    return spur::verglichen(Vergleich::ungleich, a, b, gilt);
}
inline bool operator<(Zahl a, Zahl b) {
    return spur::verglichen(Vergleich::kleiner, a, b, a.value() < b.value());
}
inline bool operator<=(Zahl a, Zahl b) {
    return spur::verglichen(Vergleich::kleinerGleich, a, b, a.value() <= b.value());
}
inline bool operator>(Zahl a, Zahl b) {
    return spur::verglichen(Vergleich::groesser, a, b, a.value() > b.value());
}
inline bool operator>=(Zahl a, Zahl b) {
    return spur::verglichen(Vergleich::groesserGleich, a, b, a.value() >= b.value());
}

inline Zahl sqrt(Zahl x) { return spur::ergebnis(Op::wurzel, std::sqrt(x.value()), x); }
inline Zahl sin(Zahl x) { return spur::ergebnis(Op::sinus, std::sin(x.value()), x); }
inline Zahl abs(Zahl x) { return spur::ergebnis(Op::betrag, std::fabs(x.value()), x); }
inline Zahl pow(Zahl x, Zahl y) {
    const bool failed = x.failed() || y.failed();
    const double wert = failed ? Zahl::fehlgeschlagen().value() : std::pow(x.value(), y.value());
    return spur::ergebnis(Op::hoch, wert, x, y);
}
inline Zahl Int(Zahl x) { return spur::ergebnis(Op::ganz, std::floor(x.value()), x); }
inline Zahl Round(Zahl x, int stellen) {
    const double faktor = std::pow(10.0, stellen);
    const Zahl wert(std::nearbyint(Zahl(x.value() * faktor).value()) / faktor);
    Aufzeichnung* auf = Aufzeichnung::aktive();
    if (auf == nullptr) return wert;
    return Zahl(wert.value(), auf->knoten(Op::gerundet, wert.value(), x.knoten(*auf), stellen));
}

template <class Erste, class... Rest>
Zahl Min(const Erste& x, const Rest&... rest) {
    return spur::auswahl(Op::kleinstes, std::array<Zahl, 1 + sizeof...(Rest)>{Zahl(x), Zahl(rest)...});
}
template <class Erste, class... Rest>
Zahl Max(const Erste& x, const Rest&... rest) {
    return spur::auswahl(Op::groesstes, std::array<Zahl, 1 + sizeof...(Rest)>{Zahl(x), Zahl(rest)...});
}

// A field of the record once it has been given its place in the field index; any other one is a local
// variable of the calculation and stands for its expression.
template <class T>
class Gespeichert {
  public:
    using Typ = T;

    constexpr Gespeichert() = default;
    constexpr explicit Gespeichert(T wert) : wert_(wert) {}
    Gespeichert(const Gespeichert& andere) : wert_(andere.wert_), knoten_(andere.knoten_) {}

    Gespeichert& operator=(const Gespeichert& andere) { return *this = Zahl(andere); }
    Gespeichert& operator=(Zahl z) {
        const bool passt = nimm(z);
        Aufzeichnung* auf = Aufzeichnung::aktive();
        if (auf == nullptr) return *this;
        if (feld_ == herleitung::keiner) {
            if (passt) knoten_ = z.knoten(*auf);
        } else {
            const Ort davor = knoten(*auf);
            knoten_ = auf->schritt({feld_, -1, herleitung::keiner, static_cast<double>(wert_)},
                                   z.knoten(*auf), davor, !passt);
        }
        return *this;
    }
    Gespeichert& operator+=(Zahl z) { return *this = Zahl(*this) + z; }
    Gespeichert& operator*=(Zahl z) { return *this = Zahl(*this) * z; }

    operator Zahl() const {  // NOLINT: implicit by design
        Aufzeichnung* auf = Aufzeichnung::aktive();
        return auf == nullptr ? Zahl(wert_) : Zahl(static_cast<double>(wert_), knoten(*auf));
    }
    // Read as a plain number, a choice most often: it counts as a condition of what follows.
    T value() const {
        if constexpr (std::integral<T>) (void)(Zahl(*this) == Zahl(wert_));
        return wert_;
    }

    void setze(T wert, Ort feld) {
        wert_ = wert;
        feld_ = feld;
    }

  private:
    bool nimm(Zahl z) {
        if (z.failed()) return false;
        const double x = std::integral<T> ? std::nearbyint(z.value()) : z.value();
        if (x < static_cast<double>(std::numeric_limits<T>::lowest())) return false;
        if (x > static_cast<double>(std::numeric_limits<T>::max())) return false;
        wert_ = static_cast<T>(x);
        return true;
    }
    Ort knoten(Aufzeichnung& auf) const {
        if (knoten_ == herleitung::keiner) {
            const double wert = static_cast<double>(wert_);
            knoten_ = feld_ == herleitung::keiner ? auf.knoten(Op::zahl, wert) : auf.anfang(feld_, -1, wert);
        }
        return knoten_;
    }

    T wert_{};
    Ort feld_ = herleitung::keiner;
    mutable Ort knoten_ = herleitung::keiner;
};

using Feld = Gespeichert<double>;
using Feld32 = Gespeichert<float>;
using Ganzzahl = Gespeichert<std::int16_t>;

// A truth value of the record. Asking it is a condition of what follows.
class Schalter {
  public:
    constexpr Schalter() = default;
    constexpr explicit Schalter(bool wert) : wert_(wert) {}

    Schalter& operator=(bool wert) {
        wert_ = wert;
        Aufzeichnung* auf = Aufzeichnung::aktive();
        if (auf == nullptr) return *this;
        const Ort davor = knoten(*auf);
        const double x = wert ? 1 : 0;
        knoten_ = auf->schritt({feld_, -1, herleitung::keiner, x}, auf->knoten(Op::zahl, x), davor, false);
        return *this;
    }
    operator bool() const {  // NOLINT: implicit by design
        Aufzeichnung* auf = Aufzeichnung::aktive();
        if (auf != nullptr) {
            const Ort links = knoten(*auf);
            auf->vergleich(Vergleich::gleich, links, auf->knoten(Op::zahl, wert_ ? 1 : 0), true);
        }
        return wert_;
    }

    void setze(bool wert, Ort feld) {
        wert_ = wert;
        feld_ = feld;
    }

  private:
    Ort knoten(Aufzeichnung& auf) const {
        if (knoten_ == herleitung::keiner) knoten_ = auf.anfang(feld_, -1, wert_ ? 1 : 0);
        return knoten_;
    }

    bool wert_ = false;
    Ort feld_ = herleitung::keiner;
    mutable Ort knoten_ = herleitung::keiner;
};

template <class T>
using Feldtyp = std::conditional_t<std::is_same_v<T, bool>, Schalter, T>;

class Rippenfeld {
  public:
    static constexpr std::size_t laenge = 201;

    class Stelle {
      public:
        Stelle& operator=(Zahl z) {
            feld_->weiseZu(index_, z);
            return *this;
        }
        // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): a step like any other
        Stelle& operator=(const Stelle& andere) { return *this = Zahl(andere); }
        Stelle(const Stelle&) = default;
        Stelle& operator+=(Zahl z) { return *this = Zahl(*this) + z; }
        operator Zahl() const { return feld_->lies(index_); }  // NOLINT

      private:
        friend class Rippenfeld;
        Stelle(Rippenfeld* feld, double index) : feld_(feld), index_(index) {}
        Rippenfeld* feld_;
        double index_;
    };

    Stelle operator()(Zahl i) { return Stelle(this, std::nearbyint(i.value())); }
    Zahl operator()(Zahl i) const { return lies(std::nearbyint(i.value())); }

    void leere() {
        for (std::size_t i = 0; i < laenge; ++i) weiseZu(static_cast<double>(i), 0);
    }

    void setze(std::size_t i, double wert) { werte_[i] = wert; }
    void setze(Ort feld) { feld_ = feld; }

  private:
    static bool enthaelt(double i) { return i >= 0.0 && i < static_cast<double>(laenge); }

    Ort knoten(Aufzeichnung& auf, std::size_t i) const {
        Ort& k = knoten_[i];
        if (k == 0) k = auf.anfang(feld_, static_cast<int>(i), werte_[i]) + 1;
        return k - 1;
    }
    Zahl lies(double index) const {
        Aufzeichnung* auf = Aufzeichnung::aktive();
        if (!enthaelt(index)) {
            const Zahl nichts = Zahl::fehlgeschlagen();
            if (auf == nullptr) return nichts;
            const Ort gesucht = index == index ? static_cast<Ort>(index) : herleitung::keiner;
            return Zahl(nichts.value(), auf->knoten(Op::fehlt, nichts.value(), feld_, gesucht));
        }
        const auto i = static_cast<std::size_t>(index);
        return auf == nullptr ? Zahl(werte_[i]) : Zahl(werte_[i], knoten(*auf, i));
    }
    void weiseZu(double index, Zahl z) {
        if (!enthaelt(index)) return;
        const auto i = static_cast<std::size_t>(index);
        Aufzeichnung* auf = Aufzeichnung::aktive();
        const Ort davor = auf != nullptr ? knoten(*auf, i) : herleitung::keiner;
        if (!z.failed()) werte_[i] = z.value();
        if (auf == nullptr) return;
        knoten_[i] = 1 + auf->schritt({feld_, static_cast<int>(index), herleitung::keiner, werte_[i]},
                                      z.knoten(*auf), davor, z.failed());
    }

    std::array<double, laenge> werte_{};
    mutable std::array<Ort, laenge> knoten_{};  // one above the node, 0 for none yet
    Ort feld_ = herleitung::keiner;
};

}  // namespace rippenscheibe
