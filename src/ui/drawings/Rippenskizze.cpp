#include <algorithm>
#include <array>
#include <numeric>

#include "ui/drawings/Skizzen.h"

// The sketch of the ribs: their sections, and how the bottom rib ends.

namespace rippenscheibe {

namespace {

// A rib in section, centred on `mitte`, with its width below and its height at the left.
void querschnitt(Zeichner& z, QPointF mitte, QSizeF masse, double f) {
    const QSizeF s = masse * f;
    const QRectF r(mitte.x() - s.width() / 2.0, mitte.y() - s.height() / 2.0, s.width(), s.height());
    z.hirnholz(r);
    const double t = z.t();
    // A figure longer than its side stands beside the line, so that it belongs to nothing else.
    const QString hoehe = rippenmass(z, masse.height());
    if (z.textbreite(hoehe) + 0.5 * t <= s.height())
        z.massSenkrecht(r.left() - 0.9 * t, r.left(), {{r.bottom(), r.top()}, {hoehe}});
    else
        z.kleinmassSenkrecht(r.left() - 0.9 * t, r.left(), r.bottom(), r.top(), hoehe);
    const QString breite = rippenmass(z, masse.width());
    if (z.textbreite(breite) + 0.5 * t <= s.width())
        z.massWaagerecht(r.bottom() + 1.9 * t, r.bottom(), {{r.left(), r.right()}, {breite}});
    else
        z.kleinmassWaagerecht(r.bottom() + 1.1 * t, r.bottom(), r.left(), r.right(), breite);
}

enum class Fussrippe { buendig, durchgehend };
enum class Wandende { links, rechts };

// The foot of an edge rib on the bottom rib, seen from the front.
void fusspunkt(Zeichner& z, const QRectF& r, Wandende ende, Fussrippe fussrippe) {
    const double t = z.t();
    const double aussen = ende == Wandende::links ? -1.0 : 1.0;
    const double b = 0.34 * r.width();
    const double ueber = 0.26 * r.width();
    const double kante = r.center().x() + aussen * (0.5 * r.width() - ueber);  // outside of the edge rib
    const double fuss = r.bottom() - 2.6 * t;
    const double dicke = std::min(0.24 * r.height(), 2.2 * t);
    const double innen = r.center().x() - aussen * 0.5 * r.width();
    const double bis = fussrippe == Fussrippe::durchgehend ? kante + aussen * ueber : kante;
    z.holz(QRectF(QPointF(std::min(innen, bis), fuss - dicke), QPointF(std::max(innen, bis), fuss)));
    const double oben = r.top() + 0.4 * t;
    z.holz(QRectF(QPointF(std::min(kante, kante - aussen * b), oben),
                  QPointF(std::max(kante, kante - aussen * b), fuss - dicke)));
    z.bruchlinie({innen, fuss + 0.4 * t}, {innen, fuss - dicke - 0.4 * t}, z.stil().tinte);
    z.bruchlinie({kante - aussen * b * 1.25, oben}, {kante + aussen * b * 0.25, oben}, z.stil().tinte);
    if (fussrippe == Fussrippe::durchgehend) {
        z.massWaagerecht(fuss + 1.0 * t, fuss, {{std::min(kante, bis), std::max(kante, bis)}, {}});
        z.text({(kante + bis) / 2.0, fuss + 1.5 * t}, QStringLiteral("ü"), Qt::AlignHCenter | Qt::AlignTop);
    } else {
        z.linie({kante, fuss}, {kante, fuss + 0.8 * t}, Strich::mass, z.stil().tinte);
        z.text({kante, fuss + 1.2 * t}, QStringLiteral("bündig"), Qt::AlignHCenter | Qt::AlignTop,
               {0.85, false, {}});
    }
}

// One of the sections side by side, with its title above and its dimensions at the left and below.
struct Querschnitt {
    QSizeF masse;  // mm
    QString name;
};

// Room at the left of a section for its height.
double platzLinks(const Zeichner& z, const Querschnitt& q, double f) {
    const double zahl = z.textbreite(rippenmass(z, q.masse.height()));
    const double t = z.t();
    return zahl + 0.5 * t <= q.masse.height() * f ? 2.5 * t : zahl + 1.6 * t;
}

double spaltenbreite(const Zeichner& z, const Querschnitt& q, double f, const Textart& titel) {
    const double breite = std::max(platzLinks(z, q, f) + q.masse.width() * f, z.textbreite(q.name, titel));
    return breite + 1.2 * z.t();
}

void querschnitte(Zeichner& z, const QRectF& r, const Wandgeometrie& g) {
    const double t = z.t();
    const double hoehe = r.height() - 5.6 * t;
    const std::array<Querschnitt, 3> spalten{
        {{{g.bRandrippe, g.hRippe}, QStringLiteral("Randrippe")},
         {{g.bInnenrippe, g.hRippe}, QStringLiteral("Innenrippe")},
         {{g.hRippe, g.bKopfFussrippe}, QStringLiteral("Kopf-/Fußrippe")}}};
    Textart titel{0.95, true, {}};
    double titelbreite = 0.0;
    for (const Querschnitt& q : spalten) titelbreite += z.textbreite(q.name, titel);
    titel.faktor *= std::min(1.0, (0.99 * r.width() - 3.6 * t) / titelbreite);
    double f = std::min(r.width() / (g.bRandrippe + g.bInnenrippe + g.hRippe),
                        std::max(1.0, hoehe) / std::max(g.hRippe, g.bKopfFussrippe));
    const auto gesamt = [&] {
        return std::accumulate(spalten.begin(), spalten.end(), 0.0, [&](double summe, const Querschnitt& q) {
            return summe + spaltenbreite(z, q, f, titel);
        });
    };
    for (int i = 0; i < 40 && gesamt() > r.width(); ++i) f *= 0.95;
    const double rest = std::max(0.0, r.width() - gesamt()) / 3.0;
    double x = r.left();
    for (const Querschnitt& q : spalten) {
        const double spalte = spaltenbreite(z, q, f, titel) + rest;
        const double links = platzLinks(z, q, f);
        const double luft = spalte - links - q.masse.width() * f;
        const double achse = x + links + luft / 2.0 + q.masse.width() * f / 2.0;
        const double halb = z.textbreite(q.name, titel) / 2.0;
        z.text({std::clamp(achse, x + halb, x + std::max(halb, spalte - halb)), r.top() + 1.2 * t}, q.name,
               Qt::AlignHCenter, titel);
        querschnitt(z, {achse, r.top() + 2.0 * t + hoehe / 2.0}, q.masse, f);
        x += spalte;
    }
}

// Both ends of the bottom rib, flush or running on.
void fussrippe(Zeichner& z, const QRectF& r, const Wand& w) {
    const double t = z.t();
    const double luecke = 0.9 * t;
    const double breite = std::min(r.width() / 2.0 - luecke, 9.0 * t);
    const auto art = [](bool durchgehend) {
        return durchgehend ? Fussrippe::durchgehend : Fussrippe::buendig;
    };
    const double mitte = r.center().x();
    z.text({mitte, r.top() + 1.2 * t}, QStringLiteral("Fußrippe"), Qt::AlignHCenter, {0.95, true, {}});
    const double oben = r.top() + 2.2 * t;
    const double hoehe = std::min(r.bottom() - oben - 0.4 * t, 13.0 * t);
    const double y = oben + (r.bottom() - oben - 0.4 * t - hoehe) / 2.0;
    fusspunkt(z, {mitte - luecke / 2.0 - breite, y, breite, hoehe}, Wandende::links,
              art(w.FussrippeLinksDurchgehend));
    fusspunkt(z, {mitte + luecke / 2.0, y, breite, hoehe}, Wandende::rechts,
              art(w.FussrippeRechtsDurchgehend));
}

}  // namespace

void zeichneRippen(Zeichner& z, const Wand& w) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie) return z.satzImRahmen(pruefung.satz);
    const QRectF r = z.flaeche();
    if (istHochformat(r)) {
        querschnitte(z, {0.0, 0.0, r.width(), 0.54 * r.height()}, *pruefung.geometrie);
        return fussrippe(z, {0.0, 0.58 * r.height(), r.width(), 0.42 * r.height()}, w);
    }
    const double rechts = 0.29 * r.width();
    querschnitte(z, {0.0, 0.0, r.width() - rechts - z.t(), r.height()}, *pruefung.geometrie);
    fussrippe(z, {r.width() - rechts, 0.0, rechts - 0.5 * z.t(), r.height()}, w);
}

}  // namespace rippenscheibe
