#pragma once

#include <optional>

#include "basis/Seite.h"
#include "ui/input/Eingabedialog.h"

namespace rippenscheibe {

// "  Eingabe der Verbindungsmittel": the fasteners of both sides.
class Form5 : public Eingabedialog {
    Q_OBJECT

  public:
    Form5(Programm& programm, Meldungen& meldungen, QWidget* parent);

  protected:
    void lade(const Wand& w) override;
    // The first finding of the general fastener check.
    std::optional<Ablehnung> ablehnung(const Wand& w) const override;

  private:
    struct Seitenfelder {
        QGroupBox* rahmen;
        QComboBox* art;
        QComboBox* klasse;
        QComboBox* nagel;
        Werteingabe* av;
        Werteingabe* fuk;
        Werteingabe* dk;
        Werteingabe* lg;
        Werteingabe* d;
        Werteingabe* ln;
        QCheckBox* vorgebohrt;
        QCheckBox* versenkt;
        QCheckBox* zweireihig;
        QPushButton* info;
        QLabel* abweichung;  // of the sizes from those of the chosen nail
    };
    enum class Anlass { laden, wechsel };

    Seitenfelder baueSeite(Seite n);
    void ordneAn(const Seitenfelder& s);
    void folge(const Seitenfelder& s, Seite n);
    // What applies to the chosen kind of both sides; on a change it also sets what hangs on the kind.
    void richteNachArt(Anlass anlass);
    void richteSeite(Seite n, Anlass anlass);
    // d, l and dk of the chosen row of the nail table.
    void uebernimmNagel(Seite n);
    static bool weichtAb(const Seitenfelder& s);
    void zeigeAbweichung(Seite n);

    Paar<Seitenfelder> seiten_;
};

}  // namespace rippenscheibe
