#pragma once

#include "model/Wand.h"

// Section values of ribs and sheathing 1, number of ribs, last bay and self-weight. Rib sizes in mm,
// areas in cm², moduli in cm³.

namespace rippenscheibe {

// Area, effective contact area and moduli of the edge ribs, with their rounded copies.
void randrippen(Wand& w);
// The same for the inner ribs, always with the double overhang.
void innenrippen(Wand& w);
// AnzahlRippen from Wandlaenge (m) and Rippenabstand (mm).
void rippenzahl(Wand& w);
// RippenabstandRest, mm: the width of the last bay, 0 when the spacing divides the length.
void letztesFeld(Wand& w);
// WBeplankung1, mm³ per m.
void beplankungsmodul(Wand& w);
// The five routines above in their order.
void querschnittswerte(Wand& w);

// What may be entered for DickeDaemmung, cm.
inline constexpr Wertebereich bereichDickeDaemmung{0, 1000};

enum class Daemmung { keine, vorhanden };
// Self-weight of the wall in kN, from the unit weights of the last run and DickeDaemmung (cm).
void eigengewicht(Wand& w, Daemmung daemmung);

}  // namespace rippenscheibe
