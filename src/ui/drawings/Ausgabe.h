#pragma once

#include <QByteArray>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QSizeF>
#include <QString>
#include <functional>
#include <string>

#include "ui/drawings/Zeichnungen.h"

// Drawings as pictures: for the clipboard, for rich text, for a file.

class QPdfWriter;

namespace rippenscheibe {

// A drawing that can be put out: how it is drawn, its usual size on paper in mm, and what it is called.
struct Bildvorlage {
    std::function<void(QPainter&, const QRectF&, const Zeichenstil&)> zeichne;
    QSizeF mm;
    QString titel;
};
Bildvorlage bildvorlage(Zeichnung was, const Wand& w);

// The picture with so many dots per inch, on the ground of the style. Empty when the size or the resolution
// is none.
QImage bild(const Bildvorlage& vorlage, double aufloesung, const Zeichenstil& stil);
// The same as the bytes of a PNG file that states its size.
QByteArray png(const Bildvorlage& vorlage, double aufloesung, const Zeichenstil& stil);
// SVG of its size, text as text.
QByteArray svg(const Bildvorlage& vorlage, const Zeichenstil& stil);

inline constexpr int pdfAufloesung = 1200;  // units per inch of the coordinates
// What all PDF files of the program have in common. Newer Qt gives each document a random number; of the same
// `kennung` it is the same, and so is the file but for its dates.
void richteEin(QPdfWriter& pdf, const QPageSize& format, const QString& titel, const std::string& kennung);
// PDF of one page of its size.
QByteArray pdf(const Bildvorlage& vorlage, const Zeichenstil& stil);

}  // namespace rippenscheibe
