#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>

namespace rippenscheibe {

// Contrast of two colours, 1 to 21, as the accessibility guidelines for web contents (WCAG 2) define it.
double kontrast(const QColor& a, const QColor& b);

// The colour, brought nearer to that of the text until it can be read on every ground of the palette.
QColor lesbar(const QColor& farbe, const QPalette& palette);

// The ground of the window, brought nearer to its text until it stands out so much against that ground and
// that of fields.
QColor abgehoben(const QPalette& palette, double wieViel);

// Text of second rank stands in the colour of placeholders, which many desktops make too weak to be read, as
// they do with chosen text. Installed on the application, this strengthens both, again after each change of
// the desktop's colours.
class Zweitfarbe : public QObject {
    Q_OBJECT

  public:
    explicit Zweitfarbe(QObject* parent);

    bool eventFilter(QObject* object, QEvent* event) override;
};

}  // namespace rippenscheibe
