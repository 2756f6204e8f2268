#pragma once

#include "ui/input/Eingabedialog.h"

class QLineEdit;

namespace rippenscheibe {

// "  Eingabe der Verankerung": the tie-down anchor and whether the anchorage is proved. The resistance of a
// catalogue anchor is computed anew on every change it depends on.
class Form7 : public Eingabedialog {
    Q_OBJECT

  public:
    Form7(Programm& programm, Meldungen& meldungen, QWidget* parent);

  protected:
    void lade(const Wand& w) override;
    void schreibe(Wand& w) const override;
    void ergaenzeSkizze(Wand& w) const override;

  private:
    QGroupBox* baueAuswahl();
    QGroupBox* baueWerte();
    int ankertyp() const;
    // RdAnker from type, nails and load duration, the number of nails limited by the anchor.
    void rechneTragfaehigkeit();
    void zeigeAktive();

    QCheckBox* nachweis_;
    QButtonGroup* anker_;
    QLineEdit* freierName_;
    QCheckBox* teilausnagelung_;
    Werteingabe* naegel_;
    Werteingabe* rd_;
    Werteingabe* kser_;
    Werteingabe* anzahl_;
    QComboBox* kammnagel_;
    QLabel* laufwert_;  // what a run takes for Rd, where the field shows another value
    QLabel* wirkung_;   // what acts without the proof
    bool rechnet_ = false;
};

}  // namespace rippenscheibe
