#include "files/Programmordner.h"

#include <unistd.h>

#include <cstdlib>
#include <system_error>

namespace rippenscheibe {

namespace {

namespace fs = std::filesystem;

fs::path datenordner() {
    const char* xdg = std::getenv("XDG_DATA_HOME");  // NOLINT(concurrency-mt-unsafe)
    if (xdg != nullptr && *xdg == '/') return fs::path(xdg) / "rippenscheibe";
    const char* home = std::getenv("HOME");  // NOLINT(concurrency-mt-unsafe)
    if (home != nullptr && *home == '/') return fs::path(home) / ".local/share/rippenscheibe";
    return {};
}

}  // namespace

fs::path programmordner() {
    std::error_code fehler;
    const fs::path daneben = fs::read_symlink("/proc/self/exe", fehler).parent_path();
    const bool installiert = daneben.filename() == "bin";
    if (!fehler && !installiert && access(daneben.c_str(), W_OK) == 0) return daneben;
    const fs::path daten = datenordner();
    return daten.empty() ? daneben : daten;
}

}  // namespace rippenscheibe
