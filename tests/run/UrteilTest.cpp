#include <gtest/gtest.h>

#include <functional>
#include <type_traits>
#include <vector>

#include "run/FrischerLauf.h"
#include "run/Luecken.h"
#include "run/Urteil.h"
#include "run/Zuweisen.h"
#include "support/Walls.h"
#include "support/Zufallswand.h"

namespace rippenscheibe {
namespace {

// All results of a record as numbers, every element of the rib arrays.
std::vector<double> werte(const Ergebnisse& e) {
    std::vector<double> alle;
    const auto sammle = [&](const Feldangabe&, const auto& feld) {
        using T = std::remove_cvref_t<decltype(feld)>;
        if constexpr (std::is_same_v<T, Rippenfeld>) {
            for (int i = 0; i < static_cast<int>(Rippenfeld::laenge); ++i) alle.push_back(feld(i).value());
        } else if constexpr (std::is_same_v<T, bool>) {
            alle.push_back(feld ? 1 : 0);
        } else {
            alle.push_back(static_cast<double>(feld.value()));
        }
    };
    Ergebnisse::jedesFeld(e, sammle);
    return alle;
}
bool gleich(const Ergebnisse& a, const Ergebnisse& b) { return werte(a) == werte(b); }

TEST(FrischerLauf, IsTheRunOfAProgramJustStartedWhateverWasComputedBefore) {
    Zufallswaende waende(1);
    Wand sitzung;
    int abweichend = 0;
    for (int i = 0; i < 400; ++i) {
        const Eingaben eingaben = waende.naechste();
        const int laeufe = 1 + i % 2;
        Wand programm;
        zuweisen(programm, grundmasse(programm));
        static_cast<Eingaben&>(programm) = eingaben;
        const Grundmasse felder = grundmasse(programm);
        zuweisen(programm, felder);
        for (int lauf = 0; lauf < laeufe; ++lauf) {
            zuweisen(programm, felder);
            starte(programm);
        }
        static_cast<Eingaben&>(sitzung) = eingaben;
        zuweisen(sitzung, felder);
        starte(sitzung);
        abweichend += gleich(sitzung, programm) ? 0 : 1;

        static_cast<Eingaben&>(sitzung) = eingaben;
        rechneFrisch(sitzung, laeufe);
        EXPECT_TRUE(gleich(sitzung, programm)) << i;
        EXPECT_EQ(sitzung.Hinweise, programm.Hinweise);
        EXPECT_TRUE(gleich(frischerLauf(eingaben, {}, laeufe).wand, programm)) << i;
    }
    EXPECT_GT(abweichend, 100);  // without the fresh start the walls before show through
}

TEST(Urteil, IsAboveOneExactlyWhenNotAllProofsAreMet) {
    Zufallswaende waende(2);
    Wand w;
    int erfuellt = 0;
    int gerechnet = 0;
    for (int i = 0; i < 4000; ++i) {
        static_cast<Eingaben&>(w) = waende.naechste();
        const Laufergebnis ergebnis = rechneFrisch(w, 1, Hinweisbehandlung::uebergehen);
        const Urteil u = urteil(w, ergebnis);
        ASSERT_TRUE(u.maxEta);
        EXPECT_EQ(*u.maxEta > 1, !w.AlleNachweiseErfuellt) << *u.maxEta;
        EXPECT_EQ(u.massgebend.has_value(), *u.maxEta != 0);
        erfuellt += w.AlleNachweiseErfuellt ? 1 : 0;
        ++gerechnet;
    }
    EXPECT_GT(erfuellt, 100);
    EXPECT_GT(gerechnet - erfuellt, 100);
    EXPECT_FALSE(urteil(w, Laufergebnis::hinweise).maxEta);
    EXPECT_FALSE(urteil(w, Laufergebnis::hinweise).massgebend);
}

TEST(Urteil, NamesTheFirstProofOfTheLargestRoundedValueOnItsSideOfOne) {
    struct Fall {
        std::string_view was;
        std::function<void(Wand&)> setze;
        double maxEta;
        std::string_view massgebend;
    };
    const Fall faelle[] = {
        {"nothing asked", [](Wand&) {}, 0, ""},
        {"a tie keeps the report's order", [](Wand& w) { w.etaSv90 = 0.5, w.maxEtaT0 = 0.5; }, 0.5,
         "5.1 Scheibenschub senkrecht"},
        {"equal to four places", [](Wand& w) { w.etaKombi = 0.70001, w.maxEtaStabilitaet = 0.70004; },
         0.70004, "5.1 Scheibenschub kombiniert"},
        {"a proof that is met is not named for one that is not",
         [](Wand& w) { w.etaKombi = 1, w.maxEtaStabilitaet = 1.00001; }, 1.00001, "5.3 Stabilität"},
        {"deformation", [](Wand& w) { w.uGesTragfaehigkeit = 30, w.uZulTragfaehigkeit = 25; }, 1.2,
         "5.7 Tragfähigkeit"},
        {"no resistance at all", [](Wand& w) { w.NachweisVerankerung = true, w.RdAnker = 0, w.Ftdst = 1; },
         10, "5.8 Verankerung"},
        {"anchorage switched off", [](Wand& w) { w.RdAnker = 1, w.Ftdst = 5, w.maxEtaC90 = 0.1; }, 0.1,
         "5.2 Schwellenpressung"},
    };
    for (const Fall& fall : faelle) {
        Wand w;
        fall.setze(w);
        const Urteil u = urteil(w);
        EXPECT_EQ(u.maxEta, fall.maxEta) << fall.was;
        EXPECT_EQ(u.massgebend.value_or(""), fall.massgebend) << fall.was;
    }
}

TEST(Abschnittsurteile, TellProvedFromNothingToProveFromDemandWithoutProof) {
    Wand w;  // horizontal load only, anchorage not proved
    w.gkWand = 0;
    rechneFrisch(w);
    auto a = abschnittsurteile(w);
    ASSERT_EQ(a.size(), 8U);
    EXPECT_EQ(a[0].stand, Nachweisstand::gefuehrt);
    EXPECT_GT(a[0].groesster, 0);
    EXPECT_EQ(a[4].stand, Nachweisstand::keineBeanspruchung);
    EXPECT_EQ(a[7].stand, Nachweisstand::offen);
    EXPECT_EQ(a[7].luecke, "Ft,d = 2,25 kN, Verankerung nicht nachgewiesen");

    w.wk = 1;  // stored without its switch: the report leaves the bending out, the verdict does not
    w.NachweisVerankerung = true;
    rechneFrisch(w);
    a = abschnittsurteile(w);
    EXPECT_TRUE(a[4].entfaelltImBericht);
    EXPECT_EQ(a[7].stand, Nachweisstand::gefuehrt);
}

TEST(Luecken, NameWhatTheLoadsAskForAndTheRunDidNotProve) {
    struct Fall {
        std::function<void(Wand&)> setze;
        Lueckenart art;
        std::string_view satz;
    };
    const Fall faelle[] = {
        {[](Wand& w) { w.NachweisVerankerung = false; }, Lueckenart::verankerung,
         "Ft,d = 2,25 kN, Verankerung nicht nachgewiesen"},
        {[](Wand& w) { w.Fvk = -3; }, Lueckenart::schwelleLinks,
         "Fv < 0: Fc,d = 1,66 kN, Schwellenpressung der linken Randrippe nicht nachgewiesen"},
        // three passes, the ribs take 85.58 % each time: the third distributes 0.8558²
        {[](Wand& w) { w.VertikallastVerteilung = 2, w.Lastfall = 3, w.gk = 10; }, Lueckenart::lastverlust,
         "Genaue Verteilung der Vertikallasten: der letzte Durchgang verteilt nur noch 73,2 % der Last"},
        {[](Wand& w) { w.VMArt[S2] = 3, w.d[S2] = 1.53, w.fuk[S2] = 900; }, Lueckenart::verschiebung,
         "Seite 2: Klammern ohne Verschiebungsmodul, ihr Anteil fehlt in der Verformung"},
        {[](Wand& w) { w.Material[S1] = w.Material[S2] = 13; }, Lueckenart::schubmodul,
         "Seite 1 und 2: Schubmodul der Beplankung 0, ihr Anteil fehlt in der Verformung"},
        {[](Wand& w) { w.Plattendicke1 = 30, w.wk = 0.5, w.WindQuer = true; }, Lueckenart::biegefestigkeit,
         "Wind quer zur Wand, Biegefestigkeit der Beplankung 1 ist 0, Biegung nicht nachgewiesen"},
    };
    Wand ohne;
    ohne.NachweisVerankerung = true;
    rechneFrisch(ohne, 1, Hinweisbehandlung::uebergehen);
    EXPECT_TRUE(luecken(ohne).leer());
    for (const Fall& fall : faelle) {
        Wand w;
        w.NachweisVerankerung = true;
        fall.setze(w);
        rechneFrisch(w, 1, Hinweisbehandlung::uebergehen);
        EXPECT_TRUE(luecken(w).enthaelt(fall.art)) << fall.satz;
        EXPECT_EQ(lueckensatz(w, fall.art), fall.satz);
        EXPECT_FALSE(lueckenursache(fall.art).empty());
    }

    // Strengths of 0 and shares outside 0 to 1 as a run may leave them.
    Wand w = ohne;
    w.fc90d = w.ft0d = 0;
    w.VertikallastVerteilung = 2;
    w.AnteilRippen = 1.25;
    w.AnteilBeplankung = -0.25;
    for (const Lueckenart art : {Lueckenart::querdruck, Lueckenart::laengszug, Lueckenart::anteile})
        EXPECT_TRUE(luecken(w).enthaelt(art)) << lueckensatz(w, art);
}

}  // namespace
}  // namespace rippenscheibe
