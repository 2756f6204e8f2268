#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

#include "model/Wand.h"
#include "run/Zuweisen.h"

// Undo and redo of what is entered. Knows nothing of windows.

namespace rippenscheibe {

// All that is entered: the inputs of the record and the three fields of the main window, from which
// `zuweisen` forms the lengths of the record.
struct Eingabestand {
    Eingaben eingaben;
    Grundmasse felder;
};

// Whether two inputs are the same to the last bit.
bool gleich(const Eingabestand& a, const Eingabestand& b);

// The steps of a position. A step is a visit, of a dialog or of a field, that changed something; what a run
// itself enters (RdAnker) between two visits belongs to the later one.
class Schrittfolge {
  public:
    static constexpr std::size_t hoechstens = 500;  // steps; the oldest are forgotten

    // A visit begins or ends. Visits may be nested: what the outer one changed before is a step of its own.
    void beginne(const Eingabestand& jetzt, std::string name);
    void beende(const Eingabestand& jetzt);

    // Takes the last step back or does it again: `stand` becomes what is to be shown. False when there is
    // none.
    bool rueckgaengig(Eingabestand& stand);
    bool wiederhole(Eingabestand& stand);

    // Another position begins with `jetzt`.
    void leere(const Eingabestand& jetzt);

    // The name of the step that would be taken back or done again; nullptr when there is none.
    const std::string* letzter() const { return zurueck_.empty() ? nullptr : &zurueck_.back().name; }
    const std::string* naechster() const { return vor_.empty() ? nullptr : &vor_.back().name; }

  private:
    struct Schritt {
        std::string name;
        Eingabestand stand;  // before the step in `zurueck_` and in an open visit, behind it in `vor_`
    };

    void schliesse(Schritt& besuch, const Eingabestand& jetzt);
    bool tausche(std::deque<Schritt>& von, std::deque<Schritt>& nach, Eingabestand& stand);

    Eingabestand aktuell_;  // behind the last step
    std::deque<Schritt> zurueck_;
    std::deque<Schritt> vor_;
    std::vector<Schritt> besuche_;  // open ones, the inner last
};

}  // namespace rippenscheibe
