#include <gtest/gtest.h>

#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"
#include "run/Zuweisen.h"
#include "study/Lastfaelle.h"
#include "study/Projekt.h"
#include "support/Ordnerprobe.h"

namespace rippenscheibe {
namespace {

class Projekt : public Ordnerprobe {
  protected:
    void sichere(const std::string& name, const Wand& w) const { schreibe(name, kodiert(positionstext(w))); }
    std::vector<std::string> namen() const {
        std::vector<std::string> namen;
        const auto dateien = projektdateien(ordner);
        for (const Projektdatei& datei : std::get<0>(dateien))
            namen.push_back(datei.position.datei.filename().string());
        return namen;
    }
    std::vector<Projektposition> lies(const Ausfuehrung& ausfuehrung = {}) const {
        std::vector<Projektposition> positionen;
        liesProjekt(std::get<0>(projektdateien(ordner)), {}, ausfuehrung, [&](Projektposition p) {
            positionen.push_back(std::move(p));
            return true;
        });
        return positionen;
    }
};

// Permanent load that governs only where its duration is permanent.
Wand giebel() {
    Wand w;
    w.Lastfall = 3;
    w.Fvk = 12;
    w.gk = 20;
    w.qk = 10;
    return w;
}

TEST_F(Projekt, FilesStandInTheOrderOfTheirNumbersWithThoseThatDoNotOpen) {
    for (const char* name :
         {"W10.rsw", "w2.rsw", "W1.rsw", "W02-a.rsw", "alt.RSW", "notiz.txt", "W1.lastfaelle.csv"})
        schreibe(name, "");
    std::filesystem::create_directory(ordner / "ordner.rsw");
    EXPECT_EQ(namen(), (std::vector<std::string>{"alt.RSW", "W1.rsw", "W02-a.rsw", "w2.rsw", "W10.rsw"}));
    EXPECT_TRUE(std::holds_alternative<std::string>(projektdateien(ordner / "fehlt")));
}

TEST_F(Projekt, EachPositionSaysWhatAFreshRunOfItSays) {
    sichere("a.rsw", giebel());
    Wand schwach = giebel();
    schwach.Fvk = 60;
    sichere("b.rsw", schwach);
    Wand falsch = giebel();
    falsch.d[Seite::eins] = 0.5;
    sichere("c.rsw", falsch);
    schreibe("d.rsw", "kein Text einer Position");
    schreibe("e.RSW", "");
    for (const int faeden : {1, 3}) {
        const auto p = lies({.faeden = faeden});
        ASSERT_EQ(p.size(), 5U);
        const FrischeWand frisch = frischerLauf(giebel(), {});
        EXPECT_EQ(p[0].urteil.maxEta, urteil(frisch.wand).maxEta);
        EXPECT_EQ(p[0].massgebend, urteil(frisch.wand).massgebend);
        EXPECT_EQ(p[0].luecken, lueckensaetze(frisch.wand));
        EXPECT_EQ(p[0].stand(), Projekturteil::erfuellt);
        EXPECT_EQ(p[0].beplankung, "OSB/3 15 mm");
        EXPECT_EQ(p[0].masse, "5 × 2,5 m");
        EXPECT_EQ(p[1].stand(), Projekturteil::nichtErfuellt);
        EXPECT_EQ(p[2].stand(), Projekturteil::hinweise);
        EXPECT_FALSE(p[2].hinweise.empty());
        EXPECT_EQ(p[3].fehler, keinePosition);
        EXPECT_EQ(p[4].fehler.substr(0, falscheEndung.size()), falscheEndung);
    }
}

TEST_F(Projekt, TheTableBesideAPositionJudgesIt) {
    sichere("a.rsw", giebel());
    const auto ohne = lies().front();
    const auto faelle = vorgeschlageneLastfaelle(giebel());
    schreibe("a.lastfaelle.csv", lastfaelletext(faelle));
    const auto mit = lies().front();
    EXPECT_EQ(mit.lastfaelle, static_cast<int>(faelle.size()));
    // Each case from single runs.
    double groesster = 0;
    std::string massgebend;
    for (const Lastfallzeile& fall : faelle) {
        Wand w = giebel();
        Feldzugriff felder(w);
        for (const auto& [feld, wert] : fall.werte) felder.setze(feld, wert);
        const FrischeWand frisch = frischerLauf(w, {});
        const Urteil u = urteil(frisch.wand, frisch.ergebnis);
        if (*u.maxEta <= groesster) continue;
        groesster = *u.maxEta;
        massgebend = fall.name + ": " + std::string(*u.massgebend);
    }
    EXPECT_GT(groesster, *ohne.urteil.maxEta);
    EXPECT_EQ(mit.urteil.maxEta, groesster);
    EXPECT_EQ(mit.massgebend, massgebend);
    schreibe("a.lastfaelle.csv", "name;Wind\n");
    const auto kaputt = lies().front();
    EXPECT_NE(kaputt.lastfallfehler.find("Zeile 1: unbekannte Spalte \"Wind\""), std::string::npos);
    EXPECT_EQ(kaputt.urteil.maxEta, ohne.urteil.maxEta);
}

TEST_F(Projekt, SaysWhereAWallThatPassesFailsWithFvTurnedRound) {
    Wand w = giebel();
    w.Wandlaenge = 2.5;
    w.bRandrippe = 60;
    w.Fvk = -25.5;  // at the left the sill pressure is not proved
    sichere("a.rsw", w);
    const auto p = lies().front();
    EXPECT_EQ(p.stand(), Projekturteil::erfuellt);
    EXPECT_NE(p.sonst.find("1,04 · 5.2 Schwellenpressung"), std::string::npos) << p.sonst;
}

TEST_F(Projekt, ReadingEndsWhenAskedTo) {
    for (int i = 0; i < 20; ++i) sichere(std::to_string(i) + ".rsw", giebel());
    std::stop_source halt;
    std::size_t gelesen = 0;
    liesProjekt(std::get<0>(projektdateien(ordner)), {}, {.halt = halt.get_token()},
                [&](const Projektposition&) {
                    if (++gelesen == 3) halt.request_stop();
                    return true;
                });
    EXPECT_EQ(gelesen, 3U);
}

}  // namespace
}  // namespace rippenscheibe
