#pragma once

#include <QWidget>

#include "study/Mengen.h"

class QButtonGroup;
class QLabel;
class QTreeWidget;

namespace rippenscheibe {

class Meldungen;
class Programm;

// A list of quantities, of all walls of a project or of those chosen: as a table, on paper, as CSV.
class Mengenseite : public QWidget {
    Q_OBJECT

  public:
    Mengenseite(Programm& programm, Meldungen& meldungen, QWidget* parent);

    // `titel`: whose quantities these are, "Auswahl (3 Wände)". `ordner`: where a file is proposed.
    void zeige(const Mengen& mengen, const QString& titel, const QString& ordner);
    // Whether the quantities of the whole project are wanted rather than those of the selection.
    bool ganzesProjekt() const;

  Q_SIGNALS:
    void umgeschaltet();

  private:
    QWidget* baueLeiste();
    void drucke();
    void sichereCsv();

    Programm& programm_;
    Meldungen& meldungen_;
    QButtonGroup* wahl_;
    QLabel* titel_;
    QTreeWidget* tabelle_;
    std::vector<Mengenzeile> zeilen_;
    QString ordner_;
};

}  // namespace rippenscheibe
