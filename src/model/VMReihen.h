#pragma once

#include <functional>
#include <vector>

#include "model/Wand.h"

// Where the fasteners of a side sit: one rule for the count of pieces and for the drawing of the wall.
// Lengths in mm, from the lower left corner of the wall as it is seen from side 1.

namespace rippenscheibe {

// A straight row of fasteners. Two-rowed sheathing has a second one beside it, set off by half a spacing.
struct VMReihe {
    double x1;
    double y1;
    double x2;
    double y2;
    double kante;  // length of the panel edge or rib it fastens
    double av;
    bool zweireihig;

    // Int(kante / av) + 1, twice when two-rowed; 0 without a spacing.
    double stueck() const;
};

// Inner ribs between the joints may be fastened at a multiple of av.
struct Reihenregel {
    double zwischenrippen = 1;
};

// Each panel edge has one row at av: one at either end of the wall, two at each joint, two along the wall,
// four when the panels are jointed once; each inner rib without a joint has one. Not nVM of the design, which
// counts along the wall once. Calls the visitor for each row and allocates nothing.
void fuerJedeVMReihe(const Wand& w, Seite n, const Reihenregel& regel,
                     const std::function<void(const VMReihe&)>& besucher);
std::vector<VMReihe> vmReihen(const Wand& w, Seite n, const Reihenregel& regel = {});

// The axes of the inner ribs in mm: multiples of the spacing inside the wall. Calls the visitor for each.
void fuerJedeInnenrippe(const Eingaben& e, const std::function<void(double)>& besucher);

}  // namespace rippenscheibe
