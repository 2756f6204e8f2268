#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "cli/Studienausgabe.h"
#include "study/Projekt.h"

namespace rippenscheibe {

// The overview of a project: a row a position. As text what there is to say of single positions stands below
// the table, then the totals.
class Projektausgabe {
  public:
    Projektausgabe(Studienausgabe form, const Csvform& csv, std::function<void(std::string_view)> gibAus);
    void gib(const Projektposition& position);
    void schliesse();

  private:
    Studienausgabe form_;
    Zeilenausgabe zeilen_;
    std::function<void(std::string_view)> gibAus_;
    std::string bemerkungen_;
    std::array<int, 4> staende_{};  // positions by their verdict
    Mengen summe_;
};

}  // namespace rippenscheibe
