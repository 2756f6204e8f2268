#include <QApplication>
#include <QElapsedTimer>
#include <QGridLayout>
#include <QLineEdit>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/main/Form1_Hauptfenster.h"

// How long the main window takes from nothing to its first paint, against an empty window with 40 fields.
// bench/fensterstart runs it under Xvfb.

namespace {

using namespace rippenscheibe;

// Sees the first paint event of a window.
class Malwache : public QObject {
  public:
    explicit Malwache(QWidget* fenster) { fenster->installEventFilter(this); }
    bool gemalt() const { return gemalt_; }

  protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::Paint) gemalt_ = true;
        return QObject::eventFilter(objekt, ereignis);
    }

  private:
    bool gemalt_ = false;
};

double bisGemalt(const std::function<std::unique_ptr<QWidget>()>& baue) {
    QElapsedTimer uhr;
    uhr.start();
    const std::unique_ptr<QWidget> fenster = baue();
    const Malwache wache(fenster.get());
    fenster->show();
    while (!wache.gemalt()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return static_cast<double>(uhr.nsecsElapsed()) / 1e6;
}

double mittlere(std::vector<double> zeiten) {
    std::sort(zeiten.begin(), zeiten.end());
    return zeiten[zeiten.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("rippenscheibe-bench"));
    const QTemporaryDir ordner;
    Plattformmeldungen meldungen;

    std::vector<double> leer;
    std::vector<double> haupt;
    double erstes = 0;
    for (int lauf = 0; lauf < 9; ++lauf) {
        leer.push_back(bisGemalt([] {
            auto fenster = std::make_unique<QWidget>();
            auto* felder = new QGridLayout(fenster.get());
            for (int i = 0; i < 40; ++i) felder->addWidget(new QLineEdit, i / 4, i % 4);
            return fenster;
        }));
        Programm programm(pfad(ordner.path()));
        haupt.push_back(bisGemalt([&] { return std::make_unique<Form1>(programm, meldungen); }));
        if (lauf == 0) erstes = haupt.back();
    }
    std::printf(
        "empty window with 40 fields  %7.1f ms\nmain window, first           %7.1f ms\n"
        "main window, median          %7.1f ms\n",
        mittlere(leer), erstes, mittlere(haupt));
    return 0;
}
