#include "model/Kataloge.h"
#include "run/FrischerLauf.h"
#include "support/Gerechnet.h"
#include "ui/drawings/Zeichnungsansicht.h"
#include "ui/main/Form1_Hauptfenster.h"
#include "ui/main/Hinweisliste.h"

namespace rippenscheibe {
namespace {

class Hauptfenster : public Programmprobe {
  protected:
    Hauptfenster() {
        fenster.show();
        aktiviere();
    }
    void aktiviere() {
        fenster.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&fenster));
    }
    void loese(const char* aktion) { finde<QAction>(aktion).trigger(); }
    template <class T>
    T& finde(const char* name) {
        return *fenster.findChild<T*>(QLatin1String(name));
    }
    QStringList hinweise() {
        QStringList texte;
        for (int i = 0; i < finde<QListWidget>("List1").count(); ++i)
            texte << finde<QListWidget>("List1").item(i)->text();
        return texte;
    }

    Form1 fenster{programm, meldungen};
};

// Results as after program start; inputs stay, RdAnker as the last run left it too.
TEST_F(Hauptfenster, ResultsCanBeDiscarded) {
    programm.w.etaSv0 = 7;
    programm.w.RdAnker = 3.21;
    programm.w.Fvk = 9;
    loese("mnuVerwerfen");
    EXPECT_EQ(programm.w.etaSv0, ergebnisseNachProgrammstart().etaSv0);
    EXPECT_EQ(programm.w.RdAnker, 3.21);
    EXPECT_EQ(programm.w.Fvk, 9);
    EXPECT_NE(programm.w.Fvd, ergebnisseNachProgrammstart().Fvd);  // Zuweisen followed
    QString name;
    mitFenster([&] { loese("mnuUeber"); }, [&](QWidget& ueber) { name = ueber.objectName(); });
    EXPECT_EQ(name, QStringLiteral("Ueber"));
}

// The date that the project window fills in counts for nothing; a key does, as everywhere.
TEST_F(Hauptfenster, ANewPositionIsUnchangedUntilAKeyIsTyped) {
    const auto titel = [this] { return fenster.windowTitle(); };
    const auto uebernimm = [](QWidget& form) { klicke(form, "ComEnde"); };
    EXPECT_TRUE(mitFenster([this] { fenster.starte(); }, uebernimm));
    EXPECT_FALSE(titel().startsWith(QLatin1Char('*'))) << titel().toStdString();
    EXPECT_TRUE(mitFenster([this] { loese("mnuFNew"); }, uebernimm));
    EXPECT_FALSE(programm.w.Datum.empty());
    EXPECT_FALSE(titel().startsWith(QLatin1Char('*'))) << titel().toStdString();
    EXPECT_TRUE(meldungen.gezeigt.empty());
    fenster.show();
    fenster.menuBar()->setFocus();
    QTest::keyClick(fenster.menuBar(), Qt::Key_Escape);  // leaves the menu, enters nothing
    EXPECT_FALSE(titel().startsWith(QLatin1Char('*'))) << titel().toStdString();
    auto& laenge = wert(fenster, "Textbox1(0)");
    laenge.setFocus();
    QTest::keyClick(&laenge, Qt::Key_5);
    EXPECT_TRUE(titel().startsWith(QLatin1Char('*')));
}

TEST_F(Hauptfenster, UnsavedWorkIsOfferedAgainAfterAnEndThatDidNotAskForIt) {
    programm.felder.Wandlaenge = 8.5;
    programm.zuweisen();
    programm.setzeGesichert(false);
    meldungen.antworten = {Antwort::ja};
    fenster.close();
    ASSERT_FALSE(meldungen.gezeigt.empty());
    EXPECT_EQ(meldungen.gezeigt[0].vorgabe, Antwort::nein);
    bool gesichert = false;
    for (const QFileInfo& datei :
         QDir(ordner.path()).entryInfoList({QStringLiteral("Sicherung*")}, QDir::Files))
        gesichert = gesichert || inhalt(datei.filePath()).contains("8.5,2.5,");
    EXPECT_TRUE(gesichert);
}

