#pragma once

#include <vector>

#include "ui/drawings/Wandgeometrie.h"
#include "ui/drawings/Zeichner.h"

// What the colours of the elevation and its section mean, with all figures that belong to them.

namespace rippenscheibe {

// One thing: its figures are always written out, its name wraps and is cut at last.
struct Legendeneintrag {
    QString titel;  // "Beplankung 1: 15,0 mm"
    QString name;   // "OSB/3"
    QString werte;  // "Nägel 2,7x50, av = 60 mm"
    QString zeile;  // title and name in one line where they fit
    QColor fuellung;
    QColor kante;
    Fensterart fenster;
    Fensterart fensterWerte;
};

enum class Ankerlegende { ohne, mit };

// The entries of a wall: the sheathings with their fasteners, then wind and anchors.
std::vector<Legendeneintrag> legende(const Zeichner& z, const Wand& w, Ankerlegende anker);

// The height they need in a given width.
double legendenhoehe(const Zeichner& z, double breite, const std::vector<Legendeneintrag>& eintraege);

// Draws them into `r`, in two columns where there is room for their words. Without room for all lines the
// names are shortened first.
void zeichneLegende(Zeichner& z, const QRectF& r, const std::vector<Legendeneintrag>& eintraege);

}  // namespace rippenscheibe
