#include "ui/drawings/Zeichenstil.h"

#include "basis/Laengenmass.h"

namespace rippenscheibe {

namespace {

// A colour nearer to white, for paper: 0 leaves it, 1 is white.
QColor aufgehellt(const QColor& farbe, double anteil) {
    const auto kanal = [anteil](int x) { return static_cast<int>(x + (255 - x) * anteil); };
    return {kanal(farbe.red()), kanal(farbe.green()), kanal(farbe.blue())};
}

}  // namespace

QColor Zeichenstil::durchscheinend(Seite n) const {
    QColor farbe = platte[n];
    farbe.setAlphaF(static_cast<float>(plattendeckung));
    return farbe;
}

Zeichenstil Zeichenstil::hell() {
    Zeichenstil s;
    s.mm = 96.0 / mmJeZoll;
    s.schrifthoehe = 3.2;
    s.mindestbreite = 0.8;
    s.raster = true;
    s.grundFuellen = true;
    s.grund = QColor(0xFFFFFF);
    s.tinte = QColor(0x22282C);
    s.nebentinte = QColor(0x5F6A72);
    s.holz = QColor(0xF3E3C3);
    s.holzlinie = QColor(0x6B4E2E);
    s.tinteAufHolz = QColor(0x3B2A17);
    s.platte[Seite::eins] = QColor(0xC9A66B);
    s.platte[Seite::zwei] = QColor(0x8FA9B8);
    s.plattenkante[Seite::eins] = QColor(0x8A6428);
    s.plattenkante[Seite::zwei] = QColor(0x45687B);
    s.plattenlinie = s.plattenkante;
    s.stahl = QColor(0x4A5560);
    s.last = QColor(0xB3261E);
    return s;
}

Zeichenstil Zeichenstil::dunkel() {
    Zeichenstil s = hell();
    s.grund = QColor(0x1F2428);
    s.tinte = QColor(0xE8ECEF);
    s.nebentinte = QColor(0xA3AEB6);
    // Lines, bolts and arrows that stand on the dark ground are ink too.
    s.plattenlinie[Seite::eins] = QColor(0xE0BC7E);
    s.plattenlinie[Seite::zwei] = QColor(0x9CC3D8);
    s.last = QColor(0xF2776D);
    s.stahl = QColor(0x6F7F8C);
    return s;
}

Zeichenstil Zeichenstil::papier(double mm) {
    Zeichenstil s = hell();
    s.mm = mm;
    s.schrifthoehe = 2.5;
    s.kleinsteSchrift = 7.0 * mmJeZoll / punkteJeZoll;
    s.mindestbreite = 0.0;
    s.raster = false;
    s.familie = QStringLiteral("Arial");
    s.grundFuellen = false;
    s.tinte = QColor(Qt::black);
    s.nebentinte = QColor(Qt::black);
    s.plattenlinie[Seite::eins] = s.plattenlinie[Seite::zwei] = QColor(Qt::black);
    s.tinteAufHolz = QColor(Qt::black);
    s.holz = aufgehellt(s.holz, 0.45);
    s.platte[Seite::eins] = aufgehellt(s.platte[Seite::eins], 0.30);
    s.platte[Seite::zwei] = aufgehellt(s.platte[Seite::zwei], 0.30);
    return s;
}

Zeichenstil Zeichenstil::aufSchirm() const {
    Zeichenstil s = *this;
    s.raster = true;
    return s;
}

Zeichenstil Zeichenstil::zuPalette(const QPalette& palette) {
    const QColor grund = palette.color(QPalette::Base);
    Zeichenstil s = grund.lightness() < 128 ? dunkel() : hell();
    s.grund = grund;
    s.tinte = palette.color(QPalette::Text);
    return s;
}

}  // namespace rippenscheibe
