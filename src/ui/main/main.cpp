#include <QApplication>
#include <QCommandLineParser>
#include <QGuiApplication>
#include <QHashSeed>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "basis/Version.h"
#include "files/Plattform.h"
#include "files/Programmordner.h"
#include "files/Prozess.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/help/Handbuch.h"
#include "ui/main/Form0_Startbild.h"
#include "ui/main/Form1_Hauptfenster.h"
#include "ui/output/PdfBefehl.h"
#include "ui/session/Dateiablauf.h"

using namespace rippenscheibe;

namespace {

// Numbers show the decimal mark of the user's locale; without one it is German.
void waehleSprache() {
    const QLocale eigene = QLocale::system();
    QLocale::setDefault(eigene.language() == QLocale::C ? QLocale(QLocale::German, QLocale::Germany)
                                                        : eigene);
}

const Pdfausgaben ausgaben{[](std::string_view text) { schreibe(stdout, text); },
                           [](std::string_view text) { schreibe(stderr, text); }};

// Help and version are printed; like the PDF they need no display.
bool willNurText(const QStringList& angaben) {
    const QStringList woerter{QStringLiteral("-h"), QStringLiteral("--help"), QStringLiteral("--help-all"),
                              QStringLiteral("-v"), QStringLiteral("--version")};
    return std::any_of(woerter.cbegin(), woerter.cend(),
                       [&](const QString& wort) { return angaben.contains(wort); });
}

void verzichteAufAnzeige() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What Qt says about a missing session is of no use here; only the program's own messages are.
    qInstallMessageHandler([](QtMsgType art, const QMessageLogContext&, const QString& text) {
        if (art == QtFatalMsg) schreibe(stderr, text.toStdString() + "\n");
    });
}

// Without a display Qt would end the program in English.
void meldeFehlendeAnzeige() {
    qInstallMessageHandler([](QtMsgType art, const QMessageLogContext&, const QString&) {
        if (art != QtFatalMsg) return;
        schreibe(stderr,
                 "Es ist keine Anzeige erreichbar. Ohne Anzeige schreibt \"rippenscheibe --pdf AUS.pdf "
                 "DATEI\" den "
                 "Ausdruck.\n");
        std::_Exit(static_cast<int>(Rueckgabe::aufruf));
    });
}

// The arguments of the program; Qt takes its own out of `argv`.
QStringList angabenAus(int argc, char** argv) {
    QStringList angaben{QStringLiteral("rippenscheibe")};
    for (const std::string& angabe : plattform::angaben(argc, argv)) angaben << qtext(angabe);
    return angaben;
}

// The command that needs no display.
int laufeOhneFenster(int& argc, char** argv) {
    verzichteAufAnzeige();
    QHashSeed::setDeterministicGlobalSeed();  // the order of a PDF's parts depends on it
    const QGuiApplication application(argc, argv);
    ladeDeutscheTexte();
    return static_cast<int>(fuehrePdfBefehlAus(angabenAus(argc, argv), programmordner(), ausgaben));
}

}  // namespace

int main(int argc, char** argv) {
    bereiteProzessVor();
    QApplication::setApplicationName(QStringLiteral("rippenscheibe"));
    QApplication::setApplicationVersion(qtext(programmversion()));
    QApplication::setDesktopFileName(QStringLiteral("rippenscheibe"));
    const QStringList angaben = angabenAus(argc, argv);
    if (istPdfBefehl(angaben)) return laufeOhneFenster(argc, argv);

    if (willNurText(angaben)) {
        verzichteAufAnzeige();
    } else {
        meldeFehlendeAnzeige();
    }
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    waehleSprache();
    ladeDeutscheTexte();

    QCommandLineParser befehlszeile;
    beschreibeAufruf(befehlszeile);
    if (const auto antwort = beantworteAufruf(befehlszeile, angabenAus(argc, argv), ausgaben))
        return static_cast<int>(*antwort);
    const QString angabe = befehlszeile.positionalArguments().value(0);
    const QString datei = angabe.isEmpty() ? angabe : ganzerPfad(angabe);

    Programm programm(programmordner());
    Plattformmeldungen meldungen;
    const Hilfetaste hilfetaste(&application);
    Form0 startbild(programm);
    std::unique_ptr<Form1> hauptfenster;
    const auto baue = [&] {
        if (hauptfenster == nullptr) hauptfenster = std::make_unique<Form1>(programm, meldungen);
    };
    QObject::connect(&startbild, &Form0::entladen, &application, [&] {
        baue();
        hauptfenster->show();
        // The start may open windows and wait for them; the splash has to be gone by then.
        QTimer::singleShot(0, hauptfenster.get(), [&] { hauptfenster->starte(datei); });
    });
    startbild.show();
    // The main window is built while the splash is looked at, and shown behind it.
    constexpr int nachDemErstenBild = 50;  // ms
    QTimer::singleShot(nachDemErstenBild, &application, baue);
    return QApplication::exec();
}
