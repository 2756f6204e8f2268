#pragma once

#include <string_view>

namespace rippenscheibe {

struct Feldzeichen {
    std::string_view zeichen;  // "f_{m,d}": braces hold an index; empty when the field has none
    std::string_view quelle;   // clause that gives the formula
};

// Symbol and source of a field of the record by its printed name.
Feldzeichen feldzeichen(std::string_view name);

}  // namespace rippenscheibe
