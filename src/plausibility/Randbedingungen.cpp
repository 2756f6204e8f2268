#include "plausibility/Randbedingungen.h"

#include <array>

#include "plausibility/Hinweistexte.h"

namespace rippenscheibe {

namespace {

// One text of a finding and where its input is made.
struct Meldung {
    std::string_view text;
    Eingabeort ort;
};

enum class Bedingung {
    imperfektionen,
    vereinfachteBerechnung,
    verhaeltnisRandrippe,
    verhaeltnisInnenrippe,
    rippenabstand,
    rippenhoehe,
    uebergreifen,
    abstandZuKlein,
    abstandNaegelZuGross,
    abstandSchraubenZuGross,
    plattenbreite,
    zuLang,
    anzahl
};

// clang-format off
// The texts in the order of `Bedingung`; those of one side without their prefix. Meant: the text on the rib
// proportions says b/h and the test is h/b; the text on overlapping fasteners ends in a blank; the limits of
// 150 and 200 mm decide nothing.
constexpr std::array<Meldung, static_cast<std::size_t>(Bedingung::anzahl)> meldungen{{
    {"Randbedingungen nach 8.7.5(8) nicht eingehalten! Nachweis der horizontalen Verformung und Berücksichtigung von Imperfektionen erforderlich!", Eingabeort::Wandlaenge},
    {"Randbedingungen zur vereinfachten Berechnung von Wandtafeln unter horizontaler Scheibenbeanspruchung nach 8.7.5(8) nicht eingehalten!",       Eingabeort::Wandlaenge},
    {"Verhältnis b/h der Randrippen darf bei einseitiger Beplankung maximal 4 sein!",                                                               Eingabeort::Rippen},
    {"Verhältnis b/h der Innenrippen darf bei einseitiger Beplankung maximal 4 sein!",                                                              Eingabeort::Rippen},
    {"Rippenabstand zu groß bzw. Beplankungsdicke zu klein! Der Rippenabstand ar darf maximal 50*t betragen!",                                      Eingabeort::Rippenabstand},
    {"Wegen Spaltgefahr des Holzes müssen die Rippen bei nicht vorgebohrten Nagelverb. eine Mindesthöhe nach DIN 1052(2008) 12.5.2 (13) aufweisen!", Eingabeort::Rippen},
    {"Achtung! Laut DIN 1052(2008) 12.5.2 (12) dürfen sich Verbindungsmittel nicht übergreifen wenn (t2-lwand) größer als 4*d ist! ",               Eingabeort::Verbindungsmittel},
    {"Verbindungsmittelabstand av zu klein! av muss mindestens 20*d sein!",                                                                         Eingabeort::Verbindungsmittel},
    {"Verbindungsmittelabstand av zu groß! Darf bei Nägeln und Klammern höchstens 80*d bzw. 150 mm betragen!",                                      Eingabeort::Verbindungsmittel},
    {"Verbindungsmittelabstand av zu groß! Darf bei Schrauben höchstens 80*d bzw. 200 mm betragen!",                                                Eingabeort::Verbindungsmittel},
    {"Breite der Platte zu klein! Muß mindestens ein Viertel der Tafelhöhe sein!",                                                                  Eingabeort::Beplankung},
    {"Verbindungsmittel zu lang!",                                                                                                                  Eingabeort::Verbindungsmittel},
}};
// clang-format on

const Meldung& zeile(Bedingung b) { return meldungen[static_cast<std::size_t>(b)]; }

void melde(Wand& w, Bedingung b) {
    w.Hinweise.push_back({std::string(zeile(b).text), std::nullopt, zeile(b).ort});
}
void melde(Wand& w, Bedingung b, Seite n) {
    w.Hinweise.push_back({mitSeite(zeile(b).text, n), n, zeile(b).ort});
}

// Proportions of wall and panels, 8.7.5 (8). A horizontal joint of the panels makes no difference.
void pruefeWandverhaeltnisse(Wand& w) {
    const bool wandZuKurz = w.Wandhoehe / 3 > w.Wandlaenge;
    const bool platte1ZuSchmal = w.Wandhoehe / 4 > w.Plattenbreite[Seite::eins] / 1000;
    const bool platte2ZuSchmal = !w.Einseitig && w.Wandhoehe / 4 > w.Plattenbreite[Seite::zwei] / 1000;
    if (!wandZuKurz && !platte1ZuSchmal && !platte2ZuSchmal) return;
    melde(w, Bedingung::imperfektionen);
    melde(w, Bedingung::vereinfachteBerechnung);
}

// Slenderness of the ribs of a one-sided wall. Only the first of the two findings is made.
void pruefeRippenverhaeltnisse(Wand& w) {
    if (!w.Einseitig) return;
    if (w.hRandrippe / w.bRandrippe > 4)
        melde(w, Bedingung::verhaeltnisRandrippe);
    else if (w.hInnenrippe / w.bInnenrippe > 4)
        melde(w, Bedingung::verhaeltnisInnenrippe);
}

// Rib spacing up to 50 t. Meant: both thicknesses count on a one-sided wall too, and one of up to 2 mm on
// either side switches the check off.
void pruefeRippenabstand(Wand& w) {
    const Zahl t1 = w.t[Seite::eins];
    const Zahl t2 = w.t[Seite::zwei];
    if ((50 * t1 < w.Rippenabstand || 50 * t2 < w.Rippenabstand) && t1 > 2 && t2 > 2)
        melde(w, Bedingung::rippenabstand);
}

// Least depth of the ribs for nails that are not predrilled, 12.5.2 (13), mm. Meant: the density is that of
// the last run, 0 before the first one, and every kind of fastener is tested.
void pruefeRippenhoehe(Wand& w, Seite n) {
    if (w.Vorgebohrt[n]) return;
    if (w.hRandrippe < Max(14 * w.d[n], (13 * w.d[n] - 30) * w.rhok / 200)) {
        melde(w, Bedingung::rippenhoehe, n);
        w.Rd[n] = 0;
    }
}

// Fasteners of the two sides that reach past each other in the rib, 12.5.2 (12). One side that is
// free of the rule frees both; side 2 counts on a one-sided wall too.
void pruefeUebergreifen(Wand& w) {
    for (const Seite n : beideSeiten) {
        const Art art = vmArt(w, n);
        if (art == Art::schnellbauschrauben || art == Art::klammernDin18182 || w.Vorgebohrt[n]) return;
    }
    const auto genugHolz = [&w](Seite n) { return 4 * w.d[n] <= w.hRandrippe - (w.ln[n] - w.t[n]); };
    if (genugHolz(Seite::eins) && genugHolz(Seite::zwei)) return;
    melde(w, Bedingung::uebergreifen);
}

// Spacing of the fasteners along the panel edge: 20 d to 80 d. Meant: the limits of 150 and 200 mm, which the
// texts name, change no outcome; 180 mm with a 3 mm nail passes.
void pruefeVerbindungsmittelabstand(Wand& w, Seite n) {
    if (w.av[n] < 20 * w.d[n]) {
        melde(w, Bedingung::abstandZuKlein, n);
    } else if (w.av[n] > 80 * w.d[n]) {
        const Art art = vmArt(w, n);
        if (istNagel(art) || istKlammer(art)) melde(w, Bedingung::abstandNaegelZuGross, n);
        if (istSchraube(art)) melde(w, Bedingung::abstandSchraubenZuGross, n);
    }
}

// A panel without horizontal joint has to be at least a quarter of the wall's height wide.
void pruefePlattenbreite(Wand& w, Seite n) {
    if (!w.Gestossen[n] && w.Wandhoehe / 4 > w.Plattenbreite[n] / 1000) melde(w, Bedingung::plattenbreite, n);
}

// A fastener must not come out on the other face of the rib.
void pruefeLaenge(Wand& w, Seite n) {
    if (w.hRandrippe + w.t[n] < w.ln[n]) {
        melde(w, Bedingung::zuLang, n);
        w.Rd[n] = 0;
    }
}

}  // namespace

void pruefeRandbedingungen(Wand& w) {
    pruefeWandverhaeltnisse(w);
    pruefeRippenverhaeltnisse(w);
    pruefeRippenabstand(w);
    for (const Seite n : beideSeiten) {
        if (n == Seite::zwei && w.Einseitig) break;
        pruefeRippenhoehe(w, n);
        // Once for both sides, in between the checks of side 1.
        if (n == Seite::eins) pruefeUebergreifen(w);
        pruefeVerbindungsmittelabstand(w, n);
        pruefePlattenbreite(w, n);
        pruefeLaenge(w, n);
    }
}

}  // namespace rippenscheibe
