#pragma once

#include <QByteArray>
#include <QImage>
#include <string>
#include <vector>

#include "model/Einstellungen.h"
#include "report/Bericht.h"
#include "run/Positionslauf.h"
#include "study/Projekt.h"

namespace rippenscheibe {

// The printouts of many positions in one PDF.
struct Sammelauftrag {
    std::vector<Projektdatei> dateien;
    std::string titel;
    EigeneMaterialien materialien;
    Einstellungen einstellungen;
    QImage logo;
    Form form = Form::lang;
    char dezimalzeichen = ',';
};

struct Sammelpdf {
    QByteArray bytes;  // empty when nothing could be printed, or the work was stopped
    int gedruckt = 0;
    int seiten = 0;
    int letzteSeite = 0;  // its number; 0 when pages are not numbered
    // What is to be told of single files: why one is not printed, and what a run says of one that is.
    std::vector<std::string> meldungen;
    Rueckgabe rueckgabe = Rueckgabe::erfuellt;  // of the worst position
    bool vollstaendig = true;                   // not stopped
};

// Each position from a fresh run, its pages numbered behind those before it. Positions that do not open or
// have findings are left out and named. Nothing is written; any thread may do it, and the stop token ends it
// between two positions.
Sammelpdf sammelpdf(const Sammelauftrag& auftrag, const Ausfuehrung& ausfuehrung);

}  // namespace rippenscheibe
