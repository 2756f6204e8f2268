#include "model/Kataloge.h"

#include <array>

#include "model/Feldangaben.h"
#include "model/Katalognamen.h"

namespace rippenscheibe {

namespace {

constexpr std::array<std::string_view, 13> holzarten{
    "Nadelholz C16",          "Nadelholz C24",          "Nadelholz C30",          "Nadelholz C35",
    "Nadelholz C40",          "Brettschichtholz GL24h", "Brettschichtholz GL24c", "Brettschichtholz GL28h",
    "Brettschichtholz GL28c", "Brettschichtholz GL32h", "Brettschichtholz GL32c", "Brettschichtholz GL36h",
    "Brettschichtholz GL36c",
};

constexpr std::array<std::string_view, 9> vmKlassen{"1A", "1B", "1C", "2A", "2B", "2C", "3A", "3B", "3C"};

constexpr std::array<std::string_view, 5> kledNamen{"ständig", "lang", "mittel", "kurz", "sehr kurz"};

// clang-format off
// Nail sizes in mm. Meant: the head of the 3.4 mm nails (7.7) is larger than that of the 3.8 mm nails (7.6).
constexpr std::array<Nageltyp, 31> vmTypen{{
    {"2,0x45",  2.0,  45.0,  5.0},
    {"2,2x50",  2.2,  50.0,  5.5},
    {"2,4x50",  2.4,  50.0,  5.9},
    {"2,7x50",  2.7,  50.0,  6.1},
    {"2,7x60",  2.7,  60.0,  6.1},
    {"3,0x60",  3.0,  60.0,  6.8},
    {"3,0x70",  3.0,  70.0,  6.8},
    {"3,0x80",  3.0,  80.0,  6.8},
    {"3,4x60",  3.4,  60.0,  7.7},
    {"3,4x70",  3.4,  70.0,  7.7},
    {"3,4x80",  3.4,  80.0,  7.7},
    {"3,4x90",  3.4,  90.0,  7.7},
    {"3,8x70",  3.8,  70.0,  7.6},
    {"3,8x80",  3.8,  80.0,  7.6},
    {"3,8x90",  3.8,  90.0,  7.6},
    {"3,8x100", 3.8, 100.0,  7.6},
    {"4,2x90",  4.2,  90.0,  8.4},
    {"4,2x100", 4.2, 100.0,  8.4},
    {"4,2x110", 4.2, 110.0,  8.4},
    {"4,6x90",  4.6,  90.0,  9.2},
    {"4,6x100", 4.6, 100.0,  9.2},
    {"4,6x120", 4.6, 120.0,  9.2},
    {"5,0x100", 5.0, 100.0, 10.0},
    {"5,0x120", 5.0, 120.0, 10.0},
    {"5,0x140", 5.0, 140.0, 10.0},
    {"5,5x140", 5.5, 140.0, 11.0},
    {"6,0x150", 6.0, 150.0, 12.0},
    {"6,0x160", 6.0, 160.0, 12.0},
    {"6,0x180", 6.0, 180.0, 12.0},
    {"7,0x200", 7.0, 200.0, 14.0},
    {"8,0x280", 8.0, 280.0, 16.0},
}};
// clang-format on

constexpr auto nagelnamen = namenAus(vmTypen);

constexpr std::string_view lastfaelle[] = {"horizontal", "vertikal", "horizontal und vertikal"};
constexpr std::string_view ausnagelungen[] = {"voll ausgenagelt", "teilweise ausgenagelt"};
constexpr std::string_view verfahren[] = {"vereinfacht", "genau"};
constexpr std::string_view winkel[] = {"mindestens 30°", "kleiner als 30°"};
constexpr std::string_view verteilungen[] = {"nur Rippen", "Rippen und Beplankung"};
constexpr std::string_view lagesicherungen[] = {"Druckkraft über der Randrippe", "Summe der Momente"};

template <const auto& worte>
std::span<const std::string_view> feste() {
    return worte;
}

struct Wahl {
    std::string_view eingabe;  // without its side
    std::span<const std::string_view> (*katalog)();
};

constexpr Wahl wahlen[] = {
    {"Holzart", Holzarten},
    {"Material", Plattenmaterialien},
    {"VMArt", VMArten},
    {"VMKlasse", VMKlassen},
    {"VMTyp", Nagelnamen},
    {"Ankertyp", Ankernamen},
    {"Teilausnagelung", feste<ausnagelungen>},
    {"Kammnagel", Kammnagelnamen},
    {"Lastfall", feste<lastfaelle>},
    {"KLED", KLEDNamen},
    {"GenauesVerfahren", feste<verfahren>},
    {"KlammerWinkelOption", feste<winkel>},
    {"VertikallastVerteilung", feste<verteilungen>},
    {"LagesicherungVerfahren", feste<lagesicherungen>},
};

}  // namespace

std::span<const std::string_view> Holzarten() { return holzarten; }
std::span<const std::string_view> VMKlassen() { return vmKlassen; }
std::span<const std::string_view> KLEDNamen() { return kledNamen; }
std::span<const Nageltyp> VMTypen() { return vmTypen; }
std::span<const std::string_view> Nagelnamen() { return nagelnamen; }

std::string_view eintrag(std::span<const std::string_view> katalog, int index) {
    if (index < 1 || index > static_cast<int>(katalog.size())) return {};
    return katalog[static_cast<std::size_t>(index) - 1];
}

std::string_view nagelname(int index) { return eintrag(nagelnamen, index); }

std::span<const std::string_view> katalog(std::string_view eingabe) {
    for (const Wahl& wahl : wahlen)
        if (wahl.eingabe == ohneSeite(eingabe)) return wahl.katalog();
    return {};
}

std::string_view katalogwort(std::string_view eingabe, int zahl) { return eintrag(katalog(eingabe), zahl); }

}  // namespace rippenscheibe
