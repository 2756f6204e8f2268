#include <QRegularExpression>

#include "../support/Aufzeichnung.h"
#include "files/Dateischreiber.h"
#include "files/EigeneMaterialienDatei.h"
#include "files/Projektliste.h"
#include "report/Bericht.h"
#include "support/Gerechnet.h"
#include "ui/output/PdfBefehl.h"
#include "ui/paper/Druckpuffer.h"
#include "ui/paper/PdfAusgabe.h"
#include "ui/paper/Sammelpdf.h"
#include "ui/paper/Seitenmaler.h"
#include "ui/project/Form99_EigeneMaterialien.h"

namespace rippenscheibe {
namespace {

// The bytes without the time they were made at; newer Qt tells it a second time in the XMP metadata.
QByteArray ohneDatum(const QByteArray& pdf) {
    return QString::fromLatin1(pdf)
        .replace(QRegularExpression(QStringLiteral("/(Creation|Mod)Date \\(D:[^)]*\\)|Date=\"[^\"]*\"")),
                 QString())
        .toLatin1();
}

int seiten(const QByteArray& pdf) {
    return int(QString::fromLatin1(pdf).count(QStringLiteral("/Type /Page\n")));
}

// The dark pixels of a picture, in millimetres.
QRectF tinte(const QImage& bild, double mm) {
    QRect rahmen;
    for (int y = 0; y < bild.height(); ++y)
        for (int x = 0; x < bild.width(); ++x)
            if (qGray(bild.pixel(x, y)) < 128) rahmen |= QRect(x, y, 1, 1);
    return {rahmen.x() / mm, rahmen.y() / mm, rahmen.width() / mm, rahmen.height() / mm};
}

class Pdfausgabe : public Gerechnet {
  protected:
    Ausdruck ausdruck() { return standardausdruck(programm.w, programm.einstellungen, {}); }

