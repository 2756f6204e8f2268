// Pictures of every window, for the contact sheet of tools/kontaktbogen: each window is opened over a wall
// of the examples, grabbed and closed.
//
//     fensterbilder ORDNER hell|dunkel|kontrast POSITION [FENSTER [FELD=TEXT ...]]
//
// With a window only this one is shown, with texts typed into its fields first.

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <cstdio>

#include "files/Positionsdatei.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/main/Fensterfabrik.h"
#include "ui/main/Form1_Hauptfenster.h"

using namespace rippenscheibe;

namespace {

// A window, and the buttons in it that open further ones.
struct Bild {
    Fensterart art;
    std::vector<const char*> knoepfe;
};

const std::vector<Bild> bilder{
    {Fensterart::rippen, {}},
    {Fensterart::beplankung, {}},
    {Fensterart::verbindungsmittel, {"ComInfo2"}},
    {Fensterart::verankerung, {}},
    {Fensterart::belastung, {"Command2"}},
    {Fensterart::bemessung, {}},
    {Fensterart::projektdaten, {"Command1"}},
    {Fensterart::bemerkungen, {"Command3", "Command4"}},
    {Fensterart::eigeneMaterialien, {}},
    {Fensterart::randbedingungen, {}},
    {Fensterart::ueberstaende, {}},
    {Fensterart::rechner, {}},
    {Fensterart::kalender, {}},
    {Fensterart::systemkonfiguration, {}},
    {Fensterart::seitenkopf, {}},
    {Fensterart::druck, {}},
    {Fensterart::ergebnisse, {}},
};

QPalette palette(const QString& name) {
    const bool kontrast = name == QStringLiteral("kontrast");
    if (name == QStringLiteral("hell")) return QApplication::style()->standardPalette();
    const QColor grund = kontrast ? QColor(Qt::black) : QColor(0x2B, 0x2D, 0x30);
    const QColor feld = kontrast ? QColor(Qt::black) : QColor(0x1E, 0x1F, 0x22);
    const QColor schrift = kontrast ? QColor(Qt::white) : QColor(0xDF, 0xE1, 0xE5);
    QPalette farben(schrift, grund, grund.lighter(160), grund.darker(150), QColor(0x6F, 0x73, 0x7A), schrift,
                    schrift, feld, grund);
    farben.setColor(QPalette::Highlight, kontrast ? QColor(Qt::yellow) : QColor(0x35, 0x74, 0xF0));
    farben.setColor(QPalette::HighlightedText, kontrast ? QColor(Qt::black) : QColor(Qt::white));
    farben.setColor(QPalette::PlaceholderText,
                    kontrast ? QColor(0xC0, 0xC0, 0xC0) : QColor(0x9D, 0xA0, 0xA8));
    farben.setColor(QPalette::ToolTipBase, grund);
    farben.setColor(QPalette::ToolTipText, schrift);
    farben.setColor(QPalette::Link, kontrast ? QColor(Qt::yellow) : QColor(0x6B, 0x9B, 0xFA));
    for (const QPalette::ColorRole rolle : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        farben.setColor(QPalette::Disabled, rolle, QColor(0x86, 0x8A, 0x91));
    return farben;
}

class Aufnahme {
  public:
    Aufnahme(QString ordner, QStringList angaben)
        : ordner_(std::move(ordner)), angaben_(std::move(angaben)) {}

    void nimmAuf(QWidget& fenster, const QString& name) {
        QTest::qWait(150);
        fenster.grab().save(QDir(ordner_).filePath(name + QStringLiteral(".png")));
        std::printf("%s %d x %d, kleinste %d x %d\n", qPrintable(name), fenster.width(), fenster.height(),
                    fenster.minimumSizeHint().width(), fenster.minimumSizeHint().height());
    }
    // Opens a window by `ausloesen`, types what is to be typed, takes its picture, and goes on with `weiter`.
    void fenster(const std::function<void()>& ausloesen, const std::function<void(QWidget&)>& weiter) {
        const QWidget* vorher = QApplication::activeModalWidget();
        QTimer::singleShot(0, qApp, [&] {
            QWidget* offen = QApplication::activeModalWidget();
            if (offen == vorher) return;
            const QString name = offen->objectName();
            if (angaben_.isEmpty() || angaben_.first() == name) {
                fuelle(*offen);
                nimmAuf(*offen, name);
            }
            weiter(*offen);
            static_cast<QDialog*>(offen)->reject();
        });
        ausloesen();
        QCoreApplication::processEvents();  // nothing may have opened
    }

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
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QStringList angaben = QApplication::arguments();
    if (angaben.size() < 4) return 64;
    QApplication::setPalette(palette(angaben[2]));

    const QTemporaryDir programmordner;
    Programm programm(pfad(programmordner.path()));
    Plattformmeldungen meldungen;
    static_cast<void>(liesPosition(pfad(angaben[3]), programm.w));
    programm.felder = grundmasse(programm.w);
    programm.zuweisen();

    Aufnahme aufnahme(angaben[1], angaben.mid(4));
    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    if (angaben.size() == 4) aufnahme.nimmAuf(hauptfenster, QStringLiteral("Form1"));
    for (const Bild& bild : bilder)
        aufnahme.fenster([&] { oeffne(bild.art, programm, meldungen, &hauptfenster); },
                         [&](QWidget& fenster) {
                             for (const char* name : bild.knoepfe)
                                 if (auto* knopf = fenster.findChild<QAbstractButton*>(QLatin1String(name)))
                                     aufnahme.fenster([knopf] { knopf->click(); }, [](QWidget&) {});
                         });
    return 0;
}
