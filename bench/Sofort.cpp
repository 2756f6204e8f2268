#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/main/Form1_Hauptfenster.h"
#include "ui/verdict/Sofortrechnung.h"

// How long the main window takes from a key in a field until verdict, summaries and drawing are painted, and
// the two runs behind the verdict alone. Fails when the median is more than a frame of 60 Hz.

namespace {

using namespace rippenscheibe;

constexpr double hoechstens = 16.0;  // ms
constexpr int tasten = 101;

double mittlere(std::vector<double> zeiten) {
    std::sort(zeiten.begin(), zeiten.end());
    return zeiten[zeiten.size() / 2];
}

double millisekunden(const QElapsedTimer& uhr) { return static_cast<double>(uhr.nsecsElapsed()) / 1e6; }

// One digit more or less in the height of the wall, again and again.
double vonTasteBisBild(Form1& fenster) {
    auto* feld = fenster.findChild<Werteingabe*>(QStringLiteral("Textbox1(1)"));
    feld->setFocus();
    feld->setText(QStringLiteral("2,5"));
    std::vector<double> zeiten;
    for (int i = 0; i < tasten; ++i) {
        const bool zu = i % 2 == 0;
        QCoreApplication::processEvents();
        QElapsedTimer uhr;
        uhr.start();
        QKeyEvent druck(QEvent::KeyPress, zu ? Qt::Key_5 : Qt::Key_Backspace, Qt::NoModifier,
                        zu ? QStringLiteral("5") : QStringLiteral("\b"));
        QCoreApplication::sendEvent(feld, &druck);
        QCoreApplication::processEvents();  // paints what changed
        zeiten.push_back(millisekunden(uhr));
    }
    return mittlere(zeiten);
}

double nurGerechnet(const Programm& programm) {
    std::vector<double> zeiten;
    for (int i = 0; i < tasten; ++i) {
        QElapsedTimer uhr;
        uhr.start();
        const Sofortergebnis ergebnis = rechneSofort(programm.w, programm.felder);
        zeiten.push_back(millisekunden(uhr));
        if (!ergebnis.urteil.maxEta && ergebnis.hinweise.empty()) return -1;
    }
    return mittlere(zeiten);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("rippenscheibe-bench"));
    const QTemporaryDir ordner;
    Plattformmeldungen meldungen;
    Programm programm(pfad(ordner.path()));
    Form1 fenster(programm, meldungen);
    fenster.show();
    bool schnell = true;
    for (const double laenge : {5.0, 99.5}) {
        programm.felder.Wandlaenge = laenge;
        programm.felder.Rippenabstand = laenge > 5 ? 0.5 : 0.625;
        programm.zuweisen();
        const double bild = vonTasteBisBild(fenster);
        std::printf("%4d ribs: key to paint %6.2f ms, check and two runs %6.3f ms\n",
                    static_cast<int>(programm.w.AnzahlRippen.value()), bild, nurGerechnet(programm));
        schnell = schnell && bild <= hoechstens;
    }
    return schnell ? 0 : 1;
}
