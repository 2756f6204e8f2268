#include <gtest/gtest.h>

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <cstdio>
#include <filesystem>

#include "files/EigeneMaterialienDatei.h"
#include "model/VMKatalog.h"
#include "support/GeskripteteMeldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Pfadwahl.h"
#include "ui/controls/Werteingabe.h"
#include "ui/help/Form10_Randbedingungen.h"
#include "ui/help/Form13_Systemkonfiguration.h"
#include "ui/help/Form3_Taschenrechner.h"
#include "ui/help/Handbuch.h"
#include "ui/input/Form16_VMKatalog.h"
#include "ui/input/Form5_Verbindungsmittel.h"
#include "ui/input/Form7_Verankerung.h"
#include "ui/main/Fensterfabrik.h"
#include "ui/main/Form0_Startbild.h"
#include "ui/output/Form8_Seitenkopf.h"
#include "ui/project/Form15_Projektdaten.h"
#include "ui/project/Form222_Bemerkungen.h"
#include "ui/project/Form800_Textvorlagen.h"
#include "ui/project/Form99_EigeneMaterialien.h"
#include "ui/session/Dateiablauf.h"

namespace rippenscheibe {
namespace {

// A program with a folder of its own, as after its first start; `neuStart` ends it and starts it again.
class Kleinfenster : public testing::Test {
  protected:
    Kleinfenster() { neuStart(); }

    void neuStart() {
        if (programm) {
            EXPECT_FALSE(programm->sichereProjekte());
        }
        programm = std::make_unique<Programm>(pfad(ordner.path()));
        programm->fenster = std::make_unique<Fensterfabrik>();
        programm->ladeEinstellungen();
        programm->w.eigeneMaterialien = liesEigeneMaterialien(programm->datei(materialdatei)).wert;
    }
    QString datei(const char* name) const { return ordner.filePath(QLatin1String(name)); }

    template <class T = QWidget>
    static T* feld(QWidget& fenster, const char* name) {
        auto* gefunden = fenster.findChild<T*>(QLatin1String(name));
        if (gefunden == nullptr) ADD_FAILURE() << "no control " << name;
        return gefunden;
    }
    static void klick(QWidget& fenster, const char* name) { feld<QAbstractButton>(fenster, name)->click(); }
    static void setze(QWidget& fenster, const char* name, const char* text) {
        feld<QLineEdit>(fenster, name)->setText(QString::fromUtf8(text));
    }
    static void tippe(QWidget& fenster, const char* name, const char* text) {
        auto* wert = feld<QLineEdit>(fenster, name);
        wert->selectAll();
        QTest::keyClicks(wert, QLatin1String(text));
    }

