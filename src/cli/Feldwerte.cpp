#include "cli/Feldwerte.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <span>
#include <type_traits>
#include <vector>

#include "basis/Utf8.h"
#include "files/Anweisungen.h"
#include "model/Feldangaben.h"

namespace rippenscheibe {

namespace {

constexpr int groessteRippe = 200;

void anfuegeTexte(std::string& json, std::span<const std::string> texte) {
    json += '[';
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (i > 0) json += ',';
        json += jsonText(texte[i]);
    }
    json += ']';
}

// Adds the fields of a group as the members of one object.
class Objekt {
  public:
    Objekt(std::string& json, const Umfang& umfang) : json_(json), umfang_(umfang) {}

    template <class T>
    void operator()(const Feldangabe& angabe, const T& feld) {
        json_ += erstes_ ? '{' : ',';
        erstes_ = false;
        json_.append("\"").append(angabe.name).append("\":");
        anfuegeJson(json_, feld, umfang_);
    }

  private:
    std::string& json_;
    const Umfang& umfang_;
    bool erstes_ = true;
};

template <class T>
constexpr std::string_view typname() {
    if constexpr (std::is_same_v<T, Feld>) return "f64";
    if constexpr (std::is_same_v<T, Feld32>) return "f32";
    if constexpr (std::is_same_v<T, Ganzzahl>) return "i16";
    if constexpr (std::is_same_v<T, bool>) return "bool";
    if constexpr (std::is_same_v<T, std::string>) return "text";
    if constexpr (std::is_same_v<T, Vorbemerkungszeilen>) return "text[1..3]";
    if constexpr (std::is_same_v<T, Texte>) return "text[1..200]";
    if constexpr (std::is_same_v<T, Rippenfeld>) return "f64[1..AnzahlRippen]";
}

// A default as a statement of a file holds it; arrays are empty.
template <class T>
std::string vorgabe(const T& feld) {
    if constexpr (requires { schreibweise(feld); }) return schreibweise(feld);
    return "";
}

struct Verzeichniszeile {
    std::string_view art;
    Feldangabe angabe;
    std::string_view typ;
    std::string vorgabe;
    std::string vorgabeJson;
    std::string bereich;
};

std::vector<Verzeichniszeile> feldverzeichnis() {
    std::vector<Verzeichniszeile> zeilen;
    const Wand w;
    const Umfang leer;
    std::string_view art;
    const auto sammle = [&](const Feldangabe& angabe, const auto& feld) {
        using T = std::remove_cvref_t<decltype(feld)>;
        std::string json;
        anfuegeJson(json, feld, leer);
        zeilen.push_back({art, angabe, typname<T>(), vorgabe(feld), json, bereichstext(angabe.bereich, "")});
    };
    art = "Eingabe";
    jedeEingabe(w, sammle);
    art = "Ergebnis";
    jedesErgebnis(w, sammle);
    return zeilen;
}

// [min, max], null for a limit that is not there; null for a field without limits.
std::string bereichJson(const Wertebereich& bereich) {
    if (!bereich.begrenzt()) return "null";
    std::string json = "[";
    anfuegeJson(json, bereich.min, {});
    json += ',';
    if (bereich.max < Wertebereich{}.max)
        anfuegeJson(json, bereich.max, {});
    else
        json += "null";
    return json + "]";
}

}  // namespace

Umfang umfang(const Wand& w) {
    const double rippen = std::clamp(static_cast<double>(w.AnzahlRippen.value()), 0.0, double{groessteRippe});
    const auto anzahl = static_cast<std::size_t>(std::max<int>(w.AnzahlZusatzbemerkungen.value(), 0));
    return {static_cast<int>(std::nearbyint(rippen)), std::min(anzahl, w.Zusatzbemerkungen.size())};
}

std::string jsonText(std::string_view text) {
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

void anfuegeJson(std::string& json, double wert, const Umfang& /*umfang*/) {
    std::array<char, 32> puffer{};
    const auto ergebnis = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert);
    json.append(puffer.data(), ergebnis.ptr);
}

void anfuegeJson(std::string& json, bool wert, const Umfang& /*umfang*/) { json += wert ? "true" : "false"; }

