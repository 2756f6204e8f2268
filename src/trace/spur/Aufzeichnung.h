#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "trace/Graph.h"

namespace herleitung {

// A table of the calculation, known by where it lies in memory.
struct Tabellenort {
    const void* anfang;
    std::size_t zeile;  // bytes
    std::size_t zeilen;
    std::string_view name;
};
void meldeTabelleAn(const Tabellenort& tabelle);

// Takes down one traced run. At most one is active a thread; without one the traced arithmetic computes only.
class Aufzeichnung {
  public:
    explicit Aufzeichnung(Graph& graph);
    ~Aufzeichnung();
    Aufzeichnung(const Aufzeichnung&) = delete;
    Aufzeichnung& operator=(const Aufzeichnung&) = delete;

    static Aufzeichnung* aktive() { return aktive_; }

    Ort knoten(Op op, double wert, Ort a = keiner, Ort b = keiner) {
        graph_.knoten.push_back({op, wert, a, b});
        return static_cast<Ort>(graph_.knoten.size()) - 1;
    }
    Ort auswahl(Op op, double wert, std::span<const Ort> argumente);
    Ort konstante(double wert, std::string_view name);
    // The value of a cell; a number like any other when the cell belongs to no table.
    Ort tabellenwert(double wert, const void* zelle);
    // What a field held before the run.
    Ort anfang(Ort feld, int rippe, double wert) { return stand({feld, rippe, keiner, wert}); }
    // An assignment; `davor` is the node of what the field held. The node of what it holds now comes back.
    Ort schritt(const Stand& neu, Ort ausdruck, Ort davor, bool behalten);

    void vergleich(Vergleich v, Ort links, Ort rechts, bool gilt);
    void vorgabe(std::string_view satz) { vorgaben_.push_back(satz); }

    // From here on an assignment of an input is the input itself and no step.
    void nimmEingabenHin(bool ja) { eingabenHinnehmen_ = ja; }

    // Scope of an `if`: the comparisons of its condition hold for the steps inside it.
    std::size_t offene() const { return offen_.size(); }
    std::size_t geltende() const { return geltend_.size(); }
    void gilt(std::size_t abOffener);
    void schliesse(std::size_t geltende) { geltend_.resize(geltende); }

  private:
    Ort stand(const Stand& s);

    Graph& graph_;
    std::vector<Bedingung> offen_;    // compared since the last step, outside of an `if`
    std::vector<Bedingung> geltend_;  // conditions of the surrounding `if`s
    std::vector<std::string_view> vorgaben_;
    bool eingabenHinnehmen_ = false;
    static thread_local Aufzeichnung* aktive_;
};

}  // namespace herleitung
