#include "study/Variation.h"

#include <algorithm>
#include <utility>

namespace rippenscheibe {

namespace {

constexpr std::size_t blockgroesse = 32;

Variationspunkt punkt(const Variationsauftrag& auftrag, Pruefstand& stand, std::size_t nummer) {
    Variationspunkt p{nummer};
    const auto setze = [&] {
        stand.beginne();
        auftrag.raster.setze(nummer, stand.felder());
    };
    setze();
    p.bewertung = stand.bewerte();
    const bool gerechnet = p.bewertung.ausgang != Ausgang::hinweis;
    p.luecken = stand.lueckensaetze(p.bewertung);
    if (auftrag.mitAbschnitten && gerechnet) p.abschnitte = stand.abschnitte();
    if (auftrag.felder.empty()) return p;
    stand.rechneMassgebend(p.bewertung);
    for (const std::string& name : auftrag.felder) {
        std::string& wert = p.felder.emplace_back();
        if (const int eingabe = eingabeindex(name); eingabe >= 0) {
            stand.felder().anfuegeEingabe(wert, eingabe);
        } else if (gerechnet) {
            stand.felder().anfuegeErgebnis(wert, ergebnisindex(name));
        } else {
            wert = "null";
        }
    }
    return p;
}

}  // namespace

void variiere(const Variationsauftrag& auftrag, const Ausfuehrung& ausfuehrung,
              const std::function<bool(const Variationspunkt&)>& besucher) {
    const std::size_t anzahl = auftrag.raster.anzahl();
    std::size_t fertig = 0;
    fliessband(
        ausfuehrung,
        [anzahl, von = std::size_t{0}]() mutable -> std::optional<std::pair<std::size_t, std::size_t>> {
            if (von >= anzahl) return std::nullopt;
            const std::size_t anfang = std::exchange(von, von + blockgroesse);
            return std::pair(anfang, std::min(von, anzahl));
        },
        [&] { return Pruefstand(auftrag.vorlage, auftrag.materialien, auftrag.regel); },
        [&](Pruefstand& stand, const std::pair<std::size_t, std::size_t>& block) {
            std::vector<Variationspunkt> punkte;
            for (std::size_t i = block.first; i < block.second; ++i)
                punkte.push_back(punkt(auftrag, stand, i));
            return punkte;
        },
        [&](const std::vector<Variationspunkt>& punkte) {
            for (const Variationspunkt& p : punkte)
                if (!besucher(p)) return false;
            fertig += punkte.size();
            if (ausfuehrung.fortschritt) ausfuehrung.fortschritt({fertig, anzahl, fertig});
            return true;
        });
}

}  // namespace rippenscheibe
