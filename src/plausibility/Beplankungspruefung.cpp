#include <algorithm>

#include "plausibility/MessageBoxen.h"
#include "plausibility/Pruefzeilen.h"

namespace rippenscheibe {

namespace {

// clang-format off
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

// Approval Z-9.1-187: the sheathing opposite a gypsum fibre board, mm. It carries no prefix.
constexpr double mindestdickeGegenueberGipsfaser = 12.0;
constexpr std::string_view gegenseiteZuDuenn =
    "Achtung! Laut bauaufsichtlicher Zulassung Nr.Z-9.1-187 beträgt die Mindestdicke der zweiten Beplankung 12mm falls die erste Seite mit Fermacell beplankt ist!";
// clang-format on

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

// Meant: wherever the gypsum fibre board is, the texts name sheathing 2, and only a thin sheathing 1 is
// refused here.
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

}  // namespace

void pruefePlattendicke(Wand& w, Seite n) {
    Seitenpruefung pruefung(w.Hinweise, w, n, Eingabeort::Beplankung);
    pruefung.plattendicken(festeDicken);
    pruefung.grenzen(dicken, w.t[n]);
}

void pruefeGegenseiteDerGipsfaserplatte(Wand& w) {
    const auto zuDuennGegenueber = [&w](Seite n) {
        const Seite m = gegenueber(n);
        return istGipsfaser(plattenmaterial(w, n)) && !istGipsfaser(plattenmaterial(w, m)) &&
               w.t[m] < mindestdickeGegenueberGipsfaser;
    };
    if (zuDuennGegenueber(Seite::eins) || zuDuennGegenueber(Seite::zwei))
        w.Hinweise.push_back({std::string(gegenseiteZuDuenn), std::nullopt, Eingabeort::Beplankung});
}

std::vector<double> festePlattendicken(const Wand& w, Seite n) {
    std::vector<double> gefunden;
    for (const Plattendicken& zeile : festeDicken)
        if (zeile.Material(plattenmaterial(w, n))) gefunden.assign(zeile.dicken.begin(), zeile.dicken.end());
    gefunden.erase(std::unique(gefunden.begin(), gefunden.end()), gefunden.end());
    return gefunden;
}

std::optional<std::string> beplankungPruefung(const Wand& w) {
    for (const Ablehnung& zeile : ablehnungen)
        if (zeile.liegtVor(w)) return std::string(zeile.text);
    return std::nullopt;
}

}  // namespace rippenscheibe
