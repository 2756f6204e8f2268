#pragma once

#include "model/Feldgruppe.h"

// The inputs of a position: what the position file holds. Each field once, with type, default, unit
// and meaning; the ranges are those of the input dialogs.

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
    FELD(Feld, Wandlaenge,    5.0,   "m",  "Wandlänge l, 0,2 bis 100") \
    FELD(Feld, Wandhoehe,     2.5,   "m",  "Wandhöhe h, 0,2 bis 100") \
    FELD(Feld, Rippenabstand, 625.0, "mm", "Abstand der Rippen ar, 200 bis 5000") \
    FELD(Feld, bRandrippe,    80.0,  "mm", "Breite b der Randrippen, 40 bis 10000") \
    FELD(Feld, bInnenrippe,   80.0,  "mm", "Breite b der Innenrippen, 40 bis 10000") \
    FELD(Feld, bKopfFussrippe, 60.0, "mm", "Dicke der Kopf- und Fußrippe, 40 bis 10000") \
    FELD(Feld, hRandrippe,    160.0, "mm", "Rippenhöhe h gleich Dicke des Wandkerns, 40 bis 10000") \
    FELD(Feld, hInnenrippe,   160.0, "mm", "Höhe der Innenrippen, gleich hRandrippe") \
    FELD(bool, FussrippeLinksDurchgehend,  false, "", "Fußrippe läuft links durch: Überstand 3 cm beidseitig in A,ef") \
    FELD(bool, FussrippeRechtsDurchgehend, false, "", "Fußrippe läuft rechts durch: Überstand 3 cm beidseitig in A,ef") \
    FELD(Ganzzahl, Holzart,   2,     "",   "Festigkeitsklasse der Rippen, 1 bis 13") \
    FELD(Ganzzahl, NKLRippen, 1,     "",   "Nutzungsklasse der Rippen, 1 oder 2")

#define RS_BEPLANKUNG(FELD, PAAR) \
    FELD(bool, Einseitig, false, "", "nur Seite 1 ist beplankt") \
    PAAR(Ganzzahl, Material, "Material1", "Material2", 1, "", "Plattenmaterial, 1 bis 13") \
    PAAR(Ganzzahl, EigenesMaterial, "EigenesMaterial1", "EigenesMaterial2", 1, "", "Zeile der eigenen Materialien bei Material 13") \
    PAAR(bool, Gestossen, "Gestossen1", "Gestossen2", false, "", "die Beplankung ist horizontal einmal gestoßen") \
    FELD(Feld,   Plattendicke1, 15.0,  "mm", "Plattendicke t der Beplankung 1, 6 bis 200") \
    FELD(Feld32, Plattendicke2, 15.0F, "mm", "Plattendicke t der Beplankung 2, 6 bis 200") \
    PAAR(Feld, Plattenbreite, "Plattenbreite1", "Plattenbreite2", 1250.0, "mm", "Plattenbreite lp, 200 bis 20000") \
    PAAR(Ganzzahl, NKLBeplankung, "NKLBeplankung1", "NKLBeplankung2", 1, "", "Nutzungsklasse der Beplankung, 1 oder 2")

#define RS_VERBINDUNGSMITTEL(FELD, PAAR) \
    PAAR(Ganzzahl, VMArt,    "VMArt1",    "VMArt2",    1, "", "Art des Verbindungsmittels, 1 bis 8") \
    PAAR(Ganzzahl, VMKlasse, "VMKlasse1", "VMKlasse2", 1, "", "Tragfähigkeitsklasse 1A bis 3C, 1 bis 9") \
    PAAR(Ganzzahl, VMTyp,    "VMTyp1",    "VMTyp2",    4, "", "Zeile der Nageltabelle, 1 bis 31") \
    PAAR(Feld, av,  "av1",  "av2",  60.0,  "mm",    "Abstand der Verbindungsmittel, 20 bis 200") \
    PAAR(Feld, d,   "d1",   "d2",   2.7,   "mm",    "Nenndurchmesser, 0,5 bis 100") \
    PAAR(Feld, ln,  "ln1",  "ln2",  50.0,  "mm",    "Nennlänge, 10 bis 300") \
    PAAR(Feld, fuk, "fuk1", "fuk2", 600.0, "N/mm²", "Zugfestigkeit fu,k, 20 bis 5000") \
    PAAR(Feld, dk,  "dk1",  "dk2",  6.1,   "mm",    "Kopfdurchmesser, 2 bis 80") \
    PAAR(Feld, lg,  "lg1",  "lg2",  25.0,  "mm",    "Gewinde- oder Rillenlänge, 2 bis 300") \
    PAAR(bool, Vorgebohrt, "Vorgebohrt1", "Vorgebohrt2", false, "", "vorgebohrt") \
    PAAR(bool, Versenkt,   "Versenkt1",   "Versenkt2",   false, "", "versenkt") \
    PAAR(bool, Zweireihig, "Zweireihig1", "Zweireihig2", false, "", "zweireihig, versetzt angeordnet")

