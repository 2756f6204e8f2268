#include "files/Einstellungsdatei.h"

#include <utility>

namespace rippenscheibe {

namespace {

// The statements in the order of the file, the same list for reader and writer.
#define RS_E(feld) ziel(#feld, e.feld)
template <class E, class Anweisung>
void jedeAnweisung(E& e, Anweisung&& anweisung) {
    anweisung(RS_E(Kopfvorlage), RS_E(Kopfzeile1), RS_E(Kopfzeile2));
    anweisung(RS_E(StandardPfad), RS_E(Kopf1Schrift), RS_E(Kopf2Schrift), RS_E(Kopf1Unterstrichen),
              RS_E(Kopf2Unterstrichen));
    anweisung(RS_E(HsetReserve1), RS_E(HsetReserve2), RS_E(Kopf1Fett), RS_E(Kopf2Fett), RS_E(Kopf1Kursiv),
              RS_E(Kopf2Kursiv), RS_E(LogoDrucken), RS_E(FusszeileDrucken));
    anweisung(RS_E(SeitenzahlStandard), RS_E(SystembildStandard), RS_E(SchnittkraftStandard),
              RS_E(ProgrammnameDrucken), RS_E(BlattStattSeite), RS_E(Suffix));
}
#undef RS_E

}  // namespace

std::vector<Uebersprungen> liesEinstellungstext(std::string_view text, Einstellungen& e) {
    e.BlattStattSeite = false;
    e.Suffix = 0;
    Anweisungsleser leser(text);
    jedeAnweisung(e, [&](auto... felder) { leser.lies(felder...); });
    return std::move(leser).uebersprungeneFelder();
}

std::string einstellungstext(const Einstellungen& e) {
    Anweisungsschreiber schreiber;
    jedeAnweisung(e, [&](auto... felder) { schreiber.schreibe(felder.wert...); });
    return schreiber.text();
}

Gelesen<std::vector<Uebersprungen>> liesEinstellungen(const std::filesystem::path& datei, Einstellungen& e) {
    return liesTextdatei(datei, [&](std::string_view text) { return liesEinstellungstext(text, e); });
}

std::optional<Dateifehler> schreibeEinstellungen(const std::filesystem::path& datei, const Einstellungen& e) {
    return schreibeTextdatei(datei, einstellungstext(e));
}

}  // namespace rippenscheibe
