#include "report/Bericht.h"
#include "report/Rtfausgabe.h"
#include "report/Textausgabe.h"
#include "support/Gerechnet.h"
#include "ui/output/Form23_Ergebnisse.h"
#include "ui/output/Form23_Text.h"
#include "ui/verdict/Form23_Ausnutzungen.h"

namespace rippenscheibe {
namespace {

class Ergebnisansicht : public Gerechnet {
  protected:
    void oeffne() {
        fenster = std::make_unique<Form23>(programm, meldungen, nullptr);
        fenster->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(fenster.get()));
        text = &finde<QTextEdit>(*fenster, "Rbox1");
    }
    Fliesstext erwartet() const { return fliesstext(bericht(programm.w, Form::ansicht)); }
    // The text of the view, with the line end of its last line.
    std::string gezeigt() const { return utf8(text->toPlainText()) + "\n"; }
    // The line that a bar has lit.
    std::string beleuchtet() const { return utf8(text->extraSelections().value(0).cursor.block().text()); }
    QByteArray gespeichert() {
        meldungen.dateien = {datei("bericht.rtf")};
        klicke(*fenster, "ComSave");
        return inhalt(datei("bericht.rtf"));
    }

    std::unique_ptr<Form23> fenster;
    QTextEdit* text = nullptr;
};

TEST_F(Ergebnisansicht, TheViewShowsTheReportLockedAndAtItsTop) {
    oeffne();
    EXPECT_EQ(gezeigt(), alsText(erwartet()));
    EXPECT_TRUE(text->isReadOnly());
    EXPECT_EQ(text->textCursor().position(), 0);
    EXPECT_EQ(text->verticalScrollBar()->value(), 0);
}

// The document and back: fonts, sizes, colours and blanks survive.
TEST_F(Ergebnisansicht, AnUntouchedTextSavesTheBytesOfTheReport) {
    for (const char* name : {"windsog", "zuganker", "nicht_erfuellt"}) {
        SCOPED_TRACE(name);
        rechne(name);
        oeffne();
        EXPECT_EQ(gespeichert().toStdString(), alsRtf(erwartet()));
    }
    EXPECT_EQ(meldungen.gewaehlt[0].filter, QStringLiteral("Rich-Text-Format (*.RTF)"));
}

TEST_F(Ergebnisansicht, ADarkWindowSavesTheSameColours) {
    const QPalette vorher = QApplication::palette();
    QPalette dunkel = vorher;
    dunkel.setColor(QPalette::Base, QColor(0x202020));
    dunkel.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dunkel);
    oeffne();
    const QByteArray bytes = gespeichert();
    QApplication::setPalette(vorher);
    EXPECT_EQ(bytes.toStdString(), alsRtf(erwartet()));
}

TEST_F(Ergebnisansicht, EditsAndThePictureAreSavedWhereTheyAre) {
    oeffne();
    klicke(*fenster, "Command1");
    EXPECT_FALSE(text->isReadOnly());
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasImage());
    text->moveCursor(QTextCursor::End);
    QTest::keyClicks(text, QStringLiteral("geprueft {Mai}"));
    const QByteArray rtf = gespeichert();
    EXPECT_EQ(rtf.count("\\pngblip"), 1);
    // 100 x 91 mm in twips of 1/1440 inch: 5669 x 5159.
    EXPECT_TRUE(rtf.contains("\\picwgoal5669\\pichgoal5159"));
    EXPECT_LT(rtf.indexOf("\\pngblip"), rtf.indexOf("Eingabedaten"));
    EXPECT_GT(rtf.indexOf("geprueft \\{Mai\\}"), rtf.indexOf("Alle Nachweise"));
}

TEST_F(Ergebnisansicht, ASaveThatFailsIsReportedAndACancelIsNot) {
    oeffne();
    ASSERT_TRUE(QDir().mkpath(datei("a.rtf")));  // no file can go there
    meldungen.dateien = {datei("a.rtf")};
    klicke(*fenster, "ComSave");
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    klicke(*fenster, "ComSave");
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
}

