#include "run/FrischerLauf.h"
#include "run/Urteil.h"
#include "support/Gerechnet.h"
#include "ui/main/Form1_Hauptfenster.h"
#include "ui/main/Variantenvergleich.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {
namespace {

TEST(BesteSpalte, IsTheOnlyOneThatReadsSmallest) {
    using Werte = std::vector<std::optional<double>>;
    const std::pair<Werte, std::optional<std::size_t>> faelle[] = {
        {{0.5, 0.4, 0.6}, 1},           {{0.5, std::nullopt, 0.4}, 2},       {{0.4, 0.5, 0.4}, std::nullopt},
        {{0.404, 0.401}, std::nullopt}, {{0.5, std::nullopt}, std::nullopt}, {{}, std::nullopt}};
    for (const auto& [werte, beste] : faelle) EXPECT_EQ(besteSpalte(werte), beste);
}

class Varianten : public Programmprobe {
  protected:
    // What is done in the window, as opened by its menu entry.
    void imFenster(const std::function<void(QWidget&)>& bedienen) {
        EXPECT_TRUE(mitFenster(
            [this] { hauptfenster.findChild<QAction*>(QStringLiteral("mnuVarianten"))->trigger(); },
            bedienen));
    }
    // The texts of the row with this name, parted by bars; "" when there is none.
    static std::string zeile(QWidget& fenster, const char* name) {
        const auto& tabelle = finde<QTableWidget>(fenster, "Variantentabelle");
        for (int i = 0; i < tabelle.rowCount(); ++i) {
            if (tabelle.verticalHeaderItem(i)->text() != QString::fromUtf8(name)) continue;
            QStringList texte;
            for (int spalte = 0; spalte < tabelle.columnCount(); ++spalte)
                texte << tabelle.item(i, spalte)->text();
            return utf8(texte.join(QLatin1Char('|')));
        }
        return {};
    }
    void setzeAbstand(double av) {
        programm.w.av[Seite::eins] = av;
        programm.zuweisen();
    }

    Form1 hauptfenster{programm, meldungen};
};

TEST_F(Varianten, StandSideBySideAndAreTakenOverAsAStep) {
    programm.w.Fvk = 20;
    programm.w.Einseitig = true;
    programm.w.NachweisVerankerung = true;
    setzeAbstand(60);
    imFenster([](QWidget& fenster) {
        EXPECT_FALSE(finde<QPushButton>(fenster, "ComLoeschen").isEnabled());
        finde<QLineEdit>(fenster, "Text1").setText(QStringLiteral("weit"));
        klicke(fenster, "ComMerken");
        EXPECT_EQ(zeile(fenster, "Abstand der Verbindungsmittel, Seite 1"), "");
    });
    setzeAbstand(55);
    programm.w.Lastfall = 3;
    programm.w.gk = 2;
    programm.leereSchritte();
    const std::string eng = positionstext(programm.w);
    const auto frisch = frischerLauf(programm.w, {});
    imFenster([&](QWidget& fenster) {
        EXPECT_EQ(zeile(fenster, "Abstand der Verbindungsmittel, Seite 1"), "55 mm|60 mm");
        EXPECT_EQ(zeile(fenster, "Scheibenbeanspruchung"), "horizontal und vertikal|horizontal");
        const QString schub = etatext(abschnittsurteile(frisch.wand).front().groesster);
        EXPECT_TRUE(zeile(fenster, "5.1 Scheibenbeanspruchung").starts_with(utf8(schub) + " ▼|"))
            << zeile(fenster, "5.1 Scheibenbeanspruchung");
        klicke(fenster, "ComUebernehmen(1)");
        QCoreApplication::processEvents();
        EXPECT_EQ(zeile(fenster, "Abstand der Verbindungsmittel, Seite 1"), "");
    });
    EXPECT_EQ(programm.w.av[Seite::eins], 60);
    EXPECT_EQ(*programm.schritte().letzter(), "weit");
    programm.rueckgaengig();
    EXPECT_EQ(positionstext(programm.w), eng);
}

TEST_F(Varianten, BearNoMarkWhereAFindingOrAnOpenDemandStands) {
    programm.w.Fvk = 20;
    programm.zuweisen();
    programm.varianten = {{QStringLiteral("a"), programm.eingabestand()}};
    programm.w.NachweisVerankerung = true;
    programm.w.Ankertyp = 8;
    programm.zuweisen();
    programm.varianten.push_back({QStringLiteral("b"), programm.eingabestand()});
    setzeAbstand(40);  // less than 20 d
    imFenster([](QWidget& fenster) {
        EXPECT_EQ(zeile(fenster, "Urteil").substr(0, 10), "! 1 Hinwei");
        for (const char* name : {"maßgebend", "5.1 Scheibenbeanspruchung", "5.8 Verankerung"})
            EXPECT_TRUE(!zeile(fenster, name).empty() && zeile(fenster, name).find("▼") == std::string::npos)
                << zeile(fenster, name);
        EXPECT_NE(zeile(fenster, "5.8 Verankerung").find("|! Ft,d = "), std::string::npos);
    });
}

TEST_F(Varianten, AreSavedAsPositionsAndForgotten) {
    const std::string text = positionstext(programm.w);
    programm.varianten = {{QStringLiteral("A/B"), programm.eingabestand()}};
    setzeAbstand(75);
    meldungen.dateien = {datei("Variante.rsw")};
    imFenster([](QWidget& fenster) {
        finde<QTableWidget>(fenster, "Variantentabelle").selectColumn(1);
        klicke(fenster, "ComSpeichern");
        klicke(fenster, "ComLoeschen");
    });
    EXPECT_EQ(inhalt(datei("Variante.rsw")).toStdString(), text);
    EXPECT_EQ(programm.w.av[Seite::eins], 75);
    EXPECT_TRUE(programm.varianten.empty());
}

}  // namespace
}  // namespace rippenscheibe
