#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "ui/basics/Programm.h"

namespace rippenscheibe {

class Meldungen;

// The full path of a file that the command line names. QFileInfo would lose the bytes that are no UTF-8.
QString ganzerPfad(const QString& datei);

// The file flow of the main window: new, open, save, save as, end, with its queries. The pending action
// stands in the program's state, so that a save can carry on with what was waiting for it.
class Dateiablauf {
  public:
    // `fenster` is the parent of all boxes.
    Dateiablauf(Programm& programm, Meldungen& meldungen, QWidget* fenster);

    std::function<bool()> projektdaten;                 // opens the project dialog; true when accepted
    std::function<void()> listeGeleert;                 // the findings are gone
    std::function<void(const QString& datei)> benutzt;  // a position file was opened or saved

    // Asks when there are unsaved changes, then sets the defaults. Meant: whatever the answer, a cancel too.
    // The project keeps its name.
    void neu();
    // Asks, then opens `datei`, or lets the user choose one.
    void oeffnen(const std::optional<QString>& datei = std::nullopt);
    void sichern();
    // Through the project dialog; accepting it leads on to the choice of a name.
    void sichernUnter();
    // Asks; true when the program may end.
    bool beenden();

    // Reads a position file into the record. False when its ending is not that of a position.
    bool lade(const QString& datei);

  private:
    enum class Ausgang { weiter, abgebrochen, fehlgeschlagen };

    Ausgang frage(Dateiaktion aktion);
    bool nichtsAbgelehnt();
    Ausgang sicherungsschritt();
    Ausgang dialogUndSichern();
    Ausgang sichernTrotzFremdem();
    bool fremdGeaendert() const;
    // What the file of the position holds, as far as this program knows.
    void merkeDateistand(bool vorhanden, const std::string& bytes);
    void naechsterSchritt();
    void oeffnenDialog();
    bool saveFile();
    void setzeNeu();

    Programm& programm_;
    Meldungen& meldungen_;
    QPointer<QWidget> fenster_;
    std::optional<QString> wunsch_;  // the file to open in place of asking for one
};

}  // namespace rippenscheibe