#define RS_VERANKERUNG(FELD, PAAR) \
    FELD(bool, NachweisVerankerung, false,     "",      "der Nachweis der Verankerung ist zu führen") \
    FELD(Ganzzahl, Ankertyp,        1,         "",      "Anker, 1 bis 13; 13 ist der freie Anker") \
    FELD(Ganzzahl, AnzahlAnker,     1,         "Stück", "Anker je Wandende, 1 oder 2") \
    FELD(Ganzzahl, Teilausnagelung, 1,         "",      "1: voll ausgenagelt, 2: nur teilweise ausgenagelt") \
    FELD(Ganzzahl, AnzahlAnkerNaegel, 16,      "Stück", "Nägel im Anker, 2 bis 100") \
    FELD(Ganzzahl, Kammnagel,       1,         "",      "CNA-Kammnagel, 1 bis 4") \
    FELD(Feld,     RdAnker,         12.0,      "kN",    "Tragfähigkeit je Anker, 0,1 bis 5000") \
    FELD(Feld32,   kserAnker,       100000.0F, "kN/mm", "Steifigkeit je Anker, 0,1 bis 100000; 100000 heißt starr") \
    FELD(std::string, FreierAnkerName, ,       "",      "Name des freien Ankers")

#define RS_BELASTUNG(FELD, PAAR) \
    FELD(Ganzzahl, Lastfall, 1, "",      "Scheibenbeanspruchung 1 horizontal, 2 vertikal, 3 horizontal und vertikal") \
    FELD(Feld32, Fvk,  3.0F,    "kN",    "Horizontallast Fv,k, veränderlich, aus Wind, -1000 bis 1000") \
    FELD(Feld,   gk,   0.0,     "kN/m",  "Gleichlast am Wandkopf, ständig, -100 bis 100") \
    FELD(Feld32, qk,   0.0F,    "kN/m",  "Gleichlast am Wandkopf, veränderlich, -100 bis 100") \
    FELD(Feld32, wk,   0.0F,    "kN/m²", "Wind quer zur Wand, Sog negativ, -100 bis 100") \
    FELD(Feld,   Fcgk, 0.0,     "kN",    "Einzellasten auf die Rippen, ständig, -1000 bis 1000") \
    FELD(Feld32, Fcqk, 0.0F,    "kN",    "Einzellasten auf die Rippen, veränderlich, -1000 bis 1000") \
    FELD(bool, WindQuer, false, "",      "Wind quer zur Wandebene vorhanden") \
    FELD(Feld32, gkWand, 0.35F, "kN/m",  "Eigengewicht der Wand, 0 bis 1000") \
    FELD(Ganzzahl, KLED, 4,     "",      "Lasteinwirkungsdauer 1 ständig, 2 lang, 3 mittel, 4 kurz, 5 sehr kurz")

#define RS_BEMESSUNGSPARAMETER(FELD, PAAR) \
    FELD(Ganzzahl, GenauesVerfahren, 2, "", "1: vereinfacht nach 12.2 bis 12.8, 2: genau nach Anhang G.2.2") \
    FELD(bool, Erhoehung20, false, "", "Rd um 20 % erhöht nach 10.6 (4)") \
    FELD(bool, DeltaRd, false, "", "Rd um deltaRd aus dem Einhängeeffekt erhöht") \
    FELD(Feld, beta, 30.0, "°", "Winkel zwischen Klammerrücken und Faser, 30 bis 90") \
    FELD(Ganzzahl, KlammerWinkelOption, 1, "", "1: Winkel größer oder gleich 30°, 2: kleiner 30°") \
    FELD(Ganzzahl, VertikallastVerteilung, 1, "", "1: nur über die Rippen, 2: Rippen und Beplankung nach Beanspruchbarkeit") \
    FELD(Ganzzahl, LagesicherungVerfahren, 2, "", "1: nur Druckkraft über der Randrippe, 2: Summe der Momente")
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
