#include <gtest/gtest.h>

#include <QPrintDialog>
#include <QPrinter>
#include <QtTest/QtTest>

#include "support/Gerechnet.h"
#include "ui/folder/Lastfaelle.h"
#include "ui/folder/Lastfallmodell.h"
#include "ui/folder/Projektmodell.h"
#include "ui/folder/Projektuebersicht.h"
#include "ui/main/Form1_Hauptfenster.h"

namespace rippenscheibe {
namespace {

void warteBis(const std::function<bool()>& da) {
    constexpr int geduld = 10000;  // ms
    EXPECT_TRUE(QTest::qWaitFor(da, geduld));
}

// A project of three walls: one that passes, one that fails, one with findings; and a file that is none.
class Projektfenster : public Programmprobe {
  protected:
    Projektfenster() {
        QDir(ordner.path()).mkdir(QStringLiteral("projekt"));
        for (const char* name : {"windsog", "nicht_erfuellt", "hinweise"})
            QFile::copy(QString::fromStdString(beispiel(name).string()),
                        imProjekt(QLatin1String(name) + QStringLiteral(".rsw")));
        EXPECT_FALSE(schreibeDauerhaft(pfad(imProjekt(QStringLiteral("kaputt.rsw"))), "wirr"));
        programm.Dateiname = utf8(imProjekt(QStringLiteral("windsog.rsw")));
    }

