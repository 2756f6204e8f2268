#include <algorithm>
#include <array>
#include <cmath>

#include "ui/drawings/Skizzen.h"

// The three sketches of the boundary conditions. They show the rule, not the wall of the record.

namespace rippenscheibe {

namespace {

struct Tafel {
    QRectF r;
    double rippe;
};

// Ribs of a panel at the given fractions of its length, head and bottom rib.
void gerippe(Zeichner& z, const Tafel& tafel, const std::vector<double>& anteile) {
    const QRectF& r = tafel.r;
    for (const double a : anteile) {
        const double x =
            std::clamp(r.left() + a * r.width() - tafel.rippe / 2.0, r.left(), r.right() - tafel.rippe);
        z.holz({x, r.top(), tafel.rippe, r.height()}, Strich::mass);
    }
    z.holz({r.left(), r.top(), r.width(), tafel.rippe}, Strich::mass);
    z.holz({r.left(), r.bottom() - tafel.rippe, r.width(), tafel.rippe}, Strich::mass);
}

void platte(Zeichner& z, const QRectF& r) {
    z.rechteck(r, z.stil().durchscheinend(Seite::eins), Strich::ansicht, z.stil().holzlinie);
}

void ankerwinkel(Zeichner& z, QPointF fuss, double nachInnen) {
    const double t = z.t();
    z.rechteck(QRectF(fuss + QPointF(nachInnen > 0 ? 0.0 : -0.25 * t, -1.9 * t), QSizeF(0.25 * t, 1.9 * t)),
               z.stil().stahl, Strich::mass, z.stil().stahl);
    z.linie(fuss + QPointF(nachInnen * 0.5 * t, -0.7 * t), fuss + QPointF(nachInnen * 0.5 * t, 1.3 * t),
            Strich::schnitt, z.stil().stahl);
    z.linie(fuss + QPointF(0.0, -0.2 * t), fuss + QPointF(nachInnen * 0.9 * t, -0.2 * t), Strich::schnitt,
            z.stil().stahl);
}

// Joint of two sheets on a rib, seen from above.
void plattenstoss(Zeichner& z, const QRectF& r) {
    const double t = z.t();
    const double mitte = r.center().x();
    const double b = std::min(0.34 * r.width(), 8.0 * t);
    const double dicke = std::min(1.5 * t, 0.14 * r.height());
    const double tief = std::min(1.5 * b, r.height() - dicke - 5.4 * t);
    const double y = r.top() + 3.2 * t;
    z.hirnholz({mitte - b / 2.0, y, b, tief});
    const QRectF linke(r.left() + t, y + tief, mitte - r.left() - t - 0.15, dicke);
    const QRectF rechte(mitte + 0.15, y + tief, r.right() - t - mitte - 0.15, dicke);
    for (const QRectF& p : {linke, rechte}) {
        z.rechteck(p, z.stil().platte[Seite::eins], Strich::schnitt, z.stil().plattenkante[Seite::eins]);
        z.schraffur(p, 0.5 * t, z.stil().plattenkante[Seite::eins]);
    }
    for (const double seite : {-0.25, 0.25})
        zeichneVM(z, {mitte + seite * b, y + tief + dicke}, {0.0, -1.0}, Art::naegel,
                  {0.3 * t, dicke + 0.45 * tief, 0.8 * t, 0.0});
    for (const double x : {linke.left(), rechte.right()})
        z.bruchlinie({x, y + tief + dicke + 0.4 * t}, {x, y + tief - 0.4 * t}, z.stil().tinte);
    z.textPassend({mitte, r.top() + 1.4 * t}, QStringLiteral("Plattenstoß nur auf der Rippe"),
                  Qt::AlignHCenter, r.width() - t, {0.95, true, {}});
}

// A joint of the edge rib with two splice plates.
void rippenstoss(Zeichner& z, const QRectF& r) {
    const double t = z.t();
    const double mitte = r.left() + 0.3 * r.width();
    const double b = std::min(0.16 * r.width(), 4.0 * t);
    const double oben = r.top() + 3.4 * t;
    const double unten = r.bottom() - 0.8 * t;
    const double stoss = (oben + unten) / 2.0;
    z.holz({mitte - b / 2.0, oben, b, stoss - oben - 0.15});
    z.holz({mitte - b / 2.0, stoss + 0.15, b, unten - stoss - 0.15});
    for (const double y : {oben, unten}) z.bruchlinie({mitte - b, y}, {mitte + b, y}, z.stil().tinte);
    const double lasche = 0.3 * (unten - oben);
    for (const double x : {mitte - b / 2.0 - 0.7 * t, mitte + b / 2.0}) {
        z.holz({x, stoss - lasche, 0.7 * t, 2.0 * lasche});
        for (const double y : {-0.75, -0.5, -0.25, 0.25, 0.5, 0.75})
            z.linie({x - 0.3 * t, stoss + y * lasche}, {x + 1.0 * t, stoss + y * lasche}, Strich::ansicht,
                    z.stil().stahl);
    }
    z.text({r.center().x(), r.top() + 1.4 * t}, QStringLiteral("Stoß der Randrippe"), Qt::AlignHCenter,
           {0.95, true, {}});
    const double links = mitte + b / 2.0 + 2.2 * t;
    z.absatz({links, stoss - 3.2 * t}, r.right() - links,
             QStringLiteral(
                 "nur verformungsarm: Tragfähigkeit des Stoßes mehr als das 1,5-fache der Beanspruchung"),
             {0.9, false, {}});
}

}  // namespace

void zeichneStoesse(Zeichner& z) {
    const double t = z.t();
    const QRectF r = z.flaeche();
    const double teil = 0.58 * r.height();
    const QRectF wand(3.0 * t, 3.4 * t, r.width() - 8.0 * t, teil - 10.0 * t);
    if (wand.width() < 6.0 * t || wand.height() < 4.0 * t) return;
    const Tafel tafel{wand, std::min(0.9 * t, 0.03 * wand.width())};
    z.text({wand.left(), 1.6 * t}, QStringLiteral("Platten gehen über die volle Höhe der Tafel"),
           Qt::AlignLeft, {1.0, true, {}});
    gerippe(z, tafel, {0.0, 1.0 / 6, 1.0 / 3, 0.5, 2.0 / 3, 5.0 / 6, 1.0});
    platte(z, wand);
    for (const double a : {1.0 / 3, 2.0 / 3})
        z.linie({wand.left() + a * wand.width(), wand.top()}, {wand.left() + a * wand.width(), wand.bottom()},
                Strich::schnitt, z.stil().plattenkante[Seite::eins], Linienart::gestrichelt);
    z.boden(wand.left() - t, wand.right() + t, wand.bottom());
    const auto x = [&](double a) { return wand.left() + a * wand.width(); };
    z.massWaagerecht(wand.bottom() + 3.0 * t, wand.bottom() + 0.7 * t,
                     {{x(0.0), x(1.0 / 3), x(2.0 / 3), x(1.0)},
                      {QStringLiteral("lp ≥ h/4"), QStringLiteral("lp ≥ h/4"), QStringLiteral("lp ≥ h/4")}});
    z.massWaagerecht(wand.bottom() + 5.2 * t, wand.bottom() + 0.7 * t,
                     {{x(0.0), x(1.0)}, {QStringLiteral("l")}});
    z.massSenkrecht(wand.right() + 3.0 * t, wand.right() + t,
                    {{wand.bottom(), wand.top()}, {QStringLiteral("h")}});
    z.linie({t, teil}, {r.width() - t, teil}, Strich::mass, z.stil().nebentinte);
    const double halb = (r.width() - 2.0 * t) / 2.0;
    plattenstoss(z, {t, teil + 0.6 * t, halb - t, r.height() - teil - 1.2 * t});
    rippenstoss(z, {t + halb, teil + 0.6 * t, halb, r.height() - teil - 1.2 * t});
}

void zeichneOeffnungen(Zeichner& z) {
    const double t = z.t();
    const QRectF r = z.flaeche();
    const QRectF wand(4.6 * t, 2.6 * t, r.width() - 9.2 * t, r.height() - 10.6 * t);
    if (wand.width() < 10.0 * t || wand.height() < 6.0 * t) return;
    const Tafel tafel{wand, std::min(0.9 * t, 0.03 * wand.width())};
    gerippe(z, tafel, {0.0, 0.25, 0.5, 0.75, 1.0});
    platte(z, wand);
    z.boden(wand.left() - t, wand.right() + t, wand.bottom());
    const double seite = std::min(0.13 * wand.width(), 0.30 * wand.height());
    const QPointF eckig(wand.left() + 0.375 * wand.width(), wand.top() + 0.42 * wand.height());
    const QPointF rund(wand.left() + 0.875 * wand.width(), wand.top() + 0.42 * wand.height());
    const QRectF loch(eckig.x() - seite / 2.0, eckig.y() - seite / 2.0, seite, seite);
    z.rechteck(loch, z.stil().grund, Strich::schnitt, z.stil().tinte);
    z.linie(loch.topLeft(), loch.bottomRight(), Strich::mass, z.stil().nebentinte);
    z.linie(loch.topRight(), loch.bottomLeft(), Strich::mass, z.stil().nebentinte);
    const double radius = 0.7 * seite;  // 280 to 200
    z.kreis(rund, radius, z.stil().grund, Strich::schnitt, z.stil().tinte);
    const Textart art{0.95, false, z.stil().tinte};
    z.textPassend({loch.center().x(), loch.bottom() + 0.5 * t}, QStringLiteral("≤ 200 x 200"),
                  Qt::AlignHCenter | Qt::AlignTop, 0.25 * wand.width() - 1.4 * tafel.rippe,
                  {0.95, true, z.stil().tinte});
    z.linie(rund + QPointF(-radius, 0.0), rund + QPointF(radius, 0.0), Strich::mass, z.stil().tinte);
    z.text(rund + QPointF(0.0, radius + 0.5 * t), QStringLiteral("d ≤ 280"), Qt::AlignHCenter | Qt::AlignTop,
           {0.95, true, z.stil().tinte});
    z.massWaagerecht(wand.bottom() + 3.0 * t, wand.bottom() + 0.7 * t,
                     {{wand.left(), wand.right()}, {QStringLiteral("Tafellänge l")}});
    z.massSenkrecht(wand.right() + 3.0 * t, wand.right() + t,
                    {{wand.bottom(), wand.top()}, {QStringLiteral("Tafelhöhe h")}});
    z.text({r.center().x(), r.height() - 2.5 * t},
           QStringLiteral("mehrere Öffnungen: Summe der Längen < 10 % von l,"), Qt::AlignHCenter, art);
    z.text({r.center().x(), r.height() - 1.0 * t},
           QStringLiteral("Summe der Höhen < 10 % von h  (Maße in mm)"), Qt::AlignHCenter, art);
}

namespace {

// A part of the row of panels, in fractions of its length.
struct Gruppenteil {
    double von, bis;
    const char* name;
};
constexpr std::array<Gruppenteil, 3> gruppenteile{{{0.0, 0.27, "l1"}, {0.42, 0.62, "l2"}, {0.80, 1.0, "l3"}}};

// An opening is crossed out.
void oeffnung(Zeichner& z, const QRectF& o) {
    z.rechteck(o, Qt::NoBrush, Strich::ansicht, z.stil().nebentinte);
    z.linie(o.topLeft(), o.bottomRight(), Strich::mass, z.stil().nebentinte);
    z.linie(o.topRight(), o.bottomLeft(), Strich::mass, z.stil().nebentinte);
}

// The panels with their lengths.
void gruppentafeln(Zeichner& z, const QRectF& wand, double rippe) {
    const double t = z.t();
    const auto x = [&](double a) { return wand.left() + a * wand.width(); };
    Masskette kette;
    for (const Gruppenteil& teil : gruppenteile) {
        const QRectF tafel(x(teil.von), wand.top(), x(teil.bis) - x(teil.von), wand.height());
        gerippe(z, {tafel, rippe}, {0.0, 0.5, 1.0});
        platte(z, tafel);
        kette.stellen.insert(kette.stellen.end(), {tafel.left(), tafel.right()});
        kette.texte.insert(kette.texte.end(), {QString::fromUtf8(teil.name), QString()});
    }
    kette.texte.pop_back();
    z.massWaagerecht(wand.bottom() + 3.6 * t, wand.bottom() + 1.4 * t, kette);
}

}  // namespace

void zeichneGruppen(Zeichner& z) {
    const double t = z.t();
    const QRectF r = z.flaeche();
    const QRectF wand(5.4 * t, 3.2 * t, r.width() - 7.4 * t, r.height() - 11.4 * t);
    if (wand.width() < 10.0 * t || wand.height() < 5.0 * t) return;
    const double rippe = std::min(0.8 * t, 0.03 * wand.width());
    const auto x = [&](double a) { return wand.left() + a * wand.width(); };
    z.boden(wand.left() - t, wand.right() + t, wand.bottom());
    gruppentafeln(z, wand, rippe);
    // Continuous head and bottom rib; window above its parapet, door down to the floor.
    z.holz({wand.left(), wand.top(), wand.width(), rippe});
    z.holz({wand.left(), wand.bottom() - rippe, wand.width(), rippe});
    const QRectF tuer(QPointF(x(0.27), wand.top() + 0.2 * wand.height()),
                      QPointF(x(0.42), wand.bottom() - rippe));
    const QRectF fenster(QPointF(x(0.62), wand.top() + 0.2 * wand.height()),
                         QPointF(x(0.80), wand.top() + 0.65 * wand.height()));
    for (const QRectF& o : {tuer, fenster}) oeffnung(z, o);
    for (const Gruppenteil& teil : gruppenteile) {
        ankerwinkel(z, {x(teil.von) + rippe, wand.bottom()}, 1.0);
        ankerwinkel(z, {x(teil.bis) - rippe, wand.bottom()}, -1.0);
    }
    const double y = wand.top() + rippe / 2.0;
    z.pfeil({wand.left() - 3.6 * t, y}, {wand.left() - 0.2 * t, y}, z.stil().last, 0.6);
    z.text({wand.left() - 1.9 * t, y + 1.6 * t}, QStringLiteral("Fv,k"), Qt::AlignHCenter,
           {1.0, false, z.stil().last});
    z.textPassend({r.center().x(), 1.6 * t},
                  QStringLiteral("Kopf- und Fußrippe durchgehend, jede Tafel verankert"), Qt::AlignHCenter,
                  r.width() - 1.5 * t, {0.95, false, {}});
    z.text({wand.center().x(), r.height() - 2.6 * t}, QStringLiteral("Ersatzlänge l = l1 + l2 + l3"),
           Qt::AlignHCenter, {1.0, true, {}});
    z.text({wand.center().x(), r.height() - 1.0 * t}, QStringLiteral("Tür und Fenster tragen nicht mit"),
           Qt::AlignHCenter, {0.95, false, z.stil().nebentinte});
}

}  // namespace rippenscheibe
