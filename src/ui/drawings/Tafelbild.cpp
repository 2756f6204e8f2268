#include "ui/drawings/Tafelbild.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace rippenscheibe {

namespace {

// The elevation uncovers the ribs to the right of this line: above it sheathing 1 is cut away.
constexpr double schnittOben = 0.66;
constexpr double schnittUnten = 0.52;

Ebene plattenebene(Seite n) { return n == Seite::eins ? Ebene::beplankung1 : Ebene::beplankung2; }

QString ankertext(const Wand& w) {
    return QStringLiteral("%1 × %2").arg(w.AnzahlAnker.value()).arg(ankerkurzname(w));
}

double ankerhoehe(const Zeichner& z, const Wandgeometrie& g, const Massstab& m) {
    return std::clamp(0.16 * g.h * m.f, 1.8 * z.t(), 5.0 * z.t());
}

double ankerbreite(const Zeichner& z, const Wandgeometrie& g, const Massstab& m) {
    return std::clamp(0.6 * g.bRandrippe * m.f, 0.5 * z.t(), 1.2 * z.t());
}

}  // namespace

QPolygonF Tafelbild::gezeigt(Seite n) const {
    const QRectF ganz = m_.rechteck(0.0, 0.0, g_.l, g_.h);
    if (art_ == Tafelart::bauzeichnung) return ganz;
    const QPointF so(m_.x(schnittOben * g_.l), ganz.top());
    const QPointF su(m_.x(schnittUnten * g_.l), ganz.bottom());
    return n == Seite::eins ? QPolygonF{ganz.topLeft(), so, su, ganz.bottomLeft()}
                            : QPolygonF{so, ganz.topRight(), ganz.bottomRight(), su};
}

void Tafelbild::platte(Seite n) {
    const Ebenenwechsel ebene(z_, plattenebene(n));
    if (art_ == Tafelart::bauzeichnung)
        return z_.vieleck(gezeigt(n), Qt::NoBrush, Strich::ansicht, z_.stil().plattenkante[n]);
    z_.fuelle(gezeigt(n), z_.stil().durchscheinend(n));
    if (n == Seite::eins)
        z_.bruchlinie({m_.x(schnittUnten * g_.l), m_.y(0.0)}, {m_.x(schnittOben * g_.l), m_.y(g_.h)},
                      z_.stil().plattenkante[n]);
}

void Tafelbild::rippe(const QRectF& r, Strich strich, const QString& name) {
    z_.holz(r, strich);
    z_.bauteil(r, Fensterart::rippen, name);
}

void Tafelbild::rippen() {
    const Ebenenwechsel ebene(z_, Ebene::rippen);
    const double b = g_.bKopfFussrippe;
    const double hoehe = g_.h - 2.0 * b;
    // The bottom rib runs on beyond the wall where it is continuous there.
    const double ueber = std::max(30.0, 0.9 * z_.t() / m_.f);
    const double links = w_.FussrippeLinksDurchgehend ? ueber : 0.0;
    const double rechts = w_.FussrippeRechtsDurchgehend ? ueber : 0.0;
    const auto name = [&](const char* welche, double breite, double dicke) {
        return QStringLiteral("%1 %2 x %3 cm")
            .arg(QString::fromUtf8(welche), z_.zahl("0.0", breite / 10.0), z_.zahl("0.0", dicke / 10.0));
    };
    const QString innen = name("Innenrippe", g_.bInnenrippe, g_.hRippe);
    const QString rand = name("Randrippe", g_.bRandrippe, g_.hRippe);
    for (const double achse : g_.innenrippen)
        rippe(m_.rechteck(achse - g_.bInnenrippe / 2.0, b, g_.bInnenrippe, hoehe), Strich::mass, innen);
    rippe(m_.rechteck(0.0, b, g_.bRandrippe, hoehe), Strich::ansicht, rand);
    rippe(m_.rechteck(g_.l - g_.bRandrippe, b, g_.bRandrippe, hoehe), Strich::ansicht, rand);
    rippe(m_.rechteck(0.0, g_.h - b, g_.l, b), Strich::ansicht, name("Kopfrippe", g_.hRippe, b));
    rippe(m_.rechteck(-links, 0.0, g_.l + links + rechts, b), Strich::ansicht,
          name("Fußrippe", g_.hRippe, b));
}

