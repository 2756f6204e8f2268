#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "files/Plattform.h"
#include "files/Programmordner.h"

// Reading and durable writing of whole files. Everything in the program that writes a file writes it here.

namespace rippenscheibe {

// One German sentence that says what went wrong with which file.
struct Dateifehler {
    std::string text;
};

// Replaces the file by these bytes so that a crash, a full disk or a missing right leaves either the old
// file whole or the new one: written beside it, every write checked, synced, renamed, the folder synced.
// Temporary files that a killed save left in the folder go when they are older than a day.
//
// A symbolic link stays and its target is replaced; the new file keeps owner, permissions, access list and
// user attributes. A file that the user may not write is refused. A file of several names (hard links), or
// one in a folder that takes no new file, is overwritten where it stands; until it is whole a copy of the old
// one lies in `kopienordner` (files/Kopie.h). A device, a pipe or an open file (/dev/stdout) is written
// directly.
[[nodiscard]] std::optional<Dateifehler> schreibeDauerhaft(
    const std::filesystem::path& datei, std::string_view bytes,
    const std::filesystem::path& kopienordner = programmordner());

// Whether there is a file. A fault of the disk or a missing right never passes as "no file".
enum class Dateilage { vorhanden, fehlt, unlesbar };

struct Dateiinhalt {
    Dateilage lage = Dateilage::vorhanden;
    std::string bytes;                  // empty unless the file is there and could be read
    std::optional<Dateifehler> fehler;  // set unless the file is there and could be read
};

// No file of the program is anywhere near this large.
inline constexpr std::size_t groessteDatei = std::size_t{16} << 20U;

// The content of a file; one larger than `hoechstens` bytes cannot be read.
Dateiinhalt liesDatei(const std::filesystem::path& datei, std::size_t hoechstens = groessteDatei);

// Holds off other programs of this kind while a shared file is read, merged and written back. A lock that
// another program does not give back in time, or a folder that allows none, is done without. Freed by the
// destructor.
class Dateisperre {
  public:
    explicit Dateisperre(const std::filesystem::path& ordner,
                         std::chrono::milliseconds geduld = std::chrono::seconds(3));

  private:
    std::optional<plattform::Sperre> sperre_;
};

}  // namespace rippenscheibe
