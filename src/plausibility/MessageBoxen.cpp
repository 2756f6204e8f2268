#include "plausibility/MessageBoxen.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

#include "model/Kataloge.h"
#include "plausibility/Hinweistexte.h"

namespace rippenscheibe {

namespace {

// ---- groups of the catalogues -------------------------------------------------------------------

using Plattengruppe = bool (*)(Platte);
using Artgruppe = bool (*)(Art);

constexpr bool jedePlatte(Platte) { return true; }
constexpr bool jedeArt(Art) { return true; }

constexpr bool keineGipsfaser(Platte p) { return !istGipsfaser(p); }
constexpr bool holzwerkstoff(Platte p) { return istOsb(p) || istSpanplatteOderWeiter(p); }

template <Art gesucht>
constexpr bool nur(Art a) {
    return a == gesucht;
}

// ---- what the checks of one side look at --------------------------------------------------------

struct Angaben {
    Platte Material;
    Art VMArt;
    Zahl t;           // mm, like all lengths here
    Zahl d;           // nominal diameter
    Zahl ln;          // length
    Zahl fuk;         // N/mm²
    Zahl dk;          // head diameter
    Zahl lg;          // thread or groove length
    Zahl lef;         // effective thread length
    Zahl hRandrippe;  // depth of the ribs
};

Angaben angaben(const Wand& w, Seite n) {
    return {plattenmaterial(w, n), vmArt(w, n), w.t[n], w.d[n], w.ln[n], w.fuk[n], w.dk[n], w.lg[n], w.lef[n],
            w.hRandrippe};
}

// ---- rows of the tables -------------------------------------------------------------------------

// A range of numbers; each end belongs to it unless it is told to be open.
struct Bereich {
    double von = std::numeric_limits<double>::lowest();
    double bis = std::numeric_limits<double>::max();
    bool vonOffen = false;
    bool bisOffen = false;

    bool liegtDarunter(Zahl x) const { return vonOffen ? x <= von : x < von; }
    bool liegtDarueber(Zahl x) const { return bisOffen ? x >= bis : x > bis; }
    bool enthaelt(Zahl x) const { return !liegtDarunter(x) && !liegtDarueber(x); }
};

constexpr Bereich alle{};
constexpr Bereich ab(double von) { return {.von = von}; }
constexpr Bereich ueber(double von) { return {.von = von, .vonOffen = true}; }
constexpr Bereich hoechstens(double bis) { return {.bis = bis}; }
constexpr Bereich vonBis(double von, double bis) { return {.von = von, .bis = bis}; }
constexpr Bereich zwischen(double von, double bis) {
    return {.von = von, .bis = bis, .vonOffen = true, .bisOffen = true};
}
constexpr Bereich abBisUnter(double von, double bis) { return {.von = von, .bis = bis, .bisOffen = true}; }
// Exactly this double: a diameter that was typed in as it stands in the standard.
constexpr Bereich genau(double wert) { return {.von = wert, .bis = wert}; }

// The range that a value has to keep, for some sheathings, fasteners and diameters.
struct Grenze {
    Plattengruppe Material;
    Artgruppe VMArt;
    Bereich d;
    Bereich zulaessig;
    std::string_view zuKlein;
    std::string_view zuGross;

    bool betrifft(const Angaben& a) const {
        return Material(a.Material) && VMArt(a.VMArt) && d.enthaelt(a.d);
    }
    bool sagt(std::string_view gesucht) const { return gesucht == zuKlein || gesucht == zuGross; }
};

// A condition that must not hold.
struct Verstoss {
    bool (*liegtVor)(const Angaben&);
    std::string_view text;

    bool sagt(std::string_view gesucht) const { return gesucht == text; }
};

// The only thicknesses in which a board is made, mm.
struct Plattendicken {
    Plattengruppe Material;
    std::array<double, 4> dicken;
    std::string_view text;

    bool sagt(std::string_view gesucht) const { return gesucht == text; }
};

// Least penetration depth as a multiple of d.
struct Einschlagtiefe {
    Artgruppe VMArt;
    double vielfaches;
    std::string_view text;

