#pragma once

#include <QPainterPath>
#include <QString>

#include "ui/basics/Fensteroeffner.h"

// What a drawing tells besides its lines, for those who want to know.

namespace rippenscheibe {

// The layers of a drawing, for file formats that have some. What is no part of the wall is annotation.
enum class Ebene { rippen, beplankung1, beplankung2, verbindungsmittel, anker, masse };

// A part that can be pointed at: its outline in painter units, the window of its inputs, and what it is in
// one line.
struct Bauteil {
    QPainterPath form;
    Fensterart fenster;
    QString name;
};

class Zeichenhoerer {
  public:
    virtual ~Zeichenhoerer() = default;
    // What is drawn from now on belongs to this layer.
    virtual void ebene(Ebene) {}
    // Parts come in the order in which they lie above each other.
    virtual void bauteil(const Bauteil&) {}
};

}  // namespace rippenscheibe
