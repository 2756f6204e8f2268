#pragma once

#include <cstdio>
#include <string_view>

// What both programs set up before anything else, and how they write to their standard streams.

namespace rippenscheibe {

// Standard output takes bytes as they are, a file beyond the user's limit is a fault to report, and a program
// that runs out of memory ends with one sentence and the code of a file fault.
void bereiteProzessVor();

// Text of foreign origin may hold control characters: they reach a file or a pipe, but no terminal.
void schreibe(std::FILE* strom, std::string_view text);

}  // namespace rippenscheibe
