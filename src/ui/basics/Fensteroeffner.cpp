#include "ui/basics/Fensteroeffner.h"

#include "ui/basics/Programm.h"

namespace rippenscheibe {

void oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    if (programm.fenster != nullptr) programm.fenster->oeffne(art, programm, meldungen, fenster);
}

}  // namespace rippenscheibe
