#include "support/Gerechnet.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Symbol.h"
#include "ui/input/Form5_Verbindungsmittel.h"
#include "ui/main/Form1_Hauptfenster.h"

namespace rippenscheibe {
namespace {

// What every window owes to those who use the keyboard or a screen reader.

bool nimmtEingabe(const QWidget& w) {
    return qobject_cast<const QAbstractButton*>(&w) != nullptr ||
           qobject_cast<const QLineEdit*>(&w) != nullptr || qobject_cast<const QComboBox*>(&w) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&w) != nullptr ||
           qobject_cast<const QTextEdit*>(&w) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&w) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&w) != nullptr;
}

// Parts that Qt builds inside its own controls.
bool eigenesTeil(const QWidget& w) {
    if (w.objectName().startsWith(QStringLiteral("qt_"))) return true;
    for (const QWidget* eltern = w.parentWidget(); eltern != nullptr; eltern = eltern->parentWidget())
        if (qobject_cast<const QComboBox*>(eltern) != nullptr ||
            qobject_cast<const QLineEdit*>(eltern) != nullptr ||
            qobject_cast<const QCalendarWidget*>(eltern) != nullptr ||
            qobject_cast<const QAbstractSpinBox*>(eltern) != nullptr)
            return true;
    return false;
}

void pruefeNamen(const QWidget& fenster) {
    for (const QWidget* w : fenster.findChildren<QWidget*>()) {
        if (!nimmtEingabe(*w) || eigenesTeil(*w)) continue;
        EXPECT_FALSE(w->accessibleName().isEmpty())
            << fenster.objectName().toStdString() << ": " << w->metaObject()->className() << " "
            << w->objectName().toStdString();
    }
    for (const QLabel* schild : fenster.findChildren<QLabel*>())
        EXPECT_TRUE(!schild->text().trimmed().endsWith(QLatin1Char('=')) || schild->buddy() != nullptr)
            << schild->text().toStdString();
}

// Each field that can be used is reached by the tab key.
void pruefeTabfolge(QWidget& fenster) {
    QSet<const QWidget*> erreicht;
    for (const QWidget* w = fenster.nextInFocusChain(); w != &fenster; w = w->nextInFocusChain())
        erreicht.insert(w);
    for (const QWidget* w : fenster.findChildren<QWidget*>()) {
        if (!nimmtEingabe(*w) || eigenesTeil(*w) || !w->isVisibleTo(&fenster) || !w->isEnabled()) continue;
        if (qobject_cast<const QToolBar*>(w->parentWidget()) != nullptr) continue;  // repeats the menu
        // Of option buttons the tab key reaches the chosen one, the arrow keys the others; a display that
        // only shows needs no focus.
        if (const auto* option = qobject_cast<const QRadioButton*>(w);
            option != nullptr && !option->isChecked())
            continue;
        if (const auto* anzeige = qobject_cast<const QLineEdit*>(w);
            anzeige != nullptr && anzeige->isReadOnly())
            continue;
        EXPECT_TRUE(w->focusPolicy() & Qt::TabFocus)
            << fenster.objectName().toStdString() << ": " << w->objectName().toStdString();
        EXPECT_TRUE(erreicht.contains(w)) << w->objectName().toStdString();
    }
}

void pruefeFenster(QWidget& fenster) {
    EXPECT_FALSE(fenster.windowTitle().isEmpty());
    pruefeNamen(fenster);
    pruefeTabfolge(fenster);
}

class Rundgang : public Programmprobe {};