    QTemporaryDir ordner;
    std::unique_ptr<Programm> programm;
    GeskripteteMeldungen meldungen;
};

// ---- Splash, calculator, lists ----

TEST_F(Kleinfenster, SplashIsUnloadedOnceByTimeOrByAKey) {
    for (const bool taste : {false, true}) {
        Form0 startbild(*programm);
        QSignalSpy entladen(&startbild, &Form0::entladen);
        startbild.show();
        EXPECT_EQ(feld<QTimer>(startbild, "Timer1")->interval(), 1000);
        if (taste) {
            QTest::keyClick(&startbild, Qt::Key_A);
        } else {
            EXPECT_TRUE(entladen.wait(3000));
        }
        startbild.close();
        EXPECT_EQ(entladen.count(), 1);
    }
}

TEST_F(Kleinfenster, CalculatorWorksByButtonsAndByKeysAndLeavesThePositionAlone) {
    Form3 rechner(*programm, meldungen);
    rechner.show();
    klick(rechner, "Number(7)");
    klick(rechner, "Operator(3)");
    klick(rechner, "Number(0)");
    klick(rechner, "Operator(4)");
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(meldungen.gezeigt[0].titel, QStringLiteral("Achtung"));
    EXPECT_EQ(meldungen.gezeigt[0].text, QStringLiteral("Division durch Null! "));
    QTest::keyClicks(&rechner, QStringLiteral("c1,5*4"));
    QTest::keyClick(&rechner, Qt::Key_Return);
    EXPECT_EQ(feld<QLineEdit>(rechner, "Readout")->text(), QStringLiteral("6."));
    EXPECT_TRUE(rechner.isVisible());
    EXPECT_TRUE(programm->Gesichert());
}

TEST_F(Kleinfenster, SystemListHoldsLabelTabAndValue) {
    Form13 fenster(*programm, meldungen);
    const auto* liste = feld<QListWidget>(fenster, "List1");
    ASSERT_EQ(liste->count(), 12);
    QStringList namen;
    for (int i = 0; i < liste->count(); ++i) {
        namen << liste->item(i)->text().section(QLatin1Char('\t'), 0, 0);
        EXPECT_FALSE(liste->item(i)->text().section(QLatin1Char('\t'), -1).isEmpty()) << i;
    }
    EXPECT_EQ(namen[0], QStringLiteral("phys. Speicher "));
    EXPECT_EQ(namen[8], QStringLiteral("Bildschirmauflösung"));
}

// The pointer in the lower part does nothing; in the upper part each tick moves the picture 40 twips up.
TEST_F(Kleinfenster, PictureOfTheBoundaryConditionsScrollsUntilTheWindowCloses) {
    Form10 fenster(*programm, meldungen);
    fenster.show();
    auto* rahmen = feld<QFrame>(fenster, "Frame1");
    auto* uhr = feld<QTimer>(fenster, "Timer1");
    const auto zeige = [&](int y) {
        QMouseEvent maus(QEvent::MouseMove, QPointF(10, y), rahmen->mapToGlobal(QPointF(10, y)), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(rahmen, &maus);
    };
    zeige(400);  // 6000 twips
    EXPECT_FALSE(uhr->isActive());
    zeige(399);
    EXPECT_TRUE(uhr->isActive());
    // 80 ms a step; how many there are after a time depends on the machine.
    EXPECT_TRUE(QTest::qWaitFor([&] { return feld(fenster, "Image1")->y() < -5; }));
    fenster.accept();
    EXPECT_FALSE(uhr->isActive());
}

// ---- Project data and folders ----

TEST_F(Kleinfenster, ProjectsSurviveARestartAndAnExistingOneKeepsItsFolder) {
    {
        Form15 fenster(*programm, meldungen);
        EXPECT_EQ(feld<QLineEdit>(fenster, "Text1(2)")->text(),
                  QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy")));
        feld<QComboBox>(fenster, "Combo1")->setEditText(QStringLiteral("Haus \u00c4, \u2265 2 Geschosse"));
        setze(fenster, "Text1(0)", "/projekte/haus/");
        klick(fenster, "ComEnde");
        EXPECT_FALSE(programm->Gesichert());
    }
    {
        Form15 fenster(*programm, meldungen);
        setze(fenster, "Text1(0)", "/anderswo/");
        klick(fenster, "ComEnde");
    }
    neuStart();
    ASSERT_EQ(programm->projekte.eintraege.size(), 2U);  // the first entry of a new list is empty
    EXPECT_EQ(programm->projekte.eintraege[1].pfad, "/projekte/haus/");
    Form15 fenster(*programm, meldungen);
    auto* liste = feld<QComboBox>(fenster, "Combo1");
    EXPECT_EQ(liste->currentText(), QStringLiteral("Haus \u00c4, \u2265 2 Geschosse"));
    EXPECT_EQ(fenster.AktuellesProjekt(), 2);
    Q_EMIT liste->activated(0);
    EXPECT_EQ(feld<QLineEdit>(fenster, "Text1(0)")->text(), QStringLiteral("/projekte/haus/"));
}

TEST_F(Kleinfenster, ANameThatBeginsLikeAKnownProjectIsTakenAsTyped) {
    programm->projekte.eintraege.push_back({"Haus 12", "/zwoelf/"});
    Form15 fenster(*programm, meldungen);
    fenster.show();
    auto* name = feld<QLineEdit>(fenster, "Combo1_Text");
    name->setFocus();
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("Haus 1"));
    QTest::keyClick(name, Qt::Key_Tab);
    klick(fenster, "ComEnde");
    EXPECT_EQ(programm->w.Projekt, "Haus 1");
    EXPECT_EQ(programm->projekte.eintraege.back().name, "Haus 1");
}

TEST_F(Kleinfenster, TwoProgramsAtOnceLoseNoProject) {
    Programm zweites(pfad(ordner.path()));
    zweites.ladeEinstellungen();
    programm->projekte.eintraege.push_back({"A", "/a/"});
    zweites.projekte.eintraege.push_back({"B", "/b/"});
    ASSERT_FALSE(zweites.sichereProjekte());
    neuStart();
    ASSERT_EQ(programm->projekte.eintraege.size(), 3U);
    EXPECT_EQ(programm->projekte.eintraege[1].name, "A");
    EXPECT_EQ(programm->projekte.eintraege[2].name, "B");
}

TEST_F(Kleinfenster, AnEmptyFolderBecomesTheDefaultOneAfterTheProjectIsStored) {
    programm->einstellungen.StandardPfad = "/standard/";
    Form15 fenster(*programm, meldungen);
    feld<QComboBox>(fenster, "Combo1")->setEditText(QStringLiteral("Neu"));
    setze(fenster, "Text1(0)", "");
    klick(fenster, "ComEnde");
    EXPECT_EQ(programm->Positionspfad, "/standard/");
    EXPECT_EQ(programm->projekte.eintraege.back().pfad, "");
}

TEST_F(Kleinfenster, SavingUnderANameProposesPositionAndRemark) {
    Dateiablauf ablauf(*programm, meldungen, nullptr);
    meldungen.dateien = {datei("wand.rsw")};
    ablauf.projektdaten = [&] {
        Form15 fenster(*programm, meldungen);
        setze(fenster, "Text1(1)", "W7");
        setze(fenster, "Text1(3)", "Giebel");
        setze(fenster, "Text1(0)", "/projekte/");
        klick(fenster, "ComEnde");
        return fenster.result() == QDialog::Accepted;
    };
    ablauf.sichernUnter();
    ASSERT_EQ(meldungen.gewaehlt.size(), 1U);
    EXPECT_EQ(meldungen.gewaehlt[0].vorschlag, QStringLiteral("W7-Giebel"));
    EXPECT_EQ(meldungen.gewaehlt[0].ordner, QStringLiteral("/projekte/"));
    EXPECT_TRUE(QFile::exists(datei("wand.rsw")));
    EXPECT_TRUE(programm->Gesichert());
}

TEST_F(Kleinfenster, ClosingChangedProjectDataAsks) {
    for (const Antwort antwort : {Antwort::ja, Antwort::nein, Antwort::abbrechen}) {
        SCOPED_TRACE(static_cast<int>(antwort));
        programm->w.Position = "1";
        meldungen.gezeigt.clear();
        Form15 fenster(*programm, meldungen);
        fenster.show();
        setze(fenster, "Text1(1)", "W7");
        meldungen.antworten = {antwort};
        QTest::keyClick(&fenster, Qt::Key_Escape);
        EXPECT_EQ(meldungen.gezeigt.size(), 1U);
        EXPECT_EQ(programm->w.Position, antwort == Antwort::ja ? "W7" : "1");
        EXPECT_EQ(fenster.isVisible(), antwort == Antwort::abbrechen);
    }
    Form15 unberuehrt(*programm, meldungen);
    unberuehrt.reject();
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
}

TEST_F(Kleinfenster, TheDateThatTheWindowFillsInIsNoChange) {
    Form15 fenster(*programm, meldungen);
    klick(fenster, "ComEnde");
    EXPECT_FALSE(programm->w.Datum.empty());
    EXPECT_TRUE(programm->Gesichert());
}

// Each text that the files hold between double quotes, with one in it.
TEST_F(Kleinfenster, DoubleQuotesBecomeSingleOnesWithOneNoteAndNothingIsLost) {
    for (const char* name : {"A", "B", "C"}) programm->projekte.eintraege.push_back({name, "/p/"});
    {
        Form15 fenster(*programm, meldungen);
        feld<QComboBox>(fenster, "Combo1")->setEditText(QStringLiteral("Haus \"Süd\", 2"));
        setze(fenster, "Text1(3)", "Achse \"B\"");
        klick(fenster, "ComEnde");
        EXPECT_EQ(meldungen.gezeigt.size(), 1U);
    }
    {
        Form222 fenster(*programm, meldungen);
        feld<QPlainTextEdit>(fenster, "Text2")->setPlainText(QStringLiteral("\"a\"\nb"));
        fenster.reject();  // Esc stores too
        EXPECT_EQ(meldungen.gezeigt.size(), 2U);
        EXPECT_EQ(programm->w.Vorbemerkungen[0], "'a'");
        EXPECT_EQ(programm->w.Vorbemerkungen[1], "b");
    }
    {
        Form7 fenster(*programm, meldungen, nullptr);
        setze(fenster, "Text1", "\"Z\" 40");
        klick(fenster, "ComEnde");
        EXPECT_EQ(meldungen.gezeigt.size(), 3U);
        EXPECT_EQ(programm->w.FreierAnkerName, "'Z' 40");
    }
    {
        Form8 fenster(*programm, meldungen, nullptr);
        feld<QListWidget>(fenster, "List1")->setCurrentRow(1);
        setze(fenster, "Text1", "Büro \"Nord\"");
        setze(fenster, "Text3", "/da\"ten/");
        klick(fenster, "Command3");  // a folder with a quote is refused
        EXPECT_EQ(fenster.result(), QDialog::Rejected);
        setze(fenster, "Text3", "/daten/");
        klick(fenster, "Command3");
        EXPECT_EQ(programm->einstellungen.Kopfzeile1, "Büro 'Nord'");
        EXPECT_EQ(meldungen.gezeigt.size(), 5U);
    }
    {
        Textvorlagenfenster fenster(*programm, meldungen, nullptr, Vorlagenart::vorbemerkungen);
        klick(fenster, "Command2");
        setze(fenster, "Text2", "\"Kurz\"");
        feld<QPlainTextEdit>(fenster, "Text1")->setPlainText(QStringLiteral("nach \"Plan\""));
        klick(fenster, "Command3");
        EXPECT_EQ(meldungen.gezeigt.size(), 6U);
        const Textvorlagen vorlagen = liesTextvorlagen(programm->datei(vorlagenVorbemerkungen)).wert;
        ASSERT_EQ(vorlagen.size(), 1U);
        EXPECT_EQ(vorlagen[0].name, "'Kurz'");
        EXPECT_EQ(vorlagen[0].text, "nach 'Plan'");
    }
    {
        Form99 fenster(*programm, meldungen);
        klick(fenster, "Command2(0)");
        setze(fenster, "Textbox1", "Platte \"S\"");
        tippe(fenster, "TextBox2(1)", "3,5");
        klick(fenster, "Option1(1)");
        klick(fenster, "Command3");
        klick(fenster, "Command1");
        EXPECT_EQ(meldungen.gezeigt.size(), 7U);
    }
    neuStart();
    ASSERT_EQ(programm->w.eigeneMaterialien.zeilen.size(), 1U);
    EXPECT_EQ(*programm->w.eigeneMaterialien.name(1), "Platte 'S'");
    ASSERT_EQ(programm->projekte.eintraege.size(), 5U);
    EXPECT_EQ(programm->projekte.eintraege[3].name, "C");
    EXPECT_EQ(programm->projekte.eintraege[4].name, "Haus 'Süd', 2");
}

TEST_F(Kleinfenster, PathChooserEndsTheFolderWithASeparatorOnlyWhenItIsTakenOver) {
    ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("unter")));
    programm->Positionspfad = utf8(ordner.filePath(QStringLiteral("unter")));
    Pfadwahl wahl(*programm, meldungen, nullptr, Pfadwahl::Zweck::positionspfad);
    EXPECT_EQ(wahl.pfad(), datei("unter") + QLatin1Char('/'));
    klick(wahl, "Command1(0)");
    EXPECT_EQ(programm->Positionspfad, utf8(datei("unter")));
    klick(wahl, "Command1(1)");
    EXPECT_EQ(programm->Positionspfad, utf8(datei("unter")) + "/");
    Pfadwahl standard(*programm, meldungen, nullptr, Pfadwahl::Zweck::standardpfad);
    klick(standard, "Command1(1)");
    EXPECT_EQ(programm->einstellungen.StandardPfad, utf8(QDir::rootPath()));
}

// Many folders above it are read after the window shows: its own stays in sight.
TEST_F(Kleinfenster, ThePathChooserKeepsItsStartInSightWhileFoldersAreRead) {
    QDir hier(ordner.path());
    for (int i = 0; i < 150; ++i)
        ASSERT_TRUE(hier.mkdir(QStringLiteral("a%1").arg(i, 3, 10, QLatin1Char('0'))));
    ASSERT_TRUE(hier.mkpath(QStringLiteral("z/tief")));
    programm->Positionspfad = utf8(ordner.filePath(QStringLiteral("z/tief")));
    Pfadwahl wahl(*programm, meldungen, nullptr, Pfadwahl::Zweck::positionspfad);
    const auto* baum = feld<QTreeView>(wahl, "Dir1");
    QSignalSpy gelesen(baum->model(), SIGNAL(directoryLoaded(QString)));
    wahl.show();
    const auto sichtbar = [&] {
        const QRect ort = baum->visualRect(baum->currentIndex());
        return ort.isValid() && baum->viewport()->rect().contains(ort.center());
    };
    const QPersistentModelIndex drueber = baum->currentIndex().parent().parent();
    EXPECT_TRUE(QTest::qWaitFor([&] { return baum->model()->rowCount(drueber) > 150 && sichtbar(); }));
    EXPECT_FALSE(gelesen.isEmpty());
}

// ---- Remarks and templates ----

TEST_F(Kleinfenster, AFourthLineOfThePreliminaryRemarksIsUndone) {
    Form222 fenster(*programm, meldungen);
    fenster.show();
    auto* text = feld<QPlainTextEdit>(fenster, "Text2");
    text->setFocus();
    QTest::keyClicks(text, QStringLiteral("a\rb\rc"));
    QTest::keyClick(text, Qt::Key_Return);
    QTest::keyClicks(text, QStringLiteral("d"));
    EXPECT_EQ(text->toPlainText().section(QLatin1Char('\n'), 0, 1), QStringLiteral("a\nb"));
    EXPECT_LE(text->toPlainText().count(QLatin1Char('\n')), 3);
    text->setPlainText(QStringLiteral("1\n2\n3"));
    text->setPlainText(QStringLiteral("1\n2\n3\n4"));
    EXPECT_EQ(text->toPlainText(), QStringLiteral("1\n2\n3"));
    // Only the last change is undone: what was typed before it stays, and so do caret and undo.
    text->setPlainText(QStringLiteral("ab\nzwei\ndrei"));
    text->moveCursor(QTextCursor::Start);
    QTest::keyClicks(text, QStringLiteral("x"));
    text->moveCursor(QTextCursor::Right);
    text->insertPlainText(QStringLiteral("1\n2"));
    EXPECT_EQ(text->toPlainText(), QStringLiteral("xab\nzwei\ndrei"));
    EXPECT_EQ(text->textCursor().position(), 2);
    EXPECT_TRUE(text->document()->isUndoAvailable());
    text->setPlainText(QStringLiteral("1\n2\n3"));
    feld<QPlainTextEdit>(fenster, "Text1")->setPlainText(QStringLiteral("eins\n\ndrei"));
    klick(fenster, "ComBem");
    EXPECT_EQ(programm->w.Vorbemerkungen[2], "3");
    ASSERT_EQ(programm->w.AnzahlZusatzbemerkungen.value(), 3);
    EXPECT_EQ(programm->w.Zusatzbemerkungen[2], "drei");
}

TEST_F(Kleinfenster, ClosingRemarksThatBeginWithAnEmptyLineAreNone) {
    Form222 fenster(*programm, meldungen);
    feld<QPlainTextEdit>(fenster, "Text1")->setPlainText(QStringLiteral("\nzweite"));
    klick(fenster, "ComBem");
    EXPECT_EQ(programm->w.AnzahlZusatzbemerkungen.value(), 0);
    EXPECT_EQ(programm->w.Zusatzbemerkungen.size(), 200U);
}

TEST_F(Kleinfenster, TemplatesSurviveARestartAndAreOverwrittenByName) {
    const auto sichere = [&](const char* name, const char* text) {
        Textvorlagenfenster fenster(*programm, meldungen, nullptr, Vorlagenart::zusatzbemerkungen);
        EXPECT_FALSE(feld(fenster, "Command3")->isEnabled());
        klick(fenster, "Command2");
        setze(fenster, "Text2", name);
        feld<QPlainTextEdit>(fenster, "Text1")->setPlainText(QString::fromUtf8(text));
        klick(fenster, "Command3");
    };
    sichere("Brand", "F 30-B\nzwei\ndrei\nvier");
    sichere("Schall", "R'w");
    sichere("Brand", "F 60-B\nzwei");
    neuStart();
    Textvorlagenfenster fenster(*programm, meldungen, nullptr, Vorlagenart::zusatzbemerkungen);
    auto* liste = feld<QListWidget>(fenster, "List1");
    ASSERT_EQ(liste->count(), 2);
    liste->setCurrentRow(0);
    EXPECT_EQ(fenster.text(), "F 60-B\r\nzwei");
    Textvorlagenfenster andere(*programm, meldungen, nullptr, Vorlagenart::vorbemerkungen);
    EXPECT_EQ(feld<QListWidget>(andere, "List1")->count(), 0);
}

TEST_F(Kleinfenster, NoTemplateIsShownBeforeOneIsChosen) {
    Textvorlagen vorlagen;
    ASSERT_FALSE(sichereTextvorlage(programm->datei(vorlagenZusatzbemerkungen), {"A", "eins"}, vorlagen));
    Textvorlagenfenster fenster(*programm, meldungen, nullptr, Vorlagenart::zusatzbemerkungen);
    fenster.show();
    auto* liste = feld<QListWidget>(fenster, "List1");
    feld(fenster, "Command2")->setFocus();
    liste->setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_EQ(liste->currentRow(), 0);  // by the focus alone
    EXPECT_EQ(fenster.text(), "");
    EXPECT_FALSE(feld(fenster, "ComBem")->isEnabled());
    QTest::keyClick(liste, Qt::Key_Space);
    EXPECT_EQ(fenster.text(), "eins");
    EXPECT_TRUE(feld(fenster, "ComBem")->isEnabled());
    klick(fenster, "Command2");
    EXPECT_EQ(fenster.text(), "");
    QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, liste->visualItemRect(liste->item(0)).center());
    EXPECT_EQ(fenster.text(), "eins");
}

