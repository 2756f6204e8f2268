#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Wand.h"

// Gaps: what the loads ask for and the run did not prove. None of them is a fault of the run; whoever
// relies on its verdict has to know them, a search above all. Read from the record after a run.

namespace rippenscheibe {

enum class Lueckenart {
    verankerung,      // a rib pulls and the proof of the anchorage is switched off
    schwelleLinks,    // Fv < 0 presses the left edge rib, whose sill pressure is not computed
    anteile,          // exact distribution: shares of ribs and sheathing outside 0 to 1
    lastverlust,      // exact distribution: its passes lose vertical load
    verschiebung,     // staples without slip modulus: their share of the deformation is missing
    schubmodul,       // sheathing without shear modulus: its share of the deformation is missing
    biegefestigkeit,  // wind across sheathing 1 without bending strength
    querdruck,        // fc,90,d = 0 under sill pressure
    laengszug,        // ft,0,d = 0 under tension
};
constexpr int anzahlLueckenarten = 9;

// A set of kinds.
class Lueckenmenge {
  public:
    void nimmAuf(Lueckenart art) { bits_ |= bit(art); }
    void nimmAus(Lueckenart art) { bits_ &= ~bit(art); }
    void vereinige(Lueckenmenge andere) { bits_ |= andere.bits_; }
    bool enthaelt(Lueckenart art) const { return (bits_ & bit(art)) != 0; }
    bool leer() const { return bits_ == 0; }
    std::vector<Lueckenart> arten() const;
    bool operator==(const Lueckenmenge&) const = default;

  private:
    static unsigned bit(Lueckenart art) { return 1U << static_cast<unsigned>(art); }
    unsigned bits_ = 0;
};

// The gaps of a run that was not stopped by findings. Allocates nothing.
Lueckenmenge luecken(const Wand& w);

// A gap of this wall as a German sentence without its full stop.
std::string lueckensatz(const Wand& w, Lueckenart art);
// All gaps of the wall as sentences.
std::vector<std::string> lueckensaetze(const Wand& w);

// Which method or option brings the gap, for whoever finds nothing without it.
std::string_view lueckenursache(Lueckenart art);
// The section 5.x whose proof is open, 0 when none is alone.
int lueckenabschnitt(Lueckenart art);

}  // namespace rippenscheibe
