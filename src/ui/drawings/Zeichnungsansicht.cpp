#include "ui/drawings/Zeichnungsansicht.h"

#include <QFontInfo>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "ui/drawings/Ausgabe.h"

namespace rippenscheibe {

namespace {

QString name(Zeichnung was) {
    switch (was) {
        case Zeichnung::ansicht:
            return QStringLiteral("Ansicht und Horizontalschnitt der Wandtafel");
        case Zeichnung::rippen:
            return QStringLiteral("Querschnitte der Rippen");
        case Zeichnung::beplankung:
            return QStringLiteral("Skizze der Beplankung");
        case Zeichnung::verbindungsmittel1:
            return QStringLiteral("Skizze des Verbindungsmittels, Beplankung 1");
        case Zeichnung::verbindungsmittel2:
            return QStringLiteral("Skizze des Verbindungsmittels, Beplankung 2");
        case Zeichnung::anker:
            return QStringLiteral("Skizze des Zugankers");
        case Zeichnung::last:
            return QStringLiteral("Skizze der Belastung");
        case Zeichnung::schubfluss:
            return QStringLiteral("Skizze der Beanspruchungen");
        case Zeichnung::stoesse:
            return QStringLiteral("Stöße in Wandtafeln");
        case Zeichnung::oeffnungen:
            return QStringLiteral("Öffnungen und Aussparungen");
        case Zeichnung::gruppen:
            return QStringLiteral("Gruppen von Wandtafeln");
        case Zeichnung::ueberstand:
            return QStringLiteral("Überstand der Fußrippe");
        case Zeichnung::rollbild:
            return QStringLiteral("Aufbau einer Wandtafel");
        case Zeichnung::miniatur:
            return QStringLiteral("Wandtafel");
        case Zeichnung::startbild:
            return QStringLiteral("Wandtafel");
    }
    return {};
}

}  // namespace

Zeichnungsansicht::Zeichnungsansicht(Zeichnung was, QWidget* parent) : Wandansicht(parent), was_(was) {
    setzeVorgaben(wand_);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    benenne();
}

void Zeichnungsansicht::benenne() { setAccessibleName(name(was_)); }

void Zeichnungsansicht::setzeWand(const Wand& w) {
    wand_ = w;
    update();
}

void Zeichnungsansicht::setzeZeichnung(Zeichnung was) {
    was_ = was;
    benenne();
    updateGeometry();
    update();
}

void Zeichnungsansicht::setzeDezimalzeichen(char zeichen) {
    dezimalzeichen_ = zeichen;
    update();
}

QSize Zeichnungsansicht::sizeHint() const {
    constexpr double punkteJeMm = 5.0;  // labels of the screen are larger than those on paper
    return (groesse(was_) * punkteJeMm).toSize();
}

QSize Zeichnungsansicht::minimumSizeHint() const { return sizeHint() * 0.7; }

void Zeichnungsansicht::paintEvent(QPaintEvent*) {
    Zeichenstil stil = Zeichenstil::zuPalette(palette());
    stil.dezimalzeichen = dezimalzeichen_;
    const QFontInfo schrift(font());
    stil.familie = schrift.family();
    stil.schrifthoehe = std::clamp(schrift.pixelSize() / stil.mm, 2.4, 6.0);
    QPainter painter(this);
    zeichne(painter, QRectF(rect()), was_, wand_, stil);
}

}  // namespace rippenscheibe
