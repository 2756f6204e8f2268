#include "report/Seitenkopf.h"

#include <string>

#include "basis/Laengenmass.h"

namespace rippenscheibe {

namespace {

constexpr int vorgegeben = 0;  // the template with the fixed texts
constexpr int ohneKopf = 5;

constexpr bool hatSchatten(int vorlage) { return vorlage == 0 || vorlage == 1 || vorlage == 3; }
constexpr bool hatDoppelrahmen(int vorlage) { return vorlage == 3 || vorlage == 4; }

// Line widths are counted in dots of a printer of 300 dots an inch.
constexpr double punkte(int anzahl) { return anzahl * mmJeZoll / 300; }

// A box given by two corners.
constexpr Rechteck zwischen(double x1, double y1, double x2, double y2) { return {x1, y1, x2 - x1, y2 - y1}; }

void druckeRahmen(Zeichenflaeche& f, int vorlage) {
    f.setzeStrich(punkte(4));
    if (vorlage != ohneKopf) f.rahmen(zwischen(20, 5, 195, 23), Farbe::schwarz);
    if (hatSchatten(vorlage)) {
        f.flaeche(zwischen(22, 23.3, 197, 25), Farbe::grau);
        f.flaeche(zwischen(195.3, 8, 197, 23.3), Farbe::grau);
    }
    if (hatDoppelrahmen(vorlage)) f.rahmen(zwischen(22, 7.5, 194, 20.5), Farbe::schwarz);
}

Schrift kopfschrift(const std::string& name, bool fett, bool kursiv, bool unterstrichen) {
    Schrift s;
    if (!name.empty()) s.name = name;
    s.fett = fett;
    s.kursiv = kursiv;
    s.unterstrichen = unterstrichen;
    return s;
}

void druckeKopftexte(Zeichenflaeche& f, const Einstellungen& e, double x) {
    if (e.ProgrammnameDrucken && e.Kopfvorlage.value() != ohneKopf) f.text(x, 6, Programmzeile);
    if (e.Kopfvorlage.value() == vorgegeben) {
        f.setzeSchrift({});
        f.text(x, 12, kopfzeile1Vorlage0);
        f.text(x, 17, kopfzeile2Vorlage0);
        return;
    }
    // The room of the program's name is kept free in the template without head too.
    f.setzeSchrift(kopfschrift(e.Kopf1Schrift, e.Kopf1Fett, e.Kopf1Kursiv, e.Kopf1Unterstrichen));
    f.text(x, e.ProgrammnameDrucken ? 12 : 6, e.Kopfzeile1);
    f.setzeSchrift(kopfschrift(e.Kopf2Schrift, e.Kopf2Fett, e.Kopf2Kursiv, e.Kopf2Unterstrichen));
    f.text(x, e.ProgrammnameDrucken ? 17 : 11, e.Kopfzeile2);
}

}  // namespace

void druckeKopf(Zeichenflaeche& f, const Einstellungen& e, std::string_view seitenzahl) {
    druckeRahmen(f, e.Kopfvorlage.value());
    f.setzeSchrift({.fett = true});
    if (e.LogoDrucken) f.bild(Bild::logo, {23, 6, 15, 15});
    druckeKopftexte(f, e, e.LogoDrucken ? 40 : 24);
    f.setzeSchrift({});
    if (!seitenzahl.empty()) f.text(170, 6, seitenzahl);
    f.setzeStrich(punkte(1));
}

void druckeFuss(Zeichenflaeche& f, const Einstellungen& e, std::string_view projekt,
                std::string_view position) {
    if (!e.FusszeileDrucken) return;
    f.setzeStrich(punkte(5));
    f.rahmen(zwischen(20, 274, 195, 280), Farbe::schwarz);
    f.setzeSchrift({.groesse = 8, .fett = true});
    f.text(25, 275, "Projekt :  " + std::string(projekt));
    f.text(155, 275, "Position :  " + std::string(position));
    f.setzeSchrift({.groesse = 8});
    f.setzeStrich(punkte(1));
}

}  // namespace rippenscheibe
