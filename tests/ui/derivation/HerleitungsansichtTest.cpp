#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>
#include <QTextEdit>

#include "support/Gerechnet.h"
#include "ui/derivation/Herleitungsansicht.h"
#include "ui/output/Form23_Ergebnisse.h"

namespace rippenscheibe {
namespace {

// Notes which window is asked for.
class Merker : public Fensteroeffner {
  public:
    explicit Merker(std::vector<Fensterart>& geoeffnet) : geoeffnet_(geoeffnet) {}
    bool oeffne(Fensterart art, Programm&, Meldungen&, QWidget*) override {
        geoeffnet_.push_back(art);
        return true;
    }

  private:
    std::vector<Fensterart>& geoeffnet_;
};

class Herleitungsspalte : public Gerechnet {
  protected:
    void oeffne() {
        programm.fenster = std::make_unique<Merker>(geoeffnet);
        fenster = std::make_unique<Form23>(programm, meldungen, nullptr);
    }
    // Puts the caret behind these words of the report.
    void setzeMarke(const QString& worte) {
        auto& text = finde<QTextEdit>(*fenster, "Rbox1");
        QTextCursor marke = text.document()->find(worte);
        ASSERT_FALSE(marke.isNull());
        marke.setPosition(marke.selectionEnd() + 1);
        text.setTextCursor(marke);
    }
    void waehle(const QString& anfang) {
        auto& liste = finde<QListWidget>(*fenster, "Woher");
        for (int i = 0; i < liste.count(); ++i) {
            if (!liste.item(i)->text().startsWith(anfang)) continue;
            Q_EMIT liste.itemActivated(liste.item(i));
            return;
        }
        ADD_FAILURE() << anfang.toStdString();
    }
    QString pfadtext() {
        return finde<QLabel>(*fenster, "Herleitungspfad")
            .text()
            .remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    }

    std::vector<Fensterart> geoeffnet;
    std::unique_ptr<Form23> fenster;
};

TEST_F(Herleitungsspalte, LeadsFromAPrintedNumberDownToItsInputAndBack) {
    rechne("zweiseitig");
    programm.vorDemLauf = programm.w;
    programm.zuweisen();
    berechnungslauf(programm.w);
    oeffne();
    setzeMarke(QStringLiteral("Abscherfestigkeit Rd = "));
    EXPECT_EQ(pfadtext(), QStringLiteral("Rd,1"));
    waehle(QStringLiteral("Rd,A,1 = "));
    waehle(QStringLiteral("Rk,A,1 = "));
    EXPECT_EQ(pfadtext(), QStringLiteral("Rd,1 › Rd,A,1 › Rk,A,1"));
    EXPECT_TRUE(
        finde<Formelfeld>(*fenster, "Formel").accessibleName().startsWith(QStringLiteral("Rk,A,1 = ")));
    waehle(QStringLiteral("d1 = "));
    EXPECT_EQ(geoeffnet, std::vector{Fensterart::verbindungsmittel});
    Q_EMIT finde<QLabel>(*fenster, "Herleitungspfad").linkActivated(QStringLiteral("0"));
    EXPECT_EQ(pfadtext(), QStringLiteral("Rd,1"));
}

TEST_F(Herleitungsspalte, AnInputOpensItsDialogAtItsControl) {
    struct Fall {
        Fensterart art;
        const char* feld;
        const char* bedienung;
    };
    constexpr std::array<Fall, 5> faelle{{{Fensterart::verbindungsmittel, "d1", "Textbox1(8)"},
                                          {Fensterart::rippen, "hRandrippe", "Textbox1(0)"},
                                          {Fensterart::belastung, "wk", "Textbox1(5)"},
                                          {Fensterart::bemessung, "VertikallastVerteilung", "Option3(0)"},
                                          {Fensterart::beplankung, "Plattenbreite1", "Textbox1(1)"}}};
    Fensterfabrik fabrik;
    for (const Fall& fall : faelle) {
        programm.Feldziel = fall.feld;
        QTimer::singleShot(0, [&] {
            auto* dialog = QApplication::activeModalWidget();
            EXPECT_EQ(dialog->focusWidget()->objectName().toStdString(), fall.bedienung) << fall.feld;
            qobject_cast<QDialog*>(dialog)->reject();
        });
        fabrik.oeffne(fall.art, programm, meldungen, nullptr);
    }
}

TEST_F(Herleitungsspalte, SaysSoWhenTheRunBeforeIsNotKnown) {
    programm.vorDemLauf.av[Seite::eins] = 20;
    oeffne();
    setzeMarke(QStringLiteral("Abscherfestigkeit Rd = "));
    EXPECT_TRUE(pfadtext().isEmpty());
    EXPECT_TRUE(finde<QLabel>(*fenster, "Bedeutung").text().startsWith(QStringLiteral("Zu diesem Text")));
}

}  // namespace
}  // namespace rippenscheibe
