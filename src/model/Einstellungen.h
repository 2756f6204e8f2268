#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basis/Anweisungen.h"
#include "basis/Dateischreiber.h"

namespace rippenscheibe {

inline constexpr std::string_view einstellungsdatei = "Hset.dat";
inline constexpr std::string_view logodatei = "Logo.jpg";
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

// Takes the four statements of a settings file (UTF-8) into the settings: fields that are missing or do not
// parse keep their values, but BlattStattSeite and Suffix, which older files lack, become 0.
std::vector<Uebersprungen> liesEinstellungstext(std::string_view text, Einstellungen& e);
std::string einstellungstext(const Einstellungen& e);

// The same from and to a file. A missing file leaves the settings as they are (those two aside).
void liesEinstellungen(const std::filesystem::path& datei, Einstellungen& e);
[[nodiscard]] std::optional<Dateifehler> schreibeEinstellungen(const std::filesystem::path& datei,
                                                               const Einstellungen& e);

}  // namespace rippenscheibe
