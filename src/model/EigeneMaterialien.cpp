#include "model/EigeneMaterialien.h"

#include <algorithm>
#include <array>

namespace rippenscheibe {

namespace {

struct Spaltenbereich {
    int bis;  // from the column behind that of the row above
    Wertebereich bereich;
};
// clang-format off
constexpr std::array<Spaltenbereich, 9> spaltenbereiche{{
    { 5, {0.1,   1000}},  // strengths
    { 6, {0.5,    500}},
    { 7, {1,        5}},
    { 9, {0.1, 100000}},  // moduli
    {10, {0.1,  10000}},
    {11, {0,     1000}},
    {19, {0.1,     10}},  // kmod
    {20, {0.1,   1000}},
    {22, {0.1,     10}},
}};
// clang-format on

}  // namespace

Wertebereich materialbereich(int spalte) {
    const auto zeile = std::ranges::lower_bound(spaltenbereiche, spalte, {}, &Spaltenbereich::bis);
    return zeile != spaltenbereiche.end() ? zeile->bereich : Wertebereich{};
}

bool nimmtWeitereAuf(const EigeneMaterialien& tabelle) {
    return tabelle.zeilen.size() < EigeneMaterialien::hoechstens;
}

bool loesche(EigeneMaterialien& tabelle, std::size_t zeile) {
    if (tabelle.zeilen.size() <= 1 || zeile >= tabelle.zeilen.size()) return false;
    tabelle.zeilen.erase(tabelle.zeilen.begin() + static_cast<std::ptrdiff_t>(zeile));
    return true;
}

}  // namespace rippenscheibe
