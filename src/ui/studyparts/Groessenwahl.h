#pragma once

#include <QWidget>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "study/Raster.h"

class QComboBox;
class QGridLayout;
class QLabel;

namespace rippenscheibe {

class Werteingabe;

// An input that a study varies: its fields, joined by commas as in `achseAus`, and its values: either those
// of a list, or a usual range in the unit of the field.
struct Groesse {
    std::string felder;
    std::vector<int> indizes;
    Achse liste;
    double von = 0;
    double bis = 0;
    double schritt = 0;
    bool istListe() const { return !liste.werte.empty(); }
};

// All that can be varied on this wall. Loads that do not act on it are left out, and with `nurZahlen` the
// lists.
std::vector<Groesse> groessen(const Wand& w, bool nurZahlen = false);

// The spacing of the fasteners, both sides together where they have the same: what is varied at first.
std::string abstandsgroesse(const Wand& w);

// Chooses one of them and its range.
class Groessenwahl : public QWidget {
    Q_OBJECT

  public:
    // Controls are named "NAME", "NAMEVon", "NAMEBis", "NAMESchritt". `zuerst` is the one at first, by its
    // fields.
    Groessenwahl(const QString& name, const QString& beschriftung, std::vector<Groesse> groessen,
                 const std::string& zuerst, QWidget* parent = nullptr);

    const Groesse& groesse() const;
    // Choices below each other share the width of their captions.
    int schildbreite() const;
    void setzeSchildbreite(int breite);
    // The values from-to-step as decimal texts, or those of the list; a sentence when they cannot be.
    std::variant<Achse, std::string> achse() const;

  Q_SIGNALS:
    void geaendert();

  private:
    void baueFelder();
    Werteingabe* baueFeld(QGridLayout& zeile, const char* zusatz, const char* text, double wert);

    std::vector<Groesse> groessen_;
    QComboBox* wahl_;
    QLabel* schild_;
    QWidget* felder_ = nullptr;
    Werteingabe* von_ = nullptr;
    Werteingabe* bis_ = nullptr;
    Werteingabe* schritt_ = nullptr;
};

}  // namespace rippenscheibe
