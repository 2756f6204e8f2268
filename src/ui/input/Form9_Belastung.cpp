#include "ui/input/Form9_Belastung.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/basics/Programm.h"
#include "ui/basics/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"
#include "ui/input/Form14_Eigengewicht.h"

namespace rippenscheibe {

namespace {
// Values of Lastfall; the third acts both ways and clears nothing.
constexpr int horizontal = 1;
constexpr int vertikal = 2;
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
    QGroupBox* beanspruchung = gruppe(QStringLiteral("Beanspruchung"));
    for (int i = 0; i < 3; ++i) grid(beanspruchung)->addWidget(lastfall_->button(i), i, 0);
    grid(beanspruchung)->addWidget(windQuer_, 3, 0);
    felder()->addWidget(beanspruchung);

    kled_ = optionen(QStringLiteral("Option2"), {{0, QStringLiteral(" ständig")},
                                                 {1, QStringLiteral(" lang")},
                                                 {2, QStringLiteral(" mittel")},
                                                 {3, QStringLiteral(" kurz")},
                                                 {4, QStringLiteral(" sehr kurz")}});
    QGroupBox* dauer = gruppe(QStringLiteral("KLED"));
    for (int i = 0; i < 5; ++i) grid(dauer)->addWidget(kled_->button(i), 0, i);
    felder()->addWidget(dauer);
}

void Form9::baueLasten() {
    const auto feld = [this](int index, const QString& text, const QString& einheit, double min, double max) {
        return werteingabe(QStringLiteral("Textbox1(%1)").arg(index),
                           {.beschriftung = text, .einheit = einheit, .min = min, .max = max});
    };
    Fvk_ = feld(0, QStringLiteral("Fv,k ="), QStringLiteral("kN (veränderlich, aus Wind)"), -1000, 1000);
    Fcgk_ = feld(1, QStringLiteral("Fc,g,k ="), QStringLiteral("kN (ständig)"), -1000, 1000);
    Fcqk_ = feld(2, QStringLiteral("Fc,q,k ="), QStringLiteral("kN (veränderlich)"), -1000, 1000);
    gk_ = feld(3, QStringLiteral("g,k ="), QStringLiteral("kN/m (ständig)"), -100, 100);
    qk_ = feld(4, QStringLiteral("q,k ="), QStringLiteral("kN/m (veränderlich)"), -100, 100);
    wk_ = feld(5, QStringLiteral("w,k ="), QStringLiteral("kN/m² (aus Wind, veränderlich)"), -100, 100);
    gkWand_ = feld(6, QStringLiteral("g,k,Wand ="), QStringLiteral("kN/m (Eigengewicht Wand)"), 0, 1000);
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

void Form9::lade(const Wand& w) {
    if (QAbstractButton* knopf = lastfall_->button(w.Lastfall.value() - 1)) knopf->setChecked(true);
    if (QAbstractButton* knopf = kled_->button(w.KLED.value() - 1)) knopf->setChecked(true);
    windQuer_->setChecked(w.WindQuer);
    Fvk_->setzeWert(w.Fvk.value());
    Fcgk_->setzeWert(w.Fcgk.value());
    Fcqk_->setzeWert(w.Fcqk.value());
    gk_->setzeWert(w.gk.value());
    qk_->setzeWert(w.qk.value());
    wk_->setzeWert(w.wk.value());
    gkWand_->setzeWert(w.gkWand.value());
}

void Form9::schreibe(Wand& w) const {
    if (lastfall_->checkedId() >= 0) w.Lastfall = lastfall_->checkedId() + 1;
    if (kled_->checkedId() >= 0) w.KLED = kled_->checkedId() + 1;
    w.WindQuer = windQuer_->isChecked();
    w.Fvk = Fvk_->wert();
    w.Fcgk = Fcgk_->wert();
    w.Fcqk = Fcqk_->wert();
    w.gk = gk_->wert();
    w.qk = qk_->wert();
    w.wk = wk_->wert();
    w.gkWand = gkWand_->wert();
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
