#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

// Runs a writer of files again and again, each time with another fault in another system call, and looks at
// what is there afterwards.

namespace rippenscheibe::inline tests {

// What stands at the target before.
enum class Lage { leer, alt, mehrfach };  // nothing, an old file, an old file of two names

struct Schreiber {
    std::string name;
    std::string datei;  // in the folder
    // Puts the old file there and whatever else the writer reads.
    std::function<void(const std::filesystem::path& ordner)> richteEin;
    // Writes; false when it tells a fault. Runs in a process of its own.
    std::function<bool(const std::filesystem::path& ordner)> schreibe;
    std::vector<Lage> lagen{Lage::leer, Lage::alt, Lage::mehrfach};
    // Whether two contents count as the same; by default their bytes are.
    std::function<bool(const std::string&, const std::string&)> gleich = std::equal_to<std::string>();
};

// What a fault must not lead to.
enum class Verstoss {
    zerrissen,        // neither the old nor the new file is whole, nor a copy of the old one
    falscherErfolg,   // success is told, and the new file is not there
    aufgegeben,       // an interrupted call ends in a fault
    abgestuerzt,      // the process ends otherwise than by telling what became of it
    liegengeblieben,  // other files lie around after a fault, or after the save that follows a kill
};

struct Protokoll {
    int punkte = 0;
    std::map<Verstoss, std::vector<std::string>> verstoesse;
};

// Tries every call that the writer makes with every kind of fault. `ordner` is made and removed.
void probiere(const Schreiber& schreiber, const std::filesystem::path& ordner, Protokoll& protokoll);

// The folder for safety copies of a trial.
std::filesystem::path kopienordner(const std::filesystem::path& ordner);

// Whether the library is preloaded, without which nothing fails.
bool schaleGeladen();

}  // namespace rippenscheibe::inline tests
