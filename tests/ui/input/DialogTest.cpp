#include "support/Gerechnet.h"
#include "ui/input/Form12_Bemessungsparameter.h"
#include "ui/input/Form14_Eigengewicht.h"
#include "ui/input/Form2_Rippen.h"
#include "ui/input/Form4_Beplankung.h"
#include "ui/input/Form5_Verbindungsmittel.h"
#include "ui/input/Form7_Verankerung.h"
#include "ui/input/Form9_Belastung.h"

namespace rippenscheibe {
namespace {

class Dialog : public Programmprobe {
  protected:
    Wand& w = programm.w;
};

// What the record was after opening the dialog and accepting it at once.
template <class Form>
std::string nachUebernahme(Programm& programm, Meldungen& meldungen) {
    Form form(programm, meldungen, nullptr);
    form.show();
    klicke(form, "ComEnde");
    EXPECT_FALSE(form.isVisible());
    return positionstext(programm.w);
}

TEST_F(Dialog, AcceptingWithoutAnEditLeavesTheRecordAndItsSavedStateAlone) {
    w.NKLRippen = 2;
    w.FussrippeRechtsDurchgehend = true;
    w.NKLBeplankung[Seite::zwei] = 2;
    w.Gestossen[Seite::eins] = true;
    w.Plattendicke1 = 12.345678;
    w.EigenesMaterial[Seite::zwei] = 4;  // a row that is not there
    w.VMArt[Seite::zwei] = 5;
    w.Zweireihig[Seite::eins] = true;
    w.lg[Seite::zwei] = 30;
    w.Ankertyp = 13;
    w.FreierAnkerName = "Winkel \u00fcber Eck";
    w.Teilausnagelung = 2;
    w.Lastfall = 3;
    w.KLED = 5;
    w.WindQuer = true;
    w.wk = -0.8F;
    w.KlammerWinkelOption = 2;
    w.VertikallastVerteilung = 2;
    w.LagesicherungVerfahren = 1;
    w.Material[Seite::zwei] = 11;
    w.VMKlasse[Seite::zwei] = 9;
    const std::string vorher = positionstext(w);
    EXPECT_EQ(nachUebernahme<Form2>(programm, meldungen), vorher);
    EXPECT_EQ(nachUebernahme<Form4>(programm, meldungen), vorher);
    EXPECT_EQ(nachUebernahme<Form5>(programm, meldungen), vorher);
    EXPECT_EQ(nachUebernahme<Form7>(programm, meldungen), vorher);
    EXPECT_EQ(nachUebernahme<Form9>(programm, meldungen), vorher);
    EXPECT_EQ(nachUebernahme<Form12>(programm, meldungen), vorher);
    EXPECT_TRUE(programm.Gesichert());
    EXPECT_TRUE(meldungen.gezeigt.empty());
}

TEST_F(Dialog, OneRibDepthServesAllRibs) {
    w.hInnenrippe = 120;  // as a file may hold it
    Form2 form(programm, meldungen, nullptr);
    form.show();
    EXPECT_FALSE(wert(form, "Textbox1(3)").isEnabled());
    EXPECT_FALSE(wert(form, "Textbox1(5)").isEnabled());
    tippe(form, "Textbox1(0)", "20");
    EXPECT_EQ(wert(form, "Textbox1(3)").text(), QStringLiteral("20,0"));
    EXPECT_EQ(wert(form, "Textbox1(5)").wert(), 20.0);
    tippe(form, "Textbox1(2)", "6");
    tippe(form, "Textbox1(4)", "4,5");
    klicke(form, "ComEnde");
    EXPECT_EQ(w.hRandrippe, 200);
    EXPECT_EQ(w.hInnenrippe, 200);
    EXPECT_EQ(w.bRandrippe, 60);
    EXPECT_EQ(w.bInnenrippe, 80);
    EXPECT_EQ(w.bKopfFussrippe, 45);
    EXPECT_EQ(w.ARandrippe, 120);  // 6 x 20 cm: derived values were refreshed
}

TEST_F(Dialog, CancelWritesNothingButATypedKeyStillCounts) {
    const std::string vorher = positionstext(w);
    Form9 form(programm, meldungen, nullptr);
    form.show();
    EXPECT_TRUE(programm.Gesichert());
    tippe(form, "Textbox1(0)", "7");
    klicke(form, "Command1");
    EXPECT_EQ(positionstext(w), vorher);
    EXPECT_FALSE(programm.Gesichert());
}

TEST_F(Dialog, ARefusedTextRefusesTheAcceptButNoOtherWayOut) {
    const std::string vorher = positionstext(w);
    const std::function<void(QWidget&)> auswege[] = {
        [](QWidget& form) { klicke(form, "Command1"); },
        [](QWidget& form) { QTest::keyClick(&form, Qt::Key_Escape); }, [](QWidget& form) { form.close(); }};
    for (const auto& ausweg : auswege) {
        Form5 form(programm, meldungen, nullptr);
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        tippe(form, "Textbox1(0)", "300");
        wert(form, "Textbox1(1)").setFocus();
        meldungen.gezeigt.clear();
        klicke(form, "ComEnde");
        EXPECT_TRUE(form.isVisible());
        ASSERT_EQ(meldungen.gezeigt.size(), 1U);
        erwarte(meldungen.gezeigt[0], Symbol::kritisch, " Fehler",
                "Die Eingabe \"300\" bei \"Abstand av\" ist unzulässig.\n\nzulässig: 20 bis 200 mm");
        EXPECT_TRUE(wert(form, "Textbox1(0)").hasFocus());
        ausweg(form);
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(meldungen.gezeigt.size(), 1U);
        EXPECT_EQ(positionstext(w), vorher);
    }
}

TEST_F(Dialog, AnAcceptedChangeByTheMouseAloneCountsAsUnsaved) {
    Form12 form(programm, meldungen, nullptr);
    form.show();
    klicke(form, "Check1");
    klicke(form, "ComEnde");
    EXPECT_TRUE(w.Erhoehung20);
    EXPECT_FALSE(programm.Gesichert());
}

TEST_F(Dialog, ServiceClassesOfSideTwoAreCountedDown) {
    Form4 form(programm, meldungen, nullptr);
    form.show();
    EXPECT_TRUE(finde<QRadioButton>(form, "Option3(3)").isChecked());
    EXPECT_EQ(gelesen(finde<QRadioButton>(form, "Option3(3)").text()), QStringLiteral("NKL 1"));
    klicke(form, "Option3(2)");
    klicke(form, "Option2(3)");
    tippe(form, "Textbox1(3)", "0,625");
    klicke(form, "ComEnde");
    EXPECT_EQ(w.NKLBeplankung[Seite::eins], 1);
    EXPECT_EQ(w.NKLBeplankung[Seite::zwei], 2);
    EXPECT_FALSE(w.Gestossen[Seite::eins]);
    EXPECT_TRUE(w.Gestossen[Seite::zwei]);
    EXPECT_EQ(w.Plattenbreite[Seite::zwei], 625);
}

TEST_F(Dialog, ARefusedSheathingStaysOpenWithTheNewValuesInTheRecord) {
    Form4 form(programm, meldungen, nullptr);
    form.show();
    klicke(form, "Option1(0)");
    EXPECT_FALSE(finde<QGroupBox>(form, "Frame2").isVisible());
    waehle(form, "Materialbox2", 2);  // GKB on the hidden side
    klicke(form, "Option3(2)");       // NKL 2
    klicke(form, "ComEnde");
    EXPECT_TRUE(form.isVisible());
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    erwarte(meldungen.gezeigt[0], Symbol::kritisch, " Fehler",
            "Das gewählte Plattenmaterial für Beplankung 2 ist bei NKL 2 unzulässig! Bitte ändern!");
    EXPECT_EQ(form.focusWidget(), &finde<QRadioButton>(form, "Option1(0)"));  // side 2 is hidden
    klicke(form, "Option1(1)");
    klicke(form, "ComEnde");
    EXPECT_EQ(form.focusWidget(), &finde<QComboBox>(form, "Materialbox2"));
    klicke(form, "Option1(0)");
    klicke(form, "ComEnde");
    klicke(form, "Command1");
    EXPECT_EQ(w.Material[Seite::zwei], 3);
    EXPECT_TRUE(w.Einseitig);
}

TEST_F(Dialog, OwnMaterialsAreListedAndOpenForFreeMaterialOnly) {
    w.eigeneMaterialien.zeilen.resize(2);
    w.eigeneMaterialien.zeilen[1].name = "Lehmbauplatte";
    Form4 form(programm, meldungen, nullptr);
    form.show();
    QComboBox& eigene = finde<QComboBox>(form, "Combo1");
    EXPECT_FALSE(eigene.isEnabled());
    waehle(form, "MaterialBox", 12);
    EXPECT_TRUE(eigene.isEnabled());
    EXPECT_EQ(eigene.itemText(1), QStringLiteral("Lehmbauplatte"));
    eigene.setCurrentIndex(1);
    klicke(form, "ComEnde");
    EXPECT_EQ(w.Material[Seite::eins], 13);
    EXPECT_EQ(w.EigenesMaterial[Seite::eins], 2);
}

TEST_F(Dialog, ABoardOfFixedThicknessesOffersThem) {
    const std::pair<int, QStringList> faelle[] = {
        {2, {QStringLiteral("12,5 mm"), QStringLiteral("15,0 mm"), QStringLiteral("18,0 mm")}},
        {6,
         {QStringLiteral("10,0 mm"), QStringLiteral("12,5 mm"), QStringLiteral("15,0 mm"),
          QStringLiteral("18,0 mm")}},
        {0, {}}};
    Form4 form(programm, meldungen, nullptr);
    form.show();
    const QToolButton& knopf = finde<QToolButton>(form, "Dicken2");
    const QMenu& liste = *knopf.findChild<QMenu*>();
    for (const auto& [material, erwartet] : faelle) {
        waehle(form, "Materialbox2", material);
        QStringList angeboten;
        for (const QAction* dicke : liste.actions()) angeboten << dicke->text();
        EXPECT_EQ(angeboten, erwartet) << material;
        EXPECT_EQ(knopf.isEnabled(), !erwartet.isEmpty());
        if (!erwartet.isEmpty()) liste.actions().last()->trigger();
    }
    EXPECT_EQ(wert(form, "Textbox1(2)").wert(), 18.0);
}

TEST_F(Dialog, NoOwnMaterialIsChosenByTheVisitToTheDatabase) {
    w.EigenesMaterial[Seite::eins] = 4;  // a row that is not there
    w.Material[Seite::eins] = 13;
    Form4 form(programm, meldungen, nullptr);
    form.show();
    mitFenster([&] { klicke(form, "ComProfile"); }, [](QWidget&) {});
    EXPECT_EQ(finde<QComboBox>(form, "Combo1").currentIndex(), -1);
    klicke(form, "ComEnde");
    EXPECT_EQ(w.EigenesMaterial[Seite::eins], 4);
}

struct Artfall {
    const char* name;
    int art;
    bool nagel, klasse, dk, lg, vorgebohrt;
    double fuk;
};

TEST_F(Dialog, TheKindOfFastenerOpensItsFieldsAndSetsItsStrength) {
    const Artfall faelle[] = {
        {"Klammern", 3, false, false, false, false, false, 800},
        {"Schrauben mit Zulassung", 5, false, true, true, true, true, 800},  // as it was
        {"Sondernaegel", 2, false, true, true, true, true, 600},
        {"Schnellbauschrauben", 6, false, false, false, false, false, 400},
        {"Naegel DIN 18182-2", 7, false, false, true, true, false, 600},
        {"Klammern DIN 18182-2", 8, false, false, false, false, false, 950},
        {"Schrauben DIN 7997", 4, false, false, true, true, true, 600},
        {"Naegel", 1, true, false, true, false, true, 600},
    };
    Form5 form(programm, meldungen, nullptr);
    form.show();
    for (const Artfall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        finde<QCheckBox>(form, "Check3").setChecked(true);
        waehle(form, "Combo5", fall.art - 1);
        EXPECT_EQ(finde<QComboBox>(form, "Combo10").isEnabled(), fall.nagel);
        EXPECT_EQ(finde<QComboBox>(form, "Combo6").isEnabled(), fall.klasse);
        EXPECT_EQ(wert(form, "Textbox1(6)").isEnabled(), fall.dk);
        EXPECT_EQ(wert(form, "Textbox1(7)").isEnabled(), fall.lg);
        EXPECT_EQ(finde<QCheckBox>(form, "Check3").isEnabled(), fall.vorgebohrt);
        EXPECT_EQ(finde<QCheckBox>(form, "Check3").isChecked(), fall.vorgebohrt);
        EXPECT_TRUE(finde<QCheckBox>(form, "Check4").isEnabled());
        EXPECT_EQ(wert(form, "Textbox1(5)").wert(), fall.fuk);
    }
}

TEST_F(Dialog, ANailSizeSetsDiameterLengthAndHeadOfBothSidesAnew) {
    w.d[Seite::zwei] = 9;
    Form5 form(programm, meldungen, nullptr);
    form.show();
    EXPECT_EQ(wert(form, "Textbox1(10)").wert(), 9.0);  // loading sets nothing
    waehle(form, "Combo9", 14);                         // 3,8x90
    EXPECT_EQ(wert(form, "Textbox1(8)").text(), QStringLiteral("3,80"));
    EXPECT_EQ(wert(form, "Textbox1(9)").wert(), 90.0);
    EXPECT_EQ(wert(form, "Textbox1(2)").wert(), 7.6);
    EXPECT_EQ(wert(form, "Textbox1(10)").wert(), 2.7);
}

TEST_F(Dialog, ALineSaysWhenTheSizesAreNotThoseOfTheChosenNail) {
    Form5 form(programm, meldungen, nullptr);
    form.show();
    const QLabel& zeile = finde<QLabel>(form, "Abweichung1");
    EXPECT_FALSE(zeile.isVisible());
    tippe(form, "Textbox1(9)", "55");
    EXPECT_TRUE(zeile.isVisible());
    EXPECT_TRUE(zeile.text().contains(QStringLiteral("2,7x50")));
    waehle(form, "Combo1", 2);  // staples print their sizes
    EXPECT_FALSE(zeile.isVisible());
}

TEST_F(Dialog, GypsumBoardIsNotPredrilled) {
    w.Material[Seite::eins] = 7;
    w.Vorgebohrt[Seite::eins] = true;
    w.Vorgebohrt[Seite::zwei] = true;
    Form5 form(programm, meldungen, nullptr);
    EXPECT_FALSE(finde<QCheckBox>(form, "Check1").isChecked());
    EXPECT_FALSE(finde<QCheckBox>(form, "Check1").isEnabled());
    EXPECT_TRUE(finde<QCheckBox>(form, "Check3").isChecked());
    EXPECT_EQ(finde<QGroupBox>(form, "Frame1").title(),
              QStringLiteral("Verbindungsmittel Beplankung 1 (Fermacell Gipsfaserplatte)"));
}

TEST_F(Dialog, FastenersAreRefusedWithTheFirstFindingOnly) {
    Form5 form(programm, meldungen, nullptr);
    form.show();
    tippe(form, "Textbox1(9)", "300");  // longer than 160 + 15 mm
    tippe(form, "Textbox1(6)", "2");    // head of side 2 smaller than its shank
    klicke(form, "ComEnde");
    EXPECT_TRUE(form.isVisible());
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(meldungen.gezeigt[0].titel, QStringLiteral("Fehler"));
    EXPECT_EQ(
        meldungen.gezeigt[0].text,
        QStringLiteral("Beplankung 1: Die Länge l des VM ist größer als die Wanddicke + Beplankung 1! Bitte "
                       "ändern!"));
    EXPECT_EQ(w.ln[Seite::eins], 300);
    EXPECT_EQ(form.focusWidget(), &wert(form, "Textbox1(9)"));
}

TEST_F(Dialog, ARefusalOfTheSheathingLeadsToTheFieldItNames) {
    struct Fall {
        int Material1, Material2, NKL;
        double t1;
        const char* feld;
    };
    const Fall faelle[] = {{3, 1, 2, 12.5, "MaterialBox"},
                           {1, 3, 2, 15, "Materialbox2"},
                           {2, 7, 1, 11.9, "Textbox1(0)"},
                           {6, 7, 1, 15, "Materialbox2"}};
    for (const Fall& fall : faelle) {
        w.Einseitig = false;
        w.Material[Seite::eins] = fall.Material1;
        w.Material[Seite::zwei] = fall.Material2;
        for (const Seite n : beideSeiten) w.NKLBeplankung[n] = fall.NKL;
        w.Plattendicke1 = fall.t1;
        Form4 form(programm, meldungen, nullptr);
        form.show();
        klicke(form, "ComEnde");
        ASSERT_NE(form.focusWidget(), nullptr);
        EXPECT_EQ(form.focusWidget()->objectName(), QLatin1String(fall.feld));
    }
}

// All texts that can refuse the fasteners, each by a wall that breaks this rule alone.
TEST_F(Dialog, ARefusalOfTheFastenersLeadsToTheFieldItNames) {
    struct Fall {
        int Material, VMArt;
        double d, ln, dk, lg;
        const char* worte;
        const char* feld;
    };
    const Fall faelle[] = {
        {1, 2, 4, 50, 8, 50, "Die Gewinde-/Rillenlänge lg", "Textbox1(3)"},
        {1, 1, 4, 50, 4, 0, "Der Kopfdurchmesser dk", "Textbox1(2)"},
        {1, 1, 4, 300, 8, 0, "Die Länge l des VM", "Textbox1(9)"},
        {1, 6, 4, 50, 8, 0, "nicht zulässig", "Combo1"},
        {3, 1, 4, 50, 8, 0, "nicht zulässig", "Combo1"},
        {7, 4, 4, 50, 8, 30, "nicht zulässig", "Combo1"},
        {3, 6, 3.5, 50, 8, 0, "Durchmesser der Schnellbauschrauben", "Textbox1(8)"},
        {1, 5, 9, 50, 18, 30, "Durchmesser der Schrauben", "Textbox1(8)"},
    };
    w.Einseitig = true;
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.worte);
        w.Material[Seite::eins] = fall.Material;
        w.VMArt[Seite::eins] = fall.VMArt;
        w.d[Seite::eins] = fall.d;
        w.ln[Seite::eins] = fall.ln;
        w.dk[Seite::eins] = fall.dk;
        w.lg[Seite::eins] = fall.lg;
        Form5 form(programm, meldungen, nullptr);
        form.show();
        meldungen.gezeigt.clear();
        klicke(form, "ComEnde");
        ASSERT_EQ(meldungen.gezeigt.size(), 1U);
        EXPECT_TRUE(meldungen.gezeigt[0].text.contains(QString::fromUtf8(fall.worte)));
        ASSERT_NE(form.focusWidget(), nullptr);
        EXPECT_EQ(form.focusWidget()->objectName(), QLatin1String(fall.feld));
    }
}

