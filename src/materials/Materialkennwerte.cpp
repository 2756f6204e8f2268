#include "materials/Materialkennwerte.h"

#include <array>
#include <span>

#include "materials/Teilsicherheitsbeiwerte.h"

namespace rippenscheibe {

namespace {

struct Holzklasse {
    Tabellenwert rhok;  // kg/m³, all others N/mm²
    Tabellenwert fmk;
    Tabellenwert fc0k;
    Tabellenwert ft0k;
    Tabellenwert fc90k;
    Tabellenwert E0mean;
    Tabellenwert Gmean;
    Tabellenwert E90mean;
};

constexpr int C16 = 1;
constexpr int letztesNadelholz = 5;
// GL28h takes its G05 from 780 N/mm² and leaves GmeanHolz as it was; no routine reads GmeanHolz.
constexpr int GL28h = 8;

// clang-format off
// Strength classes C16 to C40 and GL24h to GL36c (DIN 1052 (2008), tables F.5 and F.9), in the order of
// the catalogue.
constexpr std::array<Holzklasse, 13> holzklassen{{
    // rhok  fmk   fc0k  ft0k  fc90k  E0mean   Gmean  E90mean
    {  310,  16,   17,   10,   2.2,    7000,   500,   270},
    {  350,  24,   21,   14,   2.5,   11000,   690,   370},
    {  380,  30,   23,   18,   2.7,   12000,   750,   400},
    {  400,  35,   25,   21,   2.8,   13000,   810,   430},
    {  420,  40,   26,   24,   2.9,   14000,   880,   470},
    {  380,  24,   24,   16.5, 2.7,   11600,   720,   390},
    {  350,  24,   21,   14,   2.4,   11600,   590,   320},
    {  410,  28,   26.5, 19.5, 3.0,   12600,   780,   420},
    {  380,  28,   24,   16.5, 2.7,   12600,   720,   390},
    {  430,  32,   29,   22.5, 3.3,   13700,   850,   460},
    {  410,  32,   26.5, 19.5, 3.0,   13700,   780,   420},
    {  450,  36,   31,   26,   3.6,   14700,   910,   490},
    {  430,  36,   29,   22.5, 3.3,   14700,   850,   460},
}};
// clang-format on
[[maybe_unused]] const Tabellenangabe tabelleHolz(holzklassen, "Festigkeitsklassen");

// Thickness bands reach from over `ueber` up to and including `bis`, mm; gypsum boards are listed by
// exact thickness.
struct Festigkeiten {
    Tabellenwert fvk;  // N/mm²
    Tabellenwert fck;
    Tabellenwert fmk;
};
constexpr Festigkeiten keine{0, 0, 0};

struct Dickenband {
    double ueber;
    double bis;
    Festigkeiten festigkeiten;
};

struct Spanplattenband {
    double ueber;
    double bis;
    Festigkeiten festigkeiten;
    Tabellenwert rhok;   // kg/m³
    Tabellenwert Gmean;  // N/mm²
};

struct Plattendickenwert {
    double t;  // mm, exact
    Festigkeiten festigkeiten;
};

// clang-format off
constexpr std::array<Dickenband, 3> OSB3{{
    { 6, 10, {6.8, 15.9,  9.0}},
    {10, 18, {6.8, 15.4,  8.2}},
    {18, 25, {6.8, 14.8,  7.4}},
}};
constexpr std::array<Dickenband, 3> OSB4{{
    { 6, 10, {6.9, 18.1, 13.0}},
    {10, 18, {6.9, 17.6, 12.2}},
    {18, 25, {6.9, 17.0, 11.4}},
}};

constexpr std::array<Plattendickenwert, 3> GKB{{   // GKB and GKBI
    {12.5, {1, 3.5, 2.0}},
    {15,   {1, 3.5, 1.8}},
    {18,   {1, 3.5, 1.5}},
}};
constexpr std::array<Plattendickenwert, 3> GKF{{   // GKF and GKFI
    {12.5, {1, 5.5, 2.0}},
    {15,   {1, 5.5, 1.8}},
    {18,   {1, 5.5, 1.5}},
}};
constexpr std::array<Plattendickenwert, 4> gipsfaser{{
    {10,   {3.7, 8.5, 4.6}},
    {12.5, {3.6, 8.5, 4.3}},
    {15,   {3.5, 8.5, 4.0}},
    {18,   {3.4, 8.5, 3.6}},
}};

// Chipboard (DIN 1052 (2008), table F.14 and following).
constexpr std::array<Spanplattenband, 6> P4{{
    { 6, 13, {6.6, 12,   14.2}, 650, 860},
    {13, 20, {6.1, 11.1, 12.5}, 600, 830},
    {20, 25, {5.5,  9.6, 10.8}, 550, 770},
    {25, 32, {4.8,  9,    9.2}, 550, 680},
    {32, 40, {4.4,  7.6,  7.5}, 500, 600},
    {40, 50, {4.2,  6.1,  5.8}, 500, 550},
}};
constexpr std::array<Spanplattenband, 6> P5{{
    { 6, 13, {7.0, 12.7, 15  }, 650, 960},
    {13, 20, {6.5, 11.8, 13.3}, 600, 930},
    {20, 25, {5.9, 10.3, 11.7}, 550, 860},
    {25, 32, {5.2,  9.8, 10  }, 550, 750},
    {32, 40, {4.8,  8.5,  8.3}, 500, 690},
    {40, 50, {4.4,  7.8,  7.5}, 500, 660},
}};
constexpr std::array<Spanplattenband, 6> P6{{
    { 6, 13, {7.8, 14.1, 16.5}, 650, 1200},
    {13, 20, {7.3, 13.3, 15  }, 600, 1150},
    {20, 25, {6.8, 12.8, 13.3}, 550, 1050},
    {25, 32, {6.5, 12.2, 12.5}, 550,  950},
    {32, 40, {6.0, 11.9, 11.7}, 500,  900},
    {40, 50, {5.5, 10.4, 10  }, 500,  880},
}};
constexpr std::array<Spanplattenband, 6> P7{{
    { 6, 13, { 8.6, 15.5, 18.3}, 650, 1250},
    {13, 20, { 8.1, 14.7, 16.7}, 600, 1200},
    {20, 25, { 7.9, 13.7, 15.4}, 550, 1150},
    {25, 32, { 7.4, 13.5, 14.2}, 550, 1100},
    {32, 40, {13.2,  7.2, 13.3}, 500, 1050},  // fvk over fck: see `spanplatte`
    {40, 50, { 7.0, 13,   12.5}, 500, 1000},
}};
// clang-format on

constexpr std::string_view tabelleOsb = "Kennwerte der OSB-Platten";
constexpr std::string_view tabelleGips = "Kennwerte der Gipsplatten";
constexpr std::string_view tabelleSpan = "Kennwerte der Spanplatten";
[[maybe_unused]] const std::array<Tabellenangabe, 9> tabellen{{{OSB3, tabelleOsb},
                                                               {OSB4, tabelleOsb},
                                                               {GKB, tabelleGips},
                                                               {GKF, tabelleGips},
                                                               {gipsfaser, "Kennwerte der Gipsfaserplatten"},
                                                               {P4, tabelleSpan},
                                                               {P5, tabelleSpan},
                                                               {P6, tabelleSpan},
                                                               {P7, tabelleSpan}}};

template <class Band>
const Band* bandZu(std::span<const Band> baender, Zahl t) {
    for (const auto& band : baender)
        if (t > band.ueber && t <= band.bis) return &band;
    return nullptr;
}

void setze(Wand& w, Seite n, const Festigkeiten& f) {
    w.fvk[n] = f.fvk;
    w.fck[n] = f.fck;
    w.fmkBeplankung[n] = f.fmk;
}

void osb(Wand& w, Seite n, std::span<const Dickenband> baender, double Gmean) {
    const bool isOSB4 = plattenmaterial(w, n) == Platte::OSB4;
    const Dickenband* band = bandZu(baender, w.t[n]);
    if (band != nullptr) {
        setze(w, n, band->festigkeiten);
    } else if (n == Seite::eins && isOSB4 && w.t[n] >= 6) {
        // Meant: side 1 of OSB/4 keeps the bending strength of the last run for 6 mm and above 25 mm.
        soVorgegeben(
            "OSB/4 behält auf Seite 1 bei 6 mm und über 25 mm die Biegefestigkeit des letzten Laufs");
        w.fvk[n] = 0;
        w.fck[n] = 0;
    } else {
        setze(w, n, keine);
    }
    // Meant: side 1 has its density for every thickness, side 2 only inside a band.
    if (band == nullptr)
        soVorgegeben("OSB hat auf Seite 1 ihre Rohdichte bei jeder Dicke, auf Seite 2 nur im Dickenband");
    w.rhokBeplankung[n] = n == Seite::eins || band != nullptr ? 550 : 0;
    w.Wichte[n] = 6;
    w.Gmean[n] = Gmean;
    w.G05[n] = 0.85 * w.Gmean[n];
}

// Thicknesses are compared for exact equality; any other yields zero strengths.
void gipsplatte(Wand& w, Seite n, std::span<const Plattendickenwert> dicken, double rhok, double Gmean) {
    setze(w, n, keine);
    for (const auto& dicke : dicken)
        if (w.t[n] == dicke.t) setze(w, n, dicke.festigkeiten);
    w.rhokBeplankung[n] = rhok;
    w.Wichte[n] = 9;
    w.Gmean[n] = Gmean;
    w.G05[n] = 0.9 * w.Gmean[n];
}

void gipskarton(Wand& w, Seite n, std::span<const Plattendickenwert> dicken, double rhok) {
    gipsplatte(w, n, dicken, rhok, 700);
    // Meant: the shear strength of 12.5 mm GKB is 2 on side 2, against 1 on side 1.
    if (n == Seite::zwei && plattenmaterial(w, n) == Platte::GKB && w.t[n] == 12.5) {
        soVorgegeben("GKB von 12,5 mm hat auf Seite 2 die Schubfestigkeit 2, auf Seite 1 die 1");
        w.fvk[n] = 2;
    }
}

void spanplatte(Wand& w, Seite n, std::span<const Spanplattenband> baender) {
    const bool isP4 = plattenmaterial(w, n) == Platte::P4;
    const bool isP7 = plattenmaterial(w, n) == Platte::P7;
    const Spanplattenband* band = bandZu(baender, w.t[n]);
    // Meant: the top but one band of P7 holds a shear strength above the compressive one.
    if (isP7 && w.t[n] > 32 && w.t[n] <= 40)
        soVorgegeben("P7 über 32 bis 40 mm hat die Schubfestigkeit 13,2 und die Druckfestigkeit 7,2");
    setze(w, n, band != nullptr ? band->festigkeiten : keine);
    w.rhokBeplankung[n] = band != nullptr ? band->rhok : 0;
    w.Gmean[n] = band != nullptr ? band->Gmean : 10;
    if (n == Seite::eins) {
        // Meant: on side 1 only, 700550 N/mm² in the top band of P4, 1000 N/mm² outside all bands of P7.
        if (isP4 && band == &baender.back()) {
            soVorgegeben("P4 im obersten Dickenband hat auf Seite 1 den Schubmodul 700550");
            w.Gmean[n] = 700550;
        }
        if (isP7 && band == nullptr) {
            soVorgegeben("P7 außerhalb der Dickenbänder hat auf Seite 1 den Schubmodul 1000");
            w.Gmean[n] = 1000;
        }
    }
    w.Wichte[n] = 6;
    w.G05[n] = 0.8 * w.Gmean[n];
}

void spanplatteMitZulassung(Wand& w, Seite n) {
    // Meant: the first band reaches from 10 to 18 mm on side 1, but holds only 10 mm itself on side 2.
    const double ersteGrenze = n == Seite::eins ? 18 : 10;
    const Zahl t = w.t[n];
    if (t > 10 && t <= 18)
        soVorgegeben("das erste Dickenband reicht auf Seite 1 bis 18 mm, auf Seite 2 hält es nur 10 mm");
    setze(w, n, keine);
    if (t >= 10 && t <= ersteGrenze) setze(w, n, {8, 14, 14});
    if (t > 18 && t <= 25) setze(w, n, {7, 12.5, 12.5});
    if (t > 25 && t <= 30) setze(w, n, {7, 12.5, 12.5});
    w.rhokBeplankung[n] = 600;
    w.Wichte[n] = 6;
    w.Gmean[n] = 1000;
    w.G05[n] = 0.9 * w.Gmean[n];
}

// A missing row fails each read, and its target stays. The thickness has no influence.
void eigenesMaterial(Wand& w, Seite n) {
    const auto spalte = [&](int k) { return w.eigeneMaterialien(k, w.EigenesMaterial[n]); };
    w.fvk[n] = spalte(2);
    w.fck[n] = spalte(3);
    w.fmkBeplankung[n] = spalte(5);
    w.Gmean[n] = spalte(9);
    w.rhokBeplankung[n] = spalte(10);
    w.Wichte[n] = spalte(11);
    w.G05[n] = 0.8 * w.Gmean[n];
}

}  // namespace

void holzwerte(Wand& w) {
    const int klasse = w.Holzart.value();
    if (klasse >= 1 && klasse <= static_cast<int>(holzklassen.size())) {
        const auto& holz = holzklassen[static_cast<std::size_t>(klasse) - 1];
        const bool nadelholz = klasse <= letztesNadelholz;
        const Zahl anteil05 = nadelholz ? Zahl(2) / 3 : Zahl(5) / 6;  // 5-% fractile over mean of the moduli
        w.rhok = holz.rhok;
        w.fmk = holz.fmk;
        w.fc0k = holz.fc0k;
        w.ft0k = holz.ft0k;
        w.fc90k = holz.fc90k;
        // Meant: 7000 N/mm² of C16.
        if (klasse == C16) soVorgegeben("C16 hat den Elastizitätsmodul 7000 N/mm²");
        w.E0mean = holz.E0mean;
        w.E005 = anteil05 * w.E0mean;
        if (klasse != GL28h) w.GmeanHolz = holz.Gmean;
        w.G05Holz = anteil05 * Zahl(holz.Gmean);
        w.E90mean = holz.E90mean;
        w.E9005 = anteil05 * w.E90mean;
        w.betac = nadelholz ? 0.2 : 0.1;
    }
    w.fmd = w.kmodRippen * w.fmk / gammaM;
    w.fc0d = w.kmodRippen * w.fc0k / gammaM;
    w.fc90d = w.kmodRippen * w.fc90k / gammaM;
    w.ft0d = w.kmodRippen * w.ft0k / gammaM;
}

void beplankungswerte(Wand& w, Seite n) {
    switch (plattenmaterial(w, n)) {
        case Platte::OSB3:
            osb(w, n, OSB3, 1080);
            break;
        case Platte::OSB4:
            osb(w, n, OSB4, 1090);
            break;
        case Platte::GKB:
        case Platte::GKBI:
            gipskarton(w, n, GKB, 680);
            break;
        case Platte::GKF:
        case Platte::GKFI:
            gipskarton(w, n, GKF, 800);
            break;
        case Platte::gipsfaser:
            gipsplatte(w, n, gipsfaser, 680, 1600);
            break;
        case Platte::P4:
            spanplatte(w, n, P4);
            break;
        case Platte::P5:
            spanplatte(w, n, P5);
            break;
        case Platte::P6:
            spanplatte(w, n, P6);
            break;
        case Platte::P7:
            spanplatte(w, n, P7);
            break;
        case Platte::spanplatteZulassung:
            spanplatteMitZulassung(w, n);
            break;
        case Platte::frei:
            eigenesMaterial(w, n);
            break;
        default:
            return;  // no such material: every field stays
    }
    w.fvd[n] = w.kmod[n] * w.fvk[n] / gammaM;
    w.fcd[n] = w.kmod[n] * w.fck[n] / gammaM;
    w.fmdBeplankung[n] = w.kmod[n] * w.fmkBeplankung[n] / gammaM;
}

}  // namespace rippenscheibe
