#include <cmath>
#include <limits>

#include "support/Gerechnet.h"
#include "ui/main/Form1_Hauptfenster.h"
#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Urteilsanzeige.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {
namespace {

class Soforturteil : public Programmprobe {
  protected:
    Sofortergebnis rechne() const { return rechneSofort(programm.w, programm.felder); }
    // The text of a label of the main window.
    QString text(const char* name) { return finde<QLabel>(fenster, name).text(); }
    const Balkenwert& balken(const char* name) { return finde<Ausnutzungsbalken>(fenster, name).wert(); }

    Form1 fenster{programm, meldungen};
};

TEST_F(Soforturteil, SaysWhatTheStartButtonWouldSayAndTouchesNothing) {
    // Walls one behind the other in one session, so that results of the one stand when the next is judged.
    for (const auto& eintrag : std::filesystem::directory_iterator(RIPPENSCHEIBE_BEISPIELE)) {
        if (eintrag.path().extension() != ".rsw") continue;
        SCOPED_TRACE(eintrag.path().string());
        static_cast<void>(liesPosition(eintrag.path(), programm.w));
        programm.felder = grundmasse(programm.w);
        programm.zuweisen();
        const std::vector<std::string> vorher = alleFelder(programm.w);
        const Sofortergebnis sofort = rechne();
        EXPECT_EQ(alleFelder(programm.w), vorher);
        EXPECT_TRUE(programm.w.Hinweise.empty());

        const bool gerechnet = starte(programm.w) == Laufergebnis::gerechnet;
        ASSERT_EQ(sofort.urteil.maxEta.has_value(), gerechnet);
        EXPECT_EQ(sofort.hinweise.size(), programm.w.Hinweise.size());
        programm.w.Hinweise.clear();
        if (!gerechnet) continue;
        EXPECT_EQ(sofort.urteil.erfuellt(), programm.w.AlleNachweiseErfuellt);
        EXPECT_EQ(*sofort.urteil.maxEta, *urteil(programm.w).maxEta);
    }
}

TEST_F(Soforturteil, ThreeThingsLookLikeThree) {
    programm.w.Fvk = 12;
    programm.zuweisen();
    EXPECT_TRUE(text("SofortMassgebend").startsWith(QStringLiteral("maßgebend ")));
    EXPECT_EQ(balken("SofortBalken(5)").urteil, Balkenurteil::ohneBedarf);
    EXPECT_TRUE(balken("SofortBalken(5)").wert.isEmpty());
    EXPECT_EQ(balken("SofortBalken(8)").urteil, Balkenurteil::ohneNachweis);
    EXPECT_TRUE(balken("SofortBalken(8)").wert.isEmpty());
    EXPECT_TRUE(text("SofortLuecke").startsWith(QStringLiteral("! Ft,d = ")));
    EXPECT_TRUE(text("SofortUrteil").contains(QStringLiteral("! 1 nicht nachgewiesen")));

    programm.w.Fvk = 0.01;  // proved, and nearly nothing
    programm.w.NachweisVerankerung = true;
    programm.zuweisen();
    EXPECT_EQ(balken("SofortBalken(8)").urteil, Balkenurteil::erfuellt);
    EXPECT_EQ(balken("SofortBalken(8)").wert, QStringLiteral("0,00"));

    programm.w.Fvk = 400;
    programm.zuweisen();
    EXPECT_EQ(balken("SofortBalken(1)").urteil, Balkenurteil::ueberschritten);
    EXPECT_TRUE(text("SofortUrteil").startsWith(QStringLiteral("✗ ")));
}

TEST_F(Soforturteil, AValueAboveOneNeverReadsOne) {
    const std::pair<double, const char*> faelle[] = {
        {0.6149, "0,61"},        {0.999, "1,00"},
        {1.0, "1,00"},           {1.004, "1,004"},
        {1.00002, "1,00002"},    {1 + 1e-12, "1,000000000001"},
        {1.25, "1,25"},          {std::nextafter(1.0, 2), "1,0000000000000002"},
        {2.125e6, "2125000,00"}, {std::numeric_limits<double>::infinity(), "∞"}};
    for (const auto& [eta, gelesen] : faelle) EXPECT_EQ(etatext(eta), QString::fromUtf8(gelesen));
}

TEST_F(Soforturteil, AFreshRunIsToldWhereItDiffers) {
    EXPECT_FALSE(rechne().frisch);
    // A wall under horizontal load leaves its combined shear to a wall that has none.
    programm.w.WindQuer = true;
    programm.w.wk = 2;
    programm.w.Fvk = 60;
    programm.w.Lastfall = 3;
    programm.w.gk = 20;
    programm.zuweisen();
    starte(programm.w, Hinweisbehandlung::uebergehen);
    programm.w.Hinweise.clear();
    programm.w.WindQuer = false;
    programm.w.wk = 0;
    programm.w.Fvk = 0;
    programm.w.Lastfall = 2;
    programm.zuweisen();
    const Sofortergebnis ergebnis = rechne();
    ASSERT_TRUE(ergebnis.frisch);
    EXPECT_TRUE(
        text("SofortFrisch").startsWith(QStringLiteral("frisch gerechnet: ✓ Alle Nachweise erfüllt")));
}

TEST_F(Soforturteil, AClickOnABarOpensTheResultsAtItsLine) {
    QString zeile;
    QString ganz;
    EXPECT_TRUE(mitFenster([this] { finde<Ausnutzungsbalken>(fenster, "SofortBalken(2)").click(); },
                           [&](QWidget& form) {
                               EXPECT_EQ(form.objectName(), QStringLiteral("Form23"));
                               const auto& text = finde<QTextEdit>(form, "Rbox1");
                               zeile = text.textCursor().block().text();
                               ganz = text.toPlainText();
                           }));
    EXPECT_TRUE(zeile.startsWith(QStringLiteral("5.2 "))) << zeile.toStdString() << "\n"
                                                          << ganz.toStdString();
    EXPECT_FALSE(programm.Ergebnisziel.has_value());
}

TEST_F(Soforturteil, AFindingLeadsToItsDialog) {
    programm.felder.Rippenabstand = 1.25;  // 50 t is 0.75 m
    programm.zuweisen();
    EXPECT_EQ(text("SofortUrteil"), QStringLiteral("! 1 Hinweis, keine Berechnung"));
    EXPECT_TRUE(programm.w.Hinweise.empty());
    finde<QAbstractButton>(fenster, "SofortHinweis(1)").click();
    EXPECT_EQ(fenster.focusWidget()->objectName(), QStringLiteral("Textbox1(2)"));
}

TEST_F(Soforturteil, AnInputDialogJudgesWhatStandsInIt) {
    mitFenster([this] { klicke(fenster, "Command4"); },
               [&](QWidget& form) {
                   const auto& zeile = finde<Urteilszeile>(form, "SofortUrteil");
                   EXPECT_TRUE(zeile.accessibleName().startsWith(QStringLiteral("✓")));
                   tippe(form, "Textbox1(0)", "400");
                   EXPECT_TRUE(zeile.accessibleName().startsWith(QStringLiteral("✗")));
               });
    EXPECT_EQ(programm.w.Fvk.value(), 3.0F);
}

TEST_F(Soforturteil, AScreenReaderSaysAVerdictThatChangesAndNoOther) {
    QSignalSpy haupt(fenster.findChild<Urteilsanzeige*>(), &Urteilsanzeige::angesagt);
    programm.felder.Wandlaenge = 6;
    programm.zuweisen();
    EXPECT_EQ(haupt.count(), 0);
    programm.w.Fvk = 400;
    programm.zuweisen();
    ASSERT_EQ(haupt.count(), 1);
    EXPECT_TRUE(haupt[0][0].toString().startsWith(QStringLiteral("✗ ")));
    mitFenster([this] { klicke(fenster, "Command4"); },
               [&](QWidget& form) {
                   QSignalSpy schmal(&finde<Urteilszeile>(form, "SofortUrteil"), &Urteilszeile::angesagt);
                   tippe(form, "Textbox1(6)", "1");
                   EXPECT_EQ(schmal.count(), 0);
                   tippe(form, "Textbox1(0)", "3");
                   ASSERT_EQ(schmal.count(), 1);
                   EXPECT_TRUE(schmal[0][0].toString().startsWith(QStringLiteral("✓ ")));
               });
}

}  // namespace
}  // namespace rippenscheibe