TEST_F(Hauptfenster, AWallBuiltThroughTheDialogsGivesTheResultsOfItsSavedFile) {
    tippe(fenster, "Textbox1(0)", "3,75");
    tippe(fenster, "Textbox1(1)", "2.75");
    tippe(fenster, "Textbox1(2)", "0,625");
    const auto dialog = [this](const char* knopf, const std::function<void(QWidget&)>& eingaben) {
        EXPECT_TRUE(mitFenster([&] { klicke(fenster, knopf); },
                               [&](QWidget& form) {
                                   eingaben(form);
                                   klicke(form, "ComEnde");
                                   EXPECT_FALSE(form.isVisible()) << knopf;
                               }));
    };
    dialog("Command5", [](QWidget& form) {
        tippe(form, "Textbox1(2)", "6");
        tippe(form, "Textbox1(0)", "18");
        klicke(form, "Check2");
        waehle(form, "MaterialBox", 3);
    });
    dialog("Command1", [](QWidget& form) {
        waehle(form, "MaterialBox", 1);
        waehle(form, "Materialbox2", 8);
        tippe(form, "Textbox1(2)", "16");
        klicke(form, "Option2(3)");
    });
    dialog("Command2", [](QWidget& form) {
        waehle(form, "Combo9", 4);
        waehle(form, "Combo5", 2);
        tippe(form, "Textbox1(10)", "1,83");
        tippe(form, "Textbox1(4)", "75");
    });
    dialog("Command3", [](QWidget& form) {
        klicke(form, "Check1");
        klicke(form, "Option1(2)");
        tippe(form, "Textbox1(0)", "20");
    });
    dialog("Command4", [](QWidget& form) {
        klicke(form, "Option1(2)");
        klicke(form, "Check1");
        tippe(form, "Textbox1(0)", "4,5");
        tippe(form, "Textbox1(3)", "5,25");
        tippe(form, "Textbox1(4)", "3");
        tippe(form, "Textbox1(5)", "-0,6");
    });
    dialog("Command6", [](QWidget& form) {
        klicke(form, "Check1");
        klicke(form, "Option4(0)");
    });
    EXPECT_TRUE(fenster.windowTitle().startsWith(QStringLiteral("* ")));

    meldungen.dateien = {datei("wand.rsw")};
    loese("mnuFSave");
    EXPECT_EQ(fenster.windowTitle(), datei("wand.rsw"));

    mitFenster([this] { klicke(fenster, "ComErgEin2"); }, [](QWidget&) {});
    EXPECT_EQ(hinweise(), QStringList());
    for (const Meldung& meldung : meldungen.gezeigt) EXPECT_EQ(meldung.symbol, Symbol::hinweis);

    Wand zweite;
    const auto lesung = liesPosition(pfad(datei("wand.rsw")), zweite);
    EXPECT_FALSE(lesung.fehler);
    EXPECT_TRUE(lesung.wert.empty());
    zuweisen(zweite, grundmasse(zweite));
    ASSERT_EQ(starte(zweite), Laufergebnis::gerechnet);
    EXPECT_EQ(zweite.Wandlaenge, 3.75);
    EXPECT_EQ(zweite.VMArt[Seite::zwei], 3);
    EXPECT_GT(zweite.Rd[Seite::zwei], 0);
    EXPECT_EQ(alleFelder(programm.w), alleFelder(zweite));
}

