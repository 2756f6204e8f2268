#include "ui/basics/Farben.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <cmath>

namespace rippenscheibe {

namespace {

constexpr double genug = 5;  // the guidelines ask for 4.5; the rest is for the smoothing of letters

double leuchtdichte(const QColor& farbe) {
    const auto anteil = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * anteil(farbe.redF()) + 0.7152 * anteil(farbe.greenF()) + 0.0722 * anteil(farbe.blueF());
}

QColor gemischt(const QColor& a, const QColor& b, double anteil) {
    const auto kanal = [anteil](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * anteil)); };
    return {kanal(a.red(), b.red()), kanal(a.green(), b.green()), kanal(a.blue(), b.blue())};
}

// The colour, mixed with that of the text until it has this contrast with every ground of the palette.
QColor bisZu(const QColor& farbe, const QPalette& palette, double wieViel) {
    const QColor fenster = palette.color(QPalette::Window);
    const QColor feld = palette.color(QPalette::Base);
    const QColor schrift = palette.color(QPalette::WindowText);
    QColor neue = farbe;
    for (int prozent = 0; prozent <= 100; prozent += 2) {
        neue = gemischt(farbe, schrift, prozent / 100.0);
        if (kontrast(neue, fenster) >= wieViel && kontrast(neue, feld) >= wieViel) break;
    }
    return neue;
}

// The ground of what is chosen, brought away from its text until that can be read.
QColor auswahlgrund(const QPalette& farben) {
    const QColor schrift = farben.color(QPalette::HighlightedText);
    const QColor grund = farben.color(QPalette::Highlight);
    const QColor ziel = schrift.lightnessF() > 0.5F ? Qt::black : Qt::white;
    QColor neu = grund;
    for (int prozent = 0; prozent <= 100 && kontrast(neu, schrift) < genug; prozent += 2)
        neu = gemischt(grund, ziel, prozent / 100.0);
    return neu;
}

void staerkeFarben() {
    const QPalette farben = QApplication::palette();
    const QColor grund = farben.color(QPalette::Window);
    QColor zweite = farben.color(QPalette::PlaceholderText);
    zweite = gemischt(grund, zweite, zweite.alphaF());
    zweite.setAlpha(255);
    const QColor neue = lesbar(zweite, farben);
    const QColor auswahl = auswahlgrund(farben);
    if (neue == farben.color(QPalette::PlaceholderText) && auswahl == farben.color(QPalette::Highlight))
        return;
    QPalette gestaerkt = farben;  // all other colours stay those of the desktop, or of who chose them
    gestaerkt.setColor(QPalette::PlaceholderText, neue);
    for (const QPalette::ColorGroup gruppe : {QPalette::Active, QPalette::Inactive})
        gestaerkt.setColor(gruppe, QPalette::Highlight, auswahl);
    QApplication::setPalette(gestaerkt);
}

}  // namespace

double kontrast(const QColor& a, const QColor& b) {
    const double eine = leuchtdichte(a);
    const double andere = leuchtdichte(b);
    return (std::max(eine, andere) + 0.05) / (std::min(eine, andere) + 0.05);
}

QColor lesbar(const QColor& farbe, const QPalette& palette) { return bisZu(farbe, palette, genug); }

QColor abgehoben(const QPalette& palette, double wieViel) {
    return bisZu(palette.color(QPalette::Window), palette, wieViel);
}

Zweitfarbe::Zweitfarbe(QObject* parent) : QObject(parent) {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) return;
    staerkeFarben();
    QCoreApplication::instance()->installEventFilter(this);
}

bool Zweitfarbe::eventFilter(QObject* object, QEvent* event) {
    if (object == QCoreApplication::instance() && event->type() == QEvent::ApplicationPaletteChange)
        staerkeFarben();
    return false;
}

}  // namespace rippenscheibe
