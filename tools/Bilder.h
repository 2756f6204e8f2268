#pragma once

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLocale>
#include <QPixmap>
#include <QString>
#include <cstdio>

#include "ui/basics/Programm.h"

// What the programs that take pictures of windows share.

namespace rippenscheibe {

// Numbers and Qt's own texts as on a German desktop, whatever this one is.
inline void stelleAufDeutsch() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ladeDeutscheTexte();
}

inline void warte(int dauer) {  // ms
    QElapsedTimer uhr;
    uhr.start();
    while (uhr.elapsed() < dauer) QApplication::processEvents(QEventLoop::AllEvents, 20);
}

// At most `breite` pixels wide.
inline void sichereBild(QPixmap bild, const QString& ordner, const QString& name, int breite = 100'000) {
    if (bild.width() > breite) bild = bild.scaledToWidth(breite, Qt::SmoothTransformation);
    const QString datei = QDir(ordner).filePath(name + QStringLiteral(".png"));
    if (!bild.save(datei)) std::fprintf(stderr, "cannot write %s\n", qPrintable(datei));
}

}  // namespace rippenscheibe
