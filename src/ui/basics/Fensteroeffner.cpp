#include "ui/basics/Fensteroeffner.h"

#include "ui/basics/Programm.h"

namespace rippenscheibe {

bool oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    return programm.fenster != nullptr && programm.fenster->oeffne(art, programm, meldungen, fenster);
}

}  // namespace rippenscheibe
