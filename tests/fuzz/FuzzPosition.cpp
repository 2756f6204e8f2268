#include <memory>

#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"
#include "fuzz/Eingang.h"

// The position file: any bytes load, what was loaded can be saved, and saved again is the same.

using namespace rippenscheibe;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t laenge) {
    const std::string text = dekodiert(fuzz::eingang(bytes, laenge));
    const auto w = std::make_unique<Wand>();
    const auto uebersprungen = liesPositionstext(text, *w);
    for (const Uebersprungen& feld : uebersprungen) fuzz::erwarte(!beschreibung(feld).empty());
    const Positionsbefund befund = positionsbefund(text);
    fuzz::erwarte(befund.ganzeAnweisungen > 0 || !uebersprungen.empty());
    fuzz::erwarteFestpunkt(text, [](std::string_view t) {
        const auto frisch = std::make_unique<Wand>();
        liesPositionstext(t, *frisch);
        const std::string geschrieben = positionstext(*frisch);
        fuzz::erwarte(dekodiert(kodiert(geschrieben)) == geschrieben);
        return geschrieben;
    });
    return 0;
}
