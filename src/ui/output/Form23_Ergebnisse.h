#pragma once

#include <QTextCursor>
#include <QUrl>
#include <vector>

#include "ui/basics/Fenster.h"
#include "ui/drawings/Ausgabe.h"

class QAction;
class QLabel;
class QLineEdit;

namespace rippenscheibe {

class Ergebnisfeld;
class Urteilsstreifen;

// "  Ergebnisse ": the report as rich text, to read, to save, to copy, and above it the verdict with all
// utilisations as bars. The text is locked until it is copied or a picture is inserted; from then on it can
// be edited.
class Form23 : public Fenster {
    Q_OBJECT

  public:
    Form23(Programm& programm, Meldungen& meldungen, QWidget* parent);

    void reject() override;
    void done(int ergebnis) override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    // A picture of the wall in the text, and what draws it.
    struct Systembild {
        QUrl name;
        Bildvorlage vorlage;
    };

    QWidget* baueText();
    QWidget* baueSuchzeile();
    QWidget* mitHerleitung(QWidget* spalte);
    void baueSchaltflaechen();

    void lade();
    void speichere();
    void kopiere();
    void fuegeSystembildEin();
    void zeichneSystembilder();
    void drucke();
    void zeigeRechenweg();
    void speichereAlsPdf();

    void zeigeSuche();
    void verbirgSuche();
    void suche(const QString& worte);
    void springe(int schritt);
    void zeigeZeile(const std::vector<QTextCursor>& zeilen, int welche);
    void zeigeMarken();

    Ergebnisfeld* text_;
    Urteilsstreifen* streifen_;
    std::vector<QTextCursor> zeilen_;      // of the utilisations; they move along with edits
    std::vector<QTextCursor> abschnitte_;  // and of the headings 5.1 on

    std::vector<Systembild> systembilder_;
    QTextCursor zeile_;  // the one that is lit

    QWidget* suchzeile_;
    QAction* sucheBeenden_;
    QLineEdit* suchwort_;
    QLabel* trefferzahl_;
    std::vector<QTextCursor> treffer_;
    int aktuellerTreffer_ = -1;
};

}  // namespace rippenscheibe
