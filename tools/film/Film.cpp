// A wall from nothing to a passing design without a start button, as a row of pictures for the handbook: the
// dialogs are opened by their buttons, texts are typed, options clicked, and the verdict follows.
//
//     film BILDERORDNER

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <cstdio>

#include "Bilder.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/main/Form1_Hauptfenster.h"

using namespace rippenscheibe;

namespace {

// What is done to a control: a text is typed, without one it is clicked.
struct Handgriff {
    const char* feld;
    const char* text = nullptr;
};

// A window opened by a button of the main window. A picture is taken of it when it asks for one, and with
// `danach` of the main window behind it.
struct Szene {
    const char* knopf;
    std::vector<Handgriff> griffe;
    bool bild = false;
    bool danach = false;
};

const std::vector<Handgriff> masse{{"Textbox1(0)", "3,75"}, {"Textbox1(1)", "2,75"}};
const std::vector<Szene> szenen{
    {"Command1", {{"Option1(0)"}}},  // one side only
    {"Command4",
     {{"Option1(2)"}, {"Textbox1(0)", "20"}, {"Textbox1(3)", "6"}, {"Textbox1(4)", "4"}},
     true,
     true},
    {"mnuVarianten", {{"Text1", "Abstand 60"}, {"ComMerken"}}},
    {"Command2", {{"Textbox1(0)", "50"}}, true},         // nearer than 20 d: a finding
    {"Command2", {{"Textbox1(0)", "55"}}, false, true},  // and the anchorage is still open
    {"Command3", {{"Check1"}, {"Option1(7)"}}, true, true},
    {"mnuVarianten", {}, true},
};

class Film {
  public:
    Film(QWidget& hauptfenster, QString ordner) : hauptfenster_(hauptfenster), ordner_(std::move(ordner)) {}

    void nimmAuf(QWidget& fenster) {
        constexpr int ruhe = 200;  // ms
        QTest::qWait(ruhe);
        constexpr int breite = 800;
        sichereBild(fenster.grab(), ordner_, QStringLiteral("film-%1").arg(++bilder_), breite);
    }

    static void bediene(QWidget& fenster, const std::vector<Handgriff>& griffe) {
        for (const Handgriff& griff : griffe) {
            auto* feld = fenster.findChild<QWidget*>(QLatin1String(griff.feld));
            if (feld == nullptr) qFatal("%s has no %s", qPrintable(fenster.objectName()), griff.feld);
            feld->setFocus(Qt::TabFocusReason);
            if (griff.text == nullptr) {
                static_cast<QAbstractButton*>(feld)->click();
                continue;
            }
            static_cast<QLineEdit*>(feld)->selectAll();
            QTest::keyClicks(feld, QString::fromUtf8(griff.text));
        }
    }

    void spiele(const Szene& szene) {
        // A modal window holds the click below until it is closed.
        QTimer::singleShot(0, &hauptfenster_, [&] {
            QWidget* offen = QApplication::activeModalWidget();
            if (offen == nullptr) qFatal("%s opens nothing", szene.knopf);
            bediene(*offen, szene.griffe);
            if (szene.bild) nimmAuf(*offen);
            offen->findChild<QAbstractButton*>(QStringLiteral("ComEnde"))->click();
            if (offen->isVisible()) static_cast<QDialog*>(offen)->reject();
        });
        if (auto* knopf = hauptfenster_.findChild<QAbstractButton*>(QLatin1String(szene.knopf)))
            knopf->click();
        else
            hauptfenster_.findChild<QAction*>(QLatin1String(szene.knopf))->trigger();
        if (szene.danach) nimmAuf(hauptfenster_);
    }

  private:
    QWidget& hauptfenster_;
    QString ordner_;
    int bilder_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: film BILDERORDNER\n");
        return 64;
    }
    stelleAufDeutsch();
    const QTemporaryDir programmordner;
    Programm programm(pfad(programmordner.path()));
    Plattformmeldungen meldungen;
    Form1 hauptfenster(programm, meldungen);
    programm.zuweisen();
    hauptfenster.show();

    Film film(hauptfenster, QString::fromLocal8Bit(argv[1]));
    film.nimmAuf(hauptfenster);
    Film::bediene(hauptfenster, masse);
    film.nimmAuf(hauptfenster);
    for (const Szene& szene : szenen) film.spiele(szene);
    const QString urteil = hauptfenster.findChild<QLabel*>(QStringLiteral("SofortUrteil"))->text();
    std::printf("%s\n", qPrintable(urteil));
    // No start button was pressed: the record itself holds no verdict.
    return urteil == QStringLiteral("✓ Alle Nachweise erfüllt") && !programm.w.AlleNachweiseErfuellt ? 0 : 1;
}
