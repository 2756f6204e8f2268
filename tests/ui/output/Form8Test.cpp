#include "support/Gerechnet.h"
#include "ui/output/Form8_Seitenkopf.h"

namespace rippenscheibe {
namespace {

class Seitenkopf : public Gerechnet {
  protected:
    Seitenkopf() {
        programm.einstellungen.Kopfvorlage = 1;
        programm.einstellungen.Kopfzeile1 = "Büro";
        programm.einstellungen.Kopfzeile2 = "Ort";
        oeffne();
    }
    void oeffne() {
        fenster = std::make_unique<Form8>(programm, meldungen, nullptr);
        fenster->show();
    }
    QListWidget& vorlagen() { return finde<QListWidget>(*fenster, "List1"); }
    QLineEdit& zeile(const char* name) { return finde<QLineEdit>(*fenster, name); }
    Einstellungen& e() { return programm.einstellungen; }
    Einstellungen inDatei() const {
        Einstellungen gelesen;
        liesEinstellungen(programm.datei(einstellungsdatei), gelesen);
        return gelesen;
    }
    QImage vorschau() { return finde<QWidget>(*fenster, "Vorschau").grab().toImage(); }

    std::unique_ptr<Form8> fenster;
};

TEST_F(Seitenkopf, EachTemplateHasItsTextsLocksAndButtons) {
    struct Fall {
        int vorlage;
        const char *erste, *zweite;
        bool gesperrt, knoepfe, programmname;
    };
    constexpr std::array<Fall, 6> faelle{
        {{0, "Statik - Programme für das Bauwesen", "Rippenscheibe", true, false, false},
         {1, "Büro", "Ort", false, true, true},
         {2, "Büro", "Ort", false, true, true},
         {3, "Büro", "Ort", false, true, true},
         {4, "Büro", "Ort", false, true, true},
         {5, "", "", true, false, true}}};
    // Each template after each other one.
    for (const Fall& vorher : faelle) {
        for (const Fall& fall : faelle) {
            SCOPED_TRACE(std::to_string(vorher.vorlage) + " -> " + std::to_string(fall.vorlage));
            vorlagen().setCurrentRow(vorher.vorlage);
            vorlagen().setCurrentRow(fall.vorlage);
            EXPECT_EQ(utf8(zeile("Text1").text()), fall.erste);
            EXPECT_EQ(utf8(zeile("Text2").text()), fall.zweite);
            EXPECT_EQ(zeile("Text1").isReadOnly(), fall.gesperrt);
            for (const char* name : {"Command4", "Command5", "Command7"})
                EXPECT_EQ(finde<QPushButton>(*fenster, name).isEnabled(), fall.knoepfe);
            EXPECT_EQ(finde<QCheckBox>(*fenster, "Check6").isEnabled(), fall.programmname);
            EXPECT_EQ(e().Kopfvorlage.value(), fall.vorlage);
            EXPECT_EQ(e().Kopfzeile1, fall.erste);
            EXPECT_EQ(e().Kopfzeile2, fall.zweite);
        }
    }
}

TEST_F(Seitenkopf, TheFixedHeadAlwaysNamesTheProgram) {
    finde<QCheckBox>(*fenster, "Check6").setChecked(false);
    vorlagen().setCurrentRow(0);
    EXPECT_TRUE(finde<QCheckBox>(*fenster, "Check6").isChecked());
}

TEST_F(Seitenkopf, ATypedTextIsTakenAtOnceAndKeptByTheNextTemplate) {
    tippe(zeile("Text1"), QStringLiteral("Neues Buero"));
    EXPECT_EQ(e().Kopfzeile1, "Neues Buero");
    vorlagen().setCurrentRow(4);
    EXPECT_EQ(e().Kopfzeile1, "Neues Buero");
    EXPECT_EQ(zeile("Text1").text(), QStringLiteral("Neues Buero"));
}

TEST_F(Seitenkopf, AbbruchBringsTemplateTextsAndFolderBackButNotFonts) {
    meldungen.schriften = {QFont(QStringLiteral("Courier New"))};
    klicke(*fenster, "Command4");
    tippe(zeile("Text2"), QStringLiteral("weg"));
    vorlagen().setCurrentRow(3);
    klicke(*fenster, "Check2");
    e().StandardPfad = "/anderswo/";  // as the path chooser leaves it
    klicke(*fenster, "Command2");
    EXPECT_FALSE(fenster->isVisible());
    EXPECT_EQ(e().Kopfvorlage.value(), 1);
    EXPECT_EQ(e().Kopfzeile2, "Ort");
    EXPECT_EQ(e().StandardPfad, vorgabepfad);
    EXPECT_EQ(e().Kopf1Schrift, "Courier New");
    EXPECT_FALSE(e().FusszeileDrucken);
    EXPECT_FALSE(QFile::exists(datei("Hset.dat")));
}

TEST_F(Seitenkopf, UebernehmenStoresEveryBoxAndTheFolder) {
    constexpr std::array<std::pair<const char*, bool Einstellungen::*>, 7> haken{
        {{"Check1", &Einstellungen::LogoDrucken},
         {"Check2", &Einstellungen::FusszeileDrucken},
         {"Check3", &Einstellungen::SeitenzahlStandard},
         {"Check4", &Einstellungen::SystembildStandard},
         {"Check5", &Einstellungen::SchnittkraftStandard},
         {"Check6", &Einstellungen::ProgrammnameDrucken},
         {"Check7", &Einstellungen::BlattStattSeite}}};
    for (const auto& [name, feld] : haken) {
        SCOPED_TRACE(name);
        const Einstellungen vorher = e();
        oeffne();
        klicke(*fenster, name);
        EXPECT_EQ(e().*feld, vorher.*feld);
        klicke(*fenster, "Command3");
        for (const auto& [anderer, anderesFeld] : haken)
            EXPECT_EQ(inDatei().*anderesFeld, (vorher.*anderesFeld) != (anderesFeld == feld)) << anderer;
    }
    oeffne();
    tippe(zeile("Text3"), QStringLiteral("/daten/"));
    klicke(*fenster, "Command3");
    EXPECT_EQ(inDatei().StandardPfad, "/daten/");
    EXPECT_EQ(programm.DialogOrdner, QStringLiteral("/daten/"));
    oeffne();
    zeile("Text3").clear();
    klicke(*fenster, "Command3");
    EXPECT_EQ(inDatei().StandardPfad, "C:\\Eigene Dateien\\");
}

TEST_F(Seitenkopf, SettingsThatCannotBeWrittenAreReportedAndHold) {
    ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("Hset.dat")));  // a folder is in the way
    klicke(*fenster, "Check2");
    klicke(*fenster, "Command3");
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_TRUE(e().FusszeileDrucken);
    EXPECT_FALSE(fenster->isVisible());
}