TEST_F(Hauptfenster, FindingsStopTheRunAndStandInTheList) {
    tippe(fenster, "Textbox1(0)", "1");  // narrower than a panel of 1.25 m
    klicke(fenster, "ComErgDruck");
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    erwarte(meldungen.gezeigt[0], Symbol::kritisch, " Fehler",
            "Es liegen konstruktive Fehler vor, bitte Hinweise beachten und Fehler beheben!");
    const QStringList zwei = hinweise();
    ASSERT_EQ(zwei.size(), 2);
    EXPECT_EQ(zwei[0],
              QStringLiteral("Wandlänge ist kleiner Plattenbreite der Beplankung 1 --> unzulässig!"));

    // Loading keeps the list, a new position empties it.
    meldungen.antworten = {Antwort::nein, Antwort::nein};
    meldungen.dateien = {gespeicherte("a.rsw", 5)};
    loese("mnuFOpen");
    EXPECT_EQ(hinweise(), zwei);
    mitFenster([this] { loese("mnuFNew"); }, [](QWidget&) {});
    EXPECT_EQ(hinweise(), QStringList());
}

TEST_F(Hauptfenster, ADoubleClickOnAFindingOpensTheDialogOfItsInput) {
    programm.w.d[Seite::eins] = 0.6;
    programm.w.VMArt[Seite::eins] = 2;
    programm.w.fuk[Seite::eins] = 100;
    klicke(fenster, "ComErgEin2");
    QListWidget& liste = finde<QListWidget>("List1");
    QListWidgetItem* eintrag = nullptr;
    for (int i = 0; i < liste.count(); ++i)
        if (liste.item(i)->text().contains(QStringLiteral("Fließmoment zu klein"))) eintrag = liste.item(i);
    ASSERT_NE(eintrag, nullptr);
    QStringList namen;
    const auto merke = [&](QWidget& form) { namen << form.objectName(); };
    liste.scrollToItem(eintrag);
    mitFenster(
        [&] {
            const QPoint ort = liste.visualItemRect(eintrag).center();
            QTest::mouseClick(liste.viewport(), Qt::LeftButton, Qt::NoModifier, ort);
            QTest::mouseDClick(liste.viewport(), Qt::LeftButton, Qt::NoModifier, ort);
        },
        merke);
    liste.setFocus();
    liste.setCurrentItem(eintrag);
    mitFenster([&] { QTest::keyClick(&liste, Qt::Key_Return); }, merke);
    EXPECT_EQ(namen, (QStringList{QStringLiteral("Form5"), QStringLiteral("Form5")}));
}

TEST_F(Hauptfenster, AClickOnAPartOfTheDrawingOpensItsDialog) {
    QString name;
    mitFenster([this] { Q_EMIT finde<Zeichnungsansicht>("Picture1").angeklickt(Fensterart::beplankung); },
               [&](QWidget& form) { name = form.objectName(); });
    EXPECT_EQ(name, QStringLiteral("Form4"));
}

TEST_F(Hauptfenster, UnfulfilledProofsAreToldButDoNotStopTheReport) {
    programm.w.Fvk = 400;
    const bool geoeffnet =
        mitFenster([this] { klicke(fenster, "ComErgEin2"); },
                   [](QWidget& form) { EXPECT_EQ(form.objectName(), QStringLiteral("Form23")); });
    EXPECT_TRUE(geoeffnet);
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    erwarte(meldungen.gezeigt[0], Symbol::hinweis, " Hinweis",
            "Es werden nicht alle Nachweise erfüllt, bitte Ergebnisse prüfen! ");
}

TEST_F(Hauptfenster, EditsReachTheRecordAtOnceUnlessBlocked) {
    tippe(fenster, "Textbox1(2)", "0,5");
    EXPECT_EQ(programm.w.Rippenabstand, 500);
    EXPECT_EQ(programm.w.AnzahlRippen, 11);
    EXPECT_FALSE(programm.Gesichert());
    programm.Sperre = true;
    tippe(fenster, "Textbox1(2)", "2");
    EXPECT_EQ(programm.w.Rippenabstand, 500);
}

