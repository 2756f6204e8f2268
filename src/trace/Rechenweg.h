#pragma once

#include <string>
#include <string_view>

#include "model/Wand.h"
#include "report/Bericht.h"
#include "trace/Darstellung.h"

namespace rippenscheibe {

// What the first page of the derivation tells besides the wall itself.
struct Pruefblatt {
    std::string programm;    // name and version
    std::string datei;       // empty when the position has no file yet
    std::string pruefsumme;  // SHA-256 of its bytes
    std::string lauf;        // which run it is
};

// The sheet of a run from this record, whose position is the file of this name. `bytes` are its content when
// it is what was computed.
Pruefblatt pruefblatt(const Wand& vorDemLauf, std::string datei, std::string_view bytes);

// Who sets the formulas of the document for pages.
class Formelsatz {
  public:
    Formelsatz() = default;
    Formelsatz(const Formelsatz&) = delete;
    Formelsatz& operator=(const Formelsatz&) = delete;
    virtual ~Formelsatz() = default;

    // The formula of a step, with its source beside it.
    virtual Formelzeile schritt(const Darstellung& d, const herleitung::Schritt& s) = 0;
    // The formula of a value that the report itself forms.
    virtual Formelzeile ausdruck(const Darstellung& d, herleitung::Ort ort) = 0;
    // A value from before the run.
    virtual Formelzeile stand(const Darstellung& d, const herleitung::Stand& s) = 0;
};

// What the results were before a run tells which run it is: the first one, a later one of the same inputs,
// or one behind another wall.
std::string laufart(const Wand& vorDemLauf);

// The document "Rechenweg": the page "Prüfblatt", then every step that the numbers of the report rest on,
// each once, in the order of the report, ribs of equal value joined. `w` is the record after the run. Without
// one who sets the formulas it is running text, a formula a paragraph.
Bericht rechenweg(const herleitung::Graph& graph, const Wand& w, const Pruefblatt& blatt,
                  Formelsatz* satz = nullptr);

}  // namespace rippenscheibe