    bool sagt(std::string_view gesucht) const { return gesucht == text; }
};

// ---- the tables ---------------------------------------------------------------------------------

// The finding on a pair that is not permitted names both.
constexpr std::string_view paarung = "{VMArt} sind für {Material} nicht zulässig! Bitte ändern!";
constexpr std::string_view paarungEnde = " nicht zulässig! Bitte ändern!";

// clang-format off

// The general check of one side. The last row allows the 8 mm screw that the check of the diameter
// refuses: that is meant.
constexpr std::array<Verstoss, 8> allgemein{{
    {[](const Angaben& a) { return hatGewinde(a.VMArt) && a.ln <= a.lg; },
     "Die Gewinde-/Rillenlänge lg muss kleiner sein als die Länge l! Bitte ändern!"},
    {[](const Angaben& a) { return !istKlammer(a.VMArt) && a.dk <= a.d; },
     "Der Kopfdurchmesser dk muss größer sein als der Durchmesser d! Bitte ändern!"},
    {[](const Angaben& a) { return a.hRandrippe + a.t < a.ln; },
     "Die Länge l des VM ist größer als die Wanddicke + Beplankung 1! Bitte ändern!"},
    {[](const Angaben& a) { return holzwerkstoff(a.Material) && a.VMArt >= Art::schnellbauschrauben; }, paarung},
    {[](const Angaben& a) { return istGipskarton(a.Material)    && a.VMArt <  Art::schnellbauschrauben; }, paarung},
    {[](const Angaben& a) { return istGipsfaser(a.Material)     && a.VMArt >= Art::schrauben; }, paarung},
    {[](const Angaben& a) { return a.VMArt == Art::schnellbauschrauben && a.d < 4; },
     "Durchmesser der Schnellbauschrauben muss >= 4 mm sein! Bitte ändern!"},
    {[](const Angaben& a) { return a.VMArt == Art::schraubenMitZulassung && a.d > 8; },
     "Durchmesser der Schrauben darf max. 8 mm betragen! Bitte ändern!"},
}};

// Boards of fixed thicknesses, mm; a thickness that stands twice only fills the row.
constexpr std::array<Plattendicken, 2> festeDicken{{
    {istGipsfaser,  {10.0, 12.5, 15.0, 18.0}, "Keine Plattendicke nach bauaufsichtlicher Zulassung Z-9.1-434! Bitte benutzen Sie die vorgeschlagenen Plattendicken!"},
    {istGipskarton, {12.5, 12.5, 15.0, 18.0}, "Keine Plattendicke nach DIN 1052(2008)! Bitte benutzen Sie die vorgeschlagenen Plattendicken!"},
}};

// Thickness of the wood-based boards, mm.
constexpr std::array<Grenze, 2> dicken{{
    {istOsb,        jedeArt, alle, vonBis(6.0, 25.0), "Keine Plattendicke nach DIN 1052(2008)! OSB-Platten müssen mindestens 6mm dick sein!",
                                                 "Keine Plattendicke nach DIN 1052(2008)! OSB-Platten dürfen höchstens 25mm dick sein!"},
    {istSpanplatte, jedeArt, alle, vonBis(6.0, 50.0), "Keine Plattendicke nach DIN 1052(2008)! Kunstharzgebundene Spanplatten müssen mindestens 6mm dick sein!",
                                                 "Keine Plattendicke nach DIN 1052(2008)! Kunstharzgebundene Spanplatten dürfen höchstens 50mm dick sein!"},
}};

// Diameter of the fastener, mm. A nail of exactly 8 mm passes though its text says smaller, a screw of
// exactly 8 mm fails, a staple of 1.6 mm to DIN 18182-2 passes: all three are meant.
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

// Tensile strength fu,k, N/mm². The texts say Fließmoment and end in three different ways: both are
// meant.
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

// Length of the fastener, mm. Only the listed diameters have limits. The nail of 2.5 mm may be 30 mm
// long though its text says 40: that is meant.
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

// Approval Z-9.1-187: the sheathing opposite a gypsum fibre board, mm. It carries no prefix.
constexpr double mindestdickeGegenueberGipsfaser = 12.0;
constexpr std::string_view gegenseiteZuDuenn =
    "Achtung! Laut bauaufsichtlicher Zulassung Nr.Z-9.1-187 beträgt die Mindestdicke der zweiten Beplankung 12mm falls die erste Seite mit Fermacell beplankt ist!";

// clang-format on

// ---- running the tables -------------------------------------------------------------------------

void ersetze(std::string& text, std::string_view platzhalter, std::string_view wert) {
    if (const auto stelle = text.find(platzhalter); stelle != std::string::npos)
        text.replace(stelle, platzhalter.size(), wert);
}

// Fills in the names of fastener and sheathing where the text asks for them.
std::string ausgefuellt(std::string_view text, const Angaben& a) {
    std::string ergebnis(text);
    ersetze(ergebnis, "{VMArt}", eintrag(VMArten(), static_cast<int>(a.VMArt)));
    ersetze(ergebnis, "{Material}", eintrag(Plattenmaterialien(), static_cast<int>(a.Material)));
    return ergebnis;
}

// The findings of one side while they are made.
class Seitenpruefung {
  public:
    Seitenpruefung(Texte& hinweise, Seite n, const Angaben& a) : hinweise_(hinweise), seite_(n), a_(a) {}

