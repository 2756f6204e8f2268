#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "basis/Zahl.h"
#include "model/Feldgruppe.h"

namespace rippenscheibe {

// The own-material table: up to 100 sheathing materials defined by the user, 30 columns each.
// Columns (1 to 30): 1 name; 2 fv,k; 3 fc,k; 4 ft,k; 5 fm,k (N/mm²); 6 t,req as a multiple of d;
// 7 choice of the embedment formula, 1 to 5; 8 E,mean; 9 G,mean (N/mm²); 10 rho,k (kg/m³);
// 11 unit weight (kN/m³); 12 to 15 kmod in service class 1 for KLED 1 to 4; 16 to 19 the same in
// service class 2; 20 fixed fh,1,k (N/mm²); 21 and 22 kmod for KLED 5 in classes 1 and 2; 23 to 30 empty.
class EigeneMaterialien {
  public:
    static constexpr std::size_t spalten = 30;
    static constexpr std::size_t hoechstens = 100;

    // One row: the name (column 1) and the numbers of columns 2 to 30; an empty cell counts as 0 but
    // stays empty in the file.
    struct Zeile {
        struct Zelle {
            double wert = 0.0;
            bool leer = true;
        };
        std::string name;
        std::array<Zelle, spalten + 1> zellen{};  // index is the column; 0 and 1 are unused
    };

    std::vector<Zeile> zeilen;

    // Column `spalte` of row `zeile`, both from 1. A row or column that is not there has failed.
    Zahl operator()(int spalte, Zahl zeile) const {
        const double z = zeile.value();
        if (!(z >= 1.0 && z <= static_cast<double>(zeilen.size()))) return Zahl::fehlgeschlagen();
        if (spalte < 2 || spalte > static_cast<int>(spalten)) return Zahl::fehlgeschlagen();
        return zeilen[static_cast<std::size_t>(z) - 1].zellen[static_cast<std::size_t>(spalte)].wert;
    }
    // The name of row `zeile`; nullptr when the row is not there.
    const std::string* name(Zahl zeile) const {
        const double z = zeile.value();
        if (!(z >= 1.0 && z <= static_cast<double>(zeilen.size()))) return nullptr;
        return &zeilen[static_cast<std::size_t>(z) - 1].name;
    }
};

// What may be entered in a column of numbers, in its unit.
Wertebereich materialbereich(int spalte);

// Whether another material fits into the table.
bool nimmtWeitereAuf(const EigeneMaterialien& tabelle);
// Takes row `zeile` (from 0) out; the rows behind it move up one place, so that positions that stored their
// numbers then point at other materials. False, and nothing done, for the last material left.
bool loesche(EigeneMaterialien& tabelle, std::size_t zeile);

}  // namespace rippenscheibe
