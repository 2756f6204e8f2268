#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report/Zeile.h"

// Running text of styled runs: what the result view shows and what RTF is made from. The view fills it
// again from the edited text, so that the user's changes and pictures are saved too.

namespace rippenscheibe {

struct Textlauf {
    std::string text;  // UTF-8; a line feed inside is a line break within the paragraph
    Schrift schrift;
};

// A picture inside the text: the bytes of a PNG file and its size on paper.
struct Textbild {
    std::string png;
    double breite = 0.0;  // mm
    double hoehe = 0.0;   // mm
};

// A paragraph: its runs, then its pictures.
struct Absatz {
    std::vector<Textlauf> laeufe{};
    std::vector<Textbild> bilder{};
    std::optional<Ausnutzung> ausnutzung{};  // of a proof line
};

using Fliesstext = std::vector<Absatz>;

// The report as running text: one paragraph a line, blank lines and rules included, pictures and all
// that belongs to pages left out.
Fliesstext fliesstext(const Bericht& bericht);

}  // namespace rippenscheibe
