#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace rippenscheibe {

// The catalogue of usual fasteners. One row is what a click takes over: nominal diameter, nominal
// length and head diameter in mm, in single precision.
struct VMKatalogzeile {
    float d;
    float ln;
    float dk;
};

// The groups of the catalogue in their order on the window, each with its rows from 1; the first
// group has no rows, its dimensions are those of the nail list.
struct VMKataloggruppe {
    std::string_view name;
    std::string_view hinweis;
    std::string_view zusatz;  // a second note, empty when there is none
    int ersteZeile;
    int letzteZeile;  // below ersteZeile when the group is empty
};

std::span<const VMKatalogzeile> VMKatalog();          // 71
std::span<const VMKataloggruppe> VMKataloggruppen();  // 8

}  // namespace rippenscheibe
