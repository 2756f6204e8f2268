#pragma once

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include "model/Wand.h"
#include "report/Zeile.h"
#include "ui/drawings/Zeichenhoerer.h"
#include "ui/drawings/Zeichenstil.h"

// All drawings of the program. Each draws into `flaeche` (painter units) from the inputs of the record, in
// one style for screen, paper and SVG. In an area smaller than `groesse` the text
// shrinks with it. None fails: sizes that cannot be drawn give a frame with a sentence,
// and an area too small to read stays empty.

namespace rippenscheibe {

enum class Zeichnung {
    ansicht,     // elevation with loads, dimensions and a horizontal section
    rippen,      // sections of the ribs, overhang of the bottom rib
    beplankung,  // horizontal section, one or both sides
    verbindungsmittel1,
    verbindungsmittel2,
    anker,       // by Ankertyp
    last,        // by Lastfall and WindQuer
    schubfluss,  // what acts along and across the edges of the sheathing
    stoesse,     // the three boundary conditions
    oeffnungen,
    gruppen,
    ueberstand,  // overhang of the bottom rib and effective contact area
    rollbild,    // a tall picture of the whole wall, layer by layer
    miniatur,    // the wall alone, for a list of walls
    startbild,
};

// What a drawing shows, in a few words.
QString titel(Zeichnung was);

// Width by height of a drawing in the report, mm; for drawings that only the screen shows a fitting size.
QSizeF groesse(Zeichnung was);

void zeichne(QPainter& painter, const QRectF& flaeche, Zeichnung was, const Wand& w, const Zeichenstil& stil,
             Zeichenhoerer* hoerer = nullptr);

// A picture of the report. The logo is the user's own file and not drawn here.
void zeichneBild(QPainter& painter, const QRectF& flaeche, Bild bild, const Wand& w, const Zeichenstil& stil);

}  // namespace rippenscheibe
