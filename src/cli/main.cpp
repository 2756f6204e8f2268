#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "cli/Befehle.h"
#include "cli/Kommandozeile.h"
#include "files/Plattform.h"
#include "files/Programmordner.h"
#include "files/Prozess.h"

namespace {

using namespace rippenscheibe;

std::atomic<bool> niemandLiest = false;  // the reader of a pipe is gone: no fault of ours
bool eingabeUnlesbar = false;

// Hands on what was written so far; false when it did not arrive.
bool raeume() {
    errno = 0;
    const bool gelungen = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
    niemandLiest = niemandLiest || errno == EPIPE;
    return gelungen;
}

// What the standard input has, at least one byte; 0 at its end or when it cannot be read.
std::size_t liesEingabe(char* puffer, std::size_t groesse) {
    const std::optional<std::size_t> gelesen = plattform::liesStandardeingabe(puffer, groesse);
    eingabeUnlesbar = eingabeUnlesbar || !gelesen;
    return gelesen.value_or(0);
}

void gibAus(std::string_view text) {
    errno = 0;
    schreibe(stdout, text);
    niemandLiest = niemandLiest || errno == EPIPE;
}

// Writes through to whoever reads; false when nobody does any more.
bool reicheWeiter(std::string_view text) {
    gibAus(text);
    return raeume();
}

// Whoever has left need not be told.
void melde(std::string_view text) {
    if (!niemandLiest) schreibe(stderr, text);
}

std::atomic<bool> unterbrochen = false;

// A second Ctrl+C ends the program at once.
void unterbrich(int /*signal*/) {
    unterbrochen = true;
    std::signal(SIGINT, SIG_DFL);
}

// Whether Ctrl+C was pressed since the first time somebody asked, or nobody reads what would still come.
bool istUnterbrochen() {
    static const bool eingerichtet = std::signal(SIGINT, unterbrich) != SIG_ERR;
    return (eingerichtet && unterbrochen) || niemandLiest;
}

// One line on a terminal that the next one overwrites.
void zeigeFortschritt(std::string_view text) {
    if (plattform::istTerminal(stderr))
        std::fprintf(stderr, "\r%.*s\x1b[K", static_cast<int>(text.size()), text.data());
}

Rueckgabe laufe(const std::vector<std::string>& angaben) {
    const auto gelesen = liesKommandozeile(angaben);
    if (const auto* auskunft = std::get_if<Auskunft>(&gelesen)) {
        schreibe(auskunft->rueckgabe == Rueckgabe::erfuellt ? stdout : stderr, auskunft->text);
        return auskunft->rueckgabe;
    }
    const Ausgaben ausgaben{gibAus, melde, liesEingabe, reicheWeiter, istUnterbrochen, zeigeFortschritt};
    return fuehreAus(std::get<Auftrag>(gelesen), programmordner(), ausgaben);
}

}  // namespace

int main(int argc, char** argv) {
    bereiteProzessVor();
    Rueckgabe rueckgabe = laufe(plattform::angaben(argc, argv));
    // A report that did not arrive whole must not look like one.
    if (!raeume() && !niemandLiest) {
        schreibe(stderr, "Die Ausgabe kann nicht geschrieben werden.\n");
        rueckgabe = Rueckgabe::dateifehler;
    }
    if (eingabeUnlesbar) {
        schreibe(stderr, "Die Standardeingabe kann nicht gelesen werden.\n");
        rueckgabe = Rueckgabe::dateifehler;
    }
    return static_cast<int>(rueckgabe);
}
