#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>

#include "files/Projektliste.h"
#include "support/Gerechnet.h"
#include "ui/output/Form6_Druck.h"
#include "ui/paper/Druckdialog.h"

namespace rippenscheibe {
namespace {

class Druckfenster : public Gerechnet {
  protected:
    Druckfenster() {
        meldungen.imDruckdialog = [this](QPrintDialog& dialog) {
            ++druckdialoge;
            dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
            dialog.printer()->setOutputFileName(datei("druck.pdf"));
        };
    }
    std::unique_ptr<Form6> neu() { return std::make_unique<Form6>(programm, meldungen, nullptr); }
    int letzteSeite() const { return liesLetzteSeite(programm.datei(seitendatei)); }
    int gedruckteSeiten() const { return int(inhalt(datei("druck.pdf")).count("/Type /Page\n")); }
    static bool an(QWidget& fenster, const char* name) { return finde<QCheckBox>(fenster, name).isChecked(); }
    static bool frei(QWidget& fenster, const char* name) { return finde<QWidget>(fenster, name).isEnabled(); }

    int druckdialoge = 0;
};

TEST_F(Druckfenster, LoadingFollowsSettingsAndLastPage) {
    struct Fall {
        const char* name;
        bool drucken, standard;  // SeitenzahlDrucken, SeitenzahlStandard
        bool haken, startseite, suffix;
    };
    // When the settings veto, only the start page is disabled.
    constexpr std::array<Fall, 4> faelle{{{"both on", true, true, true, true, true},
                                          {"last job without", false, true, false, false, false},
                                          {"settings veto", true, false, false, false, true},
                                          {"both off", false, false, false, false, false}}};
    ASSERT_FALSE(schreibeLetzteSeite(programm.datei(seitendatei), 41));
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        programm.SeitenzahlDrucken = fall.drucken;
        programm.einstellungen.SeitenzahlStandard = fall.standard;
        const auto fenster = neu();
        EXPECT_EQ(an(*fenster, "Check12"), fall.haken);
        EXPECT_EQ(frei(*fenster, "Textbox1"), fall.startseite);
        EXPECT_EQ(frei(*fenster, "Textbox100"), fall.suffix);
        EXPECT_EQ(wert(*fenster, "Textbox1").wert(), 42);
        EXPECT_EQ(wert(*fenster, "Textbox100").wert(), 0);
        EXPECT_FALSE(frei(*fenster, "Command3"));
    }
}

TEST_F(Druckfenster, RemarksCanBeChosenWhenThereAreSome) {
    EXPECT_FALSE(frei(*neu(), "Check1(8)"));
    EXPECT_FALSE(an(*neu(), "Check1(8)"));
    programm.w.Vorbemerkungen[2] = "nur die dritte";
    EXPECT_TRUE(an(*neu(), "Check1(8)"));
    programm.w.Vorbemerkungen[2].clear();
    programm.w.AnzahlZusatzbemerkungen = 1;
    EXPECT_TRUE(frei(*neu(), "Check1(8)"));
    EXPECT_TRUE(an(*neu(), "Check2"));
    programm.einstellungen.SystembildStandard = false;
    EXPECT_FALSE(an(*neu(), "Check2"));
}

TEST_F(Druckfenster, ACancelledPrinterDialogPrintsNothing) {
    meldungen.druckAbgebrochen = true;
    const auto fenster = neu();
    fenster->show();
    klicke(*fenster, "Command1");
    EXPECT_EQ(fenster->windowTitle(), QStringLiteral(" Drucken"));
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_EQ(druckdialoge, 1);
    EXPECT_EQ(letzteSeite(), 0);
    EXPECT_FALSE(QFile::exists(datei("druck.pdf")));
}

TEST_F(Druckfenster, JobsContinueTheNumbering) {
    auto fenster = neu();
    fenster->show();
    QString waehrend;
    meldungen.imDruckdialog = [&, weiter = meldungen.imDruckdialog](QPrintDialog& dialog) {
        waehrend = fenster->windowTitle();
        weiter(dialog);
    };
    klicke(*fenster, "Command1");
    EXPECT_EQ(waehrend, QStringLiteral("    Ausdruck erfolgt...."));
    EXPECT_FALSE(fenster->isVisible());
    const int seiten = gedruckteSeiten();
    EXPECT_GT(seiten, 5);
    EXPECT_EQ(letzteSeite(), seiten);

    fenster = neu();
    EXPECT_EQ(wert(*fenster, "Textbox1").wert(), seiten + 1);
    klicke(*fenster, "Option1(0)");
    klicke(*fenster, "Check4");
    klicke(*fenster, "Command1");
    EXPECT_LT(gedruckteSeiten(), seiten);
    EXPECT_EQ(letzteSeite(), seiten + gedruckteSeiten());
}

TEST_F(Druckfenster, WithoutNumberOrWithSuffixTheLastPageStays) {
    ASSERT_FALSE(schreibeLetzteSeite(programm.datei(seitendatei), 7));
    auto fenster = neu();
    tippe(wert(*fenster, "Textbox100"), QStringLiteral("3"));
    klicke(*fenster, "Command1");
    EXPECT_EQ(letzteSeite(), 7);
    EXPECT_EQ(programm.einstellungen.Suffix.value(), 3);
    EXPECT_TRUE(programm.SeitenzahlDrucken);

    fenster = neu();
    klicke(*fenster, "Check12");
    EXPECT_FALSE(frei(*fenster, "Text200"));
    klicke(*fenster, "Command1");
    EXPECT_EQ(letzteSeite(), 7);
    EXPECT_EQ(programm.einstellungen.Suffix.value(), 0);
    EXPECT_FALSE(programm.SeitenzahlDrucken);
}

TEST_F(Druckfenster, AStoppedJobPrintsNothing) {
    const auto fenster = neu();
    fenster->show();
    bool stoppbar = false;
    meldungen.imDruckdialog = [&, weiter = meldungen.imDruckdialog](QPrintDialog& dialog) {
        weiter(dialog);
        QTimer::singleShot(0, fenster.get(), [&] {
            stoppbar = frei(*fenster, "Command3") && !frei(*fenster, "Command1");
            klicke(*fenster, "Command3");
        });
    };
    klicke(*fenster, "Command1");
    EXPECT_TRUE(stoppbar);
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_FALSE(QFile::exists(datei("druck.pdf")));
    EXPECT_EQ(letzteSeite(), 0);
    EXPECT_FALSE(frei(*fenster, "Command3"));
    EXPECT_TRUE(frei(*fenster, "Command1"));
}

TEST_F(Druckfenster, OnlyTheChosenPagesAreSent) {
    const auto fenster = neu();
    fenster->show();
    auto& vorschau = finde<QPrintPreviewWidget>(*fenster, "Vorschau");
    ASSERT_TRUE(QTest::qWaitFor([&] { return vorschau.pageCount() > 5; }));
    meldungen.imDruckdialog = [&, weiter = meldungen.imDruckdialog](QPrintDialog& dialog) {
        weiter(dialog);
        EXPECT_TRUE(dialog.testOption(QAbstractPrintDialog::PrintPageRange));
        EXPECT_EQ(dialog.maxPage(), vorschau.pageCount());
        dialog.setPrintRange(QAbstractPrintDialog::PageRange);
        dialog.setFromTo(2, 4);
    };
    klicke(*fenster, "Command1");
    EXPECT_EQ(gedruckteSeiten(), 3);
}

TEST_F(Druckfenster, APrinterThatFailsLeavesTheWindowOpen) {
    meldungen.imDruckdialog = [this](QPrintDialog& dialog) {
        dialog.printer()->setOutputFormat(QPrinter::PdfFormat);
        dialog.printer()->setOutputFileName(datei("nirgends/druck.pdf"));
    };
    const auto fenster = neu();
    fenster->show();
    klicke(*fenster, "Command1");
    EXPECT_TRUE(fenster->isVisible());
    EXPECT_TRUE(meldungen.gezeigt.empty());
    EXPECT_EQ(letzteSeite(), 0);
}

TEST_F(Druckfenster, APdfIsSavedAsShown) {
    const auto fenster = neu();
    klicke(*fenster, "Option1(0)");
    ASSERT_TRUE(QDir().mkpath(datei("ordner.pdf")));  // no file can go there
    meldungen.dateien = {datei("ordner.pdf"), datei("a.pdf")};
    klicke(*fenster, "ComPdf");
    ASSERT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(meldungen.gezeigt[0].symbol, Symbol::kritisch);
    EXPECT_EQ(letzteSeite(), 0);
    klicke(*fenster, "ComPdf");
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
    EXPECT_EQ(letzteSeite(), int(inhalt(datei("a.pdf")).count("/Type /Page\n")));
    EXPECT_EQ(wert(*fenster, "Textbox1").wert(), 1);  // printing it now begins with the same page
    EXPECT_EQ(meldungen.gewaehlt[1].vorschlag, QStringLiteral("A 4-Außenwand im Sogbereich.pdf"));
    klicke(*fenster, "ComPdf");  // cancelled
    EXPECT_EQ(meldungen.gezeigt.size(), 1U);
}

// What is told of a run needs the record before it.
TEST_F(Druckfenster, TheDerivationTakesThePlaceOfTheReport) {
    const auto fenster = neu();
    klicke(*fenster, "Option1(2)");
    EXPECT_TRUE(finde<QRadioButton>(*fenster, "Option1(1)").isChecked()) << "the run is not known";
    EXPECT_FALSE(frei(*fenster, "Option1(2)"));

    programm.vorDemLauf = programm.w = Wand();
    rechne("windsog");
    static_cast<Eingaben&>(programm.vorDemLauf) = programm.w;
    Form6 druck(programm, meldungen, nullptr, Form6::Wahl::rechenweg);
    EXPECT_FALSE(frei(druck, "Frame4"));
    meldungen.dateien = {datei("r.pdf"), datei("r.rtf")};
    klicke(druck, "ComPdf");
    EXPECT_GT(inhalt(datei("r.pdf")).count("/Type /Page\n"), 8);
    klicke(druck, "ComRtf");
    EXPECT_TRUE(inhalt(datei("r.rtf")).contains("fm,d = kmod,Rippen"));
    EXPECT_EQ(meldungen.gewaehlt[1].vorschlag, QStringLiteral("A 4-Außenwand im Sogbereich Rechenweg.rtf"));
    klicke(druck, "Option1(0)");
    EXPECT_FALSE(frei(druck, "ComRtf"));
}

TEST_F(Druckfenster, ThePreviewCountsThePagesOfTheChosenForm) {
    const auto fenster = neu();
    fenster->show();
    const auto zahl = [&] {
        QTest::qWait(50);
        return finde<QLabel>(*fenster, "Seitenanzahl").text();
    };
    EXPECT_EQ(zahl(), QStringLiteral("Seite 1 von 8"));
    klicke(*fenster, "NaechsteSeite");
    EXPECT_EQ(zahl(), QStringLiteral("Seite 2 von 8"));
    klicke(*fenster, "VorigeSeite");
    klicke(*fenster, "Check4");
    EXPECT_EQ(zahl(), QStringLiteral("Seite 1 von 6"));
}

TEST_F(Druckfenster, AllPagesClearsPagesAndSelectionAndItsFalseDoesNothing) {
    QPrinter drucker;
    clsPrintDialog dialog(drucker, meldungen, nullptr);
    dialog.PD_PageNums = dialog.PD_Selection = true;
    dialog.setPD_AllPages(false);
    EXPECT_TRUE(dialog.PD_PageNums && dialog.PD_Selection);
    EXPECT_FALSE(dialog.PD_AllPages());
    dialog.setPD_AllPages(true);
    EXPECT_FALSE(dialog.PD_PageNums || dialog.PD_Selection);
    EXPECT_TRUE(dialog.PD_AllPages());
}

TEST_F(Druckfenster, TheDialogReportsWhatWasChosen) {
    QPrinter drucker;
    clsPrintDialog dialog(drucker, meldungen, nullptr);
    meldungen.imDruckdialog = [](QPrintDialog& gezeigt) {
        gezeigt.printer()->setPageSize(QPageSize(QPageSize::A3));
        gezeigt.printer()->setPageOrientation(QPageLayout::Landscape);
        gezeigt.printer()->setColorMode(QPrinter::GrayScale);
    };
    dialog.ShowPrinter();
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_EQ(dialog.PaperWidth(), 420);
    EXPECT_EQ(dialog.PaperLength(), 297);
    EXPECT_EQ(dialog.Orientation(), QPageLayout::Landscape);
    EXPECT_EQ(dialog.Color(), QPrinter::GrayScale);
    meldungen.druckAbgebrochen = true;
    dialog.PDnCopies = 3;
    dialog.ShowPrinter();
    EXPECT_TRUE(dialog.Cancelled());
    EXPECT_EQ(dialog.Copies(), 1);
}

}  // namespace
}  // namespace rippenscheibe
