#include "ui/main/Eingabespalte.h"

#include <QEvent>
#include <QLayout>

#include "ui/main/Eingabezeile.h"

namespace rippenscheibe {

Eingabespalte::Eingabespalte(QWidget* inhalt, QWidget* parent) : QScrollArea(parent) {
    for (auto* zeile : inhalt->findChildren<Eingabezeile*>()) zeilen_.push_back(zeile);
    setWidget(inhalt);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

void Eingabespalte::verteile() {
    if (zeilen_.empty()) return;
    const int breite = zeilen_.front()->width();
    int frei = height() - widget()->layout()->totalHeightForWidth(widget()->width());
    for (const Eingabezeile* zeile : zeilen_) frei += zeile->heightForWidth(breite) - zeile->hoehe(breite, 1);
    for (Eingabezeile* zeile : zeilen_) {
        const int mehr = zeile->hoehe(breite, 2) - zeile->hoehe(breite, 1);
        const bool passt = mehr <= frei;
        if (passt) frei -= mehr;
        zeile->setzeSummenzeilen(passt ? 2 : 1);
    }
}

void Eingabespalte::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    verteile();
}

bool Eingabespalte::eventFilter(QObject* object, QEvent* event) {
    const bool neu = object == widget() && event->type() == QEvent::LayoutRequest;
    const bool erledigt = QScrollArea::eventFilter(object, event);
    if (neu) verteile();
    return erledigt;
}

}  // namespace rippenscheibe
