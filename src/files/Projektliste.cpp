#include "files/Projektliste.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>

#include "files/Anweisungen.h"

namespace rippenscheibe {

namespace {

bool enthaelt(const Projektliste& liste, const Projekteintrag& eintrag) {
    return std::find(liste.eintraege.begin(), liste.eintraege.end(), eintrag) != liste.eintraege.end();
}

}  // namespace

Projektliste projektlisteAus(std::string_view text) {
    Projektliste liste;
    Anweisungsleser leser(text);
    std::int16_t anzahl = 0;
    leser.lies(ziel("Projekt", liste.Projekt), ziel("AnzahlProjekte", anzahl));
    liste.eintraege.resize(static_cast<std::size_t>(std::max<std::int16_t>(anzahl, 1)));
    for (Projekteintrag& eintrag : liste.eintraege) leser.lies(ziel("ProjektNamen", eintrag.name));
    for (Projekteintrag& eintrag : liste.eintraege) leser.lies(ziel("ProjektPfade", eintrag.pfad));
    return liste;
}

std::string projektlistentext(const Projektliste& liste) {
    Anweisungsschreiber schreiber;
    std::vector<Projekteintrag> eintraege = liste.eintraege;
    eintraege.resize(std::min(eintraege.size(), groessteAnzahl));
    schreiber.schreibe(liste.Projekt, static_cast<std::int16_t>(eintraege.size()));
    eintraege.resize(std::max<std::size_t>(eintraege.size(), 1));
    // A name that was never assigned is an empty value, not an empty text: its line is empty.
    for (const Projekteintrag& eintrag : eintraege) {
        if (eintrag.name.empty())
            schreiber.schreibe(Freiwert{});
        else
            schreiber.schreibe(eintrag.name);
    }
    for (const Projekteintrag& eintrag : eintraege) schreiber.schreibe(eintrag.pfad);
    return schreiber.text();
}

Gelesen<Projektliste> liesProjektliste(const std::filesystem::path& datei) {
    return liesTextdatei(datei, projektlisteAus);
}

std::optional<Dateifehler> schreibeProjektliste(const std::filesystem::path& datei,
                                                const Projektliste& liste) {
    return schreibeTextdatei(datei, projektlistentext(liste));
}

Projektliste zusammengefuehrt(Projektliste eigene, const Projektliste& gelesen,
                              const Projektliste& aufDerPlatte) {
    for (const Projekteintrag& eintrag : aufDerPlatte.eintraege) {
        const bool leer = eintrag.name.empty() && eintrag.pfad.empty();
        if (!leer && !enthaelt(gelesen, eintrag) && !enthaelt(eigene, eintrag)) {
            eigene.eintraege.push_back(eintrag);
        }
    }
    return eigene;
}

std::optional<Dateifehler> sichereProjektliste(const std::filesystem::path& datei, const Projektliste& eigene,
                                               const Projektliste& gelesen) {
    const Dateisperre sperre(datei.parent_path());
    const Gelesen<Projektliste> aufDerPlatte = liesProjektliste(datei);
    if (auto stoerung = aufDerPlatte.stoerung()) return stoerung;
    return schreibeProjektliste(datei, zusammengefuehrt(eigene, gelesen, aufDerPlatte.wert));
}

std::string holeUebergabe(const std::filesystem::path& datei) {
    constexpr std::chrono::milliseconds geduld{300};  // the program is starting, and its user waits
    const Dateisperre sperre(datei.parent_path(), geduld);
    std::string position = liesTextdatei(datei, [](std::string_view text) {
                               std::string name;
                               Anweisungsleser leser(text);
                               leser.lies(ziel("Posdat", name));
                               return name;
                           }).wert;
    if (!position.empty()) static_cast<void>(schreibeUebergabe(datei, ""));
    return position;
}

std::optional<Dateifehler> schreibeUebergabe(const std::filesystem::path& datei,
                                             const std::string& position) {
    Anweisungsschreiber schreiber;
    schreiber.schreibe(position);
    return schreibeTextdatei(datei, schreiber.text());
}

int liesLetzteSeite(const std::filesystem::path& datei) {
    const std::string text = liesDatei(datei).bytes;
    std::int16_t seite = 0;
    Anweisungsleser leser(text);
    leser.lies(ziel("LetzteSeite", seite));
    return seite;
}

std::optional<Dateifehler> schreibeLetzteSeite(const std::filesystem::path& datei, int seite) {
    return schreibeDauerhaft(datei, std::to_string(seite) + "\r\n");
}

}  // namespace rippenscheibe
