#include <algorithm>
#include <array>
#include <cmath>

#include "model/Kataloge.h"
#include "ui/drawings/Skizzen.h"

namespace rippenscheibe {

namespace {

const Anker& gezeichneterAnker(const Wand& w) {
    return *anker(std::clamp<int>(w.Ankertyp.value(), 1, freierAnker));
}

}  // namespace

Ankergruppe ankergruppe(const Wand& w) { return gezeichneterAnker(w).gruppe; }

namespace {

// Shape of a group, relative to the width of the edge rib in the sketch.
struct Ankerform {
    double hoehe;     // plate on the rib, relative to the height above the bottom rib
    double breite;    // plate seen from the front, relative to the rib
    int spalten;      // nail holes side by side
    bool zweiteilig;  // the part in the concrete is a strap of its own
    bool winkel;      // foot with bolt beside the rib
};

Ankerform form(Ankergruppe gruppe) {
    switch (gruppe) {
        case Ankergruppe::HD:
            return {0.80, 0.62, 3, false, true};
        case Ankergruppe::HTT:
            return {0.86, 0.55, 2, false, true};
        case Ankergruppe::HD2P:
            return {0.72, 0.66, 3, true, true};
        case Ankergruppe::HD2PSG:
            return {0.60, 0.66, 2, true, true};
        case Ankergruppe::frei:
            return {0.66, 0.50, 0, false, false};
    }
    return {0.7, 0.5, 0, false, false};
}

struct Naegel {
    int loecher = 0;
    int besetzt = 0;
};

Naegel naegel(const Wand& w, Ankergruppe gruppe) {
    if (gruppe == Ankergruppe::frei) return {};
    if (gruppe == Ankergruppe::HD2PSG)
        return {naegelVoll, w.Teilausnagelung.value() == 2 ? naegelTeilweise : naegelVoll};
    const int loecher = gezeichneterAnker(w).naegelHoechstens;
    return {loecher, std::clamp<int>(w.AnzahlAnkerNaegel.value(), 0, loecher)};
}

struct Fuss {
    double ok = 0.0;     // top of the bottom rib
    double boden = 0.0;  // its foot, on the concrete
    double oben = 0.0;   // where the rib is cut
    double unten = 0.0;  // end of the concrete
};

void zeichneNaegel(Zeichner& z, const QRectF& platte, int spalten, const Naegel& n) {
    if (spalten == 0 || n.loecher == 0) return;
    const int reihen = (n.loecher + spalten - 1) / spalten;
    const double dy = platte.height() / (reihen + 0.6);
    const double dx = platte.width() / spalten;
    const double radius = std::min(0.28 * dy, 0.16 * dx);
    for (int i = 0; i < n.loecher; ++i) {
        const int reihe = i / spalten;
        const double versatz = reihe % 2 == 0 ? -0.12 : 0.12;
        const QPointF mitte(platte.left() + dx * (i % spalten + 0.5 + versatz),
                            platte.top() + dy * (reihe + 0.8));
        const bool besetzt = i < n.besetzt;
        z.kreis(mitte, radius, besetzt ? QBrush(Qt::white) : QBrush(Qt::NoBrush), Strich::mass, Qt::white);
    }
}

void beton(Zeichner& z, double links, double rechts, const Fuss& f) {
    const QRectF r(links, f.boden, rechts - links, f.unten - f.boden);
    z.schraffur(r, 0.9 * z.t(), z.stil().nebentinte);
    z.linie({links, f.boden}, {rechts, f.boden}, Strich::schnitt, z.stil().tinte);
}

void bolzen(Zeichner& z, double x, double oben, double unten) {
    const double t = z.t();
    const double b = 0.32 * t;
    z.rechteck({x - b / 2.0, oben - 0.9 * t, b, unten - oben + 0.9 * t}, z.stil().stahl, Strich::mass,
               z.stil().stahl);
    z.rechteck({x - 0.55 * t, oben - 0.55 * t, 1.1 * t, 0.55 * t}, z.stil().stahl, Strich::mass,
               z.stil().grund);
    z.linie({x - 0.5 * t, unten}, {x + 0.5 * t, unten}, Strich::schnitt, z.stil().stahl);
}

// The anchor from the side: plate on the inner face of the edge rib, foot and bolt.
void seitenansicht(Zeichner& z, const QRectF& r, const Fuss& f, const Ankerform& a, double rippe) {
    const double t = z.t();
    const double kante = r.left() + rippe;
    beton(z, r.left() - 0.6 * t, r.right(), f);
    z.holz({r.left(), f.ok, r.width() - 0.6 * t, f.boden - f.ok});
    z.holz({r.left(), f.oben, rippe, f.ok - f.oben});
    z.bruchlinie({r.left() - 0.3 * t, f.oben}, {kante + 0.3 * t, f.oben}, z.stil().tinte);
    z.bruchlinie({r.right() - 0.6 * t, f.boden}, {r.right() - 0.6 * t, f.ok}, z.stil().tinte);
    const double blech = 0.34 * t;
    const double hoehe = a.hoehe * (f.ok - f.oben);
    const double fuss = 2.6 * t;
    const QColor stahl = z.stil().stahl;
    z.rechteck({kante, f.ok - hoehe, blech, hoehe}, stahl, Strich::mass, stahl);
    const double tief = f.boden + 0.72 * (f.unten - f.boden);
    if (!a.winkel) {  // a strap that runs down into the concrete
        z.rechteck({kante, f.ok, blech, tief - f.ok}, stahl, Strich::mass, stahl);
        return;
    }
    if (a.zweiteilig) {  // the lower part overlaps the upper and carries the foot
        const double ueberlappung = 0.42 * hoehe;
        z.rechteck({kante + blech, f.ok - ueberlappung, blech, ueberlappung}, stahl, Strich::mass,
                   z.stil().grund);
        z.linie({kante - 0.3 * t, f.ok - 0.8 * ueberlappung},
                {kante + 3.0 * blech, f.ok - 0.8 * ueberlappung}, Strich::schnitt, stahl);
    }
    z.rechteck({kante, f.ok - 0.5 * t, fuss, 0.5 * t}, stahl, Strich::mass, stahl);
    z.vieleck({{kante + blech, f.ok - 0.5 * t},
               {kante + blech, f.ok - 3.0 * t},
               {kante + 0.55 * fuss, f.ok - 0.5 * t}},
              Qt::NoBrush, Strich::ansicht, stahl);
    bolzen(z, kante + 0.66 * fuss, f.ok - 0.5 * t, tief);
}

// The anchor from the front: the plate with its nail holes on the face of the rib.
QRectF vorderansicht(Zeichner& z, const QRectF& r, const Fuss& f, const Ankerform& a, const Naegel& n,
                     double rippe) {
    const double t = z.t();
    const double mitte = r.center().x();
    beton(z, r.left(), r.right(), f);
    z.holz({r.left() + 0.6 * t, f.ok, r.width() - 1.2 * t, f.boden - f.ok});
    z.holz({mitte - rippe / 2.0, f.oben, rippe, f.ok - f.oben});
    z.bruchlinie({mitte - rippe / 2.0 - 0.3 * t, f.oben}, {mitte + rippe / 2.0 + 0.3 * t, f.oben},
                 z.stil().tinte);
    const double hoehe = a.hoehe * (f.ok - f.oben);
    const double breite = a.breite * rippe;
    const QRectF platte(mitte - breite / 2.0, f.ok - hoehe, breite, hoehe);
    const QColor stahl = z.stil().stahl;
    z.rechteck(platte, stahl, Strich::mass, stahl);
    const double tief = f.boden + 0.72 * (f.unten - f.boden);
    if (!a.winkel) {
        z.rechteck({mitte - 0.3 * breite, f.ok, 0.6 * breite, tief - f.ok}, stahl, Strich::mass, stahl);
    } else {
        bolzen(z, mitte, f.ok - 0.2 * t, tief);
        z.rechteck({mitte - 0.62 * breite, f.ok - 0.5 * t, 1.24 * breite, 0.5 * t}, stahl, Strich::mass,
                   z.stil().grund);
    }
    QRectF nagelfeld = platte.adjusted(0.08 * breite, 0.0, -0.08 * breite, -std::min(0.16 * hoehe, 2.4 * t));
    if (a.zweiteilig) {
        const double stoss = platte.bottom() - 0.42 * hoehe;
        z.linie({platte.left(), stoss}, {platte.right(), stoss}, Strich::ansicht, z.stil().grund);
        nagelfeld.setBottom(stoss);
        for (const double x : {0.3, 0.7})
            z.kreis({platte.left() + x * breite, stoss + 0.9 * t}, 0.35 * t, z.stil().grund, Strich::mass,
                    stahl);
    }
    zeichneNaegel(z, nagelfeld, a.spalten, n);
    return platte;
}

QString ankerzeile(const Wand& w, Ankergruppe gruppe) {
    if (gruppe == Ankergruppe::frei) return ankerkurzname(w);
    return ankergruppe(w) == gruppe ? ankerkurzname(w) : QStringLiteral("Zuganker");
}

}  // namespace

void zeichneAnker(Zeichner& z, const Wand& w, Ankergruppe gruppe, Ankerplatz platz) {
    const double t = z.t();
    const QRectF r = z.flaeche();
    const Ankerform a = form(gruppe);
    const Naegel n = naegel(w, gruppe);
    // In the report a line of text runs into the picture, 14 mm below its top: the sketch starts beneath it.
    const double oben = platz == Ankerplatz::bericht && r.height() > 30.0 * t ? 10.4 * t : 4.4 * t;
    const Fuss f{r.height() - 14.2 * t, r.height() - 11.2 * t, oben, r.height() - 6.2 * t};
    if (f.ok - f.oben < 4.0 * t || r.width() < 16.0 * t) return z.satzImRahmen(ankerkurzname(w));
    const double halb = (r.width() - 4.0 * t) / 2.0;
    const double rippe = std::min(0.48 * halb, 6.0 * t);

    const QRectF links(1.5 * t, 0.0, halb, r.height());
    const QRectF rechts(r.width() - 1.0 * t - halb, 0.0, halb, r.height());
    seitenansicht(z, links, f, a, rippe);
    const QRectF platte = vorderansicht(z, rechts, f, a, n, rippe);

    // The force to be anchored pulls at the rib.
    const double x = links.left() + rippe / 2.0;
    z.pfeil({x, f.oben - 0.2 * t}, {x, f.oben - 2.4 * t}, z.stil().last, 0.6);
    z.text({x + 0.8 * t, f.oben - 1.1 * t}, QStringLiteral("Ft,dst"), Qt::AlignLeft,
           {1.0, false, z.stil().last});
    if (n.loecher > 0) {
        z.text({platte.center().x(), f.oben - 0.9 * t},
               QStringLiteral("%1 von %2 Nägeln").arg(n.besetzt).arg(n.loecher), Qt::AlignHCenter,
               {0.9, false, {}});
    }
    const double grund = f.unten + 1.7 * t;
    z.text({links.center().x(), grund}, QStringLiteral("Seitenansicht"), Qt::AlignHCenter,
           {0.9, false, z.stil().nebentinte});
    z.text({rechts.center().x(), grund}, QStringLiteral("Ansicht"), Qt::AlignHCenter,
           {0.9, false, z.stil().nebentinte});
    // The name stands with what it belongs to.
    z.textPassend({r.width() / 2.0, r.height() - 2.3 * t}, ankerzeile(w, gruppe), Qt::AlignHCenter,
                  r.width() - 2.0 * t, {1.05, true, {}});
    z.text({r.width() / 2.0, r.height() - 0.7 * t},
           QStringLiteral("%1 × Rd = %2 kN je Wandende")
               .arg(w.AnzahlAnker.value())
               .arg(z.zahl("0.00", w.RdAnker.value())),
           Qt::AlignHCenter);
}

}  // namespace rippenscheibe
