#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "model/Wand.h"
#include "ui/drawings/Zeichner.h"

// What the drawings take from the record: sizes that can be drawn, and the words of labels.

namespace rippenscheibe {

// The wall in mm, from its left lower corner. Only made from sizes that can be drawn.
struct Wandgeometrie {
    double l = 0.0;
    double h = 0.0;
    double ar = 0.0;
    double rest = 0.0;  // last bay, 0 when the spacing divides the length
    double bRandrippe = 0.0;
    double bInnenrippe = 0.0;
    double bKopfFussrippe = 0.0;
    double hRippe = 0.0;  // depth of all ribs
    Paar<double> t;       // thickness of the sheathing
    Paar<double> av;
    bool einseitig = false;
    std::vector<double> innenrippen;  // axes
    Paar<std::vector<double>> plattenstoesse;

    std::size_t anzahlRippen() const { return innenrippen.size() + 2; }
    // The axes of all ribs, from left to right.
    std::vector<double> rippenachsen() const;
};

// Either the geometry or a German sentence that says why there is none.
struct Geometriepruefung {
    std::optional<Wandgeometrie> geometrie;
    QString satz;
};
Geometriepruefung pruefeGeometrie(const Wand& w);

// A stored value as double, cut to what a drawing can bear; `ersatz` where it is no number.
double gezeichneterWert(Zahl wert, double kleinster, double groesster, double ersatz);

bool hatHorizontallast(const Wand& w);
bool hatVertikallast(const Wand& w);

// "OSB/3", or the name of the own material.
QString plattenname(const Wand& w, Seite n);
// A diameter with the places it needs, one at least: "1,53", "2,7", "4,0".
QString durchmessertext(double mm, char dezimalzeichen);
// A length with the places it needs: "50", "52,5".
QString laengentext(double mm, char dezimalzeichen);
// Kind, diameter and length as entered, whatever row of a list they came from: "Nägel 2,7x50".
QString verbindungsmittelname(const Wand& w, Seite n, const Zeichner& z);
// "Nägel 2,7x50, av = 60 mm, 2-reihig"
QString verbindungsmittelzeile(const Wand& w, Seite n, const Zeichner& z);
// "Beplankung 1: OSB/3, 15,0 mm"
QString plattenzeile(const Wand& w, Seite n, const Zeichner& z);
// The size of a section, in cm as it is entered: "16,0 cm".
QString rippenmass(const Zeichner& z, double mm);
// A length in metres with three places, or four where three would round it: "0,625", "0,3125".
QString metertext(double mm, const Zeichner& z);
// The last word of the anchor's name ("HTT5"), or the name of the free anchor.
QString ankerkurzname(const Wand& w);

// "Fv,k = 3,00 kN"
QString lasttext(const Zeichner& z, const QString& name, Zahl wert, const QString& einheit);

}  // namespace rippenscheibe
