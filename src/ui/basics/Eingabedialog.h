#pragma once

#include <QString>
#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "model/Wand.h"
#include "ui/basics/Fenster.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace rippenscheibe {

class Werteingabe;
class Wandansicht;
struct Wertvorgabe;

// Base of all input dialogs. They share one life cycle: build the widgets, connect them, load from the
// record, accept into the record. Fields stand left, the sketch right, "Übernehmen und zurück" (ComEnde,
// default) and "Abbruch" (Command1) at the bottom right.
//
// A derived class builds its controls in its constructor and calls `beginne()` last.
class Eingabedialog : public Fenster {
    Q_OBJECT

  public:
    Eingabedialog(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
                  const QString& titel);

    // Why an accept is refused: a box with a critical icon and an OK.
    struct Ablehnung {
        QString titel;
        QString text;
    };

  protected:
    // Shows the record in the fields.
    virtual void lade(const Wand& w) = 0;
    // Writes the fields into a record: the position on accept, a copy for the sketch.
    virtual void schreibe(Wand& w) const = 0;
    // Called after the fields are written. A refusal keeps the dialog open; what was written stays.
    virtual std::optional<Ablehnung> ablehnung(const Wand&) const { return std::nullopt; }

    // Loads the fields and follows their changes from then on.
    void beginne();
    // True while `lade` runs: fields are set by the program and dependent ones must not follow.
    bool laedt() const { return laedt_; }

    // The column of fields.
    QVBoxLayout* felder() const { return felder_; }
    // Adds a sketch at the right, which follows the values of the dialog.
    void skizziere(Wandansicht* ansicht);

    struct Optionstext {
        int index;
        QString text;
    };

    // Controls with name, caption and accessible name.
    Werteingabe* werteingabe(const QString& name, const Wertvorgabe& vorgabe);
    QCheckBox* ankreuzfeld(const QString& name, const QString& text);
    // Option buttons "name(index)" that exclude each other; ids are the indices.
    QButtonGroup* optionen(const QString& name, std::initializer_list<Optionstext> texte);
    QRadioButton* option(QButtonGroup* auswahl, const QString& name, int index, const QString& text);
    QComboBox* liste(const QString& name, const QString& bezeichnung,
                     std::span<const std::string_view> eintraege = {});
    QPushButton* knopf(const QString& name, const QString& text);
    QLabel* beschriftung(const QString& text, QWidget* feld);
    QLabel* notiz(const QString& text);
    // A group box with a grid of three columns: label, field, unit.
    QGroupBox* gruppe(const QString& titel);
    static QGridLayout* grid(QGroupBox* gruppe);

    // Stored indices count from 1, lists from 0. An entry that is not in the list selects nothing, and
    // nothing selected leaves the stored index alone.
    static void waehle(QComboBox* liste, const Ganzzahl& index);
    static void uebernimm(const QComboBox* liste, Ganzzahl& index);

  private:
    void uebernehmen();
    void zeichneNeu();
    void folgeAenderungen();

    bool laedt_ = true;
    QVBoxLayout* felder_;
    QVBoxLayout* skizzen_;
    std::vector<Wandansicht*> ansichten_;
};

}  // namespace rippenscheibe
