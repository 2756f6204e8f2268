#pragma once

#include <QTreeWidget>
#include <vector>

#include "report/Fliesstext.h"
#include "run/Urteil.h"

namespace rippenscheibe {

// The utilisations of a run as bars against 1,00: one a section, which unfolds to the lines of the report
// with its ribs. Rows without demand are folded away at the end of their list. Each row says its verdict by
// colour, sign and word.
class Ausnutzungsbaum : public QTreeWidget {
    Q_OBJECT

  public:
    enum class Reihenfolge { bericht, groesse };

    static constexpr int rolleZeile = Qt::UserRole;  // data of a row: its line in the report, from 0

    explicit Ausnutzungsbaum(QWidget* parent);

    // `zeilen` are the proof lines of the report; their names begin with the number of their section.
    void zeige(const std::vector<Abschnittsurteil>& abschnitte, const std::vector<Ausnutzung>& zeilen,
               char dezimalzeichen);
    void ordne(Reihenfolge reihenfolge);

  Q_SIGNALS:
    void zeileGewaehlt(int zeile);          // the user chose a line of the report, from 0
    void abschnittGewaehlt(int abschnitt);  // or a whole section, from 0

  private:
    void baue();
    void melde(const QTreeWidgetItem* eintrag);

    std::vector<Abschnittsurteil> abschnitte_;
    std::vector<Ausnutzung> zeilen_;
    char dezimalzeichen_ = ',';
    Reihenfolge reihenfolge_ = Reihenfolge::bericht;
};

}  // namespace rippenscheibe
