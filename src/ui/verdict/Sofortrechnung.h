#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "run/Urteil.h"
#include "run/Zuweisen.h"
#include "study/Projekt.h"

// What a start button would say of a position now, without pressing it.

namespace rippenscheibe {

struct Sofortergebnis {
    std::vector<Hinweis> hinweise;  // there is no run then
    Urteil urteil;
    int ueberschritten = 0;                    // proofs above 1
    std::vector<Abschnittsurteil> abschnitte;  // empty without a run
    QStringList luecken;                       // demands without a proof, as sentences
    // What a run after program start says, where it says something else.
    std::optional<QString> frisch;
};

// Check and run on a copy of the record, with the results that stand in it; beside it a run from results as
// after program start. The record is not touched.
Sofortergebnis rechneSofort(const Wand& w, const Grundmasse& felder);
// What the table of load cases beside the position says of the wall as it is; nothing without cases.
std::optional<Fallurteil> rechneLastfaelle(const Wand& w, const std::vector<Lastfallzeile>& faelle);

// A run of this record from results as after program start; they stand in it afterwards.
Sofortergebnis rechneFrischFuer(Wand& w, const Grundmasse& felder);

// "✓ Alle Nachweise erfüllt", "✗ 2 Nachweise überschritten", "! 3 Hinweise, keine Berechnung".
QString urteilstext(const Sofortergebnis& ergebnis);
// "maßgebend 0,61 · 5.1 Scheibenschub parallel"; empty without a run.
QString massgebendtext(const Urteil& urteil);

}  // namespace rippenscheibe
