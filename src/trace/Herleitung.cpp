#include "trace/Herleitung.h"

#include <algorithm>
#include <string>
#include <vector>

#include "report/Bericht.h"
#include "trace/spur/Lauf.h"

namespace rippenscheibe {

namespace {

using herleitung::Wandinhalt;

class Leser {
  public:
    explicit Leser(Wandinhalt& inhalt) : inhalt_(inhalt) {}

    template <class T>
    void operator()(const Feldangabe&, const Gespeichert<T>& feld) {
        inhalt_.zahlen.push_back(static_cast<double>(feld.value()));
    }
    void operator()(const Feldangabe&, const bool& feld) { inhalt_.zahlen.push_back(feld ? 1 : 0); }
    void operator()(const Feldangabe&, const Rippenfeld& feld) {
        for (std::size_t i = 0; i < Rippenfeld::laenge; ++i) inhalt_.zahlen.push_back(feld(i).value());
    }
    void operator()(const Feldangabe&, const std::string& feld) { inhalt_.texte.push_back(feld); }
    void operator()(const Feldangabe&, const Vorbemerkungszeilen& feld) {
        inhalt_.texte.insert(inhalt_.texte.end(), feld.begin(), feld.end());
    }
    void operator()(const Feldangabe&, const Texte& feld) {
        inhalt_.zahlen.push_back(static_cast<double>(feld.size()));
        inhalt_.texte.insert(inhalt_.texte.end(), feld.begin(), feld.end());
    }

  private:
    Wandinhalt& inhalt_;
};

Wandinhalt inhalt(const Wand& w, const Grundmasse& felder) {
    Wandinhalt i;
    Leser leser(i);
    jedeEingabe(w, leser);
    jedesErgebnis(w, leser);
    for (const EigeneMaterialien::Zeile& zeile : w.eigeneMaterialien.zeilen) {
        Wandinhalt::Material& material = i.materialien.emplace_back();
        material.name = zeile.name;
        for (const auto& zelle : zeile.zellen) material.zellen.push_back(zelle.wert);
    }
    i.Wandlaenge = felder.Wandlaenge;
    i.Wandhoehe = felder.Wandhoehe;
    i.Rippenabstand = felder.Rippenabstand;
    return i;
}

}  // namespace

herleitung::Graph leiteHer(const Wand& vorDemLauf, const Grundmasse& felder, char dezimalzeichen) {
    herleitung::Graph graph;
    herleitung::laufeMitSpur(inhalt(vorDemLauf, felder), dezimalzeichen, graph);
    return graph;
}

std::unique_ptr<herleitung::Graph> leiteLaufHer(const Wand& vorDemLauf, const Grundmasse& felder,
                                                const Wand& nachDemLauf, char dezimalzeichen) {
    auto graph = std::make_unique<herleitung::Graph>(leiteHer(vorDemLauf, felder, dezimalzeichen));
    std::vector<std::string> gezeigt;
    for (const Zeile& zeile : bericht(nachDemLauf, Form::ansicht, {.dezimalzeichen = dezimalzeichen})) {
        const auto* text = std::get_if<Textzeile>(&zeile);
        if (text != nullptr && text->text) gezeigt.push_back(*text->text);
    }
    const bool gleich = std::ranges::equal(gezeigt, graph->bericht, {}, {}, &herleitung::Berichtszeile::text);
    return gleich ? std::move(graph) : nullptr;
}

}  // namespace rippenscheibe
