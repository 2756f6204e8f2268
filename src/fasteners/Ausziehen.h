#pragma once

#include "model/Wand.h"

// Withdrawal of one fastener (DIN 1052 (2008), 12.8.2 and 12.8.3, tables 14 and 15): what the rope effect of
// the capacities and the proof against withdrawal share. Lengths in mm, parameters in N/mm², forces in N.

namespace rippenscheibe {

// Factors c of f1k and f2k = c * 10^-6 * rho² by load-capacity class.
struct Tragfaehigkeitsklasse {
    Tabellenwert sondernaegel;  // shank of special nails
    Tabellenwert schrauben;     // thread of screws with approval
    Tabellenwert kopf;          // head of both
};
// The class of side n, "1A" to "3C"; nullptr for a number outside 1 to 9, which only a file can hold.
const Tragfaehigkeitsklasse* tragfaehigkeitsklasse(const Wand& w, Seite n);
// Whether the class is one of 3A to 3C.
bool istKlasse3(const Wand& w, Seite n);

// Factors c of the fasteners that have no class.
inline constexpr double cNagel = 18;
inline constexpr double cKlammer = 40;
inline constexpr double cSchraube = 70;
inline constexpr double cKopf = 60;

// Least penetration of the effective length as a multiple of d, and the greatest that counts for nails and
// staples.
inline constexpr int mindesteinbindungNagel = 8;
inline constexpr int mindesteinbindungKlammer = 12;
inline constexpr int mindesteinbindungSchraube = 4;
inline constexpr int groessteEinbindung = 20;

inline constexpr double beiwertVorgebohrt = 0.7;  // of f1k of predrilled special nails

// Bands of the sheathing thickness: below 12 mm Rxk is a fixed value, up to 20 mm f2k is.
enum class Dickenband { unter12, bis20, ueber20 };
Dickenband dickenband(const Wand& w, Seite n);
inline constexpr double RxkDuennePlatte = 400;
inline constexpr double f2kBis20 = 8;

// c * 10^-6 * rho².
Zahl ausziehparameter(Zahl c, Zahl rho);
// The same for the head, always with the density 380 kg/m³ and not that of the ribs.
Zahl kopfdurchziehparameter(Zahl c);

// At lef = m * d exactly the fastener is neither too short nor long enough: Rxk keeps its earlier value.
enum class Einbindung { zuKurz, grenze, genuegt };
Einbindung pruefeEinbindung(const Wand& w, Seite n, int vielfaches);

// lef = the smaller of ln - t and lg.
void setzeEinbindelaenge(Wand& w, Seite n);
// lef at most 20 d.
void begrenzeEinbindelaenge(Wand& w, Seite n);
// Rxd = kmodVM * Rxk / 1.3.
void setzeRxd(Wand& w, Seite n);

}  // namespace rippenscheibe
