#include "ui/study/Auslegen.h"

#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ui/basics/Programm.h"
#include "ui/study/Suchseite.h"
#include "ui/study/WasHilftSeite.h"

namespace rippenscheibe {

Auslegen::Auslegen(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Auslegen"), QStringLiteral("  Auslegen"),
              Tippen::aendertNichts) {
    auto* seiten = new QTabWidget(this);
    seiten->setObjectName(QStringLiteral("Seiten"));
    seiten->setAccessibleName(QStringLiteral("Auslegen"));
    seiten->setDocumentMode(true);  // the ground of the window, on which grey texts can be read
    auto* suche = new Suchseite(programm, this);
    auto* hilft = new WasHilftSeite(programm, this);
    seiten->addTab(suche, QStringLiteral("&Entwürfe suchen"));
    seiten->addTab(hilft, QStringLiteral("&Was hilft?"));
    inhalt()->addWidget(seiten, 1);
    QPushButton* knopf = schaltflaeche(QStringLiteral("Uebernehmen"), QStringLiteral("Über&nehmen"));
    knopf->setToolTip(
        QStringLiteral("Die gewählte Wand in die Position übernehmen; lässt sich rückgängig machen"));
    const auto gewaehlt = [seiten, suche, hilft] {
        return seiten->currentWidget() == suche ? suche->gewaehlt() : hilft->gewaehlt();
    };
    const auto richte = [this, knopf, gewaehlt] {
        knopf->setEnabled(!aenderungstext(studienwand(programm_), gewaehlt()).isEmpty());
    };
    connect(suche, &Suchseite::auswahlGeaendert, knopf, richte);
    connect(hilft, &WasHilftSeite::auswahlGeaendert, knopf, richte);
    connect(seiten, &QTabWidget::currentChanged, knopf, richte);
    connect(&programm, &Programm::geaendert, knopf, richte);
    connect(knopf, &QPushButton::clicked, this,
            [this, gewaehlt] { uebernimm(programm_, QStringLiteral("Auslegen"), gewaehlt()); });
    richte();
    zurueck(QStringLiteral("Command1"));
}

}  // namespace rippenscheibe
