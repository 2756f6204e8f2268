#include <set>

#include "model/EigeneMaterialienDatei.h"
#include "model/Positionsdatei.h"
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

// The examples whose rich text and pages are held too: the longest one, and one with an anchor.
const std::set<std::string> mitSeiten{"windsog", "zuganker"};

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
    tests::Aufzeichnung flaeche;
    druckeSeiten(flaeche, bericht(w, form), auftrag);
    return flaeche.protokoll();
}

TEST(Golden, TheReportsOfTheExamplesAreTheApprovedOnes) {
    int gerechnet = 0;
    for (const std::filesystem::path& datei : beispiele()) {
        Wand w;
        w.eigeneMaterialien = liesEigeneMaterialien(ordner / materialdatei);
        liesPosition(datei, w);
        zuweisen(w, grundmasse(w));
        if (starte(w) == Laufergebnis::hinweise) continue;  // no report
        ++gerechnet;
        const std::string name = datei.stem().string();
        const Fliesstext text = fliesstext(bericht(w, Form::ansicht));
        tests::erwarteGolden(name + ".txt", alsText(text));
        if (!mitSeiten.contains(name)) continue;
        tests::erwarteGolden(name + ".rtf", alsRtf(text));
        tests::erwarteGolden(name + ".lang.seiten", seiten(w, Form::lang));
        tests::erwarteGolden(name + ".kurz.seiten", seiten(w, Form::kurz));
    }
    EXPECT_GE(gerechnet, 6) << "the examples are missing";
}

}  // namespace
}  // namespace rippenscheibe
