#include <algorithm>
#include <cmath>

#include "ui/drawings/Skizzen.h"

namespace rippenscheibe {

namespace {

struct Achsen {
    QPointF laengs;
    QPointF quer;
    QPointF kopf;
    QPointF operator()(double x, double y) const { return kopf + laengs * x + quer * y; }
};

void zeichneKlammer(Zeichner& z, const Achsen& a, const VMmasse& m) {
    QPen pen(z.stil().stahl, std::max(m.d, z.stil().mindestbreite / z.stil().mm));
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::FlatCap);
    z.painter().setPen(pen);
    const double ruecken = m.dk / 2.0;
    z.painter().drawPolyline(
        QPolygonF{a(m.ln, -ruecken), a(m.d / 2.0, -ruecken), a(m.d / 2.0, ruecken), a(m.ln, ruecken)});
}

// The toothed outline of a thread or of ring grooves over the length lg before the tip.
void zeichneGewinde(Zeichner& z, const Achsen& a, const VMmasse& m, double spitze) {
    const double von = std::max(m.d, m.ln - m.lg);
    const double bis = m.ln - spitze;
    if (bis <= von) return;
    const double teilung = std::max(0.8 * m.d, (bis - von) / 60.0);
    QVector<QLineF> gaenge;
    for (double x = von; x + teilung <= bis; x += teilung)
        gaenge.append(QLineF(a(x, -0.72 * m.d), a(x + 0.6 * teilung, 0.72 * m.d)));
    z.painter().setPen(z.stift(Strich::mass, z.stil().stahl));
    z.painter().drawLines(gaenge);
}

}  // namespace

void zeichneVM(Zeichner& z, QPointF kopf, QPointF richtung, int art, const VMmasse& m) {
    const Achsen a{richtung, QPointF(-richtung.y(), richtung.x()), kopf};
    if (istKlammer(art)) return zeichneKlammer(z, a, m);
    const double spitze = std::min(1.5 * m.d, 0.3 * m.ln);
    const double schaft = std::max(m.d, z.stil().mindestbreite / z.stil().mm) / 2.0;
    z.painter().setPen(Qt::NoPen);
    z.painter().setBrush(z.stil().stahl);
    z.painter().drawPolygon(QPolygonF{a(0.0, -schaft), a(m.ln - spitze, -schaft), a(m.ln, 0.0),
                                      a(m.ln - spitze, schaft), a(0.0, schaft)});
    const double hoehe = istSchraube(art) ? 0.5 * (m.dk - m.d) : std::max(0.4 * m.d, 0.15);
    const double unten = istSchraube(art) ? schaft : m.dk / 2.0;  // a countersunk or a flat head
    z.painter().drawPolygon(QPolygonF{a(0.0, -m.dk / 2.0), a(0.0, m.dk / 2.0), a(std::max(hoehe, 0.1), unten),
                                      a(std::max(hoehe, 0.1), -unten)});
    if (istSchraube(art) || art == VMArtNummer::sondernagel) zeichneGewinde(z, a, m, spitze);
}

