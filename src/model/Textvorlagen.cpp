#include "model/Textvorlagen.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

#include "basis/Anweisungen.h"
#include "basis/Zeichensatz.h"

namespace rippenscheibe {

namespace {

constexpr std::string_view zeilenende = "\r\n";
constexpr std::size_t groessteAnzahl = std::numeric_limits<std::int16_t>::max();

Texte ohneLeereAmEnde(Texte zeilen) {
    while (!zeilen.empty() && zeilen.back().empty()) zeilen.pop_back();
    return zeilen;
}

}  // namespace

Texte zeilenAus(std::string_view text) {
    Texte zeilen;
    while (!text.empty()) {
        const std::size_t ende = text.find(zeilenende);
        zeilen.emplace_back(text.substr(0, ende));
        if (ende == std::string_view::npos) break;
        text.remove_prefix(ende + zeilenende.size());
    }
    if (!zeilen.empty() && zeilen.front().empty()) zeilen.clear();
    return zeilen;
}

std::string verbunden(const Texte& zeilen) {
    std::string text;
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        if (i > 0) text += zeilenende;
        text += zeilen[i];
    }
    return text;
}

bool passtInVorbemerkungen(std::string_view text) {
    return zeilenAus(text).size() <= std::tuple_size_v<Vorbemerkungszeilen>;
}

std::string vorbemerkungstext(const Wand& w) {
    return verbunden(ohneLeereAmEnde({w.Vorbemerkungen.begin(), w.Vorbemerkungen.end()}));
}

std::string zusatzbemerkungstext(const Wand& w) {
    const auto anzahl = static_cast<std::size_t>(std::max<int>(w.AnzahlZusatzbemerkungen.value(), 0));
    const auto ende = std::next(w.Zusatzbemerkungen.begin(),
                                static_cast<std::ptrdiff_t>(std::min(anzahl, w.Zusatzbemerkungen.size())));
    std::string text = verbunden({w.Zusatzbemerkungen.begin(), ende});
    // The last line needs no line end to be one, unless it is empty.
    if (ende != w.Zusatzbemerkungen.begin() && std::prev(ende)->empty() && !text.empty()) text += "\r\n";
    return text;
}

void setzeVorbemerkungen(Wand& w, std::string_view text) {
    Texte zeilen = zeilenAus(text);
    zeilen.resize(w.Vorbemerkungen.size());
    std::move(zeilen.begin(), zeilen.end(), w.Vorbemerkungen.begin());
}

void setzeZusatzbemerkungen(Wand& w, std::string_view text) {
    Texte zeilen = zeilenAus(text);
    zeilen.resize(std::min(zeilen.size(), groessteAnzahl));
    w.AnzahlZusatzbemerkungen = zeilen.size();
    constexpr std::size_t zeilenOhneAnzahl = 200;
    if (zeilen.empty()) zeilen.resize(zeilenOhneAnzahl);
    w.Zusatzbemerkungen = std::move(zeilen);
}

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

Textvorlagen liesTextvorlagen(const std::filesystem::path& datei) {
    return textvorlagenAus(dekodiert(liesDatei(datei).bytes));
}

std::optional<Dateifehler> schreibeTextvorlagen(const std::filesystem::path& datei,
                                                const Textvorlagen& vorlagen) {
    return schreibeDauerhaft(datei, kodiert(textvorlagentext(vorlagen)));
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
    Textvorlagen neu = liesTextvorlagen(datei);
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
