#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <tuple>

#include "run/Zuweisen.h"
#include "study/Auslegung.h"
#include "study/Lastfaelle.h"
#include "study/Tafelblatt.h"
#include "study/Variation.h"
#include "study/WasHilft.h"
#include "support/Walls.h"

namespace rippenscheibe {
namespace {

Achse achse(std::string_view text) { return std::get<Achse>(achseAus(text, Grenzen::beachten)); }

// A wall that carries wind along it and a roof, anchored.
Wand wand() {
    Wand w;
    w.NachweisVerankerung = true;
    w.Lastfall = 3;
    w.Fvk = 12;
    w.gk = 4;
    w.qk = 3;
    w.Ankertyp = 2;
    return w;
}

// What a wall is worth, told again by single fresh runs of the program: both signs, first and second run.
struct Einzelurteil {
    bool besteht = true;
    double maxEta = 0;
};
Einzelurteil einzeln(Wand w, const Bewertungsregel& regel) {
    Einzelurteil urteilAlle;
    const Zahl Fvk = w.Fvk;
    for (const double vorzeichen : {1.0, -1.0}) {
        w.Fvk = vorzeichen * Fvk;
        for (const int laeufe : {1, 2}) {
            const FrischeWand frisch = frischerLauf(w, {}, laeufe);
            const Urteil u = urteil(frisch.wand, frisch.ergebnis);
            Lueckenmenge offen = u.maxEta ? luecken(frisch.wand) : Lueckenmenge{};
            offen.nimmAus(Lueckenart::schwelleLinks);
            urteilAlle.besteht = urteilAlle.besteht && u.maxEta && *u.maxEta <= regel.hoechstens &&
                                 (regel.mitLuecken || offen.leer());
            urteilAlle.maxEta = std::max(urteilAlle.maxEta, u.maxEta.value_or(0));
            if (u.maxEta.value_or(0) > regel.hoechstens) break;  // the second run is for those that pass
        }
    }
    return urteilAlle;
}

Preise beispielpreise() { return std::get<Preise>(Preise::aus(geliefertePreise())); }

Auslegungsauftrag auftrag() {
    Auslegungsauftrag a{};
    a.vorlage = wand();
    a.raster = Raster({achse("av1,av2=35:150:5"), achse("Plattendicke1,Plattendicke2=12,15,18"),
                       achse("bRandrippe=60,80,100")});
    a.preise = beispielpreise();
    a.zahl = 4;
    return a;
}

TEST(Auslegung, FindsWhatTryingEveryWallOfTheGridFinds) {
    for (const Auslegungsziel ziel :
         {Auslegungsziel::kosten, Auslegungsziel::verbindungsmittel, Auslegungsziel::gewicht}) {
        Auslegungsauftrag a = auftrag();
        a.ziel = ziel;
        a.regel.hoechstens = 0.8;
        std::vector<Entwurf> alle;
        for (std::size_t i = 0; i < a.raster.anzahl(); ++i) {
            Wand w = wand();
            Feldzugriff felder(w);
            a.raster.setze(i, felder);
            const Einzelurteil u = einzeln(w, a.regel);
            if (!u.besteht) continue;
            const Mengensummen m = mengensummen(w);
            Entwurf entwurf{.nummer = i};
            entwurf.bewertung.maxEta = u.maxEta;
            entwurf.wert = ziel == Auslegungsziel::kosten ? *a.preise.kosten(w)
                           : ziel == Auslegungsziel::gewicht
                               ? std::nearbyint(wandgewicht(w) * 1e6) / 1e6
                               : m.verbindungsmittel[S1] + m.verbindungsmittel[S2];
            alle.push_back(entwurf);
        }
        std::sort(alle.begin(), alle.end(), [](const Entwurf& x, const Entwurf& y) {
            return std::tie(x.wert, x.bewertung.maxEta, x.nummer) <
                   std::tie(y.wert, y.bewertung.maxEta, y.nummer);
        });
        ASSERT_GT(alle.size(), a.zahl);
        ASSERT_LT(alle.size(), a.raster.anzahl());
        for (const int faeden : {1, 2, 7}) {
            const auto e = std::get<Auslegungsergebnis>(legeAus(a, {.faeden = faeden}));
            ASSERT_EQ(e.entwuerfe.size(), a.zahl);
            for (std::size_t i = 0; i < a.zahl; ++i) {
                EXPECT_EQ(e.entwuerfe[i].nummer, alle[i].nummer);
                EXPECT_EQ(e.entwuerfe[i].wert, alle[i].wert);
                EXPECT_EQ(e.entwuerfe[i].bewertung.maxEta, alle[i].bewertung.maxEta);
            }
            std::size_t gezaehlt = e.bestanden + e.mitHinweis;
            for (const auto& [nachweis, zahl] : e.anNachweis) gezaehlt += zahl;
            EXPECT_EQ(gezaehlt, e.geprueft);
            EXPECT_TRUE(e.vollstaendig);
        }
    }
}

TEST(Auslegung, DropsWallsWithGapsAndSaysWhichOptionBringsThem) {
    Auslegungsauftrag a = auftrag();
    a.vorlage.NachweisVerankerung = false;
    auto e = std::get<Auslegungsergebnis>(legeAus(a, {}));
    EXPECT_TRUE(e.entwuerfe.empty());
    EXPECT_GT(e.anLuecke[Lueckenart::verankerung], 0U);
    a.regel.mitLuecken = true;
    e = std::get<Auslegungsergebnis>(legeAus(a, {}));
    ASSERT_FALSE(e.entwuerfe.empty());
    EXPECT_TRUE(e.entwuerfe[0].bewertung.luecken.enthaelt(Lueckenart::verankerung));
}

TEST(Auslegung, NothingPassesNamesTheNearestAndAMissingPriceIsAnError) {
    Auslegungsauftrag a = auftrag();
    a.vorlage.Fvk = 900;
    const auto e = std::get<Auslegungsergebnis>(legeAus(a, {.faeden = 2}));
    EXPECT_TRUE(e.entwuerfe.empty());
    ASSERT_EQ(e.knappVerfehlt.size(), 5U);
    EXPECT_LE(e.knappVerfehlt[0].bewertung.maxEta, e.knappVerfehlt[4].bewertung.maxEta);
    a.raster = Raster({achse("Plattendicke1=15,14.5")});
    EXPECT_EQ(std::get<std::string>(legeAus(a, {})), "kein Preis für Platte \"OSB/3\" mit 14,5 mm");
    EXPECT_EQ(festesFeld(Raster({achse("av1=50"), achse("KLED=1,2")})), "KLED");
}

TEST(Preise, TheDeliveredTableHasAPriceForEveryRowOfEveryCatalogue) {
    const Preise preise = beispielpreise();
    const auto pruefe = [&](std::string_view feld, int anzahl, auto aendere) {
        for (int zeile = 1; zeile <= anzahl; ++zeile) {
            Wand w = wand();
            Feldzugriff(w).setze(eingabeindex(feld), static_cast<double>(zeile));
            for (const std::string& dicke : aendere(zeile)) {
                w.Plattendicke1 = zahlAus(dicke);
                EXPECT_TRUE(preise.kosten(w)) << preise.fehlenderPreis(w);
            }
        }
    };
    const auto heutige = [](int) { return std::vector<std::string>{"15"}; };
    pruefe("Holzart", 13, heutige);
    pruefe("VMArt1", 8, heutige);
    pruefe("Ankertyp", 12, heutige);
    pruefe("Material1", 12, ueblicheDicken);
    EXPECT_EQ(std::get<std::string>(Preise::aus("Art\nHolz;C24;;9\nHolz;C24;;8\n")),
              "Zeile 3: Holz \"C24\" steht zweimal");
    EXPECT_EQ(std::get<Preise>(Preise::lade("kein/ordner")).herkunft(),
              "Preise: mitgelieferte Beispielpreise, ohne Gewähr");
}

TEST(Auslegung, StopsWhereItIsToldAndKeepsWhatIsProven) {
    Auslegungsauftrag a = auftrag();
    a.zahl = 1000;
    std::stop_source halt;
    const auto e = std::get<Auslegungsergebnis>(legeAus(a, {1, halt.get_token(), [&](const Fortschritt& f) {
                                                                if (f.geprueft >= 64) halt.request_stop();
                                                            }}));
    EXPECT_FALSE(e.vollstaendig);
    EXPECT_EQ(e.geprueft, 64U);
}

TEST(WasHilft, ANearerSpacingOnOneOfTwoEqualSidesMakesTheWallWeaker) {
    const Wand w = wand();
    const Hilfe hilfe = wasHilft(w, {}, {}, {.faeden = 2});
    const auto schritt = [&](std::string_view text) {
        const auto treffer = std::find_if(hilfe.schritte.begin(), hilfe.schritte.end(),
                                          [&](const Hilfeschritt& s) { return s.text == text; });
        EXPECT_NE(treffer, hilfe.schritte.end()) << text;
        return treffer == hilfe.schritte.end() ? Hilfeschritt{} : *treffer;
    };
    EXPECT_LT(schritt("av1, av2 60 -> 55").bewertung.maxEta, hilfe.heute.maxEta);
    EXPECT_GT(schritt("av1 60 -> 55").bewertung.maxEta, hilfe.heute.maxEta);
    for (const Hilfeschritt& s : hilfe.schritte) {
        Wand neu = w;
        Feldzugriff felder(neu);
        for (const auto& [feld, wert] : s.setzt) felder.setze(feld, wert);
        const bool besteht = s.bewertung.ausgang == Ausgang::besteht;
        EXPECT_EQ(besteht, einzeln(neu, {}).besteht) << s.text;
        EXPECT_EQ(besteht ? s.bewertung.maxEta : 0, besteht ? einzeln(neu, {}).maxEta : 0) << s.text;
    }
    Wand zweierlei = w;  // boards of side 2 have thicknesses of their own
    zweierlei.Material[S2] = 3;
    zweierlei.Plattendicke2 = 12.5;
    const Hilfe je = wasHilft(zweierlei, {}, {}, {});
    EXPECT_TRUE(std::any_of(je.schritte.begin(), je.schritte.end(), [](const Hilfeschritt& s) {
        return s.text == "Plattendicke1 15 -> 18; Plattendicke2 12,5 -> 15";
    }));
    EXPECT_TRUE(std::is_sorted(
        hilfe.schritte.begin(), hilfe.schritte.end(), [](const Hilfeschritt& a, const Hilfeschritt& b) {
            return b.bewertung.ausgang != Ausgang::hinweis && a.bewertung.ausgang != Ausgang::hinweis &&
                   a.bewertung.maxEta < b.bewertung.maxEta;
        }));
}

TEST(Tafel, HoldsInEachCellTheLastValueOfAScanByHand) {
    Tafelauftrag t{};
    t.vorlage = wand();
    t.groesste = achse("Fvk=0:60:0.5");
    t.zeilen = achse("Wandlaenge=2.5,5");
    t.spalten = achse("av1,av2=40,75,150");
    const Tafel einer = bemessungstafel(t, {});
    const Tafel sieben = bemessungstafel(t, {.faeden = 7});
    std::size_t mitWert = 0;
    for (std::size_t i = 0; i < 2; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
            std::vector<std::pair<std::string, std::string>> intervalle;
            bool vorher = false;
            for (const Achsenwert& wert : t.groesste.werte) {
                Wand w = wand();
                Feldzugriff felder(w);
                Raster({t.zeilen, t.spalten}).setze(3 * i + j, felder);
                felder.setze(eingabeindex("Fvk"), wert.setzt[0].second);
                const bool besteht = einzeln(w, {}).besteht;
                if (besteht && !vorher) intervalle.emplace_back(wert.text, wert.text);
                if (besteht) intervalle.back().second = wert.text;
                vorher = besteht;
            }
            const Tafelzelle& z = einer.zellen[i][j];
            EXPECT_EQ(z.intervalle, intervalle);
            EXPECT_EQ(sieben.zellen[i][j].intervalle, intervalle);
            if (intervalle.empty() || intervalle[0].first != "0.0") continue;
            ++mitWert;
            EXPECT_EQ(z.groesste, intervalle[0].second);
            EXPECT_FALSE(z.massgebend.empty());
        }
    }
    EXPECT_GT(mitWert, 2U);
    const Tafelblatt blatt = tafelblatt(t, einer);
    EXPECT_EQ(blatt.zellen.size(), 3U);
    EXPECT_EQ(std::count(blatt.feste.begin(), blatt.feste.end(),
                         std::pair<std::string, std::string>("gk", "4 kN/m")),
              1);
    EXPECT_TRUE(tafelRtf(blatt).starts_with("{\\rtf1"));
}

TEST(Variation, GivesEachPointOfTheGridInOrder) {
    Variationsauftrag v{};
    v.vorlage = wand();
    v.raster = Raster({achse("av1,av2=50:150:10"), achse("Fvk=5,20,40")});
    v.felder = {"av1", "Rd1"};
    std::size_t nummer = 0;
    variiere(v, {.faeden = 3}, [&](const Variationspunkt& p) {
        EXPECT_EQ(p.nummer, nummer++);
        Wand w = wand();
        Feldzugriff felder(w);
        v.raster.setze(p.nummer, felder);
        EXPECT_EQ(p.bewertung.ausgang == Ausgang::besteht, einzeln(w, {}).besteht);
        EXPECT_EQ(p.felder[0], zahltext(w.av[S1].value()));
        return true;
    });
    EXPECT_EQ(nummer, 33U);
}

TEST(Lastfaelle, AWallThatPassesUnderWindMayFailUnderItsPermanentLoad) {
    Wand w = wand();
    w.Fvk = 5;
    w.gk = 60;
    w.qk = 0;
    w.bRandrippe = w.bInnenrippe = 60;
    Pruefstand einer(w, {}, {});
    const Bewertung allein = einer.bewerte();
    const auto faelle = vorgeschlageneLastfaelle(w);
    EXPECT_EQ(std::get<0>(lastfaelleAus(lastfaelletext(faelle))).size(), faelle.size());
    Pruefstand mitFaellen(w, {}, {.lastfaelle = faelle});
    const Bewertung alle = mitFaellen.bewerte();
    EXPECT_GT(alle.maxEta, allein.maxEta);
    EXPECT_EQ(faelle[static_cast<std::size_t>(alle.lastfall)].name, "Vertikallast ständig");
    EXPECT_EQ(std::get<std::string>(lastfaelleAus("name;Fvk\nA;viel\n")),
              "Zeile 2: Fvk = \"viel\" ist keine Zahl");
    EXPECT_EQ(std::get<std::string>(lastfaelleAus("name;Rd1\n")), "Zeile 1: unbekannte Spalte \"Rd1\"");
    EXPECT_EQ(std::get<std::string>(lastfaelleAus("name;gk;gk\n")), "Zeile 1: die Spalte gk steht zweimal");
    EXPECT_EQ(tabellentext("W\xE4nde"), "Wände");
    EXPECT_EQ(tabellentext("Wände"), "Wände");
}

// The default wall by hand: seven inner ribs of 2.38 m, panels of 1.25 x 2.5 m on both sides.
TEST(Mengen, CountTimberBoardsFastenersAndAnchorsOfTheDefaultWall) {
    Wand w = wand();
    w.AnzahlAnker = 2;
    w.Gestossen[S2] = true;
    const Mengen m = mengen(w);
    ASSERT_EQ(m.holz.size(), 6U);  // edge ribs, inner ribs, plates, blocking in three lengths of bays
    EXPECT_EQ(m.holz[1].stueck, 7);
    EXPECT_EQ(m.holz[1].laenge, 2380);
    EXPECT_EQ(m.holz[3].laenge, 625 - 80 - 40);
    EXPECT_EQ(m.holz[4].laenge, 625 - 80);
    EXPECT_EQ(m.holz[4].stueck, 6);
    ASSERT_EQ(m.platten.size(), 1U);
    EXPECT_EQ(m.platten[0].flaeche, 25);
    EXPECT_EQ(m.platten[0].stueck, 4 + 8);
    ASSERT_EQ(m.verbindungsmittel.size(), 1U);
    EXPECT_EQ(m.verbindungsmittel[0].name, "Nägel 2,7x50");
    EXPECT_EQ(m.verbindungsmittel[0].stueck, (2 * 84 + 12 * 42) + (4 * 84 + 12 * 42));
    EXPECT_EQ(m.anker[0].stueck, 4);
    const Mengensummen s = mengensummen(w);
    EXPECT_DOUBLE_EQ(s.holz, holzvolumen(m));
    EXPECT_EQ(s.verbindungsmittel[S1] + s.verbindungsmittel[S2], m.verbindungsmittel[0].stueck);
}

TEST(Standardachsen, ASideOfAnotherKindKeepsItsOwnFastenerAndBoard) {
    Eingaben e{};
    const auto felder = [&](std::size_t achse) { return standardachsen(e)[achse].achse.name; };
    EXPECT_EQ(felder(1), "VMTyp1,VMTyp2");
    EXPECT_EQ(felder(2), "Plattendicke1,Plattendicke2");
    e.VMArt[Seite::zwei] = 3;
    e.Material[Seite::zwei] = 7;
    EXPECT_EQ(felder(1), "VMTyp1");
    EXPECT_EQ(felder(2), "Plattendicke1");
}

}  // namespace
}  // namespace rippenscheibe
