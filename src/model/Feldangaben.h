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

// "20 bis 200 mm", "mindestens 1", or "" for an input without limits. `teiler` turns the range into another
// unit: 10 and "cm" for a field in mm.
std::string bereichstext(const Wertebereich& bereich, std::string_view einheit, char dezimalzeichen = ',',
                         double teiler = 1);

}  // namespace rippenscheibe
