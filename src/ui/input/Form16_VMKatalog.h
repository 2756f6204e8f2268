#pragma once

#include "basis/Seite.h"
#include "ui/basics/Fenster.h"

class QGridLayout;
class QGroupBox;

namespace rippenscheibe {

struct VMKataloggruppe;

// " Infos zu Verbindungsmitteln": usual fasteners. A click on "auswählen" fills diameter, length and head
// diameter of one side of the fastener dialog over which the window stands, and closes it.
class Form16 : public Fenster {
    Q_OBJECT

  public:
    // `dialog` is the fastener dialog, `VMKatalogSeite` the side that opened the window.
    Form16(Programm& programm, Meldungen& meldungen, QWidget* dialog, Seite VMKatalogSeite);

  private:
    QGroupBox* baueGruppe(const VMKataloggruppe& gruppe);
    void baueZeile(const VMKataloggruppe& gruppe, int i, QWidget& rahmen, QGridLayout& grid, int zeile,
                   int spalte);
    void waehle(int zeile);

    QWidget* dialog_;
    Seite seite_;
};

}  // namespace rippenscheibe
