#pragma once

#include "model/Feldgruppe.h"

// The results of a run, in groups by the routine that owns them. Each field once, with type, default,
// unit and meaning. Numbers of clauses are those of DIN 1052 (2008). What is marked "JSON only" neither a
// calculation nor a report nor a window reads.

namespace rippenscheibe {

// clang-format off
#define RS_BEPLANKUNGSDICKEN(FELD, PAAR) \
    PAAR(Feld, t, "t1", "t2", 0.0, "mm", "Beplankungsdicke der Berechnung")

#define RS_BEMESSUNGSLASTEN(FELD, PAAR) \
    FELD(Feld, Fvd,  0.0, "kN",    "Horizontallast, Bemessungswert") \
    FELD(Feld, Fcgd, 0.0, "kN",    "Einzellast je Rippe, ständig, Bemessungswert") \
    FELD(Feld, Fcqd, 0.0, "kN",    "Einzellast je Rippe, veränderlich, Bemessungswert") \
    FELD(Feld, gd,   0.0, "kN/m",  "Gleichlast mit Eigengewicht, ständig, Bemessungswert") \
    FELD(Feld, qd,   0.0, "kN/m",  "Gleichlast, veränderlich, Bemessungswert") \
    FELD(Feld, wd,   0.0, "kN/m²", "Wind quer zur Wand, Bemessungswert")

#define RS_QUERSCHNITTSWERTE(FELD, PAAR) \
    FELD(Feld, ARandrippe,          0.0, "cm²", "Fläche der Randrippe") \
    FELD(Feld, AInnenrippe,         0.0, "cm²", "Fläche der Innenrippe") \
    FELD(Feld, AefLinks,            0.0, "cm²", "wirksame Querdruckfläche unter der linken Randrippe") \
    FELD(Feld, AefRechts,           0.0, "cm²", "wirksame Querdruckfläche unter der rechten Randrippe") \
    FELD(Feld, AefRandrippe,        0.0, "cm²", "größere der beiden Querdruckflächen") /* JSON only */ \
    FELD(Feld, AefInnenrippe,       0.0, "cm²", "wirksame Querdruckfläche unter einer Innenrippe") \
    FELD(Feld, WzRandrippe,         0.0, "cm³", "Widerstandsmoment der Randrippe, schwache Achse") \
    FELD(Feld, WzInnenrippe,        0.0, "cm³", "Widerstandsmoment der Innenrippe, schwache Achse") \
    FELD(Feld, WyRandrippe,         0.0, "cm³", "Widerstandsmoment der Randrippe, starke Achse") \
    FELD(Feld, WyInnenrippe,        0.0, "cm³", "Widerstandsmoment der Innenrippe, starke Achse") \
    FELD(Feld, ARandrippeGerundet,  0.0, "cm²", "Fläche der Randrippe, auf 0,1 gerundet") /* JSON only */ \
    FELD(Feld, WzRandrippeGerundet, 0.0, "cm³", "WzRandrippe, auf 0,1 gerundet") /* JSON only */ \
    FELD(Feld, WyRandrippeGerundet, 0.0, "cm³", "WyRandrippe, auf 0,1 gerundet") /* JSON only */ \
    FELD(Feld32, AnzahlRippen,     0.0F, "",    "Zahl der Rippen, 1 ist die linke Randrippe") \
    FELD(Feld, RippenabstandRest,   0.0, "mm",  "Breite des letzten Feldes, 0 wenn der Abstand aufgeht") \
    FELD(Feld, WBeplankung1,        0.0, "mm³/m", "Widerstandsmoment der Beplankung 1")

#define RS_EIGENGEWICHT(FELD, PAAR) \
    FELD(Feld, GewichtHolz,         0.0, "kN", "Gewicht der Rippen") \
    FELD(Feld, GewichtBeplankung1,  0.0, "kN", "Gewicht der Beplankung 1") \
    FELD(Feld, GewichtBeplankung2,  0.0, "kN", "Gewicht der Beplankung 2") \
    FELD(Feld, GewichtDaemmung,     0.0, "kN", "Gewicht der Dämmung") \
    FELD(Feld, GewichtGesamt,       0.0, "kN", "Gewicht der Wand") \
    FELD(Feld, DickeDaemmung,       0.0, "cm", "Dicke der Dämmung")

#define RS_MODIFIKATIONSBEIWERTE(FELD, PAAR) \
    FELD(Feld32, kmodRippen, 0.0F, "-", "kmod der Rippen") \
    PAAR(Feld32, kmod,     "kmod1",     "kmod2",     0.0F, "-", "kmod der Beplankung") \
    PAAR(Feld32, kmodVM,   "kmodVM1",   "kmodVM2",   0.0F, "-", "kmod der Verbindungsmittel") \
    PAAR(Feld32, kmodOSB,  "kmodOSB1",  "kmodOSB2",  0.0F, "-", "kmod für OSB") \
    PAAR(Feld32, kmodGips, "kmodGips1", "kmodGips2", 0.0F, "-", "kmod für Gipsplatten") \
    PAAR(Feld32, kmodSpan, "kmodSpan1", "kmodSpan2", 0.0F, "-", "kmod für Spanplatten") \
    PAAR(Feld32, kmodEigen, "kmodEigen1", "kmodEigen2", 0.0F, "-", "kmod des eigenen Materials")

#define RS_HOLZWERTE(FELD, PAAR) \
    FELD(Feld, rhok,      0.0, "kg/m³", "charakteristische Rohdichte der Rippen") \
    FELD(Feld, fmk,       0.0, "N/mm²", "charakteristische Biegefestigkeit") \
    FELD(Feld, fc0k,      0.0, "N/mm²", "charakteristische Druckfestigkeit in Faserrichtung") \
    FELD(Feld, ft0k,      0.0, "N/mm²", "charakteristische Zugfestigkeit in Faserrichtung") \
    FELD(Feld, fc90k,     0.0, "N/mm²", "charakteristische Druckfestigkeit quer zur Faser") \
    FELD(Feld, E0mean,    0.0, "N/mm²", "mittlerer E-Modul in Faserrichtung") \
    FELD(Feld, E005,      0.0, "N/mm²", "5-%-Fraktile des E-Moduls in Faserrichtung") \
    FELD(Feld, GmeanHolz, 0.0, "N/mm²", "mittlerer Schubmodul der Rippen") /* JSON only */ \
    FELD(Feld, G05Holz,   0.0, "N/mm²", "5-%-Fraktile des Schubmoduls der Rippen") \
    FELD(Feld, E90mean,   0.0, "N/mm²", "mittlerer E-Modul quer zur Faser") \
    FELD(Feld, E9005,     0.0, "N/mm²", "5-%-Fraktile des E-Moduls quer zur Faser") /* JSON only */ \
    FELD(Feld, betac,     0.0, "-",     "Imperfektionsbeiwert") \
    FELD(Feld, fmd,       0.0, "N/mm²", "Biegefestigkeit, Bemessungswert") \
    FELD(Feld, fc0d,      0.0, "N/mm²", "Druckfestigkeit in Faserrichtung, Bemessungswert") \
    FELD(Feld, fc90d,     0.0, "N/mm²", "Druckfestigkeit quer zur Faser, Bemessungswert") \
    FELD(Feld, ft0d,      0.0, "N/mm²", "Zugfestigkeit in Faserrichtung, Bemessungswert")

#define RS_BEPLANKUNGSWERTE(FELD, PAAR) \
    PAAR(Feld, fvk,   "fvk1",   "fvk2",   0.0, "N/mm²", "charakteristische Schubfestigkeit") \
    PAAR(Feld, fck,   "fck1",   "fck2",   0.0, "N/mm²", "charakteristische Druckfestigkeit") \
    PAAR(Feld, fmkBeplankung, "fmkBeplankung1", "fmkBeplankung2", 0.0, "N/mm²", "charakteristische Biegefestigkeit") \
    PAAR(Feld, rhokBeplankung, "rhok1", "rhok2", 0.0, "kg/m³", "charakteristische Rohdichte der Beplankung") \
    PAAR(Feld, Gmean, "Gmean1", "Gmean2", 0.0, "N/mm²", "mittlerer Schubmodul") \
    PAAR(Feld, G05,   "G05_1",  "G05_2",  0.0, "N/mm²", "5-%-Fraktile des Schubmoduls") \
    PAAR(Feld, Wichte, "Wichte1", "Wichte2", 0.0, "kN/m³", "Wichte") \
    PAAR(Feld, fvd,   "fvd1",   "fvd2",   0.0, "N/mm²", "Schubfestigkeit, Bemessungswert") \
    PAAR(Feld, fcd,   "fcd1",   "fcd2",   0.0, "N/mm²", "Druckfestigkeit, Bemessungswert") \
    PAAR(Feld, fmdBeplankung, "fmdBeplankung1", "fmdBeplankung2", 0.0, "N/mm²", "Biegefestigkeit, Bemessungswert")

#define RS_TRAGFAEHIGKEITEN(FELD, PAAR) \
    PAAR(Feld, Rd,        "Rd1",        "Rd2",        0.0, "N",     "Tragfähigkeit eines Verbindungsmittels, Bemessungswert") \
    PAAR(Feld, tvorh,     "tvorh1",     "tvorh2",     0.0, "-",     "Abminderung wegen der Beplankungsdicke, höchstens 1") \
    PAAR(Feld, treq,      "treq1",      "treq2",      0.0, "-",     "Abminderung wegen der Einbindetiefe, höchstens 1")

#define RS_ANSCHLUSSWERTE(FELD, PAAR) \
    PAAR(Feld, Myk,       "Myk1",       "Myk2",       0.0, "Nmm",   "charakteristisches Fließmoment") \
    PAAR(Feld, fhkPlatte, "fhkPlatte1", "fhkPlatte2", 0.0, "N/mm²", "Lochleibungsfestigkeit der Beplankung") \
    PAAR(Feld, fhkRippe,  "fhkRippe1",  "fhkRippe2",  0.0, "N/mm²", "Lochleibungsfestigkeit der Rippe") \
    PAAR(Feld, betaFh,    "betaFh1",    "betaFh2",    0.0, "-",     "Verhältnis fhkRippe zu fhkPlatte")

#define RS_VEREINFACHTES_VERFAHREN(FELD, PAAR) \
    PAAR(Feld, AFaktor,   "AFaktor1",   "AFaktor2",   0.0, "-",     "Beiwert A des vereinfachten Verfahrens") \
    PAAR(Feld, treqPlatte, "treqPlatte1", "treqPlatte2", 0.0, "mm", "erforderliche Beplankungsdicke") \
    PAAR(Feld, treqRippe, "treqRippe1", "treqRippe2", 0.0, "mm",    "erforderliche Einbindetiefe in die Rippe") \
    PAAR(Feld, Rk,        "Rk1",        "Rk2",        0.0, "N",     "charakteristische Tragfähigkeit, vereinfacht")

#define RS_VERSAGENSARTEN(FELD, PAAR) \
    PAAR(Feld, RkA, "RkA1", "RkA2", 0.0, "N", "Versagensart A, charakteristisch") \
    PAAR(Feld, RkB, "RkB1", "RkB2", 0.0, "N", "Versagensart B, charakteristisch") \
    PAAR(Feld, RkC, "RkC1", "RkC2", 0.0, "N", "Versagensart C, charakteristisch") \
    PAAR(Feld, RkD, "RkD1", "RkD2", 0.0, "N", "Versagensart D, charakteristisch") \
    PAAR(Feld, RkE, "RkE1", "RkE2", 0.0, "N", "Versagensart E, charakteristisch") \
    PAAR(Feld, RkF, "RkF1", "RkF2", 0.0, "N", "Versagensart F, charakteristisch") \
    PAAR(Feld, RdA, "RdA1", "RdA2", 0.0, "N", "Versagensart A, Bemessungswert") \
    PAAR(Feld, RdB, "RdB1", "RdB2", 0.0, "N", "Versagensart B, Bemessungswert") \
    PAAR(Feld, RdC, "RdC1", "RdC2", 0.0, "N", "Versagensart C, Bemessungswert") \
    PAAR(Feld, RdD, "RdD1", "RdD2", 0.0, "N", "Versagensart D, Bemessungswert") \
    PAAR(Feld, RdE, "RdE1", "RdE2", 0.0, "N", "Versagensart E, Bemessungswert") \
    PAAR(Feld, RdF, "RdF1", "RdF2", 0.0, "N", "Versagensart F, Bemessungswert")

#define RS_EINHAENGEEFFEKT(FELD, PAAR) \
    PAAR(Feld, deltaRk, "deltaRk1", "deltaRk2", 0.0, "N", "Zuwachs aus dem Einhängeeffekt, vereinfacht") \
    PAAR(Feld, deltaRd, "deltaRd1", "deltaRd2", 0.0, "N", "Zuwachs aus dem Einhängeeffekt, genau")

#define RS_AUSZIEHWERTE(FELD, PAAR) \
    PAAR(Feld, lef, "lef1", "lef2", 0.0, "mm",    "wirksame Gewinde- oder Schaftlänge in der Rippe") \
    PAAR(Feld, f1k, "f1k1", "f1k2", 0.0, "N/mm²", "Ausziehparameter") \
    PAAR(Feld, f2k, "f2k1", "f2k2", 0.0, "N/mm²", "Kopfdurchziehparameter") \
    PAAR(Feld, Rxk, "Rxk1", "Rxk2", 0.0, "N",     "charakteristischer Ausziehwiderstand") \
    PAAR(Feld, Rxd, "Rxd",  "Rxd2", 0.0, "N",     "Ausziehwiderstand, Bemessungswert")

#define RS_GIPSFASERBEIWERTE(FELD, PAAR) \
    PAAR(Feld, kFaser, "kFaser1", "kFaser2", 0.0, "-", "Abminderung für Gipsfaserplatten")

#define RS_BEANSPRUCHBARKEITEN(FELD, PAAR) \
    FELD(Feld, kv1, 0.0, "-", "Beiwert kv1, Verbund zwischen Beplankung und Rippen") \
    FELD(Feld, kv2, 0.0, "-", "Beiwert kv2, Zusatzbeanspruchung der Beplankung") \
    PAAR(Feld, fv0dn,  "fv0d1",  "fv0d2",  0.0, "N/mm", "Schubfestigkeit parallel zum Plattenrand, je Seite") \
    FELD(Feld, fv0d,                       0.0, "N/mm", "Schubfestigkeit parallel zum Plattenrand, gesamt") \
    PAAR(Feld, fv90dn, "fv90d1", "fv90d2", 0.0, "N/mm", "Festigkeit senkrecht zum Plattenrand, je Seite") \
    FELD(Feld, fv90d,                      0.0, "N/mm", "Festigkeit senkrecht zum Plattenrand, gesamt") \
    PAAR(Feld, fv0dTerm1,  "fv0d1Term1",  "fv0d2Term1",  0.0, "N/mm", "parallel: Verbindungsmittel") \
    PAAR(Feld, fv0dTerm2,  "fv0d1Term2",  "fv0d2Term2",  0.0, "N/mm", "parallel: Schub der Beplankung") \
    PAAR(Feld, fv0dTerm3,  "fv0d1Term3",  "fv0d2Term3",  0.0, "N/mm", "parallel: Beulen der Beplankung") \
    PAAR(Feld, fv90dTerm1, "fv90d1Term1", "fv90d2Term1", 0.0, "N/mm", "senkrecht: Verbindungsmittel") \
    PAAR(Feld, fv90dTerm2, "fv90d1Term2", "fv90d2Term2", 0.0, "N/mm", "senkrecht: Druck der Beplankung") \
    PAAR(Feld, fv90dTerm3, "fv90d1Term3", "fv90d2Term3", 0.0, "N/mm", "senkrecht: Beulen der Beplankung")

#define RS_BEANSPRUCHUNGEN(FELD, PAAR) \
    FELD(Feld, sv0d,  0.0, "N/mm", "Schubfluss parallel zum Plattenrand") \
    FELD(Feld, sv90d, 0.0, "N/mm", "Druckbeanspruchung senkrecht zum Plattenrand") \
    FELD(Feld, FEdge, 0.0, "kN",   "Kraft in der Randrippe aus dem Moment der Horizontallast") \
    FELD(Feld, AnteilRippen,     0.0, "-", "Anteil der Rippen an der Vertikallast") \
    FELD(Feld, AnteilBeplankung, 0.0, "-", "Anteil der Beplankung an der Vertikallast") \
    FELD(Feld, RdRippenGesamt,   0.0, "N", "Tragfähigkeit aller Rippen") \
    FELD(Feld, RdBeplankung,     0.0, "N", "Tragfähigkeit der Beplankung") \
    PAAR(Feld, nVM, "nVM1", "nVM2", 0.0, "Stück", "Verbindungsmittel längs der Wand") \
    FELD(Feld, mdBeplankung, 0.0, "kNm/m", "Moment in der Beplankung 1 aus Wind") \
    FELD(Feld, SigmaBiegung, 0.0, "N/mm²", "Biegespannung in der Beplankung 1") \
    FELD(Rippenfeld, FcdStabilitaet,   , "kN",   "Druckkraft für den Stabilitätsnachweis, ständiger Anteil") \
    FELD(Rippenfeld, FcdVeraenderlich, , "kN",   "Druckkraft für den Stabilitätsnachweis, veränderlich und horizontal") \
    FELD(Rippenfeld, FcdSchwelle,      , "kN",   "Druckkraft für die Schwellenpressung") \
    FELD(Rippenfeld, Ftd,              , "kN",   "Zugkraft in der Rippe") \
    FELD(Rippenfeld, wdRippe,          , "kN/m", "Windlast auf die Rippe") \
    FELD(Rippenfeld, Myd,              , "kNm",  "Moment in der Rippe aus Wind") \
    FELD(Rippenfeld, Faxd,             , "N",    "Kraft in der Achse eines Verbindungsmittels aus Windsog") \
    FELD(Rippenfeld, RdRippe,          , "N",    "Tragfähigkeit der Rippe für die Verteilung der Vertikallast") \
    FELD(Rippenfeld, RdRippenSumme,    , "N",    "laufende Summe von RdRippe")

#define RS_QUERDRUCKBEIWERT(FELD, PAAR) \
    FELD(Feld, kc90,              0.0, "-", "Querdruckbeiwert")

#define RS_KNICKEN_UND_KIPPEN(FELD, PAAR) \
    FELD(Feld, iRandrippe,        0.0, "m", "Trägheitsradius der Randrippe") \
    FELD(Feld, lambda,            0.0, "-", "Schlankheit") \
    FELD(Feld, lambdaRel,         0.0, "-", "bezogene Schlankheit") \
    FELD(Feld, kKnick,            0.0, "-", "Hilfswert k des Knickbeiwerts") \
    FELD(Feld, kc,                0.0, "-", "Knickbeiwert") \
    FELD(Feld, lambdaMRandrippe,  0.0, "-", "bezogene Kippschlankheit der Randrippe") \
    FELD(Feld, lambdaMInnenrippe, 0.0, "-", "bezogene Kippschlankheit der Innenrippe") \
    FELD(Feld, kmRandrippe,       0.0, "-", "Kippbeiwert der Randrippe") \
    FELD(Feld, kmInnenrippe,      0.0, "-", "Kippbeiwert der Innenrippe")

#define RS_SCHWELLENPRESSUNG(FELD, PAAR) \
    FELD(Rippenfeld, SigmaC90d,             , "N/mm²", "Schwellenpressung") \
    FELD(Rippenfeld, etaC90,                , "-",     "Ausnutzung der Schwellenpressung")

#define RS_STABILITAET(FELD, PAAR) \
    FELD(Rippenfeld, SigmaC0d,              , "N/mm²", "Druckspannung in der Rippe") \
    FELD(Rippenfeld, SigmaMd,               , "N/mm²", "Biegespannung in der Rippe") \
    FELD(Rippenfeld, etaStabilitaetDruck,   , "-",     "Ausnutzung der Stabilität, Anteil Druck") \
    FELD(Rippenfeld, etaStabilitaetBiegung, , "-",     "Ausnutzung der Stabilität, Anteil Biegung") \
    FELD(Rippenfeld, etaStabilitaet,        , "-",     "Ausnutzung der Stabilität")

#define RS_SCHUBNACHWEIS(FELD, PAAR) \
    FELD(Feld, etaSv0,      0.0, "-",    "Ausnutzung Scheibenschub parallel") \
    FELD(Feld, etaSv90,     0.0, "-",    "Ausnutzung Scheibenschub senkrecht") \
    FELD(Feld, etaKombi,    0.0, "-",    "Ausnutzung Scheibenschub kombiniert") \
    FELD(Feld, sv0dKombi,   0.0, "N/mm", "sv0d des kombinierten Nachweises") /* JSON only */ \
    FELD(Feld, sv90dKombi,  0.0, "N/mm", "sv90d des kombinierten Nachweises") /* JSON only */ \
    FELD(Feld, fv0dKombi,   0.0, "N/mm", "0,7-fache Schubfestigkeit parallel") \
    FELD(Feld, fv90dKombi,  0.0, "N/mm", "0,7-fache Festigkeit senkrecht") /* JSON only */

#define RS_ZUGNACHWEIS(FELD, PAAR) \
    FELD(Rippenfeld, SigmaT0d, , "N/mm²", "Zugspannung in der Rippe") \
    FELD(Rippenfeld, etaT0,    , "-",     "Ausnutzung der Rippe auf Zug")

#define RS_BIEGENACHWEIS(FELD, PAAR) \
    FELD(Feld, etaBiegung,  0.0, "-",    "Ausnutzung der Beplankung 1 auf Biegung")

#define RS_HERAUSZIEHNACHWEIS(FELD, PAAR) \
    FELD(Rippenfeld, etaHerausziehenRippe, , "-", "Ausnutzung der Verbindungsmittel auf Herausziehen")

#define RS_ZUSAMMENFASSUNG(FELD, PAAR) \
    FELD(Feld, maxEtaStabilitaet, 0.0, "-",     "größte Ausnutzung der Stabilität") \
    FELD(Feld, maxEtaC90,         0.0, "-",     "größte Ausnutzung der Schwellenpressung") \
    FELD(Feld, maxEtaT0,          0.0, "-",     "größte Ausnutzung der Rippen auf Zug") \
    FELD(Feld, etaHerausziehen,   0.0, "-",     "größte Ausnutzung auf Herausziehen") \
    FELD(Feld, maxSigmaC0d,       0.0, "N/mm²", "größte Druckspannung") /* JSON only */ \
    FELD(Feld, maxSigmaMd,        0.0, "N/mm²", "größte Biegespannung") /* JSON only */ \
    FELD(Feld, maxSigmaC90d,      0.0, "N/mm²", "größte Schwellenpressung") /* JSON only */ \
    FELD(Feld, maxSigmaT0d,       0.0, "N/mm²", "größte Zugspannung") /* JSON only */ \
    FELD(Feld, maxMyd,            0.0, "kNm",   "größtes Moment aus Wind") \
    FELD(Feld, maxFcdSchwelle,    0.0, "kN",    "größte Druckkraft für die Schwellenpressung") \
    FELD(Feld, maxFcdStabilitaet, 0.0, "kN",    "größte Druckkraft für die Stabilität") \
    FELD(Feld, maxFtd,            0.0, "kN",    "größte Zugkraft") \
    FELD(Feld, maxFaxd,           0.0, "N",     "größte Kraft in der Achse eines Verbindungsmittels") \
    FELD(bool, AlleNachweiseErfuellt, false, "", "alle Nachweise sind erfüllt")

#define RS_VERFORMUNGEN(FELD, PAAR) \
    PAAR(Feld, rhoM, "rhoM1", "rhoM2", 0.0, "kg/m³", "gemittelte Rohdichte von Rippe und Beplankung") \
    PAAR(Feld, kser, "kser1", "kser2", 0.0, "N/mm",  "Verschiebungsmodul eines Verbindungsmittels") \
    PAAR(Feld, nVertikalRaender,   "nVertikalRaender1",   "nVertikalRaender2",   0.0, "", "vertikale Plattenränder") \
    PAAR(Feld, nHorizontalRaender, "nHorizontalRaender1", "nHorizontalRaender2", 0.0, "", "horizontale Plattenränder") \
    FELD(Feld, FvCharakt,       0.0, "kN",    "Horizontallast des Gebrauchszustands") \
    FELD(Feld, svCharakt,       0.0, "N/mm",  "Schubfluss des Gebrauchszustands") \
    FELD(Feld, SigmaC90Charakt, 0.0, "N/mm²", "Schwellenpressung des Gebrauchszustands") \
    FELD(Feld, FtCharakt,       0.0, "kN",    "Ankerzugkraft des Gebrauchszustands") \
    FELD(Feld, uVMGebrauch,            0.0, "mm", "Anteil der Verbindungsmittel, Gebrauchstauglichkeit") \
    FELD(Feld, uVMTragfaehigkeit,      0.0, "mm", "Anteil der Verbindungsmittel, Tragfähigkeit") \
    FELD(Feld, uRippeGebrauch,         0.0, "mm", "Anteil der Randrippen, Gebrauchstauglichkeit") \
    FELD(Feld, uRippeTragfaehigkeit,   0.0, "mm", "Anteil der Randrippen, Tragfähigkeit") \
    FELD(Feld, uSchubGebrauch,         0.0, "mm", "Anteil des Schubs der Beplankung, Gebrauchstauglichkeit") \
    FELD(Feld, uSchubTragfaehigkeit,   0.0, "mm", "Anteil des Schubs der Beplankung, Tragfähigkeit") \
    FELD(Feld, uSchwelleGebrauch,      0.0, "mm", "Anteil der Schwellenpressung, Gebrauchstauglichkeit") \
    FELD(Feld, uSchwelleTragfaehigkeit, 0.0, "mm", "Anteil der Schwellenpressung, Tragfähigkeit") \
    FELD(Feld, uAnkerGebrauch,         0.0, "mm", "Anteil des Ankers, Gebrauchstauglichkeit") \
    FELD(Feld, uAnkerTragfaehigkeit,   0.0, "mm", "Anteil des Ankers, Tragfähigkeit") \
    FELD(Feld, uGesGebrauch,           0.0, "mm", "Kopfverschiebung, Gebrauchstauglichkeit") \
    FELD(Feld, uZulGebrauch,           0.0, "mm", "zulässige Kopfverschiebung, Gebrauchstauglichkeit") \
    FELD(Feld, uGesTragfaehigkeit,     0.0, "mm", "Kopfverschiebung, Tragfähigkeit") \
    FELD(Feld, uZulTragfaehigkeit,     0.0, "mm", "zulässige Kopfverschiebung, Tragfähigkeit")

#define RS_WANDSTEIFIGKEIT(FELD, PAAR) \
    FELD(Feld, uVMSteifigkeit,         0.0, "mm", "Anteil der Verbindungsmittel, Wandsteifigkeit") \
    FELD(Feld, uRippeSteifigkeit,      0.0, "mm", "Anteil der Randrippen, Wandsteifigkeit") \
    FELD(Feld, uSchubSteifigkeit,      0.0, "mm", "Anteil des Schubs der Beplankung, Wandsteifigkeit") \
    FELD(Feld, uSchwelleSteifigkeit,   0.0, "mm", "Anteil der Schwellenpressung, Wandsteifigkeit") \
    FELD(Feld, uAnkerSteifigkeit,      0.0, "mm", "Anteil des Ankers, Wandsteifigkeit") \
    FELD(Feld, SteifigkeitGesamt,      0.0, "kNm³/mm", "Schubsteifigkeit der Wand aus allen Anteilen") /* JSON only */ \
    FELD(Feld, SteifigkeitOhneVM,      0.0, "kNm³/mm", "Schubsteifigkeit der Wand ohne Verbindungsmittel und Anker") /* JSON only */

#define RS_ANKERZUGKRAFT(FELD, PAAR) \
    FELD(Feld, Ftdst,      0.0, "kN",  "zu verankernde Zugkraft")

#define RS_BETONANKER(FELD, PAAR) \
    FELD(Feld, Fbd,        0.0, "kN",  "durch den Betonanker aufzunehmende Kraft")

#define RS_LAGESICHERHEIT(FELD, PAAR) \
    FELD(Feld, MStabSumme, 0.0, "kNm", "Summe der stabilisierenden Momente") \
    FELD(Feld, MDstSumme,  0.0, "kNm", "Summe der destabilisierenden Momente") \
    FELD(Feld, FStab,      0.0, "kN",  "stabilisierende Kraft am Wandende") \
    FELD(Feld, FDst,       0.0, "kN",  "destabilisierende Kraft am Wandende") /* JSON only */ \
    FELD(Rippenfeld, MStab,  , "kNm", "stabilisierende Momente, laufende Summe") \
    FELD(Rippenfeld, MDst,   , "kNm", "destabilisierende Momente, laufende Summe")

#define RS_ABSTAENDE(FELD, PAAR) \
    PAAR(Feld, a1, "a11", "a12", 0.0, "mm", "Mindestabstand in Faserrichtung") /* JSON only */ \
    PAAR(Feld, a2, "a21", "a22", 0.0, "mm", "Mindestabstand quer zur Faser") /* JSON only */ \
    PAAR(Feld, a3, "a31", "a32", 0.0, "mm", "Mindestabstand zum unbeanspruchten Hirnholzende") /* JSON only */ \
    PAAR(Feld, a4, "a41", "a42", 0.0, "mm", "Mindestabstand zum beanspruchten Hirnholzende") /* JSON only */ \
    PAAR(Feld, aRand, "aRand1", "aRand2", 0.0, "mm", "Mindestabstand zum Rand der Rippe") \
    PAAR(Feld, aPlatteUnbelastet, "aPlatteUnbelastet1", "aPlatteUnbelastet2", 0.0, "mm", "Mindestabstand zum unbeanspruchten Plattenrand") /* JSON only */ \
    PAAR(Feld, aPlatte, "aPlatte1", "aPlatte2", 0.0, "mm", "Mindestabstand zum beanspruchten Plattenrand")
// clang-format on

RS_GRUPPE(Beplankungsdicken, RS_BEPLANKUNGSDICKEN)
RS_GRUPPE(Bemessungslasten, RS_BEMESSUNGSLASTEN)
RS_GRUPPE(Querschnitte, RS_QUERSCHNITTSWERTE)
RS_GRUPPE(Eigengewicht, RS_EIGENGEWICHT)
RS_GRUPPE(Modifikationsbeiwerte, RS_MODIFIKATIONSBEIWERTE)
RS_GRUPPE(Holzwerte, RS_HOLZWERTE)
RS_GRUPPE(Beplankungswerte, RS_BEPLANKUNGSWERTE)
RS_GRUPPE(Tragfaehigkeiten, RS_TRAGFAEHIGKEITEN)
RS_GRUPPE(Anschlusswerte, RS_ANSCHLUSSWERTE)
RS_GRUPPE(VereinfachtesVerfahren, RS_VEREINFACHTES_VERFAHREN)
RS_GRUPPE(Versagensarten, RS_VERSAGENSARTEN)
RS_GRUPPE(Einhaengeeffekt, RS_EINHAENGEEFFEKT)
RS_GRUPPE(Ausziehwerte, RS_AUSZIEHWERTE)
RS_GRUPPE(Gipsfaserbeiwerte, RS_GIPSFASERBEIWERTE)
RS_GRUPPE(Beanspruchbarkeiten, RS_BEANSPRUCHBARKEITEN)
RS_GRUPPE(Beanspruchungen, RS_BEANSPRUCHUNGEN)
RS_GRUPPE(Querdruckbeiwert, RS_QUERDRUCKBEIWERT)
RS_GRUPPE(KnickenUndKippen, RS_KNICKEN_UND_KIPPEN)
RS_GRUPPE(Schwellenpressung, RS_SCHWELLENPRESSUNG)
RS_GRUPPE(Stabilitaet, RS_STABILITAET)
RS_GRUPPE(Schubnachweis, RS_SCHUBNACHWEIS)
RS_GRUPPE(Zugnachweis, RS_ZUGNACHWEIS)
RS_GRUPPE(Biegenachweis, RS_BIEGENACHWEIS)
RS_GRUPPE(Herausziehnachweis, RS_HERAUSZIEHNACHWEIS)
RS_GRUPPE(Zusammenfassung, RS_ZUSAMMENFASSUNG)
RS_GRUPPE(Verformungen, RS_VERFORMUNGEN)
RS_GRUPPE(Wandsteifigkeit, RS_WANDSTEIFIGKEIT)
RS_GRUPPE(Ankerzugkraft, RS_ANKERZUGKRAFT)
RS_GRUPPE(Betonanker, RS_BETONANKER)
RS_GRUPPE(Lagesicherheit, RS_LAGESICHERHEIT)
RS_GRUPPE(Abstaende, RS_ABSTAENDE)

struct Ergebnisse
    : Gruppen<Beplankungsdicken, Bemessungslasten, Querschnitte, Eigengewicht, Modifikationsbeiwerte,
              Holzwerte, Beplankungswerte, Tragfaehigkeiten, Anschlusswerte, VereinfachtesVerfahren,
              Versagensarten, Einhaengeeffekt, Ausziehwerte, Gipsfaserbeiwerte, Beanspruchbarkeiten,
              Beanspruchungen, Querdruckbeiwert, KnickenUndKippen, Schwellenpressung, Stabilitaet,
              Schubnachweis, Zugnachweis, Biegenachweis, Herausziehnachweis, Zusammenfassung, Verformungen,
              Wandsteifigkeit, Ankerzugkraft, Betonanker, Lagesicherheit, Abstaende> {};

}  // namespace rippenscheibe
