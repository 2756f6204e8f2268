#include "ui/study/Auslegen.h"

#include <QPushButton>
#include <QTabWidget>

#include "ui/study/Feldworte.h"
#include "ui/study/WasHilftSeite.h"

namespace rippenscheibe {

Auslegen::Auslegen(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Auslegen"), QStringLiteral("  Auslegen"),
              Tippen::aendertNichts) {
    auto* seiten = new QTabWidget(this);
    seiten->setObjectName(QStringLiteral("Seiten"));
    seiten->setAccessibleName(QStringLiteral("Auslegen"));
    auto* hilft = new WasHilftSeite(programm, this);
    seiten->addTab(hilft, QStringLiteral("Was hilft?"));
    inhalt()->addWidget(seiten, 1);
    QPushButton* uebernehmen = schaltflaeche(QStringLiteral("Uebernehmen"), QStringLiteral("Über&nehmen"));
    uebernehmen->setToolTip(QStringLiteral("Die gewählte Änderung in die Position übernehmen"));
    uebernehmen->setEnabled(false);
    connect(hilft, &WasHilftSeite::auswahlGeaendert, uebernehmen, &QWidget::setEnabled);
    connect(uebernehmen, &QPushButton::clicked, this,
            [this, hilft] { uebernimm(programm_, QStringLiteral("Auslegen"), hilft->gewaehlt()); });
    zurueck(QStringLiteral("Command1"));
}

}  // namespace rippenscheibe