TEST_F(Hauptfenster, NothingStartsOrIsSavedWhileARefusedTextStands) {
    Werteingabe& laenge = wert(fenster, "Textbox1(0)");
    programm.Dateiname = utf8(gespeicherte("a.rsw", 5));
    programm.DialogDateiname = datei("a.rsw");
    tippe(laenge, QStringLiteral("250"));
    EXPECT_EQ(programm.w.Wandlaenge, 5);
    const QByteArray vorher = inhalt(datei("a.rsw"));
    for (const char* weg : {"mnuFView", "mnuFPrint", "mnuFSave", "mnuFSaveAs", "mnuFNew", "mnuFClose"}) {
        SCOPED_TRACE(weg);
        meldungen.gezeigt.clear();
        meldungen.antworten.clear();
        const bool fragt = weg == std::string("mnuFNew") || weg == std::string("mnuFClose");
        if (fragt) meldungen.antworten = {Antwort::ja};
        EXPECT_FALSE(mitFenster([&] { loese(weg); }, [](QWidget&) {}));
        ASSERT_FALSE(meldungen.gezeigt.empty());
        erwarte(meldungen.gezeigt.back(), Symbol::kritisch, " Fehler",
                "Die Eingabe \"250\" bei \"Wandlänge l\" ist unzulässig.\n\nzulässig: 0,2 bis 100 m");
        EXPECT_EQ(QApplication::focusWidget(), &laenge);
        EXPECT_EQ(laenge.text(), QStringLiteral("250"));
        EXPECT_EQ(inhalt(datei("a.rsw")), vorher);
        EXPECT_EQ(programm.Aktion, Dateiaktion::keine);
        EXPECT_TRUE(fenster.isVisible());
    }
    // A new position, which is never refused without a save, takes the text away.
    meldungen.antworten = {Antwort::nein};
    mitFenster([this] { loese("mnuFNew"); }, [](QWidget&) {});
    EXPECT_EQ(laenge.text(), QStringLiteral("5,000"));
    EXPECT_FALSE(laenge.abgelehnt());
}

TEST_F(Hauptfenster, EnterMovesOnAndNeverStartsARun) {
    programm.w.Hinweise = {Hinweis{"unberührt"}};
    QTest::keyClick(&fenster, Qt::Key_P, Qt::ControlModifier);
    QWidget* feld = &wert(fenster, "Textbox1(0)");
    feld->setFocus();
    for (const char* naechstes : {"Textbox1(1)", "Textbox1(2)", "Command5"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        ASSERT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(naechstes));
    }
    for (const char* knopf : {"ComErgEin2", "ComErgDruck"}) {
        finde<QPushButton>(knopf).setFocus();
        QTest::keyClick(&finde<QPushButton>(knopf), Qt::Key_Return);
    }
    EXPECT_EQ(texte(programm.w.Hinweise), Texte{"unberührt"});
    EXPECT_TRUE(meldungen.gezeigt.empty());
}

// F5 was such a key once: it opens the anchorage now.
TEST_F(Hauptfenster, TheFunctionKeysOpenTheSixInputs) {
    const std::pair<Qt::Key, const char*> fensternamen[] = {{Qt::Key_F2, "Form2"}, {Qt::Key_F3, "Form4"},
                                                            {Qt::Key_F4, "Form5"}, {Qt::Key_F5, "Form7"},
                                                            {Qt::Key_F6, "Form9"}, {Qt::Key_F7, "Form12"}};
    for (const auto& [taste, name] : fensternamen) {
        QString gesehen;
        aktiviere();
        mitFenster([&, t = taste] { QTest::keyClick(&fenster, t); },
                   [&](QWidget& form) { gesehen = form.objectName(); });
        EXPECT_EQ(gesehen, QLatin1String(name));
    }
}

