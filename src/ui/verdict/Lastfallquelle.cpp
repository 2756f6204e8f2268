#include "ui/verdict/Lastfallquelle.h"

#include "ui/basics/Programm.h"

namespace rippenscheibe {

const std::vector<Lastfallzeile>& Lastfallquelle::zu(const std::string& dateiname) {
    const Dateistand jetzt =
        dateiname.empty() ? Dateistand{} : dateistand(lastfalldatei(pfad(qtext(dateiname))));
    if (stand_ == jetzt) return faelle_;
    stand_ = jetzt;
    faelle_.clear();
    fehler_.clear();
    if (dateiname.empty()) return faelle_;
    auto gelesen = liesLastfaelle(jetzt.datei);
    if (const auto* fehler = std::get_if<std::string>(&gelesen))
        fehler_ = qtext(*fehler);
    else
        faelle_ = std::get<0>(std::move(gelesen));
    return faelle_;
}

}  // namespace rippenscheibe
