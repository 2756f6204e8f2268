#pragma once

#include <span>
#include <string_view>

#include "basis/Herkunft.h"

namespace rippenscheibe {

enum class Ankergruppe { HD, HTT, HD2P, HD2PSG, frei };

// One row of the anchors.
struct Anker {
    std::string_view name;
    Ankergruppe gruppe;
    int naegelHoechstens;  // 0 where the number is fixed or not used
    Tabellenwert deckel;   // kN, the cap of the anchor itself; HTT is limited by its nails instead
    Tabellenwert beton;    // the force in the concrete anchor as a multiple of the tension
};

inline constexpr int freierAnker = 13;  // its name and capacity are inputs
// The nails of HD2PSG, driven fully or in part.
inline constexpr int naegelVoll = 16;
inline constexpr int naegelTeilweise = 8;

// The anchor of a number, 1 to 13; nullptr outside.
const Anker* anker(int typ);
std::span<const std::string_view> Ankernamen();  // 13

// One ring-shank nail of the anchors.
struct Kammnagel {
    std::string_view name;
    std::string_view gedruckt;  // as the report names it
    Tabellenwert f;             // kN per nail
    Tabellenwert fHTT;          // kN per nail in HTT
    Tabellenwert deckelHTT;     // kN, cap of HTT with these nails
};

std::span<const Kammnagel> Kammnaegel();  // 4
std::span<const std::string_view> Kammnagelnamen();

}  // namespace rippenscheibe
