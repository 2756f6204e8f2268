#include "model/Bemerkungen.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

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

}  // namespace rippenscheibe
