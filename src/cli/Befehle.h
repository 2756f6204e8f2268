#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string_view>

#include "cli/Kommandozeile.h"

namespace rippenscheibe {

// Where the commands write: reports and data, and messages for the user (UTF-8).
struct Ausgaben {
    std::function<void(std::string_view)> standard;
    std::function<void(std::string_view)> meldungen;
    // The streams of a filter: bytes of the standard input (0 at its end), and output that is handed on at
    // once (false when nobody reads it any more).
    std::function<std::size_t(char*, std::size_t)> lies{};
    std::function<bool(std::string_view)> strom{};
    // Whether the user asked a long computation to end, and how far it is; empty where nobody watches.
    std::function<bool()> abgebrochen{};
    std::function<void(std::string_view)> fortschritt{};
};

// Carries a command out. `programmordner` is where the own materials lie when the command names none.
Rueckgabe fuehreAus(const Auftrag& auftrag, const std::filesystem::path& programmordner,
                    const Ausgaben& ausgaben);

}  // namespace rippenscheibe
