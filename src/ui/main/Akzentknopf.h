#pragma once

#include <QPushButton>

namespace rippenscheibe {

// The button of the default action: filled with the accent colour of the desktop, dark enough for its text.
// It paints itself, for some styles take the colour of a button's text from the palette but not its ground.
class Akzentknopf : public QPushButton {
    Q_OBJECT

  public:
    using QPushButton::QPushButton;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace rippenscheibe
