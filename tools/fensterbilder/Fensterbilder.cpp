// Pictures of every window, for the contact sheet of tools/kontaktbogen: each window is opened over a wall
// of the examples, grabbed and closed. Names the texts that do not stand out, and fails for them.
//
//     fensterbilder ORDNER hell|dunkel|kontrast POSITION [FENSTER [FELD=TEXT ...]]
//
// With a window only this one is shown, with texts typed into its fields first. QT_STYLE_OVERRIDE chooses
// another style than Fusion.

#include <QtTest/QtTest>
#include <cstdio>

#include "Bilder.h"
#include "fensterbilder/Kontrast.h"
#include "files/Positionsdatei.h"
#include "run/Berechnungslauf.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/help/Handbuch.h"
#include "ui/main/Fensterfabrik.h"
#include "ui/main/Form0_Startbild.h"
#include "ui/main/Form1_Hauptfenster.h"

using namespace rippenscheibe;

namespace {

// The buttons that open further windows. Every other window is opened by itself.
struct Bild {
    Fensterart art;
    std::vector<const char*> knoepfe;
};
const std::vector<Bild> weitere{
    {Fensterart::verbindungsmittel, {"ComInfo2"}}, {Fensterart::belastung, {"Command2"}},
    {Fensterart::projektdaten, {"Command1"}},      {Fensterart::bemerkungen, {"Command3", "Command4"}},
    {Fensterart::seitenkopf, {"Command1"}},
};

class Aufnahme {
  public:
    Aufnahme(QString ordner, QStringList angaben)
        : ordner_(std::move(ordner)), angaben_(std::move(angaben)) {}

    bool will(const QString& name) const { return angaben_.isEmpty() || angaben_.first() == name; }
    void nimmAuf(QWidget& fenster, const QString& name) {
        if (!will(name)) return;
        QTest::qWait(150);
        fuelle(fenster);
        sichereBild(fenster.grab(), ordner_, name);
        std::printf("%s %d x %d, kleinste %d x %d\n", qPrintable(name), fenster.width(), fenster.height(),
                    fenster.minimumSizeHint().width(), fenster.minimumSizeHint().height());
        const QStringList neue = schwacheTexte(fenster);
        for (const QString& text : neue) std::printf("  zu schwach: %s\n", qPrintable(text));
        schwache_ += neue.size();
    }
    // Opens a modal window by `ausloesen`, takes its picture under its own name or `name`, and goes on with
    // `weiter`.
    void fenster(const std::function<void()>& ausloesen, const std::function<void(QWidget&)>& weiter,
                 const QString& name = QString()) {
        const QWidget* vorher = QApplication::activeModalWidget();
        QTimer::singleShot(0, qApp, [&] {
            QWidget* offen = QApplication::activeModalWidget();
            if (offen == vorher) return;
            nimmAuf(*offen, name.isEmpty() ? offen->objectName() : name);
            weiter(*offen);
            static_cast<QDialog*>(offen)->reject();
        });
        ausloesen();
        QCoreApplication::processEvents();  // nothing may have opened
    }
    qsizetype schwache() const { return schwache_; }

  private:
    void fuelle(QWidget& fenster) const {
        for (const QString& angabe : angaben_.mid(1)) {
            auto* feld = fenster.findChild<QWidget*>(angabe.section(QLatin1Char('='), 0, 0));
            if (feld == nullptr) continue;
            feld->setFocus(Qt::TabFocusReason);
            if (auto* zeile = qobject_cast<QLineEdit*>(feld)) zeile->selectAll();
            if (auto* knopf = qobject_cast<QAbstractButton*>(feld)) knopf->click();
            QTest::keyClicks(feld, angabe.section(QLatin1Char('='), 1));
        }
    }

    QString ordner_;
    QStringList angaben_;
    qsizetype schwache_ = 0;
};

void zeigeMeldungen(Aufnahme& aufnahme, Meldungen& meldungen, QWidget& fenster) {
    const QString text = QStringLiteral("Wollen Sie das Programm wirklich beenden ?");
    for (const Meldung& meldung :
         {Meldung{Symbol::kritisch, QStringLiteral("kritisch"), text, Knoepfe::ok},
          Meldung{Symbol::frage, QStringLiteral("frage"), text, Knoepfe::jaNein},
          Meldung{Symbol::achtung, QStringLiteral("achtung"), text, Knoepfe::jaNeinAbbrechen,
                  Knopfworte{QStringLiteral("Wiederherstellen"), QStringLiteral("Verwerfen"),
                             QStringLiteral("Später")}}})
        aufnahme.fenster([&] { meldungen.zeige(&fenster, meldung); }, [](QWidget&) {},
                         QStringLiteral("Meldung-") + meldung.titel);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (!qEnvironmentVariableIsSet("QT_STYLE_OVERRIDE")) QApplication::setStyle(QStringLiteral("fusion"));
    stelleAufDeutsch();
    const QStringList angaben = QApplication::arguments();
    if (angaben.size() < 4) return 64;
    if (angaben[2] != QStringLiteral("hell")) QApplication::setPalette(kontrastpalette(angaben[2]));

    const QTemporaryDir programmordner;
    Programm programm(pfad(programmordner.path()));
    Plattformmeldungen meldungen;
    static_cast<void>(liesPosition(pfad(angaben[3]), programm.w));
    programm.Dateiname = utf8(QFileInfo(angaben[3]).absoluteFilePath());
    programm.felder = grundmasse(programm.w);
    programm.zuweisen();
    static_cast<void>(starte(programm.w));  // for what shows results

    Aufnahme aufnahme(angaben[1], angaben.mid(4));
    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    aufnahme.nimmAuf(hauptfenster, hauptfenster.objectName());
    for (int art = 0; art <= static_cast<int>(Fensterart::ueber); ++art)
        aufnahme.fenster(
            [&] { oeffne(static_cast<Fensterart>(art), programm, meldungen, &hauptfenster); },
            [&](QWidget& fenster) {
                for (const Bild& bild : weitere)
                    for (const char* name : bild.knoepfe)
                        if (bild.art == static_cast<Fensterart>(art))
                            aufnahme.fenster(
                                [&] { fenster.findChild<QAbstractButton*>(QLatin1String(name))->click(); },
                                [](QWidget&) {});
            },
            art == static_cast<int>(Fensterart::rechenweg) ? QStringLiteral("Rechenweg") : QString());
    zeigeMeldungen(aufnahme, meldungen, hauptfenster);
    if (aufnahme.will(QStringLiteral("Handbuch"))) {
        oeffneHandbuch(&hauptfenster);
        aufnahme.nimmAuf(*hauptfenster.findChild<Handbuch*>(), QStringLiteral("Handbuch"));
    }
    Form0 startbild(programm);
    startbild.show();
    aufnahme.nimmAuf(startbild, QStringLiteral("Form0"));
    return aufnahme.schwache() == 0 ? 0 : 1;
}
