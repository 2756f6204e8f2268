#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "study/Bewertung.h"
#include "study/Csv.h"
#include "study/Mengen.h"
#include "study/Raster.h"

// Rows of a study as text, CSV or JSON lines.

namespace rippenscheibe {

enum class Studienausgabe { text, csv, json, rtf };

using Glieder = std::vector<std::pair<std::string, std::string>>;  // name and JSON value

// One row: members, a group of them that is an object in JSON and plain columns elsewhere, more members.
struct Studienzeile {
    Glieder vorn;
    std::string gruppe;
    Glieder innen;
    Glieder hinten;
};

// Collects rows, or hands them on one by one where the form allows it.
class Zeilenausgabe {
  public:
    Zeilenausgabe(Studienausgabe form, Csvform csv) : form_(form), csv_(csv) {}
    // What the row adds to the output; a text table comes with `schluss`.
    std::string zeile(const Studienzeile& zeile);
    std::string schluss() const;

  private:
    Studienausgabe form_;
    Csvform csv_;
    std::vector<std::vector<std::string>> tabelle_;
    bool kopf_ = false;
};

std::string jsonWert(const Feldwert& wert);
std::string jsonWert(double wert);
std::string jsonOderNull(std::string_view text);  // "" is null
std::string jsonListe(const std::vector<std::string>& texte);
std::string jsonObjekt(const Glieder& glieder);

// What an axis value sets, as members.
void anfuegeZuweisungen(Glieder& glieder, const std::vector<std::pair<int, Feldwert>>& setzt);
// Utilisation, proof (with its load case), direction of Fv.
void anfuegeUrteil(Glieder& glieder, const Bewertung& bewertung, const Bewertungsregel& regel);
// A row of a list of quantities.
Glieder mengenglieder(const Mengenzeile& posten);

}  // namespace rippenscheibe
