#pragma once

#include <string>

#include "model/Wand.h"
#include "report/Bericht.h"
#include "trace/Graph.h"

namespace rippenscheibe {

// What the first page of the derivation tells besides the wall itself.
struct Pruefblatt {
    std::string programm;    // name and version
    std::string datei;       // empty when the position has no file yet
    std::string pruefsumme;  // SHA-256 of its bytes
    std::string lauf;        // "Erster Lauf nach Programmstart" and the like
};

// What the results were before a run tells which run it is: the first one, or one that may rest on what was
// computed before.
std::string laufart(const Wand& vorDemLauf);

// The document "Rechenweg": the page "Prüfblatt", then every step that the numbers of the report rest on,
// each once, in the order of the report, ribs of equal value joined. `w` is the record after the run.
Bericht rechenweg(const herleitung::Graph& graph, const Wand& w, const Pruefblatt& blatt);

}  // namespace rippenscheibe
