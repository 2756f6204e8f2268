#pragma once

#include <span>
#include <string_view>

namespace rippenscheibe {

// Sheathing materials by their number in Plattenmaterialien. Only a file can hold a number outside of them.
enum class Platte {
    OSB3 = 1,
    OSB4,
    GKB,
    GKBI,
    GKF,
    GKFI,
    gipsfaser,
    P4,
    P5,
    P6,
    P7,
    spanplatteZulassung,
    frei,  // the own material
};

constexpr bool istOsb(Platte p) { return p == Platte::OSB3 || p == Platte::OSB4; }
constexpr bool istGipskarton(Platte p) { return p >= Platte::GKB && p <= Platte::GKFI; }
constexpr bool istGipsfaser(Platte p) { return p == Platte::gipsfaser; }
constexpr bool istGips(Platte p) { return istGipskarton(p) || istGipsfaser(p); }
constexpr bool istSpanplatte(Platte p) { return p >= Platte::P4 && p <= Platte::P7; }
constexpr bool istEigenesMaterial(Platte p) { return p == Platte::frei; }
// Chipboard with and without approval.
constexpr bool istSpanplatteMitZulassung(Platte p) {
    return istSpanplatte(p) || p == Platte::spanplatteZulassung;
}
// Everything behind the gypsum fibre board, numbers above the catalogue too.
constexpr bool istSpanplatteOderWeiter(Platte p) { return p > Platte::gipsfaser; }

std::span<const std::string_view> Plattenmaterialien();  // 13

}  // namespace rippenscheibe
