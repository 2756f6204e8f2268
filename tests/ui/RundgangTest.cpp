#include "fensterbilder/Kontrast.h"
#include "support/Gerechnet.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Kuerzel.h"
#include "ui/controls/Symbol.h"
#include "ui/help/Handbuch.h"
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
    if (qobject_cast<const QHeaderView*>(&w) != nullptr) return true;
    for (const QWidget* eltern = w.parentWidget(); eltern != nullptr; eltern = eltern->parentWidget())
        if (qobject_cast<const QComboBox*>(eltern) != nullptr ||
            qobject_cast<const QLineEdit*>(eltern) != nullptr ||
            qobject_cast<const QCalendarWidget*>(eltern) != nullptr ||
            qobject_cast<const QTabBar*>(eltern) != nullptr ||
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

// What Enter has to do in a control: press it, or leave it.
enum class Wirkung { gedrueckt, weiter, keine };

Wirkung erwartet(const QWidget& feld) {
    for (const char* start : {"ComErg", "SofortBalken"})  // no key starts a run
        if (feld.objectName().startsWith(QLatin1String(start))) return Wirkung::weiter;
    const auto* knopf = qobject_cast<const QAbstractButton*>(&feld);
    const bool wahl = knopf != nullptr && (qobject_cast<const QCheckBox*>(knopf) != nullptr ||
                                           qobject_cast<const QRadioButton*>(knopf) != nullptr);
    if (knopf != nullptr && !wahl) return Wirkung::gedrueckt;
    const bool wert = qobject_cast<const QLineEdit*>(&feld) != nullptr ||
                      qobject_cast<const QComboBox*>(&feld) != nullptr || wahl;
    return wert && feld.objectName() != QStringLiteral("Suchwort") ? Wirkung::weiter : Wirkung::keine;
}

// Counts the Enter keys that reach a control itself: what it would do with them depends on the theme.
class Horcher : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        const bool enter = event->type() == QEvent::KeyPress &&
                           static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Return;
        if (enter) ++gehoert;
        return false;
    }
    int gehoert = 0;
};

void pruefeEnter(QWidget& fenster) {
    fenster.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fenster));
    for (QWidget* feld : fenster.findChildren<QWidget*>()) {
        if (!nimmtEingabe(*feld) || eigenesTeil(*feld) || feld->window() != &fenster) continue;
        if (!feld->isVisibleTo(&fenster) || !feld->isEnabled() || feld->focusPolicy() == Qt::NoFocus)
            continue;
        const Wirkung wirkung = erwartet(*feld);
        if (wirkung == Wirkung::keine) continue;
        SCOPED_TRACE(fenster.objectName().toStdString() + " " + feld->objectName().toStdString());
        int gedrueckt = 0;
        if (auto* knopf = qobject_cast<QAbstractButton*>(feld)) {
            QObject::disconnect(knopf, &QAbstractButton::clicked, nullptr, nullptr);
            QObject::connect(knopf, &QAbstractButton::clicked, [&gedrueckt] { ++gedrueckt; });
        }
        Horcher horcher;
        feld->installEventFilter(&horcher);
        // A window manager gives the focus when it comes to it.
        EXPECT_TRUE(QTest::qWaitFor([&] {
            feld->setFocus();
            return feld->hasFocus();
        }));
        QTest::keyClick(feld, Qt::Key_Return);
        // In the calculator Enter is "=" everywhere but on "Zurück".
        const bool rechner = fenster.objectName() == QStringLiteral("Form3");
        const bool istGleich = rechner && feld->objectName() != QStringLiteral("Command1");
        EXPECT_EQ(gedrueckt, wirkung == Wirkung::gedrueckt && !istGleich ? 1 : 0);
        EXPECT_EQ(feld->hasFocus(), wirkung == Wirkung::gedrueckt || rechner);
        EXPECT_EQ(horcher.gehoert, 0);
        if (feld->objectName().startsWith(QStringLiteral("SofortBalken")) ||
            feld->objectName().startsWith(QStringLiteral("ComErg"))) {
            feld->setFocus();
            QTest::keyClick(feld, Qt::Key_Space);
            EXPECT_EQ(gedrueckt, 0);
        }
        EXPECT_TRUE(fenster.isVisible());
        if (auto* knopf = qobject_cast<QAbstractButton*>(feld))
            QObject::disconnect(knopf, &QAbstractButton::clicked, nullptr, nullptr);
    }
}

void drehe(QWidget& feld) {
    QWheelEvent rad(QPointF(5, 5), feld.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                    Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&feld, &rad);
}