TEST_F(Kleinfenster, ATemplateWithoutANameOrWithTooManyLinesIsNotTaken) {
    Textvorlagen vorlagen;
    const auto pfadname = programm->datei(vorlagenVorbemerkungen);
    ASSERT_FALSE(sichereTextvorlage(pfadname, {"kurz", "1\r\n2\r\n3"}, vorlagen));
    ASSERT_FALSE(sichereTextvorlage(pfadname, {"lang", "1\r\n2\r\n3\r\n4"}, vorlagen));
    Textvorlagenfenster fenster(*programm, meldungen, nullptr, Vorlagenart::vorbemerkungen);
    auto* liste = feld<QListWidget>(fenster, "List1");
    for (const int zeile : {0, 1}) {
        liste->setCurrentRow(zeile);
        EXPECT_EQ(fenster.text(), "1\r\n2\r\n3");
        for (const char* knopf : {"ComBem", "Command3"})
            EXPECT_EQ(feld(fenster, knopf)->isEnabled(), zeile == 0);
        EXPECT_EQ(feld(fenster, "VorlageZuLang")->isHidden(), zeile == 0);
    }
    klick(fenster, "Command2");
    klick(fenster, "Command3");
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(liesTextvorlagen(pfadname).wert.size(), 2U);
}

TEST_F(Kleinfenster, ATemplateThatCannotBeWrittenIsReported) {
    ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("Textvorlage1.dat")));  // no file can go there
    Textvorlagenfenster fenster(*programm, meldungen, nullptr, Vorlagenart::vorbemerkungen);
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);  // nor can it be read
    klick(fenster, "Command2");
    setze(fenster, "Text2", "Name");
    klick(fenster, "Command3");
    ASSERT_EQ(meldungen.gezeigt.size(), 2U);
    EXPECT_EQ(feld<QLineEdit>(fenster, "Text2")->text(), QStringLiteral("Name"));
}

