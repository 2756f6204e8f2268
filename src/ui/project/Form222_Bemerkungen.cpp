#include "ui/project/Form222_Bemerkungen.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "files/Positionsdatei.h"
#include "model/Bemerkungen.h"
#include "ui/basics/Freitext.h"
#include "ui/basics/Knopf.h"
#include "ui/basics/Programm.h"
#include "ui/paper/Papierschrift.h"
#include "ui/project/Bemerkungsfeld.h"
#include "ui/project/Form800_Textvorlagen.h"

namespace rippenscheibe {

namespace {

// The printable width: of the preliminary remarks, in Arial 10, and of the 82 characters in Courier New 10
// that a line of the closing remarks takes.
constexpr double breiteVorbemerkung = 175;  // mm
constexpr int zeichenZusatzbemerkung = 82;
const Schrift schriftZusatzbemerkung{.name = "Courier New"};

double breiteZusatzbemerkung() {
    return papierbreite(schriftZusatzbemerkung, std::string(zeichenZusatzbemerkung, '0'));
}

}  // namespace

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
    connect(zurueck, &QPushButton::clicked, this, &QDialog::accept);
    vor_->setFocus();
}

// A frame with its text box and its two buttons.
QPlainTextEdit* Form222::textfeld(const QString& name, const QString& titel, const QString& vorlagen,
                                  const QString& loeschen, int zeilen) {
    auto* rahmen = new QGroupBox(titel, this);
    auto* spalte = new QVBoxLayout(rahmen);
    const bool vor = name == QStringLiteral("Text2");
    auto* feld = vor ? new Bemerkungsfeld({}, breiteVorbemerkung, rahmen)
                     : new Bemerkungsfeld(schriftZusatzbemerkung, breiteZusatzbemerkung(), rahmen);
    feld->setObjectName(name);
    feld->setAccessibleName(titel.section(QStringLiteral(" ("), 0, 0));
    feld->setAccessibleDescription(QStringLiteral("Die gestrichelte Linie zeigt die druckbare Breite"));
    feld->setMinimumSize(420, feld->fontMetrics().lineSpacing() * (zeilen + 1) + 16);
    spalte->addWidget(feld, 1);

    auto* zeile = new QHBoxLayout;
    auto* breite = new QLabel(QStringLiteral("gestrichelt: druckbare Breite"), rahmen);
    breite->setForegroundRole(QPalette::PlaceholderText);
    zeile->addWidget(breite);
    zeile->addStretch(1);
    const auto knopf = [&](const QString& objekt, const QString& text, const QString& hilfe) {
        QPushButton* k = neuerKnopf(rahmen, objekt, text, hilfe);
        zeile->addWidget(k);
        return k;
    };
    QPushButton* laden = knopf(vorlagen, QStringLiteral("Textvorlage laden / erstellen"),
                               QStringLiteral("Textvorlagen laden / erstellen"));
    QPushButton* leeren = knopf(loeschen, QStringLiteral("Text löschen"), QStringLiteral("Texte löschen"));
    spalte->addLayout(zeile);
    inhalt()->addWidget(rahmen, zeilen);

    const Vorlagenart art = vor ? Vorlagenart::vorbemerkungen : Vorlagenart::zusatzbemerkungen;
    connect(laden, &QPushButton::clicked, this, [this, feld, art] {
        Textvorlagenfenster fenster(programm_, meldungen_, this, art);
        if (fenster.exec() == QDialog::Accepted) zeigeText(*feld, fenster.text());
    });
    connect(leeren, &QPushButton::clicked, feld, &QPlainTextEdit::clear);
    return feld;
}

void Form222::done(int ergebnis) {
    uebernimm();
    Fenster::done(ergebnis);
}

void Form222::uebernimm() {
    ersetzeAnfuehrungszeichen(meldungen_, this, {vor_, zusatz_});
    const std::string vorher = positionstext(programm_.w);
    setzeZusatzbemerkungen(programm_.w, textAus(*zusatz_));
    setzeVorbemerkungen(programm_.w, textAus(*vor_));
    if (positionstext(programm_.w) != vorher) programm_.setzeGesichert(false);
    Q_EMIT programm_.geaendert();
}

}  // namespace rippenscheibe
