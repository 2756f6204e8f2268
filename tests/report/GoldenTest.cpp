#include <array>
#include <charconv>
#include <cstdint>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "files/EigeneMaterialienDatei.h"
#include "files/Positionsdatei.h"
#include "report/Bericht.h"
#include "report/Rtfausgabe.h"
#include "report/Seiten.h"
#include "report/Textausgabe.h"
#include "run/Berechnungslauf.h"
#include "run/Zuweisen.h"
#include "support/Aufzeichnung.h"
#include "support/Golden.h"

// The reports of all examples, as they were read and approved.

namespace rippenscheibe {
namespace {

const std::filesystem::path ordner = RIPPENSCHEIBE_BEISPIELE;

// The examples whose rich text is held too: the longest one, and one with an anchor.
const std::set<std::string> mitRtf{"windsog", "zuganker"};

std::vector<std::filesystem::path> beispiele() {
    std::vector<std::filesystem::path> dateien;
    for (const auto& eintrag : std::filesystem::directory_iterator(ordner)) {
        if (istPositionsdatei(eintrag.path().string())) dateien.push_back(eintrag.path());
    }
    return dateien;
}

std::string seiten(const Wand& w, Form form) {
    Druckauftrag auftrag;
    auftrag.einstellungen.FusszeileDrucken = true;
    auftrag.zaehlung = {.SeitenzahlDrucken = true, .Startseite = 1, .Suffix = 0, .IndexText = ""};
    auftrag.Projekt = w.Projekt;
    auftrag.Position = w.Position;
    Aufzeichnung flaeche;
    druckeSeiten(flaeche, bericht(w, form), auftrag);
    return flaeche.protokoll();
}

// All inputs and results as text, numbers to twelve digits.
struct Sammler {
    std::string text;

    void nimm(const Feldangabe& feld, double wert) {
        std::array<char, 40> puffer{};
        const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert == 0 ? 0.0 : wert,
                                        std::chars_format::general, 12);
        text.append(feld.name).append("=").append(puffer.data(), ende.ptr).append(";");
    }
    template <class T>
    void operator()(const Feldangabe& feld, const Gespeichert<T>& wert) {
        nimm(feld, static_cast<double>(wert.value()));
    }
    void operator()(const Feldangabe& feld, bool wert) { nimm(feld, wert ? 1 : 0); }
    void operator()(const Feldangabe& feld, const std::string& wert) { text.append(feld.name).append(wert); }
    void operator()(const Feldangabe& feld, const Rippenfeld& werte) {
        for (int i = 0; i < static_cast<int>(Rippenfeld::laenge); ++i) nimm(feld, werte(i).value());
    }
    template <class Zeilen>
    void operator()(const Feldangabe& feld, const Zeilen& zeilen) {
        for (const auto& zeile : zeilen) (*this)(feld, zeile);
    }
};

// FNV-1a, the same on every machine.
std::uint64_t pruefsumme(std::string_view text) {
    std::uint64_t summe = 14695981039346656037U;
    for (const char zeichen : text) summe = (summe ^ static_cast<unsigned char>(zeichen)) * 1099511628211U;
    return summe;
}

// One hash a field group and example after a first and a second run: a refactoring keeps them, a change of
// behaviour changes them on purpose, and the diff says what moved.
TEST(Golden, TheSignatureOverAllResultsIsTheApprovedOne) {
    std::map<std::string, std::string> zeilen;  // of each example
    for (const std::filesystem::path& datei : beispiele()) {
        Wand w;
        w.eigeneMaterialien = liesEigeneMaterialien(ordner / materialdatei).wert;
        liesPosition(datei, w);
        std::vector<std::pair<std::string_view, Sammler>> gruppen;
        for (int lauf = 0; lauf < 2; ++lauf) {
            zuweisen(w, grundmasse(w));
            starte(w, Hinweisbehandlung::uebergehen);
            std::size_t nummer = 0;
            const auto sammle = [&]<class Gruppe>(std::string_view name, const Gruppe& gruppe) {
                if (lauf == 0) gruppen.emplace_back(name, Sammler{});
                Gruppe::felder(gruppe, gruppen[nummer++].second);
            };
            Eingaben::jedeGruppe(std::as_const(w), sammle);
            Ergebnisse::jedeGruppe(std::as_const(w), sammle);
        }
        const std::string beispiel = datei.stem().string();
        for (const auto& [name, sammler] : gruppen)
            zeilen[beispiel].append(beispiel).append(" ").append(name).append(" ").append(
                std::to_string(pruefsumme(sammler.text)) + "\n");
    }
    std::string signatur;
    for (const auto& [beispiel, text] : zeilen) signatur += text;
    erwarteGolden("signatur.txt", signatur);
}

TEST(Golden, TheReportsOfTheExamplesAreTheApprovedOnes) {
    int gerechnet = 0;
    for (const std::filesystem::path& datei : beispiele()) {
        Wand w;
        w.eigeneMaterialien = liesEigeneMaterialien(ordner / materialdatei).wert;
        liesPosition(datei, w);
        zuweisen(w, grundmasse(w));
        if (starte(w) == Laufergebnis::hinweise) continue;  // no report
        ++gerechnet;
        const std::string name = datei.stem().string();
        const Fliesstext text = fliesstext(bericht(w, Form::ansicht));
        erwarteGolden(name + ".txt", alsText(text));
        if (mitRtf.contains(name)) erwarteGolden(name + ".rtf", alsRtf(text));
        erwarteGolden(name + ".lang.seiten", seiten(w, Form::lang));
        erwarteGolden(name + ".kurz.seiten", seiten(w, Form::kurz));
    }
    EXPECT_GE(gerechnet, 6) << "the examples are missing";
}

}  // namespace
}  // namespace rippenscheibe
