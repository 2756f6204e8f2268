#pragma once

#include "ui/basics/Fenster.h"

namespace rippenscheibe {

// "               Kalender": one month at a time. It reads and writes nothing.
class Form60 : public Fenster {
    Q_OBJECT

  public:
    Form60(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);
};

}  // namespace rippenscheibe
