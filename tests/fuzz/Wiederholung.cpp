#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "fuzz/Eingang.h"

// Runs a target over the files of its folders without a fuzzer: what once was found stays found.
int main(int argc, char** argv) {
    namespace fs = std::filesystem;
    int anzahl = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto& eintrag : fs::directory_iterator(argv[i])) {
            std::ifstream datei(eintrag.path(), std::ios::binary);
            const std::string inhalt{std::istreambuf_iterator<char>(datei), {}};
            // A crash shows in the name that is printed last.
            std::printf("%s\n", eintrag.path().filename().string().c_str());
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(inhalt.data()), inhalt.size());
            ++anzahl;
        }
    }
    std::printf("%d inputs\n", anzahl);
    return anzahl > 0 ? 0 : 1;
}
