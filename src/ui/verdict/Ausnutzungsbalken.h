#pragma once

#include <QAbstractButton>
#include <QPalette>
#include <QString>

#include "run/Urteil.h"

class QPainter;

namespace rippenscheibe {

// What a utilisation says. A section without demand is no proof that holds, and a demand without a proof is
// no failure: the four never look alike.
enum class Balkenurteil { erfuellt, ueberschritten, ohneBedarf, ohneNachweis };

Balkenurteil balkenurteil(const Abschnittsurteil& abschnitt);

// Colours of the verdicts, lighter on a dark ground.
struct Urteilsfarben {
    QColor erfuellt;
    QColor ueberschritten;
    QColor warnung;
    QColor ohne;
};
Urteilsfarben urteilsfarben(const QPalette& palette);
QColor urteilsfarbe(const QPalette& palette, Balkenurteil urteil);

// "✓", "✗", "–" and "!", and the same in words: "erfüllt", "nicht erfüllt", ...
QString urteilszeichen(Balkenurteil urteil);
QString urteilswort(Balkenurteil urteil);

inline constexpr int balkenhoehe = 8;  // px

// The bar itself: a track with 1,00 at a fixed mark. Beyond it the bar breaks and goes on in the colour of
// failure. Without demand a thin line, without a proof a hatched track. `eta` may be infinite.
void maleBalken(QPainter& painter, const QRectF& flaeche, double eta, Balkenurteil urteil,
                const QPalette& palette);

// One utilisation as a bar.
struct Balkenwert {
    QString name;      // "5.1", or with the words of the proof
    QString wert;      // "0,61"; empty: a dash, or a sign where a proof is missing
    double eta = 0.0;  // length of the bar, 1 at the mark
    Balkenurteil urteil = Balkenurteil::ohneBedarf;
    QString beschreibung;  // what the tip says of it; empty: made of the others
};

// A row "5.1 ▇▇▇▇▇▇▁▁▁|  0,61" that can be pressed (`clicked`); which keys do so, the window tells. A screen
// reader hears name, value and verdict.
class Ausnutzungsbalken : public QAbstractButton {
    Q_OBJECT

  public:
    explicit Ausnutzungsbalken(QWidget* parent = nullptr);

    void setze(const Balkenwert& wert);
    const Balkenwert& wert() const { return wert_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    int namensbreite() const;
    QString werttext() const;
    int wertbreite() const;

    Balkenwert wert_;
};

}  // namespace rippenscheibe
