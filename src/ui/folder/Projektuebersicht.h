#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "report/Bericht.h"
#include "study/Projekt.h"
#include "ui/basics/Fenster.h"

class QComboBox;
class QFileSystemWatcher;
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
    struct Eingang;  // what the reading thread hands over

    QWidget* baueKopf();
    QWidget* baueTabelle();
    QWidget* baueUnten();
    void baueKnoepfe();
    void waehleOrdner(const QString& ordner);
    void frageOrdner();
    void liesNeu();
    void nimmEntgegen();
    void beobachte();
    static void lies(Eingang& eingang, const std::filesystem::path& ordner,
                     const std::vector<Projektdatei>& gelesene, const EigeneMaterialien& materialien,
                     const Ausfuehrung& ausfuehrung);
    void waehleZeilen(const std::vector<std::filesystem::path>& namen);
    void zeigeZahlen();
    void zeigeAuswahl();
    std::vector<const Projektposition*> gewaehlte() const;
    void oeffne(const QModelIndex& zeile);
    void drucke(Form form);
    void sichere(const Sammelpdf& pdf, const QString& ziel);
    void zeigeDruck(bool laeuft);

    std::filesystem::path ordner_;
    Projektmodell* modell_;
    Projektfilter* filter_;
    Hintergrund* leser_;
    Hintergrund* drucker_;
    QFileSystemWatcher* waechter_;
    QTimer* ruhe_;  // behind a burst of changes the folder is read once
    QTimer* neu_;   // so are numbers and quantities formed
    std::shared_ptr<Eingang> eingang_;
    std::string fehler_;    // why the folder cannot be read
    bool nochmal_ = false;  // the folder changed while it was read

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
