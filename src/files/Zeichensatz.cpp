#include "files/Zeichensatz.h"

#include <array>
#include <cstddef>
#include <optional>

#include "basis/Utf8.h"

namespace rippenscheibe {

namespace {

constexpr std::string_view bytefolgemarke = "\xEF\xBB\xBF";

// Windows-1252, bytes 80 to 9F; 81, 8D, 8F, 90 and 9D are unassigned and stand for themselves. All other
// bytes are the characters of the same number.
// clang-format off
constexpr std::array<char32_t, 32> windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on
static_assert(windows1252.size() == 0xA0 - 0x80);

char32_t zeichen(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? windows1252[byte - 0x80U] : byte;
}

std::optional<char> byte1252(char32_t z) {
    if (z < 0x80 || (z >= 0xA0 && z <= 0xFF)) return static_cast<char>(z);
    for (std::size_t i = 0; i < windows1252.size(); ++i) {
        if (windows1252[i] == z) return static_cast<char>(0x80 + i);
    }
    return std::nullopt;
}

// A byte that is no UTF-8 is read as Windows-1252.
template <class Abnehmer>
void jedesZeichen(std::string_view text, Abnehmer&& abnehmer) {
    while (!text.empty()) {
        const std::optional<Zeichen> eines = erstesZeichen(text);
        abnehmer(eines ? eines->zeichen : zeichen(static_cast<unsigned char>(text.front())));
        text.remove_prefix(eines ? eines->laenge : 1);
    }
}

}  // namespace

std::string dekodiert(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 16);
    if (bytes.starts_with(bytefolgemarke)) {
        jedesZeichen(bytes.substr(bytefolgemarke.size()), [&](char32_t z) { anfuegenUtf8(text, z); });
    } else {
        for (const char c : bytes) anfuegenUtf8(text, zeichen(static_cast<unsigned char>(c)));
    }
    return text;
}

std::string kodiert(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    bool ausserhalb = false;
    jedesZeichen(text, [&](char32_t z) {
        const std::optional<char> byte = byte1252(z);
        ausserhalb = ausserhalb || !byte;
        if (byte) bytes += *byte;
    });
    // A Windows-1252 file must not begin with the bytes that mark UTF-8.
    if (!ausserhalb && !bytes.starts_with(bytefolgemarke)) return bytes;

    bytes = bytefolgemarke;
    jedesZeichen(text, [&](char32_t z) { anfuegenUtf8(bytes, z); });
    return bytes;
}

}  // namespace rippenscheibe
