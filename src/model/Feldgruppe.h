#pragma once

#include <array>
#include <limits>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "basis/Seite.h"
#include "basis/Zahl.h"

// How the record declares and describes its fields in one place. A group is a macro that lists its
// fields, one a line: type, name, default, unit, meaning, and where they are known symbol, range, mask and
// source; a field of the two sides also with the two names it is printed under. GRUPPE turns the list into a
// struct with these members and a static `felder(gruppe, besucher)` that calls the visitor for each field in
// order:
//     besucher(Feldangabe, Typ& feld)
// JSON, the field index, the dialogs and the tests all come from this description.

namespace rippenscheibe {

using Texte = std::vector<std::string>;

// The values that may be entered, in the unit of the field; both limits belong to it.
struct Wertebereich {
    double min = std::numeric_limits<double>::lowest();
    double max = std::numeric_limits<double>::max();

    bool enthaelt(double wert) const { return wert >= min && wert <= max; }
    // False for a field whose values are not limited, or are no numbers.
    bool begrenzt() const { return *this != Wertebereich{}; }
    bool operator==(const Wertebereich&) const = default;
};

// What is to be known of a field besides its value.
struct Feldangabe {
    std::string_view name;       // as printed: "Wandlaenge", "Rd2", "fv0d1Term3"
    std::string_view einheit;    // "mm", "N/mm²", "-"; empty for texts, choices and truth values
    std::string_view bedeutung;  // one German phrase
    std::string_view symbol{};   // "f_{u,k}": braces hold the index; the same for both sides
    Wertebereich bereich{};
    std::string_view maske{};   // how a dialog shows it, in the dialog's unit: "0.0"
    std::string_view quelle{};  // clause of the standard
    int seite = 0;              // 1 or 2 of a field of both sides
};

// Groups joined to one flat struct, visited one after another.
template <class... G>
struct Gruppen : G... {
    template <class W, class Besucher>
    static void jedesFeld(W& w, Besucher& besucher) {
        (G::felder(w, besucher), ...);
    }
    // Calls the visitor for each group: besucher(name, group).
    template <class W, class Besucher>
    static void jedeGruppe(W& w, Besucher&& besucher) {
        (besucher(G::gruppenname, static_cast<ebensoKonstant<W, G>&>(w)), ...);
    }

  private:
    template <class W, class T>
    using ebensoKonstant = std::conditional_t<std::is_const_v<W>, const T, T>;
};

}  // namespace rippenscheibe

// clang-format off
#define RS_FELD_DECLARE(Typ, Name, Vorgabe, Einheit, Bedeutung, ...) Feldtyp<Typ> Name{Vorgabe};
#define RS_PAAR_DECLARE(Typ, Name, Name1, Name2, Vorgabe, Einheit, Bedeutung, ...) \
    Paar<Feldtyp<Typ>> Name{{Feldtyp<Typ>(Vorgabe), Feldtyp<Typ>(Vorgabe)}};

#define RS_ANGABE(Name, Einheit, Bedeutung, ...) \
    Feldangabe{.name = Name, .einheit = Einheit, .bedeutung = Bedeutung __VA_OPT__(,) __VA_ARGS__}
#define RS_FELD_DESCRIBE(Typ, Name, Vorgabe, Einheit, Bedeutung, ...) \
    besucher(RS_ANGABE(#Name, Einheit, Bedeutung __VA_OPT__(,) __VA_ARGS__), gruppe.Name);
#define RS_PAAR_DESCRIBE(Typ, Name, Name1, Name2, Vorgabe, Einheit, Bedeutung, ...) \
    besucher(RS_ANGABE(Name1, Einheit, Bedeutung __VA_OPT__(,) __VA_ARGS__, .seite = 1), gruppe.Name[Seite::eins]); \
    besucher(RS_ANGABE(Name2, Einheit, Bedeutung __VA_OPT__(,) __VA_ARGS__, .seite = 2), gruppe.Name[Seite::zwei]);
// clang-format on

#define RS_GRUPPE(Name, LISTE)                                    \
    struct Name {                                                 \
        static constexpr std::string_view gruppenname = #Name;    \
        LISTE(RS_FELD_DECLARE, RS_PAAR_DECLARE)                   \
        template <class Gruppe, class Besucher>                   \
        static void felder(Gruppe& gruppe, Besucher&& besucher) { \
            LISTE(RS_FELD_DESCRIBE, RS_PAAR_DESCRIBE)             \
        }                                                         \
    };
