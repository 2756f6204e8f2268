#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "cli/Herleitung.h"
#include "cli/Studie.h"
#include "report/Bericht.h"
#include "run/Berechnungslauf.h"
#include "run/Positionslauf.h"

namespace rippenscheibe {

enum class Befehl {
    rechne,
    pruefe,
    neu,
    uebertrage,
    felder,
    herleite,
    stapel,
    variiere,
    legeAus,
    hilft,
    tafel,
    stueckliste,
    lastfaelle,
    projekt
};
enum class Ausgabeart { text, rtf, json };
enum class Zustand { jeDatei, gemeinsam };  // a fresh position for each file, or one for all

// A command with its options.
struct Auftrag {
    Befehl befehl = Befehl::rechne;
    std::vector<std::filesystem::path> dateien;
    Ausgabeart ausgabe = Ausgabeart::text;
    Form form = Form::ansicht;
    std::optional<std::filesystem::path> material;  // the own materials; else those of the program's folder
    int laeufe = 1;
    Zustand zustand = Zustand::jeDatei;
    Hinweisbehandlung hinweise = Hinweisbehandlung::beachten;
    char dezimalzeichen = ',';
    Herleitungswahl herleitung;
    std::optional<std::filesystem::path> vorlage;  // of a stream
    Studienauftrag studie;
    std::optional<std::filesystem::path> nach;  // write there instead of standard output
};

// Help, version or a usage error, in German.
struct Auskunft {
    std::string text;
    Rueckgabe rueckgabe = Rueckgabe::erfuellt;
};

// "„xml“ ist nicht zulässig; erlaubt: text, rtf, json" of "text|rtf|json".
std::string nichtZulaessig(const std::string& wert, const std::string& erlaubt);

// `angaben` are the arguments without the program's name.
std::variant<Auftrag, Auskunft> liesKommandozeile(std::span<const std::string> angaben);

}  // namespace rippenscheibe
