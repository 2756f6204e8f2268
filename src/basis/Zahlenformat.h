#pragma once

#include <string>
#include <string_view>

namespace rippenscheibe {

// A number as it is shown to the user: the value to 15 significant digits, then rounded half away from
// zero to the places of the mask. Masks are "0", "0.0", "0.00" and so on: the zeros behind the point are
// the decimal places, always printed. A negative value that rounds to 0 prints without a minus. There is
// no thousands mark. A single-precision value is passed widened. Precondition: `wert` is finite.
std::string formatiere(std::string_view maske, double wert, char dezimalzeichen);

}  // namespace rippenscheibe