TEST_F(Dialog, TheAnchorLimitsItsNailsAndComputesItsResistance) {
    Form7 form(programm, meldungen, nullptr);
    form.show();
    tippe(form, "Textbox1(0)", "30");
    EXPECT_EQ(wert(form, "Textbox1(0)").wert(), 25.0);  // HD340 takes 25
    // KLED kurz: min(1.83 * 25 * 0.9 / 1.3, 17 / 1.3) = min(31.67, 13.08)
    EXPECT_NEAR(wert(form, "Textbox1(1)").wert(), 13.0769, 1e-4);
    tippe(form, "Textbox1(0)", "8");
    EXPECT_NEAR(wert(form, "Textbox1(1)").wert(), 1.83 * 8 * 0.9 / 1.3, 1e-9);
    waehle(form, "Combo1", 2);  // 2.36 kN a nail
    EXPECT_NEAR(wert(form, "Textbox1(1)").wert(), 2.36 * 8 * 0.9 / 1.3, 1e-9);

    klicke(form, "Option1(11)");  // HD2PSG counts 16 or 8 nails itself: min(2.36 * 8 * 0.9 / 1.3, 12.8 / 1.3)
    EXPECT_FALSE(wert(form, "Textbox1(0)").isEnabled());
    klicke(form, "Check2");
    EXPECT_NEAR(wert(form, "Textbox1(1)").wert(), 12.8 / 1.3, 1e-9);

    klicke(form, "Option1(8)");
    EXPECT_TRUE(wert(form, "Textbox1(1)").isEnabled());
    tippe(form, "Textbox1(1)", "21,5");
    tippe(finde<QLineEdit>(form, "Text1"), QStringLiteral("Laschenanker"));
    klicke(form, "Check1");
    klicke(form, "ComEnde");
    EXPECT_EQ(w.Ankertyp, 13);
    EXPECT_EQ(w.RdAnker, 21.5);
    EXPECT_EQ(w.FreierAnkerName, "Laschenanker");
    EXPECT_EQ(w.Teilausnagelung, 2);
    EXPECT_TRUE(w.NachweisVerankerung);
}

