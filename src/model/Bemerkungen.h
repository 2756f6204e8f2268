#pragma once

#include <string>
#include <string_view>

#include "model/Wand.h"

// The remarks of a position as texts to edit. Lines end with CR LF.

namespace rippenscheibe {

// The lines of a text without their line ends. The last line needs no line end; a text whose first line is
// empty has no lines.
Texte zeilenAus(std::string_view text);
// The lines joined with CR LF.
std::string verbunden(const Texte& zeilen);
// Whether a text may stand as preliminary remarks: at most three lines.
bool passtInVorbemerkungen(std::string_view text);

// The remarks of the record as texts, empty lines at their end left out, and back. Closing remarks without
// a line leave 200 empty rows and the count 0.
std::string vorbemerkungstext(const Wand& w);
std::string zusatzbemerkungstext(const Wand& w);
void setzeVorbemerkungen(Wand& w, std::string_view text);
void setzeZusatzbemerkungen(Wand& w, std::string_view text);

}  // namespace rippenscheibe
