#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What the program asks of the operating system beyond the standard library. Each platform fulfils it in one
// source file, Plattform_<platform>.cpp. Faults come back as errno numbers, 0 is none; an interrupted call
// is made again.

namespace rippenscheibe::plattform {

// Reads a whole file; EFBIG when it holds more than `hoechstens` bytes.
int lies(const std::filesystem::path& datei, std::size_t hoechstens, std::string& bytes);

// What stands where a file is to be written.
enum class Zielart {
    neu,       // nothing yet
    datei,     // a file of one name
    mehrfach,  // a file with several names (hard links): replacing it would part them
    geraet,    // a device or a pipe
    griff,     // an open file of this process, named as such: /dev/stdout, /dev/fd/63
};
struct Ziel {
    int fehler = 0;  // the target cannot be written; the rest means nothing then
    Zielart art = Zielart::neu;
    std::filesystem::path pfad{};  // behind symbolic links
    int griff = -1;
};
Ziel schreibziel(const std::filesystem::path& datei);

// The outcome of a replacement. `verweigert`: the folder takes no new file or does not give the old one up,
// while the file itself may be written.
struct Ersetzung {
    int fehler = 0;
    bool verweigert = false;
};
// Puts a new file in the place of `ziel`: written beside it under `beiname`, synced, renamed, the folder
// synced. The new file keeps owner, group, permissions, access list and user attributes of the old one; what
// only a lost group could do is dropped. After a fault nothing is left under `beiname`.
Ersetzung ersetze(const std::filesystem::path& ziel, const std::string& beiname, std::string_view bytes);
// Overwrites a file that is there, and syncs it. A fault leaves it half written.
int ueberschreibe(const std::filesystem::path& ziel, std::string_view bytes);
// Writes to a device, a pipe or an open file.
int schreibeDirekt(const Ziel& ziel, std::string_view bytes);

// A lock that no other process holds at the same time; the death of its owner frees it.
class Sperre {
  public:
    Sperre(std::intptr_t griff, std::filesystem::path datei) : griff_(griff), datei_(std::move(datei)) {}
    Sperre(Sperre&& andere) noexcept;
    Sperre& operator=(Sperre&& andere) noexcept;
    Sperre(const Sperre&) = delete;
    Sperre& operator=(const Sperre&) = delete;
    ~Sperre();

  private:
    void gibFrei() noexcept;

    std::intptr_t griff_;
    std::filesystem::path datei_;  // the lock file, removed with the lock; empty for a folder
};
struct Sperrversuch {
    std::optional<Sperre> sperre;
    bool belegt = false;  // another process holds it; else there can be no lock here
};
Sperrversuch sperreDatei(const std::filesystem::path& datei);  // makes the lock file
Sperrversuch sperreOrdner(const std::filesystem::path& ordner);

// The file of the running program, empty when unknown.
std::filesystem::path programmdatei();
bool istBeschreibbar(const std::filesystem::path& ordner);
// Where the platform keeps the data of its user's programs; empty when unknown.
std::filesystem::path datenordner();

// The arguments of the program as UTF-8 where the platform's names are characters, else byte by byte.
std::vector<std::string> angaben(int argc, char** argv);
bool istTerminal(std::FILE* strom);
// What standard input has, at least one byte, 0 at its end; nothing when it cannot be read.
std::optional<std::size_t> liesStandardeingabe(char* puffer, std::size_t groesse);
// Standard output takes bytes as they are; a file that grows beyond the user's limit and a pipe that nobody
// reads any more are faults to report, not the end of the program.
void bereiteProzessVor();
// Writes to standard error without asking for memory.
void schreibeFehlerausgabe(std::string_view text) noexcept;

}  // namespace rippenscheibe::plattform
