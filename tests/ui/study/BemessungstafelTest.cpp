#include <QPrintDialog>
#include <QPrinter>

#include "study/Csv.h"
#include "study/Tafelblatt.h"
#include "support/Gerechnet.h"

namespace rippenscheibe {
namespace {

constexpr int geduld = 60'000;  // ms

class BemessungstafelTest : public Gerechnet {
  protected:
    BemessungstafelTest() {
        rechne("zuganker");
        programm.leereSchritte();
        auftrag.vorlage = programm.w;
        auftrag.groesste = achse("Fvk=0:20:0.25");
        auftrag.zeilen = achse("Wandlaenge=1.25:3.75:1.25");
        auftrag.spalten = achse("av1=50:150:50");
    }
    static Achse achse(const std::string& text) { return std::get<Achse>(achseAus(text, Grenzen::beachten)); }
    // Opens the window and computes the table of `auftrag` in it.
    void mitTafel(const std::function<void(QWidget&)>& bedienen) {
        EXPECT_TRUE(
            mitFenster([&] { oeffne(Fensterart::tafel, programm, meldungen, nullptr); },
                       [&](QWidget& fenster) {
                           for (const auto& [feld, text] : {std::pair("ZeilenVon", "1,25"),
                                                            {"ZeilenBis", "3,75"},
                                                            {"ZeilenSchritt", "1,25"},
                                                            {"SpaltenVon", "50"},
                                                            {"SpaltenBis", "150"},
                                                            {"SpaltenSchritt", "50"}})
                               tippe(fenster, feld, text);
                           klicke(fenster, "Rechnen");
                           ASSERT_TRUE(QTest::qWaitFor(
                               [&] { return finde<QPushButton>(fenster, "Drucken").isEnabled(); }, geduld));
                           bedienen(fenster);
                       }));
    }
    void speichere(QWidget& fenster, int zeile, const char* name) {
        meldungen.dateien = {datei(name)};
        QTimer::singleShot(0, qApp, [=] {
            auto* menue = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menue, nullptr);
            menue->actions().at(zeile)->trigger();
            menue->close();
        });
        klicke(fenster, "Speichern");
    }

    Tafelauftrag auftrag{};
};

TEST_F(BemessungstafelTest, CellsAreThoseOfTheCoreAndTheWallOfOneIsTakenOverAndBack) {
    const Tafel erwartet = bemessungstafel(auftrag, {});
    const auto texte = tafelzeilen(auftrag, erwartet, dezimalzeichen());
    const double laenge = programm.felder.Wandlaenge;
    mitTafel([&](QWidget& fenster) {
        auto& tafel = finde<QTableWidget>(fenster, "Tafel");
        ASSERT_EQ(tafel.rowCount(), 3);
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j)
                EXPECT_EQ(tafel.item(i, j)->text(), qtext(texte[std::size_t(i) + 1][std::size_t(j) + 1]));
        EXPECT_EQ(tafel.verticalHeaderItem(2)->text(), QStringLiteral("3,75 m"));
        tafel.setCurrentCell(2, 0);
        EXPECT_TRUE(finde<QLabel>(fenster, "Grund").text().contains(qtext(erwartet.zellen[2][0].massgebend)));
        klicke(fenster, "Uebernehmen");
    });
    EXPECT_EQ(programm.felder.Wandlaenge, 3.75);
    EXPECT_EQ(programm.w.av[Seite::eins], 50);
    EXPECT_EQ(QString::number(double(programm.w.Fvk.value())),
              qtext(zahltext(zahlAus(erwartet.zellen[2][0].groesste))));
    programm.rueckgaengig();
    EXPECT_EQ(programm.felder.Wandlaenge, laenge);
}

TEST_F(BemessungstafelTest, TheTableIsWrittenAsPdfRtfAndCsvAndPrinted) {
    const Tafel erwartet = bemessungstafel(auftrag, {});
    mitTafel([&](QWidget& fenster) {
        speichere(fenster, 0, "tafel.pdf");
        speichere(fenster, 1, "tafel.rtf");
        speichere(fenster, 2, "tafel.csv");
        meldungen.imDruckdialog = [&](QPrintDialog& dialog) {
            dialog.printer()->setOutputFileName(datei("druck.pdf"));
        };
        klicke(fenster, "Drucken");
    });
    EXPECT_TRUE(inhalt(datei("tafel.pdf")).startsWith("%PDF"));
    EXPECT_TRUE(inhalt(datei("druck.pdf")).startsWith("%PDF"));
    EXPECT_EQ(inhalt(datei("tafel.rtf")).toStdString(), tafelRtf(tafelblatt(auftrag, erwartet)));
    std::string csv;
    for (const auto& zeile : tafelzeilen(auftrag, erwartet, dezimalzeichen()))
        csv += csvZeile(zeile, {.trenner = ';', .dezimal = dezimalzeichen()});
    EXPECT_EQ(inhalt(datei("tafel.csv")).toStdString(), csv);
}

}  // namespace
}  // namespace rippenscheibe
