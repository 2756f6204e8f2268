#pragma once

#include <QString>
#include <string>
#include <vector>

#include "ui/drawings/Ausgabe.h"
#include "ui/drawings/Zeichner.h"

// Utilisations over one input: a curve for each proof section, the line at 1,00, the ranges that findings
// forbid, and a mark at the value of today.

namespace rippenscheibe {

// The values of a section at each x; not finite where there is none.
struct Kurve {
    QString name;  // "5.1"
    std::vector<double> werte;
};

// A range of x that a finding forbids.
struct Sperrbereich {
    double von;
    double bis;
    QString grund;
};

struct Kurvendaten {
    QString achse{};          // "Abstand av [mm]"
    std::string maske = "0";  // of a value of x, as in `formatiere`
    std::vector<double> x{};  // rising
    std::vector<QString>
        xNamen{};  // of a field that is a list: one for each x, and points in place of curves
    std::vector<Kurve> kurven{};
    std::vector<Sperrbereich> sperren{};
};

// Where the axes stand on the drawing.
struct Kurvenrahmen {
    QRectF feld;  // mm
    double xVon = 0.0;
    double xBis = 1.0;
    double yBis = 1.2;
    double x(double wert) const { return feld.left() + (wert - xVon) / (xBis - xVon) * feld.width(); }
    double y(double eta) const { return feld.bottom() - eta / yBis * feld.height(); }
    double wert(double ort) const { return xVon + (ort - feld.left()) / feld.width() * (xBis - xVon); }
};

// Draws into the whole area. Without two values of x a sentence says that there is nothing to show.
Kurvenrahmen zeichneKurvenbild(Zeichner& z, const Kurvendaten& daten, double marke);

// The same as a picture to copy and save.
Bildvorlage bildvorlage(const Kurvendaten& daten, double marke);

// The largest finite value of all curves at the x next to `x`, with the name of its curve; "" without one.
struct Kurvenwert {
    double x = 0.0;
    double eta = 0.0;
    QString name;
};
Kurvenwert groessterWert(const Kurvendaten& daten, double x);

}  // namespace rippenscheibe