void pruefeRad(QWidget& fenster) {
    for (auto* liste : fenster.findChildren<QComboBox*>()) {
        if (!liste->isVisibleTo(&fenster) || !liste->isEnabled()) continue;
        liste->clearFocus();
        const int vorher = liste->currentIndex();
        drehe(*liste);
        EXPECT_EQ(liste->currentIndex(), vorher) << liste->objectName().toStdString();
        EXPECT_FALSE(liste->hasFocus());
    }
}

// Each button and field has a letter for the Alt key, in its own text or in its label. The start buttons have
// none: no key starts a run.
void pruefeKuerzel(QWidget& fenster) {
    QSet<const QWidget*> beschriftet;
    for (const QLabel* schild : fenster.findChildren<QLabel*>())
        if (schild->buddy() != nullptr && schild->text().contains(QLatin1Char('&')))
            beschriftet.insert(schild->buddy());
    const QStringList ohne{QStringLiteral("Form3"), QStringLiteral("Form16")};
    if (ohne.contains(fenster.objectName())) return;
    for (const QWidget* feld : fenster.findChildren<QWidget*>()) {
        const auto* knopf = qobject_cast<const QAbstractButton*>(feld);
        const bool wert = qobject_cast<const Werteingabe*>(feld) != nullptr;
        if ((knopf == nullptr && !wert) || eigenesTeil(*feld)) continue;
        if (knopf != nullptr && (knopf->text().isEmpty() || qobject_cast<QToolBar*>(knopf->parentWidget())))
            continue;
        const bool hat = beschriftet.contains(feld) ||
                         (knopf != nullptr && !QKeySequence::mnemonic(knopf->text()).isEmpty());
        EXPECT_EQ(hat, !feld->objectName().startsWith(QStringLiteral("ComErg")))
            << fenster.objectName().toStdString() << " " << feld->objectName().toStdString();
    }
}

class Rundgang : public Programmprobe {
  protected:
    // Every window once, those too that only others open.
    void jedesFenster(const std::function<void(QWidget&)>& pruefung) {
        Form1 hauptfenster(programm, meldungen);
        hauptfenster.show();
        jedesNebenfenster(hauptfenster, Fensterart::ueber, pruefung);
        pruefung(hauptfenster);
    }
};

TEST_F(Rundgang, EnterPressesAButtonAndMovesOnFromEverythingElse) { jedesFenster(pruefeEnter); }

TEST_F(Rundgang, EveryControlHasALetterAndTheWheelTurnsNoneWithoutTheFocus) {
    jedesFenster([](QWidget& fenster) {
        pruefeKuerzel(fenster);
        pruefeRad(fenster);
    });
}

TEST_F(Rundgang, EveryWindowNamesItsControlsAndReachesThemByTheTabKey) {
    jedesFenster([](QWidget& fenster) {
        pruefeFenster(fenster);
        const bool darueber = fenster.windowFlags() & Qt::WindowStaysOnTopHint;
        EXPECT_EQ(darueber, qobject_cast<QMainWindow*>(&fenster) == nullptr)
            << fenster.objectName().toStdString();
        EXPECT_NE(handbuchkapitel(fenster.objectName()), QStringLiteral("inhalt"))
            << fenster.objectName().toStdString();
    });
}

// What a screen reader gets of a control: a role, a name, a description, and for a value its range and a
// tool tip.
void pruefeVorlesen(QWidget& fenster) {
    for (QWidget* feld : fenster.findChildren<QWidget*>()) {
        if (!nimmtEingabe(*feld) || eigenesTeil(*feld)) continue;
        SCOPED_TRACE(fenster.objectName().toStdString() + " " + feld->objectName().toStdString());
        const QAccessibleInterface* leser = QAccessible::queryAccessibleInterface(feld);
        ASSERT_NE(leser, nullptr);
        EXPECT_NE(leser->role(), QAccessible::NoRole);
        EXPECT_NE(leser->role(), QAccessible::Client);
        EXPECT_FALSE(leser->text(QAccessible::Name).trimmed().isEmpty());
        EXPECT_FALSE(leser->text(QAccessible::Name).contains(QLatin1Char('&')));
        EXPECT_FALSE(leser->text(QAccessible::Description).trimmed().isEmpty());
        const auto* wert = qobject_cast<const Werteingabe*>(feld);
        if (wert == nullptr || !wert->isEnabled() || wert->isReadOnly()) continue;
        EXPECT_TRUE(leser->text(QAccessible::Description).contains(QStringLiteral("zulässig:")));
        EXPECT_TRUE(wert->toolTip().contains(QStringLiteral("zulässig:")));
        EXPECT_FALSE(Qt::mightBeRichText(wert->toolTip()));
    }
}

