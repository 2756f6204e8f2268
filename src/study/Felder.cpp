#include "study/Felder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <nlohmann/json.hpp>
#include <system_error>
#include <type_traits>
#include <unordered_map>
#include <utility>

namespace rippenscheibe {

namespace {

template <class T>
constexpr Feldart typ() {
    if constexpr (std::is_same_v<T, Feld>) return Feldart::f64;
    if constexpr (std::is_same_v<T, Feld32>) return Feldart::f32;
    if constexpr (std::is_same_v<T, Ganzzahl>) return Feldart::i16;
    if constexpr (std::is_same_v<T, bool>) return Feldart::wahr;
    if constexpr (std::is_same_v<T, std::string>) return Feldart::text;
    return Feldart::feld;
}

using Verzeichnis = std::unordered_map<std::string_view, int>;

Verzeichnis verzeichnisVon(std::span<const Feldeintrag> felder) {
    Verzeichnis verzeichnis;
    for (const Feldeintrag& feld : felder)
        verzeichnis.emplace(feld.angabe.name, static_cast<int>(verzeichnis.size()));
    return verzeichnis;
}

int gesucht(const Verzeichnis& verzeichnis, std::string_view name) {
    const auto treffer = verzeichnis.find(name);
    return treffer == verzeichnis.end() ? -1 : treffer->second;
}

template <class T>
void anfuegeKuerzeste(std::string& text, T wert) {
    std::array<char, 32> puffer{};
    const auto ergebnis = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert);
    text.append(puffer.data(), ergebnis.ptr);
}

// The range of a field that has both limits.
std::optional<Bereich> bereich(const Feldangabe& angabe) {
    const Wertebereich& werte = angabe.bereich;
    if (werte.max == Wertebereich{}.max) return std::nullopt;
    return Bereich{werte.min, werte.max};
}

std::string satz(const Feldeintrag& feld, std::string_view geschrieben, std::string_view rest) {
    return std::string(feld.angabe.name).append(" = ").append(geschrieben).append(" ").append(rest);
}

}  // namespace

std::span<const Feldeintrag> eingabefelder() {
    static const std::vector<Feldeintrag> felder = [] {
        std::vector<Feldeintrag> alle;
        const Wand w;
        jedeEingabe(w, [&](const Feldangabe& angabe, const auto& feld) {
            alle.push_back({angabe, typ<std::remove_cvref_t<decltype(feld)>>(), bereich(angabe)});
        });
        return alle;
    }();
    return felder;
}

std::span<const Feldeintrag> ergebnisfelder() {
    static const std::vector<Feldeintrag> felder = [] {
        std::vector<Feldeintrag> alle;
        const Wand w;
        jedesErgebnis(w, [&](const Feldangabe& angabe, const auto& feld) {
            alle.push_back({angabe, typ<std::remove_cvref_t<decltype(feld)>>(), std::nullopt});
        });
        return alle;
    }();
    return felder;
}

const Feldeintrag& eingabefeld(int eingabe) { return eingabefelder()[static_cast<std::size_t>(eingabe)]; }

int eingabeindex(std::string_view name) {
    static const Verzeichnis verzeichnis = verzeichnisVon(eingabefelder());
    return gesucht(verzeichnis, name);
}

int ergebnisindex(std::string_view name) {
    static const Verzeichnis verzeichnis = verzeichnisVon(ergebnisfelder());
    return gesucht(verzeichnis, name);
}

std::optional<std::string> einwand(const Feldeintrag& feld, const Feldwert& wert,
                                   std::string_view geschrieben, Grenzen grenzen) {
    const double* const zahl = std::get_if<double>(&wert);
    switch (feld.typ) {
        case Feldart::text:
            if (!std::holds_alternative<std::string>(wert)) return satz(feld, geschrieben, "ist kein Text");
            return std::nullopt;
        case Feldart::wahr:
            if (!std::holds_alternative<bool>(wert))
                return satz(feld, geschrieben, "ist kein Wahrheitswert (true oder false)");
            return std::nullopt;
        case Feldart::feld:
            return std::string(feld.angabe.name) + " ist eine Liste und lässt sich hier nicht setzen";
        case Feldart::f64:
        case Feldart::f32:
        case Feldart::i16:
            break;
    }
    if (zahl == nullptr) return satz(feld, geschrieben, "ist keine Zahl");
    if (feld.typ == Feldart::i16 && *zahl != std::nearbyint(*zahl))
        return satz(feld, geschrieben, "ist keine ganze Zahl");
    const double groesste = feld.typ == Feldart::i16   ? std::numeric_limits<std::int16_t>::max()
                            : feld.typ == Feldart::f32 ? std::numeric_limits<float>::max()
                                                       : std::numeric_limits<double>::max();
    if (!(std::fabs(*zahl) <= groesste)) return satz(feld, geschrieben, "ist zu groß");
    if (grenzen == Grenzen::beachten && feld.bereich &&
        (*zahl < feld.bereich->von || *zahl > feld.bereich->bis)) {
        return satz(
            feld, geschrieben,
            "liegt nicht zwischen " + zahltext(feld.bereich->von) + " und " + zahltext(feld.bereich->bis));
    }
    return std::nullopt;
}

std::optional<Feldwert> feldwertAus(const Feldeintrag& feld, std::string_view text) {
    if (feld.typ == Feldart::text) return Feldwert(std::string(text));
    if (feld.typ == Feldart::wahr) {
        if (text == "true") return Feldwert(true);
        if (text == "false") return Feldwert(false);
        return std::nullopt;
    }
    if (text.starts_with('+')) text.remove_prefix(1);
    double zahl = 0;
    const char* const ende = text.data() + text.size();
    const auto [stelle, fehler] = std::from_chars(text.data(), ende, zahl);
    if (fehler != std::errc{} || stelle != ende || !std::isfinite(zahl)) return std::nullopt;
    return Feldwert(zahl);
}

