#include "ui/basics/Rahmenstil.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>
#include <array>

#include "ui/basics/Farben.h"

namespace rippenscheibe {

namespace {

constexpr double stehtHervor = 3;  // the guidelines' contrast of what is no text

constexpr std::array gerahmte{QStyle::PE_FrameLineEdit,     QStyle::PE_Frame,
                              QStyle::PE_FrameGroupBox,     QStyle::PE_FrameTabWidget,
                              QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorItemViewItemCheck,
                              QStyle::PE_PanelButtonCommand};

bool hatFokus(const QStyleOption& angaben) { return (angaben.state & QStyle::State_HasFocus) != 0; }

// The frame that Fusion would draw cannot be seen.
bool verschwindet(const QPalette& farben) {
    const QColor grund = farben.color(QPalette::Window);
    return grund.lightness() < 128 && kontrast(grund.darker(140), grund) < stehtHervor;
}

void rahme(const QStyleOption& angaben, QPainter& maler, double rundung) {
    maler.save();
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(abgehoben(angaben.palette, stehtHervor));
    maler.setBrush(Qt::NoBrush);
    maler.drawRoundedRect(QRectF(angaben.rect).adjusted(0.5, 0.5, -0.5, -0.5), rundung, rundung);
    maler.restore();
}

constexpr double eckenrundung = 2;

}  // namespace

void Rahmenstil::setzeEin() {
    QStyle* stil = QApplication::style();
    if (stil->name() == QStringLiteral("fusion")) QApplication::setStyle(new Rahmenstil(stil->name()));
}

void Rahmenstil::drawPrimitive(PrimitiveElement element, const QStyleOption* angaben, QPainter* maler,
                               const QWidget* feld) const {
    QProxyStyle::drawPrimitive(element, angaben, maler, feld);
    if (!verschwindet(angaben->palette) || hatFokus(*angaben)) return;
    if (element == PE_IndicatorRadioButton)
        rahme(*angaben, *maler, angaben->rect.width() / 2.0);
    else if (std::find(gerahmte.begin(), gerahmte.end(), element) != gerahmte.end())
        rahme(*angaben, *maler, eckenrundung);
}

void Rahmenstil::drawComplexControl(ComplexControl element, const QStyleOptionComplex* angaben,
                                    QPainter* maler, const QWidget* feld) const {
    QProxyStyle::drawComplexControl(element, angaben, maler, feld);
    if ((element == CC_ComboBox || element == CC_SpinBox) && verschwindet(angaben->palette) &&
        !hatFokus(*angaben))
        rahme(*angaben, *maler, eckenrundung);
}

}  // namespace rippenscheibe
