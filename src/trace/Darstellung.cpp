#include "trace/Darstellung.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <utility>

#include "basis/Zahlenformat.h"
#include "model/Kataloge.h"
#include "trace/Formel.h"

namespace rippenscheibe {

using namespace herleitung;  // the graph is all this file is about

namespace {

Schreibweise aufPapier(std::function<std::string(Ort)> blatt) {
    return {.mal = " · ",
            .durch = " / ",
            .hoch = "^",
            .wurzel = "√",
            .betrag = "abs",
            .ganz = "ganz",
            .trenner = "; ",
            .bitgenau = false,
            .blatt = std::move(blatt)};
}

// A number of the code as it is written there.
std::string woertlich(double wert) {
    std::array<char, 32> puffer{};
    char* const anfang = puffer.data();
    char* const grenze = anfang + puffer.size();
    const auto einfach = static_cast<float>(wert);  // 0.9F reads 0,9
    const char* ende = static_cast<double>(einfach) == wert ? std::to_chars(anfang, grenze, einfach).ptr
                                                            : std::to_chars(anfang, grenze, wert).ptr;
    std::string text(anfang, static_cast<std::size_t>(ende - anfang));
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

std::string_view zeichenVon(Vergleich v) {
    constexpr std::array<std::string_view, 6> zeichen{" = ", " ≠ ", " < ", " ≤ ", " > ", " ≥ "};
    return zeichen[static_cast<std::size_t>(v)];
}
Vergleich gegenteil(Vergleich v) {
    constexpr std::array<Vergleich, 6> andere{Vergleich::ungleich,       Vergleich::gleich,
                                              Vergleich::groesserGleich, Vergleich::groesser,
                                              Vergleich::kleinerGleich,  Vergleich::kleiner};
    return andere[static_cast<std::size_t>(v)];
}

// What a stored choice stands for: "OSB/3" of Material1 = 1.
std::string_view wahlwort(std::string_view feld, double wert) {
    constexpr double jenseits = 100;  // no catalogue is that long, and not every value fits an index
    if (!(wert >= 0 && wert < jenseits)) return {};
    const std::string_view wort = katalogwort(feld, static_cast<int>(wert));
    return wort.substr(0, wort.find_last_not_of(" :") + 1);  // one name leads to a field beside it
}

}  // namespace

std::string schlicht(std::string_view zeichen) {
    std::string text;
    for (std::size_t i = 0; i < zeichen.size(); ++i) {
        const bool klammer = zeichen[i] == '{' || zeichen[i] == '}';
        const bool anfang =
            (zeichen[i] == '_' || zeichen[i] == '^') && i + 1 < zeichen.size() && zeichen[i + 1] == '{';
        if (!klammer && !anfang) text += zeichen[i];
    }
    return text;
}

std::string lesbar(double wert, char dezimalzeichen) {
    if (!std::isfinite(wert)) return "–";
    if (wert == 0) return "0";
    const double groesse = std::floor(std::log10(std::fabs(wert)));
    if (groesse > 8 || groesse < -5) {
        std::array<char, 32> puffer{};
        const auto ende = std::to_chars(puffer.data(), puffer.data() + puffer.size(), wert,
                                        std::chars_format::scientific, 3);
        std::string text(puffer.data(), ende.ptr);
        std::replace(text.begin(), text.end(), '.', dezimalzeichen);
        return text;
    }
    const int stellen = std::max(0, 3 - static_cast<int>(groesse));
    std::string text =
        formatiere(stellen == 0 ? "0" : "0." + std::string(static_cast<std::size_t>(stellen), '0'), wert,
                   dezimalzeichen);
    if (stellen > 0) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == dezimalzeichen) text.pop_back();
    }
    return text;
}

bool wirdGezeigt(const Graph& graph, const Stand& stand) {
    return stand.rippe == -1 || (stand.rippe >= 1 && stand.rippe <= graph.rippen);
}

Darstellung::Darstellung(const Graph& graph) : graph_(graph) {}

const Stand& Darstellung::stand(const Schritt& s) const {
    return graph_.staende[static_cast<std::size_t>(s.stand)];
}
const Feldeintrag& Darstellung::feld(const Stand& s) const {
    return graph_.felder[static_cast<std::size_t>(s.feld)];
}
const Knoten& Darstellung::knoten(Ort ort) const { return graph_.knoten[static_cast<std::size_t>(ort)]; }

const Stand* Darstellung::standAus(Ort ort) const {
    const Knoten& k = knoten(ort);
    return k.op == Op::stand ? &graph_.staende[static_cast<std::size_t>(k.a)] : nullptr;
}

const Schritt* Darstellung::letzter(Ort feld, int rippe) const {
    const auto& alle = graph_.schritte;
    const auto treffer = std::find_if(alle.rbegin(), alle.rend(), [&](const Schritt& s) {
        return stand(s).feld == feld && stand(s).rippe == rippe;
    });
    return treffer == alle.rend() ? nullptr : &*treffer;
}

