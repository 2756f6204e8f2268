#include "ui/drawings/Zeichner.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "basis/Zahlenformat.h"

namespace rippenscheibe {

namespace {

// Fonts have whole pixel sizes: text is laid out at this size and scaled to its millimetres.
constexpr int schriftreferenz = 100;
constexpr double kleinsteSeite = 8.0;    // mm
constexpr double groessteFlaeche = 1e5;  // mm

double breiteVon(Strich strich) {
    switch (strich) {
        case Strich::schnitt:
            return 0.50;
        case Strich::ansicht:
            return 0.25;
        case Strich::mass:
            return 0.13;
    }
    return 0.25;
}

}  // namespace

Zeichner::Zeichner(QPainter& painter, const QRectF& flaeche, const Zeichenstil& stil)
    : painter_(painter), stil_(stil) {
    painter_.save();
    if (!(stil_.mm > 0.0) || !std::isfinite(stil_.mm)) stil_.mm = 1.0;
    flaeche_ = QRectF(0.0, 0.0, flaeche.width() / stil_.mm, flaeche.height() / stil_.mm);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::TextAntialiasing);
    if (stil_.grundFuellen) painter_.fillRect(flaeche, stil_.grund);
    painter_.translate(flaeche.topLeft());
    painter_.scale(stil_.mm, stil_.mm);
}

Zeichner::~Zeichner() { painter_.restore(); }

bool Zeichner::zuKlein() const {
    const auto brauchbar = [](double x) { return x >= kleinsteSeite && x <= groessteFlaeche; };
    return !brauchbar(flaeche_.width()) || !brauchbar(flaeche_.height());
}

QString Zeichner::zahl(std::string_view maske, double wert) const {
    if (!std::isfinite(wert)) return QStringLiteral("–");
    return QString::fromStdString(formatiere(maske, wert, stil_.dezimalzeichen));
}

QPen Zeichner::stift(Strich strich, const QColor& farbe, Linienart art) const {
    QPen pen(farbe, std::max(breiteVon(strich), stil_.mindestbreite / stil_.mm));
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::FlatCap);
    if (art == Linienart::gestrichelt) {
        const double laenge = 1.6 / pen.widthF();
        pen.setDashPattern({laenge, laenge * 0.6});
    }
    return pen;
}

void Zeichner::linie(QPointF von, QPointF nach, Strich strich, const QColor& farbe, Linienart art) {
    painter_.setPen(stift(strich, farbe, art));
    painter_.drawLine(von, nach);
}

void Zeichner::rechteck(const QRectF& r, const QBrush& fuellung, Strich strich, const QColor& farbe) {
    painter_.setPen(stift(strich, farbe));
    painter_.setBrush(fuellung);
    painter_.drawRect(r);
}

void Zeichner::vieleck(const QPolygonF& v, const QBrush& fuellung, Strich strich, const QColor& farbe) {
    painter_.setPen(stift(strich, farbe));
    painter_.setBrush(fuellung);
    painter_.drawPolygon(v);
}

void Zeichner::kreis(QPointF mitte, double radius, const QBrush& fuellung, Strich strich,
                     const QColor& farbe) {
    painter_.setPen(stift(strich, farbe));
    painter_.setBrush(fuellung);
    painter_.drawEllipse(mitte, radius, radius);
}

void Zeichner::holz(const QRectF& r, Strich strich) { rechteck(r, stil_.holz, strich, stil_.holzlinie); }

void Zeichner::hirnholz(const QRectF& r) {
    rechteck(r, stil_.holz, Strich::schnitt, stil_.holzlinie);
    linie(r.topLeft(), r.bottomRight(), Strich::mass, stil_.holzlinie);
    linie(r.topRight(), r.bottomLeft(), Strich::mass, stil_.holzlinie);
}

void Zeichner::schraffur(const QRectF& r, double abstand, const QColor& farbe) {
    if (!(abstand > 0.05) || (r.width() + r.height()) / abstand > 5000.0) return;
    QVector<QLineF> linien;
    for (double s = abstand; s < r.width() + r.height(); s += abstand) {
        const double unten = std::max(0.0, s - r.width());
        const double rechts = std::min(s, r.width());
        linien.append(QLineF(r.left() + rechts, r.top() + unten, r.left() + std::max(0.0, s - r.height()),
                             r.top() + std::min(s, r.height())));
    }
    painter_.setPen(stift(Strich::mass, farbe));
    painter_.drawLines(linien);
}

