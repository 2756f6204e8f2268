#include "ui/study/Wandauswahl.h"

#include <QLabel>
#include <QVBoxLayout>
#include <utility>

#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {

Wandauswahl::Wandauswahl(const QString& name, const QString& bezeichnung, Qt::Orientation richtung,
                         QWidget* parent)
    : QSplitter(richtung, parent),
      tabelle_(new Studientabelle(name, bezeichnung)),
      ansicht_(new Zeichnungsansicht(Zeichnung::ansicht)),
      aenderung_(new QLabel) {
    setObjectName(QStringLiteral("Teiler") + name);
    setChildrenCollapsible(false);
    setHandleWidth(2 * Fenster::raster);
    ansicht_->setzeDezimalzeichen(dezimalzeichen());
    aenderung_->setObjectName(name + QStringLiteral("Aenderung"));
    aenderung_->setWordWrap(true);
    auto* wand = new QWidget;
    auto* spalte = new QVBoxLayout(wand);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(Fenster::raster);
    spalte->addWidget(ansicht_, 1);
    spalte->addWidget(aenderung_);
    addWidget(tabelle_);
    addWidget(wand);
    setStretchFactor(0, 1);
    setStretchFactor(1, 1);
    connect(tabelle_, &Studientabelle::gewaehlt, this, &Wandauswahl::zeige);
}

void Wandauswahl::beginne(const Wand& heute, const QStringList& spalten, int breit) {
    heute_ = heute;
    waende_.clear();
    tabelle_->beginne(spalten, breit);
    zeige();
}

void Wandauswahl::fuegeHeuteAn(const QList<Studienzelle>& zellen) {
    tabelle_->fuegeZeileAn(zellen, -1, true);
}

void Wandauswahl::fuegeAn(const QList<Studienzelle>& zellen, Zuweisungen setzt) {
    tabelle_->fuegeZeileAn(zellen, static_cast<int>(waende_.size()));
    waende_.push_back(std::move(setzt));
}

void Wandauswahl::schliesseAb() { tabelle_->schliesseAb(); }

Zuweisungen Wandauswahl::gewaehlt() const {
    const int nummer = tabelle_->nummer();
    return nummer < 0 ? Zuweisungen{} : waende_[static_cast<std::size_t>(nummer)];
}

void Wandauswahl::zeige() {
    const Zuweisungen setzt = gewaehlt();
    ansicht_->setzeWand(mitZuweisungen(heute_, setzt));
    const QString aenderung = aenderungstext(heute_, setzt);
    aenderung_->setText(aenderung.isEmpty() ? QStringLiteral("Wand wie heute") : aenderung);
    Q_EMIT auswahlGeaendert(!aenderung.isEmpty());
}

}  // namespace rippenscheibe
