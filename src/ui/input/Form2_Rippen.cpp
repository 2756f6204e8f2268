#include "ui/input/Form2_Rippen.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/Kataloge.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {

Form2::Form2(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Eingabedialog(programm, meldungen, parent, QStringLiteral("Form2"),
                    QStringLiteral("  Eingabe der Querschnitte / Materialien für die Rippen")) {
    baueQuerschnitte();
    baueMaterial();
    felder()->addStretch(1);

    skizziere(new Zeichnungsansicht(Zeichnung::rippen, this));

    // One depth serves all ribs.
    for (Werteingabe* spiegel : {hInnenrippe_, bKopfFussrippe_})
        connect(hRandrippe_, &Werteingabe::geaendert, spiegel, &Werteingabe::setzeWert);
    beginne();
}

void Form2::baueQuerschnitte() {
    constexpr double mmJeCm = 10;
    const auto mass = [this](Feld System::*feld, int index, const QString& text, const QString& einheit) {
        return binde(
            feld, {QStringLiteral("Textbox1(%1)").arg(index), text, einheit, mmJeCm, QStringLiteral("cm")});
    };
    const QString cm = QStringLiteral("cm");
    const QString bxh = QStringLiteral(" b x h =");
    const QString mal = QStringLiteral("x");
    const auto spiegel = [&](int index, const QString& bedeutung) {
        Werteingabe* feld = werteingabe(
            QStringLiteral("Textbox1(%1)").arg(index),
            {.beschriftung = mal, .einheit = cm, .maske = QStringLiteral("0.0"), .bedeutung = bedeutung});
        feld->setEnabled(false);
        return feld;
    };
    bRandrippe_ = mass(&Wand::bRandrippe, 2, bxh, QString());
    hRandrippe_ = mass(&Wand::hRandrippe, 0, mal, cm);
    bInnenrippe_ = mass(&Wand::bInnenrippe, 1, bxh, QString());
    hInnenrippe_ = spiegel(3, QStringLiteral("Höhe der Innenrippen, gleich der Rippenhöhe"));
    hKopfFussrippe_ = mass(&Wand::bKopfFussrippe, 4, QStringLiteral(" h x b ="), QString());
    bKopfFussrippe_ = spiegel(5, QStringLiteral("Breite der Kopf- und Fußrippe, gleich der Rippenhöhe"));

    QGroupBox* rahmen = gruppe(QStringLiteral("Querschnitte"));
    const auto zeile = [&](int nummer, const QString& titel, Werteingabe* erstes, Werteingabe* zweites) {
        auto* schild = beschriftung(titel, erstes);
        schild->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        grid(rahmen)->addWidget(schild, nummer, 0);
        erstes->setzeInZeile(grid(rahmen), nummer, 1);
        zweites->setzeInZeile(grid(rahmen), nummer, 4);
    };
    zeile(0, QStringLiteral("Randrippen:"), bRandrippe_, hRandrippe_);
    zeile(1, QStringLiteral("Innenrippen:"), bInnenrippe_, hInnenrippe_);
    zeile(2, QStringLiteral("Kopf- / Fussrippe:"), hKopfFussrippe_, bKopfFussrippe_);

    links_ = ankreuzfeld(QStringLiteral("Check1"),
                         QStringLiteral("Fussrippe links durchgehend (Überstand ansetzen)"));
    rechts_ = ankreuzfeld(QStringLiteral("Check2"),
                          QStringLiteral("Fussrippe rechts durchgehend (Überstand ansetzen)"));
    binde(&Wand::FussrippeLinksDurchgehend, links_);
    binde(&Wand::FussrippeRechtsDurchgehend, rechts_);
    QPushButton* info = knopf(QStringLiteral("ComInfo2"), QStringLiteral("Info zu Überständen"));
    connect(info, &QPushButton::clicked, this,
            [this] { oeffne(Fensterart::ueberstaende, programm_, meldungen_, this); });
    grid(rahmen)->addWidget(links_, 3, 0, 1, 7);
    grid(rahmen)->addWidget(rechts_, 4, 0, 1, 7);
    grid(rahmen)->addWidget(info, 5, 0, 1, 7, Qt::AlignLeft);
    felder()->addWidget(rahmen);
}

void Form2::baueMaterial() {
    holzart_ = liste(QStringLiteral("MaterialBox"), QStringLiteral("Holzart Rippen"), Holzarten());
    binde(&Wand::Holzart, holzart_);
    nkl_ = optionen(QStringLiteral("Option1"), {{0, QStringLiteral("NKL 1")}, {1, QStringLiteral("NKL 2")}});
    binde(&Wand::NKLRippen, nkl_, {{0, 1}, {1, 2}}, 1);
    QGroupBox* rahmen = gruppe(QStringLiteral("Material"));
    grid(rahmen)->addWidget(beschriftung(QStringLiteral("Holzart Rippen:"), holzart_), 0, 0);
    grid(rahmen)->addWidget(holzart_, 0, 1, 1, 2);
    grid(rahmen)->addWidget(nkl_->button(0), 1, 1);
    grid(rahmen)->addWidget(nkl_->button(1), 1, 2);
    felder()->addWidget(rahmen);
}

void Form2::schreibe(Wand& w) const {
    Eingabedialog::schreibe(w);
    w.hInnenrippe = w.hRandrippe;
}

}  // namespace rippenscheibe
