#pragma once

#include "ui/basics/Fenster.h"

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace rippenscheibe {

// "  Projektdaten": the names that identify a position on paper and in the file system, and the list of
// projects with their folders. When the window was opened for "Speichern unter", leaving it saves the
// position under a chosen name.
class Form15 : public Fenster {
    Q_OBJECT

  public:
    Form15(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

    // AktuellesProjekt: the selected entry of the project list, from 1.
    int AktuellesProjekt() const { return aktuellesProjekt_; }

    void reject() override;

  private:
    QLineEdit* textfeld(QGridLayout* grid, int index, const QString& beschriftung);
    void lade();
    void waehleProjekt(int eintrag);
    void zurueckZumHauptfenster();
    void merkeProjekt();
    void sichernUnter();

    QComboBox* projekt_;
    QLineEdit* position_ = nullptr;
    QLineEdit* datum_ = nullptr;
    QLineEdit* bemerkung_ = nullptr;
    QLineEdit* pfad_ = nullptr;
    int aktuellesProjekt_ = 1;
};

}  // namespace rippenscheibe
