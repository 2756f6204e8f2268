#include "ui/main/Akzentknopf.h"

#include <QPainter>

#include "ui/basics/Farben.h"

namespace rippenscheibe {

namespace {

constexpr double genug = 4.7;

// The accent, darker or lighter until the text stands out: away from the colour of the text.
QColor grund(const QPalette& palette) {
    const QColor schrift = palette.color(QPalette::HighlightedText);
    QColor farbe = palette.color(QPalette::Highlight);
    constexpr int schritt = 105;  // %
    for (int i = 0; i < 30 && kontrast(farbe, schrift) < genug; ++i)
        farbe = schrift.lightness() < 128 ? farbe.lighter(schritt) : farbe.darker(schritt);
    return farbe;
}

}  // namespace

void Akzentknopf::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    QColor farbe = grund(palette());
    if (isDown())
        farbe = farbe.darker(125);
    else if (underMouse())
        farbe = farbe.darker(110);
    const QRectF flaeche = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    maler.setPen(QPen(farbe.darker(130), 1));
    maler.setBrush(farbe);
    maler.drawRoundedRect(flaeche, 3, 3);
    const QColor schrift = palette().color(QPalette::HighlightedText);
    if (hasFocus()) {
        maler.setPen(QPen(schrift, 1.5));
        maler.setBrush(Qt::NoBrush);
        maler.drawRoundedRect(flaeche.adjusted(3, 3, -3, -3), 2, 2);
    }
    maler.setPen(schrift);
    maler.drawText(rect(), Qt::AlignCenter, text());
}

}  // namespace rippenscheibe
