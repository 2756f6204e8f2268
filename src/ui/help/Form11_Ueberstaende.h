#pragma once

#include "ui/basics/Fenster.h"

namespace rippenscheibe {

// "  Info zu Überständen": what a bottom rib that runs on beyond the edge rib does to the contact area.
class Form11 : public Fenster {
    Q_OBJECT

  public:
    Form11(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);
};

}  // namespace rippenscheibe
