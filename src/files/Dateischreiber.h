#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Reading and durable writing of whole files. Everything in the program that writes a file writes it here.

namespace rippenscheibe {

// One German sentence that says what went wrong with which file.
struct Dateifehler {
    std::string text;
};

// Replaces the file by these bytes so that a crash, a full disk or a missing right leaves either the old
// file whole or the new one: written beside it, every write checked, synced, renamed, the folder synced.
// A symbolic link stays and its target is replaced; an old file hands its permissions (and, where allowed,
// its owner) on. A file that the user may not write is refused. A device or a pipe is written directly.
[[nodiscard]] std::optional<Dateifehler> schreibeDauerhaft(const std::filesystem::path& datei,
                                                           std::string_view bytes);

struct Dateiinhalt {
    std::string bytes;                  // empty on a fault
    std::optional<Dateifehler> fehler;  // missing, unreadable, a folder
};

Dateiinhalt liesDatei(const std::filesystem::path& datei);

// Holds off other programs of this kind while a shared file is read, merged and written back. Waits for
// the lock; where the folder allows none (read-only), it does without. Freed by the destructor.
class Dateisperre {
  public:
    explicit Dateisperre(const std::filesystem::path& ordner);
    ~Dateisperre();
    Dateisperre(const Dateisperre&) = delete;
    Dateisperre& operator=(const Dateisperre&) = delete;

  private:
    int ordner_ = -1;
};

}  // namespace rippenscheibe