std::string Darstellung::zeichen(const Stand& s) const {
    const Feldeintrag& f = feld(s);
    std::string text = schlicht(f.zeichen.empty() ? f.name : f.zeichen);
    if (s.rippe >= 0) text += "(" + std::to_string(s.rippe) + ")";
    return text;
}

std::string Darstellung::blattzeichen(Ort ort) const {
    const Knoten& k = knoten(ort);
    switch (k.op) {
        case Op::stand:
            return zeichen(*standAus(ort));
        case Op::konstante:
            return schlicht(graph_.konstanten[static_cast<std::size_t>(k.a)]);
        case Op::eigenes:
            return "Eigenes Material(" + std::to_string(k.a) + "; Spalte " + std::to_string(k.b) + ")";
        case Op::fehlt:
            return "(nicht vorhanden)";
        default:
            return woertlich(k.wert);
    }
}

std::string Darstellung::blattwert(Ort ort) const {
    const Knoten& k = knoten(ort);
    if (k.op == Op::zahl || k.op == Op::tabelle) return woertlich(k.wert);
    return k.op == Op::fehlt ? "(nicht vorhanden)" : lesbar(k.wert);
}

std::string Darstellung::wertMitEinheit(const Stand& s) const {
    const Feldeintrag& f = feld(s);
    if (f.typ == Typ::wahrheit) return s.wert != 0 ? "ja" : "nein";
    std::string text = lesbar(s.wert);
    if (const std::string_view name = wahlwort(f.name, s.wert); !name.empty())
        text.append(" (").append(name).append(")");
    if (!f.einheit.empty() && f.einheit != "-") text.append(" ").append(f.einheit);
    return text;
}

std::string Darstellung::symbolisch(Ort ausdruck) const {
    return formel(graph_, ausdruck, aufPapier([this](Ort ort) { return blattzeichen(ort); }));
}

std::string Darstellung::eingesetzt(Ort ausdruck) const {
    return formel(graph_, ausdruck, aufPapier([this](Ort ort) { return blattwert(ort); }));
}

std::string Darstellung::zeile(const Schritt& s) const {
    const Stand& x = stand(s);
    std::string text = zeichen(x);
    if (feld(x).typ == Typ::wahrheit) return text + " = " + wertMitEinheit(x);
    const std::string formelzeichen = symbolisch(s.ausdruck);
    const std::string zahlen = eingesetzt(s.ausdruck);
    const std::string wert = s.behalten ? "ohne Wert" : wertMitEinheit(x);
    text += " = " + formelzeichen;
    if (zahlen != formelzeichen) text += " = " + zahlen;
    const bool einBlatt = istBlatt(knoten(s.ausdruck).op);
    if (!einBlatt || s.behalten) return text + " = " + wert;
    // A mere value is told once, with its unit.
    return (knoten(s.ausdruck).op == Op::zahl || knoten(s.ausdruck).op == Op::tabelle)
               ? zeichen(x) + " = " + wert
               : zeichen(x) + " = " + formelzeichen + " = " + wert;
}

// Whether a value is a share of what its field held before: the loads are reduced so from pass to pass.
bool Darstellung::mindertSich(const Schritt& s) const {
    const Knoten& k = knoten(s.ausdruck);
    if (k.op != Op::mal) return false;
    const Stand* davor = standAus(k.a);
    return davor != nullptr && davor->feld == stand(s).feld && davor->rippe == stand(s).rippe &&
           standAus(k.b) != nullptr;
}

// Counts the passes that have reduced a value, this one included; 0 for any other step.
int Darstellung::durchgang(const Schritt& s) const {
    if (!mindertSich(s)) return 0;
    int zaehler = 1;
    for (Ort vorher = s.vorher; vorher != keiner;) {
        const Ort schritt = graph_.staende[static_cast<std::size_t>(vorher)].schritt;
        if (schritt == keiner) break;
        const Schritt& davor = graph_.schritte[static_cast<std::size_t>(schritt)];
        if (!mindertSich(davor)) break;
        ++zaehler;
        vorher = davor.vorher;
    }
    return zaehler;
}

std::string Darstellung::seite(Ort ort) const {
    const Knoten& k = knoten(ort);
    if (k.op == Op::zahl || k.op == Op::tabelle) return woertlich(k.wert);
    if (const Stand* s = standAus(ort)) return zeichen(*s) + " = " + wertMitEinheit(*s);
    return symbolisch(ort) + " = " + lesbar(k.wert);
}

std::string Darstellung::bedingung(const Bedingung& b) const {
    const Stand* s = standAus(b.links);
    if (s != nullptr && feld(*s).typ == Typ::wahrheit) return seite(b.links);
    const Vergleich v = b.gilt ? b.vergleich : gegenteil(b.vergleich);
    const Op rechts = knoten(b.rechts).op;
    if (s != nullptr && v == Vergleich::gleich && (rechts == Op::zahl || rechts == Op::tabelle))
        return seite(b.links);
    // Of two that are equal the value is told once.
    const std::string links = v == Vergleich::gleich && s == nullptr ? symbolisch(b.links) : seite(b.links);
    return links + std::string(zeichenVon(v)) + seite(b.rechts);
}

