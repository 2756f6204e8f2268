#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "study/Csv.h"
#include "study/Mengen.h"

// What a wall costs: quantities times the prices of a table. Lines of the table: kind (Platte, Holz,
// Verbindungsmittel, Anker), name, thickness in mm (boards), price. Lines with # are remarks.

namespace rippenscheibe {

class Preise {
  public:
    // A sentence with the line when the text cannot be read.
    static std::variant<Preise, std::string> aus(std::string_view text, const Csvform& form = {});

    // The cost in the currency of the table, rounded to cents; a sentence that names the missing price. Both
    // allocate nothing when the prices are there.
    std::optional<double> kosten(const Wand& w, const Reihenregel& regel = {}) const;
    std::string fehlenderPreis(const Wand& w) const;

    // Where the prices come from, for whoever reads a cost: the first remark of the table, or that they are
    // the delivered ones.
    const std::string& herkunft() const { return herkunft_; }

    // The prices of whoever runs the program: the table of the program's folder or, where there is none, the
    // delivered one. A sentence when there is one that cannot be read.
    static std::variant<Preise, std::string> lade(const std::filesystem::path& programmordner,
                                                  const Csvform& form = {});
    // A table that has to be there.
    static std::variant<Preise, std::string> ausDatei(const std::filesystem::path& datei,
                                                      const Csvform& form = {});

  private:
    struct Plattenpreis {
        std::string material;
        double dicke;
        double preis;  // a m²
    };
    struct Preis {
        std::string name;
        double preis;
    };
    static const Preis* suche(const std::vector<Preis>& preise, std::string_view name);
    const Plattenpreis* platte(std::string_view material, double dicke) const;
    // The prices by name of a kind of line; boards have theirs by thickness too.
    std::vector<Preis>* liste(std::string_view art);

    std::vector<Plattenpreis> platten_;
    std::vector<Preis> holz_;               // a m³ by strength class
    std::vector<Preis> verbindungsmittel_;  // a piece with driving, by kind
    std::vector<Preis> anker_;              // a piece
    std::string herkunft_;
};

// The name under which a price table keeps its file in the program's folder.
inline constexpr std::string_view preisdatei = "Preise.csv";
// The table that the program is delivered with.
std::string_view geliefertePreise();

}  // namespace rippenscheibe
