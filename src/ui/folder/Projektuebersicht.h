#pragma once

#include <array>
#include <filesystem>
#include <vector>

#include "report/Bericht.h"
#include "study/Projekt.h"
#include "ui/basics/Fenster.h"

class QComboBox;
class QLabel;
class QModelIndex;
class QPlainTextEdit;
class QProgressBar;
class QTableView;
class QTimer;

namespace rippenscheibe {

class Hintergrund;
class Mengenseite;
class Projektfilter;
class Projektleser;
class Projektmodell;
struct Sammelpdf;

// "Projektübersicht": all positions of a folder, read and computed in the background and again when a file
// changes. Nothing is written to them.
class Projektuebersicht : public Fenster {
    Q_OBJECT

  public:
    Projektuebersicht(Programm& programm, Meldungen& meldungen, QWidget* parent);
    ~Projektuebersicht() override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    QWidget* baueKopf();
    QWidget* baueTabelle();
    QWidget* baueUnten();
    void baueKnoepfe();
    void waehleOrdner(const QString& ordner);
    void frageOrdner();
    void zeigeDateien(const std::vector<Projektdatei>& dateien, const QString& fehler);
    void waehleZeilen(const std::vector<std::filesystem::path>& namen);
    void zeigeZahlen(const QString& lesefehler);
    void zeigeAuswahl();
    std::vector<const Projektposition*> gewaehlte() const;
    void oeffne(const QModelIndex& zeile);
    void drucke(Form form);
    void sichere(const Sammelpdf& pdf, const QString& ziel);
    void zeigeDruck(bool laeuft);

    Projektmodell* modell_;
    Projektfilter* filter_;
    Projektleser* leser_;
    Hintergrund* drucker_;
    QTimer* neu_;     // behind a burst of changes quantities are formed once
    QString fehler_;  // why the folder cannot be read

    QComboBox* ordnerwahl_ = nullptr;
    QLabel* zahlen_ = nullptr;
    QTableView* tabelle_ = nullptr;
    QPlainTextEdit* saetze_ = nullptr;
    Mengenseite* mengen_ = nullptr;
    QProgressBar* balken_ = nullptr;
    std::array<QPushButton*, 2> drucken_{};  // at length, in short
    QPushButton* anhalten_ = nullptr;
    QPushButton* oeffnen_ = nullptr;
};

}  // namespace rippenscheibe
