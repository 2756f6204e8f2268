#pragma once

#include <filesystem>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

#include "files/Dateischreiber.h"
#include "files/Zeichensatz.h"

// Text files of the program: bytes in their character set, content as values.

namespace rippenscheibe {

// What was read from a file. A missing file stands for an empty one; from one that is there but cannot be
// read nothing is taken, and it must not be overwritten with what the program then holds.
template <class T>
struct Gelesen {
    Dateilage lage = Dateilage::vorhanden;
    std::optional<Dateifehler> fehler;  // missing or unreadable
    T wert{};

    // The fault of a file that is there but cannot be read.
    std::optional<Dateifehler> stoerung() const {
        return lage == Dateilage::unlesbar ? fehler : std::nullopt;
    }
};

// `aus` makes the value of the text (UTF-8), which may be empty.
template <class Aus>
auto liesTextdatei(const std::filesystem::path& datei, Aus&& aus)
    -> Gelesen<std::invoke_result_t<Aus, std::string_view>> {
    Dateiinhalt inhalt = liesDatei(datei);
    if (inhalt.lage == Dateilage::unlesbar) return {inhalt.lage, std::move(inhalt.fehler), {}};
    return {inhalt.lage, std::move(inhalt.fehler), aus(dekodiert(inhalt.bytes))};
}

[[nodiscard]] inline std::optional<Dateifehler> schreibeTextdatei(const std::filesystem::path& datei,
                                                                  std::string_view text) {
    return schreibeDauerhaft(datei, kodiert(text));
}

}  // namespace rippenscheibe
