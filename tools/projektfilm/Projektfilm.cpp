// A small house as a row of pictures for the handbook: the overview of its walls, quantities, load cases, the
// one wall that fails and how it is mended, an influence, a design table. The windows are opened by their
// menu entries and driven by their buttons; the positions are a copy.
//
//     projektfilm BILDERORDNER PROJEKTORDNER POSITION

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <cstdio>

#include "Bilder.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/main/Form1_Hauptfenster.h"

using namespace rippenscheibe;

namespace {

template <class T = QWidget>
T& teil(QWidget& fenster, const char* name) {
    T* gefunden = fenster.findChild<T*>(QLatin1String(name));
    if (gefunden == nullptr) qFatal("%s has no %s", qPrintable(fenster.objectName()), name);
    return *gefunden;
}

void klicke(QWidget& fenster, const char* name) { teil<QAbstractButton>(fenster, name).click(); }

void warteBis(const std::function<bool()>& da) {
    constexpr int geduld = 60'000;  // ms
    if (!QTest::qWaitFor(da, geduld)) qFatal("waited in vain");
}

class Projektfilm {
  public:
    Projektfilm(Form1& hauptfenster, QString ordner)
        : hauptfenster_(hauptfenster), ordner_(std::move(ordner)) {}

    // "projekt-NAME.png"
    void nimmAuf(QWidget& fenster, const char* name) {
        constexpr int ruhe = 300;  // ms
        constexpr int breite = 1000;
        QTest::qWait(ruhe);
        if (auto* ordner = fenster.findChild<QComboBox*>(QStringLiteral("Ordner")))
            ordner->setItemText(ordner->currentIndex(), QStringLiteral("/home/planung/haus"));
        sichereBild(fenster.grab(), ordner_, QStringLiteral("projekt-") + QLatin1String(name), breite);
    }
    // Opens a window by its menu entry and closes it behind `bediene`.
    void oeffne(const char* eintrag, const std::function<void(QWidget&)>& bediene) {
        QTimer::singleShot(0, &hauptfenster_, [&] {
            QWidget* fenster = QApplication::activeModalWidget();
            if (fenster == nullptr) qFatal("%s opens nothing", eintrag);
            bediene(*fenster);
            static_cast<QDialog*>(fenster)->reject();
        });
        teil<QAction>(hauptfenster_, eintrag).trigger();
    }

    QString uebersicht(const char* name) {
        QString zahlen;
        oeffne("mnuUebersicht", [&](QWidget& fenster) {
            const auto& text = teil<QLabel>(fenster, "Zahlen");
            warteBis([&] {
                return text.text().contains(QLatin1Char(':')) &&
                       !text.text().contains(QStringLiteral("gelesen"));
            });
            nimmAuf(fenster, name);
            zahlen = text.text();
        });
        return zahlen;
    }
    // The walls that bear the floor: those the search finds.
    void mengen() {
        oeffne("mnuUebersicht", [&](QWidget& fenster) {
            warteBis(
                [&] { return !teil<QTreeWidget>(fenster, "Mengen").model()->index(0, 0).data().isNull(); });
            QTest::keyClicks(&teil(fenster, "Suche"), QStringLiteral("EG-"));
            teil<QTableView>(fenster, "Positionen").selectAll();
            klicke(fenster, "MengenAuswahl");
            nimmAuf(fenster, "mengen");
        });
    }
    void lastfaelle() {
        oeffne("mnuLastfaelle", [&](QWidget& fenster) { nimmAuf(fenster, "lastfaelle"); });
    }
    void auslegen() {
        oeffne("mnuAuslegen", [&](QWidget& fenster) {
            klicke(fenster, "Achse(verbindungsmittel)");  // the nails stay as they are
            klicke(fenster, "Suchen");
            warteBis([&] { return teil(fenster, "Suchen").isEnabled(); });
            nimmAuf(fenster, "auslegen");
            auto& seiten = teil<QTabWidget>(fenster, "Seiten");
            seiten.setCurrentIndex(1);
            warteBis([&] { return !teil<QLabel>(fenster, "SchritteStand").text().isEmpty(); });
            nimmAuf(fenster, "was-hilft");
            seiten.setCurrentIndex(0);
            klicke(fenster, "Uebernehmen");
        });
    }
    void einfluss() {
        oeffne("mnuEinfluss", [&](QWidget& fenster) {
            warteBis([&] { return !teil<QLabel>(fenster, "Urteil").text().isEmpty(); });
            nimmAuf(fenster, "einfluss");
        });
    }
    void tafel() {
        oeffne("mnuTafel", [&](QWidget& fenster) {
            klicke(fenster, "Rechnen");
            warteBis([&] { return teil(fenster, "Drucken").isEnabled(); });
            nimmAuf(fenster, "tafel");
        });
    }

  private:
    Form1& hauptfenster_;
    QString ordner_;
};

// A folder of the same name with the same files.
QString kopiere(const QString& ordner, const QString& ziel) {
    const QDir quelle(ordner);
    const QString kopie = QDir(ziel).filePath(quelle.dirName());
    QDir().mkpath(kopie);
    for (const QString& name : quelle.entryList(QDir::Files))
        QFile::copy(quelle.filePath(name), QDir(kopie).filePath(name));
    return kopie;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: projektfilm BILDERORDNER PROJEKTORDNER POSITION\n");
        return 64;
    }
    stelleAufDeutsch();
    const QTemporaryDir programmordner;
    const QTemporaryDir kopie;
    const QString projekt = kopiere(QString::fromLocal8Bit(argv[2]), kopie.path());
    Programm programm(pfad(programmordner.path()));
    Plattformmeldungen meldungen;
    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    hauptfenster.starte(QDir(projekt).filePath(QString::fromLocal8Bit(argv[3])));

    Projektfilm film(hauptfenster, QString::fromLocal8Bit(argv[1]));
    film.uebersicht("uebersicht");
    film.mengen();
    film.nimmAuf(hauptfenster, "wand-vorher");
    film.lastfaelle();
    film.einfluss();
    film.auslegen();
    film.nimmAuf(hauptfenster, "wand-nachher");
    teil<QAction>(hauptfenster, "mnuFSave").trigger();
    const QString danach = film.uebersicht("uebersicht-nachher");
    film.tafel();
    std::printf("%s\n", qPrintable(danach));
    return danach.contains(QStringLiteral("nicht")) ? 1 : 0;
}
