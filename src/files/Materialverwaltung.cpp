#include "files/Materialverwaltung.h"

#include <algorithm>
#include <utility>

#include "files/EigeneMaterialienDatei.h"

namespace rippenscheibe {

namespace {

bool gleich(const EigeneMaterialien::Zeile& a, const EigeneMaterialien::Zeile& b) {
    return a.name == b.name &&
           std::equal(a.zellen.begin(), a.zellen.end(), b.zellen.begin(),
                      [](const auto& x, const auto& y) { return x.leer == y.leer && x.wert == y.wert; });
}

bool gleich(const EigeneMaterialien& a, const EigeneMaterialien& b) {
    return std::equal(a.zeilen.begin(), a.zeilen.end(), b.zeilen.begin(), b.zeilen.end(),
                      [](const auto& x, const auto& y) { return gleich(x, y); });
}

bool enthaelt(const EigeneMaterialien& tabelle, const EigeneMaterialien::Zeile& zeile) {
    return std::any_of(tabelle.zeilen.begin(), tabelle.zeilen.end(),
                       [&](const auto& andere) { return gleich(zeile, andere); });
}

}  // namespace

std::optional<Dateifehler> sichereEigeneMaterialien(const std::filesystem::path& datei,
                                                    EigeneMaterialien& tabelle,
                                                    const EigeneMaterialien& gelesen) {
    const Dateisperre sperre(datei.parent_path());
    const Gelesen<EigeneMaterialien> vorhanden = liesEigeneMaterialien(datei);
    if (auto stoerung = vorhanden.stoerung()) return stoerung;
    const EigeneMaterialien& aufDerPlatte = vorhanden.wert;
    // Nothing changed here: what another program edited or deleted meanwhile is the newer state.
    if (vorhanden.lage == Dateilage::vorhanden && gleich(tabelle, gelesen)) {
        tabelle = aufDerPlatte;
        return std::nullopt;
    }
    EigeneMaterialien neu = tabelle;
    for (const auto& zeile : aufDerPlatte.zeilen) {
        // The row that stands for an empty table is no material.
        const bool leer = gleich(zeile, EigeneMaterialien::Zeile{});
        if (!leer && nimmtWeitereAuf(neu) && !enthaelt(gelesen, zeile) && !enthaelt(neu, zeile))
            neu.zeilen.push_back(zeile);
    }
    auto fehler = schreibeEigeneMaterialien(datei, neu);
    if (!fehler) tabelle = std::move(neu);
    return fehler;
}

}  // namespace rippenscheibe