TEST_F(Ergebnisansicht, ACopyIsTextHtmlAndRtfAndUnlocks) {
    oeffne();
    klicke(*fenster, "Command2");
    const QMimeData* daten = QApplication::clipboard()->mimeData();
    EXPECT_EQ(utf8(daten->text()), alsText(erwartet()));
    EXPECT_EQ(daten->data(QStringLiteral("text/rtf")).toStdString(), alsRtf(erwartet()));
    EXPECT_TRUE(daten->html().contains(QStringLiteral("Wandlänge l = 7,500 m")));
    EXPECT_FALSE(text->isReadOnly());
    EXPECT_FALSE(text->textCursor().hasSelection());
    EXPECT_EQ(text->textCursor().position(), 0);
}

// What HTML names is not fetched from the disk; a picture that it holds is shown.
TEST_F(Ergebnisansicht, PastedHtmlLoadsNoFiles) {
    QImage bild(4, 4, QImage::Format_RGB32);
    bild.fill(Qt::red);
    ASSERT_TRUE(bild.save(datei("fremd.png")));
    oeffne();
    klicke(*fenster, "Command2");
    QMimeData daten;
    daten.setHtml(QStringLiteral("<p>neu</p><img src=\"%1\"><img src=\"%2\">")
                      .arg(QUrl::fromLocalFile(datei("fremd.png")).toString(), datei("fremd.png")));
    auto* neu = new QMimeData;
    neu->setHtml(daten.html());
    QApplication::clipboard()->setMimeData(neu);
    text->paste();
    EXPECT_TRUE(text->toPlainText().startsWith(QStringLiteral("neu")));
    EXPECT_FALSE(gespeichert().contains("pngblip"));
    text->selectAll();
    text->copy();
    EXPECT_FALSE(QApplication::clipboard()->mimeData()->data(QStringLiteral("text/rtf")).contains("pngblip"));
}

// A picture that is copied with its text is still a picture where it is pasted.
TEST_F(Ergebnisansicht, APictureSurvivesTheClipboard) {
    oeffne();
    klicke(*fenster, "Command1");
    klicke(*fenster, "Command2");
    const QMimeData* daten = QApplication::clipboard()->mimeData();
    EXPECT_TRUE(daten->data(QStringLiteral("text/rtf")).contains("\\pngblip"));
    QTextDocument anderswo;
    anderswo.setHtml(daten->html());
    EXPECT_EQ(alsRtf(fliesstextAus(anderswo)).find("\\pngblip") != std::string::npos, true);
}

TEST_F(Ergebnisansicht, PicturesAndLineBreaksSplitAParagraphInOrder) {
    QTextDocument dokument;
    QTextCursor cursor(&dokument);
    cursor.insertText(QStringLiteral("vor\u2028bruch"));
    QImage punkt(2, 2, QImage::Format_RGB32);
    punkt.fill(Qt::red);
    dokument.addResource(QTextDocument::ImageResource, QUrl(QStringLiteral("punkt")), punkt);
    QTextImageFormat bild;
    bild.setName(QStringLiteral("punkt"));
    cursor.insertImage(bild);
    bild.setName(QStringLiteral("fehlt.png"));
    cursor.insertImage(bild);
    cursor.insertText(QStringLiteral("nach"), {});
    const Fliesstext gelesen = fliesstextAus(dokument);
    ASSERT_EQ(gelesen.size(), 2U);
    EXPECT_EQ(gelesen[0].laeufe.at(0).text, "vor\nbruch");
    ASSERT_EQ(gelesen[0].bilder.size(), 1U);
    EXPECT_NEAR(gelesen[0].bilder[0].breite, 2 * 25.4 / 96, 1e-9);
    EXPECT_EQ(gelesen[1].laeufe.at(0).text, "nach");
}

