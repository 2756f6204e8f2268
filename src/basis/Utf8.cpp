#include "basis/Utf8.h"

#include <algorithm>
#include <array>

namespace rippenscheibe {

namespace {

// The number of bytes of the character that begins with this byte; 0 when none does.
constexpr std::size_t zeichenlaenge(unsigned char erstes) {
    if (erstes < 0x80) return 1;
    if (erstes >= 0xC2 && erstes < 0xE0) return 2;
    if (erstes >= 0xE0 && erstes < 0xF0) return 3;
    if (erstes >= 0xF0 && erstes < 0xF5) return 4;
    return 0;
}

bool istSteuerzeichen(char32_t z) { return z < 0x20 || (z >= 0x7F && z < 0xA0); }

}  // namespace

std::optional<Zeichen> erstesZeichen(std::string_view text) {
    constexpr std::array<char32_t, 5> kleinste{0, 0, 0x80, 0x800, 0x10000};
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const std::size_t laenge = zeichenlaenge(byte(0));
    if (laenge == 0 || laenge > text.size()) return std::nullopt;
    char32_t z = laenge == 1 ? byte(0) : byte(0) & (0x7FU >> laenge);
    for (std::size_t i = 1; i < laenge; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) return std::nullopt;
        z = (z << 6U) | (byte(i) & 0x3FU);
    }
    const bool surrogat = z >= 0xD800 && z < 0xE000;
    if (surrogat || z < kleinste[laenge] || z > 0x10FFFF) return std::nullopt;
    return Zeichen{z, laenge};
}

std::size_t zeichenzahl(std::string_view text) {
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

void anfuegenUtf8(std::string& text, char32_t z) {
    const auto folge = [&](unsigned bits) { text += static_cast<char>(0x80U | ((z >> bits) & 0x3FU)); };
    if (z < 0x80) {
        text += static_cast<char>(z);
    } else if (z < 0x800) {
        text += static_cast<char>(0xC0U | (z >> 6U));
        folge(0);
    } else if (z < 0x10000) {
        text += static_cast<char>(0xE0U | (z >> 12U));
        folge(6);
        folge(0);
    } else {
        text += static_cast<char>(0xF0U | (z >> 18U));
        folge(12);
        folge(6);
        folge(0);
    }
}

std::string ohneSteuerzeichen(std::string_view text) {
    std::string rein;
    rein.reserve(text.size());
    while (!text.empty()) {
        const std::optional<Zeichen> z = erstesZeichen(text);
        const std::size_t laenge = z ? z->laenge : 1;
        const bool umbruch = text.front() == '\n' || text.front() == '\t' || text.starts_with("\r\n");
        if (z && (umbruch || !istSteuerzeichen(z->zeichen)))
            rein += text.substr(0, laenge);
        else
            rein += '?';
        text.remove_prefix(laenge);
    }
    return rein;
}

}  // namespace rippenscheibe
