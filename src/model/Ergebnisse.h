#pragma once

#include "model/Feldgruppe.h"

// The results of a run, in groups by the routine that owns them. Each field once, with type, default,
// unit, meaning, symbol and, where its formula stands in the standard, source. Numbers of clauses are those
// of DIN 1052 (2008). What is marked "JSON only" neither a calculation nor a report nor a window reads.

namespace rippenscheibe {

// The clauses that give the formulas.
namespace norm {
inline constexpr std::string_view kombination = "DIN 1052 (2008), 8.7.7";
inline constexpr std::string_view vereinfacht = "DIN 1052 (2008), 12.2 bis 12.8";
inline constexpr std::string_view genau = "DIN 1052 (2008), Anhang G.2.2";
}  // namespace norm

// clang-format off
#define RS_BEPLANKUNGSDICKEN(FELD, PAAR) \
    PAAR(Feld, t, "t1", "t2", 0.0, "mm", "Beplankungsdicke der Berechnung", .symbol = "t")

#define RS_BEMESSUNGSLASTEN(FELD, PAAR) \
    FELD(Feld, Fvd,  0.0, "kN",    "Horizontallast, Bemessungswert", .symbol = "F_{v,d}") \
    FELD(Feld, Fcgd, 0.0, "kN",    "Einzellast je Rippe, ständig, Bemessungswert", .symbol = "F_{c,g,d}") \
    FELD(Feld, Fcqd, 0.0, "kN",    "Einzellast je Rippe, veränderlich, Bemessungswert", .symbol = "F_{c,q,d}") \
    FELD(Feld, gd,   0.0, "kN/m",  "Gleichlast mit Eigengewicht, ständig, Bemessungswert", .symbol = "g_{d}") \
    FELD(Feld, qd,   0.0, "kN/m",  "Gleichlast, veränderlich, Bemessungswert", .symbol = "q_{d}") \
    FELD(Feld, wd,   0.0, "kN/m²", "Wind quer zur Wand, Bemessungswert", .symbol = "w_{d}")

#define RS_QUERSCHNITTSWERTE(FELD, PAAR) \
    FELD(Feld, ARandrippe,          0.0, "cm²", "Fläche der Randrippe", .symbol = "A_{Rand}") \
    FELD(Feld, AInnenrippe,         0.0, "cm²", "Fläche der Innenrippe", .symbol = "A_{Innen}") \
    FELD(Feld, AefLinks,            0.0, "cm²", "wirksame Querdruckfläche unter der linken Randrippe", .symbol = "A_{ef,links}") \
    FELD(Feld, AefRechts,           0.0, "cm²", "wirksame Querdruckfläche unter der rechten Randrippe", .symbol = "A_{ef,rechts}") \
    FELD(Feld, AefRandrippe,        0.0, "cm²", "größere der beiden Querdruckflächen", .symbol = "A_{ef,Rand}") /* JSON only */ \
    FELD(Feld, AefInnenrippe,       0.0, "cm²", "wirksame Querdruckfläche unter einer Innenrippe", .symbol = "A_{ef,Innen}") \
    FELD(Feld, WzRandrippe,         0.0, "cm³", "Widerstandsmoment der Randrippe, schwache Achse", .symbol = "W_{z,Rand}") \
    FELD(Feld, WzInnenrippe,        0.0, "cm³", "Widerstandsmoment der Innenrippe, schwache Achse", .symbol = "W_{z,Innen}") \
    FELD(Feld, WyRandrippe,         0.0, "cm³", "Widerstandsmoment der Randrippe, starke Achse", .symbol = "W_{y,Rand}") \
    FELD(Feld, WyInnenrippe,        0.0, "cm³", "Widerstandsmoment der Innenrippe, starke Achse", .symbol = "W_{y,Innen}") \
    FELD(Feld, ARandrippeGerundet,  0.0, "cm²", "Fläche der Randrippe, auf 0,1 gerundet", .symbol = "A_{Rand,gerundet}") /* JSON only */ \
    FELD(Feld, WzRandrippeGerundet, 0.0, "cm³", "WzRandrippe, auf 0,1 gerundet", .symbol = "W_{z,Rand,gerundet}") /* JSON only */ \
    FELD(Feld, WyRandrippeGerundet, 0.0, "cm³", "WyRandrippe, auf 0,1 gerundet", .symbol = "W_{y,Rand,gerundet}") /* JSON only */ \
    FELD(Feld32, AnzahlRippen,     0.0F, "",    "Zahl der Rippen, 1 ist die linke Randrippe", .symbol = "n") \
    FELD(Feld, RippenabstandRest,   0.0, "mm",  "Breite des letzten Feldes, 0 wenn der Abstand aufgeht", .symbol = "a_{r,Rest}") \
    FELD(Feld, WBeplankung1,        0.0, "mm³/m", "Widerstandsmoment der Beplankung 1", .symbol = "W_{Platte,1}")

#define RS_EIGENGEWICHT(FELD, PAAR) \
    FELD(Feld, GewichtHolz,         0.0, "kN", "Gewicht der Rippen", .symbol = "G_{Holz}") \
    FELD(Feld, GewichtBeplankung1,  0.0, "kN", "Gewicht der Beplankung 1", .symbol = "G_{Platte,1}") \
    FELD(Feld, GewichtBeplankung2,  0.0, "kN", "Gewicht der Beplankung 2", .symbol = "G_{Platte,2}") \
    FELD(Feld, GewichtDaemmung,     0.0, "kN", "Gewicht der Dämmung", .symbol = "G_{Dämmung}") \
    FELD(Feld, GewichtGesamt,       0.0, "kN", "Gewicht der Wand", .symbol = "G") \
    FELD(Feld, DickeDaemmung,       0.0, "cm", "Dicke der Dämmung", .symbol = "t_{Dämmung}")

#define RS_MODIFIKATIONSBEIWERTE(FELD, PAAR) \
    FELD(Feld32, kmodRippen, 0.0F, "-", "kmod der Rippen", .symbol = "k_{mod,Rippen}") \
    PAAR(Feld32, kmod,     "kmod1",     "kmod2",     0.0F, "-", "kmod der Beplankung", .symbol = "k_{mod}") \
    PAAR(Feld32, kmodVM,   "kmodVM1",   "kmodVM2",   0.0F, "-", "kmod der Verbindungsmittel", .symbol = "k_{mod,VM}") \
    PAAR(Feld32, kmodOSB,  "kmodOSB1",  "kmodOSB2",  0.0F, "-", "kmod für OSB", .symbol = "k_{mod,OSB}") \
    PAAR(Feld32, kmodGips, "kmodGips1", "kmodGips2", 0.0F, "-", "kmod für Gipsplatten", .symbol = "k_{mod,Gips}") \
    PAAR(Feld32, kmodSpan, "kmodSpan1", "kmodSpan2", 0.0F, "-", "kmod für Spanplatten", .symbol = "k_{mod,Span}") \
    PAAR(Feld32, kmodEigen, "kmodEigen1", "kmodEigen2", 0.0F, "-", "kmod des eigenen Materials", .symbol = "k_{mod,eigen}")

#define RS_HOLZWERTE(FELD, PAAR) \
    FELD(Feld, rhok,      0.0, "kg/m³", "charakteristische Rohdichte der Rippen", .symbol = "ρ_{k}") \
    FELD(Feld, fmk,       0.0, "N/mm²", "charakteristische Biegefestigkeit", .symbol = "f_{m,k}") \
    FELD(Feld, fc0k,      0.0, "N/mm²", "charakteristische Druckfestigkeit in Faserrichtung", .symbol = "f_{c,0,k}") \
    FELD(Feld, ft0k,      0.0, "N/mm²", "charakteristische Zugfestigkeit in Faserrichtung", .symbol = "f_{t,0,k}") \
    FELD(Feld, fc90k,     0.0, "N/mm²", "charakteristische Druckfestigkeit quer zur Faser", .symbol = "f_{c,90,k}") \
    FELD(Feld, E0mean,    0.0, "N/mm²", "mittlerer E-Modul in Faserrichtung", .symbol = "E_{0,mean}") \
    FELD(Feld, E005,      0.0, "N/mm²", "5-%-Fraktile des E-Moduls in Faserrichtung", .symbol = "E_{0,05}") \
    FELD(Feld, GmeanHolz, 0.0, "N/mm²", "mittlerer Schubmodul der Rippen", .symbol = "G_{mean}") /* JSON only */ \
    FELD(Feld, G05Holz,   0.0, "N/mm²", "5-%-Fraktile des Schubmoduls der Rippen", .symbol = "G_{05}") \
    FELD(Feld, E90mean,   0.0, "N/mm²", "mittlerer E-Modul quer zur Faser", .symbol = "E_{90,mean}") \
    FELD(Feld, E9005,     0.0, "N/mm²", "5-%-Fraktile des E-Moduls quer zur Faser", .symbol = "E_{90,05}") /* JSON only */ \
    FELD(Feld, betac,     0.0, "-",     "Imperfektionsbeiwert", .symbol = "β_{c}") \
    FELD(Feld, fmd,       0.0, "N/mm²", "Biegefestigkeit, Bemessungswert", .symbol = "f_{m,d}") \
    FELD(Feld, fc0d,      0.0, "N/mm²", "Druckfestigkeit in Faserrichtung, Bemessungswert", .symbol = "f_{c,0,d}") \
    FELD(Feld, fc90d,     0.0, "N/mm²", "Druckfestigkeit quer zur Faser, Bemessungswert", .symbol = "f_{c,90,d}") \
    FELD(Feld, ft0d,      0.0, "N/mm²", "Zugfestigkeit in Faserrichtung, Bemessungswert", .symbol = "f_{t,0,d}")

#define RS_BEPLANKUNGSWERTE(FELD, PAAR) \
    PAAR(Feld, fvk,   "fvk1",   "fvk2",   0.0, "N/mm²", "charakteristische Schubfestigkeit", .symbol = "f_{v,k}") \
    PAAR(Feld, fck,   "fck1",   "fck2",   0.0, "N/mm²", "charakteristische Druckfestigkeit", .symbol = "f_{c,k}") \
    PAAR(Feld, fmkBeplankung, "fmkBeplankung1", "fmkBeplankung2", 0.0, "N/mm²", "charakteristische Biegefestigkeit", .symbol = "f_{m,k}") \
    PAAR(Feld, rhokBeplankung, "rhok1", "rhok2", 0.0, "kg/m³", "charakteristische Rohdichte der Beplankung", .symbol = "ρ_{k}") \
    PAAR(Feld, Gmean, "Gmean1", "Gmean2", 0.0, "N/mm²", "mittlerer Schubmodul", .symbol = "G_{mean}") \
    PAAR(Feld, G05,   "G05_1",  "G05_2",  0.0, "N/mm²", "5-%-Fraktile des Schubmoduls", .symbol = "G_{05}") \
    PAAR(Feld, Wichte, "Wichte1", "Wichte2", 0.0, "kN/m³", "Wichte", .symbol = "γ") \
    PAAR(Feld, fvd,   "fvd1",   "fvd2",   0.0, "N/mm²", "Schubfestigkeit, Bemessungswert", .symbol = "f_{v,d}") \
    PAAR(Feld, fcd,   "fcd1",   "fcd2",   0.0, "N/mm²", "Druckfestigkeit, Bemessungswert", .symbol = "f_{c,d}") \
    PAAR(Feld, fmdBeplankung, "fmdBeplankung1", "fmdBeplankung2", 0.0, "N/mm²", "Biegefestigkeit, Bemessungswert", .symbol = "f_{m,d}")

#define RS_TRAGFAEHIGKEITEN(FELD, PAAR) \
    PAAR(Feld, Rd,        "Rd1",        "Rd2",        0.0, "N",     "Tragfähigkeit eines Verbindungsmittels, Bemessungswert", .symbol = "R_{d}") \
    PAAR(Feld, tvorh,     "tvorh1",     "tvorh2",     0.0, "-",     "Abminderung wegen der Beplankungsdicke, höchstens 1", .symbol = "k_{t,vorh}", .quelle = norm::vereinfacht) \
    PAAR(Feld, treq,      "treq1",      "treq2",      0.0, "-",     "Abminderung wegen der Einbindetiefe, höchstens 1", .symbol = "k_{t,req}", .quelle = norm::vereinfacht)

#define RS_ANSCHLUSSWERTE(FELD, PAAR) \
    PAAR(Feld, Myk,       "Myk1",       "Myk2",       0.0, "Nmm",   "charakteristisches Fließmoment", .symbol = "M_{y,k}") \
    PAAR(Feld, fhkPlatte, "fhkPlatte1", "fhkPlatte2", 0.0, "N/mm²", "Lochleibungsfestigkeit der Beplankung", .symbol = "f_{h,k,Platte}") \
    PAAR(Feld, fhkRippe,  "fhkRippe1",  "fhkRippe2",  0.0, "N/mm²", "Lochleibungsfestigkeit der Rippe", .symbol = "f_{h,k,Rippe}", .quelle = norm::genau) \
    PAAR(Feld, betaFh,    "betaFh1",    "betaFh2",    0.0, "-",     "Verhältnis fhkRippe zu fhkPlatte", .symbol = "β", .quelle = norm::genau)

#define RS_VEREINFACHTES_VERFAHREN(FELD, PAAR) \
    PAAR(Feld, AFaktor,   "AFaktor1",   "AFaktor2",   0.0, "-",     "Beiwert A des vereinfachten Verfahrens", .symbol = "A", .quelle = norm::vereinfacht) \
    PAAR(Feld, treqPlatte, "treqPlatte1", "treqPlatte2", 0.0, "mm", "erforderliche Beplankungsdicke", .symbol = "t_{req,Platte}", .quelle = norm::vereinfacht) \
    PAAR(Feld, treqRippe, "treqRippe1", "treqRippe2", 0.0, "mm",    "erforderliche Einbindetiefe in die Rippe", .symbol = "t_{req,Rippe}", .quelle = norm::vereinfacht) \
    PAAR(Feld, Rk,        "Rk1",        "Rk2",        0.0, "N",     "charakteristische Tragfähigkeit, vereinfacht", .symbol = "R_{k}", .quelle = norm::vereinfacht)

#define RS_VERSAGENSARTEN(FELD, PAAR) \
    PAAR(Feld, RkA, "RkA1", "RkA2", 0.0, "N", "Versagensart A, charakteristisch", .symbol = "R_{k,A}", .quelle = norm::genau) \
    PAAR(Feld, RkB, "RkB1", "RkB2", 0.0, "N", "Versagensart B, charakteristisch", .symbol = "R_{k,B}", .quelle = norm::genau) \
    PAAR(Feld, RkC, "RkC1", "RkC2", 0.0, "N", "Versagensart C, charakteristisch", .symbol = "R_{k,C}", .quelle = norm::genau) \
    PAAR(Feld, RkD, "RkD1", "RkD2", 0.0, "N", "Versagensart D, charakteristisch", .symbol = "R_{k,D}", .quelle = norm::genau) \
    PAAR(Feld, RkE, "RkE1", "RkE2", 0.0, "N", "Versagensart E, charakteristisch", .symbol = "R_{k,E}", .quelle = norm::genau) \
    PAAR(Feld, RkF, "RkF1", "RkF2", 0.0, "N", "Versagensart F, charakteristisch", .symbol = "R_{k,F}", .quelle = norm::genau) \
    PAAR(Feld, RdA, "RdA1", "RdA2", 0.0, "N", "Versagensart A, Bemessungswert", .symbol = "R_{d,A}", .quelle = norm::genau) \
    PAAR(Feld, RdB, "RdB1", "RdB2", 0.0, "N", "Versagensart B, Bemessungswert", .symbol = "R_{d,B}", .quelle = norm::genau) \
    PAAR(Feld, RdC, "RdC1", "RdC2", 0.0, "N", "Versagensart C, Bemessungswert", .symbol = "R_{d,C}", .quelle = norm::genau) \
    PAAR(Feld, RdD, "RdD1", "RdD2", 0.0, "N", "Versagensart D, Bemessungswert", .symbol = "R_{d,D}", .quelle = norm::genau) \
    PAAR(Feld, RdE, "RdE1", "RdE2", 0.0, "N", "Versagensart E, Bemessungswert", .symbol = "R_{d,E}", .quelle = norm::genau) \
    PAAR(Feld, RdF, "RdF1", "RdF2", 0.0, "N", "Versagensart F, Bemessungswert", .symbol = "R_{d,F}", .quelle = norm::genau)

#define RS_EINHAENGEEFFEKT(FELD, PAAR) \
    PAAR(Feld, deltaRk, "deltaRk1", "deltaRk2", 0.0, "N", "Zuwachs aus dem Einhängeeffekt, vereinfacht", .symbol = "ΔR_{k}") \
    PAAR(Feld, deltaRd, "deltaRd1", "deltaRd2", 0.0, "N", "Zuwachs aus dem Einhängeeffekt, genau", .symbol = "ΔR_{d}")

#define RS_AUSZIEHWERTE(FELD, PAAR) \
    PAAR(Feld, lef, "lef1", "lef2", 0.0, "mm",    "wirksame Gewinde- oder Schaftlänge in der Rippe", .symbol = "l_{ef}") \
    PAAR(Feld, f1k, "f1k1", "f1k2", 0.0, "N/mm²", "Ausziehparameter", .symbol = "f_{1,k}") \
    PAAR(Feld, f2k, "f2k1", "f2k2", 0.0, "N/mm²", "Kopfdurchziehparameter", .symbol = "f_{2,k}") \
    PAAR(Feld, Rxk, "Rxk1", "Rxk2", 0.0, "N",     "charakteristischer Ausziehwiderstand", .symbol = "R_{x,k}") \
    PAAR(Feld, Rxd, "Rxd",  "Rxd2", 0.0, "N",     "Ausziehwiderstand, Bemessungswert", .symbol = "R_{x,d}")

#define RS_GIPSFASERBEIWERTE(FELD, PAAR) \
    PAAR(Feld, kFaser, "kFaser1", "kFaser2", 0.0, "-", "Abminderung für Gipsfaserplatten", .symbol = "k_{Faser}")

#define RS_BEANSPRUCHBARKEITEN(FELD, PAAR) \
    FELD(Feld, kv1, 0.0, "-", "Beiwert kv1, Verbund zwischen Beplankung und Rippen", .symbol = "k_{v1}") \
    FELD(Feld, kv2, 0.0, "-", "Beiwert kv2, Zusatzbeanspruchung der Beplankung", .symbol = "k_{v2}") \
    PAAR(Feld, fv0dn,  "fv0d1",  "fv0d2",  0.0, "N/mm", "Schubfestigkeit parallel zum Plattenrand, je Seite", .symbol = "f_{v,0,d}") \
    FELD(Feld, fv0d,                       0.0, "N/mm", "Schubfestigkeit parallel zum Plattenrand, gesamt", .symbol = "f_{v,0,d}") \
    PAAR(Feld, fv90dn, "fv90d1", "fv90d2", 0.0, "N/mm", "Festigkeit senkrecht zum Plattenrand, je Seite", .symbol = "f_{v,90,d}") \
    FELD(Feld, fv90d,                      0.0, "N/mm", "Festigkeit senkrecht zum Plattenrand, gesamt", .symbol = "f_{v,90,d}") \
    PAAR(Feld, fv0dTerm1,  "fv0d1Term1",  "fv0d2Term1",  0.0, "N/mm", "parallel: Verbindungsmittel", .symbol = "f_{v,0,d,VM}") \
    PAAR(Feld, fv0dTerm2,  "fv0d1Term2",  "fv0d2Term2",  0.0, "N/mm", "parallel: Schub der Beplankung", .symbol = "f_{v,0,d,Platte}") \
    PAAR(Feld, fv0dTerm3,  "fv0d1Term3",  "fv0d2Term3",  0.0, "N/mm", "parallel: Beulen der Beplankung", .symbol = "f_{v,0,d,Beulen}") \
    PAAR(Feld, fv90dTerm1, "fv90d1Term1", "fv90d2Term1", 0.0, "N/mm", "senkrecht: Verbindungsmittel", .symbol = "f_{v,90,d,VM}") \
    PAAR(Feld, fv90dTerm2, "fv90d1Term2", "fv90d2Term2", 0.0, "N/mm", "senkrecht: Druck der Beplankung", .symbol = "f_{v,90,d,Platte}") \
    PAAR(Feld, fv90dTerm3, "fv90d1Term3", "fv90d2Term3", 0.0, "N/mm", "senkrecht: Beulen der Beplankung", .symbol = "f_{v,90,d,Beulen}")

#define RS_BEANSPRUCHUNGEN(FELD, PAAR) \
    FELD(Feld, sv0d,  0.0, "N/mm", "Schubfluss parallel zum Plattenrand", .symbol = "s_{v,0,d}") \
    FELD(Feld, sv90d, 0.0, "N/mm", "Druckbeanspruchung senkrecht zum Plattenrand", .symbol = "s_{v,90,d}") \
    FELD(Feld, FEdge, 0.0, "kN",   "Kraft in der Randrippe aus dem Moment der Horizontallast", .symbol = "F_{Rand}") \
    FELD(Feld, AnteilRippen,     0.0, "-", "Anteil der Rippen an der Vertikallast", .symbol = "α_{Rippen}") \
    FELD(Feld, AnteilBeplankung, 0.0, "-", "Anteil der Beplankung an der Vertikallast", .symbol = "α_{Platte}") \
    FELD(Feld, RdRippenGesamt,   0.0, "N", "Tragfähigkeit aller Rippen", .symbol = "R_{d,Rippen}") \
    FELD(Feld, RdBeplankung,     0.0, "N", "Tragfähigkeit der Beplankung", .symbol = "R_{d,Platte}") \
    PAAR(Feld, nVM, "nVM1", "nVM2", 0.0, "Stück", "Verbindungsmittel längs der Wand", .symbol = "n_{VM}") \
    FELD(Feld, mdBeplankung, 0.0, "kNm/m", "Moment in der Beplankung 1 aus Wind", .symbol = "m_{d}") \
    FELD(Feld, SigmaBiegung, 0.0, "N/mm²", "Biegespannung in der Beplankung 1", .symbol = "σ_{m,d,Platte}") \
    FELD(Rippenfeld, FcdStabilitaet,   , "kN",   "Druckkraft für den Stabilitätsnachweis, ständiger Anteil", .symbol = "F_{c,d,g}") \
    FELD(Rippenfeld, FcdVeraenderlich, , "kN",   "Druckkraft für den Stabilitätsnachweis, veränderlich und horizontal", .symbol = "F_{c,d,q}") \
    FELD(Rippenfeld, FcdSchwelle,      , "kN",   "Druckkraft für die Schwellenpressung", .symbol = "F_{c,d,Schwelle}") \
    FELD(Rippenfeld, Ftd,              , "kN",   "Zugkraft in der Rippe", .symbol = "F_{t,d}") \
    FELD(Rippenfeld, wdRippe,          , "kN/m", "Windlast auf die Rippe", .symbol = "w_{d,Rippe}") \
    FELD(Rippenfeld, Myd,              , "kNm",  "Moment in der Rippe aus Wind", .symbol = "M_{y,d}") \
    FELD(Rippenfeld, Faxd,             , "N",    "Kraft in der Achse eines Verbindungsmittels aus Windsog", .symbol = "F_{ax,d}") \
    FELD(Rippenfeld, RdRippe,          , "N",    "Tragfähigkeit der Rippe für die Verteilung der Vertikallast", .symbol = "R_{d,Rippe}") \
    FELD(Rippenfeld, RdRippenSumme,    , "N",    "laufende Summe von RdRippe", .symbol = "ΣR_{d,Rippe}")

#define RS_QUERDRUCKBEIWERT(FELD, PAAR) \
    FELD(Feld, kc90,              0.0, "-", "Querdruckbeiwert", .symbol = "k_{c,90}")

#define RS_KNICKEN_UND_KIPPEN(FELD, PAAR) \
    FELD(Feld, iRandrippe,        0.0, "m", "Trägheitsradius der Randrippe", .symbol = "i") \
    FELD(Feld, lambda,            0.0, "-", "Schlankheit", .symbol = "λ") \
    FELD(Feld, lambdaRel,         0.0, "-", "bezogene Schlankheit", .symbol = "λ_{rel}") \
    FELD(Feld, kKnick,            0.0, "-", "Hilfswert k des Knickbeiwerts", .symbol = "k") \
    FELD(Feld, kc,                0.0, "-", "Knickbeiwert", .symbol = "k_{c}") \
    FELD(Feld, lambdaMRandrippe,  0.0, "-", "bezogene Kippschlankheit der Randrippe", .symbol = "λ_{rel,m,Rand}") \
    FELD(Feld, lambdaMInnenrippe, 0.0, "-", "bezogene Kippschlankheit der Innenrippe", .symbol = "λ_{rel,m,Innen}") \
    FELD(Feld, kmRandrippe,       0.0, "-", "Kippbeiwert der Randrippe", .symbol = "k_{m,Rand}") \
    FELD(Feld, kmInnenrippe,      0.0, "-", "Kippbeiwert der Innenrippe", .symbol = "k_{m,Innen}")

#define RS_SCHWELLENPRESSUNG(FELD, PAAR) \
    FELD(Rippenfeld, SigmaC90d,             , "N/mm²", "Schwellenpressung", .symbol = "σ_{c,90,d}") \
    FELD(Rippenfeld, etaC90,                , "-",     "Ausnutzung der Schwellenpressung", .symbol = "η_{c,90}")

#define RS_STABILITAET(FELD, PAAR) \
    FELD(Rippenfeld, SigmaC0d,              , "N/mm²", "Druckspannung in der Rippe", .symbol = "σ_{c,0,d}") \
    FELD(Rippenfeld, SigmaMd,               , "N/mm²", "Biegespannung in der Rippe", .symbol = "σ_{m,d}") \
    FELD(Rippenfeld, etaStabilitaetDruck,   , "-",     "Ausnutzung der Stabilität, Anteil Druck", .symbol = "η_{Druck}") \
    FELD(Rippenfeld, etaStabilitaetBiegung, , "-",     "Ausnutzung der Stabilität, Anteil Biegung", .symbol = "η_{Biegung}") \
    FELD(Rippenfeld, etaStabilitaet,        , "-",     "Ausnutzung der Stabilität", .symbol = "η_{Stabilität}")

#define RS_SCHUBNACHWEIS(FELD, PAAR) \
    FELD(Feld, etaSv0,      0.0, "-",    "Ausnutzung Scheibenschub parallel", .symbol = "η_{v,0}") \
    FELD(Feld, etaSv90,     0.0, "-",    "Ausnutzung Scheibenschub senkrecht", .symbol = "η_{v,90}") \
    FELD(Feld, etaKombi,    0.0, "-",    "Ausnutzung Scheibenschub kombiniert", .symbol = "η_{v,Kombi}", .quelle = norm::kombination) \
    FELD(Feld, sv0dKombi,   0.0, "N/mm", "sv0d des kombinierten Nachweises", .symbol = "s_{v,0,d,Kombi}", .quelle = norm::kombination) /* JSON only */ \
    FELD(Feld, sv90dKombi,  0.0, "N/mm", "sv90d des kombinierten Nachweises", .symbol = "s_{v,90,d,Kombi}", .quelle = norm::kombination) /* JSON only */ \
    FELD(Feld, fv0dKombi,   0.0, "N/mm", "0,7-fache Schubfestigkeit parallel", .symbol = "f_{v,0,d,Kombi}", .quelle = norm::kombination) \
    FELD(Feld, fv90dKombi,  0.0, "N/mm", "0,7-fache Festigkeit senkrecht", .symbol = "f_{v,90,d,Kombi}", .quelle = norm::kombination) /* JSON only */

#define RS_ZUGNACHWEIS(FELD, PAAR) \
    FELD(Rippenfeld, SigmaT0d, , "N/mm²", "Zugspannung in der Rippe", .symbol = "σ_{t,0,d}") \
    FELD(Rippenfeld, etaT0,    , "-",     "Ausnutzung der Rippe auf Zug", .symbol = "η_{t,0}")

#define RS_BIEGENACHWEIS(FELD, PAAR) \
    FELD(Feld, etaBiegung,  0.0, "-",    "Ausnutzung der Beplankung 1 auf Biegung", .symbol = "η_{m,Platte}")

#define RS_HERAUSZIEHNACHWEIS(FELD, PAAR) \
    FELD(Rippenfeld, etaHerausziehenRippe, , "-", "Ausnutzung der Verbindungsmittel auf Herausziehen", .symbol = "η_{ax,Rippe}")

#define RS_ZUSAMMENFASSUNG(FELD, PAAR) \
    FELD(Feld, maxEtaStabilitaet, 0.0, "-",     "größte Ausnutzung der Stabilität", .symbol = "max η_{Stabilität}") \
    FELD(Feld, maxEtaC90,         0.0, "-",     "größte Ausnutzung der Schwellenpressung", .symbol = "max η_{c,90}") \
    FELD(Feld, maxEtaT0,          0.0, "-",     "größte Ausnutzung der Rippen auf Zug", .symbol = "max η_{t,0}") \
    FELD(Feld, etaHerausziehen,   0.0, "-",     "größte Ausnutzung auf Herausziehen", .symbol = "max η_{ax}") \
    FELD(Feld, maxSigmaC0d,       0.0, "N/mm²", "größte Druckspannung", .symbol = "max σ_{c,0,d}") /* JSON only */ \
    FELD(Feld, maxSigmaMd,        0.0, "N/mm²", "größte Biegespannung", .symbol = "max σ_{m,d}") /* JSON only */ \
    FELD(Feld, maxSigmaC90d,      0.0, "N/mm²", "größte Schwellenpressung", .symbol = "max σ_{c,90,d}") /* JSON only */ \
    FELD(Feld, maxSigmaT0d,       0.0, "N/mm²", "größte Zugspannung", .symbol = "max σ_{t,0,d}") /* JSON only */ \
    FELD(Feld, maxMyd,            0.0, "kNm",   "größtes Moment aus Wind", .symbol = "max M_{y,d}") \
    FELD(Feld, maxFcdSchwelle,    0.0, "kN",    "größte Druckkraft für die Schwellenpressung", .symbol = "max F_{c,d,Schwelle}") \
    FELD(Feld, maxFcdStabilitaet, 0.0, "kN",    "größte Druckkraft für die Stabilität", .symbol = "max F_{c,d}") \
    FELD(Feld, maxFtd,            0.0, "kN",    "größte Zugkraft", .symbol = "max F_{t,d}") \
    FELD(Feld, maxFaxd,           0.0, "N",     "größte Kraft in der Achse eines Verbindungsmittels", .symbol = "max F_{ax,d}") \
    FELD(bool, AlleNachweiseErfuellt, false, "", "alle Nachweise sind erfüllt")

#define RS_VERFORMUNGEN(FELD, PAAR) \
    PAAR(Feld, rhoM, "rhoM1", "rhoM2", 0.0, "kg/m³", "gemittelte Rohdichte von Rippe und Beplankung", .symbol = "ρ_{m}") \
    PAAR(Feld, kser, "kser1", "kser2", 0.0, "N/mm",  "Verschiebungsmodul eines Verbindungsmittels", .symbol = "K_{ser}") \
    PAAR(Feld, nVertikalRaender,   "nVertikalRaender1",   "nVertikalRaender2",   0.0, "", "vertikale Plattenränder", .symbol = "n_{v}") \
    PAAR(Feld, nHorizontalRaender, "nHorizontalRaender1", "nHorizontalRaender2", 0.0, "", "horizontale Plattenränder", .symbol = "n_{h}") \
    FELD(Feld, FvCharakt,       0.0, "kN",    "Horizontallast des Gebrauchszustands", .symbol = "F_{v}") \
    FELD(Feld, svCharakt,       0.0, "N/mm",  "Schubfluss des Gebrauchszustands", .symbol = "s_{v,0}") \
    FELD(Feld, SigmaC90Charakt, 0.0, "N/mm²", "Schwellenpressung des Gebrauchszustands", .symbol = "σ_{c,90}") \
    FELD(Feld, FtCharakt,       0.0, "kN",    "Ankerzugkraft des Gebrauchszustands", .symbol = "F_{t}") \
    FELD(Feld, uVMGebrauch,            0.0, "mm", "Anteil der Verbindungsmittel, Gebrauchstauglichkeit", .symbol = "u_{VM,G}") \
    FELD(Feld, uVMTragfaehigkeit,      0.0, "mm", "Anteil der Verbindungsmittel, Tragfähigkeit", .symbol = "u_{VM,T}") \
    FELD(Feld, uRippeGebrauch,         0.0, "mm", "Anteil der Randrippen, Gebrauchstauglichkeit", .symbol = "u_{Rippe,G}") \
    FELD(Feld, uRippeTragfaehigkeit,   0.0, "mm", "Anteil der Randrippen, Tragfähigkeit", .symbol = "u_{Rippe,T}") \
    FELD(Feld, uSchubGebrauch,         0.0, "mm", "Anteil des Schubs der Beplankung, Gebrauchstauglichkeit", .symbol = "u_{Schub,G}") \
    FELD(Feld, uSchubTragfaehigkeit,   0.0, "mm", "Anteil des Schubs der Beplankung, Tragfähigkeit", .symbol = "u_{Schub,T}") \
    FELD(Feld, uSchwelleGebrauch,      0.0, "mm", "Anteil der Schwellenpressung, Gebrauchstauglichkeit", .symbol = "u_{Schwelle,G}") \
    FELD(Feld, uSchwelleTragfaehigkeit, 0.0, "mm", "Anteil der Schwellenpressung, Tragfähigkeit", .symbol = "u_{Schwelle,T}") \
    FELD(Feld, uAnkerGebrauch,         0.0, "mm", "Anteil des Ankers, Gebrauchstauglichkeit", .symbol = "u_{Anker,G}") \
    FELD(Feld, uAnkerTragfaehigkeit,   0.0, "mm", "Anteil des Ankers, Tragfähigkeit", .symbol = "u_{Anker,T}") \
    FELD(Feld, uGesGebrauch,           0.0, "mm", "Kopfverschiebung, Gebrauchstauglichkeit", .symbol = "u_{ges,G}") \
    FELD(Feld, uZulGebrauch,           0.0, "mm", "zulässige Kopfverschiebung, Gebrauchstauglichkeit", .symbol = "u_{zul,G}") \
    FELD(Feld, uGesTragfaehigkeit,     0.0, "mm", "Kopfverschiebung, Tragfähigkeit", .symbol = "u_{ges,T}") \
    FELD(Feld, uZulTragfaehigkeit,     0.0, "mm", "zulässige Kopfverschiebung, Tragfähigkeit", .symbol = "u_{zul,T}")

#define RS_WANDSTEIFIGKEIT(FELD, PAAR) \
    FELD(Feld, uVMSteifigkeit,         0.0, "mm", "Anteil der Verbindungsmittel, Wandsteifigkeit", .symbol = "u_{VM,S}") \
    FELD(Feld, uRippeSteifigkeit,      0.0, "mm", "Anteil der Randrippen, Wandsteifigkeit", .symbol = "u_{Rippe,S}") \
    FELD(Feld, uSchubSteifigkeit,      0.0, "mm", "Anteil des Schubs der Beplankung, Wandsteifigkeit", .symbol = "u_{Schub,S}") \
    FELD(Feld, uSchwelleSteifigkeit,   0.0, "mm", "Anteil der Schwellenpressung, Wandsteifigkeit", .symbol = "u_{Schwelle,S}") \
    FELD(Feld, uAnkerSteifigkeit,      0.0, "mm", "Anteil des Ankers, Wandsteifigkeit", .symbol = "u_{Anker,S}") \
    FELD(Feld, SteifigkeitGesamt,      0.0, "kNm³/mm", "Schubsteifigkeit der Wand aus allen Anteilen", .symbol = "S_{ges}") /* JSON only */ \
    FELD(Feld, SteifigkeitOhneVM,      0.0, "kNm³/mm", "Schubsteifigkeit der Wand ohne Verbindungsmittel und Anker", .symbol = "S_{ohne VM}") /* JSON only */

#define RS_ANKERZUGKRAFT(FELD, PAAR) \
    FELD(Feld, Ftdst,      0.0, "kN",  "zu verankernde Zugkraft", .symbol = "F_{t,dst}")

#define RS_BETONANKER(FELD, PAAR) \
    FELD(Feld, Fbd,        0.0, "kN",  "durch den Betonanker aufzunehmende Kraft", .symbol = "F_{b,d}")

#define RS_LAGESICHERHEIT(FELD, PAAR) \
    FELD(Feld, MStabSumme, 0.0, "kNm", "Summe der stabilisierenden Momente", .symbol = "M_{stab}") \
    FELD(Feld, MDstSumme,  0.0, "kNm", "Summe der destabilisierenden Momente", .symbol = "M_{dst}") \
    FELD(Feld, FStab,      0.0, "kN",  "stabilisierende Kraft am Wandende", .symbol = "F_{stab}") \
    FELD(Feld, FDst,       0.0, "kN",  "destabilisierende Kraft am Wandende", .symbol = "F_{dst}") /* JSON only */ \
    FELD(Rippenfeld, MStab,  , "kNm", "stabilisierende Momente, laufende Summe", .symbol = "ΣM_{stab}") \
    FELD(Rippenfeld, MDst,   , "kNm", "destabilisierende Momente, laufende Summe", .symbol = "ΣM_{dst}")

#define RS_ABSTAENDE(FELD, PAAR) \
    PAAR(Feld, a1, "a11", "a12", 0.0, "mm", "Mindestabstand in Faserrichtung", .symbol = "a_{1}") /* JSON only */ \
    PAAR(Feld, a2, "a21", "a22", 0.0, "mm", "Mindestabstand quer zur Faser", .symbol = "a_{2}") /* JSON only */ \
    PAAR(Feld, a3, "a31", "a32", 0.0, "mm", "Mindestabstand zum unbeanspruchten Hirnholzende", .symbol = "a_{3}") /* JSON only */ \
    PAAR(Feld, a4, "a41", "a42", 0.0, "mm", "Mindestabstand zum beanspruchten Hirnholzende", .symbol = "a_{4}") /* JSON only */ \
    PAAR(Feld, aRand, "aRand1", "aRand2", 0.0, "mm", "Mindestabstand zum Rand der Rippe", .symbol = "a_{Rand}") \
    PAAR(Feld, aPlatteUnbelastet, "aPlatteUnbelastet1", "aPlatteUnbelastet2", 0.0, "mm", "Mindestabstand zum unbeanspruchten Plattenrand", .symbol = "a_{Platte,c}") /* JSON only */ \
    PAAR(Feld, aPlatte, "aPlatte1", "aPlatte2", 0.0, "mm", "Mindestabstand zum beanspruchten Plattenrand", .symbol = "a_{Platte,t}")
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