void Zeichner::bruchlinie(QPointF von, QPointF nach, const QColor& farbe) {
    const QPointF d = nach - von;
    const double laenge = std::hypot(d.x(), d.y());
    if (!(laenge > 0.0)) return;
    const QPointF quer = QPointF(-d.y(), d.x()) / laenge * std::min(0.5 * t(), 0.12 * laenge);
    painter_.setPen(stift(Strich::mass, farbe));
    painter_.drawPolyline(
        QPolygonF{von, von + d * 0.44, von + d * 0.47 + quer, von + d * 0.53 - quer, von + d * 0.56, nach});
}

QFont Zeichner::font(const Textart& art) const {
    QFont f;
    // Liberation Sans has the widths of Arial and stands in where Arial is not installed.
    if (!stil_.familie.isEmpty()) f.setFamilies({stil_.familie, QStringLiteral("Liberation Sans")});
    f.setPixelSize(schriftreferenz);
    f.setBold(art.fett);
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

void Zeichner::text(QPointF punkt, const QString& text, Qt::Alignment lage, const Textart& art) {
    const QFont f = font(art);
    const QFontMetricsF masse(f);
    const double breite = masse.horizontalAdvance(text);
    double x = 0.0;
    if (lage & Qt::AlignHCenter) x = -breite / 2.0;
    if (lage & Qt::AlignRight) x = -breite;
    double y = 0.0;  // the baseline
    if (lage & Qt::AlignVCenter) y = masse.capHeight() / 2.0;
    if (lage & Qt::AlignTop) y = masse.capHeight();
    painter_.save();
    painter_.translate(punkt);
    if (art.senkrecht) painter_.rotate(-90.0);
    const double faktor = t() * art.faktor / schriftreferenz;
    painter_.scale(faktor, faktor);
    painter_.setFont(f);
    painter_.setPen(art.farbe.isValid() ? art.farbe : stil_.tinte);
    painter_.drawText(QPointF(x, y), text);
    painter_.restore();
}

void Zeichner::textPassend(QPointF punkt, const QString& text, Qt::Alignment lage, double breite,
                           const Textart& art) {
    constexpr double kleinste = 0.75;
    Textart passend = art;
    passend.faktor *= std::clamp(breite / std::max(1e-6, textbreite(text, art)), kleinste, 1.0);
    this->text(punkt, gekuerzt(text, breite * 1.001, passend), lage, passend);
}

void Zeichner::schild(QPointF mitte, const QString& text, const Textart& art) {
    const QSizeF s(textbreite(text, art) + 0.6 * t(), 1.3 * t() * art.faktor);
    QColor grund = stil_.grund;
    grund.setAlphaF(0.8F);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(grund);
    painter_.drawRoundedRect(QRectF(mitte - QPointF(s.width() / 2.0, s.height() / 2.0), s), 0.3 * t(),
                             0.3 * t());
    this->text(mitte, text, Qt::AlignHCenter | Qt::AlignVCenter, art);
}

double Zeichner::textbreite(const QString& text, const Textart& art) const {
    return QFontMetricsF(font(art)).horizontalAdvance(text) * t() * art.faktor / schriftreferenz;
}

QString Zeichner::gekuerzt(const QString& text, double breite, const Textart& art) const {
    const double pixel = breite * schriftreferenz / (t() * art.faktor);
    return QFontMetricsF(font(art)).elidedText(text, Qt::ElideRight, std::clamp(pixel, 0.0, 1e7));
}

double Zeichner::absatz(QPointF linksOben, double breite, const QString& text, const Textart& art) {
    QTextLayout satz(text, font(art));
    satz.beginLayout();
    const double zeilenhoehe = 1.35 * t() * art.faktor;
    double y = 0.0;
    for (QTextLine zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
        zeile.setLineWidth(std::clamp(breite * schriftreferenz / (t() * art.faktor), 1.0, 1e7));
        this->text(linksOben + QPointF(0.0, y + t() * art.faktor),
                   text.mid(zeile.textStart(), zeile.textLength()).trimmed(), Qt::AlignLeft, art);
        y += zeilenhoehe;
    }
    satz.endLayout();
    return y;
}

void Zeichner::marke(QPointF mitte, const QString& text, const QColor& farbe) {
    kreis(mitte, 0.85 * t(), stil_.grund, Strich::ansicht, farbe);
    this->text(mitte, text, Qt::AlignHCenter | Qt::AlignVCenter, {1.0, true, farbe});
}

void Zeichner::pfeil(QPointF von, QPointF nach, const QColor& farbe, double staerke) {
    const QPointF d = nach - von;
    const double laenge = std::hypot(d.x(), d.y());
    if (!(laenge > 1e-6)) return;
    const QPointF laengs = d / laenge;
    const QPointF quer(-laengs.y(), laengs.x());
    const double kopf = std::min(0.75 * t(), 0.6 * laenge);
    QPen pen(farbe, std::max(staerke, stil_.mindestbreite / stil_.mm));
    pen.setCapStyle(Qt::FlatCap);
    painter_.setPen(pen);
    painter_.drawLine(von, nach - laengs * kopf * 0.8);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(farbe);
    const QPointF hinten = nach - laengs * kopf;
    painter_.drawPolygon(QPolygonF{nach, hinten + quer * kopf * 0.33, hinten - quer * kopf * 0.33});
}

void Zeichner::hinweislinie(QPointF ding, QPointF label, const QColor& farbe) {
    linie(ding, label, Strich::mass, farbe);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(farbe);
    painter_.drawEllipse(ding, 0.18 * t(), 0.18 * t());
}

void Zeichner::strichmarke(QPointF p) {
    const double a = 0.28 * t();
    painter_.setPen(stift(Strich::ansicht, stil_.tinte));
    painter_.drawLine(p + QPointF(-a, a), p + QPointF(a, -a));
}

namespace {

// Where the text of one piece stands along the line: inside, outside at an end, or nowhere.
struct Textplatz {
    double mitte = 0.0;
    bool gezeichnet = true;
    double linieBis = 0.0;  // the dimension line reaches to here
};

Textplatz textplatz(const Masskette& kette, std::size_t i, double breite, double rand) {
    const double a = kette.stellen[i];
    const double b = kette.stellen[i + 1];
    if (breite + rand <= std::fabs(b - a)) return {(a + b) / 2.0, true, b};
    const double richtung = b >= a ? 1.0 : -1.0;
    if (i + 2 == kette.stellen.size())
        return {b + richtung * (rand + breite / 2.0), true, b + richtung * (rand + breite)};
    if (i == 0) return {a - richtung * (rand + breite / 2.0), true, a - richtung * (rand + breite)};
    return {0.0, false, a};
}

}  // namespace

void Zeichner::massWaagerecht(double y, double hilfe, const Masskette& kette) {
    if (kette.stellen.size() < 2) return;
    double von = kette.stellen.front();
    double bis = kette.stellen.back();
    for (std::size_t i = 0; i + 1 < kette.stellen.size() && i < kette.texte.size(); ++i) {
        const Textplatz p = textplatz(kette, i, textbreite(kette.texte[i]), 0.5 * t());
        if (!p.gezeichnet) continue;
        text({p.mitte, y - 0.3 * t()}, kette.texte[i], Qt::AlignHCenter);
        von = std::min(von, p.linieBis);
        bis = std::max(bis, p.linieBis);
    }
    linie({von, y}, {bis, y}, Strich::mass, stil_.tinte);
    for (const double x : kette.stellen) {
        const double richtung = y > hilfe ? 1.0 : -1.0;
        linie({x, hilfe + richtung * 0.3 * t()}, {x, y + richtung * 0.4 * t()}, Strich::mass, stil_.tinte);
        strichmarke({x, y});
    }
}

void Zeichner::massSenkrecht(double x, double hilfe, const Masskette& kette) {
    if (kette.stellen.size() < 2) return;
    double oben = std::min(kette.stellen.front(), kette.stellen.back());
    double unten = std::max(kette.stellen.front(), kette.stellen.back());
    for (std::size_t i = 0; i + 1 < kette.stellen.size() && i < kette.texte.size(); ++i) {
        const Textplatz p = textplatz(kette, i, textbreite(kette.texte[i]), 0.5 * t());
        if (!p.gezeichnet) continue;
        text({x - 0.3 * t(), p.mitte}, kette.texte[i], Qt::AlignHCenter, {1.0, false, {}, true});
        oben = std::min(oben, p.linieBis);
        unten = std::max(unten, p.linieBis);
    }
    linie({x, oben}, {x, unten}, Strich::mass, stil_.tinte);
    for (const double y : kette.stellen) {
        const double richtung = x > hilfe ? 1.0 : -1.0;
        linie({hilfe + richtung * 0.3 * t(), y}, {x + richtung * 0.4 * t(), y}, Strich::mass, stil_.tinte);
        strichmarke({x, y});
    }
}

void Zeichner::satzImRahmen(const QString& satz) {
    if (zuKlein()) return;
    const double rand = std::min(t(), 0.05 * std::min(flaeche_.width(), flaeche_.height()));
    rechteck(flaeche_.adjusted(rand, rand, -rand, -rand), Qt::NoBrush, Strich::mass, stil_.nebentinte);
    const double breite = std::max(1.0, flaeche_.width() - 4.0 * t());
    const Textart art{1.0, false, stil_.nebentinte};
    if (textbreite(satz, art) <= breite)
        return text(flaeche_.center(), satz, Qt::AlignHCenter | Qt::AlignVCenter, art);
    absatz({2.0 * t(), std::max(rand, flaeche_.height() / 2.0 - 1.5 * t())}, breite, satz, art);
}

}  // namespace rippenscheibe
