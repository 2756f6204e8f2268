#pragma once

#include "model/Wand.h"
#include "ui/basics/Fenster.h"

class QButtonGroup;
class QLabel;

namespace rippenscheibe {

class Werteingabe;

// "  Eigengewicht ermitteln": the self-weight of the wall in kN/m from the fixed unit weights. It changes no
// record; an accept hands its result to the load dialog.
class Form14 : public Fenster {
    Q_OBJECT

  public:
    Form14(Programm& programm, Meldungen& meldungen, QWidget* parent);

    double gkWand() const;  // kN/m

  private:
    static constexpr int mitDaemmung = 0;
    static constexpr int keineDaemmung = 1;

    void baueDaemmung();
    void baueWichten();
    void rechne();
    Wand jetzt() const;
    QString herkunft() const;

    QButtonGroup* daemmung_;
    Werteingabe* dicke_;
    Werteingabe* ergebnis_;
    QLabel* wichtenhinweis_;  // where the unit weights of the sheathing come from
};

}  // namespace rippenscheibe
