#include "run/Luecken.h"

#include <algorithm>
#include <array>

#include "basis/Zahlenformat.h"

namespace rippenscheibe {

namespace {

constexpr Seite S1 = Seite::eins;

bool inGebrauch(const Wand& w, Seite n) { return n == S1 || !w.Einseitig; }

template <class Bedingung>
bool eineSeite(const Wand& w, Bedingung bedingung) {
    return std::any_of(beideSeiten.begin(), beideSeiten.end(),
                       [&](Seite n) { return inGebrauch(w, n) && bedingung(w, n); });
}

// Vertical load in kN/m as the run began with it, single loads spread over the wall.
Zahl vertikallast(const Wand& w) {
    return 1.35 * (w.gk + w.gkWand) + 1.5 * w.qk +
           w.AnzahlRippen * (1.35 * w.Fcgk + 1.5 * w.Fcqk) / w.Wandlaenge;
}

// Share of the vertical load that the last pass of the exact distribution still put on ribs and sheathing.
// Every pass leaves the next one only the share of the ribs.
Zahl lastrest(const Wand& w) {
    const Zahl rippen = w.gd + w.qd + w.AnzahlRippen * (w.Fcgd + w.Fcqd) / w.Wandlaenge;
    return (rippen + w.sv90d) / vertikallast(w);
}

bool genauVerteilt(const Wand& w) { return w.VertikallastVerteilung == 2 && vertikallast(w) != 0; }

bool ohneVerschiebung(const Wand& w, Seite n) { return istKlammer(w, n) && w.kser[n] == 0 && w.fv0dn[n] > 0; }
bool ohneSchubmodul(const Wand& w, Seite n) { return w.Gmean[n] == 0; }

std::string zahl(std::string_view maske, Zahl wert) {
    return wert.failed() ? "?" : formatiere(maske, wert.value(), ',');
}

// "Seite 1", "Seite 2" or "Seite 1 und 2".
template <class Bedingung>
std::string seiten(const Wand& w, Bedingung bedingung) {
    std::string text = "Seite ";
    for (const Seite n : beideSeiten) {
        if (!inGebrauch(w, n) || !bedingung(w, n)) continue;
        if (text.back() != ' ') text += " und ";
        text += std::to_string(nummer(n));
    }
    return text;
}

struct Lueckenzeile {
    Lueckenart art;
    int abschnitt;
    bool (*gilt)(const Wand&);
    std::string (*satz)(const Wand&);
    std::string_view ursache;
};

// clang-format off
constexpr std::array<Lueckenzeile, anzahlLueckenarten> zeilen{{
    {Lueckenart::verankerung, 8,
     [](const Wand& w) { return !w.NachweisVerankerung && w.maxFtd > 0; },
     [](const Wand& w) { return "Ft,d = " + zahl("0.00", w.maxFtd) + " kN, Verankerung nicht nachgewiesen"; },
     "der Nachweis der Verankerung ist ausgeschaltet (NachweisVerankerung)"},
    {Lueckenart::schwelleLinks, 2,
     [](const Wand& w) { return w.Fvd < 0 && w.FcdSchwelle(1) > 0; },
     [](const Wand& w) { return "Fv < 0: Fc,d = " + zahl("0.00", w.FcdSchwelle(1)) + " kN, Schwellenpressung der linken Randrippe nicht nachgewiesen"; },
     "Fv,k wirkt nach links (Fvk < 0)"},
    {Lueckenart::anteile, 0,
     [](const Wand& w) { return genauVerteilt(w) && (w.AnteilRippen < 0 || w.AnteilRippen > 1 || w.AnteilBeplankung < 0 || w.AnteilBeplankung > 1); },
     [](const Wand& w) { return "Genaue Verteilung der Vertikallasten: Anteil der Rippen " + zahl("0.00", w.AnteilRippen) + ", der Beplankung " + zahl("0.00", w.AnteilBeplankung) + ", nicht zwischen 0 und 1"; },
     "genaue Verteilung der Vertikallasten (VertikallastVerteilung = 2)"},
    {Lueckenart::lastverlust, 0,
     [](const Wand& w) { return genauVerteilt(w) && Round(lastrest(w), 4) < 1; },
     [](const Wand& w) { return "Genaue Verteilung der Vertikallasten: der letzte Durchgang verteilt nur noch " + zahl("0.0", 100 * lastrest(w)) + " % der Last"; },
     "genaue Verteilung der Vertikallasten (VertikallastVerteilung = 2)"},
    {Lueckenart::verschiebung, 7,
     [](const Wand& w) { return w.Fvd != 0 && eineSeite(w, ohneVerschiebung); },
     [](const Wand& w) { return seiten(w, ohneVerschiebung) + ": Klammern ohne Verschiebungsmodul, ihr Anteil fehlt in der Verformung"; },
     "Klammern auf nur einer Seite oder vorgebohrt (VMArt, Vorgebohrt)"},
    {Lueckenart::schubmodul, 7,
     [](const Wand& w) { return w.Fvd != 0 && eineSeite(w, ohneSchubmodul); },
     [](const Wand& w) { return seiten(w, ohneSchubmodul) + ": Schubmodul der Beplankung 0, ihr Anteil fehlt in der Verformung"; },
     "Platte ohne Schubmodul (Material, EigenesMaterial, Plattendicke)"},
    {Lueckenart::biegefestigkeit, 5,
     [](const Wand& w) { return w.wd != 0 && w.fmdBeplankung[S1] == 0; },
     [](const Wand& /*w*/) { return std::string("Wind quer zur Wand, Biegefestigkeit der Beplankung 1 ist 0, Biegung nicht nachgewiesen"); },
     "Beplankung 1 ohne Biegefestigkeit (Material1, EigenesMaterial1, Plattendicke1)"},
    {Lueckenart::querdruck, 2,
     [](const Wand& w) { return w.fc90d == 0 && w.maxFcdSchwelle > 0; },
     [](const Wand& /*w*/) { return std::string("fc,90,d = 0, Schwellenpressung nicht nachgewiesen"); },
     "Holz ohne Querdruckfestigkeit (Holzart, NKLRippen, KLED)"},
    {Lueckenart::laengszug, 4,
     [](const Wand& w) { return w.ft0d == 0 && w.maxFtd > 0; },
     [](const Wand& /*w*/) { return std::string("ft,0,d = 0, Rippen auf Zug nicht nachgewiesen"); },
     "Holz ohne Zugfestigkeit (Holzart, NKLRippen, KLED)"},
}};
// clang-format on

const Lueckenzeile& zeile(Lueckenart art) { return zeilen[static_cast<std::size_t>(art)]; }

}  // namespace

std::vector<Lueckenart> Lueckenmenge::arten() const {
    std::vector<Lueckenart> arten;
    for (const Lueckenzeile& z : zeilen)
        if (enthaelt(z.art)) arten.push_back(z.art);
    return arten;
}

Lueckenmenge luecken(const Wand& w) {
    Lueckenmenge menge;
    for (const Lueckenzeile& z : zeilen)
        if (z.gilt(w)) menge.nimmAuf(z.art);
    return menge;
}

std::string lueckensatz(const Wand& w, Lueckenart art) { return zeile(art).satz(w); }

std::vector<std::string> lueckensaetze(const Wand& w) {
    std::vector<std::string> saetze;
    for (const Lueckenart art : luecken(w).arten()) saetze.push_back(lueckensatz(w, art));
    return saetze;
}

std::string_view lueckenursache(Lueckenart art) { return zeile(art).ursache; }
int lueckenabschnitt(Lueckenart art) { return zeile(art).abschnitt; }

}  // namespace rippenscheibe
