#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/VMReihen.h"
#include "model/Wand.h"

// Quantities of a wall from its inputs: timber, boards, fasteners, anchors.

namespace rippenscheibe {

struct Holzposten {
    std::string bezeichnung;  // "Innenrippen"
    double b;                 // mm
    double h;                 // mm
    double laenge;            // mm, of one piece
    double stueck;
};
struct Plattenposten {
    std::string material;
    double dicke;    // mm
    double flaeche;  // m²
    double stueck;   // panels as bought, the last one cut
};
struct Stueckposten {
    std::string name;
    double stueck;
};

struct Mengen {
    std::vector<Holzposten> holz;
    std::vector<Plattenposten> platten;
    std::vector<Stueckposten> verbindungsmittel;
    std::vector<Stueckposten> anker;  // none while the proof of the anchorage is switched off
};

// Ribs between the plates (h - 2 plates), the plates, blocking at a horizontal joint; fasteners as `vmReihen`
// lays them out; anchors at both ends.
Mengen mengen(const Wand& w, const Reihenregel& regel = {});

// The same walls' items joined: equal ones are added up.
void addiere(Mengen& summe, const Mengen& posten);

double holzvolumen(const Mengen& m);  // m³

// One row of a list of quantities: "Holz", "Innenrippen", "60x120, l = 2380", 9 pieces, 0.154 m³. Fasteners
// and anchors have no measure, and their quantity is that of pieces.
struct Mengenzeile {
    std::string art;
    std::string name;
    std::string mass;
    double stueck;
    double menge;
    std::string einheit;
};
std::vector<Mengenzeile> mengenzeilen(const Mengen& m);

// What a price needs of a wall. Allocates nothing.
struct Mengensummen {
    double holz = 0;         // m³
    Paar<double> platten{};  // m²
    Paar<double> verbindungsmittel{};
    double anker = 0;
};
Mengensummen mengensummen(const Wand& w, const Reihenregel& regel = {});

// Names as the report and the drawings have them: the board or own material, "Nägel 2,7x50", "HTT5". The
// views last as long as the inputs.
std::string_view beplankungsname(const Wand& w, Seite n);
std::string verbindungsmitteltext(const Wand& w, Seite n);
std::string_view ankername(const Wand& w);

bool beplankt(const Eingaben& w, Seite n);
// Thickness of the sheathing in mm as it was typed.
double plattendicke(const Eingaben& w, Seite n);

// Self-weight of the wall without insulation in kN, as the calculation forms it, from the inputs alone: the
// derived values of the record and the values of its sheathing are formed anew.
double wandgewicht(Wand& w);

}  // namespace rippenscheibe
