#include "ui/drawings/Zeichner.h"

#include <algorithm>
#include <cmath>

#include "basis/Zahlenformat.h"

namespace rippenscheibe {

namespace {

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

// The place of a coordinate so that a line of `breite` pixels fills whole ones.
double gerastert(double x, double breite) {
    const bool ungerade = static_cast<long>(std::lround(breite)) % 2 != 0;
    return ungerade ? std::floor(x) + 0.5 : std::round(x);
}

}  // namespace

Zeichner::Zeichner(QPainter& painter, const QRectF& flaeche, const Zeichenstil& stil, Zeichenhoerer* hoerer)
    : painter_(painter), stil_(stil), hoerer_(hoerer) {
    painter_.save();
    if (!(stil_.mm > 0.0) || !std::isfinite(stil_.mm)) stil_.mm = 1.0;
    if (!(stil_.lupe > 0.0) || !std::isfinite(stil_.lupe)) stil_.lupe = 1.0;
    flaeche_ = QRectF(0.0, 0.0, flaeche.width() / stil_.mm, flaeche.height() / stil_.mm);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setRenderHint(QPainter::TextAntialiasing);
    if (stil_.grundFuellen) painter_.fillRect(flaeche, stil_.grund);
    painter_.translate(flaeche.topLeft());
    painter_.scale(stil_.mm, stil_.mm);
    geraet_ = painter_.deviceTransform();
    if (!geraet_.isInvertible()) stil_.raster = false;
}

Zeichner::~Zeichner() { painter_.restore(); }

bool Zeichner::zuKlein() const {
    const auto brauchbar = [](double x) { return x >= kleinsteSeite && x <= groessteFlaeche; };
    return !brauchbar(flaeche_.width()) || !brauchbar(flaeche_.height());
}

void Zeichner::ebene(Ebene ebene) {
    ebene_ = ebene;
    if (hoerer_ != nullptr) hoerer_->ebene(ebene);
}

void Zeichner::bauteil(const QPolygonF& form, Fensterart fenster, const QString& name) {
    if (hoerer_ == nullptr) return;
    QPainterPath pfad;
    pfad.addPolygon(painter_.worldTransform().map(form));
    pfad.closeSubpath();
    hoerer_->bauteil({pfad, fenster, name});
}

QString Zeichner::zahl(std::string_view maske, double wert) const {
    if (!std::isfinite(wert)) return QStringLiteral("–");
    return QString::fromStdString(formatiere(maske, wert, stil_.dezimalzeichen));
}

// On the grid a line is as many whole pixels thick as its weight asks for, however far the drawing is
// enlarged.
double Zeichner::linienbreite(double mm) const {
    const double pixelJeMm = geraet_.m11();
    if (stil_.raster) return std::max(1.0, std::round(mm * pixelJeMm / stil_.lupe)) / pixelJeMm;
    return std::max(mm, stil_.mindestbreite / stil_.mm) / stil_.lupe;
}

QPointF Zeichner::aufRaster(QPointF p, double breiteX, double breiteY) const {
    if (!stil_.raster) return p;
    const QPointF pixel = geraet_.map(p);
    const double jeMm = geraet_.m11();
    return geraet_.inverted().map(
        QPointF(gerastert(pixel.x(), breiteX * jeMm), gerastert(pixel.y(), breiteY * jeMm)));
}

QPen Zeichner::alsStift(double breite, const QColor& farbe) const {
    QPen pen(farbe, breite);
    pen.setJoinStyle(Qt::RoundJoin);
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

QPen Zeichner::stift(Strich strich, const QColor& farbe, Linienart art) const {
    QPen pen = alsStift(linienbreite(breiteVon(strich)), farbe);
    if (art == Linienart::gestrichelt) {
        const double laenge = 1.6 / pen.widthF();
        pen.setDashPattern({laenge, laenge * 0.6});
    }
    return pen;
}

// A level or upright line fills whole pixels across, and ends where one ends along.
QLineF Zeichner::gerade(QPointF von, QPointF nach, double breite) const {
    const bool waagerecht = von.y() == nach.y();
    if (!waagerecht && von.x() != nach.x()) return {von, nach};
    const double x = waagerecht ? 0.0 : breite;
    const double y = waagerecht ? breite : 0.0;
    return {aufRaster(von, x, y), aufRaster(nach, x, y)};
}

void Zeichner::linie(QPointF von, QPointF nach, Strich strich, const QColor& farbe, Linienart art) {
    const QPen pen = stift(strich, farbe, art);
    painter_.setPen(pen);
    painter_.drawLine(gerade(von, nach, pen.widthF()));
}

void Zeichner::rechteck(const QRectF& r, const QBrush& fuellung, Strich strich, const QColor& farbe) {
    const QPen pen = stift(strich, farbe);
    const double d = pen.widthF();
    painter_.setPen(pen);
    painter_.setBrush(fuellung);
    painter_.drawRect(QRectF(aufRaster(r.topLeft(), d, d), aufRaster(r.bottomRight(), d, d)));
}

void Zeichner::fuelle(const QPolygonF& v, const QColor& farbe) {
    if (!stil_.flaechen) return;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(farbe);
    painter_.drawPolygon(v);
}

void Zeichner::strichreihe(QPointF von, QPointF nach, const Strichfolge& folge, double dicke,
                           const QColor& farbe) {
    QPen pen = alsStift(linienbreite(dicke), farbe);
    const double d = pen.widthF();
    pen.setDashPattern({folge.strich / d, (folge.teilung - folge.strich) / d});
    pen.setDashOffset(folge.beginn / d);
    painter_.setPen(pen);
    painter_.drawLine(gerade(von, nach, d));
}

void Zeichner::boden(double links, double rechts, double y) {
    schraffur({links, y, rechts - links, 0.75 * t()}, 0.55 * t(), stil_.nebentinte);
    linie({links, y}, {rechts, y}, Strich::schnitt, stil_.tinte);
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
    for (int i = 1; i * abstand < r.width() + r.height(); ++i) {
        const double s = i * abstand;
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

void Zeichner::pfeil(QPointF von, QPointF nach, const QColor& farbe, double staerke) {
    const QPointF d = nach - von;
    const double laenge = std::hypot(d.x(), d.y());
    if (!(laenge > 1e-6)) return;
    const QPointF laengs = d / laenge;
    const QPointF quer(-laengs.y(), laengs.x());
    const double kopf = std::min(0.75 * t(), 0.6 * laenge);
    const QPen pen = alsStift(linienbreite(staerke), farbe);
    const QLineF schaft = gerade(von, nach, pen.widthF());
    const QPointF spitze = schaft.p2();
    painter_.setPen(pen);
    painter_.drawLine(schaft.p1(), spitze - laengs * kopf * 0.8);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(farbe);
    const QPointF hinten = spitze - laengs * kopf;
    painter_.drawPolygon(QPolygonF{spitze, hinten + quer * kopf * 0.33, hinten - quer * kopf * 0.33});
}

void Zeichner::hinweislinie(QPointF ding, QPointF label, const QColor& farbe) {
    linie(ding, label, Strich::mass, farbe);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(farbe);
    painter_.drawEllipse(ding, 0.18 * t(), 0.18 * t());
}

}  // namespace rippenscheibe
