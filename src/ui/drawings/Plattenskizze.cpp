#include <algorithm>

#include "ui/drawings/Skizzen.h"

// The sketch of the sheathing: the section of the wall, and one panel of each side.

namespace rippenscheibe {

namespace {

// One panel of a side with its width and the horizontal joint.
void platte(Zeichner& z, const QRectF& r, const Wand& w, const Wandgeometrie& g, Seite n) {
    const double t = z.t();
    const double lp = gezeichneterWert(w.Plattenbreite[n], 10.0, 1e6, 1250.0);
    const double hoehe = r.height() - 4.6 * t;
    const double f = std::min((r.width() - 4.2 * t) / lp, hoehe / g.h);
    const QSizeF s(std::max(0.6, lp * f), std::max(0.6, g.h * f));
    const QRectF p(r.center().x() - s.width() / 2.0 - 1.2 * t, r.top() + 1.8 * t + (hoehe - s.height()) / 2.0,
                   s.width(), s.height());
    z.rechteck(p, z.stil().durchscheinend(n), Strich::ansicht, z.stil().plattenkante[n]);
    if (w.Gestossen[n])
        z.linie({p.left(), p.center().y()}, {p.right(), p.center().y()}, Strich::schnitt,
                z.stil().plattenlinie[n], Linienart::gestrichelt);
    z.text({p.center().x(), p.top() - 0.8 * t}, QStringLiteral("Platte %1").arg(nummer(n)), Qt::AlignHCenter,
           {0.95, true, {}});
    z.massWaagerecht(p.bottom() + 2.0 * t, p.bottom(), {{p.left(), p.right()}, {metertext(lp, z)}});
    z.massSenkrecht(p.right() + 2.0 * t, p.right(), {{p.bottom(), p.top()}, {metertext(g.h, z)}});
}

}  // namespace

void zeichneBeplankung(Zeichner& z, const Wand& w) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie) return z.satzImRahmen(pruefung.satz);
    const Wandgeometrie& g = *pruefung.geometrie;
    const double t = z.t();
    const QRectF r = z.flaeche();
    const bool hochformat = istHochformat(r);
    const QRectF schnitt =
        hochformat ? QRectF(0, 0, r.width(), 0.55 * r.height()) : QRectF(0, 0, 0.5 * r.width(), r.height());
    const QRectF bild = schnitt.adjusted(t, 3.4 * t, -t, -3.0 * t);
    const QRectF gezeichnet = zeichneSchnitt(z, bild, w, Schnittbeschriftung::masse);
    // Names that are too long for one line wrap, away from the section.
    const double breite = schnitt.right() - gezeichnet.left() - 0.8 * t;
    const QStringList oben = z.umbrochen(
        g.einseitig ? QStringLiteral("Seite 2: nicht beplankt") : plattenzeile(w, Seite::zwei, z), breite);
    const double zeile = z.zeilenhoehe();
    z.zeilen({gezeichnet.left(), gezeichnet.top() - 0.7 * t - zeile * static_cast<double>(oben.size())},
             oben);
    z.zeilen({gezeichnet.left(), gezeichnet.bottom() + 3.1 * t},
             z.umbrochen(plattenzeile(w, Seite::eins, z), breite));

    QRectF rechts = hochformat ? QRectF(0, 0.55 * r.height(), r.width(), 0.45 * r.height())
                               : QRectF(0.5 * r.width(), 0, 0.5 * r.width(), r.height());
    if (g.einseitig) return platte(z, rechts, w, g, Seite::eins);
    rechts.setWidth(rechts.width() / 2.0);
    platte(z, rechts, w, g, Seite::eins);
    platte(z, rechts.translated(rechts.width(), 0.0), w, g, Seite::zwei);
}

}  // namespace rippenscheibe