TEST_F(Hauptfenster, FindingsAreThoseOfTheLastCheck) {
    auto& liste = finde<Hinweisliste>("List1");
    using Stand = Hinweisliste::Stand;
    EXPECT_EQ(liste.stand(), Stand::ungeprueft);
    tippe(fenster, "Textbox1(2)", "1,25");  // 50 t is 0.75 m
    klicke(fenster, "ComErgEin2");
    EXPECT_EQ(liste.stand(), Stand::aktuell);
    ASSERT_EQ(liste.count(), 1);
    liste.setFocus();
    liste.setCurrentRow(0);
    QTest::keyClick(&liste, Qt::Key_Return);
    EXPECT_EQ(fenster.focusWidget()->objectName(), QStringLiteral("Textbox1(2)"));
    tippe(fenster, "Textbox1(2)", "1,0");
    EXPECT_EQ(liste.stand(), Stand::veraltet);
    EXPECT_TRUE(liste.standzeile()->isVisible());
}

TEST_F(Hauptfenster, OneVisitIsOneStepOfUndo) {
    const auto text = [this](const char* name) { return finde<QAction>(name).text(); };
    EXPECT_FALSE(finde<QAction>("mnuRueckgaengig").isEnabled());
    tippe(fenster, "Textbox1(0)", "7,25");
    wert(fenster, "Textbox1(1)").setFocus();
    mitFenster([this] { klicke(fenster, "Command2"); },
               [](QWidget& form) {
                   tippe(form, "Textbox1(4)", "75");
                   klicke(form, "ComEnde");
               });
    mitFenster([this] { klicke(fenster, "Command4"); },
               [](QWidget& form) { tippe(form, "Textbox1(0)", "9"); });  // and Abbruch: no step
    EXPECT_EQ(text("mnuRueckgaengig"), QStringLiteral("R&ückgängig: Verbindungsmittel"));
    programm.setzeGesichert(true);
    loese("mnuRueckgaengig");
    EXPECT_FALSE(programm.Gesichert());
    EXPECT_EQ(programm.w.av[Seite::eins], 60);
    EXPECT_EQ(text("mnuRueckgaengig"), QStringLiteral("R&ückgängig: Wandlänge"));
    loese("mnuRueckgaengig");
    EXPECT_EQ(wert(fenster, "Textbox1(0)").text(), QStringLiteral("5,000"));
    EXPECT_FALSE(finde<QAction>("mnuRueckgaengig").isEnabled());
    loese("mnuWiederholen");
    EXPECT_EQ(programm.w.Wandlaenge, 7.25);
    EXPECT_EQ(text("mnuWiederholen"), QStringLiteral("&Wiederholen: Verbindungsmittel"));

    // Still in the field: what was typed so far is the step.
    aktiviere();
    tippe(fenster, "Textbox1(1)", "3,1");
    QTest::keyClick(&wert(fenster, "Textbox1(1)"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(programm.w.Wandhoehe, 2.5);
    EXPECT_EQ(wert(fenster, "Textbox1(1)").text(), QStringLiteral("2,500"));
    EXPECT_EQ(text("mnuRueckgaengig"), QStringLiteral("R&ückgängig: Wandlänge"));

    // A refused accept keeps what it wrote; with Abbruch behind it, it is a step.
    mitFenster([this] { klicke(fenster, "Command1"); },
               [](QWidget& form) {
                   waehle(form, "MaterialBox", 2);
                   klicke(form, "Option3(1)");  // unfit for service class 2
                   klicke(form, "ComEnde");
                   EXPECT_TRUE(form.isVisible());
                   klicke(form, "Command1");
               });
    EXPECT_EQ(text("mnuRueckgaengig"), QStringLiteral("R&ückgängig: Beplankung"));

    meldungen.antworten = {Antwort::nein};
    meldungen.dateien = {gespeicherte("a.rsw", 5)};
    loese("mnuFOpen");
    EXPECT_FALSE(finde<QAction>("mnuRueckgaengig").isEnabled());
}

TEST_F(Hauptfenster, SummariesFollowTheRecord) {
    programm.w.Einseitig = true;
    programm.w.Plattendicke1 = 12.5;
    programm.w.Material[Seite::eins] = 4;
    programm.zuweisen();
    const auto zeile = [this](const char* name) { return finde<QLabel>(name).text(); };
    EXPECT_EQ(zeile("Command5_Zusammenfassung"),
              QStringLiteral("b x h = 8,0 x 16,0 cm, Nadelholz C24, NKL 1"));
    EXPECT_EQ(zeile("Command1_Zusammenfassung"), QStringLiteral("Gipskartonplatte GKBI 12,5 mm, einseitig"));
    EXPECT_EQ(zeile("Command2_Zusammenfassung"), QStringLiteral("Nägel 2,7 x 50, av = 60 mm"));
    EXPECT_EQ(zeile("Command4_Zusammenfassung"), QStringLiteral("Fv,k = 3,00 kN, KLED kurz"));

    programm.w.VMArt[Seite::eins] = 3;
    const std::tuple<double, double, const char*> mittel[] = {
        {1.53, 52.5, "1,53 x 52,5"}, {1.8, 50, "1,8 x 50"}, {4, 60, "4,0 x 60"}};
    for (const auto& [d, ln, text] : mittel) {
        programm.w.d[Seite::eins] = d;
        programm.w.ln[Seite::eins] = ln;
        programm.zuweisen();
        EXPECT_EQ(zeile("Command2_Zusammenfassung"),
                  QStringLiteral("Klammern %1, av = 60 mm").arg(QLatin1String(text)));
    }
}

TEST_F(Hauptfenster, TheProgramStartsWithAHandedOverPositionThenAFileThenTheProjectDialog) {
    gespeicherte("a.rsw", 6);
    ASSERT_FALSE(schreibeDauerhaft(programm.datei("Posdat.dat"), "\"" + utf8(datei("a.rsw")) + "\"\r\n"));
    EXPECT_FALSE(mitFenster([this] { fenster.starte(); }, [](QWidget&) {}));
    EXPECT_EQ(programm.w.Wandlaenge, 6);
    EXPECT_EQ(wert(fenster, "Textbox1(0)").text(), QStringLiteral("6,000"));
    EXPECT_EQ(programm.Dateiname, utf8(datei("a.rsw")));

    // Used once only: the next start has nothing handed over.
    QString name;
    EXPECT_TRUE(mitFenster([this] { fenster.starte(); }, [&](QWidget& form) { name = form.objectName(); }));
    EXPECT_EQ(name, QStringLiteral("Form15"));
    EXPECT_EQ(programm.w.Wandlaenge, 5);

    EXPECT_FALSE(mitFenster([this] { fenster.starte(datei("a.rsw")); }, [](QWidget&) {}));
    EXPECT_EQ(programm.w.Wandlaenge, 6);
}

TEST_F(Hauptfenster, AWantedFileIsOpenedBesideARecoveredPositionAfterTheQuery) {
    gespeicherte("a.rsw", 6);
    stuerzeAb();
    meldungen.antworten = {Antwort::ja, Antwort::nein};
    EXPECT_FALSE(mitFenster([this] { fenster.starte(datei("a.rsw")); }, [](QWidget&) {}));
    ASSERT_EQ(meldungen.gezeigt.size(), 2U);
    EXPECT_EQ(meldungen.gezeigt[0].titel, QStringLiteral("Wiederherstellung"));
    EXPECT_EQ(meldungen.gezeigt[1].titel, QStringLiteral("Datei öffnen"));
    EXPECT_EQ(programm.w.Wandlaenge, 6);

    // A cancel stays with the recovered position; the hand-over is used up all the same.
    stuerzeAb();
    ASSERT_FALSE(schreibeDauerhaft(programm.datei("Posdat.dat"), "\"" + utf8(datei("a.rsw")) + "\"\r\n"));
    meldungen.antworten = {Antwort::ja, Antwort::abbrechen};
    EXPECT_FALSE(mitFenster([this] { fenster.starte(); }, [](QWidget&) {}));
    EXPECT_EQ(meldungen.gezeigt.size(), 4U);
    EXPECT_EQ(programm.w.Wandlaenge, 9);
    EXPECT_EQ(holeUebergabe(programm.datei("Posdat.dat")), "");
}

TEST_F(Hauptfenster, ClosingTheWindowAsksButTheMenuDoesNotAskTwice) {
    meldungen.antworten = {Antwort::nein};
    EXPECT_FALSE(fenster.close());
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    const Meldung& frage = meldungen.gezeigt[0];
    erwarte(frage, frage.symbol, "Achtung", "Wollen Sie das Programm wirklich beenden ?", Knoepfe::jaNein);

    programm.setzeGesichert(false);
    meldungen.antworten = {Antwort::abbrechen};
    loese("mnuFClose");
    EXPECT_TRUE(fenster.isVisible());
    EXPECT_EQ(meldungen.gezeigt.size(), 2U);

    meldungen.antworten = {Antwort::nein};
    loese("mnuFClose");
    EXPECT_FALSE(fenster.isVisible());
    EXPECT_EQ(meldungen.gezeigt.size(), 3U);
    EXPECT_TRUE(QFile::exists(datei("Hdat.dat")));
}

TEST_F(Hauptfenster, ADroppedFileOpensAfterTheQuery) {
    gespeicherte("a.rsw", 5);
    programm.setzeGesichert(false);
    meldungen.antworten = {Antwort::nein};
    QMimeData daten;
    daten.setUrls({QUrl::fromLocalFile(datei("a.rsw"))});
    QDragEnterEvent gezogen(QPoint(200, 200), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&fenster, &gezogen);
    EXPECT_TRUE(gezogen.isAccepted());
    QDropEvent abgelegt(QPointF(200, 200), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&fenster, &abgelegt);
    EXPECT_TRUE(meldungen.gezeigt.empty());  // nothing opens inside the drop
    QCoreApplication::processEvents();
    EXPECT_EQ(programm.Dateiname, utf8(datei("a.rsw")));
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);

    // It is among the recent files of the menu now.
    QMenu& zuletzt = finde<QMenu>("mnuFRecent");
    Q_EMIT zuletzt.aboutToShow();
    ASSERT_EQ(zuletzt.actions().size(), 1);
    EXPECT_TRUE(zuletzt.actions().constFirst()->text().endsWith(QStringLiteral("a.rsw")));
}

TEST_F(Hauptfenster, NoMnemonicOrShortcutIsGivenTwice) {
    QSet<QKeySequence> kuerzel;
    for (const QAction* aktion : fenster.findChildren<QAction*>()) {
        if (aktion->shortcut().isEmpty()) continue;
        EXPECT_FALSE(kuerzel.contains(aktion->shortcut())) << aktion->text().toStdString();
        kuerzel.insert(aktion->shortcut());
    }
    EXPECT_GE(kuerzel.size(), 5);
    const auto pruefe = [](const QList<QAction*>& aktionen) {
        QSet<QChar> buchstaben;
        for (const QAction* aktion : aktionen) {
            if (aktion->isSeparator()) continue;
            const qsizetype stelle = aktion->text().indexOf(QLatin1Char('&'));
            ASSERT_GE(stelle, 0) << aktion->text().toStdString();
            const QChar buchstabe = aktion->text().at(stelle + 1).toLower();
            EXPECT_FALSE(buchstaben.contains(buchstabe)) << aktion->text().toStdString();
            buchstaben.insert(buchstabe);
        }
    };
    pruefe(fenster.menuBar()->actions());
    for (const QAction* menue : fenster.menuBar()->actions()) pruefe(menue->menu()->actions());
}

}  // namespace
}  // namespace rippenscheibe
