#include "basis/Zahlenformat.h"

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace rippenscheibe {

namespace {

constexpr int geltendeZiffern = 15;

// The digits of a value without its sign; the decimal mark stands behind the first `vorkomma` digits.
// `vorkomma` is below 1 for values under 0.1.
struct Ziffernfolge {
    std::string ziffern;
    int vorkomma = 0;
};

Ziffernfolge zerlegt(double betrag) {
    std::array<char, 32> text{};
    const auto [ende, fehler] = std::to_chars(text.data(), text.data() + text.size(), betrag,
                                              std::chars_format::scientific, geltendeZiffern - 1);
    assert(fehler == std::errc{});
    const std::string_view alles(text.data(), static_cast<std::size_t>(ende - text.data()));
    const std::size_t e = alles.find('e');
    std::string_view exponent = alles.substr(e + 1);
    if (exponent.front() == '+') exponent.remove_prefix(1);
    Ziffernfolge zahl;
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), zahl.vorkomma);
    zahl.vorkomma += 1;
    for (const char c : alles.substr(0, e)) {
        if (c != '.') zahl.ziffern += c;
    }
    return zahl;
}

// Keeps `behalten` digits and rounds the rest half away from zero.
void runde(Ziffernfolge& zahl, int behalten) {
    if (behalten < 0) {
        zahl.ziffern = "0";
        zahl.vorkomma = 1;
        return;
    }
    const auto laenge = static_cast<std::size_t>(behalten);
    if (laenge >= zahl.ziffern.size()) return;
    const bool aufrunden = zahl.ziffern[laenge] >= '5';
    zahl.ziffern.resize(laenge);
    if (!aufrunden) return;
    std::size_t i = laenge;
    while (i > 0 && zahl.ziffern[i - 1] == '9') zahl.ziffern[--i] = '0';
    if (i > 0) {
        ++zahl.ziffern[i - 1];
    } else {
        zahl.ziffern.insert(zahl.ziffern.begin(), '1');
        ++zahl.vorkomma;
    }
}

}  // namespace

std::string formatiere(std::string_view maske, double wert, char dezimalzeichen) {
    assert(std::isfinite(wert));
    const std::size_t punkt = maske.find('.');
    const int stellen = punkt == std::string_view::npos ? 0 : static_cast<int>(maske.size() - punkt - 1);

    Ziffernfolge zahl = zerlegt(std::fabs(wert));
    runde(zahl, zahl.vorkomma + stellen);
    if (zahl.vorkomma < 1) {
        zahl.ziffern.insert(0, static_cast<std::size_t>(1 - zahl.vorkomma), '0');
        zahl.vorkomma = 1;
    }
    const auto vorkomma = static_cast<std::size_t>(zahl.vorkomma);
    zahl.ziffern.resize(vorkomma + static_cast<std::size_t>(stellen), '0');

    const bool null = zahl.ziffern.find_first_not_of('0') == std::string::npos;
    std::string text = wert < 0.0 && !null ? "-" : "";
    text.append(zahl.ziffern, 0, vorkomma);
    if (stellen > 0) {
        text += dezimalzeichen;
        text.append(zahl.ziffern, vorkomma);
    }
    return text;
}

}  // namespace rippenscheibe
