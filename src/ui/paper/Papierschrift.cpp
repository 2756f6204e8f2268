#include "ui/paper/Papierschrift.h"

#include <QFontMetricsF>
#include <QStringList>

#include "basis/Laengenmass.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

constexpr int probe = 1000;  // px, large enough to measure the outlines

// Free families with the same character widths as the usual ones, so that lines keep their length.
QStringList familien(const QString& name) {
    if (name == QStringLiteral("Courier New")) return {name, QStringLiteral("Liberation Mono")};
    if (name == QStringLiteral("Times New Roman")) return {name, QStringLiteral("Liberation Serif")};
    return {name, QStringLiteral("Liberation Sans")};
}

// The outlines of a font, in thousandths of its size.
QFontMetricsF umrisse(const Schrift& schrift) {
    QFont font = papierschrift(schrift);
    font.setPixelSize(probe);
    return QFontMetricsF(font);
}

double mmJePixel(const Schrift& schrift) { return schrift.groesse * mmJeZoll / punkteJeZoll / probe; }

}  // namespace

QFont papierschrift(const Schrift& schrift) {
    QFont font;
    font.setFamilies(familien(qtext(schrift.name)));
    font.setPointSizeF(schrift.groesse);
    font.setBold(schrift.fett);
    font.setItalic(schrift.kursiv);
    font.setUnderline(schrift.unterstrichen);
    font.setHintingPreference(QFont::PreferNoHinting);  // the same line lengths at every resolution
    return font;
}

Schriftmass schriftmass(const Schrift& schrift) {
    const QFontMetricsF masse = umrisse(schrift);
    return {masse.ascent() * mmJePixel(schrift), masse.height() * mmJePixel(schrift)};
}

double papierbreite(const Schrift& schrift, std::string_view text) {
    return umrisse(schrift).horizontalAdvance(qtext(text)) * mmJePixel(schrift);
}

}  // namespace rippenscheibe
