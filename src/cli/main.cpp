#include <cstdio>
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

Rueckgabe laufe(const std::vector<std::string>& angaben) {
    const auto gelesen = liesKommandozeile(angaben);
    if (const auto* auskunft = std::get_if<Auskunft>(&gelesen)) {
        schreibe(auskunft->rueckgabe == Rueckgabe::erfuellt ? stdout : stderr, auskunft->text);
        return auskunft->rueckgabe;
    }
    const Ausgaben ausgaben{[](std::string_view text) { schreibe(stdout, text); },
                            [](std::string_view text) { schreibe(stderr, text); }};
    return fuehreAus(std::get<Auftrag>(gelesen), programmordner(), ausgaben);
}

}  // namespace

int main(int argc, char** argv) {
    bereiteProzessVor();
    Rueckgabe rueckgabe = laufe(plattform::angaben(argc, argv));
    // A report that did not arrive whole must not look like one.
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        schreibe(stderr, "Die Ausgabe kann nicht geschrieben werden.\n");
        rueckgabe = Rueckgabe::dateifehler;
    }
    return static_cast<int>(rueckgabe);
}
