#include "trace/spur/Aufzeichnung.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace herleitung {

namespace {

std::vector<Tabellenort>& tabellen() {
    static std::vector<Tabellenort> alle;
    return alle;
}

// The place of a text in a list, at the end when it is new.
Ort platz(std::vector<std::string_view>& liste, std::string_view text) {
    const auto treffer = std::find(liste.begin(), liste.end(), text);
    const auto ort = static_cast<Ort>(treffer - liste.begin());
    if (treffer == liste.end()) liste.push_back(text);
    return ort;
}

}  // namespace

void meldeTabelleAn(const Tabellenort& tabelle) { tabellen().push_back(tabelle); }

thread_local Aufzeichnung* Aufzeichnung::aktive_ = nullptr;

Aufzeichnung::Aufzeichnung(Graph& graph) : graph_(graph) {
    graph_.knoten.reserve(16384);
    graph_.staende.reserve(4096);
    graph_.schritte.reserve(4096);
    aktive_ = this;
}

Aufzeichnung::~Aufzeichnung() { aktive_ = nullptr; }

Ort Aufzeichnung::auswahl(Op op, double wert, std::span<const Ort> argumente) {
    const auto von = static_cast<Ort>(graph_.argumente.size());
    graph_.argumente.insert(graph_.argumente.end(), argumente.begin(), argumente.end());
    return knoten(op, wert, von, static_cast<Ort>(graph_.argumente.size()));
}

Ort Aufzeichnung::konstante(double wert, std::string_view name) {
    return knoten(Op::konstante, wert, platz(graph_.konstanten, name));
}

Ort Aufzeichnung::tabellenwert(double wert, const void* zelle) {
    for (const Tabellenort& t : tabellen()) {
        const auto* anfang = static_cast<const char*>(t.anfang);
        const auto* ort = static_cast<const char*>(zelle);
        if (std::less<>{}(ort, anfang) || !std::less<>{}(ort, anfang + t.zeile * t.zeilen)) continue;
        const auto zeile = static_cast<Ort>(static_cast<std::size_t>(ort - anfang) / t.zeile);
        return knoten(Op::tabelle, wert, platz(graph_.tabellen, t.name), zeile);
    }
    return knoten(Op::zahl, wert);
}

Ort Aufzeichnung::stand(const Stand& s) {
    graph_.staende.push_back(s);
    return knoten(Op::stand, s.wert, static_cast<Ort>(graph_.staende.size()) - 1);
}

Ort Aufzeichnung::schritt(const Stand& neu, Ort ausdruck, Ort davor, bool behalten) {
    if (eingabenHinnehmen_ && graph_.felder[static_cast<std::size_t>(neu.feld)].eingabe) return stand(neu);
    Stand s = neu;
    s.schritt = static_cast<Ort>(graph_.schritte.size());
    const Ort ergebnis = stand(s);
    Schritt schritt;
    schritt.stand = static_cast<Ort>(graph_.staende.size()) - 1;
    schritt.ausdruck = ausdruck;
    if (davor != keiner) schritt.vorher = graph_.knoten[static_cast<std::size_t>(davor)].a;
    schritt.behalten = behalten;
    schritt.bedingungen.reserve(geltend_.size() + offen_.size());
    schritt.bedingungen = geltend_;
    schritt.bedingungen.insert(schritt.bedingungen.end(), offen_.begin(), offen_.end());
    schritt.vorgaben = std::exchange(vorgaben_, {});
    offen_.clear();
    graph_.schritte.push_back(std::move(schritt));
    return ergebnis;
}

void Aufzeichnung::vergleich(Vergleich v, Ort links, Ort rechts, bool gilt) {
    offen_.push_back({v, links, rechts, gilt});
}

void Aufzeichnung::gilt(std::size_t abOffener) {
    abOffener = std::min(abOffener, offen_.size());
    const auto ab = offen_.begin() + static_cast<std::ptrdiff_t>(abOffener);
    geltend_.insert(geltend_.end(), ab, offen_.end());
    offen_.erase(ab, offen_.end());
}

}  // namespace herleitung
