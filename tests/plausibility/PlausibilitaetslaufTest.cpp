#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plausibility/Plausibilitaetslauf.h"

namespace rippenscheibe {
namespace {

// The next double on either side of a limit.
double unter(double x) { return std::nextafter(x, std::numeric_limits<double>::lowest()); }
double ueber(double x) { return std::nextafter(x, std::numeric_limits<double>::max()); }

// The wall of a new file: 5.0 x 2.5 m, ribs 80/160 at 625 mm, OSB/3 15 mm x 1250 mm on both sides with
// nails 2.7 x 50 at 60 mm.
Wand neueWand() {
    Wand w;
    for (const Seite n : beideSeiten) w.t[n] = Plattendicke(w, n);
    return w;
}

Texte hinweise(Wand& w) {
    plausibilitaetslauf(w);
    return texte(w.Hinweise);
}

// The place of a finding that there is.
Eingabeort ort(const std::vector<Hinweis>& hinweise, std::string_view text) {
    return std::ranges::find(hinweise, text, &Hinweis::text)->ort;
}

std::string jeZeile(const Texte& texte) {
    std::string alles;
    for (const auto& text : texte) alles += text + "\n";
    return alles;
}

TEST(Plausibilitaet, TheWallOfANewFileHasNoFinding) {
    Wand w = neueWand();
    EXPECT_EQ(jeZeile(hinweise(w)), "");
    w.Hinweise = {Hinweis{"Hinweis eines früheren Laufs"}};
    EXPECT_EQ(jeZeile(hinweise(w)), "");
}

// A finding of one side: which sheathing and fastener, what else is set, and the value of one field
// that just passes and the one that just fails.
using Seitenfeld = Paar<Feld> Wand::*;
struct Grenzfall {
    int Material, VMArt;
    std::vector<std::pair<Seitenfeld, double>> umgebung;
    Seitenfeld feld;
    double besteht, faellt;
    std::string_view text;
    Eingabeort ort = Eingabeort::Verbindungsmittel;
};

constexpr Seitenfeld t = &Wand::t, d = &Wand::d, ln = &Wand::ln, lg = &Wand::lg, dk = &Wand::dk,
                     fuk = &Wand::fuk, av = &Wand::av, lp = &Wand::Plattenbreite;
constexpr Eingabeort platte = Eingabeort::Beplankung;

// clang-format off
constexpr std::string_view dickeDIN = "Keine Plattendicke nach DIN 1052(2008)! Bitte benutzen Sie die vorgeschlagenen Plattendicken!";
constexpr std::string_view dickeZulassung = "Keine Plattendicke nach bauaufsichtlicher Zulassung Z-9.1-434! Bitte benutzen Sie die vorgeschlagenen Plattendicken!";
constexpr std::string_view tiefeKlammern = "Laut DIN 1052(2008) 12.7 (7) dürfen Klammern mit einer Einschlagtiefe kleiner als 8*d nicht in Rechnung gestellt werden!";
constexpr std::string_view tiefeNaegel = "Laut DIN 1052(2008) 12.5.2 (8) dürfen Nägel mit einer Einschlagtiefe kleiner als 4*d nicht in Rechnung gestellt werden!";
constexpr std::string_view tiefeSchrauben = "Laut DIN 1052(2008) 12.6 (9) dürfen Schrauben mit einer Einschlagtiefe kleiner als 4*d nicht in Rechnung gestellt werden!";
constexpr std::string_view einschrauben = "Einschraubtiefe zu klein! Muss größer als 4*d sein!";
constexpr std::string_view lefZuKlein = "lef zu klein! Muss größer als 8*d sein! Es kann keine erhöhte Tragfähigkeit aufgrund des Einhängeeffektes berücksichtigt werden!";
constexpr std::string_view klammerKurz = "Keine Klammer nach DIN 18182-3! Länge der Klammer zu klein!";
constexpr std::string_view klammerLang = "Keine Klammer nach DIN 18182-3! Länge der Klammer zu groß!";
constexpr std::string_view kopf4 = "Kopfdurchmesser nicht nach DIN7997! Bei Durchmesser 4,0 mm muss der Kopfdurchmesser min. 7,5mm sein!";

const std::vector<Grenzfall> grenzfaelle{
    // general check
    {1, 2, {{ln, 50}}, lg, unter(50), 50, "Die Gewinde-/Rillenlänge lg muss kleiner sein als die Länge l! Bitte ändern!"},
    {7, 1, {{d, 2.7}}, dk, ueber(2.7), 2.7, "Der Kopfdurchmesser dk muss größer sein als der Durchmesser d! Bitte ändern!"},
    {3, 6, {}, d, 4, unter(4), "Durchmesser der Schnellbauschrauben muss >= 4 mm sein! Bitte ändern!"},
    {1, 5, {}, d, 8, ueber(8), "Durchmesser der Schrauben darf max. 8 mm betragen! Bitte ändern!"},
    // panel thickness
    {7, 1, {}, t, 10, unter(10), dickeZulassung, platte},
    {7, 1, {}, t, 12.5, 12, dickeZulassung, platte},
    {7, 1, {}, t, 15, ueber(15), dickeZulassung, platte},
    {7, 1, {}, t, 18, ueber(18), dickeZulassung, platte},
    {3, 7, {}, t, 12.5, 12, dickeDIN, platte},
    {4, 7, {}, t, 15, unter(15), dickeDIN, platte},
    {6, 7, {}, t, 18, 10, dickeDIN, platte},
    {1, 1, {}, t, 6, unter(6), "Keine Plattendicke nach DIN 1052(2008)! OSB-Platten müssen mindestens 6mm dick sein!", platte},
    {2, 1, {}, t, 25, ueber(25), "Keine Plattendicke nach DIN 1052(2008)! OSB-Platten dürfen höchstens 25mm dick sein!", platte},
    {8, 1, {}, t, 6, unter(6), "Keine Plattendicke nach DIN 1052(2008)! Kunstharzgebundene Spanplatten müssen mindestens 6mm dick sein!", platte},
    {11, 1, {}, t, 50, ueber(50), "Keine Plattendicke nach DIN 1052(2008)! Kunstharzgebundene Spanplatten dürfen höchstens 50mm dick sein!", platte},
    // diameter
    {7, 1, {}, d, 2, unter(2), "Nageldurchmesser zu klein! Laut bauaufsichtlicher Zulassung Z-9.1-434 Nageldurchmesser zwischen 2,0 und 3,0mm!"},
    {7, 2, {}, d, 3, ueber(3), "Nageldurchmesser zu groß! Laut bauaufsichtlicher Zulassung Z-9.1-434 Nageldurchmesser zwischen 2,0 und 3,0mm!"},
    {7, 3, {}, d, 1.5, unter(1.5), "Durchmesser der Klammer zu klein! Laut bauaufsichtlicher Zulassung Z-9.1-434 Klammerdurchmesser mindestens 1,5mm!"},
    {7, 3, {}, d, 2.111, ueber(2.111), "Durchmesser der Klammer zu groß! Laut DIN 1052(2008) höchstens 2,11mm!"},
    {1, 1, {}, d, 8, ueber(8), "Nageldurchmesser zu groß! Muss kleiner als 8mm sein!"},
    {1, 3, {}, d, 1.47, unter(1.47), "Durchmesser der Klammer zu klein!"},
    {13, 3, {}, d, 2.111, ueber(2.111), "Durchmesser der Klammer zu groß!"},
    {1, 4, {}, d, 4, unter(4), "Schraubendurchmesser zu klein! Laut DIN 1052(2008) mindestens 4,0mm!"},
    {12, 5, {}, d, unter(8), 8, "Schraube zu groß! Laut DIN 1052(2008) kleiner als 8,0mm!"},
    {3, 8, {}, d, 1, unter(1), "Kein Klammerdurchmesser nach DIN 18182-3! Durchmesser der Klammer zu klein! Mindestens 1,0mm!"},
    {3, 8, {}, d, 1.6, ueber(1.6), "Kein Klammerdurchmesser nach DIN 18182-3! Durchmesser der Klammer zu groß! Muss kleiner als 1,6mm sein!"},
    // penetration depth: t + 8 d = 15 + 8 x 2 = 31, t + 4 d = 15 + 4 x 2 = 23 and 15 + 4 x 5 = 35
    {1, 3, {{d, 2}}, ln, 31, unter(31), tiefeKlammern},
    {3, 8, {{d, 2}}, ln, 31, unter(31), tiefeKlammern},
    {7, 2, {{d, 2}}, ln, 23, unter(23), tiefeNaegel},
    {3, 7, {{d, 2}}, ln, 23, unter(23), tiefeNaegel},
    {1, 4, {{d, 5}}, ln, 35, unter(35), tiefeSchrauben},
    {3, 6, {{d, 5}}, ln, 35, unter(35), tiefeSchrauben},
    // tensile strength
    {3, 7, {}, fuk, 600, unter(600), "Fließmoment zu klein! Laut DIN 18182-4 mindestens 600 N/mm²!"},
    {3, 6, {}, fuk, 400, unter(400), "Fließmoment zu klein! Laut DIN 18182-4 mindestens 400 N/mm² "},
    {7, 2, {{d, 2}}, fuk, 600, unter(600), "Fließmoment zu klein! Laut DIN 1052(2008) mindestens 600 N/mm²"},
    {7, 3, {}, fuk, 800, unter(800), "Fließmoment zu klein! Laut DIN 1052(2008) mindestens 800 N/mm²"},
    {1, 5, {}, fuk, 400, unter(400), "Fließmoment zu klein! Laut DIN 1052(2008) mindestens 400 N/mm²"},
    {3, 8, {{d, 1.25}}, fuk, 950, unter(950), "Fließmoment zu klein! Laut DIN 18182-3 bei Durchmessern von 1,0 bis 1,25mm mindestens 950 N/mm²!"},
    {3, 8, {{d, ueber(1.25)}}, fuk, 680, unter(680), "Fließmoment zu klein! Laut DIN 18182-3 bei Durchmessern über 1,25mm mindestens 680 N/mm²!"},
    // thread: 0.6 d = 0.6 x 5 = 3; the effective length is the smaller of lg and ln - t, 8 d = 16, 4 d = 20
    {1, 4, {{d, 5}}, lg, 3, unter(3), "Gewindelänge nicht nach DIN7997! Muss größer als 0,6*d sein!"},
    {7, 2, {}, lg, 0.1, 0, "Keine Gewindelänge eingegeben! Es kann keine erhöhte Tragfähigkeit aufgrund des Einhängeeffektes berücksichtigt werden!"},
    {1, 2, {{d, 2}}, lg, ueber(16), 16, lefZuKlein},
    {1, 2, {{d, 2}, {lg, 40}}, ln, ueber(31), 31, lefZuKlein},
    {1, 4, {{d, 5}}, lg, ueber(20), 20, einschrauben},
    {1, 5, {{d, 5}}, lg, ueber(20), 20, einschrauben},
    // head diameter, only at the listed diameters
    {1, 4, {{d, 4}}, dk, 7.5, unter(7.5), kopf4},
    {1, 4, {{dk, 7}}, d, ueber(4), 4, kopf4},
    {1, 4, {{d, 4.5}}, dk, 8.3, unter(8.3), "Kopfdurchmesser nicht nach DIN7997! Bei Durchmesser 4,5 mm muss der Kopfdurchmesser min. 8,3mm sein!"},
    {1, 4, {{d, 5}}, dk, 9.2, unter(9.2), "Kopfdurchmesser nicht nach DIN7997! Bei Durchmesser 5,0 mm muss der Kopfdurchmesser min. 9,2mm sein!"},
    {1, 2, {}, dk, 0.1, 0, "Kein Kopfdurchmesser eingegeben! Es kann keine erhöhte Tragfähigkeit aufgrund des Einhängeeffektes berücksichtigt werden!"},
    // length
    {3, 8, {{d, 1}}, ln, 29, unter(29), klammerKurz},
    {3, 8, {{d, 1.3}}, ln, 40, ueber(40), klammerLang},
    {3, 8, {{d, ueber(1.3)}}, ln, 35, unter(35), klammerKurz},
    {3, 8, {{d, unter(1.6)}}, ln, 65, ueber(65), klammerLang},
    {3, 8, {{ln, 80}}, d, 1.6, unter(1.6), klammerLang},
    {3, 7, {{d, 2.2}}, ln, 28, unter(28), "Nagellänge zu klein! Laut DIN 18182-4 min 28mm!"},
    {3, 7, {{d, 2.2}}, ln, 50, ueber(50), "Nagellänge zu groß! Laut DIN 18182-4 max 50mm!"},
    {3, 7, {{ln, 200}}, d, 2.3, 2.2, "Nagellänge zu groß! Laut DIN 18182-4 max 50mm!"},
    {3, 7, {{d, 2.5}}, ln, 30, unter(30), "Nagellänge zu klein! Laut DIN 18182-4 min 40mm!"},
    {3, 7, {{d, 2.5}}, ln, 70, ueber(70), "Nagellänge zu groß! Laut DIN 18182-4 max 70mm!"},
    {3, 7, {{d, 2.8}}, ln, 41, unter(41), "Nagellänge zu klein! Laut DIN 18182-4 min 41mm!"},
    {3, 7, {{d, 2.8}}, ln, 70, ueber(70), "Nagellänge zu groß! Laut DIN 18182-4 max 70mm!"},
    {1, 1, {}, ln, 10, unter(10), "Nagel zu kurz!"},
    {1, 3, {{d, 1.5}}, ln, 97.5, ueber(97.5), "Länge der Klammer zu groß! Maximal 65*d!"},
    {1, 5, {}, ln, 10, unter(10), "Schraube zu kurz!"},
    {3, 6, {{d, 4.0}}, ln, 25, unter(25), "Schraubenlänge zu klein! Bei Durchmesser 4,0mm laut DIN 18182-2 min 25mm!"},
    {3, 6, {{d, 4.0}}, ln, 55, ueber(55), "Schraubenlänge zu groß! Bei Durchmesser 4,0mm laut DIN 18182-2 max 55mm!"},
    {3, 6, {{d, 4.3}}, ln, 25, unter(25), "Schraubenlänge zu klein! Bei Durchmesser 4,3mm laut DIN 18182-2 min 25mm!"},
    {3, 6, {{d, 4.3}}, ln, 55, ueber(55), "Schraubenlänge zu groß! Bei Durchmesser 4,3mm laut DIN 18182-2 max 55mm!"},
    {3, 6, {{d, 5.1}}, ln, 70, unter(70), "Schraubenlänge zu klein! Bei Durchmesser 5,1mm laut DIN 18182-2 min 70mm!"},
    {3, 6, {{d, 5.1}}, ln, 130, ueber(130), "Schraubenlänge zu groß! Bei Durchmesser 5,1mm laut DIN 18182-2 max 130mm!"},
    {3, 6, {{d, 5.5}}, ln, 70, unter(70), "Schraubenlänge zu klein! Bei Durchmesser 5,5mm laut DIN 18182-2 min 70mm!"},
    {3, 6, {{d, 5.5}}, ln, 130, ueber(130), "Schraubenlänge zu groß! Bei Durchmesser 5,5mm laut DIN 18182-2 max 130mm!"},
    // boundary conditions: core 160 + t 15 = 175; 14 d = 14 x 11.4 = 159.6 < 160 < 14 x 11.5
    {1, 1, {}, d, 11.4, 11.5, "Wegen Spaltgefahr des Holzes müssen die Rippen bei nicht vorgebohrten Nagelverb. eine Mindesthöhe nach DIN 1052(2008) 12.5.2 (13) aufweisen!", Eingabeort::Rippen},
    {1, 1, {{d, 3}}, av, 60, unter(60), "Verbindungsmittelabstand av zu klein! av muss mindestens 20*d sein!"},
    {1, 1, {{d, 2}}, av, 160, ueber(160), "Verbindungsmittelabstand av zu groß! Darf bei Nägeln und Klammern höchstens 80*d bzw. 150 mm betragen!"},
    {1, 3, {{d, 2}}, av, 160, ueber(160), "Verbindungsmittelabstand av zu groß! Darf bei Nägeln und Klammern höchstens 80*d bzw. 150 mm betragen!"},
    {3, 7, {{d, 2}}, av, 160, ueber(160), "Verbindungsmittelabstand av zu groß! Darf bei Nägeln und Klammern höchstens 80*d bzw. 150 mm betragen!"},
    {3, 8, {{d, 2}}, av, 160, ueber(160), "Verbindungsmittelabstand av zu groß! Darf bei Nägeln und Klammern höchstens 80*d bzw. 150 mm betragen!"},
    {3, 6, {{d, 4}}, av, 320, ueber(320), "Verbindungsmittelabstand av zu groß! Darf bei Schrauben höchstens 80*d bzw. 200 mm betragen!"},
    {1, 1, {}, lp, 625, unter(625), "Breite der Platte zu klein! Muß mindestens ein Viertel der Tafelhöhe sein!", platte},
    {1, 1, {}, ln, 175, ueber(175), "Verbindungsmittel zu lang!"},
};
// clang-format on

TEST(Plausibilitaet, EveryFindingOfASideStartsExactlyAtItsLimit) {
    for (const Seite n : beideSeiten) {
        const std::string seite = "Beplankung " + std::to_string(nummer(n)) + ": ";
        const std::string andere = "Beplankung " + std::to_string(nummer(gegenueber(n))) + ": ";
        for (const auto& fall : grenzfaelle) {
            SCOPED_TRACE(seite + std::string(fall.text) + " VMArt " + std::to_string(fall.VMArt));
            Wand w = neueWand();
            w.Material[n] = fall.Material;
            w.VMArt[n] = fall.VMArt;
            for (const auto& [feld, wert] : fall.umgebung) (w.*feld)[n] = wert;
            const std::string erwartet = seite + std::string(fall.text);
            (w.*fall.feld)[n] = fall.besteht;
            EXPECT_EQ(std::ranges::count(hinweise(w), erwartet), 0);
            (w.*fall.feld)[n] = fall.faellt;
            ASSERT_EQ(std::ranges::count(hinweise(w), erwartet), 1);
            for (const Hinweis& hinweis : w.Hinweise) {
                EXPECT_NE(hinweis.text.rfind(andere, 0), 0U) << hinweis.text;
                EXPECT_TRUE(!hinweis.text.starts_with(seite) || hinweis.seite == n) << hinweis.text;
            }
            EXPECT_EQ(ort(w.Hinweise, erwartet), fall.ort);
        }
    }
}

TEST(Plausibilitaet, FastenerAndSheathingAreRefusedByPairsOfTheirKinds) {
    // A row a sheathing, a column a fastener kind 1 to 8; x is refused.
    const std::vector<std::pair<int, std::string_view>> paarungen{
        {1, ".....xxx"}, {2, ".....xxx"}, {3, "xxxxx..."},  {6, "xxxxx..."},
        {7, "...xxxxx"}, {8, ".....xxx"}, {12, ".....xxx"}, {13, ".....xxx"}};
    for (const auto& [material, zeile] : paarungen) {
        for (int art = 1; art <= 8; ++art) {
            SCOPED_TRACE("Material " + std::to_string(material) + " VMArt " + std::to_string(art));
            Wand w = neueWand();
            w.Material[Seite::zwei] = material;
            w.VMArt[Seite::zwei] = art;
            const auto gemeldet = jeZeile(texte(allgemeinePruefung(w))).find("nicht zulässig! Bitte ändern!");
            EXPECT_EQ(gemeldet != std::string::npos, zeile[static_cast<std::size_t>(art) - 1] == 'x');
        }
    }
    Wand w = neueWand();
    w.Material[Seite::zwei] = 13;
    w.VMArt[Seite::zwei] = 8;
    const std::string erwartet =
        "Beplankung 2: Klammern DIN 18182-2 sind für freies Material nicht zulässig! Bitte ändern!";
    EXPECT_EQ(allgemeinePruefung(w),
              (std::vector{Hinweis{erwartet, Seite::zwei, Eingabeort::Verbindungsmittel}}));
}

// Changes to the wall of a new file that just pass and just fail, and all findings of the latter.
struct Wandfall {
    const char* name;
    void (*besteht)(Wand&);
    void (*faellt)(Wand&);
    Texte erwartet;
    Eingabeort ort;
};

// Core of 60 mm, gypsum board on side 2, nails of side 1 that reach too far.
void gipskartonInDuennerWand(Wand& w, double d2, int VMArt2) {
    w.hRandrippe = 60;
    w.ln[Seite::eins] = 70;
    w.Material[Seite::zwei] = 3;
    w.VMArt[Seite::zwei] = VMArt2;
    w.d[Seite::zwei] = d2;
    w.av[Seite::zwei] = 80;
    w.fuk[Seite::zwei] = 950;
}
void dickeKronoply(Wand& w) {
    w.Wandlaenge = 1.25;
    w.Material = {{Ganzzahl{12}, Ganzzahl{12}}};
    w.t = {{Feld{30}, Feld{30}}};
}

// clang-format off
constexpr auto seite1 = Seite::eins;
constexpr auto seite2 = Seite::zwei;
const std::string imperfektionen = "Randbedingungen nach 8.7.5(8) nicht eingehalten! Nachweis der horizontalen Verformung und Berücksichtigung von Imperfektionen erforderlich!";
const std::string vereinfacht = "Randbedingungen zur vereinfachten Berechnung von Wandtafeln unter horizontaler Scheibenbeanspruchung nach 8.7.5(8) nicht eingehalten!";
const std::string rippenabstand = "Rippenabstand zu groß bzw. Beplankungsdicke zu klein! Der Rippenabstand ar darf maximal 50*t betragen!";
const std::string uebergreifen = "Achtung! Laut DIN 1052(2008) 12.5.2 (12) dürfen sich Verbindungsmittel nicht übergreifen wenn (t2-lwand) größer als 4*d ist! ";
const std::string gegenseite = "Achtung! Laut bauaufsichtlicher Zulassung Nr.Z-9.1-187 beträgt die Mindestdicke der zweiten Beplankung 12mm falls die erste Seite mit Fermacell beplankt ist!";

const std::vector<Wandfall> wandfaelle{
    // 1410 / 1000 - 2 x 80 / 1000 = 1.25 m; boards of 30 mm carry up to 1500 mm
    {"wall shorter than a clear bay", [](Wand& w) { dickeKronoply(w); w.Rippenabstand = 1410; }, [](Wand& w) { dickeKronoply(w); w.Rippenabstand = 1410.001; },
     {"Wandlänge ist kleiner als Rippenabstand - 2 x b,Randrippe --> unzulässig!"}, Eingabeort::Wandlaenge},
    {"wall shorter than panel 1", [](Wand& w) { w.Plattenbreite[seite1] = 5000; }, [](Wand& w) { w.Plattenbreite[seite1] = ueber(5000); },
     {"Wandlänge ist kleiner Plattenbreite der Beplankung 1 --> unzulässig!"}, platte},
    {"one-sided wall shorter than panel 1", [](Wand& w) { w.Einseitig = true; w.Plattenbreite[seite2] = 6000; }, [](Wand& w) { w.Einseitig = true; w.Plattenbreite[seite1] = 6000; },
     {"Wandlänge ist kleiner Plattenbreite der Beplankung 1 --> unzulässig!"}, platte},
    {"wall shorter than panel 2", [](Wand& w) { w.Plattenbreite[seite2] = 5000; }, [](Wand& w) { w.Plattenbreite[seite2] = ueber(5000); },
     {"Wandlänge ist kleiner Plattenbreite der Beplankung 2 --> unzulässig!"}, platte},
    {"fibre board on side 1, thin side 2", [](Wand& w) { w.Material[seite1] = 7; w.t[seite2] = 12; w.Rippenabstand = 600; }, [](Wand& w) { w.Material[seite1] = 7; w.t[seite2] = unter(12); w.Rippenabstand = 590; },
     {gegenseite}, platte},
    {"fibre board on side 2, thin side 1", [](Wand& w) { w.Material[seite2] = 7; w.t[seite1] = 12; w.Rippenabstand = 600; }, [](Wand& w) { w.Material[seite2] = 7; w.t[seite1] = unter(12); w.Rippenabstand = 590; },
     {gegenseite}, platte},
    {"fibre board on both sides", [](Wand& w) { w.Material = {{Ganzzahl{7}, Ganzzahl{7}}}; w.t[seite2] = 10; w.Rippenabstand = 500; }, [](Wand& w) { w.Material[seite2] = 7; w.t[seite1] = 10; w.Rippenabstand = 500; },
     {gegenseite}, platte},
    {"wall shorter than a third of its height", [](Wand& w) { w.Wandhoehe = 4.5; w.Wandlaenge = 1.5; }, [](Wand& w) { w.Wandhoehe = 4.5; w.Wandlaenge = unter(1.5); },
     {imperfektionen, vereinfacht}, Eingabeort::Wandlaenge},
    // 2.5 / 4 = 0.625 m; the joint silences the finding on the panel width, not the proportions
    {"jointed panel 1 narrower than a quarter of the height", [](Wand& w) { w.Gestossen[seite1] = true; w.Plattenbreite[seite1] = 625; }, [](Wand& w) { w.Gestossen[seite1] = true; w.Plattenbreite[seite1] = unter(625); },
     {imperfektionen, vereinfacht}, Eingabeort::Wandlaenge},
    {"jointed panel 2 narrower than a quarter of the height", [](Wand& w) { w.Einseitig = true; w.Plattenbreite[seite2] = 600; }, [](Wand& w) { w.Gestossen[seite2] = true; w.Plattenbreite[seite2] = unter(625); },
     {imperfektionen, vereinfacht}, Eingabeort::Wandlaenge},
    {"slender edge ribs, one-sided", [](Wand& w) { w.Einseitig = true; w.bRandrippe = 40; w.bInnenrippe = 40; }, [](Wand& w) { w.Einseitig = true; w.bRandrippe = unter(40); w.bInnenrippe = 30; },
     {"Verhältnis b/h der Randrippen darf bei einseitiger Beplankung maximal 4 sein!"}, Eingabeort::Rippen},
    {"slender inner ribs, one-sided", [](Wand& w) { w.bInnenrippe = 30; }, [](Wand& w) { w.Einseitig = true; w.bInnenrippe = unter(40); },
     {"Verhältnis b/h der Innenrippen darf bei einseitiger Beplankung maximal 4 sein!"}, Eingabeort::Rippen},
    // 50 x 15 = 750 mm, of side 2 on a one-sided wall too; a side of 2 mm switches the check off
    {"rib spacing", [](Wand& w) { w.Rippenabstand = 750; }, [](Wand& w) { w.Rippenabstand = ueber(750); }, {rippenabstand}, Eingabeort::Rippenabstand},
    {"rib spacing by side 1", [](Wand& w) { w.Rippenabstand = 750; w.t[seite2] = 20; }, [](Wand& w) { w.Rippenabstand = ueber(750); w.t[seite2] = 20; }, {rippenabstand}, Eingabeort::Rippenabstand},
    {"rib spacing, 2 mm on side 1", [](Wand& w) { w.Material[seite1] = 13; w.t[seite1] = 2; }, [](Wand& w) { w.Material[seite1] = 13; w.t[seite1] = ueber(2); }, {rippenabstand}, Eingabeort::Rippenabstand},
    {"rib spacing by the hidden side", [](Wand& w) { w.Einseitig = true; w.t[seite2] = 2; }, [](Wand& w) { w.Einseitig = true; w.t[seite2] = ueber(2); }, {rippenabstand}, Eingabeort::Rippenabstand},
    // core 60: 60 - (60 - 15) = 15 = 4 x 3.75; both sides are freed by one that is predrilled
    {"overlapping fasteners of side 2", [](Wand& w) { w.hRandrippe = 60; w.ln[seite2] = 60; w.d[seite2] = 3.75; w.av[seite2] = 80; }, [](Wand& w) { w.hRandrippe = 60; w.ln[seite2] = ueber(60); w.d[seite2] = 3.75; w.av[seite2] = 80; }, {uebergreifen}, Eingabeort::Verbindungsmittel},
    {"overlap freed by predrilling", [](Wand& w) { w.hRandrippe = 60; w.ln[seite1] = 70; w.Vorgebohrt[seite2] = true; }, [](Wand& w) { w.hRandrippe = 60; w.ln[seite1] = 70; }, {uebergreifen}, Eingabeort::Verbindungsmittel},
    {"overlap freed by drywall screws on side 2", [](Wand& w) { gipskartonInDuennerWand(w, 4.0, 6); }, [](Wand& w) { gipskartonInDuennerWand(w, 4.0, 7); }, {uebergreifen}, Eingabeort::Verbindungsmittel},
    {"overlap freed by drywall staples on side 2", [](Wand& w) { gipskartonInDuennerWand(w, 1.5, 8); }, [](Wand& w) { gipskartonInDuennerWand(w, 1.5, 7); }, {uebergreifen}, Eingabeort::Verbindungsmittel},
    {"overlap by the hidden side", [](Wand& w) { w.Einseitig = true; w.ln[seite2] = 160; }, [](Wand& w) { w.Einseitig = true; w.ln[seite2] = 170; }, {uebergreifen}, Eingabeort::Verbindungsmittel},
    {"fastener through the wall", [](Wand& w) { w.ln[seite2] = 175; w.Vorgebohrt[seite1] = true; }, [](Wand& w) { w.ln[seite2] = 176; w.Vorgebohrt[seite1] = true; },
     {"Beplankung 2: Die Länge l des VM ist größer als die Wanddicke + Beplankung 2! Bitte ändern!", "Beplankung 2: Verbindungsmittel zu lang!"}, Eingabeort::Verbindungsmittel},
    // nothing but diameter and strength of kinds 1 to 3, penetration, thread and head is tested here
    {"fibre board has no test of the length", [](Wand& w) { w.Material[seite1] = 7; w.VMArt[seite1] = 3; w.d[seite1] = 1.5; w.ln[seite1] = 120; w.fuk[seite1] = 800; }, [](Wand& w) { w.VMArt[seite1] = 3; w.d[seite1] = 1.5; w.ln[seite1] = 120; w.fuk[seite1] = 800; },
     {"Beplankung 1: Länge der Klammer zu groß! Maximal 65*d!"}, Eingabeort::Verbindungsmittel},
    {"screws to approval have no test of the head at 4 mm", [](Wand& w) { w.VMArt[seite1] = 5; w.d[seite1] = 4; w.av[seite1] = 80; }, [](Wand& w) { w.VMArt[seite1] = 4; w.d[seite1] = 4; w.av[seite1] = 80; },
     {"Beplankung 1: " + std::string(kopf4)}, Eingabeort::Verbindungsmittel},
    {"widely spaced screws", [](Wand& w) { w.VMArt[seite1] = 5; w.d[seite1] = 4; w.av[seite1] = 320; }, [](Wand& w) { w.VMArt[seite1] = 5; w.d[seite1] = 4; w.av[seite1] = 321; },
     {"Beplankung 1: Verbindungsmittelabstand av zu groß! Darf bei Schrauben höchstens 80*d bzw. 200 mm betragen!"}, Eingabeort::Verbindungsmittel},
};
// clang-format on

TEST(Plausibilitaet, FindingsOfTheWallStartExactlyAtTheirLimitAndStandAlone) {
    for (const auto& fall : wandfaelle) {
        SCOPED_TRACE(fall.name);
        Wand gut = neueWand();
        fall.besteht(gut);
        EXPECT_EQ(jeZeile(hinweise(gut)), "");
        Wand schlecht = neueWand();
        fall.faellt(schlecht);
        ASSERT_EQ(jeZeile(hinweise(schlecht)), jeZeile(fall.erwartet));
        EXPECT_EQ(schlecht.Hinweise.front().ort, fall.ort);
    }
}

// Both sides: staples 5.0 x 50 in gypsum board, wall 1 m long and 4.4 m high. Side 2 has DIN 7997
// screws in its place. Side 1 before side 2 in the general check, then all of side 1, then side 2.
TEST(Plausibilitaet, FindingsStandInTheOrderOfTheChecks) {
    Wand w = neueWand();
    w.Wandlaenge = 1.0;
    w.Wandhoehe = 4.4;
    w.Rippenabstand = 1500;
    for (const Seite n : beideSeiten) {
        w.Material[n] = 3;
        w.t[n] = 10;
        w.d[n] = 5;
        w.dk[n] = 9;
    }
    w.VMArt[seite1] = 3;
    w.VMArt[seite2] = 4;
    const Texte erwartet{
        "Wandlänge ist kleiner als Rippenabstand - 2 x b,Randrippe --> unzulässig!",
        "Wandlänge ist kleiner Plattenbreite der Beplankung 1 --> unzulässig!",
        "Wandlänge ist kleiner Plattenbreite der Beplankung 2 --> unzulässig!",
        "Beplankung 1: Klammern sind für Gipskartonplatte GKB nicht zulässig! Bitte ändern!",
        "Beplankung 2: Schrauben DIN 7997 sind für Gipskartonplatte GKB nicht zulässig! Bitte ändern!",
        "Beplankung 1: " + std::string(dickeDIN),
        "Beplankung 1: Durchmesser der Klammer zu groß!",
        "Beplankung 1: Fließmoment zu klein! Laut DIN 1052(2008) mindestens 800 N/mm²",
        "Beplankung 2: " + std::string(dickeDIN),
        "Beplankung 2: Kopfdurchmesser nicht nach DIN7997! Bei Durchmesser 5,0 mm muss der Kopfdurchmesser "
        "min. 9,2mm sein!",
        imperfektionen,
        vereinfacht,
        rippenabstand,
        "Beplankung 1: Verbindungsmittelabstand av zu klein! av muss mindestens 20*d sein!",
        "Beplankung 2: Verbindungsmittelabstand av zu klein! av muss mindestens 20*d sein!",
    };
    EXPECT_EQ(jeZeile(hinweise(w)), jeZeile(erwartet));
}

TEST(Plausibilitaet, TheHiddenSideOfAOneSidedWallNeverShowsUnderItsName) {
    Wand w = neueWand();
    w.Material[seite2] = 7;
    w.VMArt[seite2] = 5;
    w.Plattenbreite[seite2] = 400;
    w.t[seite1] = 11;
    w.t[seite2] = 13;
    for (const Seitenfeld feld : {d, ln, av}) (w.*feld)[seite2] = 250;
    w.lef[seite2] = 77;
    w.Rd[seite2] = 555;
    EXPECT_GE(hinweise(w).size(), 9U);
    w.Einseitig = true;
    w.lef[seite2] = 77;
    w.Rd[seite2] = 555;
    EXPECT_EQ(jeZeile(hinweise(w)), jeZeile({gegenseite, rippenabstand, uebergreifen}));
    EXPECT_EQ(w.lef[seite2].value(), 77.0);
    EXPECT_EQ(w.Rd[seite2].value(), 555.0);
}

TEST(Plausibilitaet, TheThreadCheckLeavesTheEffectiveLengthOfEachSide) {
    Wand w = neueWand();
    w.lg[seite2] = 41;
    plausibilitaetslauf(w);
    EXPECT_EQ(w.lef[seite1].value(), 25.0);  // lg
    EXPECT_EQ(w.lef[seite2].value(), 35.0);  // ln - t = 50 - 15
}

// Nail of 4 mm in a core of just under 66 mm: 14 d = 56 passes; with the density 600 of a run before,
// (13 x 4 - 30) x 600 / 200 = 66 does not. Predrilling lifts the rule.
TEST(Plausibilitaet, TheRibDepthCheckUsesTheDensityOfTheLastRunAndTakesTheCapacity) {
    Wand w = neueWand();
    w.hRandrippe = unter(66);
    w.d[seite2] = 4;
    w.av[seite2] = 80;
    w.Rd = {{Feld{500}, Feld{600}}};
    EXPECT_EQ(jeZeile(hinweise(w)), "");
    EXPECT_EQ(w.Rd[seite2].value(), 600.0);
    w.rhok = 600;
    EXPECT_EQ(hinweise(w).size(), 1U);
    EXPECT_EQ(w.Rd[seite1].value(), 500.0);
    EXPECT_EQ(w.Rd[seite2].value(), 0.0);
    w.hRandrippe = 66;
    EXPECT_EQ(jeZeile(hinweise(w)), "");
    w.hRandrippe = 60;
    w.Vorgebohrt[seite2] = true;
    EXPECT_EQ(jeZeile(hinweise(w)), "");
    w.ln[seite1] = 80;
    plausibilitaetslauf(w);
    EXPECT_EQ(w.Rd[seite1].value(), 0.0);
}

struct Ablehnungsfall {
    int Material1, Material2, NKL1, NKL2;
    double t1;
    std::string_view text;
};

TEST(Beplankungsdialog, RefusesTheFirstOfItsTestsOnAHiddenSideToo) {
    constexpr std::string_view nkl1 =
        "Das gewählte Plattenmaterial für Beplankung 1 ist bei NKL 2 unzulässig! Bitte ändern!";
    constexpr std::string_view nkl2 =
        "Das gewählte Plattenmaterial für Beplankung 2 ist bei NKL 2 unzulässig! Bitte ändern!";
    constexpr std::string_view duenn =
        "Das gewählte Plattenmaterial für Beplankung 2 ist bei der Art der Beplankung 1 und der Dicke "
        "t1<12mm unzulässig! Bitte ändern!";
    constexpr std::string_view gips =
        "Das gewählte Plattenmaterial für Beplankung 2 ist bei der Art der Beplankung 1 unzulässig! Bitte "
        "ändern!";
    const std::vector<Ablehnungsfall> faelle{
        {3, 1, 2, 1, 15, nkl1}, {4, 1, 2, 1, 15, ""},       {5, 1, 2, 2, 15, nkl1},
        {8, 3, 2, 2, 15, nkl1}, {10, 9, 2, 2, 15, nkl2},    {10, 9, 2, 1, 15, ""},
        {1, 7, 1, 1, 12, ""},   {2, 7, 1, 1, 11.9, duenn},  {6, 7, 1, 1, 15, gips},
        {7, 3, 1, 1, 15, gips}, {11, 7, 1, 1, 11.9, duenn}, {12, 7, 1, 1, 6, ""},
        {7, 1, 1, 1, 10, ""},   {7, 7, 2, 2, 10, ""},
    };
    for (const auto& fall : faelle) {
        SCOPED_TRACE(std::to_string(fall.Material1) + "/" + std::to_string(fall.Material2));
        Wand w = neueWand();
        w.Einseitig = true;
        w.Material = {{Ganzzahl(static_cast<std::int16_t>(fall.Material1)),
                       Ganzzahl(static_cast<std::int16_t>(fall.Material2))}};
        w.NKLBeplankung[seite1] = fall.NKL1;
        w.NKLBeplankung[seite2] = fall.NKL2;
        w.Plattendicke1 = fall.t1;
        EXPECT_EQ(beplankungPruefung(w).value_or(""), fall.text);
    }
}

}  // namespace
}  // namespace rippenscheibe