TEST_F(Rundgang, AScreenReaderGetsRoleNameDescriptionAndRangeOfEveryControl) { jedesFenster(pruefeVorlesen); }

TEST_F(Rundgang, TextsStandOutOnEveryGround) {
    const QPalette vorher = QApplication::palette();
    for (const char* name : {"hell", "dunkel", "kontrast"}) {
        const QPalette farben = kontrastpalette(QLatin1String(name));
        QApplication::setPalette(farben);
        ASSERT_EQ(QApplication::palette().color(QPalette::Window), farben.color(QPalette::Window)) << name;
        jedesFenster([name](QWidget& fenster) {
            EXPECT_EQ(schwacheTexte(fenster).join(QLatin1Char('\n')).toStdString(), "") << name;
        });
    }
    QApplication::setPalette(vorher);
}

TEST_F(Rundgang, LettersGoRoundAsLongAsThereAreEnough) {
    QWidget fenster;
    QStringList texte{QStringLiteral("ab"), QStringLiteral("a"), QStringLiteral("ac"), QStringLiteral("c")};
    for (const QString& text : texte) (new QPushButton(text, &fenster))->setObjectName(text);
    vergibKuerzel(fenster);
    QStringList marken;
    for (const QString& text : texte)
        marken << QKeySequence::mnemonic(finde<QPushButton>(fenster, qPrintable(text)).text()).toString();
    // "ab" gives way to "a"; for "ac" and "c" only one letter is left.
    EXPECT_EQ(marken.mid(0, 2), (QStringList{QStringLiteral("Alt+B"), QStringLiteral("Alt+A")}));
    EXPECT_TRUE(marken[2] == QStringLiteral("Alt+C") || marken[3] == QStringLiteral("Alt+C"));
}

TEST_F(Rundgang, EveryWindowFitsASmallScreenAndShowsItsButtonsThere) {
    jedesFenster([](QWidget& fenster) {
        SCOPED_TRACE(fenster.objectName().toStdString());
        constexpr QSize klein(1280, 680);  // 720 less a title bar
        EXPECT_LE(fenster.minimumSizeHint().width(), klein.width());
        EXPECT_LE(fenster.minimumSizeHint().height(), klein.height());
        fenster.resize(fenster.minimumSizeHint());
        QCoreApplication::processEvents();
        for (const char* name : {"ComEnde", "Command1", "ComErgEin2"}) {
            const auto* knopf = fenster.findChild<QPushButton*>(QLatin1String(name));
            const bool unten = knopf != nullptr && (knopf->parentWidget() == &fenster ||
                                                    knopf->objectName().startsWith(QStringLiteral("ComErg")));
            if (!unten) continue;
            EXPECT_TRUE(fenster.rect().contains(QRect(knopf->mapTo(&fenster, QPoint()), knopf->size())))
                << name;
        }
    });
}

TEST_F(Rundgang, AWindowComesBackInThePlaceAndSizeThatTheUserGaveIt) {
    QRect gezeigt;
    const auto oeffneBelastung = [&](const std::function<void(QWidget&)>& bedienen) {
        mitFenster([&] { oeffne(Fensterart::belastung, programm, meldungen, nullptr); }, bedienen);
    };
    oeffneBelastung([](QWidget& fenster) { fenster.setGeometry(40, 30, 601, 403); });
    oeffneBelastung([&](QWidget& fenster) { gezeigt = fenster.geometry(); });
    EXPECT_EQ(gezeigt, QRect(40, 30, 601, 403));
}

TEST_F(Rundgang, SplittersComeBackAsTheyWereLeft) {
    programm.w.Fvk = 5;
    programm.zuweisen();
    ASSERT_EQ(starte(programm.w), Laufergebnis::gerechnet);
    const auto stellung = [&](const std::function<void(QSplitter&)>& bedienen) {
        QList<int> breiten;
        mitFenster([&] { oeffne(Fensterart::ergebnisse, programm, meldungen, nullptr); },
                   [&](QWidget& fenster) {
                       auto* teiler = fenster.findChild<QSplitter*>();
                       bedienen(*teiler);
                       breiten = teiler->sizes();
                   });
        return breiten;
    };
    const QList<int> vorher = stellung([](QSplitter&) {});
    const QList<int> gezogen = stellung([&](QSplitter& teiler) {
        teiler.setSizes({vorher[0] - 40, vorher[1] + 40});
        QCoreApplication::processEvents();
    });
    EXPECT_LT(gezogen[0], vorher[0] - 20);
    EXPECT_NEAR(stellung([](QSplitter&) {})[0], gezogen[0], 2);
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
