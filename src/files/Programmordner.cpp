#include "files/Programmordner.h"

#include "files/Plattform.h"

namespace rippenscheibe {

namespace fs = std::filesystem;

fs::path programmordner() {
    fs::path daneben = plattform::programmdatei().parent_path();
    const bool installiert = daneben.filename() == "bin";
    if (!daneben.empty() && !installiert && plattform::istBeschreibbar(daneben)) return daneben;
    const fs::path daten = plattform::datenordner();
    return daten.empty() ? daneben : daten / "rippenscheibe";
}

}  // namespace rippenscheibe
