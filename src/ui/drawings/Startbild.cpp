#include <QLinearGradient>
#include <QPainterPath>
#include <algorithm>
#include <array>

#include "ui/drawings/Skizzen.h"

// The pictures that only please: the splash, and the tall picture of how a wall panel comes to be.

namespace rippenscheibe {

namespace {

constexpr int rippenzahl = 9;
constexpr double rippenbreite = 0.016;  // of the length

enum class Schicht { rippen, beplankung, verbindungsmittel, verankerung, last };

void wandgerippe(Zeichner& z, const QRectF& r) {
    const double b = rippenbreite * r.width();
    for (int i = 0; i < rippenzahl; ++i)
        z.holz({r.left() + (r.width() - b) * i / (rippenzahl - 1), r.top(), b, r.height()}, Strich::mass);
    z.holz({r.left(), r.top(), r.width(), b}, Strich::mass);
    z.holz({r.left(), r.bottom() - b, r.width(), b}, Strich::mass);
}

void wandplatten(Zeichner& z, const QRectF& r, double bisAnteil, float deckung = 0.55F) {
    const double schraege = bisAnteil < 1.0 ? 0.12 : 0.0;
    const QPolygonF flaeche{r.topLeft(),
                            {r.left() + bisAnteil * r.width(), r.top()},
                            {r.left() + (bisAnteil - schraege) * r.width(), r.bottom()},
                            r.bottomLeft()};
    QColor farbe = z.stil().platte[Seite::eins];
    farbe.setAlphaF(deckung);
    z.vieleck(flaeche, farbe, Strich::ansicht, z.stil().plattenkante[Seite::eins]);
    QPainterPath gezeigt;
    gezeigt.addPolygon(flaeche);
    z.painter().save();
    z.painter().setClipPath(gezeigt, Qt::IntersectClip);
    for (const double a : {0.25, 0.5, 0.75})
        z.linie({r.left() + a * r.width(), r.top()}, {r.left() + a * r.width(), r.bottom()}, Strich::ansicht,
                z.stil().plattenkante[Seite::eins], Linienart::gestrichelt);
    z.painter().restore();
}

void wandnaegel(Zeichner& z, const QRectF& r) {
    QPen pen(z.stil().stahl, std::max(0.25, z.stil().mindestbreite / z.stil().mm));
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({0.5 / pen.widthF(), 0.7 / pen.widthF()});
    z.painter().setPen(pen);
    const double b = rippenbreite * r.width();
    for (int i = 0; i < rippenzahl; ++i) {
        const double x = r.left() + b / 2.0 + (r.width() - b) * i / (rippenzahl - 1);
        z.painter().drawLine(QPointF(x, r.top() + b), QPointF(x, r.bottom() - b));
    }
    for (const double y : {r.top() + b / 2.0, r.bottom() - b / 2.0})
        z.painter().drawLine(QPointF(r.left() + b, y), QPointF(r.right() - b, y));
}

void wandanker(Zeichner& z, const QRectF& r) {
    const double t = z.t();
    const double b = rippenbreite * r.width();
    for (const double richtung : {1.0, -1.0}) {
        const double x = richtung > 0 ? r.left() + b : r.right() - b;
        z.linie({x, r.bottom() - 2.4 * t}, {x, r.bottom()}, Strich::schnitt, z.stil().stahl);
        z.linie({x, r.bottom() - 0.2 * t}, {x + richtung * t, r.bottom() - 0.2 * t}, Strich::schnitt,
                z.stil().stahl);
        z.linie({x + richtung * 0.6 * t, r.bottom() - 0.8 * t},
                {x + richtung * 0.6 * t, r.bottom() + 1.3 * t}, Strich::schnitt, z.stil().stahl);
    }
}

void wandboden(Zeichner& z, const QRectF& r) { z.boden(r.left() - z.t(), r.right() + z.t(), r.bottom()); }

// The horizontal load and the sheared outline, exaggerated.
void wandlast(Zeichner& z, const QRectF& r) {
    const double t = z.t();
    const double u = 0.05 * r.width();
    z.painter().setPen(z.stift(Strich::ansicht, z.stil().last, Linienart::gestrichelt));
    z.painter().setBrush(Qt::NoBrush);
    z.painter().drawPolygon(QPolygonF{r.bottomLeft(), r.topLeft() + QPointF(u, 0.0),
                                      r.topRight() + QPointF(u, 0.0), r.bottomRight()});
    z.pfeil({r.left() - 4.0 * t, r.top() + 0.4 * t}, {r.left() - 0.2 * t, r.top() + 0.4 * t}, z.stil().last,
            0.6);
}

void wandbis(Zeichner& z, const QRectF& r, Schicht schicht) {
    wandboden(z, r);
    wandgerippe(z, r);
    if (schicht >= Schicht::beplankung) wandplatten(z, r, schicht == Schicht::beplankung ? 0.7 : 1.0);
    if (schicht >= Schicht::verbindungsmittel) wandnaegel(z, r);
    if (schicht >= Schicht::verankerung) wandanker(z, r);
    if (schicht >= Schicht::last) wandlast(z, r);
}

}  // namespace

void zeichneRollbild(Zeichner& z, const Wand&) {
    struct Tafel {
        Schicht schicht;
        const char* titel;
        const char* satz;
    };
    constexpr std::array<Tafel, 5> tafeln{{
        {Schicht::rippen, "Rippen", "Kopf-, Fuß-, Rand- und Innenrippen bilden das Gerippe."},
        {Schicht::beplankung, "Beplankung", "Platten, auf den Rippen gestoßen, machen es zur Scheibe."},
        {Schicht::verbindungsmittel, "Verbindungsmittel",
         "Nägel, Klammern oder Schrauben übertragen den Schubfluss."},
        {Schicht::verankerung, "Verankerung", "Zuganker halten die Wandenden am Boden."},
        {Schicht::last, "Scheibenbeanspruchung", "Die Tafel trägt Wind und Vertikallasten ab."},
    }};
    const double t = z.t();
    const QRectF r = z.flaeche();
    const double hoehe = r.height() / static_cast<double>(tafeln.size());
    if (hoehe < 8.0 * t || r.width() < 14.0 * t) return;
    double y = 0.0;
    for (const Tafel& tafel : tafeln) {
        const Textart titel{1.25, true, {}};
        z.text({t, y + 2.2 * t}, QString::fromUtf8(tafel.titel), Qt::AlignLeft, titel);
        const double absatz = z.absatz({t, y + 2.9 * t}, r.width() - 2.0 * t, QString::fromUtf8(tafel.satz),
                                       {1.0, false, z.stil().nebentinte});
        const double breite = r.width() - 10.0 * t;
        const double platz = hoehe - absatz - 6.8 * t;
        const double h = std::clamp(0.5 * breite, 1.0, std::max(1.0, platz));
        wandbis(z, {5.0 * t, y + 4.0 * t + absatz + (platz - h) / 2.0, breite, h}, tafel.schicht);
        y += hoehe;
    }
}

void zeichneStartbild(Zeichner& z, const Wand&) {
    const QRectF r = z.flaeche();
    const double t = z.t();
    QLinearGradient grund(r.topLeft(), r.bottomRight());
    grund.setColorAt(0.0, QColor(0x36474F));
    grund.setColorAt(1.0, QColor(0x1D272C));
    z.painter().fillRect(r, grund);
    // Faint squared paper.
    z.painter().setPen(QPen(QColor(255, 255, 255, 14), 0.2));
    const double raster = r.width() / 30.0;
    for (int i = 1; i < 30; ++i)
        z.painter().drawLine(QPointF(i * raster, 0.0), QPointF(i * raster, r.height()));
    for (int i = 1; i * raster < r.height() && i < 60; ++i)
        z.painter().drawLine(QPointF(0.0, i * raster), QPointF(r.width(), i * raster));
    const double breite = 0.74 * r.width();
    const double hoehe = std::min(0.5 * breite, 0.62 * r.height());
    const QRectF wand((r.width() - breite) / 2.0, 0.5 * (r.height() - hoehe) - 0.02 * r.height(), breite,
                      hoehe);
    wandgerippe(z, wand);
    wandplatten(z, wand, 0.62, 0.88F);
    const QColor hell(255, 255, 255, 150);
    z.linie({wand.left() - 0.06 * breite, wand.bottom()}, {wand.right() + 0.06 * breite, wand.bottom()},
            Strich::schnitt, hell);
    const double y = wand.bottom() + 2.4 * t;
    z.linie({wand.left(), y}, {wand.right(), y}, Strich::mass, hell);
    for (int i = 0; i < rippenzahl; ++i) {
        const double x = wand.left() + breite * i / (rippenzahl - 1);
        z.linie({x, y - 0.7 * t}, {x, y + 0.7 * t}, Strich::mass, hell);
        z.linie({x - 0.3 * t, y + 0.3 * t}, {x + 0.3 * t, y - 0.3 * t}, Strich::ansicht, hell);
    }
    z.pfeil({wand.left() - 0.09 * breite, wand.top() + 0.4 * t},
            {wand.left() - 0.2 * t, wand.top() + 0.4 * t}, QColor(0xF2776D), 0.8);
}

}  // namespace rippenscheibe