void anfuegeJson(std::string& json, const std::string& wert, const Umfang& /*umfang*/) {
    json += jsonText(wert);
}

void anfuegeJson(std::string& json, const Vorbemerkungszeilen& wert, const Umfang& /*umfang*/) {
    anfuegeTexte(json, wert);
}

void anfuegeJson(std::string& json, const Texte& wert, const Umfang& umfang) {
    anfuegeTexte(json, std::span(wert).first(std::min(umfang.zusatzbemerkungen, wert.size())));
}

void anfuegeJson(std::string& json, const Rippenfeld& wert, const Umfang& umfang) {
    json += '[';
    for (int i = 1; i <= umfang.rippen; ++i) {
        if (i > 1) json += ',';
        anfuegeJson(json, wert(i).value(), umfang);
    }
    json += ']';
}

std::string jsonZeile(std::string_view datei, const Wand& w, bool gerechnet) {
    const Umfang u = umfang(w);
    std::string json = "{\"datei\":" + jsonText(datei) + ",\"hinweise\":";
    anfuegeTexte(json, texte(w.Hinweise));
    json += ",\"erfuellt\":";
    json += !gerechnet ? "null" : w.AlleNachweiseErfuellt ? "true" : "false";
    json += ",\"eingaben\":";
    jedeEingabe(w, Objekt(json, u));
    json += "},\"ergebnisse\":";
    if (gerechnet) {
        jedesErgebnis(w, Objekt(json, u));
        json += '}';
    } else {
        json += "null";
    }
    return json + "}\n";
}

std::string feldverzeichnisText() {
    const std::vector<Verzeichniszeile> zeilen = feldverzeichnis();
    const auto spalten = [](const Verzeichniszeile& z) {
        const Feldangabe& a = z.angabe;
        return std::array<std::string_view, 10>{z.art,     a.name,    z.typ,   a.symbol,    a.einheit,
                                                z.vorgabe, z.bereich, a.maske, a.bedeutung, a.quelle};
    };
    const Verzeichniszeile kopf{"Art",
                                {.name = "Name",
                                 .einheit = "Einheit",
                                 .bedeutung = "Bedeutung",
                                 .symbol = "Symbol",
                                 .maske = "Maske",
                                 .quelle = "Quelle"},
                                "Typ",
                                "Vorgabe",
                                "",
                                "Bereich"};
    std::array<std::size_t, 10> breiten{};
    const auto miss = [&](const Verzeichniszeile& z) {
        for (std::size_t k = 0; k < breiten.size(); ++k)
            breiten[k] = std::max(breiten[k], zeichenzahl(spalten(z)[k]));
    };
    miss(kopf);
    for (const Verzeichniszeile& z : zeilen) miss(z);

    std::string text;
    const auto schreibe = [&](const Verzeichniszeile& z) {
        const auto werte = spalten(z);
        for (std::size_t k = 0; k + 1 < werte.size(); ++k) {
            text.append(werte[k]).append(breiten[k] - zeichenzahl(werte[k]) + 2, ' ');
        }
        text.append(werte.back());
        text.erase(text.find_last_not_of(' ') + 1) += '\n';
    };
    schreibe(kopf);
    for (const Verzeichniszeile& z : zeilen) schreibe(z);
    return text;
}

std::string feldverzeichnisJson() {
    std::string json;
    for (const Verzeichniszeile& z : feldverzeichnis()) {
        json += json.empty() ? "[" : ",\n ";
        json += "{\"name\":" + jsonText(z.angabe.name) + ",\"art\":" + jsonText(z.art) +
                ",\"typ\":" + jsonText(z.typ) + ",\"einheit\":" + jsonText(z.angabe.einheit) +
                ",\"vorgabe\":" + z.vorgabeJson + ",\"bedeutung\":" + jsonText(z.angabe.bedeutung) +
                ",\"symbol\":" + jsonText(z.angabe.symbol) + ",\"bereich\":" + bereichJson(z.angabe.bereich) +
                ",\"maske\":" + jsonText(z.angabe.maske) + ",\"quelle\":" + jsonText(z.angabe.quelle) + "}";
    }
    return json + "]\n";
}

}  // namespace rippenscheibe
