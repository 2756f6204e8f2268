#pragma once

#include "model/Anker.h"
#include "ui/drawings/Wandgeometrie.h"
#include "ui/drawings/Zeichner.h"

// The single drawings. They draw into the whole area of the Zeichner.

namespace rippenscheibe {

// The group of the chosen anchor; numbers outside the catalogue count as its ends.
Ankergruppe ankergruppe(const Wand& w);

// Sketches of two parts put them one above the other in a tall area, else side by side.
inline bool istHochformat(const QRectF& r) { return r.height() > 0.75 * r.width(); }

void zeichneAnsicht(Zeichner& z, const Wand& w);
// The wall alone, for a list of walls.
void zeichneMiniatur(Zeichner& z, const Wand& w);
// Elevation and section for the drawing office in a given scale (0.02 for 1:50): no loads, no fills, both
// sheathings whole. The left lower corner of the wall and the left upper one of the section are at (0, 0).
void zeichneBauansicht(Zeichner& z, const Wand& w, double massstab);
void zeichneBauschnitt(Zeichner& z, const Wand& w, double massstab);
void zeichneRippen(Zeichner& z, const Wand& w);
void zeichneBeplankung(Zeichner& z, const Wand& w);
void zeichneVerbindungsmittel(Zeichner& z, const Wand& w, Seite n);
// In the report the upper edge is left to the text beside the picture.
enum class Ankerplatz { allein, bericht };
void zeichneAnker(Zeichner& z, const Wand& w, Ankergruppe gruppe, Ankerplatz platz);
// Lastfall 1, 2 or 3; the labels carry the values of the record.
void zeichneLast(Zeichner& z, const Wand& w, int lastfall, bool windQuer);
void zeichneSchubfluss(Zeichner& z, const Wand& w);
void zeichneStoesse(Zeichner& z);
void zeichneOeffnungen(Zeichner& z);
void zeichneGruppen(Zeichner& z);
void zeichneUeberstand(Zeichner& z, const Wand& w);
void zeichneRollbild(Zeichner& z, const Wand& w);
void zeichneStartbild(Zeichner& z, const Wand& w);

// Horizontal section through the left edge rib and an inner rib, side 1 below, inside `r`; with the wind
// across when there is some. Used by several drawings. Gives the outline of the section.
enum class Schnittbeschriftung { keine, masse };
QRectF zeichneSchnitt(Zeichner& z, const QRectF& r, const Wand& w, Schnittbeschriftung beschriftung);

// A staple has a back in place of a head; its length as drawn, mm.
inline constexpr double klammerruecken = 10.0;

// One fastener seen from the side, its head at `kopf`, pointing along `richtung` (unit vector); all sizes
// in mm of the drawing.
struct VMmasse {
    double d;
    double ln;
    double dk;
    double lg;
};
void zeichneVM(Zeichner& z, QPointF kopf, QPointF richtung, Art art, const VMmasse& masse);

}  // namespace rippenscheibe
