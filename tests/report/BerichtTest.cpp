#include <algorithm>
#include <cmath>
#include <functional>
#include <set>

#include "report/Bericht.h"
#include "report/Fliesstext.h"

namespace rippenscheibe {
namespace {

using Zeilen = std::vector<std::string>;

Zeilen zeilen(const Wand& w, Form form, const Berichtsoptionen& optionen = {}) {
    Zeilen ergebnis;
    for (const Absatz& a : fliesstext(bericht(w, form, optionen))) {
        ergebnis.push_back(a.laeufe.empty() ? "" : a.laeufe.front().text);
    }
    return ergebnis;
}
bool enthaelt(const Zeilen& alle, const std::string& zeile) {
    return std::find(alle.begin(), alle.end(), zeile) != alle.end();
}
bool kommtVor(const Zeilen& alle, const std::string& stueck) {
    return std::any_of(alle.begin(), alle.end(),
                       [&](const std::string& z) { return z.find(stueck) != std::string::npos; });
}

// A wall of nine ribs as a run would leave it, as far as the report asks for it.
Wand wand() {
    Wand w;
    w.AnzahlRippen = 9;
    for (const Seite n : beideSeiten) w.tvorh[n] = w.treq[n] = 1;
    return w;
}

struct Fall {
    std::string name;
    Form form;
    std::function<void(Wand&)> aendere;
    Zeilen da;    // whole lines
    Zeilen fort;  // pieces that no line has
};

const Form ansicht = Form::ansicht;
const Form lang = Form::lang;
const Form kurz = Form::kurz;

// clang-format off
const std::vector<Fall> faelle{
    {"a one-sided wall says nothing of side 2", lang, [](Wand& w) { w.Einseitig = true; w.fv0dn[Seite::zwei] = 5; },
     {"Die Wandtafel ist nur einseitig beplankt!", "Beplankung 1:"},
     {"1.3.2", "1.4.2", "Beplankung 2", "fv,0,d,2", "fv,90,d,2", "80%"}},
    {"the weaker side says that it counts 80 %", lang, [](Wand& w) { w.fv0dn[Seite::eins] = 4; },
     {"-> Wird nur zu 80% angesetzt, da Beplankung 2 weniger tragfähig als Beplankung 1!"},
     {"da Beplankung 1 weniger"}},
    {"a utilisation of exactly 1 passes", lang, [](Wand& w) { w.etaSv0 = 1.0; w.maxEtaC90 = 1.0; },
     {"Ausnutzung Scheibenschub parallel zu Rändern: eta = sv,0,d / fv,0,d = 1,00 <= 1,00 ",
      "max. Ausnutzung = 1,000 <= 1,00"}, {"!!!"}},
    {"a utilisation that rounds to 1 from above fails", lang, [](Wand& w) { w.etaSv0 = 1.004; },
     {"Ausnutzung Scheibenschub parallel zu Rändern: eta = sv,0,d / fv,0,d = 1,00 > 1,00!!! "}, {}},
    {"two ribs are the two edge ribs", lang, [](Wand& w) { w.AnzahlRippen = 2; w.Ftd(2) = 1.5; },
     {"Randrippe links: Ft,d = 0,000 kN", "Randrippe rechts: Ft,d = 1,500 kN"}, {"Innenrippe 1", "max. F"}},
    {"a single rib is the left one", lang, [](Wand& w) { w.AnzahlRippen = 1; },
     {"Randrippe links: eta = 0,000 <= 1,00"}, {"Randrippe rechts: "}},
    {"pressure of any size reports no tension", lang, [](Wand& w) { w.WindQuer = true; w.wk = 50; },
     {"Keine Zugkräfte in VM vorhanden --> Nachweis entfällt!"}, {"Fax,d"}},
    {"suction is proven with the resistance of side 1", lang,
     [](Wand& w) { w.WindQuer = true; w.wk = -1; w.etaHerausziehen = 2; w.Rxd[Seite::eins] = 80; w.Rxd[Seite::zwei] = 90; },
     {"max. Ausnutzung eta = 2,000 > 1,00!!!", "max.Fax,d = 0,000 N", "Rx,d = 80,000 N"}, {}},
    {"failing bending leaves its bracket open", lang,
     [](Wand& w) { w.WindQuer = true; w.etaBiegung = 1.5; w.SigmaBiegung = 7; },
     {"max. Ausnutzung = 1,500 > 1,00!!!  (max. Sigma = 7,000 N/mm²"}, {}},
    {"a deformation at its limit passes", lang,
     [](Wand& w) { w.uGesGebrauch = w.uZulGebrauch = 5; w.uGesTragfaehigkeit = 6; w.uZulTragfaehigkeit = 5; },
     {"u,ges = 5,000 mm <= u,zul = 5,000 mm (Grenzzustand Gebrauchstauglichkeit)",
      "u,ges = 6,000 mm > u,zul = 5,000 mm !!! (Grenzzustand Tragfähigkeit)"}, {}},
    {"an anchor of two parts tells how it is nailed", ansicht,
     [](Wand& w) { w.NachweisVerankerung = true; w.Ankertyp = 12; w.Teilausnagelung = 2; w.LagesicherungVerfahren = 1; },
     {"Zuganker nur teilweise ausgenagelt",
      "Vereinfachter Nachweis der Lagesicherheit, d.h. stabilis. Kräfte nur Druckkräfte direkt über der Randrippe für Ermittlung der Zuglasten!",
      "Federsteifigkeit eines Zugankers Summe k,ser = 100000,000 kN/mm (100000 = starr)",
      "Aufnehmbare Zugkraft Rd = 12,000 kN (je Anker)",
      "Durch Betonanker aufzunehmende Kraft Fb,d = 0,000 kN (der Ankerbolzen ist hierfür separat nachzuweisen!)"},
     {"Anzahl Nägel", "bedeutet starr"}},
    {"a free anchor has a name and neither nails nor bolt", lang,
     [](Wand& w) { w.NachweisVerankerung = true; w.Ankertyp = 13; w.FreierAnkerName = "Winkel A"; w.RdAnker = 1; w.Ftdst = 2; },
     {"gewählter Zuganker = 1xfrei gewählter Anker: Winkel A",
      "Rd,ges = 1,000 kN < Ft,dst = 2,000 kN --> nicht ausreichend!!!"}, {"Kammnägel", "Nägel =", "Betonanker"}},
    {"a staple on the absent side 2 still tells its angle", lang,
     [](Wand& w) { w.Einseitig = true; w.VMArt[Seite::zwei] = 8; w.beta = 45; },
     {"-> Für Klammern wird der Winkel beta zwischen Klammerrücken und Faserrichtung des Holzes mit 45,0° angesetzt"},
     {}},
    {"an own material without its row loses its line alone", lang,
     [](Wand& w) { w.Material[Seite::eins] = 13; w.EigenesMaterial[Seite::eins] = 2; w.Material[Seite::zwei] = 13; w.eigeneMaterialien.zeilen.resize(1); w.eigeneMaterialien.zeilen[0].name = "Platte X"; },
     {"Material = Platte X", "Nutzungsklasse für Beplankung 1: NKL 1"}, {"Material = freies"}},
    {"an unknown load duration counts as very short", lang, [](Wand& w) { w.KLED = 9; },
     {"KLED für veränderliche Lasten = sehr kurz"}, {}},
    {"a thin board and a shallow nail both reduce Rd", lang,
     [](Wand& w) { w.treq[Seite::eins] = 0.999; w.tvorh[Seite::zwei] = 0.5; },
     {"Abscherfestigkeit Rd = 0,000 N (je VM, Beplankung 1) --> abgemindert wegen t,vorh < t,req (Beplankungsdicke)",
      "Abscherfestigkeit Rd = 0,000 N (je VM, Beplankung 2) --> abgemindert wegen t,vorh < t,req (Beplankungsdicke)"},
     {}},
    {"a jointed board of half the height is not reduced", lang,
     [](Wand& w) { w.Gestossen[Seite::eins] = true; w.Plattenbreite[Seite::eins] = 1250; },
     {"Die Beplankung ist horizontal einmal gestossen."}, {"um 1/6"}},
};
// clang-format on

TEST(Bericht, EachConditionShowsItsLinesAndNoOthers) {
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        Wand w = wand();
        fall.aendere(w);
        const Zeilen alle = zeilen(w, fall.form);
        for (const std::string& zeile : fall.da) EXPECT_TRUE(enthaelt(alle, zeile)) << zeile;
        for (const std::string& stueck : fall.fort) EXPECT_FALSE(kommtVor(alle, stueck)) << stueck;
    }
}

TEST(Bericht, EachKindOfFastenerTellsItsOwnMeasures) {
    const std::vector<std::pair<std::string, std::string>> arten{
        {"Nägel2,7x50", "kv"},
        {"Sondernägel", "mgkv"},
        {"Klammern", "m"},
        {"Schrauben DIN 7997", "mgkv"},
        {"Schrauben mit Zulassung", "mgkv"},
        {"Schnellbauschrauben DIN 18182-2", "m"},
        {"Nägel DIN 18182-2", "mk"},
        {"Klammern DIN 18182-2", "m"},
    };
    for (std::size_t i = 0; i < arten.size(); ++i) {
        const auto& [name, masse] = arten[i];
        SCOPED_TRACE(name);
        Wand w = wand();
        w.Einseitig = true;
        w.VMArt[Seite::eins] = i + 1;
        const Zeilen alle = zeilen(w, lang);
        EXPECT_TRUE(enthaelt(alle, "VM = " + name));
        for (const auto& [zeichen, zeile] : {std::pair('m', "Nenndurchmesser d = 2,70 mm"),
                                             {'m', "Nennlänge ln = 50,00 mm"},
                                             {'g', "Gewindelänge lg = 25,0 mm"},
                                             {'k', "Kopfdurchmesser dk = 6,1 mm"},
                                             {'v', "VM wird nicht vorgebohrt"}})
            EXPECT_EQ(enthaelt(alle, zeile), masse.find(zeichen) != std::string::npos) << zeile;
    }
}

TEST(Bericht, ThePrintedPreliminaryRemarksAreTheFirstOnesAsManyAsAreFilled) {
    struct Vor {
        Vorbemerkungszeilen eingabe;
        Zeilen gedruckt, gesehen;
    };
    const std::vector<Vor> vors{
        {{"", "", ""}, {}, {}},
        {{"a", "", "c"}, {"a", ""}, {"a", "c"}},
        {{"", "", "c"}, {""}, {"c"}},
        {{"a", "b", "c"}, {"a", "b", "c"}, {"a", "b", "c"}},
    };
    for (const Vor& vor : vors) {
        Wand w = wand();
        w.Vorbemerkungen = vor.eingabe;
        const auto zwischen = [](const Zeilen& alle, std::ptrdiff_t von, const std::string& bis) {
            return Zeilen(alle.begin() + von, std::find(alle.begin(), alle.end(), bis) - 1);
        };
        EXPECT_EQ(zwischen(zeilen(w, lang), 2, "1. System"), vor.gedruckt);
        EXPECT_EQ(zwischen(zeilen(w, ansicht), 10, "1. System").size(), vor.gesehen.size() + 1);
        for (const std::string& z : vor.gesehen) EXPECT_TRUE(enthaelt(zeilen(w, ansicht), z));
    }
}

TEST(Bericht, TheSwitchesOfThePrintDialogTakeTheirPartsAway) {
    Wand w = wand();
    w.Vorbemerkungen[0] = "vorn";
    w.AnzahlZusatzbemerkungen = 1;
    w.Zusatzbemerkungen[0] = "hinten";
    const Zeilen ohne = zeilen(w, lang, {.MitBemerkungen = false, .MitRandbedingungen = false});
    for (const char* stueck : {"vorn", "hinten", "7. Randbedingungen"}) {
        EXPECT_TRUE(kommtVor(zeilen(w, lang), stueck)) << stueck;
        EXPECT_FALSE(kommtVor(ohne, stueck)) << stueck;
    }
    // More remarks promised than there are: those that are there print.
    w.Zusatzbemerkungen.resize(1);
    w.AnzahlZusatzbemerkungen = 300;
    EXPECT_EQ(zeilen(w, lang).back(), "hinten");
}

TEST(Bericht, NumbersTakeTheGivenMarkAndFixedWordsKeepTheirs) {
    const Zeilen alle = zeilen(wand(), lang, {.dezimalzeichen = '.'});
    EXPECT_TRUE(enthaelt(alle, "Wandlänge l = 5.000 m"));
    EXPECT_TRUE(enthaelt(alle, "max. Ausnutzung = 0.000 <= 1,00"));
    EXPECT_TRUE(enthaelt(alle, "VM = Nägel2,7x50"));
}

TEST(Bericht, RibsAbove200FallOutAndAnAbsurdNumberEnds) {
    const auto stabilitaetszeilen = [](double anzahl) {
        Wand w = wand();
        w.AnzahlRippen = anzahl;
        const Zeilen alle = zeilen(w, lang);
        return std::count_if(alle.begin(), alle.end(), [](const std::string& z) {
            return z.find("rippe") != std::string::npos && z.find(": eta = ") != std::string::npos;
        });
    };
    EXPECT_EQ(stabilitaetszeilen(200), 200);
    EXPECT_EQ(stabilitaetszeilen(250), 200);
    EXPECT_EQ(stabilitaetszeilen(1e30), 200);
    EXPECT_EQ(stabilitaetszeilen(-4), 0);
}

TEST(Bericht, ProofLinesCarryTheirUtilisationAndVerdict) {
    Wand w = wand();
    w.NachweisVerankerung = true;
    w.RdAnker = 0;
    w.Ftdst = 4;
    w.etaSv0 = 1.2;
    std::vector<Ausnutzung> alle;
    for (const Absatz& a : fliesstext(bericht(w, kurz))) {
        if (a.ausnutzung) alle.push_back(*a.ausnutzung);
    }
    // Three of the panel, three greatest of the ribs, two deformations, the anchorage.
    ASSERT_EQ(alle.size(), 9U);
    EXPECT_EQ(alle.front().eta, 1.2);
    EXPECT_FALSE(alle.front().erfuellt);
    EXPECT_TRUE(alle[1].erfuellt);
    EXPECT_TRUE(std::isinf(alle.back().eta)) << "no resistance at all";
    EXPECT_FALSE(alle.back().erfuellt);
}

// The limit of its page-break test, mm, behind each heading that has one.
TEST(Bericht, HeadingsKeepTheirPageLimits) {
    std::string grenzen;
    Wand w = wand();
    w.NachweisVerankerung = true;
    for (const Zeile& zeile : bericht(w, lang)) {
        const auto* text = std::get_if<Textzeile>(&zeile);
        if (text == nullptr || !istUeberschrift(text->stil) || !text->grenze) continue;
        const std::string& titel = text->text.value();
        grenzen += titel.substr(0, titel.find(' ')) + " " + std::to_string(std::lround(*text->grenze)) + "; ";
    }
    EXPECT_EQ(
        grenzen,
        "1.3.1 245; 1.3.2 245; 1.4 195; 1.4.2 200; 2. 200; 3. 230; 3.2 205; Beplankung 230; 3.3 180; 4. 230; "
        "4.3 250; 4.4 250; 4.5 250; 5. 245; 5.2 250; 5.3 250; 5.4 250; 5.5 250; 5.6 250; 5.7 250; 5.8 170; "
        "6. 250; 7. 145; ");
}

}  // namespace
}  // namespace rippenscheibe