TEST_F(Rundgang, EveryWindowNamesItsControlsAndReachesThemByTheTabKey) {
    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    pruefeFenster(hauptfenster);
    for (int art = 0; art <= static_cast<int>(Fensterart::ergebnisse); ++art) {
        SCOPED_TRACE(art);
        EXPECT_TRUE(
            mitFenster([&] { oeffne(static_cast<Fensterart>(art), programm, meldungen, &hauptfenster); },
                       [](QWidget& fenster) {
                           pruefeFenster(fenster);
                           EXPECT_TRUE(fenster.windowFlags() & Qt::WindowStaysOnTopHint)
                               << fenster.objectName().toStdString();
                       }));
    }
    Form5 verbindungsmittel(programm, meldungen, nullptr);
    EXPECT_TRUE(mitFenster([&] { klicke(verbindungsmittel, "ComInfo2"); }, pruefeFenster));
}

TEST_F(Rundgang, NoIconIsEmpty) {
    const QStringList dateien = QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.svg")});
    EXPECT_GE(dateien.size(), 17);
    for (const QString& datei : dateien) {
        const QImage bild = symbol(QFileInfo(datei).baseName()).pixmap(24, 24).toImage();
        bool gezeichnet = false;
        for (int i = 0; i < bild.width() * bild.height() && !gezeichnet; ++i)
            gezeichnet = qAlpha(bild.pixel(i % bild.width(), i / bild.width())) > 100;
        EXPECT_TRUE(gezeichnet) << datei.toStdString();
    }
}

TEST_F(Rundgang, DialogsBeginInTheirFirstFieldAndEndWithTheirButtons) {
    for (const Fensterart art : {Fensterart::rippen, Fensterart::beplankung, Fensterart::verbindungsmittel,
                                 Fensterart::verankerung, Fensterart::belastung, Fensterart::bemessung}) {
        SCOPED_TRACE(static_cast<int>(art));
        EXPECT_TRUE(mitFenster([&] { oeffne(art, programm, meldungen, nullptr); },
                               [](QWidget& fenster) {
                                   const QWidget* letztes = fenster.previousInFocusChain();
                                   while (letztes->focusPolicy() == Qt::NoFocus)
                                       letztes = letztes->previousInFocusChain();
                                   EXPECT_EQ(letztes->objectName(), QStringLiteral("Command1"));
                                   EXPECT_EQ(letztes->previousInFocusChain()->objectName(),
                                             QStringLiteral("ComEnde"));
                                   ASSERT_NE(fenster.focusWidget(), nullptr);
                                   EXPECT_EQ(qobject_cast<QPushButton*>(fenster.focusWidget()), nullptr);
                               }));
    }
}

TEST_F(Rundgang, PrescribedCaptionsStandToTheLastBlank) {
    const std::pair<Fensterart, const char*> titel[] = {
        {Fensterart::rippen, "  Eingabe der Querschnitte / Materialien für die Rippen"},
        {Fensterart::beplankung, "  Eingabe der Beplankung"},
        {Fensterart::verbindungsmittel, "  Eingabe der Verbindungsmittel"},
        {Fensterart::verankerung, "  Eingabe der Verankerung"},
        {Fensterart::belastung, "  Eingabe der Belastung"},
        {Fensterart::bemessung, "  Bemessungsparameter"},
        {Fensterart::projektdaten, "  Projektdaten"},
        {Fensterart::bemerkungen, "  Bemerkungen zur Position"},
        {Fensterart::eigeneMaterialien, "   Materialien für Beplankungen anlegen / verwalten"},
        {Fensterart::randbedingungen, "  Randbedingungen"},
        {Fensterart::ueberstaende, "  Info zu Überständen"},
        {Fensterart::kalender, "               Kalender"},
        {Fensterart::systemkonfiguration, "  Systemkonfiguration"},
        {Fensterart::seitenkopf, "  Einstellungen für Seitenkopf und Standardpfad"},
    };
    for (const auto& [art, text] : titel)
        mitFenster(
            [&, art = art] { oeffne(art, programm, meldungen, nullptr); },
            [text = text](QWidget& fenster) { EXPECT_EQ(fenster.windowTitle(), QString::fromUtf8(text)); });
}

}  // namespace
}  // namespace rippenscheibe
