#include "files/Positionsdatei.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <system_error>
#include <utility>

#include "files/Pfad.h"

namespace rippenscheibe {

namespace {

constexpr std::size_t zeilenOhneAnzahl = 200;  // rows of Zusatzbemerkungen while none is used

std::size_t benutzteZeilen(const Wand& w) {
    return static_cast<std::size_t>(std::max<int>(w.AnzahlZusatzbemerkungen.value(), 0));
}

// The statements in the order of the file, the same list for reader and writer. `anweisung` takes the
// fields of one statement, each with its name; `bemerkungen` stands where the count of the closing remarks
// is known and their lines follow.
#define RS_N(feld) ziel(#feld, w.feld)
#define RS_N1(feld) ziel(#feld "1", w.feld[Seite::eins])
#define RS_N2(feld) ziel(#feld "2", w.feld[Seite::zwei])
#define RS_P(feld) RS_N1(feld), RS_N2(feld)
template <class W, class Anweisung, class Bemerkungen>
void jedeAnweisung(W& w, Anweisung&& anweisung, Bemerkungen&& bemerkungen) {
    anweisung(RS_N(Projekt), RS_N(Position), RS_N(Datum));
    anweisung(ziel("Vorbemerkungen(1)", w.Vorbemerkungen[0]));
    anweisung(ziel("Vorbemerkungen(2)", w.Vorbemerkungen[1]));
    anweisung(ziel("Vorbemerkungen(3)", w.Vorbemerkungen[2]));
    anweisung(RS_N(PositionsBemerkung));
    anweisung(RS_N(AnzahlZusatzbemerkungen));
    bemerkungen();
    anweisung(RS_N(Wandlaenge), RS_N(Wandhoehe), RS_N(Rippenabstand), RS_N(bRandrippe), RS_N(bInnenrippe),
              RS_N(bKopfFussrippe), RS_N(hRandrippe), RS_N(hInnenrippe));
    anweisung(RS_N(FussrippeLinksDurchgehend), RS_N(FussrippeRechtsDurchgehend));
    anweisung(RS_N(Holzart), RS_P(Material), RS_N(Einseitig));
    anweisung(RS_P(Gestossen), RS_N(Plattendicke1), RS_N(Plattendicke2), RS_P(Plattenbreite));
    anweisung(RS_N(NKLRippen), RS_P(NKLBeplankung));
    anweisung(RS_P(av), RS_P(d), RS_P(ln), RS_P(fuk), RS_P(VMArt));
    anweisung(RS_P(VMKlasse), RS_P(dk), RS_P(lg));
    anweisung(RS_P(Vorgebohrt), RS_P(Versenkt), RS_P(VMTyp));
    anweisung(RS_N(Ankertyp), RS_N(NachweisVerankerung), RS_N(AnzahlAnkerNaegel), RS_N(RdAnker),
              RS_N(Kammnagel), RS_N(kserAnker), RS_N(FreierAnkerName), RS_N(Teilausnagelung));
    anweisung(RS_N(Fvk), RS_N(gk), RS_N(qk), RS_N(wk), RS_N(Fcgk), RS_N(Fcqk), RS_N(Lastfall), RS_N(WindQuer),
              RS_N(gkWand), RS_N(KLED));
    anweisung(RS_N(GenauesVerfahren), RS_N(Erhoehung20), RS_N(DeltaRd), RS_N(beta), RS_N(KlammerWinkelOption),
              RS_N(VertikallastVerteilung), RS_N(LagesicherungVerfahren));
    // The newest statement stands last, so that files without it still load.
    anweisung(RS_P(Zweireihig), RS_N(AnzahlAnker), RS_P(EigenesMaterial));
}
#undef RS_N
#undef RS_N1
#undef RS_N2
#undef RS_P

void ergaenzeFehlende(Wand& w) {
    if (w.EigenesMaterial[Seite::eins] == 0) w.EigenesMaterial[Seite::eins] = 1;
    if (w.EigenesMaterial[Seite::zwei] == 0) w.EigenesMaterial[Seite::zwei] = 1;
    if (w.AnzahlAnker == 0) w.AnzahlAnker = 1;
}

}  // namespace

bool istPositionsdatei(std::string_view dateiname) { return dateiname.ends_with("rsw"); }

std::optional<std::string> einwand(const std::filesystem::path& datei) {
    std::error_code egal;
    if (std::filesystem::is_directory(datei, egal))
        return "Das ist ein Ordner. Meinten Sie die Positionen darin: " + pfadtext(datei / "*.rsw") + "?";
    if (istPositionsdatei(pfadtext(datei))) return std::nullopt;
    if (!datei.has_extension()) return "Es fehlt die Endung. Meinten Sie " + pfadtext(datei) + ".rsw?";
    return std::string(falscheEndung);
}

std::string mitEndung(std::string dateiname) {
    if (!istPositionsdatei(dateiname)) dateiname += ".rsw";
    return dateiname;
}

namespace {

void lies(Anweisungsleser& leser, Wand& w) {
    w.Vorbemerkungen.fill({});
    const auto liesZusatzbemerkungen = [&] {
        // A count that did not parse is the old one, and that many lines are read.
        const std::size_t anzahl = benutzteZeilen(w);
        w.Zusatzbemerkungen.assign(anzahl > 0 ? anzahl : zeilenOhneAnzahl, {});
        for (std::size_t i = 0; i < anzahl; ++i) {
            const std::string name = "Zusatzbemerkungen(" + std::to_string(i + 1) + ")";
            const bool fehlt = leser.amEnde();
            leser.lies(ziel(name, w.Zusatzbemerkungen[i]));
            if (fehlt) break;  // one report for all that the file lacks
        }
    };
    jedeAnweisung(
        w, [&](auto... felder) { leser.lies(felder...); }, liesZusatzbemerkungen);
    ergaenzeFehlende(w);
}

}  // namespace

std::vector<Uebersprungen> liesPositionstext(std::string_view text, Wand& w) {
    Anweisungsleser leser(text);
    lies(leser, w);
    return std::move(leser).uebersprungeneFelder();
}

Positionsbefund positionsbefund(std::string_view text) {
    const auto w = std::make_unique<Wand>();
    Anweisungsleser leser(text);
    lies(leser, *w);
    const auto& fehlend = leser.uebersprungen();
    const bool masse = std::none_of(fehlend.begin(), fehlend.end(),
                                    [](const Uebersprungen& feld) { return feld.feld == "Wandlaenge"; });
    return {leser.ganze(), masse};
}

std::string positionstext(const Wand& w) {
    Anweisungsschreiber schreiber;
    const auto schreibeZusatzbemerkungen = [&] {
        static const std::string leer;
        for (std::size_t i = 0; i < benutzteZeilen(w); ++i) {
            schreiber.schreibe(i < w.Zusatzbemerkungen.size() ? w.Zusatzbemerkungen[i] : leer);
        }
    };
    jedeAnweisung(
        w, [&](auto... felder) { schreiber.schreibe(felder.wert...); }, schreibeZusatzbemerkungen);
    return schreiber.text();
}

Gelesen<std::vector<Uebersprungen>> liesPosition(const std::filesystem::path& datei, Wand& w) {
    return liesTextdatei(datei, [&](std::string_view text) { return liesPositionstext(text, w); });
}

std::optional<Dateifehler> schreibePosition(const std::filesystem::path& datei, const Wand& w) {
    return schreibeTextdatei(datei, positionstext(w));
}

}  // namespace rippenscheibe
