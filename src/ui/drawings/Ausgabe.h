#pragma once

#include <QByteArray>
#include <QImage>
#include <QPicture>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <filesystem>

#include "ui/drawings/Zeichnungen.h"

// Drawings as pictures: for the clipboard, for rich text, for a file.

namespace rippenscheibe {

// The drawing on paper style, `aufloesung` in dots per inch. Empty when the size or the resolution is none.
QImage bild(Zeichnung was, const Wand& w, QSizeF mm, double aufloesung, const Zeichenstil& stil);
// The same as the bytes of a PNG file that states its size.
QByteArray png(Zeichnung was, const Wand& w, QSizeF mm, double aufloesung, const Zeichenstil& stil);
// A recording that any painter can play, in units of `stil.mm`.
QPicture aufzeichnung(Zeichnung was, const Wand& w, QSizeF mm, const Zeichenstil& stil);
// SVG of the given size in mm, text as text.
QByteArray svg(Zeichnung was, const Wand& w, QSizeF mm, const Zeichenstil& stil);
// Writes it to a file; false when that fails, the file is then as it was.
bool speichereSvg(const std::filesystem::path& datei, Zeichnung was, const Wand& w, QSizeF mm,
                  const Zeichenstil& stil);

}  // namespace rippenscheibe
