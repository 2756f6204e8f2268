#pragma once

#include <array>
#include <string>

#include "model/Feldgruppe.h"

// The inputs of a position: what the position file holds. Each field once, with type, default, unit,
// meaning, symbol, allowed range and the mask in which its dialog shows it; the source where the standard
// gives the choice. Ranges and masks stand nowhere else.

namespace rippenscheibe {

// clang-format off
#define RS_POSITIONSKOPF(FELD, PAAR) \
    FELD(std::string, Projekt, , "", "Projektname") \
    FELD(std::string, Position, "1", "", "Name oder Nummer der Position") \
    FELD(std::string, Datum, , "", "Datum, freier Text") \
    FELD(Vorbemerkungszeilen, Vorbemerkungen, , "", "Vorbemerkungen am Beginn des Ausdrucks, höchstens 3 Zeilen") \
    FELD(std::string, PositionsBemerkung, , "", "kurze Bemerkung hinter dem Positionsnamen") \
    FELD(Ganzzahl, AnzahlZusatzbemerkungen, 0, "", "benutzte Zeilen in Zusatzbemerkungen") \
    FELD(Texte, Zusatzbemerkungen, 200, "", "Bemerkungen am Ende des Ausdrucks")

#define RS_SYSTEM(FELD, PAAR) \
    FELD(Feld, Wandlaenge,    5.0,   "m",  "Wandlänge",                  .symbol = "l",   .bereich = {0.2, 100},   .maske = "0.000") \
    FELD(Feld, Wandhoehe,     2.5,   "m",  "Wandhöhe",                   .symbol = "h",   .bereich = {0.2, 100},   .maske = "0.000") \
    FELD(Feld, Rippenabstand, 625.0, "mm", "Abstand der Rippen",         .symbol = "a_{r}", .bereich = {200, 5000},  .maske = "0.000") \
    FELD(Feld, bRandrippe,    80.0,  "mm", "Breite der Randrippen",      .symbol = "b_{Rand}",   .bereich = {40, 10000},  .maske = "0.0") \
    FELD(Feld, bInnenrippe,   80.0,  "mm", "Breite der Innenrippen",     .symbol = "b_{Innen}",   .bereich = {40, 10000},  .maske = "0.0") \
    FELD(Feld, bKopfFussrippe, 60.0, "mm", "Dicke der Kopf- und Fußrippe", .symbol = "h_{Fuß}", .bereich = {40, 10000},  .maske = "0.0") \
    FELD(Feld, hRandrippe,    160.0, "mm", "Rippenhöhe, gleich der Dicke des Wandkerns", .symbol = "h_{Rand}", .bereich = {40, 10000}, .maske = "0.0") \
    FELD(Feld, hInnenrippe,   160.0, "mm", "Höhe der Innenrippen, gleich hRandrippe", .symbol = "h_{Innen}", .maske = "0.0") \
    FELD(bool, FussrippeLinksDurchgehend,  false, "", "Fußrippe läuft links durch: Überstand 3 cm beidseitig in A,ef") \
    FELD(bool, FussrippeRechtsDurchgehend, false, "", "Fußrippe läuft rechts durch: Überstand 3 cm beidseitig in A,ef") \
    FELD(Ganzzahl, Holzart,   2,     "",   "Festigkeitsklasse der Rippen", .bereich = {1, 13}) \
    FELD(Ganzzahl, NKLRippen, 1,     "",   "Nutzungsklasse der Rippen",    .bereich = {1, 2})

#define RS_BEPLANKUNG(FELD, PAAR) \
    FELD(bool, Einseitig, false, "", "nur Seite 1 ist beplankt") \
    PAAR(Ganzzahl, Material, "Material1", "Material2", 1, "", "Plattenmaterial", .bereich = {1, 13}) \
    PAAR(Ganzzahl, EigenesMaterial, "EigenesMaterial1", "EigenesMaterial2", 1, "", "Zeile der eigenen Materialien bei Material 13", .bereich = {.min = 1}) \
    PAAR(bool, Gestossen, "Gestossen1", "Gestossen2", false, "", "die Beplankung ist horizontal einmal gestoßen") \
    FELD(Feld,   Plattendicke1, 15.0,  "mm", "Plattendicke der Beplankung 1", .symbol = "t_{Platte,1}", .bereich = {6, 200}, .maske = "0.0") \
    FELD(Feld32, Plattendicke2, 15.0F, "mm", "Plattendicke der Beplankung 2", .symbol = "t_{Platte,2}", .bereich = {6, 200}, .maske = "0.0") \
    PAAR(Feld, Plattenbreite, "Plattenbreite1", "Plattenbreite2", 1250.0, "mm", "Plattenbreite", .symbol = "l_{p}", .bereich = {200, 20000}, .maske = "0.000") \
    PAAR(Ganzzahl, NKLBeplankung, "NKLBeplankung1", "NKLBeplankung2", 1, "", "Nutzungsklasse der Beplankung", .bereich = {1, 2})

#define RS_VERBINDUNGSMITTEL(FELD, PAAR) \
    PAAR(Ganzzahl, VMArt,    "VMArt1",    "VMArt2",    1, "", "Art des Verbindungsmittels",      .bereich = {1, 8}) \
    PAAR(Ganzzahl, VMKlasse, "VMKlasse1", "VMKlasse2", 1, "", "Tragfähigkeitsklasse 1A bis 3C",  .bereich = {1, 9}) \
    PAAR(Ganzzahl, VMTyp,    "VMTyp1",    "VMTyp2",    4, "", "Zeile der Nageltabelle",          .bereich = {1, 31}) \
    PAAR(Feld, av,  "av1",  "av2",  60.0,  "mm",    "Abstand der Verbindungsmittel", .symbol = "a_{v}",     .bereich = {20, 200},   .maske = "0") \
    PAAR(Feld, d,   "d1",   "d2",   2.7,   "mm",    "Nenndurchmesser",               .symbol = "d",       .bereich = {0.5, 100},  .maske = "0.00") \
    PAAR(Feld, ln,  "ln1",  "ln2",  50.0,  "mm",    "Nennlänge",                     .symbol = "l_{n}",       .bereich = {10, 300},   .maske = "0.0") \
    PAAR(Feld, fuk, "fuk1", "fuk2", 600.0, "N/mm²", "Zugfestigkeit",                 .symbol = "f_{u,k}", .bereich = {20, 5000},  .maske = "0.0") \
    PAAR(Feld, dk,  "dk1",  "dk2",  6.1,   "mm",    "Kopfdurchmesser",               .symbol = "d_{k}",     .bereich = {2, 80},     .maske = "0.0") \
    PAAR(Feld, lg,  "lg1",  "lg2",  25.0,  "mm",    "Gewinde- oder Rillenlänge",     .symbol = "l_{g}",     .bereich = {2, 300},    .maske = "0.0") \
    PAAR(bool, Vorgebohrt, "Vorgebohrt1", "Vorgebohrt2", false, "", "vorgebohrt") \
    PAAR(bool, Versenkt,   "Versenkt1",   "Versenkt2",   false, "", "versenkt") \
    PAAR(bool, Zweireihig, "Zweireihig1", "Zweireihig2", false, "", "zweireihig, versetzt angeordnet")

#define RS_VERANKERUNG(FELD, PAAR) \
    FELD(bool, NachweisVerankerung, false,     "",      "der Nachweis der Verankerung ist zu führen") \
    FELD(Ganzzahl, Ankertyp,        1,         "",      "Anker; 13 ist der freie Anker", .bereich = {1, 13}) \
    FELD(Ganzzahl, AnzahlAnker,     1,         "Stück", "Anker je Wandende", .symbol = "n_{Anker}", .bereich = {1, 2}, .maske = "0") \
    FELD(Ganzzahl, Teilausnagelung, 1,         "",      "1: voll ausgenagelt, 2: nur teilweise ausgenagelt", .bereich = {1, 2}) \
    FELD(Ganzzahl, AnzahlAnkerNaegel, 16,      "Stück", "Nägel im Anker", .symbol = "n_{Nagel}", .bereich = {2, 100}, .maske = "0") \
    FELD(Ganzzahl, Kammnagel,       1,         "",      "CNA-Kammnagel", .bereich = {1, 4}) \
    FELD(Feld,     RdAnker,         12.0,      "kN",    "Tragfähigkeit je Anker", .symbol = "R_{d,Anker}", .bereich = {0.1, 5000}, .maske = "0.00") \
    FELD(Feld32,   kserAnker,       100000.0F, "kN/mm", "Steifigkeit je Anker; 100000 heißt starr", .symbol = "K_{ser,Anker}", .bereich = {0.1, 100000}, .maske = "0.00") \
    FELD(std::string, FreierAnkerName, ,       "",      "Name des freien Ankers")

#define RS_BELASTUNG(FELD, PAAR) \
    FELD(Ganzzahl, Lastfall, 1, "",      "Scheibenbeanspruchung 1 horizontal, 2 vertikal, 3 horizontal und vertikal", .bereich = {1, 3}) \
    FELD(Feld32, Fvk,  3.0F,    "kN",    "Horizontallast, veränderlich, aus Wind",    .symbol = "F_{v,k}",    .bereich = {-1000, 1000}, .maske = "0.000") \
    FELD(Feld,   gk,   0.0,     "kN/m",  "Gleichlast am Wandkopf, ständig",           .symbol = "g_{k}",        .bereich = {-100, 100},   .maske = "0.000") \
    FELD(Feld32, qk,   0.0F,    "kN/m",  "Gleichlast am Wandkopf, veränderlich",      .symbol = "q_{k}",        .bereich = {-100, 100},   .maske = "0.000") \
    FELD(Feld32, wk,   0.0F,    "kN/m²", "Wind quer zur Wand, Sog negativ",           .symbol = "w_{k}",        .bereich = {-100, 100},   .maske = "0.000") \
    FELD(Feld,   Fcgk, 0.0,     "kN",    "Einzellasten auf die Rippen, ständig",      .symbol = "F_{c,g,k}",  .bereich = {-1000, 1000}, .maske = "0.000") \
    FELD(Feld32, Fcqk, 0.0F,    "kN",    "Einzellasten auf die Rippen, veränderlich", .symbol = "F_{c,q,k}",  .bereich = {-1000, 1000}, .maske = "0.000") \
    FELD(bool, WindQuer, false, "",      "Wind quer zur Wandebene vorhanden") \
    FELD(Feld32, gkWand, 0.35F, "kN/m",  "Eigengewicht der Wand",                     .symbol = "g_{k,Wand}", .bereich = {0, 1000},     .maske = "0.000") \
    FELD(Ganzzahl, KLED, 4,     "",      "Lasteinwirkungsdauer 1 ständig, 2 lang, 3 mittel, 4 kurz, 5 sehr kurz", .bereich = {1, 5})

#define RS_BEMESSUNGSPARAMETER(FELD, PAAR) \
    FELD(Ganzzahl, GenauesVerfahren, 2, "", "Berechnungsverfahren 1 vereinfacht, 2 genau", .bereich = {1, 2}, .quelle = "DIN 1052 (2008), 12.2 bis 12.8 und Anhang G.2.2") \
    FELD(bool, Erhoehung20, false, "", "Rd um 20 % erhöht für allseitig schubsteife Verbindung", .quelle = "DIN 1052 (2008), 10.6 (4)") \
    FELD(bool, DeltaRd, false, "", "Rd um deltaRd aus dem Einhängeeffekt erhöht") \
    FELD(Feld, beta, 30.0, "°", "Winkel zwischen Klammerrücken und Faser", .symbol = "β", .bereich = {30, 90}, .maske = "0") \
    FELD(Ganzzahl, KlammerWinkelOption, 1, "", "1: Winkel größer oder gleich 30°, 2: kleiner 30°", .bereich = {1, 2}) \
    FELD(Ganzzahl, VertikallastVerteilung, 1, "", "1: nur über die Rippen, 2: Rippen und Beplankung nach Beanspruchbarkeit", .bereich = {1, 2}) \
    FELD(Ganzzahl, LagesicherungVerfahren, 2, "", "1: nur Druckkraft über der Randrippe, 2: Summe der Momente", .bereich = {1, 2})
// clang-format on

using Vorbemerkungszeilen = std::array<std::string, 3>;

RS_GRUPPE(Positionskopf, RS_POSITIONSKOPF)
RS_GRUPPE(System, RS_SYSTEM)
RS_GRUPPE(Beplankung, RS_BEPLANKUNG)
RS_GRUPPE(Verbindungsmittel, RS_VERBINDUNGSMITTEL)
RS_GRUPPE(Verankerung, RS_VERANKERUNG)
RS_GRUPPE(Belastung, RS_BELASTUNG)
RS_GRUPPE(Bemessungsparameter, RS_BEMESSUNGSPARAMETER)

struct Eingaben : Gruppen<Positionskopf, System, Beplankung, Verbindungsmittel, Verankerung, Belastung,
                          Bemessungsparameter> {};

}  // namespace rippenscheibe
