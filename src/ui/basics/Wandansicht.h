#pragma once

#include <QWidget>

#include "model/Wand.h"

namespace rippenscheibe {

// A widget that shows a wall, whatever it draws of it. An input dialog keeps its sketches by this.
class Wandansicht : public QWidget {
    Q_OBJECT

  public:
    using QWidget::QWidget;

    // The values to show from now on.
    virtual void setzeWand(const Wand& w) = 0;
    // The decimal mark of the dimensions, ',' unless told otherwise.
    virtual void setzeDezimalzeichen(char zeichen) = 0;
};

}  // namespace rippenscheibe
