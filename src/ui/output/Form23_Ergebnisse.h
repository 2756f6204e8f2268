#pragma once

#include <QTextCursor>
#include <vector>

#include "ui/basics/Fenster.h"

class QAction;
class QLabel;
class QLineEdit;

namespace rippenscheibe {

class Ausnutzungsliste;
class Ergebnisfeld;

// "  Ergebnisse ": the report as rich text, to read, to save, to copy, and beside it all utilisations as
// bars. The text is locked until it is copied or a picture is inserted; from then on it can be edited.
class Form23 : public Fenster {
    Q_OBJECT

  public:
    Form23(Programm& programm, Meldungen& meldungen, QWidget* parent);

    void reject() override;
    void done(int ergebnis) override;

  private:
    QWidget* baueText();
    QWidget* baueSuchzeile();
    QWidget* baueListe();
    void baueSchaltflaechen();

    void lade();
    void speichere();
    void kopiere();
    void fuegeSystembildEin();
    void drucke();
    void speichereAlsPdf();

    void zeigeSuche();
    void verbirgSuche();
    void suche(const QString& worte);
    void springe(int schritt);
    void zeigeZeile(int ausnutzung);
    void zeigeMarken();

    Ergebnisfeld* text_;
    Ausnutzungsliste* liste_;
    std::vector<QTextCursor> zeilen_;  // of the utilisations; they move along with edits

    QTextCursor zeile_;  // the one that is lit

    QWidget* suchzeile_;
    QAction* sucheBeenden_;
    QLineEdit* suchwort_;
    QLabel* trefferzahl_;
    std::vector<QTextCursor> treffer_;
    int aktuellerTreffer_ = -1;
};

}  // namespace rippenscheibe
