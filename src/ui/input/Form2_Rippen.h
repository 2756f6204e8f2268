#pragma once

#include "ui/input/Eingabedialog.h"

namespace rippenscheibe {

// "  Eingabe der Querschnitte / Materialien für die Rippen": rib sizes in cm (the record holds mm), timber
// class and service class. One depth serves all ribs.
class Form2 : public Eingabedialog {
    Q_OBJECT

  public:
    Form2(Programm& programm, Meldungen& meldungen, QWidget* parent);

  protected:
    void schreibe(Wand& w) const override;

  private:
    void baueQuerschnitte();
    void baueMaterial();

    Werteingabe* hRandrippe_;
    Werteingabe* bInnenrippe_;
    Werteingabe* bRandrippe_;
    Werteingabe* hInnenrippe_;     // disabled, mirrors hRandrippe
    Werteingabe* hKopfFussrippe_;  // the thickness of head and bottom rib
    Werteingabe* bKopfFussrippe_;  // disabled, mirrors hRandrippe
    QCheckBox* links_;
    QCheckBox* rechts_;
    QComboBox* holzart_;
    QButtonGroup* nkl_;
};

}  // namespace rippenscheibe
