#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "run/Berechnungslauf.h"

// What a run says about the wall: the value that decides, the proof it belongs to, and one value a section
// of the proofs. Read from the record as it stands after the summary.

namespace rippenscheibe {

// A proof as the verdict counts it: met up to 1. The name is that of the report.
struct Nachweiswert {
    std::string_view name;
    double eta;
};

constexpr std::size_t anzahlNachweise = 11;
// All proofs in the order of the report. The anchorage counts 0 while its proof is switched off.
std::array<Nachweiswert, anzahlNachweise> nachweiswerte(const Wand& w);
// How many of them are not met.
int ueberschritteneNachweise(const Wand& w);

struct Urteil {
    // The largest value of all proofs, unrounded, at least 0: above 1 exactly when not all proofs are met.
    // Nothing when findings stopped the run.
    std::optional<double> maxEta;
    // The first proof that, rounded to 4 places, has the largest value and lies on its side of 1. Nothing
    // when `maxEta` is 0.
    std::optional<std::string_view> massgebend;

    bool erfuellt() const { return maxEta && *maxEta <= 1; }
};

Urteil urteil(const Wand& w, Laufergebnis ergebnis = Laufergebnis::gerechnet);

enum class Nachweisstand {
    gefuehrt,
    keineBeanspruchung,  // nothing to prove
    offen,               // the loads ask for a proof that was not made, or not wholly
};

// One section of the proofs, for a bar.
struct Abschnittsurteil {
    std::string_view name;  // "5.2 Schwellenpressung"
    double groesster;       // the largest of its values
    Nachweisstand stand;
    std::string luecke;       // what is open: a German sentence; empty otherwise
    bool entfaelltImBericht;  // the report says "entfällt", and yet the value counts
};

// All eight sections in the order of the report.
std::vector<Abschnittsurteil> abschnittsurteile(const Wand& w);

}  // namespace rippenscheibe
