#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/Wand.h"

// The description of single inputs, found by name or by the field itself.

namespace rippenscheibe {

// The description of the input with this printed name, "av1"; nothing for any other name.
std::optional<Feldangabe> eingabeangabe(std::string_view name);

// The description of a field of `w` by its address; nothing for what is no input of this wall.
std::optional<Feldangabe> eingabeangabe(const Wand& w, const void* feld);

// "av" of "av1" and "av2"; the name itself of an input of the whole wall.
std::string_view ohneSeite(std::string_view name);
// Whose side such a name means: "av2" side 2, any other side 1.
Seite seiteAus(std::string_view name);

// "20 bis 200 mm", "mindestens 1", or "" for an input without limits. `teiler` turns the range into another
// unit: 10 and "cm" for a field in mm.
std::string bereichstext(const Wertebereich& bereich, std::string_view einheit, char dezimalzeichen = ',',
                         double teiler = 1);

}  // namespace rippenscheibe
