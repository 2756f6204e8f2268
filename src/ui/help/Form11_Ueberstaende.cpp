#include "ui/help/Form11_Ueberstaende.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "ui/basics/Programm.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {

Form11::Form11(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form11"), QStringLiteral("  Info zu Überständen"),
              Tippen::aendertNichts) {
    auto* skizze = new Zeichnungsansicht(Zeichnung::ueberstand, this);
    skizze->setObjectName(QStringLiteral("Picture1"));
    skizze->setzeWand(programm_.w);
    skizze->setMinimumSize(560, 380);
    inhalt()->addWidget(skizze, 1);
    zurueck(QStringLiteral("ComEnde"));
}

}  // namespace rippenscheibe