TEST_F(Ergebnisansicht, BarsStandInTheOrderOfTheReportAndLeadToTheirLines) {
    rechne("nicht_erfuellt");
    oeffne();
    auto& baum = finde<QTreeWidget>(*fenster, "Ausnutzungen");
    // Every proof line of the report stands once in the tree, below its section.
    int nichtErfuellt = 0;
    int zeilen = 0;
    for (const Absatz& absatz : erwartet()) {
        if (!absatz.ausnutzung) continue;
        ++zeilen;
        QTreeWidgetItem* zeile = nullptr;
        for (QTreeWidgetItemIterator i(&baum); *i != nullptr; ++i)
            if ((*i)->data(0, Ausnutzungsbaum::rolleZeile) == QVariant(zeilen - 1)) zeile = *i;
        ASSERT_NE(zeile, nullptr) << absatz.ausnutzung->name;
        EXPECT_TRUE(zeile->text(0).startsWith(qtext(absatz.ausnutzung->name)));
        EXPECT_EQ(zeile->text(0).endsWith(QStringLiteral("nicht erfüllt")), !absatz.ausnutzung->erfuellt);
        if (!absatz.ausnutzung->erfuellt) ++nichtErfuellt;
        baum.setCurrentItem(zeile);
        EXPECT_EQ(beleuchtet(), absatz.laeufe.at(0).text);
        EXPECT_FALSE(text->textCursor().hasSelection());
        EXPECT_TRUE(text->viewport()->rect().contains(text->cursorRect().center()));
    }
    EXPECT_GT(zeilen, 5);
    EXPECT_GT(nichtErfuellt, 0);
    // An edit above moves the lines, and the bars still find them.
    text->moveCursor(QTextCursor::Start);
    text->textCursor().insertText(QStringLiteral("neu\nneu\n"));
    baum.setCurrentItem(
        baum.findItems(QStringLiteral("5.1 Scheibenschub parallel"), Qt::MatchStartsWith | Qt::MatchRecursive)
            .at(0));
    EXPECT_TRUE(beleuchtet().starts_with("Ausnutzung Scheibenschub"));
    baum.setCurrentItem(baum.findItems(QStringLiteral("5.2 "), Qt::MatchStartsWith).at(0));  // a section
    EXPECT_TRUE(beleuchtet().starts_with("5.2 "));
}

// Sections by size, those without demand folded away behind them.
TEST_F(Ergebnisansicht, BarsAreSortedBySizeOnDemand) {
    rechne("einseitig");  // without wind across the panel
    oeffne();
    auto& baum = finde<QTreeWidget>(*fenster, "Ausnutzungen");
    const int rest = baum.topLevelItemCount() - 1;
    waehle(*fenster, "Reihenfolge", 1);
    double vorher = std::numeric_limits<double>::infinity();
    for (int i = 0; i < rest; ++i) {
        const double eta = baum.topLevelItem(i)->data(0, Ausnutzungsbaum::rolleZeile + 2).toDouble();
        EXPECT_LE(eta, vorher);
        vorher = eta;
    }
    EXPECT_TRUE(baum.topLevelItem(rest)->text(0).startsWith(QStringLiteral("ohne Beanspruchung")));
    EXPECT_FALSE(baum.topLevelItem(rest)->isExpanded());
}

