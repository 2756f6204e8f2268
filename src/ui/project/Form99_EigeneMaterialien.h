#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

#include "model/EigeneMaterialien.h"
#include "ui/basics/Fenster.h"

class QButtonGroup;
class QComboBox;
class QGroupBox;
class QLineEdit;

namespace rippenscheibe {

class Werteingabe;

// "   Materialien für Beplankungen anlegen / verwalten": the table of up to 100 sheathing materials of the
// user. Changes act on the table at once; leaving the window, by "Zurück" or otherwise, writes its file.
class Form99 : public Fenster {
    Q_OBJECT

  public:
    Form99(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

    // Esc and the cross ask before a material is lost that was begun.
    void reject() override;

  private:
    enum class Zustand { anzeigen, neu, bearbeiten };

    void baueKopf();
    QWidget* baueKennwerte();
    QWidget* baueLochleibung();
    QGroupBox* baueKmod(const QString& titel, int ersteZeile);
    Werteingabe* werteingabe(std::size_t zeile);
    void setzeZustand(Zustand zustand);
    void setzeFarben();
    void richteLochleibung();
    void fuelleListe(int auswahl);
    void Werte(int zeile);
    void leere();
    EigeneMaterialien::Zeile eingabe() const;
    void neuesMaterial();
    void loescheMaterial();
    void bearbeite();
    void uebernehmen();
    bool sichere();
    void zurueckUndSichern();

    EigeneMaterialien& tabelle_;
    EigeneMaterialien gelesen_;  // the table when the window opened, which is as it was read or written last
    Zustand zustand_ = Zustand::anzeigen;
    QComboBox* liste_;
    QLineEdit* name_;
    std::vector<Werteingabe*> werte_;
    QButtonGroup* lochleibung_;
    QPushButton* neu_;
    QPushButton* loeschen_;
    QPushButton* bearbeiten_;
    QPushButton* uebernehmen_;
};

}  // namespace rippenscheibe
