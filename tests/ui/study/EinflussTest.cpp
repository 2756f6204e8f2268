#include "basis/Zahlenformat.h"
#include "study/Lastfaelle.h"
#include "study/Variation.h"
#include "support/Gerechnet.h"
#include "ui/drawings/Kurvenansicht.h"
#include "ui/study/Einfluss.h"

namespace rippenscheibe {
namespace {

constexpr int geduld = 60'000;  // ms

class EinflussTest : public Gerechnet {
  protected:
    EinflussTest() {
        rechne("zuganker");
        programm.leereSchritte();
    }
    void imFenster(const std::function<void(QWidget&)>& bedienen) {
        EXPECT_TRUE(
            mitFenster([&] { oeffne(Fensterart::einfluss, programm, meldungen, nullptr); },
                       [&](QWidget& fenster) {
                           ASSERT_TRUE(QTest::qWaitFor(
                               [&] { return !finde<QLabel>(fenster, "Urteil").text().isEmpty(); }, geduld));
                           bedienen(fenster);
                       }));
    }
    // The points of an axis as the core judges them.
    std::vector<Variationspunkt> punkte(const std::string& achse, const Bewertungsregel& regel = {}) const {
        const Variationsauftrag v{programm.w, programm.w.eigeneMaterialien,
                                  regel,      Raster({std::get<Achse>(achseAus(achse, Grenzen::beachten))}),
                                  {},         true};
        std::vector<Variationspunkt> alle;
        variiere(v, {}, [&](const Variationspunkt& p) {
            alle.push_back(p);
            return true;
        });
        return alle;
    }
};

TEST_F(EinflussTest, TheMarkShowsWhatTheCoreSaysAndItsValueIsTakenOverAndBack) {
    const auto erwartet = punkte("av1=40:150:5");
    constexpr std::size_t heute = 4;  // 60 mm
    imFenster([&](QWidget& fenster) {
        auto& kurven = finde<Kurvenansicht>(fenster, "Kurven");
        EXPECT_EQ(kurven.marke(), 60);
        for (const std::size_t i : {heute, std::size_t{0}, erwartet.size() - 1}) {
            if (i != heute) QTest::keyClick(&kurven, i == 0 ? Qt::Key_Home : Qt::Key_End);
            const QString urteil = finde<QLabel>(fenster, "Urteil").text();
            const Bewertung& b = erwartet[i].bewertung;
            EXPECT_TRUE(urteil.contains(qtext(formatiere("0.00", b.maxEta, dezimalzeichen()))) ||
                        b.ausgang == Ausgang::hinweis)
                << urteil.toStdString();
            EXPECT_TRUE(
                finde<QLabel>(fenster, "Grund").text().contains(qtext(b.massgebend.value_or(b.hinweis))));
            EXPECT_EQ(finde<QPushButton>(fenster, "Uebernehmen").isEnabled(), i != heute);
        }
        klicke(fenster, "Uebernehmen");
    });
    EXPECT_EQ(programm.w.av[Seite::eins], 150);
    programm.rueckgaengig();
    EXPECT_EQ(programm.w.av[Seite::eins], 60);
}

TEST_F(EinflussTest, CurvesAreTheSectionsFindingsShadeTheirRangeAndListsArePoints) {
    const auto alle = punkte("av1=20:200:5", {.lastfaelle = vorgeschlageneLastfaelle(programm.w)});
    const Achse achse = std::get<Achse>(achseAus("av1=20:200:5", Grenzen::beachten));
    const Kurvendaten d = kurvendaten(achse, false, alle);
    ASSERT_EQ(d.x.size(), alle.size());
    ASSERT_FALSE(d.sperren.empty());
    for (std::size_t i = 0; i < d.x.size(); ++i) {
        const bool gesperrt = std::any_of(d.sperren.begin(), d.sperren.end(), [&](const Sperrbereich& s) {
            return s.von <= d.x[i] && d.x[i] <= s.bis;
        });
        EXPECT_EQ(gesperrt, alle[i].bewertung.ausgang == Ausgang::hinweis) << d.x[i];
        if (gesperrt) continue;
        EXPECT_EQ(d.kurven.front().werte[i], alle[i].abschnitte.front().groesster);
        // The sections are those of all directions and cases.
        const double groesster =
            std::ranges::max(alle[i].abschnitte, {}, &Abschnittsurteil::groesster).groesster;
        EXPECT_EQ(groesster, alle[i].bewertung.maxEta) << d.x[i];
    }
    const Achse holz = std::get<Achse>(achseAus("Holzart=1,2,3", Grenzen::beachten));
    EXPECT_EQ(kurvendaten(holz, true, punkte("Holzart=1,2,3")).xNamen[1], QStringLiteral("Nadelholz C24"));
}

TEST_F(EinflussTest, EveryInputOfTheListCanBeShownAndAPictureSaved) {
    imFenster([&](QWidget& fenster) {
        auto& wahl = finde<QComboBox>(fenster, "Groesse");
        auto& kurven = finde<Kurvenansicht>(fenster, "Kurven");
        for (int i = 0; i < wahl.count(); ++i) {
            wahl.setCurrentIndex(i);
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return kurven.accessibleDescription().startsWith(wahl.currentText()); }, geduld))
                << wahl.currentText().toStdString();
        }
        meldungen.dateien = {datei("kurven.svg")};
        QTimer::singleShot(0, qApp, [] {
            auto* menue = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menue, nullptr);
            menue->actions().at(2)->trigger();
            menue->close();
        });
        klicke(fenster, "Bild");
    });
    EXPECT_TRUE(inhalt(datei("kurven.svg")).contains("<svg"));
}

}  // namespace
}  // namespace rippenscheibe
