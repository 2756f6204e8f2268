#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include "basis/Seite.h"

// The one style of all drawings: colours, text size, font, decimal mark and the size of a millimetre.

namespace rippenscheibe {

struct Zeichenstil {
    double mm = 1.0;             // painter units for one millimetre of the drawing
    double schrifthoehe = 2.4;   // font size of dimensions and labels, mm
    double kleinsteSchrift = 0;  // no text is smaller, mm
    double mindestbreite = 0.0;  // thinnest line, painter units
    bool raster = false;         // upright and level lines fill whole pixels
    double lupe = 1.0;           // the painter enlarges the drawing so often: lines stay thin, fasteners part
    QString familie;             // font family, empty: the font of the program
    char dezimalzeichen = ',';
    bool grundFuellen = false;  // paint the ground first
    bool flaechen = true;       // fill surfaces; without, only outlines are drawn

    QColor grund;  // ground and what stands on it
    QColor tinte;
    QColor nebentinte;
    QColor holz;  // the materials; `tinteAufHolz` is for labels on a fill
    QColor holzlinie;
    QColor tinteAufHolz;
    Paar<QColor> platte;           // sheathing, full colour
    Paar<QColor> plattenkante;     // lines on a fill
    Paar<QColor> plattenlinie;     // lines and marks on the ground
    double plattendeckung = 0.35;  // opacity of the sheathing before the ribs
    QColor stahl;
    QColor last;

    // Sheathing before the ribs, which shine through.
    QColor durchscheinend(Seite n) const;

    // Screen: one millimetre is 96/25.4 logical pixels. `dunkel` changes ground and ink only.
    static Zeichenstil hell();
    static Zeichenstil dunkel();
    // Paper: black on white with the fills lightened. `mm` is the painter's unit for one millimetre.
    static Zeichenstil papier(double mm = 1.0);
    // The same colours on a screen, where lines fill whole pixels.
    Zeichenstil aufSchirm() const;
    // The screen style that goes with a palette: its ground and ink, dark or light.
    static Zeichenstil zuPalette(const QPalette& palette);
};

}  // namespace rippenscheibe
