#include <algorithm>

#include "ui/drawings/Skizzen.h"

// The sketch of the overhang of the bottom rib and of the contact area that counts.

namespace rippenscheibe {

namespace {

constexpr double ueberstand = 30.0;  // mm, counted on each side that runs on

enum class Fussrippe { buendig, durchgehend };

// One of the two cases: where rib, bottom rib and ground stand on the drawing.
struct Fusspunkt {
    Fussrippe art;
    double links, rechts;   // of the edge rib
    double oben, ok, fuss;  // its upper end, the top of the bottom rib, the ground
    double ue;              // the overhang as drawn
    bool durch() const { return art == Fussrippe::durchgehend; }
    double fussLinks() const { return durch() ? links - 1.9 * ue : links; }
    double fussRechts() const { return rechts + 2.0 * ue; }
    double druckLinks() const { return durch() ? links - ue : links; }
    double druckRechts() const { return rechts + ue; }
};

Fusspunkt fusspunkt(const Zeichner& z, const QRectF& r, const Wandgeometrie& g, Fussrippe art) {
    const double t = z.t();
    const double bild = r.height() - 9.6 * t;
    const double f =
        std::min(r.width() / (g.bRandrippe + 5.0 * ueberstand), bild / (2.2 * g.bKopfFussrippe + 60.0));
    const double links = r.center().x() - f * g.bRandrippe / 2.0;
    const double fuss = r.top() + 2.0 * t + bild;
    return {art,  links,         links + f * g.bRandrippe, r.top() + 4.2 * t, fuss - f * g.bKopfFussrippe,
            fuss, f * ueberstand};
}

void holzUndBoden(Zeichner& z, const Fusspunkt& p) {
    const double t = z.t();
    z.boden(p.fussLinks() - t, p.fussRechts() + 0.5 * t, p.fuss);
    z.holz({p.fussLinks(), p.ok, p.fussRechts() - p.fussLinks(), p.fuss - p.ok});
    z.holz({p.links, p.oben, p.rechts - p.links, p.ok - p.oben});
    z.bruchlinie({p.links - 0.3 * t, p.oben}, {p.rechts + 0.3 * t, p.oben}, z.stil().tinte);
    z.bruchlinie({p.fussRechts(), p.fuss}, {p.fussRechts(), p.ok}, z.stil().tinte);
    if (p.durch()) z.bruchlinie({p.fussLinks(), p.fuss}, {p.fussLinks(), p.ok}, z.stil().tinte);
}

// The edge rib presses on the bottom rib; below it the pressure spreads by ü where the bottom rib runs on.
void druck(Zeichner& z, const Fusspunkt& p) {
    const double t = z.t();
    QColor farbe = z.stil().last;
    farbe.setAlphaF(0.22F);
    z.fuelle(
        QPolygonF{{p.links, p.ok}, {p.rechts, p.ok}, {p.druckRechts(), p.fuss}, {p.druckLinks(), p.fuss}},
        farbe);
    const double mitte = (p.links + p.rechts) / 2.0;
    z.pfeil({mitte, p.oben + 0.5 * t}, {mitte, p.ok - 0.2 * t}, z.stil().last, 0.6);
    z.text({p.rechts + 0.5 * t, (p.oben + p.ok) / 2.0}, QStringLiteral("Fc,d"), Qt::AlignLeft,
           {1.0, false, z.stil().last});
    Masskette kette{{p.links, p.rechts, p.druckRechts()}, {QStringLiteral("b"), QStringLiteral("ü")}};
    if (p.durch()) {
        kette.stellen.insert(kette.stellen.begin(), p.druckLinks());
        kette.texte.insert(kette.texte.begin(), QStringLiteral("ü"));
    }
    z.massWaagerecht(p.fuss + 3.0 * t, p.fuss + 0.6 * t, kette);
}

// The title above and the effective area below.
void texte(Zeichner& z, const QRectF& r, const Wandgeometrie& g, bool durch) {
    const double t = z.t();
    const double mitte = r.center().x();
    z.text({mitte, r.top() + 1.3 * t},
           durch ? QStringLiteral("Fußrippe durchgehend") : QStringLiteral("Fußrippe bündig"),
           Qt::AlignHCenter, {1.0, true, {}});
    const double breite = g.bRandrippe + (durch ? 2.0 : 1.0) * ueberstand;
    z.text({mitte, r.bottom() - 2.2 * t},
           durch ? QStringLiteral("A,ef = (b + 2 · ü) · h") : QStringLiteral("A,ef = (b + ü) · h"),
           Qt::AlignHCenter);
    z.text({mitte, r.bottom() - 0.7 * t},
           QStringLiteral("= %1 · %2 = %3 cm²")
               .arg(z.zahl("0.0", breite / 10.0), z.zahl("0.0", g.hRippe / 10.0),
                    z.zahl("0.0", breite * g.hRippe / 100.0)),
           Qt::AlignHCenter);
}

void ueberstandsbild(Zeichner& z, const QRectF& r, const Wandgeometrie& g, Fussrippe art) {
    const Fusspunkt p = fusspunkt(z, r, g, art);
    holzUndBoden(z, p);
    druck(z, p);
    texte(z, r, g, p.durch());
}

}  // namespace

void zeichneUeberstand(Zeichner& z, const Wand& w) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie) return z.satzImRahmen(pruefung.satz);
    const QRectF r = z.flaeche();
    const double t = z.t();
    const double halb = (r.width() - 4.0 * t) / 2.0;
    const QRectF links(t, 0.3 * t, halb, r.height() - 2.6 * t);
    ueberstandsbild(z, links, *pruefung.geometrie, Fussrippe::durchgehend);
    ueberstandsbild(z, links.translated(halb + 2.0 * t, 0.0), *pruefung.geometrie, Fussrippe::buendig);
    z.text({r.center().x(), r.height() - 0.7 * t},
           QStringLiteral("Überstand ü = 3 cm, Randrippe b x h = %1 x %2 cm")
               .arg(z.zahl("0.0", pruefung.geometrie->bRandrippe / 10.0),
                    z.zahl("0.0", pruefung.geometrie->hRippe / 10.0)),
           Qt::AlignHCenter, {0.95, false, z.stil().nebentinte});
}

}  // namespace rippenscheibe
