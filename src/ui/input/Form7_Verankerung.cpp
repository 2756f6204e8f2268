#include "ui/input/Form7_Verankerung.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "basis/Zahlenformat.h"
#include "design/Verankerung.h"
#include "model/Kataloge.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {

namespace {

constexpr int knopfFreierAnker = 8;  // Meant: among the indices of the catalogue anchors

// Option buttons 0 to 7 are the anchors 1 to 8, 9 to 12 the anchors 9 to 12.
int typZuKnopf(int knopf) {
    if (knopf == knopfFreierAnker) return freierAnker;
    return knopf < knopfFreierAnker ? knopf + 1 : knopf;
}
int knopfZuTyp(int typ) {
    if (typ == freierAnker) return knopfFreierAnker;
    return typ <= knopfFreierAnker ? typ - 1 : typ;
}

constexpr int einteiligeAnker = 7;  // the first of the list

}  // namespace

Form7::Form7(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Eingabedialog(programm, meldungen, parent, QStringLiteral("Form7"),
                    QStringLiteral("  Eingabe der Verankerung")) {
    nachweis_ = ankreuzfeld(QStringLiteral("Check1"), QStringLiteral(" Nachweis der Verankerung führen"));
    binde(&Wand::NachweisVerankerung, nachweis_);
    felder()->addWidget(nachweis_);
    felder()->addWidget(baueAuswahl());
    felder()->addWidget(baueWerte());
    felder()->addStretch(1);
    skizziere(new Zeichnungsansicht(Zeichnung::anker, this));

    connect(anker_, &QButtonGroup::idToggled, this, &Form7::rechneTragfaehigkeit);
    connect(kammnagel_, &QComboBox::currentIndexChanged, this, &Form7::rechneTragfaehigkeit);
    connect(teilausnagelung_, &QCheckBox::toggled, this, &Form7::rechneTragfaehigkeit);
    connect(naegel_, &Werteingabe::geaendert, this, &Form7::rechneTragfaehigkeit);
    connect(nachweis_, &QCheckBox::toggled, wirkung_, &QLabel::setHidden);
    beginne();
}

QGroupBox* Form7::baueAuswahl() {
    anker_ = optionen(QStringLiteral("Option1"), {});
    QGroupBox* rahmen = gruppe(QStringLiteral("Zuganker"));
    // Two columns, the anchors of one part left.
    for (int typ = 1; typ < freierAnker; ++typ) {
        auto* feld =
            option(anker_, QStringLiteral("Option1"), knopfZuTyp(typ), qtext(eintrag(Ankernamen(), typ)));
        const bool rechts = typ > einteiligeAnker;
        grid(rahmen)->addWidget(feld, rechts ? typ - einteiligeAnker - 1 : typ - 1, rechts ? 2 : 0, 1, 2);
    }
    auto* anderer =
        option(anker_, QStringLiteral("Option1"), knopfFreierAnker, QStringLiteral("anderer Anker:"));
    freierName_ = new QLineEdit(this);
    freierName_->setObjectName(QStringLiteral("Text1"));
    freierName_->setAccessibleName(QStringLiteral("Name des anderen Ankers"));
    grid(rahmen)->addWidget(anderer, einteiligeAnker - 1, 2);
    grid(rahmen)->addWidget(freierName_, einteiligeAnker - 1, 3);
    grid(rahmen)->setColumnStretch(3, 1);
    return rahmen;
}

QGroupBox* Form7::baueWerte() {
    const auto feld = [this](auto glied, int index, const QString& text, const QString& einheit) {
        return binde(glied, {QStringLiteral("Textbox1(%1)").arg(index), text, einheit});
    };
    kammnagel_ = liste(QStringLiteral("Combo1"), QStringLiteral("CNA Kammnägel"));
    for (const Kammnagel& nagel : Kammnaegel()) kammnagel_->addItem(qtext(nagel.name));
    teilausnagelung_ = ankreuzfeld(QStringLiteral("Check2"), QStringLiteral("Teilausnagelung"));
    naegel_ = feld(&Wand::AnzahlAnkerNaegel, 0, QStringLiteral("Anzahl Nägel ="), QStringLiteral(" Stck."));
    anzahl_ =
        feld(&Wand::AnzahlAnker, 3, QStringLiteral("Anzahl Anker ="), QStringLiteral(" Stck. je Wandende"));
    rd_ = feld(&Wand::RdAnker, 1, QStringLiteral("Rd ="), QStringLiteral(" kN je Anker"));
    kser_ = feld(&Wand::kserAnker, 2, QStringLiteral("Summe k,ser ="), QStringLiteral(" kN/mm je Anker"));
    binde(&Wand::Kammnagel, kammnagel_);

    QGroupBox* rahmen = gruppe(QStringLiteral("Nägel und Kennwerte"));
    grid(rahmen)->addWidget(beschriftung(QStringLiteral("CNA Kammnägel :"), kammnagel_), 0, 0);
    grid(rahmen)->addWidget(kammnagel_, 0, 1);
    grid(rahmen)->addWidget(teilausnagelung_, 0, 2);
    int zeile = 1;
    for (Werteingabe* wert : {naegel_, anzahl_, rd_, kser_}) wert->setzeInZeile(grid(rahmen), zeile++);
    laufwert_ = warnung(QStringLiteral("Laufwert"));
    wirkung_ = notiz(QStringLiteral(
        "Ohne Nachweis wirken nur Anzahl Anker und Summe k,ser, und zwar auf die Verformung."));
    wirkung_->setObjectName(QStringLiteral("Wirkung"));
    grid(rahmen)->addWidget(notiz(QStringLiteral("(nur für Verformungsberechnung, starr = 100000)")), zeile,
                            0, 1, 3);
    grid(rahmen)->addWidget(laufwert_, ++zeile, 0, 1, 3);
    grid(rahmen)->addWidget(wirkung_, ++zeile, 0, 1, 3);
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

// What the calculation takes for Rd, as the sketch shows it; the field keeps what the position holds until
// something changes that the resistance depends on.
void Form7::ergaenzeSkizze(Wand& w) const {
    ankertragfaehigkeit(w);
    laufwert_->setText(QStringLiteral("⚠ Die Berechnung setzt Rd = %1 kN je Anker an.")
                           .arg(qtext(formatiere("0.00", w.RdAnker.value(), dezimalzeichen()))));
    laufwert_->setVisible(w.NachweisVerankerung && w.RdAnker.value() != rd_->wert());
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
    Eingabedialog::lade(w);
    const int typ = w.Ankertyp.value();
    if (typ >= 1 && typ <= freierAnker) anker_->button(knopfZuTyp(typ))->setChecked(true);
    freierName_->setText(qtext(w.FreierAnkerName));
    teilausnagelung_->setChecked(w.Teilausnagelung == 2);
    wirkung_->setHidden(w.NachweisVerankerung);
    zeigeAktive();
}

void Form7::schreibe(Wand& w) const {
    Eingabedialog::schreibe(w);
    if (anker_->checkedId() >= 0) w.Ankertyp = ankertyp();
    w.FreierAnkerName = utf8(freierName_->text());
    w.Teilausnagelung = teilausnagelung_->isChecked() ? 2 : 1;
}

}  // namespace rippenscheibe
