#include "plausibility/Hinweistexte.h"

#include "model/Kataloge.h"

namespace rippenscheibe {

namespace {

constexpr std::string_view vorsatz = "Beplankung 1: ";
constexpr std::string_view nameSeite1 = "Beplankung 1";
constexpr std::string_view nameSeite2 = "Beplankung 2";

std::string ersetze(std::string_view text, std::string_view alt, std::string_view neu) {
    std::string ergebnis(text);
    for (auto stelle = ergebnis.find(alt); stelle != std::string::npos;
         stelle = ergebnis.find(alt, stelle + neu.size()))
        ergebnis.replace(stelle, alt.size(), neu);
    return ergebnis;
}

}  // namespace

std::string fuerSeite(std::string_view text, Seite n) {
    return n == Seite::eins ? std::string(text) : ersetze(text, nameSeite1, nameSeite2);
}

std::string mitSeite(std::string_view text, Seite n) {
    return fuerSeite(std::string(vorsatz).append(text), n);
}

std::string ausgefuellt(std::string_view text, Art art, Platte platte) {
    const std::string mitArt = ersetze(text, "{VMArt}", eintrag(VMArten(), static_cast<int>(art)));
    return ersetze(mitArt, "{Material}", eintrag(Plattenmaterialien(), static_cast<int>(platte)));
}

}  // namespace rippenscheibe
