#pragma once

#include <cstdint>
#include <vector>

#include "model/EigeneMaterialien.h"
#include "model/Eingaben.h"
#include "model/Ergebnisse.h"
#include "model/Hinweis.h"
#include "model/Platten.h"
#include "model/VMArten.h"

namespace rippenscheibe {

// The record of one position: one wall panel (Wandtafel) designed to DIN 1052 (2008). Plain data with
// flat names. One object per running program, made in `main` and handed on by reference, so that many
// walls can be computed side by side. Results keep their values between runs; nothing clears them but
// where a routine says so.
//
// Units: Wandlaenge and Wandhoehe in m; all other lengths in mm, rib sizes included; panel forces in
// kN, line loads in kN/m, fastener forces in N, strengths in N/mm², shear flows in N/mm, section areas
// in cm², moduli in cm³.
struct Wand : Eingaben, Ergebnisse {
    EigeneMaterialien eigeneMaterialien;  // the own-material table, loaded at start
    std::vector<Hinweis> Hinweise;        // findings of the last plausibility run
};

// Plattendicke of side n as it is stored. Meant: side 1 is a double, side 2 single precision, as the position
// file types them.
inline Zahl Plattendicke(const Wand& w, Seite n) {
    return n == Seite::eins ? Zahl(w.Plattendicke1) : Zahl(w.Plattendicke2);
}

// Sheathing and fastener kind of side n.
inline Platte plattenmaterial(const Wand& w, Seite n) { return static_cast<Platte>(w.Material[n].value()); }
inline Art vmArt(const Wand& w, Seite n) { return static_cast<Art>(w.VMArt[n].value()); }
inline bool istKlammer(const Wand& w, Seite n) { return istKlammer(vmArt(w, n)); }

// Sets the defaults of program start and of a new file: one routine serves both. Projekt, the
// own-material table and every result keep their values.
void setzeVorgaben(Wand& w);

// Calls the visitor for every input field, then (ergebnisse) every result field, in their fixed order.
template <class W, class Besucher>
void jedeEingabe(W& w, Besucher&& besucher) {
    Eingaben::jedesFeld(w, besucher);
}
template <class W, class Besucher>
void jedesErgebnis(W& w, Besucher&& besucher) {
    Ergebnisse::jedesFeld(w, besucher);
}

}  // namespace rippenscheibe
