#pragma once

#include <span>

#include "model/Kataloge.h"
#include "model/Wand.h"

// What the fastener families share: the steps of the simplified method (DIN 1052 (2008), 12.2 to 12.8) and
// of the exact one (annex G.2.2), each written for side n. A family's file shows only what sets it apart.
// A field that a step does not assign keeps what an earlier calculation left; several families build on it.
// Lengths in mm, strengths in N/mm², capacities in N, moments in Nmm.

namespace rippenscheibe {

enum class Verfahren { vereinfacht, genau };

// Groups of the sheathing of side n. Each family says where a number outside the catalogue falls. Gypsum
// fibre board has a family of its own, so that no other family carries a row for it.
inline bool istOsb(const Wand& w, Seite n) { return istOsb(plattenmaterial(w, n)); }
inline bool istGipskarton(const Wand& w, Seite n) { return istGipskarton(plattenmaterial(w, n)); }
inline bool istGipsfaser(const Wand& w, Seite n) { return istGipsfaser(plattenmaterial(w, n)); }
inline bool istSpanplatteOderWeiter(const Wand& w, Seite n) {
    return istSpanplatteOderWeiter(plattenmaterial(w, n));
}
inline bool istEigenesMaterial(const Wand& w, Seite n) { return istEigenesMaterial(plattenmaterial(w, n)); }

// --- Yield moment ---

inline constexpr double fliessmomentNagel = 0.3;      // nails and staples
inline constexpr double fliessmomentSchraube = 0.15;  // screws

// Myk = c * fuk * d^2.6; whether a fastener has one at all is a condition of its family.
Zahl fliessmoment(double c, Zahl fuk, Zahl d);

// --- Embedment strength of the sheathing ---

enum class Lochleibung { holzwerkstoff, gipskarton, gipsfaser };

// The value for d and t of side n. The gypsum formulas hold for fasteners that are not predrilled.
Zahl lochleibung(const Wand& w, Seite n, Lochleibung formel);
// False for predrilled gypsum: there is no formula, and nothing is assigned.
bool hatFormel(const Wand& w, Seite n, Lochleibung formel);
// fhkPlatte by the formula; unchanged where there is none.
void setzeLochleibung(Wand& w, Seite n, Lochleibung formel);
// The groups of screws and special nails in the exact method: wood-based board, gypsum board, own material;
// unchanged for any other.
void setzeLochleibungNachGruppe(Wand& w, Seite n);
// fhkPlatte of the own material: column 7 of its row chooses the formula, any other value than 1 to 4
// takes the fixed value of column 20. Unchanged when the row is missing.
void setzeLochleibungEigen(Wand& w, Seite n);

// --- Simplified method ---

// Factor A, required thickness of the sheathing and penetration into the rib of a material group.
struct Beiwerte {
    double AFaktor;
    Zahl treqPlatte;
    Zahl treqRippe;
};

void setzeBeiwerte(Wand& w, Seite n, const Beiwerte& beiwerte);
// fhkPlatte and the three values of a group; nothing at all for predrilled gypsum.
void setzeGruppe(Wand& w, Seite n, Lochleibung formel, const Beiwerte& beiwerte);
// The same for the own material: t,req of the sheathing is column 6 times d, that of the rib 9 d.
void setzeEigenesMaterial(Wand& w, Seite n, double AFaktor);
// tvorh and treq, after treqPlatte has grown by 2 for a countersunk head (also where no group assigned it).
void setzeAbminderung(Wand& w, Seite n);
// A * sqrt(2 * Myk * fhkPlatte * d) * tvorh * treq.
Zahl vereinfachteTragfaehigkeit(const Wand& w, Seite n);
// setzeAbminderung, then Rk.
void setzeRk(Wand& w, Seite n);
// kmodVM * Rk / 1.1 for a characteristic capacity.
Zahl bemessungswert(const Wand& w, Seite n, Zahl Rk);

// --- Exact method ---

enum class Schaefte { einer = 1, zwei = 2 };

// Countersunk: the sheathing itself loses 2 mm; t keeps that until the derived values are formed anew.
void versenke(Wand& w, Seite n);
// fhkRippe, betaFh and the six failure modes A to F; two shanks double the design values only.
void setzeVersagensarten(Wand& w, Seite n, Schaefte schaefte);
// The smallest of the six design values.
Zahl kleinsteVersagensart(const Wand& w, Seite n);

// --- Rules that leave a fastener without capacity ---

using Ausschluss = bool (*)(const Wand& w, Seite n);

bool ausgeschlossen(const Wand& w, Seite n, std::span<const Ausschluss> regeln);

bool randrippeZuDuenn(const Wand& w, Seite n);   // hRandrippe below 14 d, not predrilled
bool kuerzerAls10(const Wand& w, Seite n);       // ln below 10 mm
bool einbindungUnter4d(const Wand& w, Seite n);  // ln - t below 4 d
bool einbindungUnter8d(const Wand& w, Seite n);  // ln - t below 8 d
bool durchmesserUnter4(const Wand& w, Seite n);  // d below 4 mm
bool durchmesserAb8(const Wand& w, Seite n);     // d of 8 mm or more

// Lengths of a fastener sold in fixed diameters. Any other diameter passes.
struct Laengengrenze {
    double d;
    double lnKleinste;
    double lnGroesste;
};
bool laengeUnzulaessig(const Wand& w, Seite n, std::span<const Laengengrenze> grenzen);

}  // namespace rippenscheibe