Feldzugriff::Feldzugriff(Wand& w) : w_(w) {
    jedeEingabe(w, [&](const Feldangabe&, auto& feld) { eingaben_.emplace_back(&feld); });
    jedesErgebnis(w, [&](const Feldangabe&, auto& feld) { ergebnisse_.emplace_back(&feld); });
}

void Feldzugriff::setze(int eingabe, const Feldwert& wert) {
    std::visit(
        [&](auto* feld) {
            using T = std::remove_pointer_t<decltype(feld)>;
            if constexpr (std::is_same_v<T, bool>) {
                *feld = std::get<bool>(wert);
            } else if constexpr (std::is_same_v<T, std::string>) {
                *feld = std::get<std::string>(wert);
            } else if constexpr (requires { typename T::Typ; }) {
                *feld = Zahl(std::get<double>(wert));
            }
        },
        eingaben_[static_cast<std::size_t>(eingabe)]);
}

double Feldzugriff::zahl(int eingabe) const {
    return std::visit(
        [](auto* feld) -> double {
            using T = std::remove_pointer_t<decltype(feld)>;
            if constexpr (std::is_same_v<T, bool>) return *feld ? 1 : 0;
            if constexpr (requires { typename T::Typ; }) return static_cast<double>(feld->value());
            return 0;
        },
        eingaben_[static_cast<std::size_t>(eingabe)]);
}

void Feldzugriff::anfuege(std::string& json, const Zeiger& zeiger) const {
    const auto texte = [&](const auto& zeilen) {
        json += '[';
        for (const std::string& zeile : zeilen) {
            if (json.back() != '[') json += ',';
            anfuegeJsonText(json, zeile);
        }
        json += ']';
    };
    std::visit(
        [&](auto* feld) {
            using T = std::remove_pointer_t<decltype(feld)>;
            if constexpr (std::is_same_v<T, bool>) {
                json += *feld ? "true" : "false";
            } else if constexpr (std::is_same_v<T, std::string>) {
                anfuegeJsonText(json, *feld);
            } else if constexpr (std::is_same_v<T, Vorbemerkungszeilen>) {
                texte(*feld);
            } else if constexpr (std::is_same_v<T, Texte>) {
                const auto anzahl =
                    static_cast<std::size_t>(std::max<int>(w_.AnzahlZusatzbemerkungen.value(), 0));
                texte(std::span(*feld).first(std::min(anzahl, feld->size())));
            } else if constexpr (std::is_same_v<T, Rippenfeld>) {
                json += '[';
                const auto letzte = std::min(static_cast<double>(w_.AnzahlRippen.value()),
                                             static_cast<double>(Rippenfeld::laenge - 1));
                for (int i = 1; i <= letzte; ++i) {
                    if (i > 1) json += ',';
                    anfuegeZahl(json, std::as_const(*feld)(i).value());
                }
                json += ']';
            } else {
                anfuegeZahl(json,
                            std::conditional_t<std::is_same_v<T, Feld32>, float, double>(feld->value()));
            }
        },
        zeiger);
}

void Feldzugriff::anfuegeEingabe(std::string& json, int eingabe) const {
    anfuege(json, eingaben_[static_cast<std::size_t>(eingabe)]);
}
void Feldzugriff::anfuegeErgebnis(std::string& json, int ergebnis) const {
    anfuege(json, ergebnisse_[static_cast<std::size_t>(ergebnis)]);
}

std::string eingabetext(const Feldzugriff& felder, int eingabe) {
    const Feldeintrag& feld = eingabefeld(eingabe);
    std::string wert;
    felder.anfuegeEingabe(wert, eingabe);
    if (feld.typ == Feldart::wahr) return wert == "true" ? "ja" : "nein";
    if (feld.typ == Feldart::text) return wert;
    std::replace(wert.begin(), wert.end(), '.', ',');
    const std::string_view einheit = feld.angabe.einheit;
    if (!einheit.empty() && einheit != "-") wert.append(" ").append(einheit);
    return wert;
}

void uebernimmBemessungseingaben(const Eingaben& von, Eingaben& nach) {
    static_cast<System&>(nach) = von;
    static_cast<Beplankung&>(nach) = von;
    static_cast<Verbindungsmittel&>(nach) = von;
    static_cast<Verankerung&>(nach) = von;
    static_cast<Belastung&>(nach) = von;
    static_cast<Bemessungsparameter&>(nach) = von;
}

void anfuegeZahl(std::string& text, double wert) { anfuegeKuerzeste(text, wert); }
void anfuegeZahl(std::string& text, float wert) { anfuegeKuerzeste(text, wert); }

std::string zahltext(double wert) {
    std::string text;
    anfuegeZahl(text, wert);
    return text;
}

std::string kommatext(double wert) {
    std::string text = zahltext(wert);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

double zahlAus(std::string_view text) {
    double zahl = 0;
    std::from_chars(text.data(), text.data() + text.size(), zahl);
    return zahl;
}

double wieGetippt(float wert) {
    std::string text;
    anfuegeZahl(text, wert);
    double genau = wert;
    std::from_chars(text.data(), text.data() + text.size(), genau);
    return genau;
}

void anfuegeJsonText(std::string& json, std::string_view text) {
    const auto schlicht = [](unsigned char c) { return c >= 0x20 && c < 0x80 && c != '"' && c != '\\'; };
    if (std::all_of(text.begin(), text.end(), schlicht)) {
        json.append("\"").append(text).append("\"");
    } else {
        json += nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
    }
}

}  // namespace rippenscheibe
