#pragma once

#include <QStringList>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "run/Positionslauf.h"

class QCommandLineParser;

namespace rippenscheibe {

// `rippenscheibe --pdf AUS.pdf [--form lang|kurz] DATEI`: the printed report of a position as a PDF,
// without a window and without a display. A folder in its place: all its positions, each from a fresh run,
// with running page numbers; the exit code is that of the worst. With `--groesste FELD --zeilen FELD=WERTE
// --spalten FELD=WERTE` it is the page of a design table, with the words of the tool's `tafel`.

// Where the texts for the user go, UTF-8.
struct Pdfausgaben {
    std::function<void(std::string_view)> standard;
    std::function<void(std::string_view)> meldungen;
};

// The options of the window program: those of this command, help, version and the position file.
void beschreibeAufruf(QCommandLineParser& befehlszeile);

// Reads the arguments, the first being the program's name, and answers what needs no window: a wrong call in
// German, help and version. Nothing when the program is to go on with what was read.
std::optional<Rueckgabe> beantworteAufruf(QCommandLineParser& befehlszeile, const QStringList& argumente,
                                          const Pdfausgaben& ausgaben);

// Whether these arguments ask for it.
bool istPdfBefehl(const QStringList& argumente);

// Carries it out; the first argument is the program's name. Settings, logo and own materials are those of
// the program's folder. Pages are numbered from 1, and the page number file is left alone. Findings that
// block the run, and faults, write no file.
Rueckgabe fuehrePdfBefehlAus(const QStringList& argumente, const std::filesystem::path& programmordner,
                             const Pdfausgaben& ausgaben);

}  // namespace rippenscheibe
