#pragma once

#include "ui/basics/Fenster.h"
#include "ui/help/Rechner.h"

class QGridLayout;
class QLineEdit;

namespace rippenscheibe {

// "        Quendel Software Rechner": the pocket calculator, also by the keys of the number pad.
class Form3 : public Fenster {
    Q_OBJECT

  public:
    Form3(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool enter(QWidget& feld) override;

  private:
    void baueTasten(QGridLayout* grid);
    QPushButton* taste(QGridLayout* grid, const QString& name, const QString& text, int zeile, int spalte);
    void zeige();
    void operation(Rechner::Taste taste);

    Rechner rechner_;
    QLineEdit* anzeige_;
};

}  // namespace rippenscheibe