TEST_F(Seitenkopf, TheFontDialogGivesNameAndStylesOfItsLine) {
    e().Kopf2Fett = true;
    QFont neu(QStringLiteral("Liberation Serif"), 30);
    neu.setItalic(true);
    neu.setUnderline(true);
    meldungen.schriften = {neu};
    klicke(*fenster, "Command7");
    EXPECT_TRUE(meldungen.vorgelegt.bold());
    EXPECT_EQ(e().Kopf2Schrift, "Liberation Serif");
    EXPECT_FALSE(e().Kopf2Fett);
    EXPECT_TRUE(e().Kopf2Kursiv);
    EXPECT_TRUE(e().Kopf2Unterstrichen);
    EXPECT_EQ(e().Kopf1Schrift, "Arial");
    EXPECT_TRUE(zeile("Text2").font().italic());
    EXPECT_EQ(zeile("Text2").font().pointSize(), 10);
    klicke(*fenster, "Command7");  // cancelled
    EXPECT_EQ(e().Kopf2Schrift, "Liberation Serif");
}

TEST_F(Seitenkopf, VoreinstellungSetsAllControlsAndFonts) {
    meldungen.schriften = {QFont(QStringLiteral("Courier New"))};
    klicke(*fenster, "Command7");
    klicke(*fenster, "Check3");
    klicke(*fenster, "Check7");
    zeile("Text3").setText(QStringLiteral("/daten/"));
    klicke(*fenster, "Command6");
    EXPECT_EQ(vorlagen().currentRow(), 0);
    EXPECT_EQ(zeile("Text3").text(), QStringLiteral("C:\\Eigene Dateien\\"));
    klicke(*fenster, "Command3");
    EXPECT_EQ(einstellungstext(inDatei()), einstellungstext(Einstellungen{}));
}

TEST_F(Seitenkopf, AnEmptiedProjectListHasOneEmptyProject) {
    programm.projekte.eintraege = {{"a", "/a/"}, {"b", "/b/"}};
    klicke(*fenster, "Command8");
    EXPECT_EQ(programm.projekte.eintraege, (std::vector<Projekteintrag>(1)));
}

TEST_F(Seitenkopf, ThePreviewFollowsEveryChoice) {
    QImage vorher = vorschau();
    const auto geaendert = [&](const char* was) {
        const QImage jetzt = vorschau();
        EXPECT_NE(jetzt, vorher) << was;
        vorher = jetzt;
    };
    vorlagen().setCurrentRow(2);
    geaendert("shadow");
    vorlagen().setCurrentRow(4);
    geaendert("double frame");
    tippe(zeile("Text1"), QStringLiteral("anderer Text"));
    geaendert("text");
    for (const char* name : {"Check2", "Check3", "Check6"}) {
        klicke(*fenster, name);
        geaendert(name);
    }
}

}  // namespace
}  // namespace rippenscheibe