// The exact distribution compounds from run to run: the strip says so, and discarding the results ends it.
TEST_F(Ergebnisansicht, TheStripTellsWhereAFreshRunSaysSomethingElse) {
    rechne("decke_und_wind");
    programm.verwirfErgebnisse();
    const auto ursache = [&] {
        programm.zuweisen();
        EXPECT_EQ(starte(programm.w), Laufergebnis::gerechnet);
        oeffne();
        const auto* zeile = fenster->findChild<QLabel*>(QStringLiteral("FrischUrsache"));
        return zeile == nullptr ? QString() : zeile->text();
    };
    EXPECT_EQ(ursache(), QString());
    EXPECT_TRUE(ursache().startsWith(QStringLiteral("Ein früherer Lauf wirkt nach")));
    EXPECT_TRUE(finde<QLabel>(*fenster, "Frisch").text().contains(QStringLiteral("maßgebend")));
    EXPECT_TRUE(finde<QLabel>(*fenster, "Massgebend").text().startsWith(QStringLiteral("maßgebend")));
    programm.verwirfErgebnisse();
    EXPECT_EQ(ursache(), QString());
    // Another wall before this one.
    programm.verwirfErgebnisse();
    rechne("windsog");
    EXPECT_FALSE(liesPosition(beispiel("decke_und_wind"), programm.w).fehler);
    programm.felder = grundmasse(programm.w);
    EXPECT_FALSE(ursache().isEmpty());
}

TEST_F(Ergebnisansicht, SearchGoesRoundAndEscLeavesItFirst) {
    oeffne();
    QTest::keySequence(fenster.get(), QKeySequence::Find);
    auto& wort = finde<QLineEdit>(*fenster, "Suchwort");
    auto& zahl = finde<QLabel>(*fenster, "Trefferzahl");
    EXPECT_TRUE(QTest::qWaitFor([&] { return wort.isVisible(); }));  // the button is pressed for a moment
    tippe(wort, QStringLiteral("beplankung 2"));
    const int treffer = int(text->toPlainText().count(QStringLiteral("beplankung 2"), Qt::CaseInsensitive));
    ASSERT_GT(treffer, 2);
    EXPECT_EQ(zahl.text(), QStringLiteral("1 von %1").arg(treffer));
    EXPECT_EQ(text->textCursor().selectedText(), QStringLiteral("Beplankung 2"));
    // A picture goes in beside a found text, not over it.
    const QString vorBild = text->toPlainText();
    klicke(*fenster, "Command1");
    EXPECT_EQ(text->toPlainText().remove(QChar::ObjectReplacementCharacter), vorBild);
    // On another screen it is drawn anew, with the dots of that one.
    const QUrl bild(text->textCursor().charFormat().toImageFormat().name());
    const auto gezeigt = [&] { return text->document()->resource(QTextDocument::ImageResource, bild); };
    EXPECT_GT(gezeigt().value<QImage>().width(), 100);
    text->document()->addResource(QTextDocument::ImageResource, bild, QImage(1, 1, QImage::Format_RGB32));
    Q_EMIT fenster->windowHandle()->screenChanged(fenster->screen());
    EXPECT_GT(gezeigt().value<QImage>().width(), 100);
    text->moveCursor(QTextCursor::Start);
    tippe(wort, QStringLiteral("beplankung 2"));
    klicke(*fenster, "Voriger");
    EXPECT_EQ(zahl.text(), QStringLiteral("%1 von %1").arg(treffer));
    QTest::keyClick(&wort, Qt::Key_Return);
    EXPECT_EQ(zahl.text(), QStringLiteral("1 von %1").arg(treffer));
    tippe(wort, QStringLiteral("gibt es nicht"));
    EXPECT_EQ(zahl.text(), QStringLiteral("kein Treffer"));
    text->setFocus();  // wherever the focus is
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_FALSE(wort.isVisible());
    EXPECT_TRUE(fenster->isVisible());
    // The picture is an edit: Esc asks before it is lost.
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
    gespeichert();
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_FALSE(fenster->isVisible());
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
}

TEST_F(Ergebnisansicht, ThePrintWindowOpensFromHere) {
    oeffne();
    QString name;
    mitFenster([&] { klicke(*fenster, "ComDruck"); }, [&](QWidget& druck) { name = druck.objectName(); });
    EXPECT_EQ(name, QStringLiteral("Form6"));
    meldungen.dateien = {datei("lang.pdf")};
    klicke(*fenster, "ComPdf");
    EXPECT_TRUE(inhalt(datei("lang.pdf")).startsWith("%PDF"));
}

}  // namespace
}  // namespace rippenscheibe
