#include "ui/paper/Seitenmaler.h"

#include <QFontMetricsF>
#include <utility>

#include "basis/Laengenmass.h"
#include "ui/basics/Programm.h"
#include "ui/drawings/Zeichnungen.h"

namespace rippenscheibe {

namespace {

constexpr double rechterRand = 210.0;  // mm, of the A4 paper

QColor qfarbe(Farbe farbe) { return QColor::fromRgb(static_cast<QRgb>(farbe)); }

}  // namespace

Seitenmaler::Seitenmaler(QPainter& painter, double mm, Bildquelle bilder, std::function<void()> neueSeite)
    : painter_(painter), mm_(mm), bilder_(std::move(bilder)), neueSeite_(std::move(neueSeite)) {
    setzeSchrift({});
}

void Seitenmaler::setzeSchrift(const Schrift& schrift) {
    // Points are counted in the painter's own dots; the page may be drawn smaller or larger than that.
    const double dichte = painter_.device()->logicalDpiY();
    QFont font = papierschrift(schrift);
    font.setPointSizeF(schrift.groesse * mm_ * mmJeZoll / dichte);
    font.setUnderline(false);
    painter_.setFont(font);
    schrift_ = schrift;
    mass_ = schriftmass(schrift);
    textfarbe_ = qfarbe(schrift.farbe);
}

void Seitenmaler::setzeStrich(double breite) { strich_ = breite * mm_; }

void Seitenmaler::text(double x, double y, std::string_view text) {
    const QPointF grundlinie(x * mm_, (y + mass_.oberlaenge) * mm_);
    const QString worte = qtext(text);
    painter_.setPen(textfarbe_);
    painter_.drawText(grundlinie, worte);
    const double breite =
        QFontMetricsF(painter_.font(), painter_.device()).horizontalAdvance(worte.trimmed());
    if (abgeschnitten_.isEmpty() && grundlinie.x() + breite > rechterRand * mm_) abgeschnitten_ = worte;
    if (schrift_.unterstrichen)
        unterstreiche(grundlinie, QFontMetricsF(painter_.font(), painter_.device()).horizontalAdvance(worte));
}

// The fonts say where their underline lies, and some of them cut through the letters: this one stands clear
// below them.
void Seitenmaler::unterstreiche(QPointF grundlinie, double breite) {
    constexpr double tiefe = 0.11;  // em below the base line
    const double em = schrift_.groesse * mm_ * mmJeZoll / punkteJeZoll;
    const double dicke = (schrift_.fett ? 0.09 : 0.06) * em;
    painter_.fillRect(QRectF(grundlinie + QPointF(0.0, tiefe * em), QSizeF(breite, dicke)), textfarbe_);
}

void Seitenmaler::rahmen(const Rechteck& rechteck, Farbe farbe) {
    painter_.setPen(QPen(qfarbe(farbe), strich_, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(inEinheiten(rechteck));
}

void Seitenmaler::flaeche(const Rechteck& rechteck, Farbe farbe) {
    painter_.fillRect(inEinheiten(rechteck), qfarbe(farbe));
}

void Seitenmaler::bild(Bild bild, const Rechteck& rechteck) {
    const QRectF ort = inEinheiten(rechteck);
    if (bild == Bild::logo) {
        if (!bilder_.logo.isNull()) painter_.drawImage(ort, bilder_.logo);
        return;
    }
    Zeichenstil stil = Zeichenstil::papier(mm_);
    stil.dezimalzeichen = bilder_.dezimalzeichen;
    painter_.save();
    zeichneBild(painter_, ort, bild, bilder_.w, stil);
    painter_.restore();
}

void Seitenmaler::formel(int nummer, double x, double y) {
    if (bilder_.formel) bilder_.formel(painter_, mm_, nummer, {x, y});
}

void Seitenmaler::neueSeite() {
    if (neueSeite_) neueSeite_();
}

// The height of a line does not depend on its words.
double Seitenmaler::texthoehe(std::string_view) const { return mass_.hoehe; }

QRectF Seitenmaler::inEinheiten(const Rechteck& r) const {
    return {r.x * mm_, r.y * mm_, r.breite * mm_, r.hoehe * mm_};
}

}  // namespace rippenscheibe