namespace {

// The section in its own scale: x along the wall from the left edge, y down from the outside of side 2.
struct Schnittmasse {
    double f = 1.0;
    QPointF ursprung;
    double t1 = 0.0;
    double t2 = 0.0;
    double kern = 0.0;
    double rand = 0.0;  // widths, all in mm of the drawing
    double innen = 0.0;
    double feld = 0.0;  // a bay, shortened
    double dicke() const { return t1 + t2 + kern; }
    double laenge() const { return rand + 1.65 * feld + innen; }
    double innenLinks() const { return ursprung.x() + rand + feld; }
};

Schnittmasse schnittmasse(const QRectF& r, const Wandgeometrie& g) {
    Schnittmasse m;
    const double dicke = g.hRippe + g.t[Seite::eins] + (g.einseitig ? 0.0 : g.t[Seite::zwei]);
    const double feld = std::max(0.9 * dicke, 1.2 * std::max(g.bRandrippe, g.bInnenrippe));
    const double laenge = g.bRandrippe + g.bInnenrippe + 1.65 * feld;
    m.f = std::min(r.height() / dicke, r.width() / laenge);
    m.t1 = g.t[Seite::eins] * m.f;
    m.t2 = g.einseitig ? 0.0 : g.t[Seite::zwei] * m.f;
    m.kern = g.hRippe * m.f;
    m.rand = g.bRandrippe * m.f;
    m.innen = g.bInnenrippe * m.f;
    m.feld = feld * m.f;
    m.ursprung = QPointF(r.left(), r.center().y() - m.dicke() / 2.0);
    return m;
}

VMmasse vmMasse(const Wand& w, Seite n, double f) {
    VMmasse m{};
    m.d = gezeichneterWert(w.d[n], 0.5, 30.0, 2.7) * f;
    m.ln = gezeichneterWert(w.ln[n], 5.0, 400.0, 50.0) * f;
    m.dk = gezeichneterWert(w.dk[n], 1.0, 60.0, 6.0) * f;
    m.lg = gezeichneterWert(w.lg[n], 1.0, 400.0, 25.0) * f;
    if (istKlammer(w.VMArt[n].value())) m.dk = klammerruecken * f;
    return m;
}

void zeichneSchnittVM(Zeichner& z, const Wand& w, Seite n, const Schnittmasse& m, bool stossImBild) {
    const bool vorn = n == Seite::eins;
    const double y = vorn ? m.ursprung.y() + m.dicke() : m.ursprung.y();
    const QPointF hinein(0.0, vorn ? -1.0 : 1.0);
    const VMmasse vm = vmMasse(w, n, m.f);
    const int art = w.VMArt[n].value();
    zeichneVM(z, {m.ursprung.x() + m.rand / 2.0, y}, hinein, art, vm);
    const double mitte = m.innenLinks() + m.innen / 2.0;
    if (!stossImBild) return zeichneVM(z, {mitte, y}, hinein, art, vm);
    for (const double seite : {-0.25, 0.25}) zeichneVM(z, {mitte + seite * m.innen, y}, hinein, art, vm);
}

void zeichnePlatte(Zeichner& z, Seite n, const QRectF& platte, double stoss) {
    const QColor linie = z.stil().plattenkante[n];
    z.rechteck(platte, z.stil().platte[n], Strich::schnitt, linie);
    z.schraffur(platte, std::max(0.9, 0.35 * z.t()), linie);
    if (stoss > 0.0)
        z.linie({stoss, platte.top()}, {stoss, platte.bottom()}, Strich::schnitt, z.stil().tinteAufHolz);
}

// Two break lines with the ground between them: the bay is longer than drawn.
void zeichneUnterbrechung(Zeichner& z, double x, const QRectF& r) {
    const double luft = 0.45 * z.t();
    z.painter().fillRect(QRectF(x - luft / 2.0, r.top() - 0.2 * z.t(), luft, r.height() + 0.4 * z.t()),
                         z.stil().grund);
    for (const double seite : {-0.5, 0.5})
        z.bruchlinie({x + seite * luft, r.bottom() + 0.6 * z.t()}, {x + seite * luft, r.top() - 0.6 * z.t()},
                     z.stil().tinte);
}

// Wind across the wall on sheathing 1: towards it, or away from it as suction.
void zeichneWind(Zeichner& z, const Wand& w, const Schnittmasse& m) {
    if (!w.WindQuer || Zahl(w.wk) == 0) return;
    const double nah = m.ursprung.y() + m.dicke() + 0.3 * z.t();
    const double fern = nah + 1.6 * z.t();
    const bool sog = w.wk.value() < 0.0F;
    for (const double anteil : {0.22, 0.78, 1.35}) {
        const double x = (anteil < 1.0 ? m.ursprung.x() + m.rand + anteil * m.feld
                                       : m.innenLinks() + m.innen + (anteil - 1.0) * m.feld);
        const QPointF platte(x, nah);
        const QPointF draussen(x, fern);
        sog ? z.pfeil(platte, draussen, z.stil().last) : z.pfeil(draussen, platte, z.stil().last);
    }
}

}  // namespace

QRectF zeichneSchnitt(Zeichner& z, const QRectF& r, const Wand& w, Schnittbeschriftung beschriftung) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie || r.width() < 5.0 || r.height() < 3.0) return {};
    const Wandgeometrie& g = *pruefung.geometrie;
    QRectF innen = r;
    const bool masse = beschriftung == Schnittbeschriftung::masse;
    if (masse) innen.adjust(2.2 * z.t(), 0.0, 0.0, -2.7 * z.t());
    const Schnittmasse m = schnittmasse(innen, g);
    const double x = m.ursprung.x();
    const double y = m.ursprung.y();

    z.hirnholz({x, y + m.t2, m.rand, m.kern});
    z.hirnholz({m.innenLinks(), y + m.t2, m.innen, m.kern});
    const double mitte = m.innenLinks() + m.innen / 2.0;
    for (const Seite n : beideSeiten) {
        if (n == Seite::zwei && g.einseitig) continue;
        const bool vorn = n == Seite::eins;
        const QRectF platte(x, vorn ? y + m.t2 + m.kern : y, m.laenge(), vorn ? m.t1 : m.t2);
        const bool stoss = !g.plattenstoesse[n].empty();
        zeichnePlatte(z, n, platte, stoss ? mitte : 0.0);
        zeichneSchnittVM(z, w, n, m, stoss);
    }
    const QRectF gesamt(x, y, m.laenge(), m.dicke());
    zeichneUnterbrechung(z, x + m.rand + 0.5 * m.feld, gesamt);
    // The section ends in the next bay.
    const double ende = x + m.laenge();
    z.painter().fillRect(QRectF(ende - 0.3, y - 0.3, 0.8, m.dicke() + 0.6), z.stil().grund);
    z.bruchlinie({ende - 0.3, gesamt.bottom() + 0.6 * z.t()}, {ende - 0.3, y - 0.6 * z.t()}, z.stil().tinte);
    zeichneWind(z, w, m);
    if (!masse) return gesamt;
    z.massSenkrecht(x - 1.2 * z.t(), x,
                    {{y + m.t2 + m.kern, y + m.t2}, {z.zahl("0.000", g.hRippe / 1000.0)}});
    // Ribs are narrow here: their figures stand below the line.
    const double linie = gesamt.bottom() + 1.4 * z.t();
    const auto breite = [&](double links, double drawn, double wert) {
        z.massWaagerecht(linie, gesamt.bottom(), {{links, links + drawn}, {}});
        z.text({links + drawn / 2.0, linie + 0.45 * z.t()}, z.zahl("0.000", wert / 1000.0),
               Qt::AlignHCenter | Qt::AlignTop);
    };
    breite(x, m.rand, g.bRandrippe);
    breite(m.innenLinks(), m.innen, g.bInnenrippe);
    return gesamt;
}

}  // namespace rippenscheibe