std::vector<std::string> Darstellung::bedingungen(const Schritt& s) const {
    // How far a list of ribs runs is no reason for a value.
    const auto laufgrenze = [&](const Bedingung& b) {
        const Stand* x = standAus(b.links);
        return b.vergleich == Vergleich::groesserGleich && x != nullptr && feld(*x).name == "AnzahlRippen" &&
               knoten(b.rechts).op == Op::zahl;
    };
    // That a choice is none of the others goes without saying once it is told which it is.
    const auto andereWahl = [&](const Bedingung& b) {
        const Vergleich v = b.gilt ? b.vergleich : gegenteil(b.vergleich);
        if (v != Vergleich::ungleich) return false;
        return std::ranges::any_of(s.bedingungen, [&](const Bedingung& a) {
            return a.links == b.links && a.vergleich == Vergleich::gleich && a.gilt;
        });
    };
    std::vector<std::string> texte;
    for (const Bedingung& b : s.bedingungen) {
        const bool ohneWert = std::isnan(knoten(b.links).wert) || std::isnan(knoten(b.rechts).wert);
        if (ohneWert || laufgrenze(b) || andereWahl(b)) continue;
        std::string text = bedingung(b);
        if (std::ranges::find(texte, text) == texte.end()) texte.push_back(std::move(text));
    }
    return texte;
}

std::vector<std::string> Darstellung::tabellenwerte(const Schritt& s) const {
    std::vector<std::string> texte;
    jederOperand(graph_, s.ausdruck, [&](Ort ort) {
        const Knoten& k = knoten(ort);
        if (k.op != Op::tabelle) return;
        texte.push_back(woertlich(k.wert) + ": " +
                        std::string(graph_.tabellen[static_cast<std::size_t>(k.a)]) + ", Zeile " +
                        std::to_string(k.b + 1));
    });
    return texte;
}

std::string_view Darstellung::quelle(const Schritt& s) const {
    const std::string_view text = feld(stand(s)).quelle;
    const bool genauer = std::ranges::any_of(
        tabellenwerte(s), [&](const std::string& t) { return t.find(text) != std::string::npos; });
    return genauer ? std::string_view() : text;
}

std::vector<std::string> Darstellung::anmerkungen(const Schritt& s) const {
    std::vector<std::string> texte;
    const Stand& x = stand(s);
    if (s.behalten) {
        const Stand& davor = graph_.staende[static_cast<std::size_t>(s.vorher)];
        texte.push_back("behält den Wert " + wertMitEinheit(x) +
                        (davor.schritt == keiner ? " von vor dem Lauf" : " aus einem früheren Schritt"));
    }
    if (const int n = durchgang(s); n > 0) texte.push_back(std::to_string(n) + ". Durchgang");
    if (!quelle(s).empty()) texte.emplace_back(quelle(s));
    for (std::string& text : tabellenwerte(s)) texte.push_back(std::move(text));
    std::string weil;
    for (const std::string& text : bedingungen(s)) weil += (weil.empty() ? "weil " : ", ") + text;
    if (!weil.empty()) texte.push_back(weil);
    for (const std::string_view satz : s.vorgaben) texte.push_back("so vorgegeben: " + std::string(satz));
    return texte;
}

std::vector<Ort> Darstellung::grundlagen(const std::vector<Ort>& schritte) const {
    std::vector<bool> noetig(graph_.schritte.size(), false);
    for (const Ort s : schritte) noetig[static_cast<std::size_t>(s)] = true;
    // Steps rest on earlier ones only: once from the last to the first.
    const auto merke = [&](Ort schritt) {
        if (schritt != keiner) noetig[static_cast<std::size_t>(schritt)] = true;
    };
    for (std::size_t i = noetig.size(); i-- > 0;) {
        if (!noetig[i]) continue;
        const Schritt& s = graph_.schritte[i];
        const auto merkeOperand = [&](Ort ort) {
            if (const Stand* x = standAus(ort)) merke(x->schritt);
        };
        jederOperand(graph_, s.ausdruck, merkeOperand);
        for (const Bedingung& b : s.bedingungen) {
            jederOperand(graph_, b.links, merkeOperand);
            jederOperand(graph_, b.rechts, merkeOperand);
        }
        if (s.behalten) merke(graph_.staende[static_cast<std::size_t>(s.vorher)].schritt);
    }
    std::vector<Ort> ergebnis;
    for (std::size_t i = 0; i < noetig.size(); ++i)
        if (noetig[i]) ergebnis.push_back(static_cast<Ort>(i));
    return ergebnis;
}

}  // namespace rippenscheibe
