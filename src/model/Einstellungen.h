#pragma once

#include <string>
#include <string_view>

#include "basis/Freiwert.h"
#include "basis/Zahl.h"

namespace rippenscheibe {

inline constexpr std::string_view vorgabepfad = "C:\\Eigene Dateien\\";
// The fixed text lines of page head 0; the second is the maker's line.
inline constexpr std::string_view kopfzeile1Vorlage0 = "Statik - Programme für das Bauwesen";
inline constexpr std::string_view kopfzeile2Vorlage0 = "Rippenscheibe";

// The settings of page head, default folder and print. The values here are those of "Voreinstellung".
struct Einstellungen {
    Ganzzahl Kopfvorlage;  // 0 to 5
    std::string Kopfzeile1{kopfzeile1Vorlage0};
    std::string Kopfzeile2{kopfzeile2Vorlage0};
    std::string StandardPfad{vorgabepfad};
    std::string Kopf1Schrift = "Arial";
    std::string Kopf2Schrift = "Arial";
    bool Kopf1Unterstrichen = false;
    bool Kopf2Unterstrichen = false;
    Freiwert HsetReserve1;  // kept for the file, used by nothing
    Freiwert HsetReserve2;
    bool Kopf1Fett = false;
    bool Kopf2Fett = false;
    bool Kopf1Kursiv = false;
    bool Kopf2Kursiv = false;
    bool LogoDrucken = false;
    bool FusszeileDrucken = false;
    bool SeitenzahlStandard = true;
    bool SystembildStandard = true;
    bool SchnittkraftStandard = true;  // stored, used by nothing
    bool ProgrammnameDrucken = true;
    bool BlattStattSeite = false;
    Ganzzahl Suffix;
};

}  // namespace rippenscheibe