    template <std::size_t N>
    void grenzen(const std::array<Grenze, N>& tabelle, Zahl wert) {
        for (const Grenze& zeile : tabelle) {
            if (!zeile.betrifft(a_)) continue;
            if (zeile.zulaessig.liegtDarunter(wert)) melde(zeile.zuKlein);
            if (zeile.zulaessig.liegtDarueber(wert)) melde(zeile.zuGross);
        }
    }
    template <std::size_t N>
    void verstoesse(const std::array<Verstoss, N>& tabelle) {
        for (const Verstoss& zeile : tabelle)
            if (zeile.liegtVor(a_)) melde(zeile.text);
    }
    void plattendicken() {
        for (const Plattendicken& zeile : festeDicken) {
            const auto gleich = [this](double dicke) { return a_.t == dicke; };
            if (zeile.Material(a_.Material) && std::ranges::none_of(zeile.dicken, gleich)) melde(zeile.text);
        }
    }
    void einschlagtiefe() {
        for (const Einschlagtiefe& zeile : einschlagtiefen)
            if (zeile.VMArt(a_.VMArt) && a_.ln - a_.t < zeile.vielfaches * a_.d) melde(zeile.text);
    }

  private:
    void melde(std::string_view text) { hinweise_.push_back(mitSeite(ausgefuellt(text, a_), seite_)); }

