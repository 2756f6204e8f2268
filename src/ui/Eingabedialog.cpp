#include "ui/Eingabedialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/Meldungen.h"
#include "ui/Programm.h"
#include "ui/Werteingabe.h"

namespace rippenscheibe {

Eingabedialog::Eingabedialog(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
                             const QString& titel)
    : Fenster(programm, meldungen, parent, name, titel) {
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(2 * raster);
    felder_ = new QVBoxLayout;
    felder_->setSpacing(raster + raster / 2);
    skizze_ = new QVBoxLayout;
    skizze_->setSpacing(raster);
    spalten->addLayout(felder_);
    spalten->addLayout(skizze_, 1);
    inhalt()->addLayout(spalten, 1);

    QPushButton* ende = schaltflaeche(QStringLiteral("ComEnde"), QStringLiteral("Übernehmen und zurück"));
    ende->setDefault(true);
    connect(ende, &QPushButton::clicked, this, &Eingabedialog::uebernehmen);
    QPushButton* abbruch = schaltflaeche(QStringLiteral("Command1"), QStringLiteral("Abbruch"));
    connect(abbruch, &QPushButton::clicked, this, &QDialog::reject);
}

void Eingabedialog::uebernehmen() {
    if (const std::optional<Ablehnung> ablehnung = uebernimm()) {
        meldungen_.kritisch(this, ablehnung->titel, ablehnung->text);
        return;
    }
    nachUebernahme();
    accept();
}

void Eingabedialog::nachUebernahme() { programm_.zuweisen(); }

Werteingabe* Eingabedialog::werteingabe(const QString& name, const Wertvorgabe& vorgabe) {
    return new Werteingabe(name, vorgabe, this);
}

QCheckBox* Eingabedialog::ankreuzfeld(const QString& name, const QString& text) {
    auto* feld = new QCheckBox(text, this);
    feld->setObjectName(name);
    feld->setAccessibleName(text.simplified());
    return feld;
}

QRadioButton* Eingabedialog::option(const QString& name, const QString& text) {
    auto* feld = new QRadioButton(text, this);
    feld->setObjectName(name);
    feld->setAccessibleName(text.simplified());
    return feld;
}

QComboBox* Eingabedialog::liste(const QString& name, const QString& beschriftung) {
    auto* feld = new QComboBox(this);
    feld->setObjectName(name);
    feld->setAccessibleName(beschriftung.simplified());
    return feld;
}

QPushButton* Eingabedialog::knopf(const QString& name, const QString& text) {
    auto* feld = new QPushButton(text, this);
    feld->setObjectName(name);
    feld->setAccessibleName(text.simplified());
    feld->setAutoDefault(false);
    return feld;
}

QLabel* Eingabedialog::beschriftung(const QString& text, QWidget* feld) {
    auto* schild = new QLabel(text, this);
    schild->setTextFormat(Qt::PlainText);
    schild->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    schild->setBuddy(feld);
    return schild;
}

QGroupBox* Eingabedialog::gruppe(const QString& titel) {
    auto* rahmen = new QGroupBox(titel, this);
    auto* grid = new QGridLayout(rahmen);
    grid->setHorizontalSpacing(raster);
    grid->setVerticalSpacing(raster);
    return rahmen;
}

QGridLayout* Eingabedialog::grid(QGroupBox* gruppe) { return static_cast<QGridLayout*>(gruppe->layout()); }

}  // namespace rippenscheibe
