#pragma once

#include <QFont>
#include <string_view>

#include "report/Zeile.h"

namespace rippenscheibe {

// The font of a text on paper: its size in points, and a free family of the same widths where the named one
// is not installed.
QFont papierschrift(const Schrift& schrift);

// Height above the base line and height of a line of that font, mm. They are those of the outlines, so that
// pages break at the same lines on every device.
struct Schriftmass {
    double oberlaenge = 0.0;
    double hoehe = 0.0;
};
Schriftmass schriftmass(const Schrift& schrift);

// Width of a text in that font, mm.
double papierbreite(const Schrift& schrift, std::string_view text);

}  // namespace rippenscheibe
