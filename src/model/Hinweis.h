#pragma once

#include <optional>
#include <string>
#include <vector>

#include "basis/Seite.h"
#include "model/Feldgruppe.h"

namespace rippenscheibe {

// Where the input that a finding names is made: two of the three fields of the main window (a finding on
// the proportions of the wall leads to its length) or one of the input dialogs.
enum class Eingabeort { Wandlaenge, Rippenabstand, Rippen, Beplankung, Verbindungsmittel };

// A finding of the plausibility run.
struct Hinweis {
    std::string text{};
    std::optional<Seite> seite{};  // nothing when it is about the wall
    Eingabeort ort = Eingabeort::Wandlaenge;

    bool operator==(const Hinweis&) const = default;
};

inline Texte texte(const std::vector<Hinweis>& hinweise) {
    Texte alle;
    for (const Hinweis& hinweis : hinweise) alle.push_back(hinweis.text);
    return alle;
}

}  // namespace rippenscheibe