// ---- Own materials ----

class EigeneMaterialienFenster : public Kleinfenster {
  protected:
    void legeAn(Form99& fenster, const char* name, const char* fvk) {
        klick(fenster, "Command2(0)");
        setze(fenster, "Textbox1", name);
        tippe(fenster, "TextBox2(1)", fvk);
        klick(fenster, "Option1(1)");
        klick(fenster, "Command3");
    }
    const EigeneMaterialien& tabelle() const { return programm->w.eigeneMaterialien; }
};

TEST_F(EigeneMaterialienFenster, ANewMaterialSurvivesARestart) {
    {
        Form99 fenster(*programm, meldungen);
        legeAn(fenster, "Platte Ä", "3,5");
        klick(fenster, "Command1");
        EXPECT_EQ(fenster.result(), QDialog::Accepted);
    }
    neuStart();
    ASSERT_EQ(tabelle().zeilen.size(), 1U);
    EXPECT_EQ(*tabelle().name(1), "Platte Ä");
    EXPECT_DOUBLE_EQ(tabelle()(2, 1).value(), 3.5);
    EXPECT_DOUBLE_EQ(tabelle()(7, 1).value(), 2);
    EXPECT_TRUE(tabelle().zeilen[0].zellen[5].leer);  // never filled
}

TEST_F(EigeneMaterialienFenster, EditingOverwritesTheRowAndValuesOutOfRangeAreHeldBack) {
    Form99 fenster(*programm, meldungen);
    legeAn(fenster, "A", "3");
    EXPECT_FALSE(feld(fenster, "TextBox2(1)")->isEnabled());
    klick(fenster, "Command2(2)");
    EXPECT_FALSE(feld(fenster, "TextBox2(17)")->isEnabled());
    klick(fenster, "Option1(4)");
    EXPECT_TRUE(feld(fenster, "TextBox2(17)")->isEnabled());
    tippe(fenster, "TextBox2(17)", "42");
    tippe(fenster, "TextBox2(1)", "0,05");
    klick(fenster, "Command3");
    EXPECT_DOUBLE_EQ(tabelle()(7, 1).value(), 2);
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
    tippe(fenster, "TextBox2(1)", "4");
    klick(fenster, "Command3");
    ASSERT_EQ(tabelle().zeilen.size(), 1U);
    EXPECT_DOUBLE_EQ(tabelle()(2, 1).value(), 4);
    EXPECT_DOUBLE_EQ(tabelle()(7, 1).value(), 5);
    EXPECT_DOUBLE_EQ(tabelle()(20, 1).value(), 42);
}

