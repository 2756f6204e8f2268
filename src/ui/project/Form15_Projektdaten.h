#pragma once

#include <QString>
#include <array>

#include "ui/basics/Fenster.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace rippenscheibe {

// "  Projektdaten": the names that identify a position on paper and in the file system, and the list of
// projects with their folders. Accepted by "Zurück zum Hauptfenster", which takes them over.
class Form15 : public Fenster {
    Q_OBJECT

  public:
    Form15(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

    // AktuellesProjekt: the selected entry of the project list, from 1.
    int AktuellesProjekt() const { return aktuellesProjekt_; }

    // Esc and the cross ask whether changes are to be taken over.
    void reject() override;

  private:
    void baueProjekt(QGridLayout& grid);
    void waehlePfad();
    QLineEdit* textfeld(QGridLayout* grid, int index, const QString& text);
    void lade();
    void waehleProjekt(int eintrag);
    void zurueckZumHauptfenster();
    void merkeProjekt();
    std::array<QString, 5> eingaben() const;
    void zeigeFusszeilenplatz();

    QComboBox* projekt_;
    QLineEdit* position_ = nullptr;
    QLineEdit* datum_ = nullptr;
    QLineEdit* bemerkung_ = nullptr;
    QLineEdit* pfad_ = nullptr;
    QLabel* platz_;                     // says when the project's name is too long for the foot line
    QString vorgeschlagenesDatum_;      // that the window filled in, else ""
    std::array<QString, 5> geladen_{};  // what the boxes held when the window opened
    int aktuellesProjekt_ = 1;
};

}  // namespace rippenscheibe
