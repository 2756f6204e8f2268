#pragma once

#include <string>

#include "report/Fliesstext.h"

namespace rippenscheibe {

// The running text without styles, UTF-8; every line ends with one line feed and keeps its closing
// blanks.
std::string alsText(const Fliesstext& text);

}  // namespace rippenscheibe
