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
#include "ui/basics/Werteingabe.h"
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
    connect(hRandrippe_, &Werteingabe::geaendert, this, [this](double wert) {
        if (laedt()) return;
        hInnenrippe_->setzeWert(wert);
        bKopfFussrippe_->setzeWert(wert);
    });
    beginne();
}

void Form2::baueQuerschnitte() {
    const auto mass = [this](int index, const QString& text, const QString& einheit,
                             const QString& bezeichnung) {
        Wertvorgabe vorgabe{.beschriftung = text,
                            .einheit = einheit,
                            .min = 4,
                            .max = 1000,
                            .maske = QStringLiteral("0.0"),
                            .bereichseinheit = QStringLiteral("cm")};
        Werteingabe* feld = werteingabe(QStringLiteral("Textbox1(%1)").arg(index), vorgabe);
        feld->setAccessibleName(bezeichnung);
        return feld;
    };
    const QString cm = QStringLiteral("cm");
    const QString bxh = QStringLiteral(" b x h =");
    const QString mal = QStringLiteral("x");
    bRandrippe_ = mass(2, bxh, QString(), QStringLiteral("Randrippen: Breite b in cm"));
    hRandrippe_ = mass(0, mal, cm, QStringLiteral("Randrippen: Höhe h in cm"));
    bInnenrippe_ = mass(1, bxh, QString(), QStringLiteral("Innenrippen: Breite b in cm"));
    hInnenrippe_ = mass(3, mal, cm, QStringLiteral("Innenrippen: Höhe h in cm"));
    hKopfFussrippe_ =
        mass(4, QStringLiteral(" h x b ="), QString(), QStringLiteral("Kopf- / Fussrippe: Höhe h in cm"));
    bKopfFussrippe_ = mass(5, mal, cm, QStringLiteral("Kopf- / Fussrippe: Breite b in cm"));
    hInnenrippe_->setEnabled(false);
    bKopfFussrippe_->setEnabled(false);

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
    nkl_ = optionen(QStringLiteral("Option1"), {{0, QStringLiteral("NKL 1")}, {1, QStringLiteral("NKL 2")}});
    QGroupBox* rahmen = gruppe(QStringLiteral("Material"));
    grid(rahmen)->addWidget(beschriftung(QStringLiteral("Holzart Rippen:"), holzart_), 0, 0);
    grid(rahmen)->addWidget(holzart_, 0, 1, 1, 2);
    grid(rahmen)->addWidget(nkl_->button(0), 1, 1);
    grid(rahmen)->addWidget(nkl_->button(1), 1, 2);
    felder()->addWidget(rahmen);
}

void Form2::lade(const Wand& w) {
    const auto cm = [](Zahl mm) { return (mm / 10).value(); };
    bRandrippe_->setzeWert(cm(w.bRandrippe));
    hRandrippe_->setzeWert(cm(w.hRandrippe));
    bInnenrippe_->setzeWert(cm(w.bInnenrippe));
    hInnenrippe_->setzeWert(cm(w.hRandrippe));
    hKopfFussrippe_->setzeWert(cm(w.bKopfFussrippe));
    bKopfFussrippe_->setzeWert(cm(w.hRandrippe));
    links_->setChecked(w.FussrippeLinksDurchgehend);
    rechts_->setChecked(w.FussrippeRechtsDurchgehend);
    waehle(holzart_, w.Holzart);
    nkl_->button(w.NKLRippen == 1 ? 0 : 1)->setChecked(true);
}

void Form2::schreibe(Wand& w) const {
    w.bRandrippe = bRandrippe_->wert() * 10;
    w.hRandrippe = hRandrippe_->wert() * 10;
    w.bInnenrippe = bInnenrippe_->wert() * 10;
    w.bKopfFussrippe = hKopfFussrippe_->wert() * 10;
    w.hInnenrippe = w.hRandrippe;
    w.FussrippeLinksDurchgehend = links_->isChecked();
    w.FussrippeRechtsDurchgehend = rechts_->isChecked();
    uebernimm(holzart_, w.Holzart);
    w.NKLRippen = nkl_->checkedId() == 0 ? 1 : 2;
}

}  // namespace rippenscheibe
