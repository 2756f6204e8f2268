#include "ui/drawings/Zeichnungen.h"

#include <algorithm>

#include "ui/drawings/Skizzen.h"

namespace rippenscheibe {

namespace {

// A style whose text is not larger, beside the drawing, than on paper.
Zeichenstil passend(Zeichnung was, const QRectF& flaeche, Zeichenstil stil) {
    const bool gestapelt =
        (was == Zeichnung::rippen || was == Zeichnung::beplankung) && istHochformat(flaeche);
    const QSizeF vorbild = (gestapelt ? QSizeF(64.0, 64.0) : groesse(was)) * stil.mm;
    const double anteil = std::min(flaeche.width() / vorbild.width(), flaeche.height() / vorbild.height());
    if (anteil > 0.0)
        stil.schrifthoehe = std::min(stil.schrifthoehe, Zeichenstil::papier().schrifthoehe * anteil);
    return stil;
}

}  // namespace

QString titel(Zeichnung was) {
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
        case Zeichnung::startbild:
            return QStringLiteral("Wandtafel");
    }
    return {};
}

QSizeF groesse(Zeichnung was) {
    switch (was) {
        case Zeichnung::ansicht:
            return {100.0, 91.0};
        case Zeichnung::rippen:
            return {90.0, 37.0};
        case Zeichnung::beplankung:
            return {90.0, 50.0};
        case Zeichnung::verbindungsmittel1:
        case Zeichnung::verbindungsmittel2:
            return {60.0, 60.0};
        case Zeichnung::anker:
            return {66.0, 90.0};
        case Zeichnung::last:
            return {44.0, 70.0};
        case Zeichnung::schubfluss:
            return {50.0, 34.0};
        case Zeichnung::stoesse:
            return {103.0, 110.0};
        case Zeichnung::oeffnungen:
            return {102.0, 70.0};
        case Zeichnung::gruppen:
            return {80.0, 60.0};
        case Zeichnung::ueberstand:
            return {90.0, 70.0};
        case Zeichnung::rollbild:
            return {80.0, 250.0};
        case Zeichnung::miniatur:
            return {32.0, 18.0};
        case Zeichnung::startbild:
            return {120.0, 70.0};
    }
    return {100.0, 70.0};
}

void zeichne(QPainter& painter, const QRectF& flaeche, Zeichnung was, const Wand& w, const Zeichenstil& stil,
             Zeichenhoerer* hoerer) {
    Zeichner z(painter, flaeche, passend(was, flaeche, stil), hoerer);
    if (z.zuKlein()) return;
    switch (was) {
        case Zeichnung::ansicht:
            return zeichneAnsicht(z, w);
        case Zeichnung::rippen:
            return zeichneRippen(z, w);
        case Zeichnung::beplankung:
            return zeichneBeplankung(z, w);
        case Zeichnung::verbindungsmittel1:
            return zeichneVerbindungsmittel(z, w, Seite::eins);
        case Zeichnung::verbindungsmittel2:
            return zeichneVerbindungsmittel(z, w, Seite::zwei);
        case Zeichnung::anker:
            return zeichneAnker(z, w, ankergruppe(w), Ankerplatz::allein);
        case Zeichnung::last:
            return zeichneLast(z, w, w.Lastfall.value(), w.WindQuer);
        case Zeichnung::schubfluss:
            return zeichneSchubfluss(z, w);
        case Zeichnung::stoesse:
            return zeichneStoesse(z);
        case Zeichnung::oeffnungen:
            return zeichneOeffnungen(z);
        case Zeichnung::gruppen:
            return zeichneGruppen(z);
        case Zeichnung::ueberstand:
            return zeichneUeberstand(z, w);
        case Zeichnung::rollbild:
            return zeichneRollbild(z, w);
        case Zeichnung::miniatur:
            return zeichneMiniatur(z, w);
        case Zeichnung::startbild:
            return zeichneStartbild(z, w);
    }
}

void zeichneBild(QPainter& painter, const QRectF& flaeche, Bild bild, const Wand& w,
                 const Zeichenstil& stil) {
    Zeichner z(painter, flaeche, stil);
    if (z.zuKlein()) return;
    switch (bild) {
        case Bild::system:
            return zeichneAnsicht(z, w);
        case Bild::rippe:
            return zeichneRippen(z, w);
        case Bild::lastHorizontal:
            return zeichneLast(z, w, 1, false);
        case Bild::lastHorizontalQuer:
            return zeichneLast(z, w, 1, true);
        case Bild::lastVertikal:
            return zeichneLast(z, w, 2, false);
        case Bild::lastVertikalQuer:
            return zeichneLast(z, w, 2, true);
        case Bild::lastBeide:
            return zeichneLast(z, w, 3, false);
        case Bild::lastBeideQuer:
            return zeichneLast(z, w, 3, true);
        case Bild::schnittkraefte:
            return zeichneSchubfluss(z, w);
        case Bild::ankerHD:
            return zeichneAnker(z, w, Ankergruppe::HD, Ankerplatz::bericht);
        case Bild::ankerHTT:
            return zeichneAnker(z, w, Ankergruppe::HTT, Ankerplatz::bericht);
        case Bild::ankerHD2P:
            return zeichneAnker(z, w, Ankergruppe::HD2P, Ankerplatz::bericht);
        case Bild::ankerHD2PSG:
            return zeichneAnker(z, w, Ankergruppe::HD2PSG, Ankerplatz::bericht);
        case Bild::detail1:
            return zeichneStoesse(z);
        case Bild::detail2:
            return zeichneOeffnungen(z);
        case Bild::detail3:
            return zeichneGruppen(z);
        case Bild::logo:
            return;
    }
}

}  // namespace rippenscheibe
