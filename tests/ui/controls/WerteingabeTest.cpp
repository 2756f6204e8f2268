#include <gtest/gtest.h>

#include "support/Bedienung.h"
#include "ui/controls/Werteingabe.h"

namespace rippenscheibe {
namespace {

struct Textfall {
    const char* text;
    double wert;
};

TEST(Zahltext, TakesCommaAndPointAndRefusesEverythingElse) {
    const Textfall gute[] = {{"2,5", 2.5}, {"2.5", 2.5}, {" 7 ", 7.0}, {"-0,5", -0.5},
                             {"+3", 3.0},  {",5", 0.5},  {"5,", 5.0}};
    for (const Textfall& fall : gute)
        EXPECT_EQ(zahlAus(QString::fromUtf8(fall.text)), fall.wert) << "\"" << fall.text << "\"";
    for (const char* text :
         {"1.234,5", "1,2,3", "1 000", "1e3", "", "-", "abc", "nan", "--2", "+-2", ",", "0x10"})
        EXPECT_EQ(zahlAus(QString::fromUtf8(text)), std::nullopt) << "\"" << text << "\"";
}

// A window with one field of 0.2 to 100 m and another to go to.
class Werteingabefenster : public testing::Test {
  protected:
    void SetUp() override {
        auto* grid = new QGridLayout(&fenster);
        feld = new Werteingabe(QStringLiteral("Textbox1(0)"),
                               {.beschriftung = QStringLiteral("l ="),
                                .einheit = QStringLiteral("m (lang)"),
                                .min = 0.2,
                                .max = 100},
                               &fenster);
        feld->setzeInZeile(grid, 0);
        anderes = new QLineEdit(&fenster);
        grid->addWidget(anderes, 1, 1);
        fenster.show();
        feld->setzeWert(5);
        QObject::connect(feld, &Werteingabe::geaendert, [this](double neu) { gemeldet.push_back(neu); });
    }
    // As leaving by the tab key does it.
    void verlasse() {
        QFocusEvent weg(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(feld, &weg);
    }

    QWidget fenster;
    Werteingabe* feld = nullptr;
    QLineEdit* anderes = nullptr;
    std::vector<double> gemeldet;
};

TEST_F(Werteingabefenster, ShowsAWrittenValueInItsFormatAndKeepsItWhole) {
    feld->setzeWert(1.0 / 3);
    EXPECT_EQ(feld->text(), QStringLiteral("0,333"));
    verlasse();
    EXPECT_EQ(feld->wert(), 1.0 / 3);
    EXPECT_EQ(gemeldet, std::vector<double>{1.0 / 3});
}

TEST_F(Werteingabefenster, ARefusedTextStaysAndTheValueGoesBackToTheOneBeforeTheEditing) {
    // On the way 1, 10 and 100 count at once; 100,5 is too much, and 5 was there before.
    tippe(*feld, QStringLiteral("100,5"));
    EXPECT_EQ(gemeldet, (std::vector<double>{1, 10, 100, 5}));
    auto* bereich = fenster.findChild<QLabel*>(QStringLiteral("Textbox1(0)_Bereich"));
    ASSERT_NE(bereich, nullptr);
    for (const bool verlassen : {false, true}) {
        SCOPED_TRACE(verlassen);
        if (verlassen) verlasse();
        EXPECT_TRUE(feld->abgelehnt());
        EXPECT_EQ(feld->text(), QStringLiteral("100,5"));
        EXPECT_EQ(feld->wert(), 5.0);
        EXPECT_TRUE(bereich->isVisible());
        EXPECT_EQ(bereich->text(), QStringLiteral("zulässig: 0,2 bis 100 m"));
    }
    // A mended text that was left is where the next editing begins.
    tippe(*feld, QStringLiteral("7"));
    EXPECT_FALSE(bereich->isVisible());
    verlasse();
    tippe(*feld, QString());
    EXPECT_TRUE(feld->abgelehnt());
    EXPECT_EQ(feld->wert(), 7.0);
}

TEST_F(Werteingabefenster, ADimmedOrHiddenFieldDropsItsRefusedText) {
    const std::function<void(bool)> wege[] = {[this](bool an) { feld->setzeAktiv(an); },
                                              [this](bool an) { feld->setVisible(an); }};
    for (const auto& schalte : wege) {
        tippe(*feld, QStringLiteral("0"));
        ASSERT_EQ(abgelehntesFeld(fenster), feld);
        schalte(false);
        EXPECT_EQ(abgelehntesFeld(fenster), nullptr);
        EXPECT_EQ(feld->text(), QStringLiteral("5,000"));
        schalte(true);
    }
}

TEST_F(Werteingabefenster, AnEmptyFieldMayBeLeftEmptyUntilItIsFilled) {
    feld->setzeLeer();
    verlasse();
    EXPECT_EQ(feld->text(), QString());
    tippe(*feld, QStringLiteral("3"));
    tippe(*feld, QString());
    EXPECT_FALSE(feld->abgelehnt());
    EXPECT_EQ(feld->wert(), 0.0);
    feld->setzeWert(2);
    tippe(*feld, QString());
    EXPECT_TRUE(feld->abgelehnt());
}

TEST_F(Werteingabefenster, TakesBothLimitsAndRefusesTheNextValueBeyond) {
    for (const auto& [text, gut] : std::initializer_list<std::pair<const char*, bool>>{
             {"0,2", true}, {"0,1999", false}, {"100", true}, {"100,001", false}}) {
        tippe(*feld, QLatin1String(text));
        EXPECT_EQ(!feld->abgelehnt(), gut) << text;
    }
}

TEST_F(Werteingabefenster, PutsAGoodTextInOrderOnlyWhenTheFormatShowsAllOfIt) {
    tippe(*feld, QStringLiteral("2.5"));
    EXPECT_EQ(feld->text(), QStringLiteral("2.5"));  // nothing jumps while typing
    verlasse();
    EXPECT_EQ(feld->text(), QStringLiteral("2,500"));
    tippe(*feld, QStringLiteral("2,50001"));
    verlasse();
    EXPECT_EQ(feld->text(), QStringLiteral("2,50001"));
    EXPECT_EQ(feld->wert(), 2.50001);
}

TEST_F(Werteingabefenster, NeverCutsAValueThatNeedsMoreCharactersThanTheUserMayType) {
    Werteingabe kurz(
        QStringLiteral("TextBox2(0)"),
        {.beschriftung = {}, .einheit = {}, .max = 1e9, .maske = QStringLiteral("0.00"), .hoechstlaenge = 5});
    kurz.setzeWert(1234567.25);
    EXPECT_EQ(kurz.text(), QStringLiteral("1234567,25"));
    kurz.setzeWert(1);
    tippe(kurz, QStringLiteral("1234567"));
    EXPECT_EQ(kurz.wert(), 12345.0);
}

}  // namespace
}  // namespace rippenscheibe
