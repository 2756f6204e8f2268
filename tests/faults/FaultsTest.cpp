#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "cli/Befehle.h"
#include "faults/Fehlerprobe.h"
#include "files/EigeneMaterialienDatei.h"
#include "files/Einstellungsdatei.h"
#include "files/Kopie.h"
#include "files/Materialverwaltung.h"
#include "files/Pfad.h"
#include "files/Positionsdatei.h"
#include "files/Projektliste.h"
#include "files/Textvorlagen.h"
#include "support/Ordnerprobe.h"

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;
using namespace tests;

class Fehlerstellen : public Ordnerprobe {
  protected:
    Fehlerstellen() {
        if (!schaleGeladen()) throw std::runtime_error("the library of faults is not preloaded");
    }
};

// Without waiting for the disk.
void lege(const fs::path& datei, const std::string& bytes) {
    std::ofstream(datei, std::ios::binary) << bytes;
}

// A writer that replaces one file of the program's folder; `vorher` is the old one.
Schreiber ersetzer(const std::string& name, std::string_view ziel, const std::string& vorher,
                   const std::function<std::optional<Dateifehler>(const fs::path&)>& schreibe) {
    const std::string dateiname(ziel);
    return {name, dateiname, [=](const fs::path& ordner) { lege(ordner / dateiname, vorher); },
            [=](const fs::path& ordner) { return !schreibe(ordner / dateiname); }};
}

// A command of the tool as its users call it.
Schreiber werkzeug(const std::string& ziel, std::vector<std::string> angaben, const std::string& vorher) {
    return {angaben.front() + " -> " + ziel, ziel,
            [=](const fs::path& ordner) {
                fs::copy_file(fs::path(RIPPENSCHEIBE_BEISPIELE) / "zweiseitig.rsw", ordner / "eingabe.rsw");
                lege(ordner / ziel, vorher);
            },
            [=](const fs::path& ordner) mutable {
                for (const fs::path& wort : {ordner / "eingabe.rsw", fs::path("-o"), ordner / ziel})
                    angaben.push_back(pfadtext(wort));
                const auto auftrag = liesKommandozeile(angaben);
                const Ausgaben stumm{[](std::string_view) {}, [](std::string_view) {}};
                return fuehreAus(std::get<Auftrag>(auftrag), kopienordner(ordner), stumm) <
                       Rueckgabe::hinweise;
            }};
}

