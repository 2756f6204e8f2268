#pragma once

#include "ui/basics/Fenster.h"

namespace rippenscheibe {

// Ways to a better wall: what real next steps do.
class Auslegen : public Fenster {
    Q_OBJECT

  public:
    Auslegen(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);
};

}  // namespace rippenscheibe
