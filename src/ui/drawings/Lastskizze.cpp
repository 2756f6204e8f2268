#include <algorithm>
#include <cmath>

#include "ui/drawings/Skizzen.h"

namespace rippenscheibe {

namespace {

enum class Richtung { nachUnten, nachOben };

Richtung richtung(double summe) { return summe < 0.0 ? Richtung::nachOben : Richtung::nachUnten; }

void senkrechterPfeil(Zeichner& z, double x, double oben, double unten, Richtung wohin) {
    const QPointF a(x, oben);
    const QPointF b(x, unten);
    wohin == Richtung::nachUnten ? z.pfeil(a, b, z.stil().last, 0.3) : z.pfeil(b, a, z.stil().last, 0.3);
}

// The wall as the load sketches show it: few ribs, sheathing of side 1, head and bottom rib.
struct Wandbild {
    QRectF r;
    std::vector<double> achsen;
    double rippe = 1.0;
};

Wandbild zeichneWandbild(Zeichner& z, const QRectF& platz, const Wand& w) {
    double verhaeltnis = 2.0;
    std::size_t rippen = 5;
    if (const Geometriepruefung p = pruefeGeometrie(w); p.geometrie) {
        verhaeltnis = std::clamp(p.geometrie->l / p.geometrie->h, 0.45, 3.0);
        rippen = std::clamp<std::size_t>(p.geometrie->anzahlRippen(), 2, 6);
    }
    const double breite = std::min(platz.width(), platz.height() * verhaeltnis);
    const double hoehe = std::min(platz.height(), breite / std::min(verhaeltnis, 0.85));
    Wandbild b;
    b.r = QRectF(platz.center().x() - breite / 2.0, platz.bottom() - hoehe, breite, hoehe);
    b.rippe = std::min(0.05 * breite, 0.9 * z.t());
    for (std::size_t i = 0; i < rippen; ++i)
        b.achsen.push_back(b.r.left() + b.rippe / 2.0 +
                           (breite - b.rippe) * static_cast<double>(i) / static_cast<double>(rippen - 1));
    for (const double x : b.achsen) z.holz({x - b.rippe / 2.0, b.r.top(), b.rippe, hoehe}, Strich::mass);
    z.holz({b.r.left(), b.r.top(), breite, b.rippe}, Strich::mass);
    z.holz({b.r.left(), b.r.bottom() - b.rippe, breite, b.rippe}, Strich::mass);
    z.rechteck(b.r, z.stil().durchscheinend(Seite::eins), Strich::schnitt, z.stil().holzlinie);
    const double t = z.t();
    z.boden(b.r.left() - 0.7 * t, b.r.right() + 0.7 * t, b.r.bottom());
    return b;
}

void vertikallasten(Zeichner& z, const Wandbild& b, const Wand& w) {
    const double t = z.t();
    const Textart art{0.95, false, z.stil().last};
    const double mitte = b.r.center().x();
    // Line load at the wall head, and above it the point loads on the ribs.
    const double unten = b.r.top() - 0.3 * t;
    const double oben = unten - 1.8 * t;
    const Richtung linie = richtung(w.gk.value() + static_cast<double>(w.qk.value()));
    const int zahl = std::clamp(static_cast<int>(b.r.width() / (1.2 * t)), 2, 40);
    for (int i = 0; i <= zahl; ++i)
        senkrechterPfeil(z, b.r.left() + b.r.width() * i / zahl, oben, unten, linie);
    z.linie({b.r.left(), oben}, {b.r.right(), oben}, Strich::ansicht, z.stil().last);
    z.text({mitte, oben - 0.4 * t}, QStringLiteral("g,k + q,k"), Qt::AlignHCenter, art);
    const double fussEinzel = oben - 1.9 * t;
    const Richtung einzel = richtung(w.Fcgk.value() + static_cast<double>(w.Fcqk.value()));
    for (const double x : b.achsen) senkrechterPfeil(z, x, fussEinzel - 2.2 * t, fussEinzel, einzel);
    z.text({mitte, fussEinzel - 2.6 * t}, QStringLiteral("Fc,g,k + Fc,q,k"), Qt::AlignHCenter, art);
}

// Wind across the wall: the wall from its end, with the wind on side 1.
void windbild(Zeichner& z, const QRectF& r, const Wand& w) {
    const double t = z.t();
    const double dicke = 1.3 * t;
    const QRectF kern(r.right() - dicke, r.top(), dicke, r.height());
    z.holz(kern);
    z.rechteck({kern.left() - 0.35 * t, r.top(), 0.35 * t, r.height()}, z.stil().platte[Seite::eins],
               Strich::mass, z.stil().plattenkante[Seite::eins]);
    if (!w.Einseitig)
        z.rechteck({kern.right(), r.top(), 0.35 * t, r.height()}, z.stil().platte[Seite::zwei], Strich::mass,
                   z.stil().plattenkante[Seite::zwei]);
    z.boden(r.left(), r.right() + 0.8 * t, r.bottom());
    const double nah = kern.left() - 0.6 * t;
    const double fern = nah - 2.4 * t;
    const bool sog = w.wk.value() < 0.0F;
    const int zahl = std::clamp(static_cast<int>(r.height() / (1.5 * t)), 3, 40);
    for (int i = 0; i <= zahl; ++i) {
        const double y = r.top() + 0.2 * t + (r.height() - 0.4 * t) * i / zahl;
        sog ? z.pfeil({nah, y}, {fern, y}, z.stil().last, 0.25)
            : z.pfeil({fern, y}, {nah, y}, z.stil().last, 0.25);
    }
    const double linie = sog ? nah : fern;
    z.linie({linie, r.top()}, {linie, r.bottom()}, Strich::ansicht, z.stil().last);
    z.text({(fern + nah) / 2.0, r.top() - 0.6 * t}, QStringLiteral("w,k"), Qt::AlignHCenter,
           {0.95, false, z.stil().last});
}

}  // namespace

void zeichneLast(Zeichner& z, const Wand& w, int lastfall, bool windQuer) {
    const double t = z.t();
    const QRectF r = z.flaeche();
    const bool horizontal = lastfall != 2;
    const bool vertikal = lastfall != 1;
    const bool nachRechts = !(w.Fvk.value() < 0.0F);
    const double rand = 1.2 * t;
    const double kraft = horizontal ? 4.4 * t : rand;
    const double wind = windQuer ? 6.6 * t : 0.0;
    const double oben = vertikal ? 9.6 * t : 2.4 * t;
    QRectF platz(rand, oben, r.width() - 2.0 * rand - wind, r.height() - oben - 1.6 * t);
    platz.adjust(nachRechts ? kraft - rand : 0.0, 0.0, nachRechts ? 0.0 : rand - kraft, 0.0);
    if (platz.width() < 3.0 * t || platz.height() < 3.0 * t)
        return z.satzImRahmen(QStringLiteral("Die Lasten sind im Ausdruck beschrieben."));
    // Not higher than it needs; the whole stands in the middle of the area.
    const double ueberzahl = std::max(0.0, platz.height() - 1.6 * platz.width());
    platz.adjust(0.0, 0.5 * ueberzahl, 0.0, -0.5 * ueberzahl);
    const Wandbild b = zeichneWandbild(z, platz, w);
    if (vertikal) vertikallasten(z, b, w);
    if (horizontal) {
        const double ziel = nachRechts ? b.r.left() - 0.2 * t : b.r.right() + 0.2 * t;
        const double start = nachRechts ? ziel - 3.2 * t : ziel + 3.2 * t;
        const double y = b.r.top() + b.rippe / 2.0;
        z.pfeil({start, y}, {ziel, y}, z.stil().last, 0.6);
        z.text({(start + ziel) / 2.0, y + 1.5 * t}, QStringLiteral("Fv,k"), Qt::AlignHCenter,
               {0.95, false, z.stil().last});
    }
    const double mitte = b.r.center().x();
    const double tief = b.r.center().y();
    senkrechterPfeil(z, mitte, tief - 0.2 * t, tief + 2.0 * t, Richtung::nachUnten);
    z.schild({mitte, tief - 1.1 * t}, QStringLiteral("g,k,Wand"), {0.9, false, z.stil().last});
    if (windQuer) windbild(z, {r.width() - wind, b.r.top(), wind - 1.2 * t, b.r.height()}, w);
}

void zeichneSchubfluss(Zeichner& z, const Wand& w) {
    const double t = z.t();
    const QRectF r = z.flaeche();
    const double links = 2.4 * t;
    const double rechts = 7.2 * t;
    const double oben = 4.4 * t;
    const double unten = 2.4 * t;
    const QRectF p(links, oben, r.width() - links - rechts, r.height() - oben - unten);
    if (p.width() < 3.0 * t || p.height() < 2.0 * t) return;
    z.rechteck(p, z.stil().durchscheinend(Seite::eins), Strich::ansicht, z.stil().holzlinie);
    const QColor farbe = z.stil().last;
    const double a = 0.55 * t;
    const bool nachRechts = !(w.Fvk.value() < 0.0F);
    // Along the edges: the pairs of opposite edges run against each other.
    const auto waagerecht = [&](double y, bool zuRechts) {
        const double x1 = p.left() + 0.08 * p.width();
        const double x2 = p.right() - 0.08 * p.width();
        zuRechts ? z.pfeil({x1, y}, {x2, y}, farbe, 0.4) : z.pfeil({x2, y}, {x1, y}, farbe, 0.4);
    };
    const auto senkrecht = [&](double x, bool nachOben) {
        const double y1 = p.bottom() - 0.1 * p.height();
        const double y2 = p.top() + 0.1 * p.height();
        nachOben ? z.pfeil({x, y1}, {x, y2}, farbe, 0.4) : z.pfeil({x, y2}, {x, y1}, farbe, 0.4);
    };
    waagerecht(p.top() - a, nachRechts);
    waagerecht(p.bottom() + a, !nachRechts);
    senkrecht(p.right() + a, nachRechts);
    senkrecht(p.left() - a, !nachRechts);
    z.text({p.right() + 1.4 * t, p.center().y()}, QStringLiteral("sv,0,d"), Qt::AlignLeft | Qt::AlignVCenter,
           {1.0, false, farbe});
    // Across the upper edge: the share of the vertical loads that the sheathing takes.
    const QColor quer = z.stil().tinte;
    const int zahl = std::clamp(static_cast<int>(p.width() / (1.7 * t)), 3, 40);
    const double fuss = p.top() - 1.1 * t;
    for (int i = 0; i <= zahl; ++i) {
        const double x = p.left() + p.width() * i / zahl;
        z.pfeil({x, fuss - 1.4 * t}, {x, fuss}, quer, 0.25);
    }
    z.linie({p.left(), fuss - 1.4 * t}, {p.right(), fuss - 1.4 * t}, Strich::ansicht, quer);
    z.text({p.right() + 1.4 * t, fuss - 0.7 * t}, QStringLiteral("sv,90,d"), Qt::AlignLeft | Qt::AlignVCenter,
           {1.0, false, quer});
    z.text(p.center(), QStringLiteral("Beplankung"), Qt::AlignHCenter | Qt::AlignVCenter,
           {0.95, false, z.stil().nebentinte});
}

}  // namespace rippenscheibe
