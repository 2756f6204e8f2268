#include "ui/input/Form7_Verankerung.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "design/Verankerung.h"
#include "model/Kataloge.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {

namespace {

constexpr int knopfFreierAnker = 8;  // stands among the indices of the catalogue anchors; that is meant

// Option buttons 0 to 7 are the anchors 1 to 8, 9 to 12 the anchors 9 to 12.
int typZuKnopf(int knopf) {
    if (knopf == knopfFreierAnker) return freierAnker;
    return knopf < knopfFreierAnker ? knopf + 1 : knopf;
}
int knopfZuTyp(int typ) {
    if (typ == freierAnker) return knopfFreierAnker;
    return typ <= knopfFreierAnker ? typ - 1 : typ;
}

}  // namespace

Form7::Form7(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Eingabedialog(programm, meldungen, parent, QStringLiteral("Form7"),
                    QStringLiteral("  Eingabe der Verankerung")) {
    nachweis_ = ankreuzfeld(QStringLiteral("Check1"), QStringLiteral(" Nachweis der Verankerung führen"));
    felder()->addWidget(nachweis_);
    felder()->addWidget(baueAuswahl());
    felder()->addWidget(baueWerte());
    felder()->addStretch(1);
    skizziere(new Zeichnungsansicht(Zeichnung::anker, this));

    connect(anker_, &QButtonGroup::idToggled, this, &Form7::rechneTragfaehigkeit);
    connect(kammnagel_, &QComboBox::currentIndexChanged, this, &Form7::rechneTragfaehigkeit);
    connect(teilausnagelung_, &QCheckBox::toggled, this, &Form7::rechneTragfaehigkeit);
    connect(naegel_, &Werteingabe::geaendert, this, &Form7::rechneTragfaehigkeit);
    beginne();
}

QGroupBox* Form7::baueAuswahl() {
    anker_ = optionen(QStringLiteral("Option1"), {});
    QGroupBox* rahmen = gruppe(QStringLiteral("Zuganker"));
    int zeile = 0;
    for (int typ = 1; typ < freierAnker; ++typ) {
        auto* feld =
            option(anker_, QStringLiteral("Option1"), knopfZuTyp(typ), qtext(eintrag(Ankernamen(), typ)));
        grid(rahmen)->addWidget(feld, zeile++, 0, 1, 2);
    }
    auto* anderer =
        option(anker_, QStringLiteral("Option1"), knopfFreierAnker, QStringLiteral("anderer Anker:"));
    freierName_ = new QLineEdit(this);
    freierName_->setObjectName(QStringLiteral("Text1"));
    freierName_->setAccessibleName(QStringLiteral("Name des anderen Ankers"));
    grid(rahmen)->addWidget(anderer, zeile, 0);
    grid(rahmen)->addWidget(freierName_, zeile, 1);
    grid(rahmen)->setColumnStretch(1, 1);
    return rahmen;
}

QGroupBox* Form7::baueWerte() {
    const auto feld = [this](int index, const QString& text, const QString& einheit, double min, double max,
                             const QString& maske) {
        return werteingabe(
            QStringLiteral("Textbox1(%1)").arg(index),
            {.beschriftung = text, .einheit = einheit, .min = min, .max = max, .maske = maske});
    };
    const QString ganz = QStringLiteral("0");
    const QString zwei = QStringLiteral("0.00");
    kammnagel_ = liste(QStringLiteral("Combo1"), QStringLiteral("CNA Kammnägel"));
    for (const Kammnagel& nagel : Kammnaegel()) kammnagel_->addItem(qtext(nagel.name));
    teilausnagelung_ = ankreuzfeld(QStringLiteral("Check2"), QStringLiteral("Teilausnagelung"));
    naegel_ = feld(0, QStringLiteral("Anzahl Nägel ="), QStringLiteral(" Stck."), 2, 100, ganz);
    anzahl_ = feld(3, QStringLiteral("Anzahl Anker ="), QStringLiteral(" Stck. je Wandende"), 1, 2, ganz);
    rd_ = feld(1, QStringLiteral("Rd ="), QStringLiteral(" kN je Anker"), 0.1, 5000, zwei);
    kser_ = feld(2, QStringLiteral("Summe k,ser ="), QStringLiteral(" kN/mm je Anker"), 0.1, 100000, zwei);

    QGroupBox* rahmen = gruppe(QStringLiteral("Nägel und Kennwerte"));
    grid(rahmen)->addWidget(beschriftung(QStringLiteral("CNA Kammnägel :"), kammnagel_), 0, 0);
    grid(rahmen)->addWidget(kammnagel_, 0, 1);
    grid(rahmen)->addWidget(teilausnagelung_, 0, 2);
    int zeile = 1;
    for (Werteingabe* wert : {naegel_, anzahl_, rd_, kser_}) wert->setzeInZeile(grid(rahmen), zeile++);
    grid(rahmen)->addWidget(notiz(QStringLiteral("(nur für Verformungsberechnung, starr = 100000)")), zeile,
                            0, 1, 3);
    grid(rahmen)->setColumnStretch(2, 1);
    return rahmen;
}

int Form7::ankertyp() const { return anker_->checkedId() < 0 ? 0 : typZuKnopf(anker_->checkedId()); }

void Form7::rechneTragfaehigkeit() {
    if (laedt() || rechnet_ || anker_->checkedId() < 0) return;
    rechnet_ = true;
    const int typ = ankertyp();
    const int grenze = anker(typ)->naegelHoechstens;
    if (grenze > 0 && naegel_->wert() > grenze) naegel_->setzeWert(grenze);
    Wand w = programm_.w;
    schreibe(w);
    ankertragfaehigkeit(w);
    if (typ != freierAnker) rd_->setzeWert(w.RdAnker.value());
    zeigeAktive();
    rechnet_ = false;
}

// The free fields belong to the free anchor, the nail fields to the catalogue anchors.
void Form7::zeigeAktive() {
    const int typ = ankertyp();
    const bool frei = typ == freierAnker;
    const bool festeNagelzahl = typ > 0 && anker(typ)->gruppe == Ankergruppe::HD2PSG;
    freierName_->setEnabled(frei);
    rd_->setzeAktiv(frei);
    kammnagel_->setEnabled(!frei);
    naegel_->setzeAktiv(!frei && !festeNagelzahl);
    teilausnagelung_->setEnabled(!frei);
}

void Form7::lade(const Wand& w) {
    nachweis_->setChecked(w.NachweisVerankerung);
    const int typ = w.Ankertyp.value();
    if (typ >= 1 && typ <= freierAnker) anker_->button(knopfZuTyp(typ))->setChecked(true);
    freierName_->setText(qtext(w.FreierAnkerName));
    teilausnagelung_->setChecked(w.Teilausnagelung == 2);
    waehle(kammnagel_, w.Kammnagel);
    naegel_->setzeWert(w.AnzahlAnkerNaegel.value());
    rd_->setzeWert(w.RdAnker.value());
    kser_->setzeWert(w.kserAnker.value());
    anzahl_->setzeWert(w.AnzahlAnker.value());
    zeigeAktive();
}

void Form7::schreibe(Wand& w) const {
    w.NachweisVerankerung = nachweis_->isChecked();
    if (anker_->checkedId() >= 0) w.Ankertyp = ankertyp();
    w.FreierAnkerName = utf8(freierName_->text());
    w.Teilausnagelung = teilausnagelung_->isChecked() ? 2 : 1;
    uebernimm(kammnagel_, w.Kammnagel);
    w.AnzahlAnkerNaegel = naegel_->wert();
    w.RdAnker = rd_->wert();
    w.kserAnker = kser_->wert();
    w.AnzahlAnker = anzahl_->wert();
}

}  // namespace rippenscheibe
