#include "trace/spur/Lauf.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <span>
#include <type_traits>
#include <variant>

#include "report/Bericht.h"
#include "report/Fliesstext.h"
#include "run/Berechnungslauf.h"
#include "run/Zuweisen.h"
#include "trace/spur/Aufzeichnung.h"

namespace rippenscheibe {

namespace {

using herleitung::Feldeintrag;
using herleitung::Graph;
using herleitung::Typ;
using herleitung::Wandinhalt;

// Fills the record from the plain values, gives each field its place and describes it.
class Fueller {
  public:
    Fueller(const Wandinhalt& inhalt, Graph& graph) : inhalt_(inhalt), graph_(graph) {}

    bool eingabe = true;

    template <class T>
    void operator()(const Feldangabe& angabe, Gespeichert<T>& feld) {
        constexpr Typ typ = std::is_same_v<T, double>  ? Typ::f64
                            : std::is_same_v<T, float> ? Typ::f32
                                                       : Typ::i16;
        feld.setze(static_cast<T>(zahl()), neu(angabe, typ));
    }
    void operator()(const Feldangabe& angabe, Schalter& feld) {
        feld.setze(zahl() != 0, neu(angabe, Typ::wahrheit));
    }
    void operator()(const Feldangabe& angabe, Rippenfeld& feld) {
        feld.setze(neu(angabe, Typ::rippen));
        for (std::size_t i = 0; i < Rippenfeld::laenge; ++i) feld.setze(i, zahl());
    }
    void operator()(const Feldangabe& angabe, std::string& feld) {
        neu(angabe, Typ::text);
        feld = inhalt_.texte[text_++];
    }
    void operator()(const Feldangabe& angabe, Vorbemerkungszeilen& feld) { nimm(angabe, feld); }
    void operator()(const Feldangabe& angabe, Texte& feld) {
        feld.resize(static_cast<std::size_t>(zahl()));
        nimm(angabe, feld);
    }

  private:
    void nimm(const Feldangabe& angabe, std::span<std::string> texte) {
        neu(angabe, Typ::text);
        for (std::string& text : texte) text = inhalt_.texte[text_++];
    }
    double zahl() { return inhalt_.zahlen[zahl_++]; }
    // The side is the last of the indices.
    static std::string zeichen(const Feldangabe& angabe) {
        std::string text(angabe.symbol);
        if (angabe.seite == 0 || text.empty()) return text;
        const std::string nummer = std::to_string(angabe.seite) + "}";
        if (text.back() != '}') return text + "_{" + nummer;
        text.back() = ',';
        return text + nummer;
    }
    Ort neu(const Feldangabe& angabe, Typ typ) {
        graph_.felder.push_back(
            {angabe.name, angabe.einheit, angabe.bedeutung, zeichen(angabe), angabe.quelle, typ, eingabe});
        return static_cast<Ort>(graph_.felder.size()) - 1;
    }

    const Wandinhalt& inhalt_;
    Graph& graph_;
    std::size_t zahl_ = 0;
    std::size_t text_ = 0;
};

void fuelle(Wand& w, const Wandinhalt& inhalt, Graph& graph) {
    Fueller fueller(inhalt, graph);
    jedeEingabe(w, fueller);
    fueller.eingabe = false;
    jedesErgebnis(w, fueller);
    for (const Wandinhalt::Material& material : inhalt.materialien) {
        EigeneMaterialien::Zeile& zeile = w.eigeneMaterialien.zeilen.emplace_back();
        zeile.name = material.name;
        const std::size_t spalten = std::min(zeile.zellen.size(), material.zellen.size());
        for (std::size_t k = 0; k < spalten; ++k) zeile.zellen[k] = {material.zellen[k], false};
    }
}

class Zeilensammler {
  public:
    explicit Zeilensammler(Graph& graph, Aufzeichnung& auf) : graph_(graph), auf_(auf) {}

    void operator()(const Textzeile& z) {
        if (!z.text) return;
        herleitung::Berichtszeile& zeile = graph_.bericht.emplace_back();
        zeile.text = *z.text;
        zeile.ueberschrift = istUeberschrift(z.stil);
        for (const auto& stelle : z.zahlen)
            zeile.zahlen.push_back({stelle.von, stelle.bis, stelle.wert.knoten(auf_)});
    }
    template <class Andere>
    void operator()(const Andere&) {}

  private:
    Graph& graph_;
    Aufzeichnung& auf_;
};

}  // namespace

}  // namespace rippenscheibe

namespace herleitung {

void laufeMitSpur(const Wandinhalt& inhalt, char dezimalzeichen, Graph& graph) {
    using namespace rippenscheibe;
    const auto wand = std::make_unique<Wand>();
    fuelle(*wand, inhalt, graph);
    Aufzeichnung aufzeichnung(graph);
    aufzeichnung.nimmEingabenHin(true);
    zuweisen(*wand, {inhalt.Wandlaenge, inhalt.Wandhoehe, inhalt.Rippenabstand});
    aufzeichnung.nimmEingabenHin(false);
    berechnungslauf(*wand);
    graph.erfuellt = wand->AlleNachweiseErfuellt;
    const double rippen = std::nearbyint(static_cast<double>(wand->AnzahlRippen.value()));
    graph.rippen = static_cast<int>(std::clamp(rippen, 0.0, static_cast<double>(Rippenfeld::laenge - 1)));
    Zeilensammler sammler(graph, aufzeichnung);
    for (const Zeile& zeile : bericht(*wand, Form::ansicht, {.dezimalzeichen = dezimalzeichen}))
        std::visit(sammler, zeile);
}

}  // namespace herleitung
