#pragma once

#include <QWidget>
#include <optional>
#include <variant>
#include <vector>

#include "study/Auslegung.h"
#include "ui/studyparts/Feldworte.h"
#include "ui/studyparts/Hintergrund.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;

namespace rippenscheibe {

class Achsenwahl;
class Lastfallwahl;
class Laufleiste;
class Programm;
class Wandauswahl;
class Werteingabe;

// The search for the cheapest walls that pass: what may change, how many candidates that makes, and the
// designs found.
class Suchseite : public QWidget {
    Q_OBJECT

  public:
    Suchseite(Programm& programm, QWidget* parent = nullptr);

    // What the chosen design changes.
    Zuweisungen gewaehlt() const;

  Q_SIGNALS:
    void auswahlGeaendert(bool aendertEtwas);

  private:
    // What a search yields, beside it the wall of today.
    struct Fund {
        Auslegungsauftrag auftrag;
        std::variant<Auslegungsergebnis, std::string> ergebnis;
        Wand heute;
        Bewertung heuteBewertet;
    };

    QWidget* baueWahl();
    QWidget* baueBedingungen();
    QWidget* baueErgebnis();
    std::variant<Auslegungsauftrag, QString> auftrag() const;
    void zeigeUmfang();
    void starte();
    void zeige(const Fund& fund);
    void zeigeEntwuerfe(const Fund& fund, const std::vector<Entwurf>& entwuerfe);

    Programm& programm_;
    double jeKandidat_ = 0;  // seconds that one takes, as measured on the wall of today
    std::vector<Achsenwahl*> achsen_;
    QComboBox* ziel_ = nullptr;
    QSpinBox* zahl_ = nullptr;
    Werteingabe* hoechstens_ = nullptr;
    QCheckBox* richtungen_ = nullptr;
    QCheckBox* luecken_ = nullptr;
    QCheckBox* eigengewicht_ = nullptr;
    Lastfallwahl* lastfaelle_ = nullptr;
    Laufleiste* lauf_ = nullptr;
    QLabel* preise_ = nullptr;
    QLabel* befund_ = nullptr;
    Wandauswahl* entwuerfe_ = nullptr;
    Hintergrund hintergrund_;  // the last: it stops before the others go
};

}  // namespace rippenscheibe
