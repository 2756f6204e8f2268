#include "ui/basics/Schrittfolge.h"

#include <string_view>
#include <type_traits>
#include <utility>

namespace rippenscheibe {

namespace {

// The bytes of all inputs, one behind the other.
class Bytefolge {
  public:
    template <class T>
    void operator()(const Feldangabe&, const T& feld) {
        nimm(feld);
    }
    template <class T>
    void nimm(const T& wert) {
        if constexpr (requires { wert.value(); })
            nimm(wert.value());
        else if constexpr (std::is_arithmetic_v<T>)
            bytes_.append(reinterpret_cast<const char*>(&wert), sizeof wert);
        else if constexpr (std::is_convertible_v<const T&, std::string_view>)
            bytes_.append(wert).push_back('\0');
        else
            for (const auto& zeile : wert) nimm(zeile);
    }
    std::string bytes_;
};

std::string bytes(const Eingabestand& stand) {
    Bytefolge folge;
    Eingaben::jedesFeld(stand.eingaben, folge);
    for (const double mass : {stand.felder.Wandlaenge, stand.felder.Wandhoehe, stand.felder.Rippenabstand})
        folge.nimm(mass);
    return std::move(folge.bytes_);
}

}  // namespace

bool gleich(const Eingabestand& a, const Eingabestand& b) { return bytes(a) == bytes(b); }

void Schrittfolge::beginne(const Eingabestand& jetzt, std::string name) {
    if (!besuche_.empty()) schliesse(besuche_.back(), jetzt);
    besuche_.push_back({std::move(name), jetzt});
}

void Schrittfolge::beende(const Eingabestand& jetzt) {
    if (besuche_.empty()) return;
    schliesse(besuche_.back(), jetzt);
    besuche_.pop_back();
    if (!besuche_.empty()) besuche_.back().stand = jetzt;
}

void Schrittfolge::schliesse(Schritt& besuch, const Eingabestand& jetzt) {
    if (gleich(besuch.stand, jetzt)) return;
    zurueck_.push_back({besuch.name, std::exchange(aktuell_, jetzt)});
    if (zurueck_.size() > hoechstens) zurueck_.pop_front();
    vor_.clear();
    besuch.stand = jetzt;
}

bool Schrittfolge::rueckgaengig(Eingabestand& stand) { return tausche(zurueck_, vor_, stand); }

bool Schrittfolge::wiederhole(Eingabestand& stand) { return tausche(vor_, zurueck_, stand); }

bool Schrittfolge::tausche(std::deque<Schritt>& von, std::deque<Schritt>& nach, Eingabestand& stand) {
    if (!besuche_.empty()) schliesse(besuche_.back(), stand);
    if (von.empty()) return false;
    Schritt schritt = std::move(von.back());
    von.pop_back();
    nach.push_back({std::move(schritt.name), std::exchange(stand, std::move(schritt.stand))});
    aktuell_ = stand;
    for (Schritt& besuch : besuche_) besuch.stand = stand;
    return true;
}

void Schrittfolge::leere(const Eingabestand& jetzt) {
    aktuell_ = jetzt;
    zurueck_.clear();
    vor_.clear();
    for (Schritt& besuch : besuche_) besuch.stand = jetzt;
}

}  // namespace rippenscheibe
