#include "files/Textvorlagen.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "files/Anweisungen.h"

namespace rippenscheibe {

Textvorlagen textvorlagenAus(std::string_view text) {
    Anweisungsleser leser(text);
    std::int16_t anzahl = 0;
    leser.lies(ziel("AnzahlTextvorlagen", anzahl));
    Textvorlagen vorlagen;
    for (int i = 0; i < anzahl && !leser.amEnde(); ++i) {
        Textvorlage vorlage;
        leser.lies(ziel("Name", vorlage.name));
        leser.lies(ziel("Text", vorlage.text));
        vorlagen.push_back(std::move(vorlage));
    }
    return vorlagen;
}

std::string textvorlagentext(const Textvorlagen& vorlagen) {
    Anweisungsschreiber schreiber;
    const std::size_t anzahl = std::min(vorlagen.size(), groessteAnzahl);
    schreiber.schreibe(static_cast<std::int16_t>(anzahl));
    for (std::size_t i = 0; i < anzahl; ++i) {
        schreiber.schreibe(vorlagen[i].name);
        schreiber.schreibe(vorlagen[i].text);
    }
    return schreiber.text();
}

Gelesen<Textvorlagen> liesTextvorlagen(const std::filesystem::path& datei) {
    return liesTextdatei(datei, textvorlagenAus);
}

std::optional<Dateifehler> schreibeTextvorlagen(const std::filesystem::path& datei,
                                                const Textvorlagen& vorlagen) {
    return schreibeTextdatei(datei, textvorlagentext(vorlagen));
}

// Nothing escapes a quote in the file: one within a text would end it there, and the reader would take the
// rest, and every template behind it, for something else.
Textvorlage speicherbar(Textvorlage vorlage) {
    std::replace(vorlage.name.begin(), vorlage.name.end(), '"', '\'');
    std::replace(vorlage.text.begin(), vorlage.text.end(), '"', '\'');
    return vorlage;
}

std::optional<Dateifehler> sichereTextvorlage(const std::filesystem::path& datei, const Textvorlage& eingabe,
                                              Textvorlagen& vorlagen) {
    const Textvorlage vorlage = speicherbar(eingabe);
    const Dateisperre sperre(datei.parent_path());
    Gelesen<Textvorlagen> vorhanden = liesTextvorlagen(datei);
    if (auto stoerung = vorhanden.stoerung()) return stoerung;
    Textvorlagen neu = std::move(vorhanden.wert);
    const auto gleicherName = [&](const Textvorlage& v) { return v.name == vorlage.name; };
    const auto alte = std::find_if(neu.begin(), neu.end(), gleicherName);
    if (alte != neu.end()) {
        alte->text = vorlage.text;
    } else {
        neu.push_back(vorlage);
    }
    auto fehler = schreibeTextvorlagen(datei, neu);
    if (!fehler) vorlagen = std::move(neu);
    return fehler;
}

}  // namespace rippenscheibe
