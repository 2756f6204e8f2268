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

void zeichneVM(Zeichner& z, QPointF kopf, QPointF richtung, Art art, const VMmasse& m) {
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
    if (istSchraube(art) || art == Art::sondernaegel) zeichneGewinde(z, a, m, spitze);
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

struct Schnittgroesse {
    double dicke;
    double feld;  // a bay as drawn
    double laenge;
};

Schnittgroesse schnittgroesse(const Wandgeometrie& g) {
    const double dicke = g.hRippe + g.t[Seite::eins] + (g.einseitig ? 0.0 : g.t[Seite::zwei]);
    const double feld = std::max(0.9 * dicke, 1.2 * std::max(g.bRandrippe, g.bInnenrippe));
    return {dicke, feld, g.bRandrippe + g.bInnenrippe + 1.65 * feld};
}

Schnittmasse schnittmasse(const Wandgeometrie& g, double f) {
    Schnittmasse m;
    m.f = f;
    m.t1 = g.t[Seite::eins] * f;
    m.t2 = g.einseitig ? 0.0 : g.t[Seite::zwei] * f;
    m.kern = g.hRippe * f;
    m.rand = g.bRandrippe * f;
    m.innen = g.bInnenrippe * f;
    m.feld = schnittgroesse(g).feld * f;
    return m;
}

Schnittmasse schnittmasse(const QRectF& r, const Wandgeometrie& g) {
    const Schnittgroesse groesse = schnittgroesse(g);
    Schnittmasse m = schnittmasse(g, std::min(r.height() / groesse.dicke, r.width() / groesse.laenge));
    m.ursprung = QPointF(r.left(), r.center().y() - m.dicke() / 2.0);
    return m;
}

VMmasse vmMasse(const Wand& w, Seite n, double f) {
    VMmasse m{};
    m.d = gezeichneterWert(w.d[n], 0.5, 30.0, 2.7) * f;
    m.ln = gezeichneterWert(w.ln[n], 5.0, 400.0, 50.0) * f;
    m.dk = gezeichneterWert(w.dk[n], 1.0, 60.0, 6.0) * f;
    m.lg = gezeichneterWert(w.lg[n], 1.0, 400.0, 25.0) * f;
    if (istKlammer(w, n)) m.dk = klammerruecken * f;
    return m;
}

void zeichneSchnittVM(Zeichner& z, const Wand& w, Seite n, const Schnittmasse& m, bool stossImBild) {
    const bool vorn = n == Seite::eins;
    const double y = vorn ? m.ursprung.y() + m.dicke() : m.ursprung.y();
    const QPointF hinein(0.0, vorn ? -1.0 : 1.0);
    const VMmasse vm = vmMasse(w, n, m.f);
    const Art art = vmArt(w, n);
    zeichneVM(z, {m.ursprung.x() + m.rand / 2.0, y}, hinein, art, vm);
    const double mitte = m.innenLinks() + m.innen / 2.0;
    if (!stossImBild) return zeichneVM(z, {mitte, y}, hinein, art, vm);
    for (const double seite : {-0.25, 0.25}) zeichneVM(z, {mitte + seite * m.innen, y}, hinein, art, vm);
}

// A piece of a sheathing between two ends that are no edges of it, or with its edge at the left.
void zeichnePlattenstueck(Zeichner& z, Seite n, const QRectF& stueck, bool kanteLinks) {
    const QColor linie = z.stil().plattenkante[n];
    z.fuelle(stueck, z.stil().platte[n]);
    z.schraffur(stueck, std::max(0.9, 0.35 * z.t()), linie);
    z.linie(stueck.topLeft(), stueck.topRight(), Strich::schnitt, linie);
    z.linie(stueck.bottomLeft(), stueck.bottomRight(), Strich::schnitt, linie);
    if (kanteLinks) z.linie(stueck.topLeft(), stueck.bottomLeft(), Strich::schnitt, linie);
}

// The bay is longer than drawn: two break lines with a gap between them.
struct Unterbrechung {
    double mitte;
    double luft;
    double links() const { return mitte - luft / 2.0; }
    double rechts() const { return mitte + luft / 2.0; }
};

void zeichnePlatte(Zeichner& z, Seite n, const QRectF& platte, const Unterbrechung& bruch, double stoss) {
    QRectF links = platte;
    links.setRight(bruch.links());
    QRectF rechts = platte;
    rechts.setLeft(bruch.rechts());
    zeichnePlattenstueck(z, n, links, true);
    zeichnePlattenstueck(z, n, rechts, false);
    if (stoss > 0.0)
        z.linie({stoss, platte.top()}, {stoss, platte.bottom()}, Strich::schnitt, z.stil().tinteAufHolz);
}

void zeichneBruchlinien(Zeichner& z, const Unterbrechung& bruch, const QRectF& r) {
    const double ueber = 0.6 * z.t();
    for (const double x : {bruch.links(), bruch.rechts(), r.right()})
        z.bruchlinie({x, r.bottom() + ueber}, {x, r.top() - ueber}, z.stil().tinte);
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

// One sheathing with its fasteners.
void zeichneSeite(Zeichner& z, const Wand& w, const Wandgeometrie& g, Seite n, const Schnittmasse& m,
                  const Unterbrechung& bruch) {
    const bool vorn = n == Seite::eins;
    const double y = m.ursprung.y();
    const QRectF platte(m.ursprung.x(), vorn ? y + m.t2 + m.kern : y, m.laenge(), vorn ? m.t1 : m.t2);
    const bool stoss = !g.plattenstoesse[n].empty();
    {
        const Ebenenwechsel ebene(z, vorn ? Ebene::beplankung1 : Ebene::beplankung2);
        zeichnePlatte(z, n, platte, bruch, stoss ? m.innenLinks() + m.innen / 2.0 : 0.0);
        z.bauteil(platte, Fensterart::beplankung, plattenzeile(w, n, z));
    }
    const Ebenenwechsel ebene(z, Ebene::verbindungsmittel);
    zeichneSchnittVM(z, w, n, m, stoss);
}

void zeichneHirnholz(Zeichner& z, const Wandgeometrie& g, const Schnittmasse& m) {
    const Ebenenwechsel ebene(z, Ebene::rippen);
    const auto rippe = [&](double x, double drawn, double breite, const char* name) {
        const QRectF r(x, m.ursprung.y() + m.t2, drawn, m.kern);
        z.hirnholz(r);
        z.bauteil(
            r, Fensterart::rippen,
            QStringLiteral("%1 %2 x %3 cm")
                .arg(QLatin1String(name), z.zahl("0.0", breite / 10.0), z.zahl("0.0", g.hRippe / 10.0)));
    };
    rippe(m.ursprung.x(), m.rand, g.bRandrippe, "Randrippe");
    rippe(m.innenLinks(), m.innen, g.bInnenrippe, "Innenrippe");
}

// Whether the depth of the ribs can be written along its dimension line; else it stands beside it.
bool tiefePasst(const Zeichner& z, const Wandgeometrie& g, double f) {
    return z.textbreite(rippenmass(z, g.hRippe)) + 0.5 * z.t() <= g.hRippe * f;
}

void zeichneSchnittmasse(Zeichner& z, const Wandgeometrie& g, const Schnittmasse& m) {
    const double t = z.t();
    const double x = m.ursprung.x();
    const double kern = m.ursprung.y() + m.t2;
    const QString tiefe = rippenmass(z, g.hRippe);
    if (tiefePasst(z, g, m.f))
        z.massSenkrecht(x - 1.2 * t, x, {{kern + m.kern, kern}, {tiefe}});
    else
        z.kleinmassSenkrecht(x - 1.2 * t, x, kern + m.kern, kern, tiefe);
    const double unten = m.ursprung.y() + m.dicke();
    z.kleinmassWaagerecht(unten + 1.4 * t, unten, x, x + m.rand, rippenmass(z, g.bRandrippe));
    z.kleinmassWaagerecht(unten + 1.4 * t, unten, m.innenLinks(), m.innenLinks() + m.innen,
                          rippenmass(z, g.bInnenrippe));
}

QRectF zeichneSchnittMit(Zeichner& z, const Wand& w, const Wandgeometrie& g, const Schnittmasse& m) {
    const QRectF gesamt(m.ursprung, QSizeF(m.laenge(), m.dicke()));
    const Unterbrechung bruch{m.ursprung.x() + m.rand + 0.5 * m.feld, 0.45 * z.t()};
    zeichneHirnholz(z, g, m);
    for (const Seite n : beideSeiten)
        if (n == Seite::eins || !g.einseitig) zeichneSeite(z, w, g, n, m, bruch);
    zeichneBruchlinien(z, bruch, gesamt);
    return gesamt;
}

}  // namespace

QRectF zeichneSchnitt(Zeichner& z, const QRectF& r, const Wand& w, Schnittbeschriftung beschriftung) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie || r.width() < 5.0 || r.height() < 3.0) return {};
    const Wandgeometrie& g = *pruefung.geometrie;
    const double t = z.t();
    const bool masse = beschriftung == Schnittbeschriftung::masse;
    QRectF innen = r;
    if (masse) innen.adjust(2.2 * t, 0.6 * t, 0.0, -2.9 * t);
    Schnittmasse m = schnittmasse(innen, g);
    if (masse && !tiefePasst(z, g, m.f)) {
        innen.setLeft(r.left() + z.textbreite(rippenmass(z, g.hRippe)) + 1.8 * t);
        m = schnittmasse(innen, g);
    }
    const QRectF gesamt = zeichneSchnittMit(z, w, g, m);
    zeichneWind(z, w, m);
    if (masse) zeichneSchnittmasse(z, g, m);
    return gesamt;
}

void zeichneBauschnitt(Zeichner& z, const Wand& w, double massstab) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie) return;
    Schnittmasse m = schnittmasse(*pruefung.geometrie, massstab);
    zeichneSchnittMit(z, w, *pruefung.geometrie, m);
    zeichneSchnittmasse(z, *pruefung.geometrie, m);
}

}  // namespace rippenscheibe
