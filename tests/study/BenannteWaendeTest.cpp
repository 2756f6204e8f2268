#include <gtest/gtest.h>

#include <cmath>

#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"
#include "study/Bewertung.h"
#include "study/Tafel.h"
#include "support/Walls.h"
#include "support/Zufallswand.h"

// Single walls that show why a search tries what it tries.

namespace rippenscheibe {
namespace {

using tests::S1;

Wand beispiel(const std::string& name) {
    Wand w;
    const Dateiinhalt inhalt = liesDatei(std::string(RIPPENSCHEIBE_BEISPIELE) + "/" + name + ".rsw");
    liesPositionstext(dekodiert(inhalt.bytes), w);
    return w;
}

void setze(Wand& w, std::string_view feld, double wert) { Feldzugriff(w).setze(eingabeindex(feld), wert); }

double aufHundertstel(double x) { return std::nearbyint(100 * x) / 100; }

// The 80 % rule: of two equal sides both count whole, a nearer spacing on one makes the other the weaker.
TEST(BenannteWaende, ANearerSpacingOnOneOfTwoEqualSidesCostsFourKilonewtons) {
    const auto traegt = [](double av1) {
        Wand w = beispiel("decke_und_wind");
        w.av[S1] = av1;
        const Wand frisch = frischerLauf(w, {}).wand;
        return std::nearbyint(10 * frisch.fv0d.value() * frisch.Wandlaenge.value() / 1.5) / 10;  // kN
    };
    EXPECT_EQ(traegt(60), 45.8);
    EXPECT_EQ(traegt(59), 41.6);
}

// A run proves one load duration: under the short one of the wind the wall passes, under its permanent load
// alone it does not.
TEST(BenannteWaende, AWallThatPassesForShortFailsForPermanent) {
    Wand w = beispiel("zuganker");
    for (const auto& [feld, wert] :
         {std::pair("Lastfall", 3.0), {"KLED", 4.0}, {"Fvk", 8.0}, {"gk", 35.8}, {"qk", 3.9}})
        setze(w, feld, wert);
    const auto judge = [&] { return Pruefstand(w, {}).bewerte(); };
    EXPECT_EQ(aufHundertstel(judge().maxEta), 0.84);
    for (const auto& [feld, wert] : {std::pair("Lastfall", 2.0), {"KLED", 1.0}, {"Fvk", 0.0}, {"qk", 0.0}})
        setze(w, feld, wert);
    EXPECT_EQ(aufHundertstel(judge().maxEta), 1.05);
    EXPECT_EQ(judge().ausgang, Ausgang::ueberschritten);
}

TEST(BenannteWaende, PassingHasHoles) {
    Wand abhebend;  // uplift, anchored by the sum of the moments
    abhebend.NachweisVerankerung = abhebend.WindQuer = true;
    abhebend.Lastfall = 3;
    abhebend.LagesicherungVerfahren = 2;
    abhebend.Fvk = 12;
    abhebend.wk = 1;
    abhebend.qk = 3;
    abhebend.av[S1] = 80;
    abhebend.Ankertyp = 5;
    abhebend.bRandrippe = 60;
    Wand lang = abhebend;  // more uplift, exact distribution
    lang.VertikallastVerteilung = 2;
    lang.av[S1] = 60;
    lang.bRandrippe = 80;
    lang.Ankertyp = 2;
    lang.wk = 0.8;
    lang.gk = -7;
    lang.qk = 8;
    struct Fall {
        std::string_view name;
        Wand wand;
        std::string_view suche;
        std::string_view ende;    // of the first stretch that passes
        std::string_view wieder;  // where the second begins
    };
    for (const Fall& f :
         {Fall{"wind and exact distribution", beispiel("aussenwand"), "wk=0:4:0.1", "2.2", "2.8"},
          {"uplift", abhebend, "gk=-7:0:0.25", "-6.00", "-5.00"},
          {"length", lang, "Wandlaenge=4.8:6:0.05", "5.00", "5.35"}}) {
        Tafelauftrag t{};
        t.vorlage = f.wand;
        t.regel.mitLuecken = true;
        t.regel.beideRichtungen = false;
        t.groesste = std::get<Achse>(achseAus(f.suche, Grenzen::beachten));
        t.zeilen = t.spalten = std::get<Achse>(achseAus("NKLRippen=1", Grenzen::beachten));
        const Tafelzelle z = bemessungstafel(t, {}).zellen[0][0];
        ASSERT_GE(z.intervalle.size(), 2U) << f.name;
        EXPECT_EQ(z.intervalle[0].second, f.ende) << f.name;
        EXPECT_EQ(z.intervalle[1].first, f.wieder) << f.name;
        EXPECT_TRUE(z.hatLoecher()) << f.name;
    }
}

// The exact distribution of vertical loads compounds from pass to pass.
TEST(BenannteWaende, TheSecondRunMayBeTheWorse) {
    Wand w;
    w.NachweisVerankerung = true;
    w.Lastfall = 3;
    w.VertikallastVerteilung = 2;
    w.gk = 1;
    w.Fvk = 4;
    w.Ankertyp = 6;
    const auto eta = [&](int laeufe) { return *urteil(frischerLauf(w, {}, laeufe).wand).maxEta; };
    EXPECT_LT(eta(1), eta(2));
    EXPECT_EQ(Pruefstand(w, {}).bewerte().maxEta, eta(2));
}

// A last bay that is shorter than the others, and a bottom plate that goes through on one side only.
TEST(BenannteWaende, TurningTheLoadRoundMayDecide) {
    Wand w;
    for (const auto& [feld, wert] : {std::pair("Lastfall", 3.0),
                                     {"Fvk", 15.0},
                                     {"gk", 20.0},
                                     {"qk", 6.0},
                                     {"bRandrippe", 120.0},
                                     {"Ankertyp", 6.0}})
        setze(w, feld, wert);
    w.NachweisVerankerung = true;
    w.Wandlaenge = 4.4;
    w.LagesicherungVerfahren = 1;
    const auto urteilt = [&](bool beide) {
        Bewertungsregel regel;
        regel.beideRichtungen = beide;
        return Pruefstand(w, {}, regel).bewerte();
    };
    EXPECT_EQ(aufHundertstel(urteilt(false).maxEta), 0.66);
    EXPECT_EQ(aufHundertstel(urteilt(true).maxEta), 1.09);
    EXPECT_TRUE(urteilt(true).nachLinks);
    EXPECT_EQ(urteilt(false).ausgang, Ausgang::besteht);
    EXPECT_EQ(urteilt(true).ausgang, Ausgang::ueberschritten);

    w.Wandlaenge = 3.75;
    w.Fvk = 12;
    w.gk = 12;
    w.bRandrippe = 60;
    w.Ankertyp = 2;
    w.LagesicherungVerfahren = 2;
    w.FussrippeLinksDurchgehend = true;
    EXPECT_EQ(aufHundertstel(urteilt(true).maxEta), 0.43);
    EXPECT_FALSE(urteilt(true).nachLinks);
    w.Fvk = -12;
    EXPECT_EQ(aufHundertstel(urteilt(false).maxEta), 0.32);
}

TEST(BenannteWaende, EitherDirectionOfTheLoadMayGovern) {
    tests::Zufallswaende waende(11);
    int rechts = 0;
    int links = 0;
    for (int i = 0; i < 400; ++i) {
        Wand w;
        static_cast<Eingaben&>(w) = waende.naechste();
        const auto eta = [&](double vorzeichen) {
            Wand gewendet = w;
            gewendet.Fvk = vorzeichen * abs(w.Fvk);
            const FrischeWand frisch = frischerLauf(gewendet, {});
            return urteil(frisch.wand, frisch.ergebnis).maxEta.value_or(0);
        };
        rechts += eta(1) > 1.02 * eta(-1) ? 1 : 0;
        links += eta(-1) > 1.02 * eta(1) ? 1 : 0;
    }
    EXPECT_GT(rechts, 0);
    EXPECT_GT(links, 0);
}

}  // namespace
}  // namespace rippenscheibe
