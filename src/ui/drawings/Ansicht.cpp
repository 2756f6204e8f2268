#include <algorithm>
#include <cmath>

#include "ui/drawings/Lastbild.h"
#include "ui/drawings/Legende.h"
#include "ui/drawings/Skizzen.h"
#include "ui/drawings/Tafelbild.h"

namespace rippenscheibe {

namespace {

// ---- The dimensions of the elevation ----

// Below the wall, in units of the text: ground and two chains.
constexpr double ersteKette = 3.0;
constexpr double kettenschritt = 2.1;
constexpr double massrandUnten = 5.8;
constexpr double massrandSeite = 3.6;
constexpr double bodenueberstand = 1.4;

// The bays, or the sum of the equal ones where the figures do not fit, and the last shorter one.
Masskette feldkette(const Zeichner& z, const Wandgeometrie& g, const Massstab& m) {
    constexpr double vernachlaessigbar = 0.5;  // mm: a last bay that is only a rounding error
    const QString ar = metertext(g.ar, z);
    const auto ganze = static_cast<std::size_t>(std::floor(g.l / g.ar));
    const double bis = static_cast<double>(ganze) * g.ar;
    Masskette kette{{m.x(0.0)}, {}};
    if (m.f * g.ar > z.textbreite(ar) + 0.5 * z.t()) {
        for (std::size_t i = 1; i <= ganze; ++i) kette.stellen.push_back(m.x(static_cast<double>(i) * g.ar));
        kette.texte.assign(ganze, ar);
    } else if (ganze > 0) {
        kette.stellen.push_back(m.x(bis));
        const QString summe = QStringLiteral("%1 × %2 = %3").arg(ganze).arg(ar, metertext(bis, z));
        kette.texte.push_back(ganze == 1 ? ar : summe);
    }
    if (g.rest > vernachlaessigbar) {
        kette.stellen.push_back(m.x(g.l));
        kette.texte.push_back(metertext(g.rest, z));
    }
    const bool nurEines = ganze <= 1 && kette.texte.size() <= 1;  // the length says it already
    return nurEines ? Masskette{} : kette;
}

// "l = 5,000 m" where it fits, else the figure alone.
QString gesamtmass(const Zeichner& z, const char* name, double mm, double gezeichnet) {
    const QString zahl = metertext(mm, z);
    return gezeichnet > 9.0 * z.t() ? QStringLiteral("%1 = %2 m").arg(QLatin1String(name), zahl) : zahl;
}

enum class Massseite { links, rechts };

void zeichneMasse(Zeichner& z, const Wandgeometrie& g, const Massstab& m, Massseite seite) {
    const double t = z.t();
    const double hilfe = m.y(0.0) + 0.8 * t;
    double y = m.y(0.0) + ersteKette * t;
    if (const Masskette felder = feldkette(z, g, m); !felder.stellen.empty()) {
        z.massWaagerecht(y, hilfe, felder);
        y += kettenschritt * t;
    }
    z.massWaagerecht(y, hilfe, {{m.x(0.0), m.x(g.l)}, {gesamtmass(z, "l", g.l, m.f * g.l)}});
    const bool rechts = seite == Massseite::rechts;
    const double kante = rechts ? m.x(g.l) + bodenueberstand * t : m.x(0.0) - bodenueberstand * t;
    z.massSenkrecht(rechts ? kante + 1.6 * t : kante - 0.8 * t, kante,
                    {{m.y(0.0), m.y(g.h)}, {gesamtmass(z, "h", g.h, m.f * g.h)}});
}

// ---- The whole drawing ----

class Ansicht {
  public:
    Ansicht(Zeichner& z, const Wand& w, const Wandgeometrie& g) : z_(z), w_(w), g_(g), lasten_(z, w, g) {}
    void zeichne();

  private:
    // What stands beside the wall for one place of the words, and the scale that it leaves.
    struct Anordnung {
        Lastbild::Wortlage worte;
        double links, rechts, oben;
        double f;
    };
    Anordnung anordnung(Lastbild::Wortlage worte, double untererRand) const;
    double bandhoehe() const;
    void ordneAn();
    void schnittUndLegende();

