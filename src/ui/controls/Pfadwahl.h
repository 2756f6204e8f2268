#pragma once

#include "ui/basics/Fenster.h"

class QComboBox;
class QFileSystemModel;
class QLineEdit;
class QTreeView;

namespace rippenscheibe {

// "  Standardpfad wählen" (Form255) and "  Pfad festlegen" (Form500): the same window chooses a folder.
// "Übernehmen" stores it with a separator at its end in StandardPfad of the settings or in Positionspfad.
class Pfadwahl : public Fenster {
    Q_OBJECT

  public:
    enum class Zweck { standardpfad, positionspfad };

    Pfadwahl(Programm& programm, Meldungen& meldungen, QWidget* parent, Zweck zweck);

    // The chosen folder as it is stored.
    QString pfad() const;

  private:
    void baueFelder();
    void zeigeAnfang();
    void zeigeLaufwerk(const QString& wurzel);
    void zeigeOrdner(const QString& ordner);
    void uebernehmen();

    Zweck zweck_;
    QComboBox* laufwerk_;
    QTreeView* ordner_;
    QFileSystemModel* modell_;
    QLineEdit* gewaehlt_;
};

}  // namespace rippenscheibe
