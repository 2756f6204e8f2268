#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/Dateischreiber.h"
#include "files/Textdatei.h"

// Safety copies in the program's folder: one file holds the name of the file that is copied and its content,
// so that the two can never part.

namespace rippenscheibe {

// A copy of a file: its full path, "" for a position never saved, and its bytes.
struct Kopie {
    std::string name;
    std::string bytes;
    bool operator==(const Kopie&) const = default;
};

// One line with the name and the number of bytes, then the bytes. Nothing when that does not fit.
std::string kopietext(const Kopie& kopie);
std::optional<Kopie> kopieAus(std::string_view text);

// `sicherung`: the unsaved position of a running program; `ueberschreiben`: what a file held before it is
// overwritten where it stands.
enum class Kopieart { sicherung, ueberschreiben };

// A numbered place for one copy in a folder ("Sicherung-1.kopie"), held by a lock as long as its owner lives.
class Kopieplatz {
  public:
    // A place without a copy; nothing when all are taken or the folder takes no lock.
    static std::optional<Kopieplatz> freier(const std::filesystem::path& ordner, Kopieart art);
    // The places with a copy whose owner is gone, the newest copy first.
    static std::vector<Kopieplatz> verwaiste(const std::filesystem::path& ordner, Kopieart art);

    [[nodiscard]] std::optional<Dateifehler> schreibe(const Kopie& kopie) const;
    // A torn copy cannot be read.
    Gelesen<Kopie> lies() const;
    void loesche() const;

    const std::filesystem::path& datei() const { return datei_; }
    std::filesystem::file_time_type zeit() const;  // of the last writing

  private:
    Kopieplatz(std::filesystem::path datei, plattform::Sperre sperre);
    static std::vector<Kopieplatz> plaetze(const std::filesystem::path& ordner, Kopieart art, bool mitKopie,
                                           std::size_t hoechstens);

    std::filesystem::path datei_;
    plattform::Sperre sperre_;
};

}  // namespace rippenscheibe
