#pragma once

#include <QtWidgets/QtWidgets>
#include <algorithm>

#include "ui/basics/Farben.h"

// How well the texts of a window stand out, measured on its picture, and the palettes to look at it in.

namespace rippenscheibe {

// "hell", "dunkel" or "kontrast".
inline QPalette kontrastpalette(const QString& name) {
    if (name == QStringLiteral("hell")) return QApplication::style()->standardPalette();
    const bool kontrast = name == QStringLiteral("kontrast");
    const QColor grund = kontrast ? QColor(Qt::black) : QColor(0x2B, 0x2D, 0x30);
    const QColor feld = kontrast ? QColor(Qt::black) : QColor(0x1E, 0x1F, 0x22);
    const QColor schrift = kontrast ? QColor(Qt::white) : QColor(0xDF, 0xE1, 0xE5);
    QPalette farben(schrift, grund, grund.lighter(160), grund.darker(150), QColor(0x6F, 0x73, 0x7A), schrift,
                    schrift, feld, grund);
    farben.setColor(QPalette::AlternateBase, kontrast ? QColor(0x20, 0x20, 0x20) : QColor(0x26, 0x28, 0x2B));
    farben.setColor(QPalette::Highlight, kontrast ? QColor(Qt::yellow) : QColor(0x2A, 0x5F, 0xD0));
    farben.setColor(QPalette::HighlightedText, kontrast ? QColor(Qt::black) : QColor(Qt::white));
    farben.setColor(QPalette::PlaceholderText,
                    kontrast ? QColor(0xC0, 0xC0, 0xC0) : QColor(0x9D, 0xA0, 0xA8));
    farben.setColor(QPalette::ToolTipBase, grund);
    farben.setColor(QPalette::ToolTipText, schrift);
    farben.setColor(QPalette::Link, kontrast ? QColor(Qt::yellow) : QColor(0x6B, 0x9B, 0xFA));
    for (const QPalette::ColorRole rolle : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        farben.setColor(QPalette::Disabled, rolle, QColor(0x86, 0x8A, 0x91));
    return farben;
}

// The most frequent colour of a picture is its ground; what stands out most against it, its text.
inline double kontrast(const QImage& bild) {
    QHash<QRgb, int> farben;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x) ++farben[bild.pixel(x, y)];
    const auto haeufigste = std::max_element(farben.cbegin(), farben.cend());
    if (haeufigste == farben.cend()) return 1;
    const QColor grund(haeufigste.key());
    double groesster = 1;
    for (auto farbe = farben.cbegin(); farbe != farben.cend(); ++farbe)
        groesster = std::max(groesster, kontrast(QColor(farbe.key()), grund));
    return groesster;
}

// Where the text of a control stands, empty for one without text.
inline QRect textflaeche(const QWidget& feld) {
    constexpr int rand = 4;  // px, the frame of a control
    const QRect innen = feld.rect().adjusted(rand, rand, -rand, -rand);
    if (const auto* schild = qobject_cast<const QLabel*>(&feld))
        return schild->text().trimmed().isEmpty() || !schild->pixmap().isNull() ? QRect() : feld.rect();
    if (const auto* zeile = qobject_cast<const QLineEdit*>(&feld))
        return zeile->text().isEmpty() ? QRect() : innen;
    if (const auto* liste = qobject_cast<const QComboBox*>(&feld))
        return liste->currentText().isEmpty() ? QRect() : innen.adjusted(0, 0, -2 * feld.height() / 3, 0);
    const auto* knopf = qobject_cast<const QAbstractButton*>(&feld);
    if (knopf == nullptr || knopf->text().trimmed().isEmpty()) return {};
    const bool haken = qobject_cast<const QCheckBox*>(knopf) != nullptr ||
                       qobject_cast<const QRadioButton*>(knopf) != nullptr;
    return haken ? innen.adjusted(feld.height(), 0, 0, 0) : innen;
}

// The controls of a window whose text stands out less than 4.5 to 1, a line each. What is dimmed because it
// does not apply is left out.
inline QStringList schwacheTexte(QWidget& fenster) {
    constexpr double genug = 4.5;
    QStringList schwache;
    const QImage bild = fenster.grab().toImage();
    const double faktor = bild.devicePixelRatio();
    for (const QWidget* feld : fenster.findChildren<QWidget*>()) {
        const QRect flaeche = textflaeche(*feld) & feld->visibleRegion().boundingRect();
        if (!feld->isVisibleTo(&fenster) || !feld->isEnabled() || feld->window() != &fenster ||
            flaeche.width() < 8 || flaeche.height() < 8)
            continue;
        const QRect ort(feld->mapTo(&fenster, flaeche.topLeft()) * faktor, flaeche.size() * faktor);
        if (const double wert = kontrast(bild.copy(ort)); wert < genug)
            schwache << QStringLiteral("%1 %2 %3: %4")
                            .arg(fenster.objectName(), QLatin1String(feld->metaObject()->className()),
                                 feld->objectName())
                            .arg(wert, 0, 'f', 2);
    }
    return schwache;
}

}  // namespace rippenscheibe
