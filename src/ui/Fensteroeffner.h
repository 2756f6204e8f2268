#pragma once

#include "ui/Programm.h"

class QWidget;

namespace rippenscheibe {

class Form5;
class Meldungen;

// The windows that others open: input dialogs, small tools, report and settings.
enum class Fensterart {
    rippen,               // Form2
    beplankung,           // Form4
    verbindungsmittel,    // Form5
    verankerung,          // Form7
    belastung,            // Form9
    bemessung,            // Form12
    projektdaten,         // Form15
    bemerkungen,          // Form222
    eigeneMaterialien,    // Form99
    randbedingungen,      // Form10
    ueberstaende,         // Form11
    rechner,              // Form3
    kalender,             // Form60
    systemkonfiguration,  // Form13
    seitenkopf,           // Form8
    druck,                // Form6
    ergebnisse,           // Form23
};

// Opens a window over `fenster` and waits until it is closed.
void oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster);

// Opens the fastener catalogue over the fastener dialog; a click in it fills the boxes of side n.
void oeffneKatalog(Form5& dialog, Seite n, Programm& programm, Meldungen& meldungen);

}  // namespace rippenscheibe
