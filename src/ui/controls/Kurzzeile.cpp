#include "ui/controls/Kurzzeile.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace rippenscheibe {

Kurzzeile::Kurzzeile(QWidget* parent, int hoechstzeilen) : QLabel(parent), hoechstzeilen_(hoechstzeilen) {
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    QSizePolicy groesse(QSizePolicy::Ignored, QSizePolicy::Preferred);
    groesse.setHeightForWidth(true);
    setSizePolicy(groesse);
}

void Kurzzeile::setzeText(const QString& text) {
    if (text == this->text()) return;
    setText(text);
    updateGeometry();
}

bool Kurzzeile::setzeHoechstzeilen(int zeilen) {
    if (zeilen == hoechstzeilen_) return false;
    hoechstzeilen_ = zeilen;
    updateGeometry();
    update();
    return true;
}

// The text in lines of this width, the last of them with all that is left.
QStringList Kurzzeile::zeilen(int breite, int hoechstzeilen) const {
    QTextLayout satz(text(), font());
    satz.beginLayout();
    QStringList zeilen;
    qsizetype anfang = 0;
    for (QTextLine zeile = satz.createLine(); zeile.isValid() && zeilen.size() < hoechstzeilen - 1;
         zeile = satz.createLine()) {
        zeile.setLineWidth(std::max(breite, 1));
        zeilen << text().mid(zeile.textStart(), zeile.textLength()).trimmed();
        anfang = zeile.textStart() + zeile.textLength();
    }
    satz.endLayout();
    if (anfang < text().size()) zeilen << text().mid(anfang);
    return zeilen;
}

bool Kurzzeile::gekuerzt() const {
    const QStringList alle = zeilen(width(), hoechstzeilen_);
    return !alle.isEmpty() && fontMetrics().horizontalAdvance(alle.constLast()) > width();
}

int Kurzzeile::hoehe(int breite, int hoechstzeilen) const {
    const auto anzahl = std::max<qsizetype>(zeilen(breite, hoechstzeilen).size(), 1);
    return static_cast<int>(anzahl) * fontMetrics().lineSpacing();
}

int Kurzzeile::heightForWidth(int breite) const { return hoehe(breite, hoechstzeilen_); }

QSize Kurzzeile::sizeHint() const { return {0, heightForWidth(width())}; }

QSize Kurzzeile::minimumSizeHint() const { return {0, fontMetrics().lineSpacing()}; }

void Kurzzeile::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setPen(palette().color(foregroundRole()));
    int y = 0;
    for (const QString& zeile : zeilen(width(), hoechstzeilen_)) {
        const QRect platz(0, y, width(), fontMetrics().lineSpacing());
        maler.drawText(platz, Qt::AlignLeft | Qt::AlignVCenter,
                       fontMetrics().elidedText(zeile, Qt::ElideRight, width()));
        y += fontMetrics().lineSpacing();
    }
}

}  // namespace rippenscheibe
