#pragma once

#include <optional>
#include <vector>

#include "ui/basics/Fenster.h"
#include "ui/verdict/Sofortrechnung.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace rippenscheibe {

// Variants of a wall side by side: what is entered now and what was kept under a name. The utilisations of
// all proofs and the inputs that differ, each column from a run of its own as after program start.
class Variantenvergleich : public Fenster {
    Q_OBJECT

  public:
    Variantenvergleich(Programm& programm, Meldungen& meldungen, QWidget* parent);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    struct Spalte {
        QString name;
        Wand wand;  // as computed
        Sofortergebnis ergebnis;
    };

    void baueMerkzeile();
    void baueTabelle();
    void zeige();
    void rechne();
    void zeigeUebernehmen();
    void zeigeUrteile();
    void zeigeAbschnitte();
    void zeigeEingaben();
    void zeigeAuswahl();
    int fuegeZeileAn(const QString& kopf, const QStringList& texte);
    void hebeHervor(int zeile, std::size_t spalte);

    void merke();
    void uebernimm(std::size_t variante);
    void speichere();
    void loesche();
    std::optional<std::size_t> gewaehlte() const;

    QLineEdit* name_ = nullptr;
    QTableWidget* tabelle_ = nullptr;
    QLabel* legende_ = nullptr;
    QPushButton* speichern_ = nullptr;
    QPushButton* loeschen_ = nullptr;
    std::vector<Spalte> spalten_;  // the first is what is entered now
};

// The column whose value reads smaller than all others; nothing counts where there is no value, and one value
// alone is better than none other.
std::optional<std::size_t> besteSpalte(const std::vector<std::optional<double>>& werte);

}  // namespace rippenscheibe
