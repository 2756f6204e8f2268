#include "materials/kmod.h"

#include <array>

namespace rippenscheibe {

namespace {

enum class Nutzungsklasse { eins, zwei };

struct KmodZeile {
    Nutzungsklasse nkl;
    int KLED;
    Tabellenwert OSB;
    Tabellenwert gips;
    Tabellenwert span;
    int eigeneSpalte;  // column of the own-material table
};

// kmod of the sheathing by service class and load duration (DIN 1052 (2008), table F.1).
// clang-format off
constexpr std::array<KmodZeile, 10> kmodTabelle{{
    // class             KLED  OSB    gypsum  chipb.  own
    {Nutzungsklasse::eins, 1,  0.4F,  0.2F,   0.3F,   12},
    {Nutzungsklasse::eins, 2,  0.5F,  0.4F,   0.45F,  13},
    {Nutzungsklasse::eins, 3,  0.7F,  0.6F,   0.65F,  14},
    {Nutzungsklasse::eins, 4,  0.9F,  0.8F,   0.85F,  15},
    {Nutzungsklasse::eins, 5,  1.1F,  1.1F,   1.1F,   21},
    {Nutzungsklasse::zwei, 1,  0.3F,  0.15F,  0.2F,   16},
    {Nutzungsklasse::zwei, 2,  0.4F,  0.3F,   0.3F,   17},
    {Nutzungsklasse::zwei, 3,  0.55F, 0.45F,  0.45F,  18},
    {Nutzungsklasse::zwei, 4,  0.7F,  0.6F,   0.6F,   19},
    {Nutzungsklasse::zwei, 5,  0.9F,  0.8F,   0.8F,   22},
}};
// clang-format on

// Solid and glued laminated timber, the same in both classes.
constexpr std::array<Tabellenwert, 5> kmodVollholz{0.6, 0.7, 0.8, 0.9, 1.1};

constexpr std::string_view name = "kmod";
[[maybe_unused]] const std::array<Tabellenangabe, 2> tabellen{{{kmodTabelle, name}, {kmodVollholz, name}}};

}  // namespace

Zahl kmodHolz(int KLED) {
    const bool vorhanden = KLED >= 1 && KLED <= static_cast<int>(kmodVollholz.size());
    return vorhanden ? Zahl(kmodVollholz[static_cast<std::size_t>(KLED) - 1]) : Zahl(0);
}

void modifikationsbeiwerte(Wand& w, Seite n) {
    // Every value but 1 takes the rows of class 2: there is no third class. NKLRippen is not consulted.
    const auto nkl = w.NKLBeplankung[n] == 1 ? Nutzungsklasse::eins : Nutzungsklasse::zwei;
    for (const auto& zeile : kmodTabelle) {
        if (zeile.nkl != nkl || w.KLED != zeile.KLED) continue;
        w.kmodRippen = kmodHolz(w.KLED.value());
        w.kmodOSB[n] = zeile.OSB;
        w.kmodGips[n] = zeile.gips;
        w.kmodSpan[n] = zeile.span;
        // Read in every run, also when another material is chosen; a missing row leaves the old factor.
        w.kmodEigen[n] = w.eigeneMaterialien(zeile.eigeneSpalte, w.EigenesMaterial[n]);
    }

    const Platte p = plattenmaterial(w, n);
    if (istOsb(p)) w.kmod[n] = w.kmodOSB[n];
    if (istGips(p)) w.kmod[n] = w.kmodGips[n];
    if (istSpanplatteMitZulassung(p)) w.kmod[n] = w.kmodSpan[n];
    if (istEigenesMaterial(p)) w.kmod[n] = w.kmodEigen[n];

    w.kmodVM[n] = sqrt(w.kmodRippen * w.kmod[n]);
}

}  // namespace rippenscheibe
