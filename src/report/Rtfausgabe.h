#pragma once

#include <string>

#include "report/Fliesstext.h"

namespace rippenscheibe {

// The running text as a rich-text file: fonts, size, bold, italic, underline, colour, PNG pictures.
// Pure ASCII; characters beyond it are written as \u, bytes that are no UTF-8 as U+FFFD, control
// characters are left out.
std::string alsRtf(const Fliesstext& text);

}  // namespace rippenscheibe
