#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLocale>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QWidget>
#include <cstdio>
#include <functional>
#include <vector>

#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Pfadwahl.h"
#include "ui/main/Form0_Startbild.h"
#include "ui/main/Form1_Hauptfenster.h"

// Takes the pictures of the handbook: opens the windows of the program over an example position by their own
// buttons and menu entries and saves each as form<n>.png.

using namespace rippenscheibe;

namespace {

constexpr int ruhe = 400;  // ms a window has to settle

// One window: the control of the window before it that opens it, and the windows that open from it.
struct Schritt {
    const char* steuerung;
    std::vector<Schritt> weiter;
};

QString bilderordner;

void sichere(QWidget& fenster) {
    const QString datei =
        bilderordner + QLatin1Char('/') + fenster.objectName().toLower() + QStringLiteral(".png");
    if (!fenster.grab().save(datei)) std::fprintf(stderr, "cannot write %s\n", qPrintable(datei));
}

void warte(int dauer) {
    QElapsedTimer uhr;
    uhr.start();
    while (uhr.elapsed() < dauer) QApplication::processEvents(QEventLoop::AllEvents, 20);
}

// The visible window in front of `vorher`, nullptr when none has opened.
QWidget* neuesFenster(const QWidget& vorher) {
    if (QWidget* modal = QApplication::activeModalWidget(); modal != nullptr && modal != &vorher)
        return modal;
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (fenster->isVisible() && fenster != &vorher && fenster->parentWidget() == &vorher) return fenster;
    return nullptr;
}

void betaetige(QWidget& fenster, const char* name) {
    if (auto* knopf = fenster.findChild<QAbstractButton*>(QLatin1String(name))) return knopf->click();
    if (auto* aktion = fenster.findChild<QAction*>(QLatin1String(name))) return aktion->trigger();
    std::fprintf(stderr, "%s has no control %s\n", qPrintable(fenster.objectName()), name);
}

void fotografiere(QWidget& fenster, const std::vector<Schritt>& schritte) {
    for (const Schritt& schritt : schritte) {
        bool fertig = false;
        // Modal windows hold the click below until they are closed: the picture is taken from a timer.
        QTimer::singleShot(ruhe, &fenster, [&] {
            if (QWidget* offen = neuesFenster(fenster)) {
                warte(ruhe);
                sichere(*offen);
                fotografiere(*offen, schritt.weiter);
                offen->close();
            } else {
                std::fprintf(stderr, "%s opens nothing\n", schritt.steuerung);
            }
            fertig = true;
        });
        betaetige(fenster, schritt.steuerung);
        while (!fertig) warte(20);
        warte(20);
    }
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: handbuchbilder POSITION BILDERORDNER\n");
        return 64;
    }
    bilderordner = QString::fromLocal8Bit(argv[2]);
    QDir().mkpath(bilderordner);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QTranslator deutsch;
    if (deutsch.load(QStringLiteral(":/qtbase_de.qm"))) QApplication::installTranslator(&deutsch);

    const QTemporaryDir ordner;
    Programm programm(pfad(ordner.path()));
    Plattformmeldungen meldungen;
    Form0 startbild(programm);
    startbild.show();
    warte(ruhe);
    sichere(startbild);
    startbild.close();

    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    hauptfenster.starte(QString::fromLocal8Bit(argv[1]));
    programm.Positionspfad = utf8(QDir::homePath() + QStringLiteral("/Projekte/Haus am See/"));
    warte(ruhe);
    sichere(hauptfenster);
    fotografiere(hauptfenster, {{"Command5", {{"ComInfo2", {}}}},
                                {"Command1", {{"ComProfile", {}}}},
                                {"Command2", {{"ComInfo2", {}}}},
                                {"Command3", {}},
                                {"Command4", {{"Command2", {}}}},
                                {"Command6", {}},
                                {"ComInfo2", {}},
                                {"mnuProjekt", {{"Command1", {}}}},
                                {"mnuvorb", {{"Command4", {}}}},
                                {"mnupocketcalc", {}},
                                {"mnuKalender", {}},
                                {"mnuSysConfig", {}},
                                {"mnuoptions", {}},
                                {"ComErgDruck", {}},
                                {"ComErgEin2", {}}});
    hauptfenster.hide();
    return 0;
}
