#pragma once

#include "ui/basics/Fensteroeffner.h"

namespace rippenscheibe {

// Makes the windows that others ask for.
class Fensterfabrik : public Fensteroeffner {
  public:
    bool oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster) override;
};

}  // namespace rippenscheibe
