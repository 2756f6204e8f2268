#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <random>
#include <string>

#include "files/Dateischreiber.h"

namespace rippenscheibe::inline tests {

// A test with a folder of its own.
class Ordnerprobe : public testing::Test {
  protected:
    Ordnerprobe() {
        std::random_device zufall;
        ordner = std::filesystem::temp_directory_path() /
                 ("rippenscheibe-" + std::to_string(zufall()) + std::to_string(zufall()));
        std::filesystem::create_directory(ordner);
    }
    ~Ordnerprobe() override { std::filesystem::remove_all(ordner); }

    std::string datei(const std::string& name) const { return (ordner / name).string(); }
    std::string schreibe(const std::string& name, const std::string& bytes) const {
        EXPECT_FALSE(schreibeDauerhaft(ordner / name, bytes));
        return datei(name);
    }
    static std::string inhalt(const std::filesystem::path& name) { return liesDatei(name).bytes; }
    static std::size_t dateienIn(const std::filesystem::path& name) {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(name), {}));
    }

    std::filesystem::path ordner;
};

}  // namespace rippenscheibe::inline tests
