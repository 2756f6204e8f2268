#include "cli/Herleitung.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "cli/Feldwerte.h"
#include "trace/Darstellung.h"
#include "trace/Formel.h"

namespace rippenscheibe {

using namespace herleitung;  // the graph is all this file is about

namespace {

// Fields that the report prints and the run never assigned: what they held before it.
std::vector<const Stand*> vonFrueher(const Darstellung& d) {
    std::vector<const Stand*> staende;
    const auto pruefe = [&](Ort ort) {
        const Stand* s = d.standAus(ort);
        if (s == nullptr || s->schritt != keiner || d.feld(*s).eingabe) return;
        if (std::ranges::find(staende, s) == staende.end()) staende.push_back(s);
    };
    for (const Berichtszeile& zeile : d.graph().bericht)
        for (const Zahlstelle& zahl : zeile.zahlen) jederOperand(d.graph(), zahl.ausdruck, pruefe);
    return staende;
}

bool gewaehlt(const Herleitungswahl& wahl, std::string_view name) {
    return wahl.felder.empty() || std::ranges::find(wahl.felder, name) != wahl.felder.end();
}

std::vector<Ort> gewaehlteSchritte(const Darstellung& d, const Herleitungswahl& wahl) {
    const Graph& g = d.graph();
    std::vector<Ort> schritte;
    std::map<std::pair<Ort, int>, Ort> letzte;
    for (std::size_t i = 0; i < g.schritte.size(); ++i) {
        const Stand& s = d.stand(g.schritte[i]);
        if (!wirdGezeigt(g, s) || !gewaehlt(wahl, d.feld(s).name)) continue;
        if (wahl.felder.empty()) {
            schritte.push_back(static_cast<Ort>(i));
        } else {
            letzte[{s.feld, s.rippe}] = static_cast<Ort>(i);
        }
    }
    for (const auto& [feld, schritt] : letzte) schritte.push_back(schritt);
    std::ranges::sort(schritte);
    if (!wahl.tief) return schritte;
    std::vector<Ort> alle = d.grundlagen(schritte);
    std::erase_if(alle,
                  [&](Ort i) { return !wirdGezeigt(g, d.stand(g.schritte[static_cast<std::size_t>(i)])); });
    return alle;
}

std::string zahlJson(double wert) {
    if (!std::isfinite(wert)) return "null";
    std::string text;
    anfuegeJson(text, wert, Umfang{});
    return text;
}

std::string_view typname(Typ typ) {
    switch (typ) {
        case Typ::f32:
            return "f32";
        case Typ::i16:
            return "i16";
        case Typ::wahrheit:
            return "bool";
        default:
            return "";
    }
}

class Jsonschreiber {
  public:
    explicit Jsonschreiber(const Darstellung& d) : d_(d) {}

    std::string schritt(Ort nummer) {
        const Schritt& s = d_.graph().schritte[static_cast<std::size_t>(nummer)];
        const Stand& stand = d_.stand(s);
        beginne(nummer + 1, stand);
        operanden_.clear();
        const std::string text = formel(d_.graph(), s.ausdruck, weise());
        json_ += ",\"formel\":" + jsonText(text) + ",\"operanden\":{";
        for (std::size_t i = 0; i < operanden_.size(); ++i) operand(i);
        json_ += "}";
        if (s.behalten) json_ += ",\"behalten\":true";
        beschreibe(stand);
        liste("tabellen", d_.tabellenwerte(s));
        liste("bedingungen", d_.bedingungen(s));
        if (!s.vorgaben.empty()) liste("vorgegeben", {s.vorgaben.begin(), s.vorgaben.end()});
        return std::move(json_) + "}\n";
    }

    std::string vonFrueher(int nummer, const Stand& stand) {
        beginne(nummer, stand);
        json_ += ",\"vonFrueher\":true,\"text\":\"nicht zugewiesen, Stand vor dem Lauf\"";
        beschreibe(stand);
        return std::move(json_) + "}\n";
    }

  private:
    Schreibweise weise() {
        return {.mal = " * ",
                .durch = " / ",
                .hoch = " ^ ",
                .wurzel = "sqrt",
                .betrag = "abs",
                .ganz = "floor",
                .trenner = ", ",
                .bitgenau = true,
                .blatt = [this](Ort ort) { return blatt(ort); }};
    }

    std::string blatt(Ort ort) {
        const Knoten& k = d_.knoten(ort);
        if (k.op == Op::zahl || k.op == Op::konstante || k.op == Op::tabelle) return zahlJson(k.wert);
        const auto gleich = [&](Ort anderer) {
            return anderer == ort ||
                   (k.op == Op::stand && d_.knoten(anderer).op == Op::stand && d_.knoten(anderer).a == k.a);
        };
        auto treffer = std::ranges::find_if(operanden_, gleich);
        if (treffer == operanden_.end()) treffer = operanden_.insert(treffer, ort);
        return "f" + std::to_string(treffer - operanden_.begin() + 1);
    }