std::vector<Schreiber> alleSchreiber() {
    const auto kopien = [](const fs::path& d) { return kopienordner(d.parent_path()); };
    const auto w = std::make_shared<Wand>();
    const EigeneMaterialien leer, einMaterial{{{"neu", {}}}};
    Einstellungen e;
    e.Suffix = 7;
    std::vector<Schreiber> alle{
        ersetzer("position", "wand.rsw", "alt", [=](const fs::path& d) { return schreibePosition(d, *w); }),
        ersetzer("materials", materialdatei, eigeneMaterialienText(leer),
                 [=](const fs::path& d) {
                     EigeneMaterialien tabelle = einMaterial;
                     return sichereEigeneMaterialien(d, tabelle, leer);
                 }),
        ersetzer("settings", einstellungsdatei, "alt",
                 [=](const fs::path& d) { return schreibeEinstellungen(d, e); }),
        ersetzer("projects", projektlistendatei, "\"A\",1\r\n\"A\"\r\n\"a\"\r\n",
                 [](const fs::path& d) {
                     return sichereProjektliste(d, {"B", {{"B", "b"}}}, {});
                 }),
        ersetzer("templates", vorlagenVorbemerkungen, "1\r\n\"A\"\r\n\"a\"\r\n",
                 [](const fs::path& d) {
                     Textvorlagen vorlagen;
                     return sichereTextvorlage(d, {"B", "b"}, vorlagen);
                 }),
        ersetzer("hand-over", uebergabedatei, "alt",
                 [](const fs::path& d) { return schreibeUebergabe(d, "neu"); }),
        ersetzer("last page", seitendatei, "1\r\n",
                 [](const fs::path& d) { return schreibeLetzteSeite(d, 2); }),
        // The picture of a drawing, the result view, a PDF: bytes of any length.
        ersetzer(
            "bytes", "bild.svg", "alt",
            [=](const fs::path& d) { return schreibeDauerhaft(d, std::string(300'000, 'n'), kopien(d)); }),
        werkzeug("bericht.rtf", {"rechne", "--ausgabe", "rtf"}, "alt"),
        werkzeug("werte.json", {"rechne", "--ausgabe", "json"}, "alt"),
        werkzeug("neu.rsw", {"uebertrage"}, positionstext(Wand())),
        werkzeug("rechenweg.rtf", {"herleite", "--ausgabe", "rtf"}, "alt"),
        werkzeug("mengen.csv", {"stueckliste", "--ausgabe", "csv"}, "alt"),
        werkzeug("faelle.csv", {"lastfaelle", "neu"}, "alt"),
    };
    // The place of a running program: written again over the copy of a minute ago.
    alle.push_back({"safety copy",
                    "Sicherung-1.kopie",
                    [](const fs::path&) {},
                    [](const fs::path& ordner) {
                        const auto platz = Kopieplatz::freier(ordner, Kopieart::sicherung);
                        return platz && !platz->schreibe({"/daten/wand.rsw", "neu"});
                    },
                    {Lage::leer}});
    return alle;
}

std::string text(const Protokoll& protokoll) {
    static const char* const namen[] = {"torn", "success told falsely", "given up", "crashed",
                                        "left lying around"};
    std::string alles;
    for (const auto& [was, wo] : protokoll.verstoesse)
        for (const std::string& stelle : wo)
            alles += std::string(namen[static_cast<int>(was)]) + ": " + stelle + "\n";
    return alles;
}

TEST_F(Fehlerstellen, NoFaultLosesAFileOrIsToldAsSuccess) {
    const auto beginn = std::chrono::steady_clock::now();
    Protokoll protokoll;
    for (const Schreiber& schreiber : alleSchreiber()) probiere(schreiber, ordner / "probe", protokoll);
    const std::chrono::duration<double> dauer = std::chrono::steady_clock::now() - beginn;
    std::printf("%d points of fault in %.1f s\n", protokoll.punkte, dauer.count());
    EXPECT_EQ(text(protokoll), "");
    EXPECT_GE(protokoll.punkte, 2000);
}

// Writers as one would write them without care: the trial finds what each of them does wrong.
TEST_F(Fehlerstellen, ACarelessWriterIsFound) {
    const auto schreibeHin = [](const fs::path& d, int art) {
        const int griff = ::open(d.c_str(), O_WRONLY | O_CREAT | art, 0600);
        const std::string bytes(100, 'n');
        const bool gut =
            griff >= 0 && ::write(griff, bytes.data(), bytes.size()) == 100 && ::fsync(griff) == 0;
        return griff >= 0 && ::close(griff) == 0 && gut;
    };
    const Dateifehler schlecht{"schlecht"};
    const auto alsErgebnis = [=](bool gut) { return gut ? std::nullopt : std::optional(schlecht); };
    const std::pair<Verstoss, Schreiber> faelle[] = {
        {Verstoss::zerrissen,
         ersetzer("in place", "x", "alt",
                  [=](const fs::path& d) { return alsErgebnis(schreibeHin(d, O_TRUNC)); })},
        {Verstoss::falscherErfolg, ersetzer("without a look at the result", "x", "alt",
                                            [=](const fs::path& d) {
                                                schreibeHin(d, O_TRUNC);
                                                return std::optional<Dateifehler>();
                                            })},
        {Verstoss::liegengeblieben, ersetzer("beside, and left there", "x", "alt",
                                             [=](const fs::path& d) {
                                                 const fs::path neben = d.string() + ".neu";
                                                 return alsErgebnis(schreibeHin(neben, O_TRUNC) &&
                                                                    ::rename(neben.c_str(), d.c_str()) == 0);
                                             })},
        {Verstoss::aufgegeben,
         ersetzer("gives up when interrupted", "x", "alt",
                  [=](const fs::path& d) { return alsErgebnis(schreibeHin(d, O_TRUNC)); })},
        {Verstoss::abgestuerzt, ersetzer("ends the program", "x", "alt",
                                         [=](const fs::path& d) {
                                             if (!schreibeHin(d, O_TRUNC)) std::abort();
                                             return std::optional<Dateifehler>();
                                         })},
    };
    for (const auto& [verstoss, schreiber] : faelle) {
        Protokoll protokoll;
        probiere(schreiber, ordner / "probe", protokoll);
        EXPECT_FALSE(protokoll.verstoesse[verstoss].empty()) << schreiber.name;
    }
}

}  // namespace
}  // namespace rippenscheibe
