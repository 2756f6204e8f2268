#pragma once

#include "ui/input/Eingabedialog.h"

namespace rippenscheibe {

// "  Bemessungsparameter": the options of the calculation.
class Form12 : public Eingabedialog {
    Q_OBJECT

  public:
    Form12(Programm& programm, Meldungen& meldungen, QWidget* parent);

  private:
    QButtonGroup* verfahren_;
    QCheckBox* erhoehung_;
    QCheckBox* deltaRd_;
    QButtonGroup* klammerwinkel_;
    Werteingabe* beta_;
    QButtonGroup* verteilung_;
    QButtonGroup* lagesicherung_;
};

}  // namespace rippenscheibe
