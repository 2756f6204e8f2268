#include "ui/main/Menuetabelle.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <utility>

namespace rippenscheibe {

namespace {

void fuelle(QMenu& menue, const std::vector<Menuepunkt>& punkte, QMainWindow& fenster) {
    for (const Menuepunkt& punkt : punkte) {
        if (punkt.untermenue != nullptr) {
            menue.addMenu(punkt.untermenue);
            continue;
        }
        if (punkt.name.isEmpty()) {
            menue.addSeparator();
            continue;
        }
        auto* aktion = new QAction(punkt.text, &fenster);
        aktion->setObjectName(punkt.name);
        aktion->setShortcut(punkt.taste);
        QObject::connect(aktion, &QAction::triggered, &fenster, punkt.ausfuehren);
        menue.addAction(aktion);
    }
}

}  // namespace

void baueMenueleiste(QMainWindow& fenster, const std::vector<Menue>& menues) {
    for (const Menue& menue : menues) {
        QMenu* neu = fenster.menuBar()->addMenu(menue.text);
        neu->setObjectName(menue.name);
        fuelle(*neu, menue.punkte, fenster);
    }
}

std::vector<std::pair<QAction*, QString>> baueWerkzeugleiste(QMainWindow& fenster,
                                                             const std::vector<Leistenknopf>& knoepfe) {
    QToolBar* leiste = fenster.addToolBar(QStringLiteral("Werkzeugleiste"));
    leiste->setObjectName(QStringLiteral("Toolbar1"));
    leiste->setAccessibleName(QStringLiteral("Werkzeugleiste"));
    leiste->setMovable(false);
    leiste->setIconSize({24, 24});
    std::vector<std::pair<QAction*, QString>> aktionen;
    for (const Leistenknopf& knopf : knoepfe) {
        if (knopf.text.isEmpty()) {
            leiste->addSeparator();
            continue;
        }
        auto* befehl = fenster.findChild<QAction*>(knopf.befehl);
        auto* aktion = new QAction(knopf.text, &fenster);
        aktion->setObjectName(QStringLiteral("Toolbar1(%1)").arg(aktionen.size() + 1));
        aktion->setToolTip(knopf.text);
        QObject::connect(aktion, &QAction::triggered, befehl, &QAction::trigger);
        QObject::connect(befehl, &QAction::enabledChanged, aktion, &QAction::setEnabled);
        leiste->addAction(aktion);
        leiste->widgetForAction(aktion)->setAccessibleName(knopf.text);
        aktionen.emplace_back(aktion, knopf.symbol);
    }
    return aktionen;
}

}  // namespace rippenscheibe
