#pragma once

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "cli/Kommandozeile.h"
#include "files/Pfad.h"

// Kinds of options that several commands have. What does not fit is told in German with what is allowed.

namespace rippenscheibe {

// The word of an option and what it stands for.
template <class T>
struct Wort {
    std::string_view wort;
    T wert;
};

constexpr std::array<Wort<char>, 2> dezimalzeichen{{{"komma", ','}, {"punkt", '.'}}};

[[noreturn]] inline void weiseZurueck(const std::string& option, const std::string& wert,
                                      const std::string& erlaubt) {
    throw CLI::ValidationError(option, nichtZulaessig(wert, erlaubt));
}

// An option of which one word is chosen; the words live as long as the program.
template <class T, std::size_t N>
void fuegeWahlHinzu(CLI::App& befehl, const std::string& option, const std::array<Wort<T>, N>& woerter,
                    T& ziel, const std::string& erklaerung) {
    std::string erlaubt;
    for (const Wort<T>& wort : woerter) erlaubt.append(erlaubt.empty() ? "" : "|").append(wort.wort);
    befehl
        .add_option_function<std::string>(
            option,
            [&woerter, &ziel, option, erlaubt](const std::string& wert) {
                const auto treffer = std::find_if(woerter.begin(), woerter.end(),
                                                  [&](const Wort<T>& w) { return w.wort == wert; });
                if (treffer == woerter.end()) weiseZurueck(option, wert, erlaubt);
                ziel = treffer->wert;
            },
            erklaerung)
        ->option_text(erlaubt);
}

// What a number of an option may be, and how that is said.
template <class T>
struct Zahlbereich {
    T von;
    T bis;
    std::string erlaubt;
};

template <class T>
void fuegeZahlHinzu(CLI::App& befehl, const std::string& option, const Zahlbereich<T>& bereich,
                    std::function<void(T)> setze, const std::string& erklaerung) {
    befehl
        .add_option_function<std::string>(
            option,
            [=](const std::string& wert) {
                T zahl{};
                const char* const ende = wert.data() + wert.size();
                const auto [stelle, fehler] = std::from_chars(wert.data(), ende, zahl);
                if (fehler != std::errc{} || stelle != ende || !(zahl >= bereich.von && zahl <= bereich.bis))
                    weiseZurueck(option, wert, bereich.erlaubt);
                setze(zahl);
            },
            erklaerung)
        ->option_text("N");
}

inline CLI::Option* fuegeDateiHinzu(CLI::App& befehl, const std::string& option,
                                    std::optional<std::filesystem::path>& ziel,
                                    const std::string& erklaerung) {
    return befehl
        .add_option_function<std::string>(
            option, [&ziel](const std::string& wert) { ziel = pfadAus(wert); }, erklaerung)
        ->option_text("DATEI");
}

}  // namespace rippenscheibe
