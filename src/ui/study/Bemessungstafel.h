#pragma once

#include <string>
#include <variant>

#include "study/Tafelblatt.h"
#include "ui/basics/Fenster.h"
#include "ui/studyparts/Feldworte.h"
#include "ui/studyparts/Hintergrund.h"

class QLabel;
class QTableWidget;

namespace rippenscheibe {

class Groessenwahl;
class Lastfallwahl;
class Laufleiste;
class Wandblatt;

// A design table of the wall: in each cell the largest value of one input for which it passes, coloured by
// what governs. The cell that is clicked shows its wall, which can be taken over.
class Bemessungstafel : public Fenster {
    Q_OBJECT

  public:
    Bemessungstafel(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

  private:
    // A table with the wall it belongs to.
    struct Stand {
        Tafelauftrag auftrag;
        Tafel tafel;
        Wand wand;
        bool leer() const { return tafel.zellen.empty(); }
    };

    QWidget* baueKopf();
    QWidget* baueTafel();
    std::variant<Tafelauftrag, QString> auftrag() const;
    void zeigeUmfang();
    void starte();
    void zeige();
    void fuelleTabelle();
    void waehleErsteBestehende();
    void zeigeZelle();
    // The cell that is chosen; nothing without a table.
    const Tafelzelle* zelle() const;
    Zuweisungen gewaehlt() const;
    Tafelblatt blatt() const;
    std::string csv() const;
    void drucke();
    void oeffneSpeichermenue();

    double jeWand_;  // seconds
    Stand stand_;
    Groessenwahl* groesste_ = nullptr;
    Groessenwahl* zeilen_ = nullptr;
    Groessenwahl* spalten_ = nullptr;
    Lastfallwahl* lastfaelle_ = nullptr;
    Laufleiste* lauf_ = nullptr;
    QLabel* titel_ = nullptr;
    QTableWidget* tabelle_ = nullptr;
    QLabel* legende_ = nullptr;
    Wandblatt* wandblatt_ = nullptr;
    QPushButton* drucken_ = nullptr;
    QPushButton* speichern_ = nullptr;
    QPushButton* uebernehmen_ = nullptr;
    Hintergrund hintergrund_;  // the last: it stops before the others go
};

}  // namespace rippenscheibe
