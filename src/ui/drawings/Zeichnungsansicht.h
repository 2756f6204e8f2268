#pragma once

#include "ui/basics/Wandansicht.h"
#include "ui/drawings/Zeichnungen.h"

namespace rippenscheibe {

// A widget that shows one drawing of a wall, in the colours of its palette. It holds its own copy of the
// record, so that a dialog can show values that are not accepted yet.
class Zeichnungsansicht : public Wandansicht {
    Q_OBJECT

  public:
    explicit Zeichnungsansicht(Zeichnung was, QWidget* parent = nullptr);

    void setzeWand(const Wand& w) override;
    void setzeZeichnung(Zeichnung was);
    Zeichnung zeichnung() const { return was_; }
    const Wand& wand() const { return wand_; }
    void setzeDezimalzeichen(char zeichen) override;

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