TEST_F(EigeneMaterialienFenster, ABegunMaterialIsNotLostUnasked) {
    Form99 fenster(*programm, meldungen);
    legeAn(fenster, "A", "1");
    fenster.show();
    klick(fenster, "Command2(0)");
    for (const char* name : {"Combo1", "Command2(0)", "Command2(1)", "Command2(2)"})
        EXPECT_FALSE(feld(fenster, name)->isEnabled()) << name;
    QTest::keyClick(&fenster, Qt::Key_Escape);
    EXPECT_TRUE(fenster.isVisible());
    meldungen.antworten = {Antwort::ja};
    fenster.close();
    EXPECT_FALSE(fenster.isVisible());
    EXPECT_EQ(meldungen.gezeigt.size(), 2U);
    EXPECT_EQ(tabelle().zeilen.size(), 1U);
}

TEST_F(EigeneMaterialienFenster, TheLastMaterialStaysAndDeletingAsks) {
    Form99 fenster(*programm, meldungen);
    legeAn(fenster, "A", "1");
    klick(fenster, "Command2(1)");
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(meldungen.gezeigt[0].titel, QStringLiteral("Hinweis"));
    legeAn(fenster, "B", "2");
    legeAn(fenster, "C", "3");
    feld<QComboBox>(fenster, "Combo1")->setCurrentIndex(1);
    meldungen.antworten = {Antwort::nein, Antwort::ja};
    klick(fenster, "Command2(1)");
    EXPECT_EQ(tabelle().zeilen.size(), 3U);
    klick(fenster, "Command2(1)");
    ASSERT_EQ(tabelle().zeilen.size(), 2U);
    EXPECT_EQ(meldungen.gezeigt.back().text, QStringLiteral("Soll das Material wirklich gelöscht werden ?"));
    EXPECT_EQ(*tabelle().name(2), "C");
    EXPECT_EQ(feld<QLineEdit>(fenster, "Textbox1")->text(), QStringLiteral("A"));  // the first row is shown
}

