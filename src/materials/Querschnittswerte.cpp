#include "materials/Querschnittswerte.h"

namespace rippenscheibe {

void randrippen(Wand& w) {
    const Zahl b = w.bRandrippe;
    const Zahl h = w.hRandrippe;
    // Overhang of the bottom rib that counts as contact area, in mm: one or both sides of the rib.
    const auto ueberstand = [](bool durchgehend) { return durchgehend ? 60 : 30; };

    w.ARandrippe = b * h / 100;
    w.ARandrippeGerundet = Round(w.ARandrippe, 1);
    w.AefLinks = (b + ueberstand(w.FussrippeLinksDurchgehend)) * h / 100;
    w.AefRechts = (b + ueberstand(w.FussrippeRechtsDurchgehend)) * h / 100;
    w.AefRandrippe = Max(w.AefRechts, w.AefLinks);
    w.WzRandrippe = b * b * h / 6000;
    w.WyRandrippe = h * h * b / 6000;
    w.WzRandrippeGerundet = Round(w.WzRandrippe, 1);
    w.WyRandrippeGerundet = Round(w.WyRandrippe, 1);
}

void innenrippen(Wand& w) {
    const Zahl b = w.bInnenrippe;
    const Zahl h = w.hInnenrippe;
    w.AInnenrippe = b * h / 100;
    w.AefInnenrippe = (b + 60) * h / 100;
    w.WzInnenrippe = b * b * h / 6000;
    w.WyInnenrippe = h * h * b / 6000;
}

void rippenzahl(Wand& w) {
    if (w.Rippenabstand == 0) {
        w.AnzahlRippen = 1;
        return;
    }
    // The equality is exact on purpose: a length that is a multiple of the spacing only up to rounding
    // yields one more rib and a tiny last bay.
    const Zahl felder = w.Wandlaenge * 1000 / w.Rippenabstand;
    w.AnzahlRippen = Int(felder) == felder ? Int(felder) + 1 : Int(felder) + 2;
}

void letztesFeld(Wand& w) {
    w.RippenabstandRest = w.Wandlaenge * 1000 - Int(w.Wandlaenge * 1000 / w.Rippenabstand) * w.Rippenabstand;
}

void beplankungsmodul(Wand& w) { w.WBeplankung1 = w.t[Seite::eins] * w.t[Seite::eins] * 1000 / 6; }

void querschnittswerte(Wand& w) {
    randrippen(w);
    innenrippen(w);
    rippenzahl(w);
    letztesFeld(w);
    beplankungsmodul(w);
}

void eigengewicht(Wand& w, Daemmung daemmung) {
    constexpr double wichteHolz = 5.0;  // kN/m³
    const Zahl lichteHoehe = w.Wandhoehe - 2 * w.bRandrippe / 1000;

    // Head and bottom rib count as two ribs of the edge rib's section over the length of the wall.
    w.GewichtHolz = (2 * lichteHoehe * w.ARandrippe / 10000 +
                     (w.AnzahlRippen - 2) * (w.Wandhoehe - 2 * w.bInnenrippe / 1000) * w.AInnenrippe / 10000 +
                     2 * w.Wandlaenge * w.ARandrippe / 10000) *
                    wichteHolz;
    w.GewichtBeplankung1 = w.Wichte[Seite::eins] * w.Wandhoehe * w.Wandlaenge * w.t[Seite::eins] / 1000;
    w.GewichtBeplankung2 =
        w.Einseitig ? Zahl(0) : w.Wichte[Seite::zwei] * w.Wandhoehe * w.Wandlaenge * w.t[Seite::zwei] / 1000;
    w.GewichtDaemmung =
        daemmung == Daemmung::keine
            ? Zahl(0)
            : 0.01 * w.DickeDaemmung *
                  (w.Wandlaenge - 2 * w.bRandrippe / 1000 - (w.AnzahlRippen - 2) * w.bInnenrippe / 1000) *
                  lichteHoehe;
    w.GewichtGesamt = w.GewichtHolz + w.GewichtBeplankung1 + w.GewichtBeplankung2 + w.GewichtDaemmung;
}

}  // namespace rippenscheibe
