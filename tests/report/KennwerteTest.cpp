#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <string>
#include <vector>

#include "design/Herausziehen.h"
#include "design/Verankerung.h"
#include "design/Verbindungsmittelabstaende.h"
#include "materials/Materialkennwerte.h"
#include "materials/kmod.h"
#include "model/Kataloge.h"
#include "model/VMKatalog.h"
#include "support/Golden.h"
#include "support/Walls.h"

// Every cell of the tables of the standard and the approvals, as the public routines give it: a page to be
// read against the standard, and held from then on.

namespace rippenscheibe {
namespace {

std::string zahl(double wert) {
    std::array<char, 40> puffer{};
    const auto ende =
        std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert, std::chars_format::general, 6);
    return {puffer.data(), ende.ptr};
}

class Tafel {
  public:
    void titel(std::string_view text) { text_.append("\n").append(text) += '\n'; }
    void zeile(std::string_view name, const std::vector<double>& werte) {
        std::string zeile(name);
        for (const double wert : werte) zeile += "\t" + zahl(wert);
        text_ += zeile + '\n';
    }
    const std::string& text() const { return text_; }

  private:
    std::string text_;
};

void holz(Tafel& tafel) {
    tafel.titel("Holz: rhok fmk fc0k ft0k fc90k E0mean E005 Gmean G05 E90mean E9005 betac");
    for (int klasse = 1; klasse <= 13; ++klasse) {
        Wand w;
        w.Holzart = klasse;
        holzwerte(w);
        tafel.zeile(eintrag(Holzarten(), klasse),
                    {wert(w.rhok), wert(w.fmk), wert(w.fc0k), wert(w.ft0k), wert(w.fc90k), wert(w.E0mean),
                     wert(w.E005), wert(w.GmeanHolz), wert(w.G05Holz), wert(w.E90mean), wert(w.E9005),
                     wert(w.betac)});
    }
}

// Thicknesses in mm that stand for the bands of a material: the upper end of each, the last outside of all.
std::vector<double> dicken(Platte p) {
    if (istOsb(p)) return {10, 18, 25, 26};
    if (istGipskarton(p)) return {12.5, 15, 18, 20};
    if (istGipsfaser(p)) return {10, 12.5, 15, 18, 20};
    if (istSpanplatte(p)) return {13, 20, 25, 32, 40, 50, 51};
    return {10, 18, 25, 30, 31};
}

std::vector<double> plattenwerte(int material, double t, Seite n) {
    Wand w;
    w.Material[n] = material;
    w.t[n] = t;
    beplankungswerte(w, n);
    return {wert(w.fvk[n]),   wert(w.fck[n]), wert(w.fmkBeplankung[n]), wert(w.rhokBeplankung[n]),
            wert(w.Gmean[n]), wert(w.G05[n]), wert(w.Wichte[n])};
}

void beplankung(Tafel& tafel) {
    tafel.titel("Beplankung, Seite 2 nur, wo sie abweicht: fvk fck fmk rhok Gmean G05 Wichte");
    for (int material = 1; material < static_cast<int>(Platte::frei); ++material) {
        for (const double t : dicken(static_cast<Platte>(material))) {
            const std::vector<double> eins = plattenwerte(material, t, Seite::eins);
            const std::vector<double> zwei = plattenwerte(material, t, Seite::zwei);
            const std::string name =
                std::string(eintrag(Plattenmaterialien(), material)) + ", t = " + zahl(t);
            tafel.zeile(name, eins);
            if (zwei != eins) tafel.zeile(name + ", Seite 2", zwei);
        }
    }
}

void kmodwerte(Tafel& tafel) {
    tafel.titel("kmod nach Nutzungsklasse und KLED: Rippen OSB Gips Span Spalte des eigenen Materials");
    for (const int nkl : {1, 2}) {
        for (int KLED = 1; KLED <= 5; ++KLED) {
            Wand w;
            w.NKLBeplankung[S1] = nkl;
            w.KLED = KLED;
            auto& eigenes = w.eigeneMaterialien.zeilen.emplace_back();
            for (int spalte = 2; spalte <= 30; ++spalte)
                eigenes.zellen[static_cast<std::size_t>(spalte)] = {static_cast<double>(spalte), false};
            modifikationsbeiwerte(w, S1);
            tafel.zeile("NKL " + std::to_string(nkl) + " " + std::string(eintrag(KLEDNamen(), KLED)),
                        {wert(w.kmodRippen), wert(w.kmodOSB[S1]), wert(w.kmodGips[S1]), wert(w.kmodSpan[S1]),
                         wert(w.kmodEigen[S1])});
        }
    }
}

Wand ankerwand(int typ, int nagel, int anzahl) {
    Wand w;
    w.Ankertyp = typ;
    w.Kammnagel = nagel;
    w.AnzahlAnkerNaegel = anzahl;
    w.KLED = 3;
    w.Ftdst = 1;
    nachweisVerankerung(w);
    return w;
}

void anker(Tafel& tafel) {
    tafel.titel(
        "Anker, KLED mittel: RdAnker mit 5 Kammnägeln 4,0x40 bis 4,0x75, mit 100 Nägeln 4,0x40 bis 4,0x75, "
        "Fbd/Ftdst");
    for (int typ = 1; typ < freierAnker; ++typ) {
        const auto Rd = [&](int nagel, int anzahl) { return wert(ankerwand(typ, nagel, anzahl).RdAnker); };
        tafel.zeile(eintrag(Ankernamen(), typ),
                    {Rd(1, 5), Rd(2, 5), Rd(3, 5), Rd(4, 5), Rd(1, 100), Rd(2, 100), Rd(3, 100), Rd(4, 100),
                     wert(ankerwand(typ, 1, 5).Fbd)});
    }
    tafel.titel(
        "Anker nach KLED: RdAnker von HD340 mit 5, HTT5 mit 5 und mit 100, HD2PSG ganz und teilweise "
        "genagelt");
    for (int KLED = 1; KLED <= 5; ++KLED) {
        const auto Rd = [&](int typ, int anzahl, int teil) {
            Wand w = ankerwand(typ, 1, anzahl);
            w.KLED = KLED;
            w.Teilausnagelung = teil;
            ankertragfaehigkeit(w);
            return wert(w.RdAnker);
        };
        tafel.zeile(eintrag(KLEDNamen(), KLED),
                    {Rd(1, 5, 1), Rd(6, 5, 1), Rd(6, 100, 1), Rd(11, 5, 1), Rd(11, 5, 2)});
    }
}

void ausziehwerte(Tafel& tafel) {
    tafel.titel(
        "Ausziehen nach Klasse bei rhok 1000: f1k der Sondernägel, f1k der Schrauben, f2k über 20 mm");
    for (int klasse = 1; klasse <= 9; ++klasse) {
        const auto ausgezogen = [&](Art art) {
            Wand w;
            w.VMArt[S1] = static_cast<int>(art);
            w.VMKlasse[S1] = klasse;
            w.rhok = 1000;
            w.t[S1] = 22;
            w.ln[S1] = w.lg[S1] = 200;
            nachweisHerausziehen(w);
            return w;
        };
        tafel.zeile(eintrag(VMKlassen(), klasse), {wert(ausgezogen(Art::sondernaegel).f1k[S1]),
                                                   wert(ausgezogen(Art::schraubenMitZulassung).f1k[S1]),
                                                   wert(ausgezogen(Art::schraubenMitZulassung).f2k[S1])});
    }
}

struct Abstandsfall {
    std::string_view name;
    Art art = Art::naegel;
    Platte platte = Platte::OSB3;
    double d = 2;
    double rhok = 420;
    bool vorgebohrt = false;
    double beta = 30;
};

void abstaende(Tafel& tafel) {
    tafel.titel(
        "Mindestabstände als Vielfache von d, Seite 1 und 2: a1 a2 a3 a4 aRand aPlatteUnbelastet aPlatte");
    for (const Abstandsfall& fall : {
             Abstandsfall{.name = "bis 420 kg/m³, d < 5 mm"},
             {.name = "bis 420 kg/m³, d ab 5 mm", .d = 5},
             {.name = "bis 500 kg/m³, d < 5 mm", .rhok = 421},
             {.name = "bis 500 kg/m³, d ab 5 mm", .d = 5, .rhok = 499},
             {.name = "ab 500 kg/m³", .rhok = 500},
             {.name = "vorgebohrt", .vorgebohrt = true},
             {.name = "Gipskarton", .art = Art::schnellbauschrauben, .platte = Platte::GKFI},
             {.name = "Gipsfaser", .art = Art::sondernaegel, .platte = Platte::gipsfaser},
             {.name = "Spanplatte mit Zulassung",
             .art = Art::schrauben,
             .platte = Platte::spanplatteZulassung},
             {.name = "Klammern 30°", .art = Art::klammern},
             {.name = "Klammern 29°", .art = Art::klammern, .beta = 29},
             {.name = "Klammern DIN 18182", .art = Art::klammernDin18182, .platte = Platte::GKB, .beta = 90},
             {.name = "Klammern in Gipsfaser", .art = Art::klammern, .platte = Platte::gipsfaser},
         }) {
        for (const Seite n : beideSeiten) {
            Wand w;
            for (const Seite m : beideSeiten) {
                w.VMArt[m] = static_cast<int>(fall.art);
                w.Material[m] = static_cast<int>(fall.platte);
                w.d[m] = fall.d;
                w.Vorgebohrt[m] = fall.vorgebohrt;
            }
            w.rhok = fall.rhok;
            w.beta = fall.beta;
            verbindungsmittelabstaende(w, n);
            const auto vielfaches = [&](const Paar<Feld>& a) { return wert(a[n]) / fall.d; };
            tafel.zeile(fall.name,
                        {vielfaches(w.a1), vielfaches(w.a2), vielfaches(w.a3), vielfaches(w.a4),
                         vielfaches(w.aRand), vielfaches(w.aPlatteUnbelastet), vielfaches(w.aPlatte)});
        }
    }
}

void verbindungsmittel(Tafel& tafel) {
    tafel.titel("Nägel: d ln dk");
    for (const Nageltyp& nagel : VMTypen()) tafel.zeile(nagel.name, {nagel.d, nagel.ln, nagel.dk});
    tafel.titel("Übliche Verbindungsmittel: d dk, Längen");
    for (std::size_t i = 0; i < VMKatalog().size();) {
        const VMKatalogzeile& erste = VMKatalog()[i];
        std::vector<double> werte{static_cast<double>(erste.d), static_cast<double>(erste.dk)};
        for (; i < VMKatalog().size() && VMKatalog()[i].d == erste.d && VMKatalog()[i].dk == erste.dk; ++i)
            werte.push_back(static_cast<double>(VMKatalog()[i].ln));
        tafel.zeile("", werte);
    }
    tafel.titel("Zugfestigkeit, die eine Art mitbringt");
    for (int art = 1; art <= static_cast<int>(Art::klammernDin18182); ++art)
        tafel.zeile(eintrag(VMArten(), art), {fukDerArt(static_cast<Art>(art))});
}

TEST(Golden, TheTablesOfTheStandardAreTheOnesThatWereRead) {
    Tafel tafel;
    for (const auto teil : {holz, beplankung, kmodwerte, anker, ausziehwerte, abstaende, verbindungsmittel})
        teil(tafel);
    erwarteGolden("kennwerte.txt", tafel.text());
}

}  // namespace
}  // namespace rippenscheibe
