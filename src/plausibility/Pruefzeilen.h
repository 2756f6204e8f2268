#pragma once

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>
#include <vector>

#include "model/Wand.h"
#include "plausibility/Hinweistexte.h"

// The rows and ranges of which the tables of the checks are made, and what runs them over one side.

namespace rippenscheibe {

// ---- groups of the catalogues -------------------------------------------------------------------

using Plattengruppe = bool (*)(Platte);
using Artgruppe = bool (*)(Art);

constexpr bool jedePlatte(Platte) { return true; }
constexpr bool jedeArt(Art) { return true; }

constexpr bool keineGipsfaser(Platte p) { return !istGipsfaser(p); }
constexpr bool holzwerkstoff(Platte p) { return istOsb(p) || istSpanplatteOderWeiter(p); }

template <Art gesucht>
constexpr bool nur(Art a) {
    return a == gesucht;
}

// ---- what the checks of one side look at --------------------------------------------------------

struct Angaben {
    Platte Material;
    Art VMArt;
    Zahl t;           // mm, like all lengths here
    Zahl d;           // nominal diameter
    Zahl ln;          // length
    Zahl fuk;         // N/mm²
    Zahl dk;          // head diameter
    Zahl lg;          // thread or groove length
    Zahl lef;         // effective thread length
    Zahl hRandrippe;  // depth of the ribs
};

inline Angaben angaben(const Wand& w, Seite n) {
    return {plattenmaterial(w, n), vmArt(w, n), w.t[n], w.d[n], w.ln[n], w.fuk[n], w.dk[n], w.lg[n], w.lef[n],
            w.hRandrippe};
}

// ---- rows of the tables -------------------------------------------------------------------------

// A range of numbers; each end belongs to it unless it is told to be open.
struct Bereich {
    double von = std::numeric_limits<double>::lowest();
    double bis = std::numeric_limits<double>::max();
    bool vonOffen = false;
    bool bisOffen = false;

    bool liegtDarunter(Zahl x) const { return vonOffen ? x <= von : x < von; }
    bool liegtDarueber(Zahl x) const { return bisOffen ? x >= bis : x > bis; }
    bool enthaelt(Zahl x) const { return !liegtDarunter(x) && !liegtDarueber(x); }
};

inline constexpr Bereich alle{};
constexpr Bereich ab(double von) { return {.von = von}; }
constexpr Bereich ueber(double von) { return {.von = von, .vonOffen = true}; }
constexpr Bereich hoechstens(double bis) { return {.bis = bis}; }
constexpr Bereich vonBis(double von, double bis) { return {.von = von, .bis = bis}; }
constexpr Bereich zwischen(double von, double bis) {
    return {.von = von, .bis = bis, .vonOffen = true, .bisOffen = true};
}
constexpr Bereich abBisUnter(double von, double bis) { return {.von = von, .bis = bis, .bisOffen = true}; }
// Exactly this double: a diameter that was typed in as it stands in the standard.
constexpr Bereich genau(double wert) { return {.von = wert, .bis = wert}; }

// The range that a value has to keep, for some sheathings, fasteners and diameters.
struct Grenze {
    Plattengruppe Material;
    Artgruppe VMArt;
    Bereich d;
    Bereich zulaessig;
    std::string_view zuKlein;
    std::string_view zuGross;

    bool betrifft(const Angaben& a) const {
        return Material(a.Material) && VMArt(a.VMArt) && d.enthaelt(a.d);
    }
};

// A condition that must not hold.
struct Verstoss {
    bool (*liegtVor)(const Angaben&);
    std::string_view text;
};

// The only thicknesses in which a board is made, mm.
struct Plattendicken {
    Plattengruppe Material;
    std::array<double, 4> dicken;
    std::string_view text;
};

// Least penetration depth as a multiple of d.
struct Einschlagtiefe {
    Artgruppe VMArt;
    double vielfaches;
    std::string_view text;
};

// ---- running the tables -------------------------------------------------------------------------

// Appends the findings of one side whose input is made in one dialog.
class Seitenpruefung {
  public:
    Seitenpruefung(std::vector<Hinweis>& hinweise, const Wand& w, Seite n, Eingabeort ort)
        : hinweise_(hinweise), seite_(n), ort_(ort), a_(angaben(w, n)) {}

    template <std::size_t N>
    void grenzen(const std::array<Grenze, N>& tabelle, Zahl wert) {
        for (const Grenze& zeile : tabelle) {
            if (!zeile.betrifft(a_)) continue;
            if (zeile.zulaessig.liegtDarunter(wert)) melde(zeile.zuKlein);
            if (zeile.zulaessig.liegtDarueber(wert)) melde(zeile.zuGross);
        }
    }
    template <std::size_t N>
    void verstoesse(const std::array<Verstoss, N>& tabelle) {
        for (const Verstoss& zeile : tabelle)
            if (zeile.liegtVor(a_)) melde(zeile.text);
    }
    template <std::size_t N>
    void plattendicken(const std::array<Plattendicken, N>& tabelle) {
        for (const Plattendicken& zeile : tabelle) {
            const auto gleich = [this](double dicke) { return a_.t == dicke; };
            if (zeile.Material(a_.Material) && std::ranges::none_of(zeile.dicken, gleich)) melde(zeile.text);
        }
    }
    template <std::size_t N>
    void einschlagtiefe(const std::array<Einschlagtiefe, N>& tabelle) {
        for (const Einschlagtiefe& zeile : tabelle)
            if (zeile.VMArt(a_.VMArt) && a_.ln - a_.t < zeile.vielfaches * a_.d) melde(zeile.text);
    }

  private:
    void melde(std::string_view text) {
        hinweise_.push_back({mitSeite(ausgefuellt(text, a_.VMArt, a_.Material), seite_), seite_, ort_});
    }

    std::vector<Hinweis>& hinweise_;
    Seite seite_;
    Eingabeort ort_;
    Angaben a_;
};

}  // namespace rippenscheibe
