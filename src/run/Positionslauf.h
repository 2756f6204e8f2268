#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "run/Berechnungslauf.h"
#include "run/Zuweisen.h"

// Open, check, run, say: what the tool, the PDF command and the main window do with a position.

namespace rippenscheibe {

// What a program tells its caller; with several files the highest.
enum class Rueckgabe : int { erfuellt = 0, nichtErfuellt = 1, hinweise = 2, dateifehler = 3, aufruf = 64 };

// A command refuses what is no position; the file dialog of the window opens every file, as far as it goes.
enum class Einlass { nurPositionen, jedeDatei };

struct Oeffnung {
    std::optional<std::string> fehler{};  // why not, with the name of the file: the record is as it was
    bool gelesen = false;                 // there is such a file, and it could be read
    Texte vorbehalte{};                   // fields of the file that kept the value of the record
    Grundmasse felder{};                  // of the main window
    std::string bytes{};                  // what was read
};
// Zuweisen has to follow.
Oeffnung oeffnePosition(const std::filesystem::path& datei, Wand& w, Einlass einlass);

struct Positionslauf {
    Laufergebnis ergebnis = Laufergebnis::hinweise;
    Rueckgabe rueckgabe = Rueckgabe::hinweise;
    std::string_view satz{};  // what stopped the run, or that a proof fails; empty when all is well
    // All that is said, in order: the sentence stands before the findings that it speaks of, else behind.
    Texte meldungen{};

    bool gerechnet() const { return ergebnis == Laufergebnis::gerechnet; }
};

// Takes the fields in and presses the start button, `laeufe` times.
Positionslauf laufePosition(Wand& w, const Grundmasse& felder, int laeufe = 1,
                            Hinweisbehandlung hinweise = Hinweisbehandlung::beachten);

}  // namespace rippenscheibe