    void operand(std::size_t i) {
        const Ort ort = operanden_[i];
        const Knoten& k = d_.knoten(ort);
        json_ += (i > 0 ? ",\"f" : "\"f") + std::to_string(i + 1) + "\":{\"feld\":";
        if (const Stand* s = d_.standAus(ort)) {
            json_ += jsonText(d_.feld(*s).name) + ",\"wert\":" + zahlJson(s->wert);
            if (s->rippe >= 0) json_ += ",\"rippe\":" + std::to_string(s->rippe);
            if (s->schritt != keiner && wirdGezeigt(d_.graph(), *s))
                json_ += ",\"schritt\":" + std::to_string(s->schritt + 1);
        } else if (k.op == Op::eigenes) {
            json_ += "\"EigeneMaterialien\",\"wert\":" + zahlJson(k.wert) +
                     ",\"zeile\":" + std::to_string(k.a) + ",\"spalte\":" + std::to_string(k.b);
        } else {
            const bool benannt = k.a != keiner;
            json_ += jsonText(benannt ? d_.graph().felder[static_cast<std::size_t>(k.a)].name : "");
            json_ += ",\"wert\":null";
            if (benannt) json_ += ",\"rippe\":" + std::to_string(k.b);
        }
        json_ += "}";
    }

    void beginne(int nummer, const Stand& s) {
        const Feldeintrag& f = d_.feld(s);
        json_ = "{\"schritt\":" + std::to_string(nummer) + ",\"feld\":" + jsonText(f.name);
        if (s.rippe >= 0) json_ += ",\"rippe\":" + std::to_string(s.rippe);
        json_ += ",\"wert\":";
        json_ += f.typ == Typ::wahrheit ? (s.wert != 0 ? "true" : "false") : zahlJson(s.wert);
        if (!typname(f.typ).empty()) json_.append(",\"typ\":\"").append(typname(f.typ)).append("\"");
    }
    void beschreibe(const Stand& s) {
        const Feldeintrag& f = d_.feld(s);
        json_ += ",\"einheit\":" + jsonText(f.einheit) + ",\"zeichen\":" + jsonText(f.zeichen) +
                 ",\"quelle\":" + jsonText(f.quelle);
    }
    void liste(std::string_view name, const std::vector<std::string>& texte) {
        json_.append(",\"").append(name).append("\":[");
        for (std::size_t i = 0; i < texte.size(); ++i) json_ += (i > 0 ? "," : "") + jsonText(texte[i]);
        json_ += "]";
    }

    const Darstellung& d_;
    std::string json_;
    std::vector<Ort> operanden_;
};

}  // namespace

std::string unbekanntesFeld(std::span<const std::string> felder) {
    std::vector<std::string> namen;
    const auto sammle = [&](const Feldangabe& angabe, const auto&) { namen.emplace_back(angabe.name); };
    const Wand w;
    jedeEingabe(w, sammle);
    jedesErgebnis(w, sammle);
    const auto fremd = std::ranges::find_if(
        felder, [&](const std::string& name) { return std::ranges::find(namen, name) == namen.end(); });
    return fremd != felder.end() ? *fremd : "";
}

std::string herleitungText(const Graph& graph, const Herleitungswahl& wahl) {
    const Darstellung d(graph);
    std::string text;
    for (const Ort i : gewaehlteSchritte(d, wahl)) {
        const Schritt& s = graph.schritte[static_cast<std::size_t>(i)];
        text += "[" + std::to_string(i + 1) + "] " + d.zeile(s) + "\n";
        for (const std::string& anmerkung : d.anmerkungen(s)) text += "    " + anmerkung + "\n";
    }
    for (const Stand* s : vonFrueher(d)) {
        if (!gewaehlt(wahl, d.feld(*s).name)) continue;
        text += d.zeichen(*s) + " = " + d.wertMitEinheit(*s) + "\n    nicht zugewiesen, Stand vor dem Lauf\n";
    }
    return text;
}

std::string herleitungJson(const Graph& graph, const Herleitungswahl& wahl) {
    const Darstellung d(graph);
    Jsonschreiber schreiber(d);
    std::string json;
    for (const Ort i : gewaehlteSchritte(d, wahl)) json += schreiber.schritt(i);
    int nummer = static_cast<int>(graph.schritte.size());
    for (const Stand* s : vonFrueher(d)) {
        ++nummer;
        if (gewaehlt(wahl, d.feld(*s).name)) json += schreiber.vonFrueher(nummer, *s);
    }
    return json;
}

}  // namespace rippenscheibe
