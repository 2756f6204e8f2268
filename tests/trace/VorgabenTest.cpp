#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>

namespace rippenscheibe {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> zeilen(const fs::path& datei) {
    std::ifstream strom(datei);
    std::vector<std::string> alle;
    for (std::string zeile; std::getline(strom, zeile);) alle.push_back(zeile);
    return alle;
}

// What is odd in the calculation and meant has a comment that says "meant", and behind it, before the next
// one, the sentence that its step of the derivation shows.
TEST(Vorgaben, WhateverIsOddAndMeantIsSaidInTheDerivation) {
    const std::regex marke(R"(//.*\b[Mm]eant\b(?! for))");
    constexpr std::size_t nah = 16;  // lines
    int marken = 0;
    for (const char* raum : {"materials", "fasteners", "design", "run"}) {
        for (const auto& eintrag : fs::directory_iterator(fs::path(RIPPENSCHEIBE_QUELLEN) / raum)) {
            const std::vector<std::string> text = zeilen(eintrag.path());
            std::size_t offen = text.size();  // the mark that waits for its sentence
            for (std::size_t i = 0; i <= text.size(); ++i) {
                const bool ende = i == text.size();
                const bool neu = !ende && std::regex_search(text[i], marke);
                if (offen < text.size() && (ende || neu || i - offen == nah)) {
                    ADD_FAILURE() << eintrag.path().filename() << ":" << offen + 1 << " " << text[offen];
                    offen = text.size();
                }
                if (neu) {
                    offen = i;
                    ++marken;
                }
                if (!ende && text[i].find("soVorgegeben(") != std::string::npos) offen = text.size();
            }
        }
    }
    EXPECT_GT(marken, 40);
}

}  // namespace
}  // namespace rippenscheibe