TEST_F(EigeneMaterialienFenster, TheHundredthMaterialClosesTheListUntilOneIsDeleted) {
    programm->w.eigeneMaterialien.zeilen.resize(99);
    Form99 fenster(*programm, meldungen);
    EXPECT_TRUE(feld(fenster, "Command2(0)")->isEnabled());
    legeAn(fenster, "100", "1");
    EXPECT_FALSE(feld(fenster, "Command2(0)")->isEnabled());
    meldungen.antworten = {Antwort::ja};
    klick(fenster, "Command2(1)");
    EXPECT_TRUE(feld(fenster, "Command2(0)")->isEnabled());
}

TEST_F(EigeneMaterialienFenster, TwoProgramsAtOnceLoseNoMaterialAndKeepTheirRowNumbers) {
    Form99 fenster(*programm, meldungen);
    legeAn(fenster, "hier", "1");
    {
        Programm zweites(pfad(ordner.path()));
        Form99 anderes(zweites, meldungen);
        legeAn(anderes, "dort", "2");
        klick(anderes, "Command1");
    }
    klick(fenster, "Command1");
    neuStart();
    ASSERT_EQ(tabelle().zeilen.size(), 2U);
    EXPECT_EQ(*tabelle().name(1), "hier");
    EXPECT_EQ(*tabelle().name(2), "dort");
}

