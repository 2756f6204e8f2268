#pragma once

#include <QMainWindow>
#include <functional>
#include <vector>

#include "ui/basics/Fensteroeffner.h"
#include "ui/main/Dateiablauf.h"
#include "ui/main/Sicherungskopie.h"

class QGroupBox;
class QPushButton;
class QVBoxLayout;

namespace rippenscheibe {

class Hinweisliste;
class Kurzzeile;
class Werteingabe;
class Zeichnungsansicht;

// The application window: the three basic dimensions, the buttons that open the input dialogs, the live
// drawing of the wall, the findings and the two start buttons.
class Form1 : public QMainWindow {
    Q_OBJECT

  public:
    Form1(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

    // The start sequence: settings, own materials, defaults, then the position that a crash left, that is
    // given by `datei` or that was handed over; without any of them the project dialog. Beside a recovered
    // position the wanted one is opened after the query about unsaved changes.
    void starte(const QString& datei = QString());

    // Zuweisen, plausibility run and, without findings, the calculation; then report or result view.
    void rechneUndZeige(Fensterart ausgabe);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    struct Zeile {
        Kurzzeile* schild;
        QString (*text)(const Wand&);
    };

    void baueMenue();
    void baueWerkzeugleiste();
    void baueStatuszeile();
    QWidget* baueLinkeSpalte();
    QWidget* baueRechteSpalte();
    QGroupBox* baueAbmessungen();
    QGroupBox* baueEingabe();
    QAction* befehl(QMenu* menue, const QString& name, const QString& text,
                    const std::function<void()>& ausfuehren);
    void setzeFarben();

    void zeige();
    void zeigeTitel();
    void zeigeHinweise();
    void uebernimmFeld(double Grundmasse::*feld, double wert);
    bool oeffneFenster(Fensterart art);
    void oeffneZu(const QString& hinweis);
    void beende();
    void starteProjektmanager();
    void merkeDatei(const QString& datei);
    void fuelleZuletzt();
    QString einstellungsdateiname() const;

    Programm& programm_;
    Meldungen& meldungen_;
    Dateiablauf ablauf_;
    Sicherungskopie sicherung_;

    struct Symboltraeger {
        std::function<void(const QIcon&)> setze;
        QString name;
    };

    std::vector<std::pair<Werteingabe*, double Grundmasse::*>> felder_;
    std::vector<Zeile> zeilen_;
    std::vector<Symboltraeger> symbole_;
    Zeichnungsansicht* ansicht_ = nullptr;
    Hinweisliste* hinweise_ = nullptr;
    QPushButton* einsehen_ = nullptr;
    QMenu* zuletzt_ = nullptr;
    bool endeBestaetigt_ = false;
};

}  // namespace rippenscheibe
