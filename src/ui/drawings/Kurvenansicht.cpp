#include "ui/drawings/Kurvenansicht.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <cmath>

#include "basis/Zahlenformat.h"
#include "ui/basics/Programm.h"
#include "ui/drawings/Bildmenue.h"

namespace rippenscheibe {

Kurvenansicht::Kurvenansicht(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAccessibleName(QStringLiteral("Einfluss auf die Ausnutzungen"));
    setToolTip(QStringLiteral("Die Marke lässt sich mit der Maus und den Pfeiltasten bewegen."));
}

void Kurvenansicht::setze(const Kurvendaten& daten, double marke) {
    daten_ = daten;
    marke_ = marke;
    benenne();
    update();
}

void Kurvenansicht::setzeMarke(double x) {
    marke_ = x;
    benenne();
    update();
}

void Kurvenansicht::setzeDezimalzeichen(char zeichen) {
    dezimalzeichen_ = zeichen;
    benenne();
    update();
}

void Kurvenansicht::bieteDateien(Programm& programm, Meldungen& meldungen) {
    programm_ = &programm;
    meldungen_ = &meldungen;
}

// What a screen reader says of the mark.
void Kurvenansicht::benenne() {
    const Kurvenwert wert = groessterWert(daten_, marke_);
    const QString x = qtext(formatiere(daten_.maske, marke_, dezimalzeichen_));
    setAccessibleDescription(
        wert.name.isEmpty()
            ? QStringLiteral("%1: %2").arg(daten_.achse, x)
            : QStringLiteral("%1: %2, größte Ausnutzung %3 in %4")
                  .arg(daten_.achse, x, qtext(formatiere("0.00", wert.eta, dezimalzeichen_)), wert.name));
    QAccessibleEvent geaendert(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&geaendert);
}

void Kurvenansicht::paintEvent(QPaintEvent*) {
    Zeichenstil stil = Zeichenstil::zuPalette(palette());
    stil.dezimalzeichen = dezimalzeichen_;
    const QFontInfo schrift(font());
    stil.familie = schrift.family();
    stil.schrifthoehe = std::clamp(schrift.pixelSize() / stil.mm, 2.4, 6.0);
    mm_ = stil.mm;
    QPainter painter(this);
    {
        Zeichner z(painter, QRectF(rect()), stil);
        rahmen_ = zeichneKurvenbild(z, daten_, marke_);
    }
    if (!hasFocus()) return;
    QStyleOptionFocusRect fokus;
    fokus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &fokus, &painter, this);
}

std::ptrdiff_t Kurvenansicht::stelle() const {
    const auto naechstes = std::min_element(daten_.x.begin(), daten_.x.end(), [this](double a, double b) {
        return std::fabs(a - marke_) < std::fabs(b - marke_);
    });
    return naechstes - daten_.x.begin();
}

void Kurvenansicht::bewegeZu(double x) {
    if (x == marke_) return;
    setzeMarke(x);
    Q_EMIT markeBewegt(x);
}

void Kurvenansicht::bewegeNach(const QPointF& ort) {
    if (daten_.x.empty() || rahmen_.feld.isEmpty()) return;
    bewegeZu(groessterWert(daten_, rahmen_.wert(ort.x() / mm_)).x);
}

void Kurvenansicht::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) bewegeNach(event->position());
}

void Kurvenansicht::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton) bewegeNach(event->position());
}

void Kurvenansicht::keyPressEvent(QKeyEvent* event) {
    if (daten_.x.empty()) return QWidget::keyPressEvent(event);
    const auto letzte = static_cast<std::ptrdiff_t>(daten_.x.size()) - 1;
    std::ptrdiff_t ziel = stelle();
    switch (event->key()) {
        case Qt::Key_Left:
            --ziel;
            break;
        case Qt::Key_Right:
            ++ziel;
            break;
        case Qt::Key_Home:
            ziel = 0;
            break;
        case Qt::Key_End:
            ziel = letzte;
            break;
        default:
            return QWidget::keyPressEvent(event);
    }
    bewegeZu(daten_.x[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(ziel, 0, letzte))]);
}

void Kurvenansicht::contextMenuEvent(QContextMenuEvent* event) {
    if (programm_ == nullptr) return;
    QMenu menue(this);
    fuegeBildaktionenAn(menue, this, *programm_, *meldungen_, bildvorlage(daten_, marke_));
    menue.exec(event->globalPos());
}

}  // namespace rippenscheibe
