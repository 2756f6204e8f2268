#include "ui/input/Form9_Belastung.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"
#include "ui/input/Form14_Eigengewicht.h"

namespace rippenscheibe {

namespace {
// Values of Lastfall; the third clears nothing.
constexpr int horizontal = 1;
constexpr int vertikal = 2;
constexpr int beides = 3;
}  // namespace

Form9::Form9(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Eingabedialog(programm, meldungen, parent, QStringLiteral("Form9"),
                    QStringLiteral("  Eingabe der Belastung")) {
    baueOptionen();
    baueLasten();
    felder()->addStretch(1);
    skizziere(new Zeichnungsansicht(Zeichnung::last, this));
    connect(lastfall_, &QButtonGroup::idToggled, this, &Form9::zeigeAktive);
    connect(windQuer_, &QCheckBox::toggled, this, &Form9::zeigeAktive);
    beginne();
    zeigeAktive();
}

void Form9::baueOptionen() {
    lastfall_ = optionen(QStringLiteral("Option1"),
                         {{0, QStringLiteral(" Horizontale Scheibenbeanspruchung ")},
                          {1, QStringLiteral(" Vertikale Scheibenbeanspruchung ")},
                          {2, QStringLiteral(" Horizontale und vertikale Scheibenbeanspruchung ")}});
    windQuer_ =
        ankreuzfeld(QStringLiteral("Check1"), QStringLiteral(" Wind senkrecht zur Tafelebene vorhanden"));
    binde(&Wand::Lastfall, lastfall_, {{0, horizontal}, {1, vertikal}, {2, beides}});
    binde(&Wand::WindQuer, windQuer_);
    QGroupBox* beanspruchung = gruppe(QStringLiteral("Beanspruchung"));
    for (int i = 0; i < 3; ++i) grid(beanspruchung)->addWidget(lastfall_->button(i), i, 0);
    grid(beanspruchung)->addWidget(windQuer_, 3, 0);
    felder()->addWidget(beanspruchung);

    kled_ = optionen(QStringLiteral("Option2"), {{0, QStringLiteral(" ständig")},
                                                 {1, QStringLiteral(" lang")},
                                                 {2, QStringLiteral(" mittel")},
                                                 {3, QStringLiteral(" kurz")},
                                                 {4, QStringLiteral(" sehr kurz")}});
    binde(&Wand::KLED, kled_, {{0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}});
    QGroupBox* dauer = gruppe(QStringLiteral("KLED"));
    for (int i = 0; i < 5; ++i) grid(dauer)->addWidget(kled_->button(i), 0, i);
    felder()->addWidget(dauer);
}

void Form9::baueLasten() {
    const auto feld = [this](auto glied, int index, const QString& text, const QString& einheit) {
        return binde(glied, {QStringLiteral("Textbox1(%1)").arg(index), text, einheit});
    };
    Fvk_ = feld(&Wand::Fvk, 0, QStringLiteral("Fv,k ="), QStringLiteral("kN (veränderlich, aus Wind)"));
    Fcgk_ = feld(&Wand::Fcgk, 1, QStringLiteral("Fc,g,k ="), QStringLiteral("kN (ständig)"));
    Fcqk_ = feld(&Wand::Fcqk, 2, QStringLiteral("Fc,q,k ="), QStringLiteral("kN (veränderlich)"));
    gk_ = feld(&Wand::gk, 3, QStringLiteral("g,k ="), QStringLiteral("kN/m (ständig)"));
    qk_ = feld(&Wand::qk, 4, QStringLiteral("q,k ="), QStringLiteral("kN/m (veränderlich)"));
    wk_ = feld(&Wand::wk, 5, QStringLiteral("w,k ="), QStringLiteral("kN/m² (aus Wind, veränderlich)"));
    gkWand_ =
        feld(&Wand::gkWand, 6, QStringLiteral("g,k,Wand ="), QStringLiteral("kN/m (Eigengewicht Wand)"));
    QPushButton* ermitteln =
        knopf(QStringLiteral("Command2"), QStringLiteral("Eigengewicht der Wand ermitteln"));
    connect(ermitteln, &QPushButton::clicked, this, &Form9::ermittleEigengewicht);

    QGroupBox* rahmen = gruppe(QStringLiteral("Charakteristische Lasten"));
    int zeile = 0;
    for (Werteingabe* wert : {Fvk_, Fcgk_, Fcqk_, gk_, qk_, wk_}) wert->setzeInZeile(grid(rahmen), zeile++);
    grid(rahmen)->addWidget(notiz(QStringLiteral(" (Sogkraft negativ)")), zeile++, 2);
    gkWand_->setzeInZeile(grid(rahmen), zeile++);
    grid(rahmen)->addWidget(ermitteln, zeile, 1, 1, 2, Qt::AlignLeft);
    grid(rahmen)->setColumnStretch(2, 1);
    felder()->addWidget(rahmen);
}

void Form9::ermittleEigengewicht() {
    Form14 fenster(programm_, meldungen_, this);
    if (fenster.exec() == QDialog::Accepted) gkWand_->setzeWert(fenster.gkWand());
}

void Form9::zeigeAktive() {
    const int fall = lastfall_->checkedId() + 1;
    Fvk_->setzeAktiv(fall != vertikal);
    for (Werteingabe* wert : {Fcgk_, Fcqk_, gk_, qk_}) wert->setzeAktiv(fall != horizontal);
    wk_->setzeAktiv(windQuer_->isChecked());
}

void Form9::schreibe(Wand& w) const {
    Eingabedialog::schreibe(w);
    // Values of a load case that is not chosen are lost; the self-weight never is.
    if (w.Lastfall == horizontal) {
        w.Fcgk = 0;
        w.Fcqk = 0;
        w.gk = 0;
        w.qk = 0;
    }
    if (w.Lastfall == vertikal) w.Fvk = 0;
    if (!w.WindQuer) w.wk = 0;
}

}  // namespace rippenscheibe
