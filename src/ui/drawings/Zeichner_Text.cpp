#include <QFontMetricsF>
#include <QTextLayout>
#include <algorithm>

#include "ui/drawings/Zeichner.h"

namespace rippenscheibe {

namespace {

// Fonts have whole pixel sizes: text is laid out at this size and scaled to its millimetres.
constexpr int schriftreferenz = 100;

}  // namespace

double Zeichner::schriftgroesse(const Textart& art) const {
    return std::max(t() * art.faktor, stil_.kleinsteSchrift);
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
    const double faktor = schriftgroesse(art) / schriftreferenz;
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
    const QSizeF s(textbreite(text, art) + 0.6 * t(), 1.3 * schriftgroesse(art));
    QColor grund = stil_.grund;
    grund.setAlphaF(0.8F);
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(grund);
    painter_.drawRoundedRect(QRectF(mitte - QPointF(s.width() / 2.0, s.height() / 2.0), s), 0.3 * t(),
                             0.3 * t());
    this->text(mitte, text, Qt::AlignHCenter | Qt::AlignVCenter, art);
}

double Zeichner::textbreite(const QString& text, const Textart& art) const {
    return QFontMetricsF(font(art)).horizontalAdvance(text) * schriftgroesse(art) / schriftreferenz;
}

QString Zeichner::gekuerzt(const QString& text, double breite, const Textart& art) const {
    const double pixel = breite * schriftreferenz / schriftgroesse(art);
    return QFontMetricsF(font(art)).elidedText(text, Qt::ElideRight, std::clamp(pixel, 0.0, 1e7));
}

QStringList Zeichner::umbrochen(const QString& text, double breite, const Textart& art,
                                int hoechstens) const {
    QStringList zeilen;
    QTextLayout satz(text, font(art));
    satz.beginLayout();
    for (QTextLine zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
        zeile.setLineWidth(std::clamp(breite * schriftreferenz / schriftgroesse(art), 1.0, 1e7));
        if (zeilen.size() + 1 == hoechstens) {
            zeilen << gekuerzt(text.mid(zeile.textStart()), breite, art);
            break;
        }
        zeilen << text.mid(zeile.textStart(), zeile.textLength()).trimmed();
    }
    satz.endLayout();
    return zeilen;
}

double Zeichner::zeilenhoehe(const Textart& art) const { return 1.35 * schriftgroesse(art); }

double Zeichner::zeilen(QPointF linksOben, const QStringList& zeilen, const Textart& art) {
    double y = 0.0;
    for (const QString& zeile : zeilen) {
        text(linksOben + QPointF(0.0, y + schriftgroesse(art)), zeile, Qt::AlignLeft, art);
        y += zeilenhoehe(art);
    }
    return y;
}

double Zeichner::absatz(QPointF linksOben, double breite, const QString& text, const Textart& art) {
    return zeilen(linksOben, umbrochen(text, breite, art), art);
}

void Zeichner::marke(QPointF mitte, const QString& text, const QColor& farbe) {
    kreis(mitte, 0.85 * t(), stil_.grund, Strich::ansicht, farbe);
    this->text(mitte, text, Qt::AlignHCenter | Qt::AlignVCenter, {1.0, true, farbe});
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
