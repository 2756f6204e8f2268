#include <random>

#include "support/Gerechnet.h"

namespace rippenscheibe {
namespace {

class Schritte : public Programmprobe {
  protected:
    // One visit that changes a few inputs at random; now and then a run before it enters RdAnker.
    void aendere(std::mt19937& zufall, int i) {
        if (i % 7 == 3) starte(programm.w, Hinweisbehandlung::uebergehen);
        const Schritt schritt(programm, QString::number(i));
        Wand& w = programm.w;
        programm.felder.Rippenabstand = 0.3 + double(zufall() % 1000) / 3000;
        w.av[zufall() % 2 == 0 ? Seite::eins : Seite::zwei] = 20 + i / 7.0;
        w.NachweisVerankerung = zufall() % 2 == 0;
        w.AnzahlAnkerNaegel = 10 + i % 20;
        w.Zusatzbemerkungen[zufall() % 200] = std::to_string(i);
        w.PositionsBemerkung = "Schritt " + std::to_string(i);
        programm.zuweisen();
    }
};

TEST_F(Schritte, TwoHundredStepsBackAndForthEndInTheSameBytes) {
    std::mt19937 zufall(7);
    std::vector<std::string> texte{positionstext(programm.w)};
    constexpr int anzahl = 200;
    for (int i = 0; i < anzahl; ++i) {
        aendere(zufall, i);
        texte.push_back(positionstext(programm.w));
    }
    const std::vector<double> masse{programm.felder.Rippenabstand};
    for (int i = anzahl; i > 0; --i) {
        ASSERT_EQ(*programm.schritte().letzter(), std::to_string(i - 1));
        programm.rueckgaengig();
        ASSERT_EQ(positionstext(programm.w), texte[std::size_t(i - 1)]) << i;
    }
    EXPECT_EQ(programm.schritte().letzter(), nullptr);
    for (int i = 1; i <= anzahl; ++i) {
        programm.wiederhole();
        ASSERT_EQ(positionstext(programm.w), texte[std::size_t(i)]) << i;
    }
    EXPECT_EQ(programm.schritte().naechster(), nullptr);
    EXPECT_EQ(programm.felder.Rippenabstand, masse[0]);
}

TEST_F(Schritte, WhatARunEntersBelongsToTheFollowingStep) {
    programm.w.NachweisVerankerung = true;
    programm.w.Ankertyp = 3;
    programm.leereSchritte();
    const Zahl vorher = programm.w.RdAnker;
    starte(programm.w, Hinweisbehandlung::uebergehen);
    const Zahl gerechnet = programm.w.RdAnker;
    ASSERT_NE(vorher.value(), gerechnet.value());
    { const Schritt ohneAenderung(programm, QStringLiteral("nichts")); }
    EXPECT_EQ(programm.schritte().letzter(), nullptr);
    {
        const Schritt aussen(programm, QStringLiteral("aussen"));
        programm.w.gk = 1;
        const Schritt innen(programm, QStringLiteral("innen"));
        programm.w.gk = 2;
    }
    programm.rueckgaengig();
    EXPECT_EQ(programm.w.gk, 1);
    EXPECT_EQ(*programm.schritte().naechster(), "innen");
    programm.rueckgaengig();
    EXPECT_EQ(programm.w.gk, 0);
    EXPECT_EQ(programm.w.RdAnker.value(), vorher.value());
    programm.wiederhole();
    EXPECT_EQ(programm.w.RdAnker.value(), gerechnet.value());
}

}  // namespace
}  // namespace rippenscheibe
