#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

#include "study/Tafel.h"

namespace rippenscheibe {

// The colour of what governs, by its place in `massgebende`, on the ground of a palette.
QColor tafelfarbe(std::size_t stelle, const QPalette& palette);
// What the signs of a table mean, each on its colour, as rich text. Empty without signs.
QString farblegende(const Tafel& tafel, const QPalette& palette);

}  // namespace rippenscheibe
