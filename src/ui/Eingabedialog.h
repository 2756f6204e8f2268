#pragma once

#include <QString>
#include <optional>

#include "ui/Fenster.h"

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace rippenscheibe {

class Werteingabe;
struct Wertvorgabe;

// Base of all input dialogs. They share one life cycle: build the widgets, connect them, load from the
// record, accept into the record. Fields stand left, the sketch right, "Übernehmen und zurück" (ComEnde,
// default) and "Abbruch" (Command1) at the bottom right.
class Eingabedialog : public Fenster {
    Q_OBJECT

  public:
    Eingabedialog(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
                  const QString& titel);

    // What an accept runs into when the input is refused: the box has a critical icon and an OK.
    struct Ablehnung {
        QString titel;
        QString text;
    };

  protected:
    // Writes the fields into the record. A refusal keeps the dialog open; what was written stays written.
    virtual std::optional<Ablehnung> uebernimm() = 0;
    // What follows an accept without refusal. The record takes part in it, but a dialog that changes no
    // record has its own.
    virtual void nachUebernahme();

    // The column of fields and the place of the sketch.
    QVBoxLayout* felder() const { return felder_; }
    QVBoxLayout* skizze() const { return skizze_; }

    // Controls with name, caption and accessible name; the parent is this dialog.
    Werteingabe* werteingabe(const QString& name, const Wertvorgabe& vorgabe);
    QCheckBox* ankreuzfeld(const QString& name, const QString& text);
    QRadioButton* option(const QString& name, const QString& text);
    QComboBox* liste(const QString& name, const QString& beschriftung);
    QPushButton* knopf(const QString& name, const QString& text);
    QLabel* beschriftung(const QString& text, QWidget* feld);
    // A group box with a grid of three columns: label, field, unit.
    QGroupBox* gruppe(const QString& titel);
    static QGridLayout* grid(QGroupBox* gruppe);

  private:
    void uebernehmen();

    QVBoxLayout* felder_;
    QVBoxLayout* skizze_;
};

}  // namespace rippenscheibe
