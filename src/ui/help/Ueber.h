#pragma once

#include "ui/basics/Fenster.h"

namespace rippenscheibe {

// "Über Rippenscheibe": what the program is, in which version, and where its files lie, to be copied into a
// letter to the maker.
class Ueber : public Fenster {
    Q_OBJECT

  public:
    Ueber(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);
};

}  // namespace rippenscheibe
