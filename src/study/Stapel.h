#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "run/FrischerLauf.h"
#include "study/Csv.h"
#include "study/Faeden.h"
#include "study/Felder.h"

// A stream of walls: a line in, a line out, in the same order. A line names inputs over a template and is
// computed in a fresh run of its own.

namespace rippenscheibe {

enum class Zeilenform { json, csv };

struct Stapelauftrag {
    Eingaben vorlage{};
    EigeneMaterialien materialien{};
    std::vector<std::string> felder{};  // inputs and results to give back, by name
    int laeufe = 1;
    Grenzen grenzen = Grenzen::beachten;
    Zeilenform eingabe = Zeilenform::json;
    Zeilenform ausgabe = Zeilenform::json;
    Csvform csv{};
};

// Where the bytes come from and go to.
struct Strom {
    std::function<std::size_t(char*, std::size_t)> lies;  // 0 at the end
    std::function<bool(std::string_view)> schreibe;       // false: nobody reads any more
};

struct Stapelergebnis {
    std::size_t zeilen = 0;
    std::size_t fehlerhaft = 0;
    std::size_t nichtErfuellt = 0;
    std::size_t mitHinweisen = 0;
};

// What is wrong with the names of fields to give back: one is unknown or stands twice.
std::optional<std::string> einwandGegenFelder(std::span<const std::string> felder);

// Reads, computes and writes until the input ends. Holds a few blocks of lines a thread, however long the
// stream is; a line above 1 MiB is an error line.
Stapelergebnis stapel(const Stapelauftrag& auftrag, const Strom& strom, const Ausfuehrung& ausfuehrung);

// One line, without its end, and the lines it yields: what a thread does for each.
class Zeilenrechner {
  public:
    explicit Zeilenrechner(const Stapelauftrag& auftrag);
    ~Zeilenrechner();
    Zeilenrechner(Zeilenrechner&&) noexcept;

    // The names of the columns; from then on lines are rows of this table. A sentence when a name is unknown.
    std::optional<std::string> setzeKopf(std::string_view kopfzeile);
    // Appends the answer to the line with the number `nummer` (from 1) and counts it.
    void rechne(std::string_view zeile, std::size_t nummer, std::string& aus, Stapelergebnis& zaehler);
    // Appends the answer to a line that cannot be read and counts it.
    void verwirf(std::string_view grund, std::size_t nummer, std::string& aus, Stapelergebnis& zaehler);
    // The head line of the answers as CSV, empty for JSON.
    std::string kopf() const;

  private:
    struct Innen;
    std::unique_ptr<Innen> innen_;
};

// A JSON schema of an input line.
std::string stapelschema();

}  // namespace rippenscheibe