TEST_F(Dialog, TheAnchorDialogShowsTheRecordAndSaysWhatARunWouldTake) {
    Form7 form(programm, meldungen, nullptr);
    form.show();
    EXPECT_EQ(wert(form, "Textbox1(1)").text(), QStringLiteral("12,00"));
    // min(1.83 * 16 * 0.9 / 1.3, 17 / 1.3) = min(20.27, 13.08)
    const QLabel& zeile = finde<QLabel>(form, "Laufwert");
    EXPECT_FALSE(zeile.isVisible());
    EXPECT_TRUE(finde<QLabel>(form, "Wirkung").isVisible());
    klicke(form, "Check1");
    EXPECT_FALSE(finde<QLabel>(form, "Wirkung").isVisible());
    EXPECT_TRUE(zeile.isVisible());
    EXPECT_TRUE(zeile.text().contains(QStringLiteral("Rd = 13,08 kN"))) << zeile.text().toStdString();
    klicke(form, "Option1(8)");
    EXPECT_FALSE(zeile.isVisible());
}

TEST_F(Dialog, ValuesOfALoadCaseThatIsNotChosenAreLostOnAccept) {
    struct Fall {
        const char* option;
        float Fvk, gk;
    };
    for (const Fall& fall : {Fall{"Option1(0)", 6, 0}, Fall{"Option1(1)", 0, 2}, Fall{"Option1(2)", 6, 2}}) {
        SCOPED_TRACE(fall.option);
        w.Lastfall = 3;
        w.WindQuer = true;
        w.Fvk = 6;
        w.gk = 2;
        w.qk = 2;
        w.Fcgk = 2;
        w.Fcqk = 2;
        w.wk = 1;
        Form9 form(programm, meldungen, nullptr);
        klicke(form, fall.option);
        klicke(form, "Check1");
        klicke(form, "ComEnde");
        EXPECT_EQ(w.Fvk, fall.Fvk);
        for (const Zahl last : {Zahl(w.gk), Zahl(w.qk), Zahl(w.Fcgk), Zahl(w.Fcqk)}) EXPECT_EQ(last, fall.gk);
        EXPECT_EQ(w.wk, 0);
        EXPECT_EQ(w.gkWand, 0.35F);
        EXPECT_EQ(w.Fvd, 1.5 * fall.Fvk);
    }
}

