#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "study/Projekt.h"

namespace rippenscheibe {

// The table of load cases beside the open position, read again when its file changed.
class Lastfallquelle {
  public:
    // The cases beside this file, none without a table or while the position has no file.
    const std::vector<Lastfallzeile>& zu(const std::string& dateiname);
    // Why the table cannot be read; empty otherwise.
    const QString& fehler() const { return fehler_; }

  private:
    std::optional<Dateistand> stand_;
    std::vector<Lastfallzeile> faelle_;
    QString fehler_;
};

}  // namespace rippenscheibe
