#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QTimer>
#include <cstdio>

#include "Bilder.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/main/Form1_Hauptfenster.h"

// Takes the row of pictures that follows one number of the result view down to an input: herleitung-1.png is
// the text with the number, the last one the dialog that the input is entered in.

using namespace rippenscheibe;

namespace {

constexpr int ruhe = 400;  // ms a window has to settle

class Bilderreihe {
  public:
    explicit Bilderreihe(QString ordner) : ordner_(std::move(ordner)) {}

    void sichere(QWidget& fenster) {
        sichereBild(fenster.grab(), ordner_, QStringLiteral("herleitung-%1").arg(++nummer_));
    }

    // From the number behind these words down along what it rests on, to the last of them, an input.
    void folge(QWidget& ergebnisse, const QString& worte, const QStringList& weg) {
        auto* text = ergebnisse.findChild<QTextEdit*>(QStringLiteral("Rbox1"));
        QTextCursor marke = text->document()->find(worte);
        marke.setPosition(marke.selectionEnd() + 1);
        text->setTextCursor(marke);
        text->ensureCursorVisible();
        warte(ruhe);
        sichere(ergebnisse);
        for (const QString& anfang : weg) {
            const bool letzter = anfang == weg.constLast();
            // The dialog holds the click below until it is closed.
            if (letzter)
                QTimer::singleShot(2 * ruhe, [this] {
                    QWidget* dialog = QApplication::activeModalWidget();
                    sichere(*dialog);
                    dialog->close();
                });
            gehe(ergebnisse, anfang);
            if (!letzter) sichere(ergebnisse);
        }
    }

  private:
    static void gehe(QWidget& ergebnisse, const QString& anfang) {
        auto* liste = ergebnisse.findChild<QListWidget*>(QStringLiteral("Woher"));
        for (int i = 0; i < liste->count(); ++i) {
            if (!liste->item(i)->text().startsWith(anfang)) continue;
            Q_EMIT liste->itemActivated(liste->item(i));
            warte(ruhe);
            return;
        }
        std::fprintf(stderr, "nothing begins with %s\n", qPrintable(anfang));
    }

    QString ordner_;
    int nummer_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: herleitungsbilder POSITION BILDERORDNER\n");
        return 64;
    }
    QDir().mkpath(QString::fromLocal8Bit(argv[2]));
    stelleAufDeutsch();

    const QTemporaryDir ordner;
    Programm programm(pfad(ordner.path()));
    Plattformmeldungen meldungen;
    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    hauptfenster.starte(QString::fromLocal8Bit(argv[1]));
    Bilderreihe reihe(QString::fromLocal8Bit(argv[2]));
    QTimer::singleShot(2 * ruhe, &hauptfenster, [&] {
        QWidget* ergebnisse = QApplication::activeModalWidget();
        reihe.folge(*ergebnisse, QStringLiteral("Abscherfestigkeit Rd = "),
                    {QStringLiteral("Rd,F,1 = "), QStringLiteral("Rk,F,1 = "), QStringLiteral("My,k,1 = "),
                     QStringLiteral("d1 = ")});
        ergebnisse->close();
    });
    hauptfenster.findChild<QAbstractButton*>(QStringLiteral("ComErgEin2"))->click();
    hauptfenster.hide();
    return 0;
}