TEST_F(EigeneMaterialienFenster, AFileThatCannotBeWrittenIsReportedAndTheTableKept) {
    ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("Plattenwerte.dat")));  // no file can go there
    Form99 fenster(*programm, meldungen);
    legeAn(fenster, "A", "1");
    fenster.show();
    klick(fenster, "Command1");
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_TRUE(fenster.isVisible());
    EXPECT_EQ(tabelle().zeilen.size(), 1U);
}

TEST_F(EigeneMaterialienFenster, EscSavesLikeZurueckAndADeletedMaterialStaysDeleted) {
    {
        Form99 fenster(*programm, meldungen);
        legeAn(fenster, "A", "1");
        legeAn(fenster, "B", "2");
        fenster.reject();
    }
    EXPECT_EQ(liesEigeneMaterialien(programm->datei(materialdatei)).wert.zeilen.size(), 2U);
    {
        Form99 fenster(*programm, meldungen);
        meldungen.antworten = {Antwort::ja};
        klick(fenster, "Command2(1)");
        fenster.reject();
    }
    {
        Form99 fenster(*programm, meldungen);
        klick(fenster, "Command1");
    }
    ASSERT_EQ(tabelle().zeilen.size(), 1U);
    EXPECT_EQ(*tabelle().name(1), "B");
    neuStart();
    EXPECT_EQ(tabelle().zeilen.size(), 1U);
}

TEST_F(EigeneMaterialienFenster, EscLeavesAndTakesBackWhatCannotBeWritten) {
    ASSERT_TRUE(QDir(ordner.path()).mkdir(QStringLiteral("Plattenwerte.dat")));  // no file can go there
    Form99 fenster(*programm, meldungen);
    legeAn(fenster, "A", "1");
    fenster.show();
    QTest::keyClick(&fenster, Qt::Key_Escape);
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_FALSE(fenster.isVisible());
    EXPECT_TRUE(tabelle().zeilen.empty());
}

TEST_F(EigeneMaterialienFenster, AnUntouchedTableLeavesTheEditsOfAnotherProgram) {
    {
        Form99 fenster(*programm, meldungen);
        legeAn(fenster, "A", "1");
        klick(fenster, "Command1");
    }
    Form99 fenster(*programm, meldungen);
    EigeneMaterialien andere = tabelle();
    andere.zeilen[0].name = "A neu";
    ASSERT_FALSE(schreibeEigeneMaterialien(programm->datei(materialdatei), andere));
    klick(fenster, "Command1");
    ASSERT_EQ(tabelle().zeilen.size(), 1U);
    EXPECT_EQ(*tabelle().name(1), "A neu");
    neuStart();
    ASSERT_EQ(tabelle().zeilen.size(), 1U);
    EXPECT_EQ(*tabelle().name(1), "A neu");
}

// ---- Fastener catalogue ----

TEST_F(Kleinfenster, ACatalogueRowFillsTheBoxesOfTheSideThatOpenedIt) {
    Form5 dialog(*programm, meldungen, nullptr);
    const auto wert = [&](const char* name) { return feld<Werteingabe>(dialog, name)->wert(); };
    const double d1 = wert("Textbox1(8)");
    Form16 katalog(*programm, meldungen, &dialog, Seite::zwei);
    int knoepfe = 0;
    for (const QPushButton* knopf : katalog.findChildren<QPushButton*>())
        knoepfe += knopf->text() == QStringLiteral("auswählen");
    EXPECT_EQ(knoepfe, 71);
    klick(katalog, "Command1(60)");        // row 61: 4.3 x 45, head 8.0
    EXPECT_EQ(wert("Textbox1(10)"), 4.3);  // exactly: later checks compare exactly
    EXPECT_EQ(wert("Textbox1(11)"), 45.0);
    EXPECT_EQ(wert("Textbox1(6)"), 8.0);
    EXPECT_EQ(wert("Textbox1(8)"), d1);
    EXPECT_EQ(katalog.result(), QDialog::Accepted);
    klick(katalog, "Command1(66)");  // row 67: 1.2 x 32, a staple whose head of 1.2 the box does not take
    EXPECT_EQ(wert("Textbox1(10)"), 1.2);
    EXPECT_EQ(wert("Textbox1(6)"), 8.0);
}

