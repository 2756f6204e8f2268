#pragma once

#include <optional>
#include <vector>

#include "ui/basics/Wandansicht.h"
#include "ui/drawings/Sicht.h"
#include "ui/drawings/Zeichnungen.h"

namespace rippenscheibe {

class Meldungen;
class Programm;

// A widget that shows one drawing of a wall, in the colours of its palette. It holds its own copy of the
// record, so that a dialog can show values that are not accepted yet.
//
// Drawings of the wall at hand can be looked at closely: the wheel enlarges about the pointer, dragging moves
// them, a double click on empty ground shows the whole again. The part under the pointer is lit and says what
// it is where somebody listens to `angeklickt`.
class Zeichnungsansicht : public Wandansicht {
    Q_OBJECT

  public:
    explicit Zeichnungsansicht(Zeichnung was, QWidget* parent = nullptr);

    void setzeWand(const Wand& w) override;
    const Wand& wand() const { return wand_; }
    void setzeDezimalzeichen(char zeichen) override;
    // Offers a context menu that copies and saves the drawing.
    void bieteDateien(Programm& programm, Meldungen& meldungen);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    // A part was clicked whose values are entered in this window.
    void angeklickt(Fensterart fenster);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    // The drawing of a wall at hand, not of a rule.
    bool beweglich() const;
    Zeichenstil stil() const;
    const Bauteil* teilAn(QPointF ort) const;  // where one can be clicked
    void hebeHervor(const Bauteil* teil);
    void zeigeZeiger();
    void passeEin();

    const Zeichnung was_;
    Wand wand_;
    char dezimalzeichen_ = ',';
    Sicht sicht_;
    std::vector<Bauteil> teile_;          // as last painted
    std::optional<QPainterPath> hervor_;  // the lit part
    QPointF gedrueckt_;
    bool gezogen_ = false;
    Programm* programm_ = nullptr;
    Meldungen* meldungen_ = nullptr;
};

}  // namespace rippenscheibe
