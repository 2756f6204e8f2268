#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What the traced run leaves behind: every value as a node that knows its operation and its operands, every
// assignment of a field as a step. Plain data that both builds of the calculation share, hence in a
// namespace of its own.

namespace herleitung {

using Ort = std::int32_t;  // place in one of the lists of the graph
inline constexpr Ort keiner = -1;

enum class Op : std::uint8_t {
    zahl,       // a number of the code
    konstante,  // a named constant of the code: a is its name
    tabelle,    // a value of a table: a is the table, b the row from 0
    eigenes,    // a value of the own materials: a is the row, b the column
    stand,      // what a field held: a is the stand
    fehlt,      // a value that is not there: a is the field (or none), b the index asked for
    plus,
    minus,
    mal,
    durch,
    negativ,
    hoch,
    wurzel,
    sinus,
    betrag,
    ganz,       // the largest whole number not above a
    gerundet,   // a to b decimal places, half to even
    kleinstes,  // of the arguments a to b (behind the last)
    groesstes,
};

struct Knoten {
    Op op = Op::zahl;
    double wert = 0.0;  // NaN: failed
    Ort a = keiner;
    Ort b = keiner;
};

enum class Typ : std::uint8_t { f64, f32, i16, wahrheit, rippen, text };

// One field of the record, in the order of the field index.
struct Feldeintrag {
    std::string_view name;
    std::string_view einheit;
    std::string_view bedeutung;
    std::string zeichen;  // "f_{m,d}", of a side "f_{v,d,1}"
    std::string_view quelle;
    Typ typ = Typ::f64;
    bool eingabe = false;
};

// What a field (and rib) held at one time: from a step, or from before the run.
struct Stand {
    Ort feld = keiner;
    int rippe = -1;  // -1 for a field that is no array
    Ort schritt = keiner;
    double wert = 0.0;
};

enum class Vergleich : std::uint8_t { gleich, ungleich, kleiner, kleinerGleich, groesser, groesserGleich };
struct Bedingung {
    Vergleich vergleich = Vergleich::gleich;
    Ort links = keiner;
    Ort rechts = keiner;
    bool gilt = true;
};

// One assignment. A failed one keeps what the field held.
struct Schritt {
    Ort stand = keiner;
    Ort ausdruck = keiner;
    Ort vorher = keiner;  // the stand it replaces; none for the first assignment
    bool behalten = false;
    std::vector<Bedingung> bedingungen;      // what led here
    std::vector<std::string_view> vorgaben;  // what is odd here, and meant
};

// A printed number of a report line: bytes `von` to `bis` (behind the last) of its text.
struct Zahlstelle {
    std::size_t von = 0;
    std::size_t bis = 0;
    Ort ausdruck = keiner;
};
struct Berichtszeile {
    std::string text;
    bool ueberschrift = false;
    std::vector<Zahlstelle> zahlen;
};

struct Graph {
    std::vector<Knoten> knoten;
    std::vector<Ort> argumente;
    std::vector<Stand> staende;
    std::vector<Schritt> schritte;
    std::vector<Feldeintrag> felder;
    std::vector<std::string_view> konstanten;
    std::vector<std::string_view> tabellen;
    std::vector<Berichtszeile> bericht;  // the result view, one entry a paragraph
    int rippen = 0;                      // AnzahlRippen after the run, at most 200
    bool erfuellt = false;
};

}  // namespace herleitung