    Zeichner& z_;
    const Wand& w_;
    const Wandgeometrie& g_;
    Lastbild lasten_;
    Massstab m_;
    Lastbild::Wortlage worte_ = Lastbild::Wortlage::daneben;
    Massseite massseite_ = Massseite::rechts;
    double bandOben_ = 0.0;  // y where section and legend begin; the height of the area without them
};

Ansicht::Anordnung Ansicht::anordnung(Lastbild::Wortlage worte, double untererRand) const {
    const double t = z_.t();
    const QRectF r = z_.flaeche();
    const bool daneben = worte == Lastbild::Wortlage::daneben && lasten_.wortbreite() > 0.0;
    const bool massRechts = massseite_ == Massseite::rechts;
    Anordnung a{worte, 1.8 * t, 1.8 * t, 1.0 * t + lasten_.hoehe(worte), 0.0};
    (massRechts ? a.rechts : a.links) = massrandSeite * t;
    if (lasten_.horizontal()) {
        double& kraftseite = lasten_.vonLinks() ? a.links : a.rechts;
        kraftseite = std::max(kraftseite, lasten_.kraftbreite());
    }
    // A short last bay has its figure outside.
    if (g_.rest > 0.0 && g_.rest < g_.ar)
        a.rechts = std::max(a.rechts, z_.textbreite(metertext(g_.rest, z_)) + 0.9 * t);
    if (daneben) a.rechts = std::max(a.rechts, lasten_.wortbreite() + 1.2 * t);
    a.f = std::min(std::max(1.0, r.width() - a.links - a.rechts) / g_.l,
                   std::max(1.0, r.height() - a.oben - untererRand) / g_.h);
    return a;
}

// Section and legend have what they need, and leave the elevation at least three fifths of the height.
double Ansicht::bandhoehe() const {
    const double t = z_.t();
    const QRectF r = z_.flaeche();
    const double legendenbreite = 0.48 * r.width() - 1.2 * t;  // beside the widest section
    const double noetig = legendenhoehe(z_, legendenbreite, legende(z_, w_, Ankerlegende::mit)) + 0.5 * t;
    const double ueblich = std::clamp(0.27 * r.height(), 9.0 * t, 12.0 * t);
    return std::clamp(noetig, ueblich, std::max(ueblich, 0.4 * r.height()));
}

void Ansicht::ordneAn() {
    const double t = z_.t();
    const QRectF r = z_.flaeche();
    // The height is dimensioned on the side without the load.
    massseite_ = lasten_.vonLinks() || !lasten_.horizontal() ? Massseite::rechts : Massseite::links;
    const bool mitBand =
        r.height() >= 20.0 * t + lasten_.hoehe(Lastbild::Wortlage::darueber) && r.width() >= 26.0 * t;
    const double kleinstesBand = mitBand ? bandhoehe() : 0.0;
    const double unten = massrandUnten * t + kleinstesBand;
    Anordnung a = anordnung(Lastbild::Wortlage::daneben, unten);
    if (const Anordnung b = anordnung(Lastbild::Wortlage::darueber, unten); b.f > a.f) a = b;

    worte_ = a.worte;
    m_.f = a.f;
    // Spare height makes the section larger first, then stands above, between and below.
    const double rest = std::max(0.0, r.height() - a.oben - unten - m_.f * g_.h);
    const double mehrBand = mitBand ? std::min({0.6 * rest, 9.0 * t, 0.4 * r.height() - kleinstesBand}) : 0.0;
    const double luft = (rest - std::max(0.0, mehrBand)) / (mitBand ? 3.0 : 2.0);
    const double breite = r.width() - a.links - a.rechts;
    m_.fuss = QPointF(a.links + (breite - m_.f * g_.l) / 2.0, a.oben + luft + m_.f * g_.h);
    bandOben_ = mitBand ? r.height() - kleinstesBand - std::max(0.0, mehrBand) - 0.5 * luft : r.height();
}

void Ansicht::schnittUndLegende() {
    const QRectF r = z_.flaeche();
    if (bandOben_ >= r.height() - 1.0) return;
    const double t = z_.t();
    const double links = std::max(1.0 * t, std::min(m_.x(0.0), 0.2 * r.width()) - 2.2 * t);
    const QRectF platz(links, bandOben_ + 0.8 * t, 0.4 * (r.width() - links),
                       r.height() - bandOben_ - 1.4 * t);
    const QRectF schnitt = zeichneSchnitt(z_, platz, w_, Schnittbeschriftung::masse);
    const double legendeLinks = schnitt.right() + 2.0 * t;
    const bool amAnker = Tafelbild::ankernameAmAnker(z_, w_, g_, m_);
    zeichneLegende(z_,
                   {legendeLinks, bandOben_ + 0.2 * t, r.width() - legendeLinks - 0.5 * t,
                    r.height() - bandOben_ - 0.4 * t},
                   legende(z_, w_, amAnker ? Ankerlegende::ohne : Ankerlegende::mit));
}

void Ansicht::zeichne() {
    ordneAn();
    const double ueber = bodenueberstand * z_.t();
    z_.boden(m_.x(0.0) - ueber, m_.x(g_.l) + ueber, m_.y(0.0));
    Tafelbild(z_, w_, g_, m_, Tafelart::aufgeschnitten).zeichne();
    lasten_.zeichne(m_, worte_);
    zeichneMasse(z_, g_, m_, massseite_);
    schnittUndLegende();
}

}  // namespace

void zeichneAnsicht(Zeichner& z, const Wand& w) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie) return z.satzImRahmen(pruefung.satz);
    Ansicht(z, w, *pruefung.geometrie).zeichne();
}

void zeichneMiniatur(Zeichner& z, const Wand& w) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    const QRectF r = z.flaeche();
    if (!pruefung.geometrie) {
        z.linie(r.topLeft(), r.bottomRight(), Strich::mass, z.stil().nebentinte);
        return z.rechteck(r, Qt::NoBrush, Strich::mass, z.stil().nebentinte);
    }
    const Wandgeometrie& g = *pruefung.geometrie;
    constexpr double rand = 1.0;  // mm
    Massstab m;
    m.f = std::min((r.width() - 2.0 * rand) / g.l, (r.height() - 2.0 * rand) / g.h);
    m.fuss = {(r.width() - m.f * g.l) / 2.0, r.height() - rand};
    Tafelbild(z, w, g, m, Tafelart::miniatur).zeichne();
    z.linie({0.0, m.y(0.0)}, {r.width(), m.y(0.0)}, Strich::ansicht, z.stil().tinte);
}

void zeichneBauansicht(Zeichner& z, const Wand& w, double massstab) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie) return z.satzImRahmen(pruefung.satz);
    const Massstab m{massstab, {0.0, 0.0}};
    Tafelbild(z, w, *pruefung.geometrie, m, Tafelart::bauzeichnung).zeichne();
    zeichneMasse(z, *pruefung.geometrie, m, Massseite::rechts);
}

}  // namespace rippenscheibe
