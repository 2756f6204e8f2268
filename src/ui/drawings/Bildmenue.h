#pragma once

#include <functional>
#include <vector>

#include "ui/drawings/Ausgabe.h"

class QMenu;
class QWidget;

namespace rippenscheibe {

class Meldungen;
class Programm;

// A file format that only some drawings have.
struct Bilddatei {
    QString name;    // "DXF"
    QString filter;  // "DXF-Zeichnung (*.dxf)"
    QString endung;  // "dxf"
    std::function<QByteArray()> bytes;
};

// Adds the entries that copy a drawing and save it as SVG, PNG and PDF, and in the other formats given. Files
// and clipboard hold it as on paper, whatever the screen shows. Faults are reported over `fenster`.
void fuegeBildaktionenAn(QMenu& menue, QWidget* fenster, Programm& programm, Meldungen& meldungen,
                         const Bildvorlage& vorlage, const std::vector<Bilddatei>& weitere = {});

}  // namespace rippenscheibe
