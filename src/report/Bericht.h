#pragma once

#include <span>
#include <string_view>

#include "model/Wand.h"
#include "report/Zeile.h"

namespace rippenscheibe {

// The three fashions of the report: the result view, the long printout ("ausführlicher Ausdruck") and
// the short one ("Kurzausdruck", without the lines of the single ribs).
enum class Form { ansicht, lang, kurz };

// The switches of the print dialog. The result view has none and ignores all but the decimal mark.
struct Berichtsoptionen {
    bool Systemgrafik = true;        // system sketch under the title block
    bool MitBemerkungen = true;      // remarks at the start and at the end
    bool MitRandbedingungen = true;  // section 7
    char dezimalzeichen = ',';       // of the numbers; fixed words as " <= 1,00" keep their comma
};

// The numbered calculation report of a wall. It computes nothing but unit conversions and comparisons;
// all values come from the last run. A line with a value that has failed (a rib above 200, a missing
// row of the own materials) falls out, the cursor moves on.
Bericht bericht(const Wand& w, Form form, const Berichtsoptionen& optionen = {});

// The lines of section 7, as they break on paper.
std::span<const std::string_view> randbedingungstexte();

}  // namespace rippenscheibe
