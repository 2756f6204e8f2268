#pragma once

#include "model/Wand.h"

// Numbering and tributary lengths of the ribs: rib 1 is the left edge rib, rib AnzahlRippen the right
// one. Bays are Rippenabstand wide except the last, which is RippenabstandRest wide when that is not 0.

namespace rippenscheibe {

enum class Rippenlage { links, rechts, innen };

// A single rib is the left edge rib.
inline Rippenlage lage(const Wand& w, int i) {
    if (i == 1) return Rippenlage::links;
    return w.AnzahlRippen == i ? Rippenlage::rechts : Rippenlage::innen;
}

// Runs the routine for each rib, rib 1 first. Arrays hold 200 ribs: those above are passed over, as
// every statement on them would be.
template <class Routine>
void fuerJedeRippe(const Wand& w, Routine&& routine) {
    for (int i = 1; w.AnzahlRippen >= i && i < static_cast<int>(Rippenfeld::laenge); ++i) routine(i);
}

// The width in mm from which rib i draws line loads and wind.
inline Zahl einzugsbreite(const Wand& w, int i) {
    const bool kurzesFeld = w.RippenabstandRest != 0;
    switch (lage(w, i)) {
        case Rippenlage::links:
            return w.Rippenabstand / 2;
        case Rippenlage::rechts:
            return (kurzesFeld ? w.RippenabstandRest : w.Rippenabstand) / 2;
        case Rippenlage::innen:
            break;
    }
    if (w.AnzahlRippen - 1 == i && kurzesFeld) return (w.RippenabstandRest + w.Rippenabstand) / 2;
    return w.Rippenabstand;
}

// The edge rib that the horizontal load lifts: the left one unless the load points to the left.
inline Rippenlage zugrand(const Wand& w) { return w.Fvd >= 0 ? Rippenlage::links : Rippenlage::rechts; }
inline Rippenlage druckrand(const Wand& w) { return w.Fvd >= 0 ? Rippenlage::rechts : Rippenlage::links; }

// Index of the rib at the compressed edge.
inline Zahl druckrandrippe(const Wand& w) { return w.Fvd >= 0 ? Zahl(w.AnzahlRippen) : Zahl(1); }

}  // namespace rippenscheibe