TEST_F(Dialog, TheSelfWeightReachesTheRecordThroughTheLoadDialogOnly) {
    const std::string vorher = positionstext(w);
    Form9 form(programm, meldungen, nullptr);
    form.show();
    // Timber: (2 * (2.5 - 0.16) + 7 * (2.5 - 0.16) + 2 * 5) * 0.0128 m² * 5 kN/m³ = 1.988 kN
    // sheathing: 2 * 6 * 2.5 * 5 * 0.015 = 2.25 kN
    // insulation 16 cm: 0.01 * 16 * (5 - 0.16 - 7 * 0.08) * (2.5 - 0.16) = 1.602 kN
    const double holz = (9 * 2.34 + 10) * 0.0128 * 5;
    const double daemmung = 0.16 * (5 - 0.16 - 0.56) * 2.34;
    ASSERT_TRUE(mitFenster([&] { klicke(form, "Command2"); },
                           [&](QWidget& eigengewicht) {
                               EXPECT_FALSE(wert(eigengewicht, "Textbox1(0)").isEnabled());
                               EXPECT_EQ(wert(eigengewicht, "Textbox1(0)").wert(), 16.0);
                               EXPECT_TRUE(wert(eigengewicht, "Textbox1(1)").isReadOnly());
                               EXPECT_NEAR(wert(eigengewicht, "Textbox1(1)").wert(), (holz + 2.25) / 5, 1e-9);
                               klicke(eigengewicht, "Option1(0)");
                               EXPECT_TRUE(wert(eigengewicht, "Textbox1(0)").isEnabled());
                               klicke(eigengewicht, "ComEnde");
                           }));
    EXPECT_NEAR(wert(form, "Textbox1(6)").wert(), (holz + 2.25 + daemmung) / 5, 1e-9);
    EXPECT_EQ(positionstext(w), vorher);
    EXPECT_EQ(w.GewichtGesamt, 0);
    klicke(form, "ComEnde");
    EXPECT_NEAR(w.gkWand.value(), (holz + 2.25 + daemmung) / 5, 1e-6);
}

