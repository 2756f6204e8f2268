#include "plausibility/MessageBoxen.h"
#include "plausibility/Pruefzeilen.h"

namespace rippenscheibe {

namespace {

// clang-format off
// Diameter of the fastener, mm. Meant: a nail of exactly 8 mm passes though its text says smaller, a screw of
// exactly 8 mm fails, a staple of 1.6 mm to DIN 18182-2 passes.
constexpr std::array<Grenze, 6> durchmesser{{
    {istGipsfaser,      istHolznagel,           alle, vonBis(2.0, 3.0),      "Nageldurchmesser zu klein! Laut bauaufsichtlicher Zulassung Z-9.1-434 Nageldurchmesser zwischen 2,0 und 3,0mm!",
                                                                    "Nageldurchmesser zu groß! Laut bauaufsichtlicher Zulassung Z-9.1-434 Nageldurchmesser zwischen 2,0 und 3,0mm!"},
    {istGipsfaser,      nur<Art::klammern>,         alle, vonBis(1.5, 2.111),    "Durchmesser der Klammer zu klein! Laut bauaufsichtlicher Zulassung Z-9.1-434 Klammerdurchmesser mindestens 1,5mm!",
                                                                    "Durchmesser der Klammer zu groß! Laut DIN 1052(2008) höchstens 2,11mm!"},
    {keineGipsfaser, istHolznagel,           alle, hoechstens(8.0),       "",
                                                                    "Nageldurchmesser zu groß! Muss kleiner als 8mm sein!"},
    {keineGipsfaser, nur<Art::klammern>,         alle, vonBis(1.47, 2.111),   "Durchmesser der Klammer zu klein!",
                                                                    "Durchmesser der Klammer zu groß!"},
    {keineGipsfaser, istHolzschraube,        alle, abBisUnter(4.0, 8.0),  "Schraubendurchmesser zu klein! Laut DIN 1052(2008) mindestens 4,0mm!",
                                                                    "Schraube zu groß! Laut DIN 1052(2008) kleiner als 8,0mm!"},
    {keineGipsfaser, nur<Art::klammernDin18182>, alle, vonBis(1.0, 1.6),      "Kein Klammerdurchmesser nach DIN 18182-3! Durchmesser der Klammer zu klein! Mindestens 1,0mm!",
                                                                    "Kein Klammerdurchmesser nach DIN 18182-3! Durchmesser der Klammer zu groß! Muss kleiner als 1,6mm sein!"},
}};

// Penetration depth ln - t, DIN 1052 (2008), 12.5 to 12.7.
constexpr std::array<Einschlagtiefe, 3> einschlagtiefen{{
    {istKlammer,  8.0, "Laut DIN 1052(2008) 12.7 (7) dürfen Klammern mit einer Einschlagtiefe kleiner als 8*d nicht in Rechnung gestellt werden!"},
    {istNagel,    4.0, "Laut DIN 1052(2008) 12.5.2 (8) dürfen Nägel mit einer Einschlagtiefe kleiner als 4*d nicht in Rechnung gestellt werden!"},
    {istSchraube, 4.0, "Laut DIN 1052(2008) 12.6 (9) dürfen Schrauben mit einer Einschlagtiefe kleiner als 4*d nicht in Rechnung gestellt werden!"},
}};

// Tensile strength fu,k, N/mm². Meant: the texts say Fließmoment and end in three different ways.
constexpr std::array<Grenze, 7> zugfestigkeit{{
    {keineGipsfaser, nur<Art::naegelDin18182>,      alle,              ab(600.0), "Fließmoment zu klein! Laut DIN 18182-4 mindestens 600 N/mm²!", ""},
    {keineGipsfaser, nur<Art::schnellbauschrauben>, alle,              ab(400.0), "Fließmoment zu klein! Laut DIN 18182-4 mindestens 400 N/mm² ", ""},
    {jedePlatte,          istHolznagel,              alle,              ab(600.0), "Fließmoment zu klein! Laut DIN 1052(2008) mindestens 600 N/mm²", ""},
    {jedePlatte,          nur<Art::klammern>,            alle,              ab(800.0), "Fließmoment zu klein! Laut DIN 1052(2008) mindestens 800 N/mm²", ""},
    {keineGipsfaser, istHolzschraube,           alle,              ab(400.0), "Fließmoment zu klein! Laut DIN 1052(2008) mindestens 400 N/mm²", ""},
    {keineGipsfaser, nur<Art::klammernDin18182>,    vonBis(1.0, 1.25), ab(950.0), "Fließmoment zu klein! Laut DIN 18182-3 bei Durchmessern von 1,0 bis 1,25mm mindestens 950 N/mm²!", ""},
    {keineGipsfaser, nur<Art::klammernDin18182>,    ueber(1.25),       ab(680.0), "Fließmoment zu klein! Laut DIN 18182-3 bei Durchmessern über 1,25mm mindestens 680 N/mm²!", ""},
}};

// Thread or groove length as it was put in.
constexpr std::array<Verstoss, 2> gewindelaenge{{
    {[](const Angaben& a) { return a.VMArt == Art::schrauben && a.lg < 0.6 * a.d; },
     "Gewindelänge nicht nach DIN7997! Muss größer als 0,6*d sein!"},
    {[](const Angaben& a) { return a.VMArt == Art::sondernaegel && a.lg == 0; },
     "Keine Gewindelänge eingegeben! Es kann keine erhöhte Tragfähigkeit aufgrund des Einhängeeffektes berücksichtigt werden!"},
}};

// Effective length of thread or groove in the rib.
constexpr std::array<Verstoss, 2> wirksameLaenge{{
    {[](const Angaben& a) { return a.VMArt == Art::sondernaegel && 8 * a.d >= a.lef; },
     "lef zu klein! Muss größer als 8*d sein! Es kann keine erhöhte Tragfähigkeit aufgrund des Einhängeeffektes berücksichtigt werden!"},
    {[](const Angaben& a) { return istHolzschraube(a.VMArt) && 4 * a.d >= a.lef; },
     "Einschraubtiefe zu klein! Muss größer als 4*d sein!"},
}};

// Head diameter of screws to DIN 7997, mm.
constexpr std::array<Grenze, 3> kopfdurchmesser{{
    {jedePlatte, nur<Art::schrauben>, genau(4.0), ab(7.5), "Kopfdurchmesser nicht nach DIN7997! Bei Durchmesser 4,0 mm muss der Kopfdurchmesser min. 7,5mm sein!", ""},
    {jedePlatte, nur<Art::schrauben>, genau(4.5), ab(8.3), "Kopfdurchmesser nicht nach DIN7997! Bei Durchmesser 4,5 mm muss der Kopfdurchmesser min. 8,3mm sein!", ""},
    {jedePlatte, nur<Art::schrauben>, genau(5.0), ab(9.2), "Kopfdurchmesser nicht nach DIN7997! Bei Durchmesser 5,0 mm muss der Kopfdurchmesser min. 9,2mm sein!", ""},
}};

constexpr std::array<Verstoss, 1> fehlenderKopf{{
    {[](const Angaben& a) { return a.VMArt == Art::sondernaegel && a.dk == 0; },
     "Kein Kopfdurchmesser eingegeben! Es kann keine erhöhte Tragfähigkeit aufgrund des Einhängeeffektes berücksichtigt werden!"},
}};

// Length of the fastener, mm. Only the listed diameters have limits. Meant: the nail of 2.5 mm may be 30 mm
// long though its text says 40.
constexpr std::array<Grenze, 11> laenge{{
    {keineGipsfaser, nur<Art::klammernDin18182>,    vonBis(1.0, 1.3),   vonBis(29.0, 40.0),  "Keine Klammer nach DIN 18182-3! Länge der Klammer zu klein!",
                                                                                   "Keine Klammer nach DIN 18182-3! Länge der Klammer zu groß!"},
    {keineGipsfaser, nur<Art::klammernDin18182>,    zwischen(1.3, 1.6), vonBis(35.0, 65.0),  "Keine Klammer nach DIN 18182-3! Länge der Klammer zu klein!",
                                                                                   "Keine Klammer nach DIN 18182-3! Länge der Klammer zu groß!"},
    {keineGipsfaser, nur<Art::naegelDin18182>,      genau(2.2),         vonBis(28.0, 50.0),  "Nagellänge zu klein! Laut DIN 18182-4 min 28mm!",
                                                                                   "Nagellänge zu groß! Laut DIN 18182-4 max 50mm!"},
    {keineGipsfaser, nur<Art::naegelDin18182>,      genau(2.5),         vonBis(30.0, 70.0),  "Nagellänge zu klein! Laut DIN 18182-4 min 40mm!",
                                                                                   "Nagellänge zu groß! Laut DIN 18182-4 max 70mm!"},
    {keineGipsfaser, nur<Art::naegelDin18182>,      genau(2.8),         vonBis(41.0, 70.0),  "Nagellänge zu klein! Laut DIN 18182-4 min 41mm!",
                                                                                   "Nagellänge zu groß! Laut DIN 18182-4 max 70mm!"},
    {keineGipsfaser, istHolznagel,              alle,               ab(10.0),            "Nagel zu kurz!", ""},
    // Staples, at most 65 d, have a table of their own.
    {keineGipsfaser, nur<Art::schraubenMitZulassung>,  alle,               ab(10.0),            "Schraube zu kurz!", ""},
    {keineGipsfaser, nur<Art::schnellbauschrauben>, genau(4.0),         vonBis(25.0, 55.0),  "Schraubenlänge zu klein! Bei Durchmesser 4,0mm laut DIN 18182-2 min 25mm!",
                                                                                   "Schraubenlänge zu groß! Bei Durchmesser 4,0mm laut DIN 18182-2 max 55mm!"},
    {keineGipsfaser, nur<Art::schnellbauschrauben>, genau(4.3),         vonBis(25.0, 55.0),  "Schraubenlänge zu klein! Bei Durchmesser 4,3mm laut DIN 18182-2 min 25mm!",
                                                                                   "Schraubenlänge zu groß! Bei Durchmesser 4,3mm laut DIN 18182-2 max 55mm!"},
    {keineGipsfaser, nur<Art::schnellbauschrauben>, genau(5.1),         vonBis(70.0, 130.0), "Schraubenlänge zu klein! Bei Durchmesser 5,1mm laut DIN 18182-2 min 70mm!",
                                                                                   "Schraubenlänge zu groß! Bei Durchmesser 5,1mm laut DIN 18182-2 max 130mm!"},
    {keineGipsfaser, nur<Art::schnellbauschrauben>, genau(5.5),         vonBis(70.0, 130.0), "Schraubenlänge zu klein! Bei Durchmesser 5,5mm laut DIN 18182-2 min 70mm!",
                                                                                   "Schraubenlänge zu groß! Bei Durchmesser 5,5mm laut DIN 18182-2 max 130mm!"},
}};

constexpr std::array<Verstoss, 1> klammerlaenge{{
    {[](const Angaben& a) { return keineGipsfaser(a.Material) && a.VMArt == Art::klammern && a.ln > 65 * a.d; },
     "Länge der Klammer zu groß! Maximal 65*d!"},
}};
// clang-format on

}  // namespace

void pruefeDurchmesserUndFestigkeit(Wand& w, Seite n) {
    Seitenpruefung pruefung(w.Hinweise, w, n, Eingabeort::Verbindungsmittel);
    pruefung.grenzen(durchmesser, w.d[n]);
    pruefung.einschlagtiefe(einschlagtiefen);
    pruefung.grenzen(zugfestigkeit, w.fuk[n]);
    pruefung.verstoesse(gewindelaenge);
}

void pruefeGewindeKopfUndLaenge(Wand& w, Seite n) {
    Seitenpruefung pruefung(w.Hinweise, w, n, Eingabeort::Verbindungsmittel);
    pruefung.verstoesse(wirksameLaenge);
    pruefung.grenzen(kopfdurchmesser, w.dk[n]);
    pruefung.verstoesse(fehlenderKopf);
    pruefung.grenzen(laenge, w.ln[n]);
    pruefung.verstoesse(klammerlaenge);
}

}  // namespace rippenscheibe
