#pragma once

#include <string_view>

#include "report/Zeile.h"

namespace rippenscheibe {

// A rectangle on the page: millimetres from the top left corner of the page.
struct Rechteck {
    double x = 0.0;
    double y = 0.0;
    double breite = 0.0;
    double hoehe = 0.0;
};

// A drawing surface of pages in millimetres, of which the first is begun. The report is made for a
// portrait A4 page.
class Zeichenflaeche {
  public:
    Zeichenflaeche() = default;
    Zeichenflaeche(const Zeichenflaeche&) = delete;
    Zeichenflaeche& operator=(const Zeichenflaeche&) = delete;
    virtual ~Zeichenflaeche() = default;

    // Font of the texts and width of the lines (mm) drawn from now on.
    virtual void setzeSchrift(const Schrift& schrift) = 0;
    virtual void setzeStrich(double breite) = 0;

    // A text on one line; x / y is its top left corner.
    virtual void text(double x, double y, std::string_view text) = 0;
    virtual void rahmen(const Rechteck& rechteck, Farbe farbe) = 0;
    virtual void flaeche(const Rechteck& rechteck, Farbe farbe) = 0;
    // A picture has no ground of its own: a long line may reach into its margin.
    virtual void bild(Bild bild, const Rechteck& rechteck) = 0;
    // A formula of this number; only a surface that set formulas knows any.
    virtual void formel(int /*nummer*/, double /*x*/, double /*y*/) {}
    virtual void neueSeite() = 0;

    // Height of a line with this text in the current font.
    virtual double texthoehe(std::string_view text) const = 0;

    // A numbered heading of rank 1 to 3 stands here; a surface that can makes it a bookmark.
    virtual void lesezeichen(int /*rang*/, double /*y*/, std::string_view /*text*/) {}
};

}  // namespace rippenscheibe
