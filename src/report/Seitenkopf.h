#pragma once

#include <string>
#include <string_view>

#include "report/Zeichenflaeche.h"

namespace rippenscheibe {

inline constexpr std::string_view Programmzeile = "Rippenscheibe 2.0 - DIN 1052 (2008)";
// The fixed lines of the first template.
inline constexpr std::string_view Vorlagenzeile1 = "Statik - Programme für das Bauwesen";
inline constexpr std::string_view Vorlagenzeile2 = "Bemessung von Wandtafeln im Holzbau";

// What every page carries in its head and foot.
struct Seitenkopf {
    int Kopfvorlage = 0;  // 0 fixed head, 1 to 4 frames with and without shadow, 5 no head
    std::string Kopfzeile1;
    std::string Kopfzeile2;
    std::string Kopf1Schrift = "Arial";
    std::string Kopf2Schrift = "Arial";
    bool Kopf1Fett = false;
    bool Kopf2Fett = false;
    bool Kopf1Kursiv = false;
    bool Kopf2Kursiv = false;
    bool Kopf1Unterstrichen = false;
    bool Kopf2Unterstrichen = false;
    bool LogoDrucken = false;
    bool FusszeileDrucken = false;
    bool ProgrammnameDrucken = true;
    bool BlattStattSeite = false;
};

// Draws the page head; an empty page label prints none. Afterwards the surface has a thin line and
// Arial 10 plain.
void druckeKopf(Zeichenflaeche& f, const Seitenkopf& kopf, std::string_view seitenzahl);

// Draws the foot line, if it is switched on.
void druckeFuss(Zeichenflaeche& f, const Seitenkopf& kopf, std::string_view projekt,
                std::string_view position);

}  // namespace rippenscheibe
