#include "model/VMReihen.h"

#include <algorithm>
#include <cmath>

namespace rippenscheibe {

namespace {

// Joints closer than this to the end of the wall are rounding errors of its length, mm.
constexpr double kleinsterRest = 1;
// More rows than any wall has: spacings that are no spacings stop here.
constexpr double hoechstens = 10000;

// The multiples of the panel width inside the wall.
void fuerJedenStoss(const Wand& w, Seite n, const std::function<void(double)>& besucher) {
    const double l = 1000 * w.Wandlaenge.value();
    const double breite = w.Plattenbreite[n].value();
    if (!(breite > 0) || l / breite > hoechstens) return;
    for (int k = 1; k * breite < l - kleinsterRest; ++k) besucher(k * breite);
}

bool hatStoss(const Wand& w, Seite n, double achse) {
    const double breite = w.Plattenbreite[n].value();
    if (!(breite > 0)) return false;
    const double naechster = std::nearbyint(achse / breite) * breite;
    const double l = 1000 * w.Wandlaenge.value();
    return naechster > 0 && naechster < l - kleinsterRest &&
           std::fabs(naechster - achse) < w.bInnenrippe.value() / 2;
}

}  // namespace

double VMReihe::stueck() const { return av > 0 ? (std::floor(kante / av) + 1) * (zweireihig ? 2 : 1) : 0; }

void fuerJedeInnenrippe(const Eingaben& e, const std::function<void(double)>& besucher) {
    const double l = 1000 * e.Wandlaenge.value();
    const double ar = e.Rippenabstand.value();
    if (!(ar > 0) || l / ar > hoechstens) return;
    for (int i = 1; i * ar < l; ++i) besucher(i * ar);
}

void fuerJedeVMReihe(const Wand& w, Seite n, const Reihenregel& regel,
                     const std::function<void(const VMReihe&)>& besucher) {
    const double l = 1000 * w.Wandlaenge.value();
    const double h = 1000 * w.Wandhoehe.value();
    const double rand = w.bRandrippe.value() / 2;
    const double gurt = w.bKopfFussrippe.value() / 2;
    const double innen = std::min(rand, gurt);
    const double av = w.av[n].value();
    const auto waagerecht = [&](double y) { besucher({innen, y, l - innen, y, l, av, w.Zweireihig[n]}); };
    const auto senkrecht = [&](double x, double abstand) {
        besucher({x, gurt, x, h - gurt, h, abstand, w.Zweireihig[n]});
    };
    waagerecht(h - gurt);
    waagerecht(gurt);
    if (w.Gestossen[n]) {
        waagerecht(h / 2 - gurt / 2);
        waagerecht(h / 2 + gurt / 2);
    }
    senkrecht(rand, av);
    senkrecht(l - rand, av);
    const double halbeStossrippe = w.bInnenrippe.value() / 4;
    fuerJedenStoss(w, n, [&](double x) {
        senkrecht(x - halbeStossrippe, av);
        senkrecht(x + halbeStossrippe, av);
    });
    fuerJedeInnenrippe(w, [&](double achse) {
        if (!hatStoss(w, n, achse)) senkrecht(achse, regel.zwischenrippen * av);
    });
}

std::vector<VMReihe> vmReihen(const Wand& w, Seite n, const Reihenregel& regel) {
    std::vector<VMReihe> reihen;
    fuerJedeVMReihe(w, n, regel, [&](const VMReihe& reihe) { reihen.push_back(reihe); });
    return reihen;
}

}  // namespace rippenscheibe
