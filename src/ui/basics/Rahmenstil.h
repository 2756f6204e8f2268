#pragma once

#include <QProxyStyle>

namespace rippenscheibe {

// Fusion draws the frames of fields, lists and buttons somewhat darker than the window: on a dark or black
// ground nothing is left of them. This style draws them there in a colour that stands out 3 to 1.
class Rahmenstil : public QProxyStyle {
    Q_OBJECT

  public:
    using QProxyStyle::QProxyStyle;

    // Puts the application into this style, if its own is Fusion. Called again it does nothing.
    static void setzeEin();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* angaben, QPainter* maler,
                       const QWidget* feld) const override;
    void drawComplexControl(ComplexControl element, const QStyleOptionComplex* angaben, QPainter* maler,
                            const QWidget* feld) const override;
};

}  // namespace rippenscheibe
