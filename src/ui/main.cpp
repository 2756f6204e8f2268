#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

#include "ui/Form0_Startbild.h"
#include "ui/Form1_Hauptfenster.h"
#include "ui/Handbuch.h"
#include "ui/Meldungen.h"
#include "ui/Programm.h"

using namespace rippenscheibe;

namespace {

// Numbers show the decimal mark of the user's locale; without one it is German.
void waehleSprache() {
    const QLocale eigene = QLocale::system();
    QLocale::setDefault(eigene.language() == QLocale::C ? QLocale(QLocale::German, QLocale::Germany)
                                                        : eigene);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication::setApplicationName(QStringLiteral("rippenscheibe"));
    QApplication::setApplicationVersion(QStringLiteral(RIPPENSCHEIBE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("rippenscheibe"));
    QApplication application(argc, argv);
    waehleSprache();

    QCommandLineParser befehlszeile;
    befehlszeile.setApplicationDescription(
        QStringLiteral("Bemessung von Wandtafeln in Holzrahmenbauweise nach DIN 1052 (2008)"));
    befehlszeile.addHelpOption();
    befehlszeile.addVersionOption();
    befehlszeile.addPositionalArgument(QStringLiteral("DATEI"), QStringLiteral("Positionsdatei (*.rsw)"),
                                       QStringLiteral("[DATEI]"));
    befehlszeile.process(application);
    const QString datei = befehlszeile.positionalArguments().value(0);

    Programm programm(programmordner());
    // Qt's own buttons, menus and dialogs in German, whatever the locale: the program is.
    QTranslator deutsch;
    if (deutsch.load(QStringLiteral(":/qtbase_de.qm"))) QApplication::installTranslator(&deutsch);

    Plattformmeldungen meldungen;
    const Hilfetaste hilfetaste(&application);
    Form0 startbild(programm);
    std::unique_ptr<Form1> hauptfenster;
    QObject::connect(&startbild, &Form0::entladen, &application, [&] {
        hauptfenster = std::make_unique<Form1>(programm, meldungen);
        hauptfenster->show();
        hauptfenster->starte(datei);
    });
    startbild.show();
    return QApplication::exec();
}
