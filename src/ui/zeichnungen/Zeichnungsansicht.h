#pragma once

#include <QWidget>

#include "ui/zeichnungen/Zeichnungen.h"

namespace rippenscheibe {

// A widget that shows one drawing of a wall, in the colours of its palette. It holds its own copy of the
// record, so that a dialog can show values that are not accepted yet.
class Zeichnungsansicht : public QWidget {
    Q_OBJECT

  public:
    explicit Zeichnungsansicht(Zeichnung was, QWidget* parent = nullptr);

    // The values to show from now on.
    void setzeWand(const Wand& w);
    void setzeZeichnung(Zeichnung was);
    Zeichnung zeichnung() const { return was_; }
    const Wand& wand() const { return wand_; }
    // The decimal mark of the dimensions, ',' unless told otherwise.
    void setzeDezimalzeichen(char zeichen);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void benenne();

    Zeichnung was_;
    Wand wand_;
    char dezimalzeichen_ = ',';
};

}  // namespace rippenscheibe
