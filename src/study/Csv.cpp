#include "study/Csv.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "basis/Utf8.h"
#include "files/Zeichensatz.h"

namespace rippenscheibe {

namespace {

bool istZahl(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= '0' && c <= '9') || c == '.' || c == ',' || c == '-' || c == '+' || c == 'e';
    });
}

}  // namespace

std::optional<std::vector<std::string>> zellenAus(std::string_view zeile, const Csvform& form) {
    std::vector<std::string> zellen(1);
    std::size_t i = 0;
    while (i < zeile.size()) {
        if (zeile[i] == '"' && zellen.back().empty()) {
            for (++i;; ++i) {
                if (i >= zeile.size()) return std::nullopt;
                if (zeile[i] != '"') {
                    zellen.back() += zeile[i];
                } else if (i + 1 < zeile.size() && zeile[i + 1] == '"') {
                    zellen.back() += zeile[++i];
                } else {
                    break;
                }
            }
            ++i;
            if (i < zeile.size() && zeile[i] != form.trenner) return std::nullopt;
        } else if (zeile[i] == form.trenner) {
            zellen.emplace_back();
            ++i;
        } else {
            zellen.back() += zeile[i++];
        }
    }
    return zellen;
}

std::string csvZeile(std::span<const std::string> zellen, const Csvform& form) {
    std::string zeile;
    for (const std::string& zelle : zellen) {
        if (&zelle != zellen.data()) zeile += form.trenner;
        if (zelle.find_first_of(std::string("\"\r\n") + form.trenner) == std::string::npos) {
            zeile += zelle;
            continue;
        }
        zeile += '"';
        for (const char c : zelle) zeile.append(c == '"' ? 2 : 1, c);
        zeile += '"';
    }
    return zeile + '\n';
}

std::string mitPunkt(std::string_view zahl, const Csvform& form) {
    std::string text(zahl);
    if (form.dezimal != '.') std::replace(text.begin(), text.end(), form.dezimal, '.');
    return text;
}

std::string mitDezimalzeichen(std::string zahl, const Csvform& form) {
    if (form.dezimal != '.' && istZahl(zahl)) std::replace(zahl.begin(), zahl.end(), '.', form.dezimal);
    return zahl;
}

std::string zelleAusJson(std::string_view json, const Csvform& form) {
    if (json.empty() || json == "null") return {};
    if (json.front() != '"' && json.front() != '[') return mitDezimalzeichen(std::string(json), form);
    const auto wert = nlohmann::json::parse(json);
    if (wert.is_string()) return wert.get<std::string>();
    std::string text;
    for (const auto& element : wert) {
        if (!text.empty()) text += " | ";
        text += element.is_string() ? element.get<std::string>() : mitDezimalzeichen(element.dump(), form);
    }
    return text;
}

std::string tabellentext(std::string_view bytes) {
    for (std::string_view rest = bytes; !rest.empty();) {
        const auto zeichen = erstesZeichen(rest);
        if (!zeichen) return dekodiert(bytes);
        rest.remove_prefix(zeichen->laenge);
    }
    return std::string(bytes);
}

std::vector<std::string_view> zeilenVon(std::string_view text) {
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    std::vector<std::string_view> zeilen;
    while (!text.empty()) {
        const std::size_t ende = text.find('\n');
        std::string_view zeile = text.substr(0, ende);
        if (zeile.ends_with('\r')) zeile.remove_suffix(1);
        zeilen.push_back(zeile);
        if (ende == std::string_view::npos) break;
        text.remove_prefix(ende + 1);
    }
    return zeilen;
}

std::string alsTabelle(std::span<const std::vector<std::string>> zeilen, Buendigkeit buendigkeit) {
    std::vector<std::size_t> breiten;
    for (const auto& zeile : zeilen) {
        breiten.resize(std::max(breiten.size(), zeile.size()));
        for (std::size_t i = 0; i < zeile.size(); ++i)
            breiten[i] = std::max(breiten[i], zeichenzahl(zeile[i]));
    }
    std::string text;
    for (const auto& zeile : zeilen) {
        std::string ausgabe;
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            const std::string luft(breiten[i] - zeichenzahl(zeile[i]), ' ');
            const bool rechts = buendigkeit == Buendigkeit::rechts || istZahl(zeile[i]);
            ausgabe += rechts ? luft + zeile[i] : zeile[i] + luft;
            ausgabe += "  ";
        }
        ausgabe.erase(ausgabe.find_last_not_of(' ') + 1);
        text += ausgabe + '\n';
    }
    return text;
}

}  // namespace rippenscheibe
