#include "design/Verankerung.h"

#include <array>

#include "design/Rippen.h"

namespace rippenscheibe {

namespace {

constexpr double gammaM = 1.3;
// Takes the permanent factor 1.35 out and the one for stabilising actions (0.9) or destabilising ones
// (1.5) in.
constexpr double stabilisierend = 0.9 / 1.35;
constexpr double destabilisierend = 1.5 / 1.35;

// Only the permanent compression directly above the tension edge stabilises.
void zugkraftVereinfacht(Wand& w) {
    const Zahl kante = w.Fvd >= 0 ? Zahl(1) : Zahl(w.AnzahlRippen);
    w.FStab = stabilisierend * w.FcdStabilitaet(kante);
    if (w.Lastfall != 1) w.FEdge = destabilisierend * w.FEdge;
    const Zahl kraft = w.FEdge - w.FStab;
    w.Ftdst = kraft > 0 ? kraft : Zahl(0);
}

// Running sums of the moments about the far support, kNm, up to rib `letzte`.
void momente(Wand& w, int erste, Zahl letzte, const auto& hebel) {
    for (int i = erste; letzte >= i && i < static_cast<int>(Rippenfeld::laenge); ++i) {
        w.MStab(i) = w.MStab(i - 1) + w.FcdStabilitaet(i) * hebel(i);
        w.MDst(i) = w.MDst(i - 1) + w.Ftd(i) * hebel(i);
    }
    w.MStabSumme = stabilisierend * w.MStab(letzte);
    const Zahl destabilisierendesMoment = w.MDst(letzte);
    w.MDstSumme =
        w.gd == 0 && w.Lastfall == 1 ? destabilisierendesMoment : destabilisierend * destabilisierendesMoment;
}

// Sum of the moments about the support at the compressed edge.
void zugkraftGenau(Wand& w) {
    for (std::size_t i = 0; i < Rippenfeld::laenge; ++i) {
        w.MStab(i) = 0;
        w.MDst(i) = 0;
    }
    const Zahl n = w.AnzahlRippen;
    const Zahl a = w.Rippenabstand / 1000;
    const Zahl rest = w.RippenabstandRest / 1000;
    const bool kurzesFeld = rest != 0;
    if (w.Fvd >= 0) {
        momente(w, 1, n - 1, [&](int i) { return (n - 1 - i) * a + (kurzesFeld ? rest : a); });
    } else {
        momente(w, 2, n, [&](int i) -> Zahl {
            if (!kurzesFeld) return (i - 1) * a;
            return n == i ? Zahl(w.Wandlaenge) : (w.Wandlaenge - rest) - (n - 1 - i) * a;
        });
    }
    if (w.Wandlaenge != 0) {
        w.FStab = w.MStabSumme / w.Wandlaenge;
        w.FDst = w.MDstSumme / w.Wandlaenge;
        w.Ftdst = Max((w.MDstSumme - w.MStabSumme) / w.Wandlaenge, 0);
    }
}

enum class Nagelzahl { wieEingegeben, sechzehnOderAcht };

struct Ankerzeile {
    double deckel;  // kN, the cap of the anchor itself
    double beton;   // factor of Fbd
    Nagelzahl naegel;
};

constexpr int ersterLochplattenanker = 6;  // types 6 and 7 have values of their own
constexpr int letzterLochplattenanker = 7;
constexpr int freierAnker = 13;

// clang-format off
// Catalogue anchors 1 to 12 by type; 6 and 7 are limited by their nails and the load duration.
constexpr std::array<Ankerzeile, 12> anker{{
    {17,   1.19, Nagelzahl::wieEingegeben},
    {25.5, 1.31, Nagelzahl::wieEingegeben},
    {25.5, 1.22, Nagelzahl::wieEingegeben},
    {25.5, 1.78, Nagelzahl::wieEingegeben},
    {31.9, 1.47, Nagelzahl::wieEingegeben},
    {0,    1,    Nagelzahl::wieEingegeben},
    {0,    1,    Nagelzahl::wieEingegeben},
    {19.2, 1.4,  Nagelzahl::wieEingegeben},
    {12.8, 1.55, Nagelzahl::wieEingegeben},
    {12.8, 1.28, Nagelzahl::wieEingegeben},
    {12.8, 1.55, Nagelzahl::sechzehnOderAcht},
    {12.8, 1.28, Nagelzahl::sechzehnOderAcht},
}};

struct Kammnagelzeile {
    double f;               // kN per nail
    double fLochplatte;     // kN per nail, types 6 and 7
    double deckelLochplatte;  // kN, types 6 and 7
};

// Ring-shank nails 4.0 x 40, 50, 60 and 75.
constexpr std::array<Kammnagelzeile, 4> kammnaegel{{
    {1.83, 1.84, 18.52},
    {2.22, 2.22, 24.7},
    {2.36, 2.36, 30.87},
    {2.5,  2.36, 30.87},
}};

// Timber factor by load duration.
constexpr std::array<double, 5> kmodHolz{0.6, 0.7, 0.8, 0.9, 1.1};
// clang-format on

bool katalogtyp(int typ) { return typ >= 1 && typ <= static_cast<int>(anker.size()); }
bool lochplatte(int typ) { return typ >= ersterLochplattenanker && typ <= letzterLochplattenanker; }

// Element `index` (from 1) of a table, a row of zeros outside of it.
template <class Zeile, std::size_t N>
Zeile zeileOderNull(const std::array<Zeile, N>& tabelle, int index) {
    return index >= 1 && index <= static_cast<int>(N) ? tabelle[static_cast<std::size_t>(index) - 1]
                                                      : Zeile{};
}

}  // namespace

void ankerzugkraft(Wand& w) {
    if (w.LagesicherungVerfahren == 2) {
        zugkraftGenau(w);
    } else {
        zugkraftVereinfacht(w);
    }
}

void ankertragfaehigkeit(Wand& w) {
    const int typ = w.Ankertyp.value();
    if (!katalogtyp(typ)) return;
    const Ankerzeile& zeile = anker[static_cast<std::size_t>(typ) - 1];
    const Zahl k = zeileOderNull(kmodHolz, w.KLED.value());
    const Kammnagelzeile nagel = zeileOderNull(kammnaegel, w.Kammnagel.value());
    if (lochplatte(typ)) {
        w.RdAnker = Min((w.AnzahlAnkerNaegel - 3.5) * nagel.fLochplatte * k / gammaM,
                        k * nagel.deckelLochplatte / gammaM);
        return;
    }
    const Zahl naegel = zeile.naegel == Nagelzahl::wieEingegeben ? Zahl(w.AnzahlAnkerNaegel)
                        : w.Teilausnagelung == 1                 ? Zahl(16)
                                                                 : Zahl(8);
    w.RdAnker = Min(nagel.f * naegel * k / gammaM, zeile.deckel / gammaM);
}

void nachweisVerankerung(Wand& w) {
    ankertragfaehigkeit(w);
    const int typ = w.Ankertyp.value();
    if (katalogtyp(typ)) w.Fbd = anker[static_cast<std::size_t>(typ) - 1].beton * w.Ftdst;
    if (typ == freierAnker) w.Fbd = w.Ftdst;
}

}  // namespace rippenscheibe
