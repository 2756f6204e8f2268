#include "files/Einstellungsdatei.h"
#include "files/Kopie.h"
#include "files/Projektliste.h"
#include "files/Textvorlagen.h"
#include "fuzz/Eingang.h"

// The small files of the program's folder. The first byte chooses which.

using namespace rippenscheibe;

namespace {

void kopie(std::string_view bytes) {
    if (const auto gelesen = kopieAus(bytes)) fuzz::erwarte(kopieAus(kopietext(*gelesen)) == gelesen);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t laenge) {
    if (laenge == 0) return 0;
    const std::string_view inhalt = fuzz::eingang(bytes, laenge).substr(1);
    const std::string text = dekodiert(inhalt);
    switch (bytes[0]) {
        case 'E':
            fuzz::erwarteFestpunkt(text, [](std::string_view t) {
                Einstellungen e;
                liesEinstellungstext(t, e);
                return einstellungstext(e);
            });
            break;
        case 'P':
            fuzz::erwarteFestpunkt(text,
                                   [](std::string_view t) { return projektlistentext(projektlisteAus(t)); });
            break;
        case 'T':
            fuzz::erwarteFestpunkt(text,
                                   [](std::string_view t) { return textvorlagentext(textvorlagenAus(t)); });
            break;
        case 'K':
            kopie(inhalt);
            break;
        default:
            break;
    }
    return 0;
}
