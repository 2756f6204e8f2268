#pragma once

#include <array>

#include "ui/input/Eingabedialog.h"

namespace rippenscheibe {

// "  Eingabe der Belastung": load case, load duration and the characteristic loads. A value of a load case
// that is not chosen is lost on accept.
class Form9 : public Eingabedialog {
    Q_OBJECT

  public:
    Form9(Programm& programm, Meldungen& meldungen, QWidget* parent);

  protected:
    void schreibe(Wand& w) const override;

  private:
    void baueOptionen();
    void baueLasten();
    void ermittleEigengewicht();
    // Fields that the accept would clear are disabled.
    void zeigeAktive();

    QButtonGroup* lastfall_;
    QButtonGroup* kled_;
    QCheckBox* windQuer_;
    Werteingabe* Fvk_;
    Werteingabe* Fcgk_;
    Werteingabe* Fcqk_;
    Werteingabe* gk_;
    Werteingabe* qk_;
    Werteingabe* wk_;
    Werteingabe* gkWand_;
};

}  // namespace rippenscheibe
