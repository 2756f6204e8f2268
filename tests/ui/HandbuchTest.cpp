#include "files/Zeichensatz.h"
#include "model/Feldangaben.h"
#include "support/Gerechnet.h"
#include "ui/main/Form1_Hauptfenster.h"

namespace rippenscheibe {
namespace {

// The example of the handbook is typed into the windows as the chapter says, table by table.

const QString vonSelbst = QStringLiteral("Von selbst");  // the head of a table of what follows by itself

struct Eingabe {
    QString name;  // as the window calls it
    QString wert;
    QString feld;  // of the record
};
struct Tafel {
    QString fenster;
    std::vector<Eingabe> zeilen;
};

std::vector<Tafel> tafeln() {
    QFile kapitel(QStringLiteral(":/handbuch/beispiel.md"));
    if (!kapitel.open(QIODevice::ReadOnly)) throw std::runtime_error("no chapter");
    std::vector<Tafel> alle;
    bool eingaben = false;
    for (const QString& zeile : QString::fromUtf8(kapitel.readAll()).split(QLatin1Char('\n'))) {
        const QStringList zellen = zeile.split(QStringLiteral(" | "));
        if (zeile.endsWith(QStringLiteral(" | Wert | Feld |"))) {
            eingaben = true;
            alle.push_back({zellen[0].mid(2), {}});
        } else if (!zeile.startsWith(QLatin1Char('|'))) {
            eingaben = false;
        } else if (eingaben && zellen.size() == 3) {
            QString wert = zellen[1];
            wert.remove(QRegularExpression(QStringLiteral(" \\(\\d+\\)$")));
            alle.back().zeilen.push_back({zellen[0].mid(2), wert, zellen[2].section(QLatin1Char('`'), 1, 1)});
        }
    }
    return alle;
}

// What the tool tip of the control of a field says.
QString bedeutung(const QString& feld) {
    const auto angabe = eingabeangabe(utf8(feld));
    if (!angabe) return QStringLiteral("?");
    const bool paar = eingabeangabe(utf8(feld.chopped(1) + QLatin1Char('2'))).has_value();
    return qtext(angabe->bedeutung) +
           (paar && !qtext(angabe->bedeutung).contains(QStringLiteral("Beplankung 1"))
                ? QStringLiteral(", Beplankung 1")
                : QString());
}

void gibEin(QWidget& fenster, const Eingabe& eingabe) {
    for (auto* knopf : fenster.findChildren<QAbstractButton*>()) {
        const QString text = gelesen(knopf->text()).trimmed();
        const bool haken = eingabe.wert == QStringLiteral("ja") && text == eingabe.name;
        if (!knopf->isCheckable() || (!haken && text != eingabe.wert)) continue;
        if (!knopf->isChecked()) knopf->click();
        return;
    }
    for (auto* feld : fenster.findChildren<QWidget*>()) {
        auto* zeile = qobject_cast<QLineEdit*>(feld);
        auto* text = qobject_cast<QPlainTextEdit*>(feld);
        auto* liste = qobject_cast<QComboBox*>(feld);
        const bool gemeint = feld->toolTip().contains(bedeutung(eingabe.feld)) ||
                             feld->accessibleName() == eingabe.name.section(QStringLiteral(" :"), 0, 0);
        if (!gemeint) continue;
        if (zeile != nullptr) return tippe(*zeile, eingabe.wert);
        if (text != nullptr) return text->setPlainText(eingabe.wert);
        if (liste == nullptr || liste->isEditable()) continue;
        liste->setCurrentIndex(liste->findText(eingabe.wert));
        if (liste->currentIndex() >= 0) return;
    }
    ADD_FAILURE() << utf8(fenster.objectName()) << " has no " << utf8(eingabe.name) << " "
                  << utf8(eingabe.wert);
}

TEST_F(Programmprobe, TheExampleOfTheHandbookIsTypedIntoTheWindows) {
    const QHash<QString, const char*> wege{{QStringLiteral("Rippen"), "Command5"},
                                           {QStringLiteral("Beplankung"), "Command1"},
                                           {QStringLiteral("Verbindungsmittel"), "Command2"},
                                           {QStringLiteral("Verankerung"), "Command3"},
                                           {QStringLiteral("Belastung"), "Command4"},
                                           {QStringLiteral("Projektdaten"), "mnuProjekt"},
                                           {QStringLiteral("Bemerkungen"), "mnuvorb"}};
    Form1 hauptfenster(programm, meldungen);
    hauptfenster.show();
    const auto urteil = [&] { return finde<QLabel>(hauptfenster, "SofortUrteil").text(); };
    for (const Tafel& tafel : tafeln()) {
        SCOPED_TRACE(utf8(tafel.fenster));
        const auto alles = [&](QWidget& fenster) {
            for (const Eingabe& eingabe : tafel.zeilen) gibEin(fenster, eingabe);
            if (auto* ende = fenster.findChild<QPushButton*>(QStringLiteral("ComEnde"))) ende->click();
        };
        if (tafel.fenster == vonSelbst) continue;
        if (tafel.fenster == QStringLiteral("Abmessungen")) {
            alles(hauptfenster);
            continue;
        }
        ASSERT_TRUE(wege.contains(tafel.fenster));
        const char* weg = wege[tafel.fenster];
        EXPECT_TRUE(mitFenster(
            [&] {
                if (auto* menue = hauptfenster.findChild<QAction*>(QLatin1String(weg)))
                    menue->trigger();
                else
                    klicke(hauptfenster, weg);
            },
            alles));
        if (tafel.fenster == QStringLiteral("Belastung")) {
            EXPECT_EQ(urteil(), QStringLiteral("✗ 2 Nachweise überschritten · ! 1 nicht nachgewiesen"));
        }
    }
    EXPECT_EQ(urteil(), QStringLiteral("✓ Alle Nachweise erfüllt"));
    EXPECT_EQ(positionstext(programm.w), dekodiert(liesDatei(RIPPENSCHEIBE_HANDBUCH "/beispiel.rsw").bytes));
}

}  // namespace
}  // namespace rippenscheibe