TEST_F(Dialog, TheSelfWeightTakesTheMaterialsThatAreEnteredNow) {
    w.Material[Seite::zwei] = 3;  // gypsum board, 9 kN/m³
    const auto hinweis = [this] {
        Form14 form(programm, meldungen, nullptr);
        return finde<QLabel>(form, "Wichtenhinweis").text();
    };
    EXPECT_EQ(hinweis(), QStringLiteral("Wichten der gewählten Beplankung: 6,0 / 9,0 kN/m³"));
    w.Einseitig = true;
    EXPECT_EQ(hinweis(), QStringLiteral("Wichten der gewählten Beplankung: 6,0 kN/m³"));
    EXPECT_EQ(w.Wichte[Seite::eins], 0);
}

TEST_F(Dialog, ANumberOfAFileThatIsNoChoiceShowsWhatTheCalculationTakesAndIsWrittenBackAsRead) {
    for (const int zahl : {0, 3}) {
        SCOPED_TRACE(zahl);
        w.GenauesVerfahren = zahl;
        w.KlammerWinkelOption = zahl;
        w.VertikallastVerteilung = zahl;
        w.LagesicherungVerfahren = zahl;
        Form12 form(programm, meldungen, nullptr);
        form.show();
        for (const char* gezeigt : {"Option1(1)", "Option2(1)", "Option3(0)", "Option4(0)"})
            EXPECT_TRUE(finde<QRadioButton>(form, gezeigt).isChecked()) << gezeigt;
        klicke(form, "Option4(1)");
        klicke(form, "ComEnde");
        EXPECT_EQ(w.GenauesVerfahren, zahl);
        EXPECT_EQ(w.KlammerWinkelOption, zahl);
        EXPECT_EQ(w.VertikallastVerteilung, zahl);
        EXPECT_EQ(w.LagesicherungVerfahren, 2);
    }
}

TEST_F(Dialog, TheStapleAngleIsOpenFromThirtyDegreesOn) {
    Form12 form(programm, meldungen, nullptr);
    form.show();
    EXPECT_TRUE(wert(form, "TextBox2(0)").isEnabled());
    tippe(form, "TextBox2(0)", "45");
    klicke(form, "Option2(1)");
    EXPECT_FALSE(wert(form, "TextBox2(0)").isEnabled());
    klicke(form, "Option1(0)");
    klicke(form, "Option3(1)");
    klicke(form, "Option4(0)");
    klicke(form, "ComEnde");
    EXPECT_EQ(w.beta, 45);
    EXPECT_EQ(w.KlammerWinkelOption, 2);
    EXPECT_EQ(w.GenauesVerfahren, 1);
    EXPECT_EQ(w.VertikallastVerteilung, 2);
    EXPECT_EQ(w.LagesicherungVerfahren, 1);
}

}  // namespace
}  // namespace rippenscheibe
