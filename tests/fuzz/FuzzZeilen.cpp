#include <algorithm>
#include <string>
#include <variant>
#include <vector>

#include "fuzz/Eingang.h"
#include "study/Lastfaelle.h"
#include "study/Preise.h"
#include "support/Strom.h"

// What is read line by line, told by its first byte: load cases, prices, or a stream of walls as JSON lines
// or as a table, where one line comes out for each line in.

using namespace rippenscheibe;

namespace {

std::string lastfaelleZurueck(std::string_view text) {
    const auto faelle = lastfaelleAus(text);
    const auto* gelesen = std::get_if<std::vector<Lastfallzeile>>(&faelle);
    return gelesen == nullptr ? std::string() : lastfaelletext(*gelesen);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t laenge) {
    std::string text(fuzz::eingang(bytes, laenge));
    if (text.empty()) return 0;
    const std::string_view tabelle = std::string_view(text).substr(1);
    if (text.front() == 'l') fuzz::erwarteFestpunkt(tabelle, lastfaelleZurueck);
    if (text.front() == 'p') static_cast<void>(Preise::aus(tabelle));
    if (text.front() == 'l' || text.front() == 'p') return 0;
    Stapelauftrag auftrag;
    auftrag.felder = {"av1", "Rd1", "Ftd", "Position"};
    if (text.front() == 'c') auftrag.eingabe = auftrag.ausgabe = Zeilenform::csv;
    text.erase(0, 1);
    Textstrom strom(text, 7);
    const Stapelergebnis ergebnis = stapel(auftrag, strom.strom(), {});
    if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);  // no part of the first line
    const auto zeilen = [](const std::string& t) {
        return static_cast<std::size_t>(std::count(t.begin(), t.end(), '\n'));
    };
    const bool kopf = auftrag.eingabe == Zeilenform::csv && strom.ausgabe.starts_with("id;ok;");
    if (auftrag.eingabe == Zeilenform::json)
        fuzz::erwarte(ergebnis.zeilen == zeilen(text) + (text.empty() || text.ends_with('\n') ? 0 : 1));
    fuzz::erwarte(zeilen(strom.ausgabe) == ergebnis.zeilen + (kopf ? 1 : 0));
    fuzz::erwarte(ergebnis.fehlerhaft <= ergebnis.zeilen);
    return 0;
}
