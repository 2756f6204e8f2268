#include "ui/project/Form222_Bemerkungen.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QVBoxLayout>

#include "files/Positionsdatei.h"
#include "files/Textvorlagen.h"
#include "model/Bemerkungen.h"
#include "ui/basics/Programm.h"
#include "ui/project/Form800_Textvorlagen.h"

namespace rippenscheibe {

std::string textAus(const QPlainTextEdit& feld) {
    return utf8(feld.toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
}

void zeigeText(QPlainTextEdit& feld, std::string_view text) {
    feld.setPlainText(qtext(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

Zeilengrenze::Zeilengrenze(QPlainTextEdit* feld)
    : QObject(feld), feld_(feld), letzterGuter_(feld->toPlainText()) {
    connect(feld, &QPlainTextEdit::textChanged, this, &Zeilengrenze::pruefe);
}

void Zeilengrenze::pruefe() {
    if (passtInVorbemerkungen(textAus(*feld_))) {
        letzterGuter_ = feld_->toPlainText();
        letzteStelle_ = feld_->textCursor().position();
        return;
    }
    const QSignalBlocker still(feld_);
    feld_->setPlainText(letzterGuter_);
    QTextCursor marke = feld_->textCursor();
    marke.setPosition(std::min(letzteStelle_, static_cast<int>(letzterGuter_.size())));
    feld_->setTextCursor(marke);
}

Form222::Form222(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form222"),
              QStringLiteral("  Bemerkungen zur Position"), Tippen::aendertPosition) {
    vor_ = textfeld(
        QStringLiteral("Text2"),
        QStringLiteral("Vorbemerkungen (stehen am Beginn des Ausdrucks) - es sind max. 3 Zeilen zulässig"),
        QStringLiteral("Command4"), QStringLiteral("Command1"), 3);
    zusatz_ =
        textfeld(QStringLiteral("Text1"),
                 QStringLiteral("Zusatzbemerkungen (stehen am Ende des Ausdrucks) - beliebige Zeilenanzahl"),
                 QStringLiteral("Command3"), QStringLiteral("Command2"), 10);
    zeigeText(*vor_, vorbemerkungstext(programm_.w));
    zeigeText(*zusatz_, zusatzbemerkungstext(programm_.w));
    new Zeilengrenze(vor_);

    QPushButton* zurueck = schaltflaeche(QStringLiteral("ComBem"), QStringLiteral("Zurück"));
    zurueck->setToolTip(QStringLiteral("Zurück zum Hauptfenster"));
    connect(zurueck, &QPushButton::clicked, this, &Form222::uebernehmen);
    vor_->setFocus();
}

// A frame with its text box and its two buttons.
QPlainTextEdit* Form222::textfeld(const QString& name, const QString& titel, const QString& vorlagen,
                                  const QString& loeschen, int zeilen) {
    auto* rahmen = new QGroupBox(titel, this);
    auto* spalte = new QVBoxLayout(rahmen);
    auto* feld = new QPlainTextEdit(rahmen);
    feld->setObjectName(name);
    feld->setAccessibleName(titel.section(QStringLiteral(" ("), 0, 0));
    feld->setTabChangesFocus(true);
    feld->setLineWrapMode(QPlainTextEdit::NoWrap);
    const int hoehe = feld->fontMetrics().lineSpacing() * zeilen + 16;
    feld->setMinimumSize(620, hoehe + feld->fontMetrics().lineSpacing());
    spalte->addWidget(feld, 1);

    auto* zeile = new QHBoxLayout;
    zeile->addStretch(1);
    const auto knopf = [&](const QString& objekt, const QString& text, const QString& hilfe) {
        auto* k = new QPushButton(text, rahmen);
        k->setObjectName(objekt);
        k->setAccessibleName(text);
        k->setToolTip(hilfe);
        k->setAutoDefault(false);
        zeile->addWidget(k);
        return k;
    };
    QPushButton* laden = knopf(vorlagen, QStringLiteral("Textvorlage laden / erstellen"),
                               QStringLiteral("Textvorlagen laden / erstellen"));
    QPushButton* leeren = knopf(loeschen, QStringLiteral("Text löschen"), QStringLiteral("Texte löschen"));
    spalte->addLayout(zeile);
    inhalt()->addWidget(rahmen, zeilen);

    const Vorlagenart art =
        name == QStringLiteral("Text2") ? Vorlagenart::vorbemerkungen : Vorlagenart::zusatzbemerkungen;
    connect(laden, &QPushButton::clicked, this, [this, feld, art] {
        Textvorlagenfenster fenster(programm_, meldungen_, this, art);
        if (fenster.exec() == QDialog::Accepted) zeigeText(*feld, fenster.text());
    });
    connect(leeren, &QPushButton::clicked, feld, &QPlainTextEdit::clear);
    return feld;
}

void Form222::uebernehmen() {
    const std::string vorher = positionstext(programm_.w);
    setzeZusatzbemerkungen(programm_.w, textAus(*zusatz_));
    setzeVorbemerkungen(programm_.w, textAus(*vor_));
    if (positionstext(programm_.w) != vorher) programm_.setzeGesichert(false);
    Q_EMIT programm_.geaendert();
    accept();
}

}  // namespace rippenscheibe
