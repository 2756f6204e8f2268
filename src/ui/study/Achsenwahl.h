#pragma once

#include <QWidget>
#include <optional>
#include <string>

#include "study/Auslegung.h"

class QCheckBox;
class QLabel;
class QListWidget;

namespace rippenscheibe {

class Werteingabe;

// One thing that a search may change: a tick switches it on, and beneath it stand its values, from-to-step
// for an even row of many numbers, else a tick each. Values of today are bold.
class Achsenwahl : public QWidget {
    Q_OBJECT

  public:
    // `gewaehlt`: switched on at first.
    Achsenwahl(const Standardachse& vorgabe, const Wand& heute, bool gewaehlt, QWidget* parent = nullptr);

    bool gewaehlt() const;
    // The chosen values; nothing when there are none.
    std::optional<Achse> achse() const;

  Q_SIGNALS:
    void geaendert();

  private:
    QWidget* baueReihe();
    QWidget* baueListe(const Wand& heute);
    void zeigeAnzahl();

    std::string name_;
    Achse vorgabe_;
    QCheckBox* haken_;
    QLabel* anzahl_;
    QWidget* werte_ = nullptr;
    QListWidget* liste_ = nullptr;  // either this
    Werteingabe* von_ = nullptr;    // or these
    Werteingabe* bis_ = nullptr;
    Werteingabe* schritt_ = nullptr;
};

}  // namespace rippenscheibe