    QString imProjekt(const QString& name) const {
        return ordner.filePath(QStringLiteral("projekt/") + name);
    }
    static QAbstractItemModel& zeilen(QWidget& fenster) {
        return *finde<QTableView>(fenster, "Positionen").model();
    }
    static QString zelle(QWidget& fenster, int zeile, int spalte) {
        return zeilen(fenster).index(zeile, spalte).data().toString();
    }
    // Waits until all is read.
    static void warte(QWidget& fenster, int anzahl) {
        const auto& zahlen = finde<QLabel>(fenster, "Zahlen");
        warteBis([&] { return zeilen(fenster).rowCount() == anzahl; });
        warteBis([&] {
            return !zahlen.text().contains(QStringLiteral("gelesen")) &&
                   zahlen.text().contains(QLatin1Char(':'));
        });
    }
};

TEST_F(Projektfenster, ShowsEveryFileOfTheFolderWithVerdictOrReason) {
    Projektuebersicht fenster(programm, meldungen, nullptr);
    fenster.show();
    warte(fenster, 4);
    EXPECT_EQ(finde<QLabel>(fenster, "Zahlen").text(),
              QStringLiteral("4 Positionen: 1 erfüllt, 1 nicht erfüllt, 1 mit Hinweisen, 1 nicht lesbar"));
    EXPECT_EQ(zelle(fenster, 1, Projektmodell::Wand), QStringLiteral("kaputt.rsw\n") + qtext(keinePosition));
    EXPECT_EQ(zelle(fenster, 0, Projektmodell::Ausnutzung), QStringLiteral("! Hinweise"));
    EXPECT_EQ(zelle(fenster, 2, Projektmodell::Massgebend), QStringLiteral("5.1 Scheibenschub parallel"));
    EXPECT_EQ(finde<QTableView>(fenster, "Positionen").currentIndex().row(), 3);  // the open position

    waehle(fenster, "Wahl", 2);
    EXPECT_EQ(zeilen(fenster).rowCount(), 1);
    waehle(fenster, "Wahl", 0);
    finde<QLineEdit>(fenster, "Suche").setText(QStringLiteral("sog OSB/4"));
    EXPECT_EQ(zeilen(fenster).rowCount(), 1);
    finde<QLineEdit>(fenster, "Suche").clear();

    // Worst last.
    finde<QTableView>(fenster, "Positionen").sortByColumn(Projektmodell::Ausnutzung, Qt::AscendingOrder);
    EXPECT_TRUE(zelle(fenster, 0, Projektmodell::Wand).endsWith(QStringLiteral("windsog.rsw")));
    EXPECT_TRUE(zelle(fenster, 3, Projektmodell::Wand).startsWith(QStringLiteral("kaputt.rsw")));
}

TEST_F(Projektfenster, FollowsTheFolder) {
    Projektuebersicht fenster(programm, meldungen, nullptr);
    fenster.show();
    warte(fenster, 4);
    QFile::copy(imProjekt(QStringLiteral("windsog.rsw")), imProjekt(QStringLiteral("zwei.rsw")));
    warte(fenster, 5);
    QFile(imProjekt(QStringLiteral("hinweise.rsw"))).remove();
    warte(fenster, 4);
    QFile kaputt(imProjekt(QStringLiteral("kaputt.rsw")));
    ASSERT_TRUE(kaputt.open(QIODevice::WriteOnly));
    kaputt.write(inhalt(imProjekt(QStringLiteral("windsog.rsw"))));
    kaputt.close();
    warteBis([&] {
        return finde<QLabel>(fenster, "Zahlen").text() ==
               QStringLiteral("4 Positionen: 3 erfüllt, 1 nicht erfüllt");
    });
}

TEST_F(Projektfenster, QuantitiesAndOnePdfOfAllAreWritten) {
    Projektuebersicht fenster(programm, meldungen, nullptr);
    fenster.show();
    warte(fenster, 4);
    klicke(fenster, "MengenAuswahl");
    QCoreApplication::processEvents();
    EXPECT_EQ(finde<QLabel>(fenster, "Mengentitel").text(), QStringLiteral("Mengen: Auswahl (1 Wand)"));
    meldungen.dateien = {datei("mengen.csv"), datei("alle.pdf")};
    klicke(fenster, "MengenCsv");
    EXPECT_TRUE(inhalt(datei("mengen.csv")).contains("Platte;OSB/4;18 mm;"));
    meldungen.imDruckdialog = [&](QPrintDialog& dialog) {
        dialog.printer()->setOutputFileName(datei("mengen.pdf"));
    };
    klicke(fenster, "MengenDrucken");
    EXPECT_TRUE(inhalt(datei("mengen.pdf")).startsWith("%PDF"));

    klicke(fenster, "AlleKurz");
    warteBis([&] { return QFile::exists(datei("alle.pdf")); });
    warteBis([&] { return meldungen.gezeigt.size() == 1U; });
    EXPECT_TRUE(meldungen.gezeigt[0].text.startsWith(QStringLiteral("2 von 4 Positionen auf ")));
    EXPECT_TRUE(meldungen.gezeigt[0].text.contains(qtext(keinePosition)));

    // Stopped, nothing is written, and nobody is told.
    meldungen.dateien = {datei("keine.pdf")};
    klicke(fenster, "AlleLang");
    klicke(fenster, "Anhalten");
    warteBis([&] { return !finde<QPushButton>(fenster, "Anhalten").isVisible(); });
    EXPECT_FALSE(QFile::exists(datei("keine.pdf")));
}

TEST_F(Projektfenster, ADoubleClickOpensThePositionBehindTheQuery) {
    Form1 haupt(programm, meldungen);
    programm.setzeGesichert(false);
    meldungen.antworten = {Antwort::nein};
    EXPECT_TRUE(mitFenster([&] { finde<QAction>(haupt, "mnuUebersicht").trigger(); },
                           [&](QWidget& fenster) {
                               warte(fenster, 4);
                               auto& tabelle = finde<QTableView>(fenster, "Positionen");
                               Q_EMIT tabelle.activated(tabelle.model()->index(2, 0));
                           }));
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(qtext(programm.Dateiname), imProjekt(QStringLiteral("nicht_erfuellt.rsw")));
    EXPECT_EQ(programm.w.Wandlaenge, 2.5);
}

// ---- Load cases ----

class Lastfallfenster : public Projektfenster {
  protected:
    Lastfallfenster() {
        EXPECT_FALSE(liesPosition(pfad(qtext(programm.Dateiname)), programm.w).fehler);
        programm.felder = grundmasse(programm.w);
        programm.zuweisen();
    }
    QString tabelle() const { return imProjekt(QStringLiteral("windsog.lastfaelle.csv")); }
    static QAbstractItemModel& modell(QWidget& fenster) {
        return *finde<QTableView>(fenster, "Lastfalltabelle").model();
    }
};

TEST_F(Lastfallfenster, ProposesJudgesAndWritesTheTableBesideThePosition) {
    const QByteArray vorher = inhalt(qtext(programm.Dateiname));
    Lastfaelle fenster(programm, meldungen, nullptr);
    fenster.show();
    klicke(fenster, "Vorschlagen");
    const int anzahl = modell(fenster).rowCount();
    ASSERT_GT(anzahl, 3);
    EXPECT_TRUE(finde<QLabel>(fenster, "Urteil").text().contains(QStringLiteral("maßgebend")));

    // A refused text stays and keeps the table from being saved.
    const QModelIndex Fvk = modell(fenster).index(0, Lastfallmodell::ersteLast + 2);
    const QString richtig = Fvk.data(Qt::EditRole).toString();
    modell(fenster).setData(Fvk, QStringLiteral("5000"));
    EXPECT_EQ(modell(fenster).index(0, Lastfallmodell::Ausnutzung).data().toString(), QStringLiteral("–"));
    klicke(fenster, "ComSichern");
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(meldungen.gezeigt[0].text, QStringLiteral("Fvk = 5000 liegt nicht zwischen -1000 und 1000"));
    EXPECT_FALSE(QFile::exists(tabelle()));
    modell(fenster).setData(Fvk, richtig);
    klicke(fenster, "ComSichern");
    EXPECT_FALSE(fenster.isVisible());
    EXPECT_EQ(inhalt(tabelle()).count('\n'), anzahl + 1);
    EXPECT_EQ(inhalt(qtext(programm.Dateiname)), vorher);

    // The main window shows the case that governs, and the tool reads the same table.
    Form1 haupt(programm, meldungen);
    EXPECT_TRUE(finde<QLabel>(haupt, "SofortLastfall").isVisibleTo(&haupt));
    const auto gelesen = liesLastfaelle(pfad(tabelle()));
    const auto urteile = fallurteile(programm.w, {}, std::get<0>(gelesen));
    EXPECT_TRUE(finde<QLabel>(haupt, "SofortLastfall")
                    .text()
                    .contains(qtext(massgebendText(urteile[std::size_t(massgebenderFall(urteile))]))));
}

TEST_F(Lastfallfenster, AnEmptiedTableGoesAndOneThatCannotBeReadStays) {
    EXPECT_FALSE(schreibeDauerhaft(pfad(tabelle()), "name;Fvk\nA;3\n"));
    {
        Lastfaelle fenster(programm, meldungen, nullptr);
        fenster.show();
        ASSERT_EQ(modell(fenster).rowCount(), 1);
        EXPECT_EQ(modell(fenster).index(0, Lastfallmodell::ersteLast + 2).data().toString(),
                  QStringLiteral("3"));
        klicke(fenster, "Loeschen");
        meldungen.antworten = {Antwort::ja};
        klicke(fenster, "ComSichern");
        EXPECT_FALSE(QFile::exists(tabelle()));
    }
    EXPECT_FALSE(schreibeDauerhaft(pfad(tabelle()), "name;Unsinn\nA;3\n"));
    Lastfaelle fenster(programm, meldungen, nullptr);
    EXPECT_FALSE(finde<QPushButton>(fenster, "ComSichern").isEnabled());
    EXPECT_TRUE(finde<QLabel>(fenster, "Ort").text().contains(QStringLiteral("unbekannte Spalte")));
}

}  // namespace
}  // namespace rippenscheibe
