#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "model/Feldgruppe.h"

// The calculation report as a stream of values. One builder yields it from the record; text, RTF and
// pages are small back ends that walk it. Values for pages only (cursor, page break, picture) mean
// nothing to running text, blank lines and rules mean nothing to pages.
// Lengths are millimetres on the page, from its top left corner.

namespace rippenscheibe {

// The pictures of the report. The report names them; the window program draws them.
enum class Bild {
    system,          // the wall
    rippe,           // section of a rib
    lastHorizontal,  // load sketch by Lastfall; "Quer" with wind across the wall
    lastHorizontalQuer,
    lastVertikal,
    lastVertikalQuer,
    lastBeide,
    lastBeideQuer,
    schnittkraefte,  // stress sketch
    ankerHD,         // Ankertyp 1 to 5
    ankerHTT,        // Ankertyp 6 and 7
    ankerHD2P,       // Ankertyp 8 to 10
    ankerHD2PSG,     // Ankertyp 11 and 12
    detail1,         // the three sketches of the boundary conditions
    detail2,
    detail3,
    logo,  // the user's logo in the page head
};

// Colours of the report as 0xRRGGBB.
enum class Farbe : std::uint32_t {
    schwarz = 0x000000,
    blau = 0x000080,
    grau = 0x808080,
    dunkelgrau = 0x595959
};

// The text styles.
enum class Stil {
    titel,  // first line of the result view
    kopf,   // position line of the printed report
    kopfUnterstrichen,
    ueberschrift1,  // H1
    ueberschrift2,  // H2
    ueberschrift3,  // H3
    text,
    klein,
    anmerkung,  // under a step of the derivation
    fett,
    schluss,    // verdict of the result view
    bemerkung,  // closing remarks on paper
};

struct Schrift {
    std::string name = "Arial";
    int groesse = 10;  // points
    bool fett = false;
    bool kursiv = false;
    bool unterstrichen = false;
    Farbe farbe = Farbe::schwarz;

    bool operator==(const Schrift&) const = default;
};

// The font of a style.
Schrift schrift(Stil stil);

constexpr bool istUeberschrift(Stil stil) {
    return stil == Stil::ueberschrift1 || stil == Stil::ueberschrift2 || stil == Stil::ueberschrift3;
}

// What a proof line says, for a display of utilisations: action over resistance and the verdict of the
// line. `eta` is infinite when there is no resistance.
struct Ausnutzung {
    std::string name;
    double eta = 0.0;
    bool erfuellt = true;
};

// A printed number: bytes `von` to `bis` (behind the last) of the text, and the value it shows.
struct Zahlstelle {
    std::size_t von;
    std::size_t bis;
    Zahl wert;
};

// A line of text at the left margin. The gap comes first, then the page-break test (if there is one),
// then the text. Without a text (a value of it has failed) only the cursor moves.
struct Textzeile {
    Stil stil = Stil::text;
    double abstand = 0.0;
    std::optional<double> grenze{};
    std::optional<std::string> text{};
    std::optional<Ausnutzung> ausnutzung{};
    std::vector<Zahlstelle> zahlen{};  // the numbers of the text, from left to right
    double spalte = 0.0;               // what follows a tab stands so far right of the margin; 0: no tab
};

// A typeset formula at the left margin. The surface that set it knows it by its number; running text shows
// its words.
struct Formelzeile {
    int nummer = 0;
    double abstand = 0.0;
    double hoehe = 0.0;
    std::string text{};
};

// A picture at x and at the cursor plus `versatz`.
struct Bildzeile {
    Bild bild;
    double x;
    double versatz;
    double breite;
    double hoehe;
};

// Break the page when the cursor has reached the limit. The second is the test inside a list of ribs.
struct Seitenpruefung {
    double grenze;
};
struct Zeilenpruefung {
    double grenze;
};

// Move the cursor down; set it; store it as anchor; set it below the anchor.
struct Vorschub {
    double mm;
};
struct Zeilenstand {
    double y;
};
struct AnkerMerken {};
struct AnkerPlus {
    double mm;
};

// A report routine is entered: the page head prints, on a page already begun a second time over itself.
struct Seitenkopfdruck {};

// The closing remarks of the printed report, with a line pitch of their own.
struct Schlussbemerkungen {
    Texte zeilen;
};

struct Leerzeile {};
// The character 67 times, across the result view.
struct Trennlinie {
    char zeichen;
};

using Zeile =
    std::variant<Textzeile, Bildzeile, Seitenpruefung, Zeilenpruefung, Vorschub, Zeilenstand, AnkerMerken,
                 AnkerPlus, Seitenkopfdruck, Schlussbemerkungen, Leerzeile, Trennlinie, Formelzeile>;
using Bericht = std::vector<Zeile>;

}  // namespace rippenscheibe
