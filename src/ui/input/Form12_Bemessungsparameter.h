#pragma once

#include "ui/input/Eingabedialog.h"

namespace rippenscheibe {

// "  Bemessungsparameter": the options of the calculation.
class Form12 : public Eingabedialog {
    Q_OBJECT

  public:
    Form12(Programm& programm, Meldungen& meldungen, QWidget* parent);

    struct Wahl;

  private:
    QButtonGroup* baueWahl(const Wahl& wahl, int spalten = 4);
    void baueErhoehungen();
    void baueKlammern();

    QButtonGroup* klammerwinkel_;
    Werteingabe* beta_;
};

}  // namespace rippenscheibe
