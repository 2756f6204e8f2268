#include "files/EigeneMaterialienDatei.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <variant>

#include "files/Anweisungen.h"

namespace rippenscheibe {

namespace {

using Zeile = EigeneMaterialien::Zeile;

void lies(Anweisungsleser& leser, Zeile& zeile) {
    leser.lies(ziel("Spalte 1", zeile.name));
    for (std::size_t k = 2; k <= EigeneMaterialien::spalten; ++k) {
        Freiwert wert;
        leser.lies(ziel("Spalte", wert));
        // A text cannot be calculated with: such a cell stays empty.
        if (const auto* zahl = std::get_if<double>(&wert)) zeile.zellen[k] = {*zahl, false};
        if (const auto* wahr = std::get_if<bool>(&wert)) zeile.zellen[k] = {*wahr ? -1.0 : 0.0, false};
    }
}

void schreibe(Anweisungsschreiber& schreiber, const Zeile& zeile) {
    // An empty cell is nothing at all, but the empty name of a row with values is a text.
    const bool leer = zeile.name.empty() && std::all_of(zeile.zellen.begin(), zeile.zellen.end(),
                                                        [](const Zeile::Zelle& zelle) { return zelle.leer; });
    schreiber.schreibe(leer ? Freiwert() : Freiwert(zeile.name));
    for (std::size_t k = 2; k <= EigeneMaterialien::spalten; ++k) {
        const Zeile::Zelle& zelle = zeile.zellen[k];
        schreiber.schreibe(zelle.leer ? Freiwert() : Freiwert(zelle.wert));
    }
}

}  // namespace

EigeneMaterialien eigeneMaterialienAus(std::string_view text) {
    Anweisungsleser leser(text);
    std::int16_t anzahl = 0;
    leser.lies(ziel("AnzahlEigeneMaterialien", anzahl));
    EigeneMaterialien tabelle;
    tabelle.zeilen.resize(static_cast<std::size_t>(std::max<std::int16_t>(anzahl, 0)));
    for (Zeile& zeile : tabelle.zeilen) {
        if (leser.amEnde()) break;
        lies(leser, zeile);
    }
    return tabelle;
}

std::string eigeneMaterialienText(const EigeneMaterialien& tabelle) {
    Anweisungsschreiber schreiber;
    const std::size_t anzahl = std::min(tabelle.zeilen.size(), groessteAnzahl);
    schreiber.schreibe(static_cast<std::int16_t>(std::max<std::size_t>(anzahl, 1)));
    for (std::size_t i = 0; i < anzahl; ++i) schreibe(schreiber, tabelle.zeilen[i]);
    if (anzahl == 0) schreibe(schreiber, Zeile{});
    return schreiber.text();
}

Gelesen<EigeneMaterialien> liesEigeneMaterialien(const std::filesystem::path& datei) {
    return liesTextdatei(datei, eigeneMaterialienAus);
}

std::optional<Dateifehler> schreibeEigeneMaterialien(const std::filesystem::path& datei,
                                                     const EigeneMaterialien& tabelle) {
    return schreibeTextdatei(datei, eigeneMaterialienText(tabelle));
}

Gelesen<EigeneMaterialien> ladeEigeneMaterialien(const std::filesystem::path& programmordner) {
    Gelesen<EigeneMaterialien> tabelle = liesEigeneMaterialien(programmordner / materialdatei);
    if (tabelle.lage == Dateilage::fehlt)
        tabelle.wert = eigeneMaterialienAus(dekodiert(gelieferteMaterialien()));
    return tabelle;
}

}  // namespace rippenscheibe
