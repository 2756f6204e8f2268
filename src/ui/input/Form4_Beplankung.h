#pragma once

#include <optional>

#include "basis/Seite.h"
#include "ui/input/Eingabedialog.h"

class QMenu;
class QToolButton;

namespace rippenscheibe {

// "  Eingabe der Beplankung": the sheathing of both sides. The panel width is shown in m, the record holds
// mm.
class Form4 : public Eingabedialog {
    Q_OBJECT

  public:
    Form4(Programm& programm, Meldungen& meldungen, QWidget* parent);

  protected:
    void lade(const Wand& w) override;
    // Meant: looks at side 2 of a one-sided wall too.
    std::optional<Ablehnung> ablehnung(const Wand& w) const override;

  private:
    struct Seitenfelder {
        QGroupBox* rahmen;
        QComboBox* material;
        QComboBox* eigenes;
        Werteingabe* dicke;
        QToolButton* dicken;  // opens the list of the thicknesses in which the board is made
        QMenu* dickenliste;
        Werteingabe* breite;
        QButtonGroup* gestossen;  // ids: `nicht` and `einmal` below
        QButtonGroup* nkl;
    };

    Seitenfelder baueSeite(Seite n);
    void baueDicken(Seitenfelder& s, Seite n);
    void ordneAn(const Seitenfelder& s, Seite n);
    void fuelleEigeneMaterialien();
    void zeigeEigene(Seite n);
    // Offers the only thicknesses that the chosen board has.
    void bieteDickenAn(Seite n);

    QButtonGroup* beplankt_;
    Paar<Seitenfelder> seiten_;
};

}  // namespace rippenscheibe