    Texte& hinweise_;
    Seite seite_;
    const Angaben& a_;
};

// Refusals of the sheathing dialog, in order; Plattendicke in mm.
struct Ablehnung {
    bool (*liegtVor)(const Wand&);
    std::string_view text;
};

// Boards that must not be used in service class 2.
bool unzulaessigInNKL2(const Wand& w, Seite n) {
    const Platte p = plattenmaterial(w, n);
    return w.NKLBeplankung[n].value() == 2 &&
           (p == Platte::GKB || p == Platte::GKF || p == Platte::P4 || p == Platte::P5);
}
bool gipsfaserGegenueberDuenner(const Wand& w, Plattengruppe material1) {
    return istGipsfaser(plattenmaterial(w, Seite::zwei)) &&
           w.Plattendicke1 < mindestdickeGegenueberGipsfaser && material1(plattenmaterial(w, Seite::eins));
}
bool gipsfaserGegenueberGipskarton(const Wand& w, Seite gipsfaserseite) {
    return istGipsfaser(plattenmaterial(w, gipsfaserseite)) &&
           istGipskarton(plattenmaterial(w, gegenueber(gipsfaserseite)));
}

constexpr std::string_view duenneGegenseite =
    "Das gewählte Plattenmaterial für Beplankung 2 ist bei der Art der Beplankung 1 und der Dicke t1<12mm "
    "unzulässig! Bitte ändern!";
constexpr std::string_view gipskartonGegenseite =
    "Das gewählte Plattenmaterial für Beplankung 2 ist bei der Art der Beplankung 1 unzulässig! Bitte "
    "ändern!";

// Wherever the gypsum fibre board is, the texts name sheathing 2, and only a thin sheathing 1 is
// refused here: that is meant.
constexpr std::array<Ablehnung, 6> ablehnungen{{
    {[](const Wand& w) { return unzulaessigInNKL2(w, Seite::eins); },
     "Das gewählte Plattenmaterial für Beplankung 1 ist bei NKL 2 unzulässig! Bitte ändern!"},
    {[](const Wand& w) { return unzulaessigInNKL2(w, Seite::zwei); },
     "Das gewählte Plattenmaterial für Beplankung 2 ist bei NKL 2 unzulässig! Bitte ändern!"},
    {[](const Wand& w) { return gipsfaserGegenueberDuenner(w, istOsb); }, duenneGegenseite},
    {[](const Wand& w) { return gipsfaserGegenueberGipskarton(w, Seite::zwei); }, gipskartonGegenseite},
    {[](const Wand& w) { return gipsfaserGegenueberGipskarton(w, Seite::eins); }, gipskartonGegenseite},
    {[](const Wand& w) { return gipsfaserGegenueberDuenner(w, istSpanplatte); }, duenneGegenseite},
}};

template <class... Tabelle>
bool stehtIn(std::string_view text, const Tabelle&... tabellen) {
    const auto sagt = [text](const auto& zeile) { return zeile.sagt(text); };
    return (std::ranges::any_of(tabellen, sagt) || ...);
}

}  // namespace

Texte allgemeinePruefung(const Wand& w) {
    Texte hinweise;
    for (const Seite n : beideSeiten) {
        if (n == Seite::zwei && w.Einseitig) continue;
        Seitenpruefung(hinweise, n, angaben(w, n)).verstoesse(allgemein);
    }
    return hinweise;
}

void pruefeBeplankungUndVerbindungsmittel(Wand& w, Seite n) {
    Angaben a = angaben(w, n);
    Seitenpruefung pruefung(w.Hinweise, n, a);
    pruefung.plattendicken();
    pruefung.grenzen(dicken, a.t);
    pruefung.grenzen(durchmesser, a.d);
    pruefung.einschlagtiefe();
    pruefung.grenzen(zugfestigkeit, a.fuk);
    pruefung.verstoesse(gewindelaenge);
    w.lef[n] = Min(a.lg, a.ln - a.t);
    a.lef = w.lef[n];
    pruefung.verstoesse(wirksameLaenge);
    pruefung.grenzen(kopfdurchmesser, a.dk);
    pruefung.verstoesse(fehlenderKopf);
    pruefung.grenzen(laenge, a.ln);
    pruefung.verstoesse(klammerlaenge);
}

void pruefeGegenseiteDerGipsfaserplatte(Wand& w) {
    const auto zuDuennGegenueber = [&w](Seite n) {
        const Seite m = gegenueber(n);
        return istGipsfaser(plattenmaterial(w, n)) && !istGipsfaser(plattenmaterial(w, m)) &&
               w.t[m] < mindestdickeGegenueberGipsfaser;
    };
    if (zuDuennGegenueber(Seite::eins) || zuDuennGegenueber(Seite::zwei))
        w.Hinweise.emplace_back(gegenseiteZuDuenn);
}

std::optional<std::string> beplankungPruefung(const Wand& w) {
    for (const Ablehnung& zeile : ablehnungen)
        if (zeile.liegtVor(w)) return std::string(zeile.text);
    return std::nullopt;
}

std::vector<double> festePlattendicken(const Wand& w, Seite n) {
    const Angaben a = angaben(w, n);
    std::vector<double> gefunden;
    for (const Plattendicken& zeile : festeDicken)
        if (zeile.Material(a.Material)) gefunden.assign(zeile.dicken.begin(), zeile.dicken.end());
    gefunden.erase(std::unique(gefunden.begin(), gefunden.end()), gefunden.end());
    return gefunden;
}

std::optional<Eingabeort> ortDerEinzelpruefung(std::string_view hinweis) {
    if (hinweis.empty()) return std::nullopt;  // a row without upper or lower limit has an empty text
    if (hinweis == gegenseiteZuDuenn || stehtIn(hinweis, festeDicken, dicken)) return Eingabeort::Beplankung;
    if (hinweis.ends_with(paarungEnde) ||
        stehtIn(hinweis, allgemein, durchmesser, einschlagtiefen, zugfestigkeit, gewindelaenge,
                wirksameLaenge, kopfdurchmesser, fehlenderKopf, laenge, klammerlaenge))
        return Eingabeort::Verbindungsmittel;
    return std::nullopt;
}

}  // namespace rippenscheibe
