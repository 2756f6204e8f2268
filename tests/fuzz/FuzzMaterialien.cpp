#include "files/EigeneMaterialienDatei.h"
#include "fuzz/Eingang.h"

// The table of own materials.

using namespace rippenscheibe;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t laenge) {
    const std::string text = dekodiert(fuzz::eingang(bytes, laenge));
    if (std::atol(text.c_str()) > 300) return 0;  // nothing but time: the program keeps a hundred rows
    const EigeneMaterialien tabelle = eigeneMaterialienAus(text);
    // Rows and columns beyond the table are asked for by positions of other programs.
    for (int zeile = -1; zeile < 4; ++zeile)
        for (int spalte = -1; spalte <= 31; ++spalte) static_cast<void>(tabelle(spalte, zeile));
    fuzz::erwarteFestpunkt(text,
                           [](std::string_view t) { return eigeneMaterialienText(eigeneMaterialienAus(t)); });
    return 0;
}
