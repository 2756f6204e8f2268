#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace rippenscheibe::inline tests {

// Compares with the approved file tests/golden/<name>. With RIPPENSCHEIBE_ERNEUERN in the environment
// the file is written anew and the test fails, so that nobody renews by accident: tools/approve does that,
// and the diff is read.
inline void erwarteGolden(const std::string& name, const std::string& ist) {
    const std::filesystem::path datei = std::filesystem::path(RIPPENSCHEIBE_GOLDEN) / name;
    if (std::getenv("RIPPENSCHEIBE_ERNEUERN") != nullptr) {
        std::ofstream(datei, std::ios::binary) << ist;
        ADD_FAILURE() << name << " was written anew";
        return;
    }
    std::ifstream quelle(datei, std::ios::binary);
    ASSERT_TRUE(quelle) << name << " is not there; tools/approve makes it";
    const std::string soll{std::istreambuf_iterator<char>(quelle), {}};
    if (soll == ist) return;
    const auto [a, b] = std::mismatch(soll.begin(), soll.end(), ist.begin(), ist.end());
    const auto zeile = 1 + std::count(soll.begin(), a, '\n');
    const auto anfang = [](const std::string& text, auto stelle) {
        const auto bis = static_cast<std::size_t>(stelle - text.begin());
        const std::size_t umbruch = bis == 0 ? std::string::npos : text.rfind('\n', bis - 1);
        const std::size_t von = umbruch == std::string::npos ? 0 : umbruch + 1;
        return text.substr(von, text.find('\n', bis) - von);
    };
    ADD_FAILURE() << name << ":" << zeile << "\n  approved: " << anfang(soll, a)
                  << "\n  now:      " << anfang(ist, b);
}

}  // namespace rippenscheibe::inline tests
