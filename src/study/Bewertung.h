#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "run/FrischerLauf.h"
#include "run/Luecken.h"
#include "run/Urteil.h"
#include "run/Zuweisen.h"
#include "study/Felder.h"

// Whether a wall passes, as every search, sweep and table means it: first and second fresh run without
// finding and with all proofs met, for both signs of Fvk and for each load case. The result depends on the
// inputs alone.

namespace rippenscheibe {

// The loads of one case, put over those of the position; what is not named stays.
struct Lastfallzeile {
    std::string name;
    std::vector<std::pair<int, Feldwert>> werte;  // inputs by their place
};

struct Bewertungsregel {
    bool beideRichtungen = true;
    bool mitLuecken = false;  // walls with gaps pass too, marked
    double hoechstens = 1;    // the largest utilisation that passes, at most 1
    std::vector<Lastfallzeile> lastfaelle;
};

enum class Ausgang : std::uint8_t { besteht, hinweis, ueberschritten, luecke };

struct Bewertung {
    Ausgang ausgang = Ausgang::besteht;
    // The largest utilisation of all runs and the proof, direction, case and run it belongs to. With a
    // finding there is none.
    double maxEta = 0;
    std::optional<std::string_view> massgebend;
    bool nachLinks = false;   // the governing run had Fvk < 0
    int lastfall = -1;        // index of the governing case, -1 without cases
    Lueckenmenge luecken;     // of all runs
    Lueckenmenge ausschluss;  // the gaps that drop the wall
    std::string hinweis;      // the first finding
};

// The governing proof, behind the name of its load case where there are cases. Empty without one.
std::string massgebendText(const Bewertung& bewertung, const Bewertungsregel& regel);
// What a wall fails at: the proof, or the finding or gap that drops it. Empty when it passes.
std::string scheitertAn(const Bewertung& bewertung, const Bewertungsregel& regel);

// Holds one record and computes walls on it, one after another; each thread needs its own. Allocates nothing
// for a wall without findings.
class Pruefstand {
  public:
    // The inputs of the template as they were read, before `zuweisen`.
    Pruefstand(const Eingaben& vorlage, const EigeneMaterialien& materialien, Bewertungsregel regel = {});

    Pruefstand(const Pruefstand&) = delete;
    Pruefstand& operator=(const Pruefstand&) = delete;

    // Back to the inputs of the template; then fields can be set.
    void beginne();
    Feldzugriff& felder() { return felder_; }
    const Feldzugriff& felder() const { return felder_; }
    const Wand& wand() const { return wand_; }

    // Judges the inputs as they stand now and leaves them so; results are those of the last run.
    Bewertung bewerte();
    // Whether `bewerte` would pass them; ends with the first run that does not.
    bool besteht();
    // The gaps of `bewertung` as sentences, each once. Costs the runs again where there are gaps.
    std::vector<std::string> lueckensaetze(const Bewertung& bewertung);

    // The sections of the proofs, each with its largest value of all directions and cases. Empty where
    // findings stop one of them.
    std::vector<Abschnittsurteil> abschnitte();

    // Self-weight of the wall in kN without insulation, and gkWand set to it.
    double gewicht();
    void setzeEigengewicht();

    // One run of the inputs as they stand, in the direction and case that govern `bewertung`. Leaves the
    // record computed.
    void rechneMassgebend(const Bewertung& bewertung);

  private:
    template <class Besucher>
    void jederFall(Besucher besucher);
    void setzeFall(int lastfall, bool gewendet);
    Laufergebnis starteLauf(const Grundmasse& felder, int lauf);
    Bewertung bewerteBis(bool zumEnde);
    bool bewerteFall(Bewertung& bewertung, int lastfall);
    bool bestehtNachRechts(int lastfall);

    Eingaben vorlage_;
    Eingaben stand_;  // the inputs being judged
    Wand wand_;
    Feldzugriff felder_;
    Bewertungsregel regel_;
};

}  // namespace rippenscheibe