void Tafelbild::stoesse(Seite n) {
    const Ebenenwechsel ebene(z_, plattenebene(n));
    const QColor farbe = z_.stil().plattenkante[n];
    for (const double x : g_.plattenstoesse[n])
        z_.linie({m_.x(x), m_.y(0.0)}, {m_.x(x), m_.y(g_.h)}, Strich::ansicht, farbe, Linienart::gestrichelt);
    if (!w_.Gestossen[n]) return;
    const double y = m_.y(g_.h / 2.0);
    z_.linie({m_.x(0.0), y}, {m_.x(g_.l), y}, Strich::ansicht, farbe, Linienart::gestrichelt);
}

// A row of fasteners as one dashed line: a stroke is a fastener, at its real spacing. Where the strokes
// would run together only every second, third ... is drawn; the legend gives the spacing.
void Tafelbild::vmReihe(const VMReihe& reihe, Seite n) {
    const double engste = art_ == Tafelart::bauzeichnung ? 0.0 : 0.4 / z_.stil().lupe;  // mm, 1.5 pixels
    const double abstand = g_.av[n] * m_.f;
    const double teilung = abstand >= engste ? abstand : abstand * std::ceil(2.0 * engste / abstand);
    const double strich = std::min(0.4 * teilung, 0.35 * z_.t());
    constexpr double dicke = 0.2;
    const QColor farbe = n == Seite::eins ? z_.stil().stahl : z_.stil().plattenkante[n];
    const QPointF von(m_.x(reihe.x1), m_.y(reihe.y1));
    const QPointF nach(m_.x(reihe.x2), m_.y(reihe.y2));
    z_.strichreihe(von, nach, {strich, teilung}, dicke, farbe);
    if (!reihe.zweireihig) return;
    const double versatz = std::max(0.5, 0.2 * z_.t());
    const QPointF quer = reihe.y1 == reihe.y2 ? QPointF(0.0, versatz) : QPointF(versatz, 0.0);
    z_.strichreihe(von + quer, nach + quer, {strich, teilung, teilung / 2.0}, dicke, farbe);
}

std::vector<VMReihe> Tafelbild::reihen(Seite n) const {
    constexpr std::size_t hoechstens = 2000;  // more would only be a grey patch
    std::vector<VMReihe> reihen = rippenscheibe::vmReihen(w_, n);
    if (reihen.size() > hoechstens) reihen.clear();
    return reihen;
}

void Tafelbild::vmReihen(Seite n) {
    const Ebenenwechsel ebene(z_, Ebene::verbindungsmittel);
    for (const VMReihe& reihe : reihen(n)) vmReihe(reihe, n);
}

// Joints and fasteners of a side, as far as its sheathing is shown.
void Tafelbild::stoesseUndReihen(Seite n) {
    QPainterPath sichtbar;
    sichtbar.addPolygon(gezeigt(n));
    z_.painter().save();
    if (art_ != Tafelart::bauzeichnung) z_.painter().setClipPath(sichtbar, Qt::IntersectClip);
    stoesse(n);
    if (art_ != Tafelart::miniatur) vmReihen(n);
    z_.painter().restore();
}

void Tafelbild::marken() {
    const double t = z_.t();
    if (m_.f * g_.l <= 14.0 * t || m_.f * g_.h <= 4.0 * t) return;
    const double y = m_.y(0.78 * g_.h);
    z_.marke({m_.x(0.25 * g_.l), y}, QStringLiteral("1"), z_.stil().plattenlinie[Seite::eins]);
    if (!g_.einseitig)
        z_.marke({m_.x(0.85 * g_.l), y}, QStringLiteral("2"), z_.stil().plattenlinie[Seite::zwei]);
}

QRectF Tafelbild::ankerrechteck(bool links) const {
    const double hoehe = ankerhoehe(z_, g_, m_);
    const double breite = 1.35 * ankerbreite(z_, g_, m_);
    const double kante = links ? m_.x(g_.bRandrippe) : m_.x(g_.l - g_.bRandrippe);
    return {links ? kante - 0.26 * breite : kante - 0.74 * breite, m_.y(0.0) - hoehe, breite, hoehe};
}

