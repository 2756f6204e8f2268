#pragma once

#include <functional>
#include <optional>
#include <string>

#include "report/Seitenkopf.h"

namespace rippenscheibe {

// The page numbers of a print job. With a suffix other than 0 the label is the start page, a point and
// the running number; otherwise the running number counts from the start page.
struct Seitenzaehlung {
    bool SeitenzahlDrucken = false;
    int Startseite = 0;
    int Suffix = 0;
    std::string IndexText;  // stands behind the number
};

struct Druckauftrag {
    Einstellungen einstellungen;  // head and foot
    Seitenzaehlung zaehlung;
    std::string Projekt;   // foot line
    std::string Position;  // foot line
    // Called while the first page heads print, for a sign of life.
    std::function<void()> anlauf;
};

struct Druckergebnis {
    int seiten = 0;
    // The number to be kept as last page printed; none when pages are not numbered or have a suffix.
    std::optional<int> LetzteSeite;
};

// "Seite 5a", "Blatt 5", "Seite 3.2"; empty when pages are not numbered. `seite` counts the pages of
// the job from 1.
std::string seitenzahl(const Druckauftrag& auftrag, int seite);

// Puts a printed report (long or short form) on pages. The surface's first page must be begun; it is
// not told to end the last one.
Druckergebnis druckeSeiten(Zeichenflaeche& f, const Bericht& bericht, const Druckauftrag& auftrag);

}  // namespace rippenscheibe
