#pragma once

#include <QListWidget>
#include <QStyledItemDelegate>
#include <vector>

#include "report/Fliesstext.h"

namespace rippenscheibe {

// All utilisations of a report as horizontal bars against 1,00, in the order of the report. A bar beyond the
// mark breaks there and goes on in the colour of failure; each row says its verdict by colour, sign and word.
class Ausnutzungsliste : public QListWidget {
    Q_OBJECT

  public:
    explicit Ausnutzungsliste(QWidget* parent);

    void zeige(const std::vector<Ausnutzung>& ausnutzungen, char dezimalzeichen);

  Q_SIGNALS:
    void gewaehlt(int index);  // the user chose a row, by mouse or key
};

// "0,73"; "∞" when there is no resistance.
QString ausnutzungstext(double eta, char dezimalzeichen);

}  // namespace rippenscheibe