void Tafelbild::ankerblech(bool links) {
    const double t = z_.t();
    const double hoehe = ankerhoehe(z_, g_, m_);
    const double breite = ankerbreite(z_, g_, m_);
    const double innen = links ? 1.0 : -1.0;
    const double x = links ? m_.x(g_.bRandrippe) : m_.x(g_.l - g_.bRandrippe);
    const double y = m_.y(0.0);
    const auto von = [&](double dx, double dy) { return QPointF(x + innen * dx, y - dy); };
    const QColor stahl = z_.stil().stahl;
    z_.vieleck({von(0.0, 0.0), von(0.0, hoehe), von(-0.35 * breite, hoehe), von(-0.35 * breite, 0.0)}, stahl,
               Strich::mass, stahl);
    z_.vieleck({von(0.0, 0.0), von(breite, 0.0), von(breite, 0.3 * t), von(0.0, 0.3 * t)}, stahl,
               Strich::mass, stahl);
    z_.linie(von(0.55 * breite, 0.9 * t), von(0.55 * breite, -1.5 * t), Strich::schnitt, stahl);
}

bool Tafelbild::ankernameAmAnker(const Zeichner& z, const Wand& w, const Wandgeometrie& g,
                                 const Massstab& m) {
    const double platz = (g.l - 2.0 * g.bRandrippe) * m.f - 2.0 * ankerbreite(z, g, m) - 4.0 * z.t();
    return z.textbreite(ankertext(w)) < platz && g.h * m.f > 7.0 * z.t();
}

// Beside the left anchor, with a line to it.
void Tafelbild::ankername() {
    const double t = z_.t();
    const QRectF blech = ankerrechteck(true);
    const QPointF ab(blech.right() + 0.7 * t, m_.y(g_.bKopfFussrippe) - 1.5 * t);
    const double breite = z_.textbreite(ankertext(w_)) + 0.6 * t;
    z_.hinweislinie({blech.left() + 0.3 * blech.width(), ab.y()}, ab, z_.stil().tinteAufHolz);
    z_.schild(ab + QPointF(breite / 2.0, 0.0), ankertext(w_));
}

void Tafelbild::anker() {
    if (!w_.NachweisVerankerung) return;
    const Ebenenwechsel ebene(z_, Ebene::anker);
    ankerblech(true);
    ankerblech(false);
    if (art_ == Tafelart::aufgeschnitten && ankernameAmAnker(z_, w_, g_, m_)) ankername();
}

// The upright rows as far as their side is shown, and the anchors.
void Tafelbild::bauteile() {
    if (art_ != Tafelart::aufgeschnitten) return;
    const double halb = std::clamp(0.2 * g_.bInnenrippe * m_.f, 0.25, 0.6) / z_.stil().lupe;
    for (const Seite n : beideSeiten) {
        if (n == Seite::zwei && g_.einseitig) continue;
        const QRectF sichtbar = gezeigt(n).boundingRect();
        const QString name = verbindungsmittelzeile(w_, n, z_);
        for (const VMReihe& reihe : reihen(n)) {
            const double x = m_.x(reihe.x1);
            if (reihe.x1 != reihe.x2 || !sichtbar.contains(QPointF(x, m_.y(g_.h / 2.0)))) continue;
            z_.bauteil(QRectF(x - halb, m_.y(g_.h), 2.0 * halb, g_.h * m_.f), Fensterart::verbindungsmittel,
                       name);
        }
    }
    if (!w_.NachweisVerankerung) return;
    for (const bool links : {true, false})
        z_.bauteil(ankerrechteck(links), Fensterart::verankerung, QStringLiteral("Anker: ") + ankertext(w_));
}

void Tafelbild::zeichne() {
    // Sheathings lie below the ribs for the pointer, else no rib could be pointed at.
    const auto plattenteil = [&](Seite n) {
        z_.bauteil(gezeigt(n), Fensterart::beplankung, plattenzeile(w_, n, z_));
    };
    plattenteil(Seite::eins);
    if (!g_.einseitig) plattenteil(Seite::zwei);
    if (!g_.einseitig) platte(Seite::zwei);
    rippen();
    if (!g_.einseitig) stoesseUndReihen(Seite::zwei);
    platte(Seite::eins);
    stoesseUndReihen(Seite::eins);
    if (art_ != Tafelart::bauzeichnung)
        z_.rechteck(m_.rechteck(0.0, 0.0, g_.l, g_.h), Qt::NoBrush, Strich::schnitt, z_.stil().holzlinie);
    if (art_ == Tafelart::aufgeschnitten) marken();
    anker();
    bauteile();
}

}  // namespace rippenscheibe
