#pragma once

#include <QByteArray>

#include "model/Wand.h"

namespace rippenscheibe {

// Elevation and horizontal section of the wall for the drawing office, as DXF of release 12: full size in
// mm, the left lower corner of the wall at the origin, the section below. Layers Rippen, Beplankung1,
// Beplankung2, VM, Anker and Masse. Text is sized for plots of 1:50 and 1:10. Empty when the wall cannot be
// drawn.
QByteArray dxf(const Wand& w, char dezimalzeichen);

}  // namespace rippenscheibe
