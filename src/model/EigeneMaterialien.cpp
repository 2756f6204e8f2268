#include "model/EigeneMaterialien.h"

namespace rippenscheibe {

bool nimmtWeitereAuf(const EigeneMaterialien& tabelle) {
    return tabelle.zeilen.size() < EigeneMaterialien::hoechstens;
}

bool loesche(EigeneMaterialien& tabelle, std::size_t zeile) {
    if (tabelle.zeilen.size() <= 1 || zeile >= tabelle.zeilen.size()) return false;
    tabelle.zeilen.erase(tabelle.zeilen.begin() + static_cast<std::ptrdiff_t>(zeile));
    return true;
}

}  // namespace rippenscheibe