// ---- Handbook ----

TEST_F(Kleinfenster, F1OpensTheChapterOfTheWindowInFront) {
    const Hilfetaste hilfetaste(nullptr);
    Form99 fenster(*programm, meldungen);
    fenster.show();
    QTest::keyClick(&fenster, Qt::Key_F1);
    auto* handbuch = feld<Handbuch>(fenster, "Handbuch");
    EXPECT_EQ(handbuch->kapitel(), QStringLiteral("eigene-materialien"));
    EXPECT_EQ(feld<QListWidget>(*handbuch, "Handbuchinhalt")->currentItem()->text(),
              QStringLiteral("Eigene Materialien"));
    EXPECT_TRUE(
        handbuch->findChild<QTextBrowser*>()->toPlainText().startsWith(QStringLiteral("Eigene Materialien")));
}

// One view shows them all, one after another: a page that the reader cannot digest would end the program.
TEST_F(Kleinfenster, EveryChapterOfTheHandbookCanBeShown) {
    Form99 fenster(*programm, meldungen);
    Handbuch handbuch(&fenster);
    handbuch.setAttribute(Qt::WA_DeleteOnClose, false);
    handbuch.show();
    auto* liste = feld<QListWidget>(handbuch, "Handbuchinhalt");
    for (int i = 1; i < liste->count(); ++i) {
        liste->setCurrentRow(i);
        QApplication::processEvents();
        const QString text = feld<QTextBrowser>(handbuch, "Handbuchseite")->toPlainText();
        EXPECT_TRUE(text.startsWith(liste->item(i)->text())) << utf8(liste->item(i)->text());
    }
}

TEST_F(Kleinfenster, TheHandbookIsSearchedAndLeafedThrough) {
    Form99 fenster(*programm, meldungen);
    Handbuch handbuch(&fenster);
    handbuch.setAttribute(Qt::WA_DeleteOnClose, false);
    handbuch.zeigeKapitel(QStringLiteral("inhalt"));
    handbuch.show();
    EXPECT_FALSE(feld(handbuch, "VorigeSeite")->isEnabled());
    klick(handbuch, "NaechsteSeite");
    const QString zweites = handbuch.kapitel();
    EXPECT_NE(zweites, QStringLiteral("inhalt"));
    klick(handbuch, "VorigeSeite");
    EXPECT_EQ(handbuch.kapitel(), QStringLiteral("inhalt"));
    setze(handbuch, "Handbuchsuche", "Lochleibung");
    const auto* liste = feld<QListWidget>(handbuch, "Handbuchinhalt");
    auto* seite = feld<QTextBrowser>(handbuch, "Handbuchseite");
    for (int i = 0; i < liste->count(); ++i) {
        if (liste->item(i)->isHidden()) continue;
        feld<QListWidget>(handbuch, "Handbuchinhalt")->setCurrentRow(i);
        EXPECT_TRUE(seite->toPlainText().contains(QStringLiteral("Lochleibung"), Qt::CaseInsensitive)) << i;
        EXPECT_FALSE(seite->extraSelections().isEmpty());
    }
    EXPECT_TRUE(liste->item(0)->isHidden());
    setze(handbuch, "Handbuchsuche", "gibtesnicht");
    EXPECT_EQ(handbuch.findChild<QLabel*>()->text(), QStringLiteral("kein Treffer"));
}

// Every link to a chapter and every picture of the handbook is there.
TEST_F(Kleinfenster, TheHandbookHasNoDeadEnds) {
    const QDir seiten(QStringLiteral(":/handbuch"));
    const QStringList dateien = seiten.entryList({QStringLiteral("*.md")});
    ASSERT_GE(dateien.size(), 15);
    const QRegularExpression verweis(QStringLiteral("\\]\\(([^)]+)\\)"));
    for (const QString& name : dateien) {
        QFile seite(seiten.filePath(name));
        ASSERT_TRUE(seite.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(seite.readAll());
        for (auto treffer = verweis.globalMatch(text); treffer.hasNext();) {
            const QString ziel = treffer.next().captured(1);
            EXPECT_TRUE(seiten.exists(ziel)) << utf8(name) << " -> " << utf8(ziel);
        }
    }
}

}  // namespace
}  // namespace rippenscheibe
