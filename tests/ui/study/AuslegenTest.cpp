#include <filesystem>

#include "basis/Zahlenformat.h"
#include "study/Auslegung.h"
#include "study/WasHilft.h"
#include "support/Gerechnet.h"

namespace rippenscheibe {
namespace {

// Threads of this process.
auto faeden() {
    const std::filesystem::directory_iterator aufgaben("/proc/self/task");
    return std::distance(begin(aufgaben), end(aufgaben));
}

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
    static QTreeWidget& entwuerfe(QWidget& fenster) { return finde<QTreeWidget>(fenster, "Entwuerfe"); }
    // Opens all that a search may change: far more than it can try.
    static void gibAllesFrei(QWidget& fenster) {
        for (const char* achse : {"platte", "rippenbreite", "rippenhoehe"})
            finde<QCheckBox>(fenster, (std::string("Achse(") + achse + ")").c_str()).setChecked(true);
        finde<QSpinBox>(fenster, "Zahl").setValue(100);
        tippe(fenster, "Hoechstens", "0,01");
    }
};

TEST_F(AuslegenTest, ASearchFindsWhatTheCoreFindsAndItsDesignCanBeTakenOverAndBack) {
    Auslegungsauftrag a{};
    a.vorlage = programm.w;
    a.preise = std::get<Preise>(Preise::aus(geliefertePreise()));
    const auto achsen = standardachsen(a.vorlage);
    a.raster = Raster({achsen[0].achse, achsen[1].achse});
    const auto erwartet = std::get<Auslegungsergebnis>(legeAus(a, {}));
    const std::vector<std::string> vorher = alleFelder(programm.w);
    imFenster([&](QWidget& fenster) {
        suche(fenster);
        QTreeWidget& tabelle = entwuerfe(fenster);
        ASSERT_EQ(tabelle.topLevelItemCount(), 1 + int(erwartet.entwuerfe.size()));
        for (std::size_t i = 0; i < erwartet.entwuerfe.size(); ++i)
            EXPECT_EQ(tabelle.topLevelItem(int(i) + 1)->text(1),
                      qtext(formatiere("0.00", erwartet.entwuerfe[i].wert, dezimalzeichen())));
        const QString befund = finde<QLabel>(fenster, "Befund").text();
        EXPECT_TRUE(befund.contains(qtext(ausscheidegruende(erwartet)))) << befund.toStdString();
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

TEST_F(AuslegenTest, StopEndsASearchAtOnceAndAClosedWindowLeavesNothingRunning) {
    const auto vorher = faeden();
    imFenster([](QWidget& fenster) {
        gibAllesFrei(fenster);
        klicke(fenster, "Suchen");
        ASSERT_TRUE(warteAuf(
            [&] { return finde<QLabel>(fenster, "Stand").text().startsWith(QStringLiteral("gep")); }));
        QElapsedTimer uhr;
        uhr.start();
        klicke(fenster, "Anhalten");
        ASSERT_TRUE(warteAuf([&] { return finde<QPushButton>(fenster, "Suchen").isEnabled(); }));
        EXPECT_LT(uhr.elapsed(), 1000);  // a fraction of what the whole takes, also on a busy machine
        EXPECT_TRUE(finde<QLabel>(fenster, "Befund").text().startsWith(QStringLiteral("Angehalten")));
        klicke(fenster, "Suchen");
        ASSERT_TRUE(warteAuf([&] { return finde<QPushButton>(fenster, "Anhalten").isEnabled(); }));
    });
    EXPECT_EQ(faeden(), vorher);
}

}  // namespace
}  // namespace rippenscheibe
