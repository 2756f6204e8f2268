#pragma once

#include <filesystem>

#include "study/Bewertung.h"
#include "ui/basics/Fenster.h"

class QLabel;
class QTableView;

namespace rippenscheibe {

class Lastfallmodell;

// "Lastfälle": the table of load cases that lies beside the position, with the verdict of each.
class Lastfaelle : public Fenster {
    Q_OBJECT

  public:
    Lastfaelle(Programm& programm, Meldungen& meldungen, QWidget* parent);

    void accept() override;
    void reject() override;

  private:
    QWidget* baueTabelle();
    QWidget* baueKnoepfe();
    void lade();
    void schlageVor();
    void zeigeUrteil();
    bool sichere();
    bool raeumeAb(const std::filesystem::path& datei);
    int zeile() const;

    Lastfallmodell* modell_;
    QTableView* tabelle_;
    QLabel* ort_;
    QLabel* urteil_;
    QLabel* satz_;
    QPushButton* sichern_;
    bool geaendert_ = false;
    bool gesperrt_ = false;  // there is a file that could not be read
};

}  // namespace rippenscheibe
