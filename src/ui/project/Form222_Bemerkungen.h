#pragma once

#include "ui/basics/Fenster.h"

class QPlainTextEdit;

namespace rippenscheibe {

// "  Bemerkungen zur Position": the preliminary remarks, at most three lines, and the closing remarks of
// the report.
class Form222 : public Fenster {
    Q_OBJECT

  public:
    Form222(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

    // However the window is left, its texts are stored.
    void done(int ergebnis) override;

  private:
    QPlainTextEdit* textfeld(const QString& name, const QString& titel, const QString& vorlagen,
                             const QString& loeschen, int zeilen);
    void uebernimm();

    QPlainTextEdit* vor_;
    QPlainTextEdit* zusatz_;
};

}  // namespace rippenscheibe
