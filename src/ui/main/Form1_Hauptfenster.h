#pragma once

#include <QMainWindow>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "ui/basics/Fensteroeffner.h"
#include "ui/main/Menuetabelle.h"
#include "ui/session/Dateiablauf.h"
#include "ui/session/Sicherungskopie.h"
#include "ui/verdict/Lastfallquelle.h"

class QGroupBox;
class QPushButton;

namespace rippenscheibe {

class Eingabezeile;
class Hinweisliste;
class Urteilsanzeige;
class Werteingabe;
class Zeichnungsansicht;
class ZuletztMenue;

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
    // One of the three fields.
    struct Massfeld {
        Werteingabe* eingabe;
        double Grundmasse::*mass;
        QString schritt;
    };
    // What opens an input dialog: a row of the left column and an entry of the menu.
    struct Eingabeeintrag {
        QString name;
        QString text;
        Fensterart art;
        QString (*zusammenfassung)(const Wand&);
        QString symbol;
        QKeySequence taste;
        QString menuename;
        QString menuetext;
    };
    struct Symboltraeger {
        std::function<void(const QIcon&)> setze;
        QString name;
    };

    static const std::vector<Eingabeeintrag>& eingabeeintraege();

    void baueMenue();
    Menue dateimenue();
    Menue bearbeitenmenue();
    Menue projektmenue();
    Menue bemerkungenmenue();
    Menue optionenmenue();
    Menue extrasmenue();
    Menue hilfemenue();
    void baueStatuszeile();
    QWidget* baueLinkeSpalte();
    QWidget* baueRechteSpalte();
    QGroupBox* baueAbmessungen();
    QGroupBox* baueEingabe();
    QGroupBox* baueHinweise();
    void setzeFarben();
    void stelleGroesseHer();

    void zeige();
    void zeigeTitel();
    void zeigeHinweise();
    void zeigeHinweisstand();
    void zeigeSchritte();
    void uebernimmFeld(const Massfeld& feld, double wert);
    void beendeFeldbesuch();
    bool oeffneFenster(Fensterart art);
    void oeffneErgebnis(int abschnitt);
    void oeffneZu(Eingabeort ort);
    void oeffneMass(double Grundmasse::*mass);
    void beende();
    void starteProjektmanager();
    QString einstellungsdateiname() const;

    Programm& programm_;
    Meldungen& meldungen_;
    Dateiablauf ablauf_;
    Sicherungskopie sicherung_;

    std::vector<Massfeld> felder_;
    std::vector<std::pair<Eingabezeile*, QString (*)(const Wand&)>> zeilen_;
    std::vector<Symboltraeger> symbole_;
    Zeichnungsansicht* ansicht_ = nullptr;
    Urteilsanzeige* urteil_ = nullptr;
    Lastfallquelle lastfaelle_;
    Hinweisliste* hinweise_ = nullptr;
    QPushButton* einsehen_ = nullptr;
    ZuletztMenue* zuletzt_ = nullptr;
    std::optional<Eingabestand> geprueft_;  // what the list of findings belongs to
    bool feldbesuch_ = false;               // a field is being edited
    bool endeBestaetigt_ = false;
};

}  // namespace rippenscheibe
