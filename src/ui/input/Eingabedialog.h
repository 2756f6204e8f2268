#pragma once

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QString>
#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "model/Feldangaben.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"

class QGridLayout;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace rippenscheibe {

class Urteilszeile;
class Wandansicht;

// One button of a choice and the value of the field that it stands for.
struct Wahlwert {
    int id;
    int wert;
};

// The part of a field of both sides, for a control of one side.
template <class T, class Gruppe>
struct Seitenfeld {
    Paar<T> Gruppe::*feld;
    Seite n;

    template <class W>
    auto& operator()(W& w) const {
        return (w.*feld)[n];
    }
};
template <class T, class Gruppe>
Seitenfeld<T, Gruppe> seite(Paar<T> Gruppe::*feld, Seite n) {
    return {feld, n};
}

// Base of all input dialogs. They share one life cycle: build the widgets, connect them, load from the
// record, accept into the record. A control is bound to its field of the record: range, mask, tool tip and
// accessible name come from the description of the field, and the base loads and writes it. Fields stand
// left, the sketch right, "Übernehmen und zurück" (ComEnde, default) and "Abbruch" (Command1) at the bottom
// right.
//
// A derived class builds its controls in its constructor and calls `beginne()` last.
class Eingabedialog : public Fenster {
    Q_OBJECT

  public:
    Eingabedialog(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
                  const QString& titel);

    // Why an accept is refused: a box with a critical icon and an OK. The control that it is about gets the
    // focus.
    struct Ablehnung {
        QString titel;
        QString text;
        QWidget* feld = nullptr;
    };

  protected:
    // The control that a refusal is about, told by words of its text; the first row that fits.
    struct Ablehnungsort {
        std::string_view worte;
        QWidget* feld;
    };
    static QWidget* ortDerAblehnung(std::string_view text, std::span<const Ablehnungsort> orte) {
        for (const Ablehnungsort& ort : orte)
            if (text.find(ort.worte) != std::string_view::npos) return ort.feld;
        return nullptr;
    }

    // Shows the record in the fields: those that are bound, and what the dialog adds.
    virtual void lade(const Wand& w);
    // Writes the fields into a record: the position on accept, a copy for the sketch.
    virtual void schreibe(Wand& w) const;
    // What the sketch shows besides: of a copy that was written and assigned.
    virtual void ergaenzeSkizze(Wand&) const {}
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

    // Binds a field, a member of the record or `seite(member, n)`, to a new value input or to a control.
    template <class Ort>
    Werteingabe* binde(const Ort& ort, const Wertschild& schild) {
        Werteingabe* feld = werteingabe(schild.name, wertvorgabe(angabe(ort), schild, zusatz(ort)));
        const double teiler = schild.teiler;
        bindungen_.push_back({[=](const Wand& w) {
                                  feld->setzeWert(static_cast<double>(std::invoke(ort, w).value()) / teiler);
                              },
                              [=](Wand& w) { std::invoke(ort, w) = feld->wert() * teiler; }, angabe(ort).name,
                              feld});
        return feld;
    }
    template <class Ort>
    void binde(const Ort& ort, QCheckBox* feld) {
        bindungen_.push_back({[=](const Wand& w) { feld->setChecked(std::invoke(ort, w)); },
                              [=](Wand& w) { std::invoke(ort, w) = feld->isChecked(); }, angabe(ort).name,
                              feld});
        beschreibe(*feld, angabe(ort), zusatz(ort));
    }
    template <class Ort>
    void binde(const Ort& ort, QComboBox* feld) {
        bindungen_.push_back({[=](const Wand& w) { waehle(feld, std::invoke(ort, w)); },
                              [=](Wand& w) { uebernimm(feld, std::invoke(ort, w)); }, angabe(ort).name,
                              feld});
        beschreibe(*feld, angabe(ort), zusatz(ort));
    }
    // Option buttons. A value that none of them stands for shows `sonst`; what was not changed is written
    // back as it was read.
    template <class Ort>
    void binde(const Ort& ort, QButtonGroup* auswahl, const std::vector<Wahlwert>& werte, int sonst = -1) {
        bindungen_.push_back({[=](const Wand& w) {
                                  waehle(*auswahl, werte, sonst, static_cast<int>(wert(std::invoke(ort, w))));
                              },
                              [=](Wand& w) {
                                  const std::optional<int> neu = gewaehlt(*auswahl, werte);
                                  if (neu) setze(std::invoke(ort, w), *neu);
                              },
                              angabe(ort).name, auswahl});
        for (QAbstractButton* knopf : auswahl->buttons()) beschreibe(*knopf, angabe(ort), zusatz(ort));
    }

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
    QLabel* notiz(const QString& text);
    // A line that stands beside what it is about, while it holds: with a sign, in the warning colour.
    QLabel* warnung(const QString& name);
    // A group box with a grid of three columns: label, field, unit.
    QGroupBox* gruppe(const QString& titel);
    static QGridLayout* grid(QGroupBox* gruppe);

    // Stored indices count from 1, lists from 0. An entry that is not in the list selects nothing, and
    // nothing selected leaves the stored index alone.
    static void waehle(QComboBox* liste, const Ganzzahl& index);
    static void uebernimm(const QComboBox* liste, Ganzzahl& index);

  private:
    // One control and its field.
    struct Bindung {
        std::function<void(const Wand&)> lade;
        std::function<void(Wand&)> schreibe;
        std::string_view feld;  // its name
        QObject* bedienung;     // a widget, or a group of buttons
    };

    template <class Ort>
    Feldangabe angabe(const Ort& ort) const {
        return eingabeangabe(programm_.w, &std::invoke(ort, std::as_const(programm_.w)))
            .value_or(Feldangabe{});
    }
    template <class Ort>
    static QString zusatz(const Ort& ort) {
        if constexpr (requires { ort.n; }) return QStringLiteral("Beplankung %1").arg(nummer(ort.n));
        return {};
    }
    static int wert(bool feld) { return feld ? 1 : 0; }
    static int wert(const Ganzzahl& feld) { return feld.value(); }
    static void setze(bool& feld, int wert) { feld = wert != 0; }
    static void setze(Ganzzahl& feld, int wert) { feld = wert; }
    static void beschreibe(QWidget& feld, const Feldangabe& angabe, const QString& zusatz);
    static void waehle(QButtonGroup& auswahl, const std::vector<Wahlwert>& werte, int sonst, int wert);
    static std::optional<int> gewaehlt(const QButtonGroup& auswahl, const std::vector<Wahlwert>& werte);

    void uebernehmen();
    void geheZumFeld();
    void zeichneNeu();
    void folgeAenderungen();

    std::vector<Bindung> bindungen_;
    bool laedt_ = true;
    QVBoxLayout* felder_;
    QVBoxLayout* skizzen_;
    Urteilszeile* urteil_;
    std::vector<Wandansicht*> ansichten_;
};

}  // namespace rippenscheibe
