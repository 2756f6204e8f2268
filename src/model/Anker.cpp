#include "model/Anker.h"

#include <array>

#include "model/Katalognamen.h"

namespace rippenscheibe {

namespace {

// clang-format off
constexpr std::array<Anker, freierAnker> ankertabelle{{
    // name                                                   group                 nails deckel beton
    {"SIMPSON / Strong-Tie© Zuganker, HD340-M12G-B",         Ankergruppe::HD,       25, 17,   1.19},
    {"SIMPSON / Strong-Tie© Zuganker, HD400-M16G-B",         Ankergruppe::HD,       30, 25.5, 1.31},
    {"SIMPSON / Strong-Tie© Zuganker, HD420-M16G-B",         Ankergruppe::HD,       53, 25.5, 1.22},
    {"SIMPSON / Strong-Tie© Zuganker, HD420-M20G-B",         Ankergruppe::HD,       53, 25.5, 1.78},
    {"SIMPSON / Strong-Tie© Zuganker, HD480-M20G-B",         Ankergruppe::HD,       60, 31.9, 1.47},
    {"SIMPSON / Strong-Tie© Zuganker HTT5",                  Ankergruppe::HTT,      18,  0,   1},
    {"SIMPSON / Strong-Tie© Zuganker HTT22",                 Ankergruppe::HTT,      18,  0,   1},
    {"SIMPSON / Strong-Tie© Zuganker 2-teilig, HD2P60G-B",   Ankergruppe::HD2P,     40, 19.2, 1.4},
    {"SIMPSON / Strong-Tie© Zuganker 2-teilig, HD2P40G",     Ankergruppe::HD2P,     11, 12.8, 1.55},
    {"SIMPSON / Strong-Tie© Zuganker 2-teilig, HD2PL40G",    Ankergruppe::HD2P,     11, 12.8, 1.28},
    {"SIMPSON / Strong-Tie© Zuganker 2-teilig, HD2PSG",      Ankergruppe::HD2PSG,    0, 12.8, 1.55},
    {"SIMPSON / Strong-Tie© Zuganker 2-teilig, HD2PLSG",     Ankergruppe::HD2PSG,    0, 12.8, 1.28},
    {"frei gewählter Anker: ",                               Ankergruppe::frei,      0,  0,   1},
}};

constexpr std::array<Kammnagel, 4> kammnaegel{{
    {"4,0x40", "CNA - Kammnägel 4.0x40", 1.83, 1.84, 18.52},
    {"4,0x50", "CNA - Kammnägel 4.0x50", 2.22, 2.22, 24.7},
    {"4,0x60", "CNA - Kammnägel 4.0x60", 2.36, 2.36, 30.87},
    {"4,0x75", "CNA - Kammnägel 4.0x75", 2.5,  2.36, 30.87},
}};
// clang-format on

[[maybe_unused]] const std::array<Tabellenangabe, 2> tabellen{
    {{ankertabelle, "Zuganker"}, {kammnaegel, "CNA-Kammnägel"}}};

constexpr auto ankernamen = namenAus(ankertabelle);
constexpr auto kammnagelnamen = namenAus(kammnaegel);

}  // namespace

const Anker* anker(int typ) {
    return typ >= 1 && typ <= freierAnker ? &ankertabelle[static_cast<std::size_t>(typ) - 1] : nullptr;
}

std::span<const std::string_view> Ankernamen() { return ankernamen; }
std::span<const Kammnagel> Kammnaegel() { return kammnaegel; }
std::span<const std::string_view> Kammnagelnamen() { return kammnagelnamen; }

}  // namespace rippenscheibe
