#include "basis/Zahlenformat.h"
#include "study/Auslegung.h"
#include "study/Lastfaelle.h"
#include "study/WasHilft.h"
#include "support/Gerechnet.h"

namespace rippenscheibe {
namespace {

bool warteAuf(const std::function<bool()>& bedingung) {
    constexpr int geduld = 60'000;  // ms
    return QTest::qWaitFor(bedingung, geduld);
}

class AuslegenTest : public Gerechnet {
  protected:
    AuslegenTest() {
        rechne("zuganker");
        programm.leereSchritte();
    }
    void imFenster(const std::function<void(QWidget&)>& bedienen) {
        EXPECT_TRUE(
            mitFenster([&] { oeffne(Fensterart::auslegen, programm, meldungen, nullptr); }, bedienen));
    }
    static void suche(QWidget& fenster) {
        klicke(fenster, "Suchen");
        ASSERT_TRUE(warteAuf([&] { return finde<QPushButton>(fenster, "Suchen").isEnabled(); }));
    }
    // What the window searches at first.
    Auslegungsauftrag auftrag() const {
        Auslegungsauftrag a{};
        a.vorlage = programm.w;
        a.preise = std::get<Preise>(Preise::aus(geliefertePreise()));
        const auto achsen = standardachsen(a.vorlage);
        a.raster = Raster({achsen[0].achse, achsen[1].achse});
        return a;
    }
    static void vergleiche(QWidget& fenster, const Auslegungsergebnis& erwartet) {
        const auto& tabelle = finde<QTreeWidget>(fenster, "Entwuerfe");
        ASSERT_EQ(tabelle.topLevelItemCount(), 1 + int(erwartet.entwuerfe.size()));
        for (std::size_t i = 0; i < erwartet.entwuerfe.size(); ++i)
            EXPECT_EQ(tabelle.topLevelItem(int(i) + 1)->text(1),
                      qtext(formatiere("0.00", erwartet.entwuerfe[i].wert, dezimalzeichen())));
        const QString befund = finde<QLabel>(fenster, "Befund").text();
        EXPECT_TRUE(befund.contains(qtext(ausscheidegruende(erwartet)))) << befund.toStdString();
    }
};

TEST_F(AuslegenTest, ASearchFindsWhatTheCoreFindsAndItsDesignCanBeTakenOverAndBack) {
    const Auslegungsauftrag a = auftrag();
    const auto erwartet = std::get<Auslegungsergebnis>(legeAus(a, {}));
    const std::vector<std::string> vorher = alleFelder(programm.w);
    imFenster([&](QWidget& fenster) {
        suche(fenster);
        vergleiche(fenster, erwartet);
        EXPECT_TRUE(finde<QLabel>(fenster, "Preise").text().contains("mitgelieferte Beispielpreise"));
        klicke(fenster, "Uebernehmen");
    });
    Wand beste;
    static_cast<Eingaben&>(beste) = a.vorlage;
    Feldzugriff felder(beste);
    a.raster.setze(erwartet.entwuerfe.front().nummer, felder);
    EXPECT_EQ(programm.w.av[Seite::eins], beste.av[Seite::eins]);
    EXPECT_EQ(programm.w.ln[Seite::eins], beste.ln[Seite::eins]);
    EXPECT_FALSE(programm.Gesichert());
    ASSERT_NE(programm.schritte().letzter(), nullptr);
    EXPECT_EQ(*programm.schritte().letzter(), "Auslegen");
    programm.rueckgaengig();
    EXPECT_EQ(alleFelder(programm.w), vorher);
}

TEST_F(AuslegenTest, LoadCasesBesideThePositionCountUntilTheyAreSwitchedOff) {
    Auslegungsauftrag a = auftrag();
    a.regel.lastfaelle = vorgeschlageneLastfaelle(programm.w);
    programm.Dateiname = utf8(datei("w.rsw"));
    EXPECT_FALSE(schreibeDauerhaft(pfad(datei("w.lastfaelle.csv")), lastfaelletext(a.regel.lastfaelle)));
    imFenster([&](QWidget& fenster) {
        suche(fenster);
        vergleiche(fenster, std::get<Auslegungsergebnis>(legeAus(a, {})));
        klicke(fenster, "MitLastfaellen");
        suche(fenster);
        vergleiche(fenster, std::get<Auslegungsergebnis>(legeAus(auftrag(), {})));
    });
    // A table of the largest Fv cannot count what the cases set themselves.
    mitFenster([&] { oeffne(Fensterart::tafel, programm, meldungen, nullptr); },
               [](QWidget& fenster) {
                   const auto& wahl = finde<QCheckBox>(fenster, "MitLastfaellen");
                   EXPECT_FALSE(wahl.isChecked() || wahl.isEnabled());
                   EXPECT_TRUE(wahl.text().startsWith(QStringLiteral("ohne")));
               });
}

TEST_F(AuslegenTest, NextStepsStandInTheOrderOfTheCoreAndFollowATakeOver) {
    const Hilfe hilfe = wasHilft(programm.w, {}, {}, {});
    imFenster([&](QWidget& fenster) {
        finde<QTabWidget>(fenster, "Seiten").setCurrentIndex(1);
        QTreeWidget& tabelle = finde<QTreeWidget>(fenster, "Schritte");
        const int zeilen = 1 + int(hilfe.schritte.size());
        ASSERT_TRUE(warteAuf([&] { return tabelle.topLevelItemCount() == zeilen; }));
        for (std::size_t i = 0; i < hilfe.schritte.size(); ++i) {
            const Bewertung& b = hilfe.schritte[i].bewertung;
            const std::string grund =
                b.ausgang == Ausgang::besteht ? massgebendText(b, {}) : scheitertAn(b, {});
            EXPECT_EQ(tabelle.topLevelItem(int(i) + 1)->text(2), qtext(grund)) << i;
        }
        const QString neu = tabelle.topLevelItem(1)->text(1);
        klicke(fenster, "Uebernehmen");
        EXPECT_TRUE(warteAuf([&] { return tabelle.topLevelItem(0)->text(1) == neu; }));
    });
}

}  // namespace
}  // namespace rippenscheibe
