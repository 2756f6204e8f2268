#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "ui/drawings/Skizzen.h"

// The sketches of the dialogs for ribs, sheathing and fasteners.

namespace rippenscheibe {

namespace {

constexpr double ueberstand = 30.0;  // mm, counted on each side that runs on

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
    QColor farbe = z.stil().platte[n];
    farbe.setAlphaF(static_cast<float>(z.stil().plattendeckung));
    z.rechteck(p, farbe, Strich::ansicht, z.stil().plattenkante[n]);
    if (w.Gestossen[n])
        z.linie({p.left(), p.center().y()}, {p.right(), p.center().y()}, Strich::schnitt,
                z.stil().plattenlinie[n], Linienart::gestrichelt);
    z.text({p.center().x(), p.top() - 0.8 * t}, QStringLiteral("Platte %1").arg(nummer(n)), Qt::AlignHCenter,
           {0.95, true, {}});
    z.massWaagerecht(p.bottom() + 2.0 * t, p.bottom(),
                     {{p.left(), p.right()}, {z.zahl("0.000", lp / 1000.0)}});
    z.massSenkrecht(p.right() + 2.0 * t, p.right(), {{p.bottom(), p.top()}, {z.zahl("0.000", g.h / 1000.0)}});
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

namespace {

constexpr double versenktiefe = 2.0;  // mm

struct VMwerte {
    Art art;
    double d, ln, dk, lg, t;  // mm
};

VMwerte vmWerte(const Wand& w, Seite n) {
    return {vmArt(w, n),
            gezeichneterWert(w.d[n], 0.2, 100.0, 2.7),
            gezeichneterWert(w.ln[n], 5.0, 500.0, 50.0),
            gezeichneterWert(w.dk[n], 0.5, 100.0, 6.0),
            gezeichneterWert(w.lg[n], 1.0, 500.0, 25.0),
            gezeichneterWert(Plattendicke(w, n), 1.0, 300.0, 15.0)};
}

}  // namespace

void zeichneVerbindungsmittel(Zeichner& z, const Wand& w, Seite n) {
    const VMwerte v = vmWerte(w, n);
    const double t = z.t();
    const QRectF r = z.flaeche();
    const double holz = std::max(1.25 * (v.ln - v.t), 0.8 * v.t);  // timber behind the sheathing, shortened
    const double hoch = istKlammer(v.art) ? klammerruecken : std::max(v.dk, v.d);
    const double oben = 5.6 * t;   // title and the length
    const double unten = 6.6 * t;  // two dimensions and the spacing
    const double mitteHoehe = std::max(1.0, r.height() - oben - unten);
    const double f = std::min((r.width() - 3.0 * t) / (v.t + holz), mitteHoehe / (1.6 * hoch));
    const double x = (r.width() - f * (v.t + holz)) / 2.0;
    const double platteRechts = x + f * v.t;
    const double ende = x + f * (v.t + holz);
    const double y = oben + mitteHoehe / 2.0;
    const double h = std::min(mitteHoehe, std::max(3.4 * hoch * f, 6.0 * t));
    const QRectF platte(x, y - h / 2.0, f * v.t, h);

    z.fuelle(QRectF(platteRechts, y - h / 2.0, ende - platteRechts, h), z.stil().holz);
    for (const double kante : {y - h / 2.0, y + h / 2.0})
        z.linie({platteRechts, kante}, {ende, kante}, Strich::ansicht, z.stil().holzlinie);
    z.bruchlinie({ende, y + h / 2.0 + 0.4 * t}, {ende, y - h / 2.0 - 0.4 * t}, z.stil().tinte);
    z.rechteck(platte, z.stil().platte[n], Strich::schnitt, z.stil().plattenkante[n]);
    z.schraffur(platte, std::max(1.0, 0.5 * t), z.stil().plattenkante[n]);

    const double kopf = x + (w.Versenkt[n] ? std::min(versenktiefe, 0.4 * v.t) * f : 0.0);
    if (w.Vorgebohrt[n]) {
        const double bohrung = 0.5 * f * v.d + 0.25 * t;
        for (const double seite : {-bohrung, bohrung})
            z.linie({x, y + seite}, {kopf + f * v.ln, y + seite}, Strich::mass, z.stil().tinteAufHolz,
                    Linienart::gestrichelt);
    }
    const double dk = istKlammer(v.art) ? klammerruecken : v.dk;
    zeichneVM(z, {kopf, y}, {1.0, 0.0}, v.art, {v.d * f, v.ln * f, dk * f, v.lg * f});

    z.textPassend({r.width() / 2.0, 1.3 * t}, verbindungsmittelname(w, n, z), Qt::AlignHCenter, r.width() - t,
                  {1.0, true, {}});
    QString querschnitt = QStringLiteral("d = %1").arg(durchmessertext(v.d, z.stil().dezimalzeichen));
    if (!istKlammer(v.art) && v.art != Art::schnellbauschrauben)
        querschnitt += QStringLiteral(",  dk = %1").arg(z.zahl("0.0", v.dk));
    z.text({r.width() / 2.0, 2.7 * t}, querschnitt + QStringLiteral(" mm"), Qt::AlignHCenter);
    const auto mm = [&](double wert) { return z.zahl("0.0", wert); };
    const double kante = y - h / 2.0;
    z.massWaagerecht(kante - 1.0 * t, kante, {{kopf, kopf + f * v.ln}, {QStringLiteral("l = ") + mm(v.ln)}});
    const double boden = y + h / 2.0;
    double linie = boden + 1.9 * t;
    z.massWaagerecht(linie, boden, {{x, platteRechts}, {QStringLiteral("t = ") + mm(v.t)}});
    if (hatGewinde(v.art)) {
        const double spitze = kopf + f * v.ln;
        linie += 1.9 * t;
        z.massWaagerecht(linie, boden,
                         {{std::max(kopf, spitze - f * v.lg), spitze}, {QStringLiteral("lg = ") + mm(v.lg)}});
    }
    z.text({r.width() / 2.0, r.height() - 0.6 * t},
           QStringLiteral("av = %1 mm%2")
               .arg(laengentext(w.av[n].value(), z.stil().dezimalzeichen),
                    w.Zweireihig[n] ? QStringLiteral(", zweireihig versetzt") : QString()),
           Qt::AlignHCenter);
}

namespace {

// One of the two cases of the overhang: the edge rib presses on the bottom rib, and the pressure spreads.
void ueberstandsbild(Zeichner& z, const QRectF& r, const Wandgeometrie& g, Fussrippe art) {
    const double t = z.t();
    const bool durch = art == Fussrippe::durchgehend;
    const double bild = r.height() - 9.6 * t;
    const double f =
        std::min(r.width() / (g.bRandrippe + 5.0 * ueberstand), bild / (2.2 * g.bKopfFussrippe + 60.0));
    const double links = r.center().x() - f * g.bRandrippe / 2.0;
    const double rechts = links + f * g.bRandrippe;
    const double ue = f * ueberstand;
    const double fuss = r.top() + 2.0 * t + bild;
    const double ok = fuss - f * g.bKopfFussrippe;
    const double oben = r.top() + 4.2 * t;
    const double fussLinks = durch ? links - 1.9 * ue : links;
    const double fussRechts = rechts + 2.0 * ue;

    z.text({r.center().x(), r.top() + 1.3 * t},
           durch ? QStringLiteral("Fußrippe durchgehend") : QStringLiteral("Fußrippe bündig"),
           Qt::AlignHCenter, {1.0, true, {}});
    z.schraffur({fussLinks - t, fuss, fussRechts - fussLinks + 1.5 * t, 0.8 * t}, 0.55 * t,
                z.stil().nebentinte);
    z.linie({fussLinks - t, fuss}, {fussRechts + 0.5 * t, fuss}, Strich::schnitt, z.stil().tinte);
    z.holz({fussLinks, ok, fussRechts - fussLinks, fuss - ok});
    z.holz({links, oben, rechts - links, ok - oben});
    z.bruchlinie({links - 0.3 * t, oben}, {rechts + 0.3 * t, oben}, z.stil().tinte);
    z.bruchlinie({fussRechts, fuss}, {fussRechts, ok}, z.stil().tinte);
    if (durch) z.bruchlinie({fussLinks, fuss}, {fussLinks, ok}, z.stil().tinte);

    // The pressure below the rib spreads by ü where the bottom rib runs on.
    const double von = durch ? links - ue : links;
    const double bis = rechts + ue;
    QColor druck = z.stil().last;
    druck.setAlphaF(0.22F);
    z.fuelle(QPolygonF{{links, ok}, {rechts, ok}, {bis, fuss}, {von, fuss}}, druck);
    z.pfeil({(links + rechts) / 2.0, oben + 0.5 * t}, {(links + rechts) / 2.0, ok - 0.2 * t}, z.stil().last,
            0.6);
    z.text({rechts + 0.5 * t, (oben + ok) / 2.0}, QStringLiteral("Fc,d"), Qt::AlignLeft,
           {1.0, false, z.stil().last});

    Masskette kette{{links, rechts, bis}, {QStringLiteral("b"), QStringLiteral("ü")}};
    if (durch) {
        kette.stellen.insert(kette.stellen.begin(), von);
        kette.texte.insert(kette.texte.begin(), QStringLiteral("ü"));
    }
    z.massWaagerecht(fuss + 3.0 * t, fuss + 0.6 * t, kette);
    const double breite = g.bRandrippe + (durch ? 2.0 : 1.0) * ueberstand;
    z.text({r.center().x(), r.bottom() - 2.2 * t},
           durch ? QStringLiteral("A,ef = (b + 2 · ü) · h") : QStringLiteral("A,ef = (b + ü) · h"),
           Qt::AlignHCenter);
    z.text({r.center().x(), r.bottom() - 0.7 * t},
           QStringLiteral("= %1 · %2 = %3 cm²")
               .arg(z.zahl("0.0", breite / 10.0), z.zahl("0.0", g.hRippe / 10.0),
                    z.zahl("0.0", breite * g.hRippe / 100.0)),
           Qt::AlignHCenter);
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
