#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// UTF-8, the form of all text inside the program.

namespace rippenscheibe {

struct Zeichen {
    char32_t zeichen;
    std::size_t laenge;  // bytes
};

// The character at the front of a text that is not empty. Nothing when its first byte begins no well-formed
// sequence; overlong forms, surrogates and cut-off sequences are none.
std::optional<Zeichen> erstesZeichen(std::string_view text);

// How many characters a text has; of malformed bytes those that can begin one count.
std::size_t zeichenzahl(std::string_view text);

void anfuegenUtf8(std::string& text, char32_t zeichen);

// The text as a terminal may get it: line ends and tabs stay, any other control character, which could
// command the terminal, and any byte that is no UTF-8 become a question mark.
std::string ohneSteuerzeichen(std::string_view text);

}  // namespace rippenscheibe
