#pragma once

#include <optional>
#include <string>

class QWidget;

namespace rippenscheibe {

class Meldungen;
class Programm;

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
    varianten,            // Variantenvergleich
    eigeneMaterialien,    // Form99
    randbedingungen,      // Form10
    ueberstaende,         // Form11
    rechner,              // Form3
    kalender,             // Form60
    systemkonfiguration,  // Form13
    seitenkopf,           // Form8
    auslegen,             // Auslegen
    einfluss,             // Einfluss
    lastfaelle,           // Lastfaelle
    uebersicht,           // Projektuebersicht
    tafel,                // Bemessungstafel
    druck,                // Form6
    rechenweg,            // Form6 with the derivation
    ergebnisse,           // Form23
    ueber,                // Ueber
};

// What a window asks for when it needs another one; the room of the main window fulfils it, so that windows
// do not know each other. The program carries the one in use.
class Fensteroeffner {
  public:
    Fensteroeffner() = default;
    Fensteroeffner(const Fensteroeffner&) = delete;
    Fensteroeffner& operator=(const Fensteroeffner&) = delete;
    virtual ~Fensteroeffner() = default;

    // Opens a window over `fenster` and waits until it is closed. True when it was left by accepting it.
    virtual bool oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster) = 0;

    // The position that a window closed to have opened; the main window takes it.
    std::optional<std::string> positionswunsch;
};

// The same through the program's own; nothing happens while it has none.
bool oeffne(Fensterart art, Programm& programm, Meldungen& meldungen, QWidget* fenster);

}  // namespace rippenscheibe
