#include "model/VMArten.h"

#include <array>

namespace rippenscheibe {

namespace {

constexpr std::array<std::string_view, static_cast<std::size_t>(Art::klammernDin18182)> vmArten{
    "Nägel",
    "Sondernägel",
    "Klammern",
    "Schrauben DIN 7997",
    "Schrauben mit Zulassung",
    "Schnellbauschrauben DIN 18182-2",
    "Nägel DIN 18182-2",
    "Klammern DIN 18182-2",
};

constexpr std::array<double, vmArten.size()> fuk{600, 600, 800, 600, 0, 400, 600, 950};

}  // namespace

std::span<const std::string_view> VMArten() { return vmArten; }

double fukDerArt(Art a) {
    const int nummer = static_cast<int>(a);
    return nummer >= 1 && nummer <= static_cast<int>(fuk.size()) ? fuk[static_cast<std::size_t>(nummer) - 1]
                                                                 : 0;
}

}  // namespace rippenscheibe
