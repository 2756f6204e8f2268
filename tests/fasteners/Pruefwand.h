#pragma once

#include "fasteners/Grundlagen.h"
#include "fasteners/Verteiler.h"

namespace rippenscheibe {

constexpr auto einfach = Verfahren::vereinfacht;
constexpr auto genau = Verfahren::genau;
constexpr Seite s1 = Seite::eins;
constexpr Seite s2 = Seite::zwei;

// One fastener in its sheathing, the same on both sides; lengths in mm, fuk in N/mm².
struct Mittel {
    Art art = Art::naegel;
    int material = 1;
    double t = 15;
    double d = 2.7;
    double ln = 50;
    double fuk = 600;
    double dk = 6;
    double lg = 25;
    bool vorgebohrt = false;
};

inline void setze(Wand& w, Seite n, const Mittel& m) {
    w.VMArt[n] = static_cast<int>(m.art);
    w.Material[n] = m.material;
    w.d[n] = m.d;
    w.ln[n] = m.ln;
    w.fuk[n] = m.fuk;
    w.t[n] = m.t;
    w.dk[n] = m.dk;
    w.lg[n] = m.lg;
    w.Vorgebohrt[n] = m.vorgebohrt;
    if (n == Seite::eins) w.Plattendicke1 = m.t;
    if (n == Seite::zwei) w.Plattendicke2 = m.t;
}

// A wall with this fastener on both sides in timber C24 and kmod = 0.9. The own materials differ in column 7
// alone: row 1 has 1, and so on to row 5.
inline Wand wand(const Mittel& m, Verfahren verfahren) {
    Wand w;
    w.rhok = 350;
    w.GenauesVerfahren = verfahren == Verfahren::vereinfacht ? 1 : 2;
    for (const Seite n : beideSeiten) {
        setze(w, n, m);
        w.kmodVM[n] = 0.9;
        w.rhokBeplankung[n] = 600;
        w.EigenesMaterial[n] = 5;
    }
    for (int formel = 1; formel <= 5; ++formel) {
        EigeneMaterialien::Zeile zeile;
        zeile.zellen[6].wert = 6;
        zeile.zellen[7].wert = formel;
        zeile.zellen[20].wert = 33.3;
        w.eigeneMaterialien.zeilen.push_back(zeile);
    }
    return w;
}

}  // namespace rippenscheibe