    // Runs the command as from a shell.
    Rueckgabe befehl(QStringList angaben) {
        angaben.prepend(QStringLiteral("rippenscheibe"));
        gesagt.clear();
        return fuehrePdfBefehlAus(angaben, programm.ordner,
                                  {[](std::string_view) {}, [this](std::string_view t) { gesagt += t; }});
    }
    std::string gesagt;
};

TEST_F(Pdfausgabe, TheSameWallGivesTheSameBytesButForTheDate) {
    const QByteArray eins = pdf(programm.w, ausdruck()).bytes;
    QTest::qWait(1100);  // the date counts seconds
    const QByteArray zwei = pdf(programm.w, ausdruck()).bytes;
    EXPECT_NE(eins, zwei);
    EXPECT_EQ(ohneDatum(eins), ohneDatum(zwei));
}

TEST_F(Pdfausgabe, APdfHasThePagesOfThePageMachine) {
    for (const Form form : {Form::lang, Form::kurz}) {
        Ausdruck a = ausdruck();
        a.form = form;
        Aufzeichnung aufzeichnung;
        const int erwartet = setze(aufzeichnung, programm.w, a).seiten;
        EXPECT_EQ(aufzeichnung.seiten, erwartet);
        EXPECT_EQ(seiten(pdf(programm.w, a).bytes), erwartet);
    }
}

// Text that is drawn as outlines can be neither searched nor copied.
TEST_F(Pdfausgabe, TextIsTextInEmbeddedFonts) {
    const QByteArray bytes = pdf(programm.w, ausdruck()).bytes;
    EXPECT_GE(bytes.count("/FontFile2"), 2);  // plain and bold
    EXPECT_EQ(bytes.count("/ToUnicode"), bytes.count("/Type0"));
    EXPECT_FALSE(bytes.contains("/Type3"));
}

// A4 is 595 x 842 points.
TEST_F(Pdfausgabe, PagesAreA4AndTheDocumentHasItsTitle) {
    const QByteArray bytes = pdf(programm.w, ausdruck()).bytes;
    EXPECT_TRUE(bytes.contains("/MediaBox [0 0 595.000000 842.000000]") ||
                bytes.contains("/MediaBox [0 0 595 842]"))
        << bytes.mid(bytes.indexOf("/MediaBox"), 60).toStdString();
    EXPECT_EQ(dokumenttitel(programm.w), QStringLiteral("Lagerhalle Nord - Position A 4"));
}

// The outline holds every heading, and each object of the appended table stands where it says.
TEST_F(Pdfausgabe, HeadingsAreBookmarks) {
    const Ausdruck a = ausdruck();
    Aufzeichnung flaeche;
    setze(flaeche, programm.w, a);
    const QByteArray bytes = pdf(programm.w, a).bytes;
    const auto anzahl = static_cast<qsizetype>(flaeche.nur(Aufzeichnung::Art::lesezeichen).size());
    EXPECT_EQ(bytes.count("/Title <FEFF"), anzahl);
    const qsizetype tabelle = bytes.mid(bytes.lastIndexOf("startxref") + 10).split('\n').front().toLongLong();
    const QList<QByteArray> zeilen = bytes.mid(tabelle).split('\n');
    ASSERT_EQ(zeilen.front(), "xref");
    qsizetype objekte = 0;
    for (qsizetype i = 1; zeilen[i] != "trailer"; i += 2, ++objekte) {
        const QByteArray nummer = zeilen[i].split(' ').front();
        EXPECT_TRUE(bytes.mid(zeilen[i + 1].left(10).toLongLong()).startsWith(nummer + " 0 obj"));
    }
    EXPECT_EQ(objekte, anzahl + 2);  // the head of the outline and the catalog
}

// A job that was held and played later draws the same as one drawn at once.
TEST_F(Pdfausgabe, HeldPagesAreTheSamePages) {
    const Ausdruck a = ausdruck();
    Druckpuffer puffer;
    setze(puffer, programm.w, a);
    Aufzeichnung gespielt;
    puffer.spiele(gespielt);
    Aufzeichnung direkt;
    setze(direkt, programm.w, a);
    EXPECT_EQ(gespielt.protokoll(), direkt.protokoll());
    EXPECT_FALSE(direkt.nur(Aufzeichnung::Art::lesezeichen).empty());
    EXPECT_EQ(gespielt.nur(Aufzeichnung::Art::lesezeichen).size(),
              direkt.nur(Aufzeichnung::Art::lesezeichen).size());
}

// The top of a capital of Arial 10 pt lies 0,905 - 0,688 = 0,217 em = 0,77 mm below the text's place, and it
// is 0,688 em = 2,43 mm high. A box is drawn on the middle of its line.
TEST_F(Pdfausgabe, ThePainterDrawsInMillimetresAtEveryResolution) {
    for (const double mm : {24.0, 48.0}) {
        QImage bild(int(60 * mm), int(30 * mm), QImage::Format_RGB32);
        bild.fill(Qt::white);
        QPainter painter(&bild);
        Seitenmaler maler(painter, mm, {programm.w, {}});
        maler.text(20, 5, "H");
        const QRectF buchstabe = tinte(bild, mm);
        EXPECT_NEAR(buchstabe.top(), 5.77, 0.05);
        EXPECT_NEAR(buchstabe.height(), 2.43, 0.06);
        EXPECT_NEAR(buchstabe.left(), 20.3, 0.15);

        bild.fill(Qt::white);
        maler.setzeStrich(0.4);
        maler.rahmen({10, 12, 40, 8}, Farbe::schwarz);
        const QRectF rahmen = tinte(bild, mm);
        EXPECT_NEAR(rahmen.left(), 9.8, 0.12);
        EXPECT_NEAR(rahmen.right(), 50.2, 0.12);
        EXPECT_NEAR(rahmen.top(), 11.8, 0.12);
        EXPECT_NEAR(rahmen.bottom(), 20.2, 0.12);
    }
}

TEST_F(Pdfausgabe, TheLogoFillsItsPlace) {
    QImage logo(4, 2, QImage::Format_RGB32);
    logo.fill(Qt::black);
    constexpr double mm = 10;
    QImage bild(600, 300, QImage::Format_RGB32);
    bild.fill(Qt::white);
    QPainter painter(&bild);
    Seitenmaler(painter, mm, {programm.w, logo}).bild(Bild::logo, {23, 6, 15, 15});
    EXPECT_EQ(tinte(bild, mm), QRectF(23, 6, 15, 15));
}

TEST_F(Pdfausgabe, TheCommandAnswersEachCallWithItsNumber) {
    struct Fall {
        const char* name;
        QStringList angaben;
        Rueckgabe rueckgabe;
        const char* gesagt;
    };
    const QString ziel = datei("aus.pdf");
    const auto rsw = [](const char* name) { return QString::fromStdString(beispiel(name).string()); };
    const QString option = QStringLiteral("--pdf");
    const QString lastfaelle = datei("faelle.csv");
    EXPECT_FALSE(schreibeDauerhaft(pfad(lastfaelle), "name"));
    const std::vector<Fall> faelle{
        {"passed", {option, ziel, rsw("windsog")}, Rueckgabe::erfuellt, ""},
        {"joined by =", {option + QStringLiteral("=") + ziel, rsw("windsog")}, Rueckgabe::erfuellt, ""},
        {"failed", {option, ziel, rsw("nicht_erfuellt")}, Rueckgabe::nichtErfuellt, "nicht alle Nachweise"},
        {"findings", {option, ziel, rsw("hinweise")}, Rueckgabe::hinweise, "konstruktive Fehler"},
        {"missing file", {option, ziel, datei("fehlt.rsw")}, Rueckgabe::dateifehler, "fehlt.rsw"},
        {"other kind", {option, ziel, datei("bild.jpg")}, Rueckgabe::dateifehler, "Datei passt nicht"},
        {"no place", {option, datei("nirgends/a.pdf"), rsw("windsog")}, Rueckgabe::dateifehler, "a.pdf"},
        {"a folder",
         {option, ziel, QString::fromStdString(beispiel("haus").replace_extension().string())},
         Rueckgabe::nichtErfuellt,
         "EG-04.rsw: Es werden nicht alle"},
        {"an empty folder", {option, ziel, ordner.path()}, Rueckgabe::dateifehler, "liegt keine Position"},
        {"no file", {option, ziel}, Rueckgabe::aufruf, "genau eine Positionsdatei oder ein Ordner"},
        {"two files", {option, ziel, rsw("windsog"), rsw("zuganker")}, Rueckgabe::aufruf, "genau eine"},
        {"other form",
         {option, ziel, QStringLiteral("--form"), QStringLiteral("ansicht"), rsw("windsog")},
         Rueckgabe::aufruf,
         "„ansicht“ ist nicht zulässig; erlaubt: lang, kurz, rechenweg"},
        {"derivation",
         {option, ziel, QStringLiteral("--form"), QStringLiteral("rechenweg"), rsw("windsog")},
         Rueckgabe::erfuellt,
         ""},
        {"onto what it reads",
         {option, lastfaelle, QStringLiteral("--groesste"), QStringLiteral("Fvk=0:1:1"),
          QStringLiteral("--lastfaelle"), lastfaelle, rsw("windsog")},
         Rueckgabe::aufruf,
         "wird gelesen"},
        {"unknown option", {option, ziel, QStringLiteral("--x"), rsw("windsog")}, Rueckgabe::aufruf, "Hilfe"},
    };
    for (const Fall& fall : faelle) {
        SCOPED_TRACE(fall.name);
        QFile::remove(ziel);
        EXPECT_TRUE(istPdfBefehl(fall.angaben));
        EXPECT_EQ(befehl(fall.angaben), fall.rueckgabe) << gesagt;
        EXPECT_NE(gesagt.find(fall.gesagt), std::string::npos) << gesagt;
        const bool geschrieben =
            fall.rueckgabe == Rueckgabe::erfuellt || fall.rueckgabe == Rueckgabe::nichtErfuellt;
        EXPECT_EQ(inhalt(ziel).startsWith("%PDF"), geschrieben);
    }
    EXPECT_FALSE(istPdfBefehl({QStringLiteral("--pdfx"), QStringLiteral("a.rsw")}));
}

// As many pages as the single prints have, numbered without a gap, and a heading above those of each
// position.
TEST_F(Pdfausgabe, OnePdfHoldsThePagesOfAllPositions) {
    QDir(ordner.path()).mkdir(QStringLiteral("projekt"));
    const auto projekt = pfad(datei("projekt"));
    for (const char* name : {"windsog", "nicht_erfuellt", "hinweise"})
        std::filesystem::copy(beispiel(name), projekt / (std::string(name) + ".rsw"));
    EXPECT_FALSE(schreibeDauerhaft(projekt / "wirr.rsw", "wirr"));
    Sammelauftrag auftrag;
    const auto dateien = projektdateien(projekt);
    auftrag.dateien = std::get<0>(dateien);
    auftrag.einstellungen.SeitenzahlStandard = true;
    int blaetter = 0;
    qsizetype ueberschriften = 2;
    for (const char* name : {"nicht_erfuellt", "windsog"}) {
        programm.w = Wand();
        rechne(name);
        const Pdf einzeln = pdf(programm.w, ausdruck());
        blaetter += einzeln.ergebnis.seiten;
        ueberschriften += einzeln.bytes.count("/Title <FEFF");
    }
    const Sammelpdf alle = sammelpdf(auftrag, {});
    EXPECT_EQ(alle.gedruckt, 2);
    EXPECT_EQ(alle.seiten, blaetter);
    EXPECT_EQ(alle.letzteSeite, blaetter);
    EXPECT_EQ(seiten(alle.bytes), blaetter);
    EXPECT_EQ(alle.bytes.count("/Title <FEFF"), ueberschriften);
    EXPECT_EQ(alle.rueckgabe, Rueckgabe::dateifehler);

    std::stop_source halt;
    halt.request_stop();
    EXPECT_TRUE(sammelpdf(auftrag, {.halt = halt.get_token()}).bytes.isEmpty());
}

TEST_F(Pdfausgabe, TheCommandWritesADesignTableOnOnePage) {
    const QStringList aufruf{QStringLiteral("--pdf"),
                             datei("tafel.pdf"),
                             QString::fromStdString(beispiel("zuganker").string()),
                             QStringLiteral("--groesste=Fvk"),
                             QStringLiteral("--zeilen=Wandlaenge=2.5:5:0.625"),
                             QStringLiteral("--bis=30"),
                             QStringLiteral("--stufe=1")};
    EXPECT_EQ(befehl(aufruf), Rueckgabe::aufruf);
    EXPECT_TRUE(gesagt.starts_with("Es fehlt --spalten.")) << gesagt;
    EXPECT_EQ(befehl(aufruf + QStringList{QStringLiteral("--spalten=av1=50:150:25")}), Rueckgabe::erfuellt)
        << gesagt;
    const QByteArray bytes = QByteArray::fromStdString(liesDatei(datei("tafel.pdf").toStdString()).bytes);
    EXPECT_EQ(seiten(bytes), 1);
}

TEST_F(Pdfausgabe, TheCommandTakesTheMaterialsTheWindowTakesAndWritesNone) {
    const auto tabelle = programm.datei(materialdatei);
    EXPECT_EQ(befehl({QStringLiteral("--pdf"), datei("aus.pdf"),
                      QString::fromStdString(beispiel("eigenes_material").string())}),
              Rueckgabe::erfuellt)
        << gesagt;
    EXPECT_FALSE(std::filesystem::exists(tabelle));
    programm.w = Wand();
    setzeVorgaben(programm.w);
    programm.w.eigeneMaterialien = ladeEigeneMaterialien(programm.ordner).wert;
    rechne("eigenes_material");
    EXPECT_EQ(ohneDatum(inhalt(datei("aus.pdf"))), ohneDatum(pdf(programm.w, ausdruck()).bytes));
}

TEST_F(Pdfausgabe, TheCommandPrintsWhatTheSettingsSayAndLeavesThePageNumberAlone) {
    const QStringList angaben{QStringLiteral("--pdf"), datei("aus.pdf"), QStringLiteral("--form"),
                              QStringLiteral("kurz"), QString::fromStdString(beispiel("windsog").string())};
    ASSERT_FALSE(schreibeLetzteSeite(programm.datei(seitendatei), 41));
    EXPECT_EQ(befehl(angaben), Rueckgabe::erfuellt);
    const QByteArray vorgabe = inhalt(datei("aus.pdf"));
    programm.einstellungen.SystembildStandard = false;
    ASSERT_FALSE(schreibeEinstellungen(programm.datei(einstellungsdatei), programm.einstellungen));
    EXPECT_EQ(befehl(angaben), Rueckgabe::erfuellt);
    Ausdruck a = ausdruck();
    a.form = Form::kurz;
    EXPECT_EQ(ohneDatum(inhalt(datei("aus.pdf"))), ohneDatum(pdf(programm.w, a).bytes));
    EXPECT_NE(ohneDatum(inhalt(datei("aus.pdf"))), ohneDatum(vorgabe));
    EXPECT_EQ(liesLetzteSeite(programm.datei(seitendatei)), 41);
}

}  // namespace
}  // namespace rippenscheibe
