#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

// What the targets share. A target takes any bytes as the content of a file.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t laenge);

namespace rippenscheibe::fuzz {

inline std::string_view eingang(const std::uint8_t* bytes, std::size_t laenge) {
    return {reinterpret_cast<const char*>(bytes), laenge};
}

inline void erwarte(bool richtig) {
    if (!richtig) std::abort();
}

// What was read and written once is a fixed point: reading and writing it again gives the same text. Only a
// quotation mark that came into a text, which the format does not escape, may be lost.
template <class Zurueck>
void erwarteFestpunkt(std::string_view text, Zurueck&& zurueck) {
    const auto zeichen = [](const std::string& t) { return std::count(t.begin(), t.end(), '"'); };
    const std::string einmal = zurueck(text);
    const std::string zweimal = zurueck(einmal);
    erwarte(zweimal == einmal || zeichen(zweimal) < zeichen(einmal));
}

}  // namespace rippenscheibe::fuzz
