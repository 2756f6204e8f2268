#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "cli/Kommandozeile.h"

namespace rippenscheibe {

// Where the commands write: reports and data, and messages for the user (UTF-8).
struct Ausgaben {
    std::function<void(std::string_view)> standard;
    std::function<void(std::string_view)> meldungen;
};

// Carries a command out. `programmordner` is where the own materials lie when the command names none.
Rueckgabe fuehreAus(const Auftrag& auftrag, const std::filesystem::path& programmordner,
                    const Ausgaben& ausgaben);

}  // namespace rippenscheibe
