#pragma once

#include "ui/basics/Fenster.h"

namespace rippenscheibe {

// Ways to a better wall: the cheapest ones that pass, and what real next steps do. The position changes only
// by a take-over.
class Auslegen : public Fenster {
    Q_OBJECT

  public:
    Auslegen(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);
};

}  // namespace rippenscheibe
