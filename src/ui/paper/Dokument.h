#pragma once

#include <QPointF>
#include <functional>

#include "report/Bericht.h"

class QPainter;

namespace rippenscheibe {

// A document for pages besides the report: its lines, and who draws the formulas among them at a place in
// millimetres; `mm` is the painter's unit for one.
struct Dokument {
    Bericht zeilen;
    std::function<void(QPainter&, double mm, int nummer, QPointF ort)> male;
};

}  // namespace rippenscheibe
