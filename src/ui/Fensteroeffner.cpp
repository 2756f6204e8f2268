#include "ui/Fensteroeffner.h"

#include "ui/Meldungen.h"

namespace rippenscheibe {

void oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster) {
    switch (art) {
        // One line a window: case Fensterart::x: Form<n>(programm, meldungen, fenster).exec(); break;
        default:
            break;
    }
    static_cast<void>(programm), static_cast<void>(meldungen), static_cast<void>(fenster);
}

}  // namespace rippenscheibe
