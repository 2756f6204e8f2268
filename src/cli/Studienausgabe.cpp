#include "cli/Studienausgabe.h"

#include <algorithm>
#include <charconv>
#include <utility>
#include <variant>

#include "basis/Zahlenformat.h"

namespace rippenscheibe {

namespace {

// A number for reading: at most four places, a comma, and as many digits as tell it from 1.
std::string lesbareZahl(std::string zelle) {
    double zahl = 0;
    const char* const ende = zelle.data() + zelle.size();
    const auto [stelle, fehler] = std::from_chars(zelle.data(), ende, zahl);
    if (fehler != std::errc{} || stelle != ende) return zelle;
    if (zelle.find('.') != std::string::npos) {
        std::string gerundet = formatiere("0.0000", zahl, '.');
        gerundet.erase(gerundet.find_last_not_of('0') + 1);
        if (gerundet.ends_with('.')) gerundet.pop_back();
        if (gerundet != "1" || zahl <= 1) zelle = gerundet;
    }
    std::replace(zelle.begin(), zelle.end(), '.', ',');
    return zelle;
}

// Truth and numbers of a cell, also those of a list.
std::string lesbar(const std::string& zelle) {
    if (zelle == "true") return "ja";
    if (zelle == "false") return "nein";
    constexpr std::string_view trenner = " | ";
    std::string text;
    for (std::size_t von = 0;; von += trenner.size()) {
        const std::size_t bis = std::min(zelle.find(trenner, von), zelle.size());
        text += lesbareZahl(zelle.substr(von, bis - von));
        if (bis == zelle.size()) return text;
        text += trenner;
        von = bis;
    }
}

template <class Besucher>
void jedesGlied(const Studienzeile& zeile, Besucher besucher) {
    for (const Glieder* glieder : {&zeile.vorn, &zeile.innen, &zeile.hinten})
        for (const auto& [name, wert] : *glieder) besucher(name, wert);
}

}  // namespace

std::string Zeilenausgabe::zeile(const Studienzeile& zeile) {
    if (form_ == Studienausgabe::json) {
        Glieder alle = zeile.vorn;
        if (!zeile.gruppe.empty()) alle.emplace_back(zeile.gruppe, jsonObjekt(zeile.innen));
        alle.insert(alle.end(), zeile.hinten.begin(), zeile.hinten.end());
        return jsonObjekt(alle) + "\n";
    }
    std::vector<std::string> kopf;
    std::vector<std::string> zellen;
    jedesGlied(zeile, [&](const std::string& name, const std::string& wert) {
        kopf.push_back(name);
        zellen.push_back(zelleAusJson(wert, form_ == Studienausgabe::csv ? csv_ : Csvform{}));
    });
    const bool ersteZeile = !std::exchange(kopf_, true);
    if (form_ == Studienausgabe::csv)
        return (ersteZeile ? csvZeile(kopf, csv_) : "") + csvZeile(zellen, csv_);
    if (ersteZeile) tabelle_.push_back(kopf);
    std::transform(zellen.begin(), zellen.end(), zellen.begin(), lesbar);
    tabelle_.push_back(zellen);
    return {};
}

std::string Zeilenausgabe::schluss() const { return alsTabelle(tabelle_); }

std::string jsonWert(const Feldwert& wert) {
    if (const bool* wahr = std::get_if<bool>(&wert)) return *wahr ? "true" : "false";
    if (const double* zahl = std::get_if<double>(&wert)) return zahltext(*zahl);
    return jsonOderNull(std::get<std::string>(wert));
}

std::string jsonWert(double wert) { return zahltext(wert); }

std::string jsonOderNull(std::string_view text) {
    if (text.empty()) return "null";
    std::string json;
    anfuegeJsonText(json, text);
    return json;
}

std::string jsonListe(const std::vector<std::string>& texte) {
    std::string json = "[";
    for (const std::string& text : texte) {
        if (json.size() > 1) json += ',';
        anfuegeJsonText(json, text);
    }
    return json + "]";
}

std::string jsonObjekt(const Glieder& glieder) {
    std::string json = "{";
    for (const auto& [name, wert] : glieder) {
        if (json.size() > 1) json += ',';
        anfuegeJsonText(json, name);
        json.append(":").append(wert);
    }
    return json + "}";
}

void anfuegeZuweisungen(Glieder& glieder, const std::vector<std::pair<int, Feldwert>>& setzt) {
    for (const auto& [feld, wert] : setzt)
        glieder.emplace_back(eingabefeld(feld).angabe.name, jsonWert(wert));
}

void anfuegeUrteil(Glieder& glieder, const Bewertung& bewertung, const Bewertungsregel& regel) {
    const bool gerechnet = bewertung.ausgang != Ausgang::hinweis;
    glieder.emplace_back("maxEta", gerechnet ? jsonWert(bewertung.maxEta) : "null");
    glieder.emplace_back("massgebend", gerechnet ? jsonOderNull(massgebendText(bewertung, regel)) : "null");
}

Glieder mengenglieder(const Mengenzeile& posten) {
    return {{"art", jsonOderNull(posten.art)},   {"name", jsonOderNull(posten.name)},
            {"mass", jsonOderNull(posten.mass)}, {"stueck", jsonWert(posten.stueck)},
            {"menge", jsonWert(posten.menge)},   {"einheit", jsonOderNull(posten.einheit)}};
}

}  // namespace rippenscheibe
