#include "ui/input/Form12_Bemessungsparameter.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"

namespace rippenscheibe {

// A choice of two, stored as 1 and 2. A number of a file that is neither: the calculation takes it as
// `sonst`.
struct Form12::Wahl {
    const char* name;
    const char* titel;
    std::array<const char*, 2> texte;
    Ganzzahl Wand::*feld;
    int sonst;
};

namespace {

constexpr int erste = 0;
constexpr int zweite = 1;

const Form12::Wahl verfahren{"Option1",
                             "Berechnungsverfahren",
                             {" vereinfachtes Berechnungsverfahren nach DIN 1052 (2008), 12.2 bis 12.8",
                              " genaues Berechnungsverfahren nach DIN 1052 (2008), Anhang G.2.2"},
                             &Wand::GenauesVerfahren,
                             zweite};
const Form12::Wahl klammerwinkel{
    "Option2",
    "Klammern",
    {" der Winkel zwischen Klammerrücken und Faserrichtung des Holzes ist größer/gleich 30° ",
     " der Winkel zwischen Klammerrücken und Faserrichtung des Holzes ist kleiner 30° "},
    &Wand::KlammerWinkelOption,
    zweite};
const Form12::Wahl verteilung{"Option3",
                              "Verteilung der Vertikallasten",
                              {" vereinfacht Verteilung nur über die Rippen ansetzen ",
                               " genaue Aufteilung der Lasten auf Rippen und Beplankung gemäß der "
                               "jeweiligen Beanspruchbarkeit"},
                              &Wand::VertikallastVerteilung,
                              erste};
const Form12::Wahl lagesicherung{
    "Option4",
    "Nachweis der Lagesicherheit",
    {" vereinfacht: für die Ermittlung der Zuglasten als stabilisierende Kräfte nur Druckkräfte "
     "direkt über der Randrippe berücksichtigen",
     " genau: für die Ermittlung der Zuglasten die Summe der Momente um die Auflager "
     "berücksichtigen"},
    &Wand::LagesicherungVerfahren,
    erste};

}  // namespace

Form12::Form12(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Eingabedialog(programm, meldungen, parent, QStringLiteral("Form12"),
                    QStringLiteral("  Bemessungsparameter")) {
    baueWahl(verfahren);
    baueErhoehungen();
    baueKlammern();
    baueWahl(verteilung);
    baueWahl(lagesicherung);
    felder()->addStretch(1);
    beginne();
    beta_->setzeAktiv(klammerwinkel_->checkedId() == erste);
}

QButtonGroup* Form12::baueWahl(const Wahl& wahl, int spalten) {
    QButtonGroup* auswahl = optionen(
        QLatin1String(wahl.name),
        {{erste, QString::fromUtf8(wahl.texte[erste])}, {zweite, QString::fromUtf8(wahl.texte[zweite])}});
    QGroupBox* rahmen = gruppe(QString::fromUtf8(wahl.titel));
    for (const int i : {erste, zweite}) grid(rahmen)->addWidget(auswahl->button(i), i, 0, 1, spalten);
    felder()->addWidget(rahmen);
    binde(wahl.feld, auswahl, {{erste, 1}, {zweite, 2}}, wahl.sonst);
    return auswahl;
}

void Form12::baueErhoehungen() {
    QCheckBox* erhoehung = ankreuzfeld(
        QStringLiteral("Check1"),
        QStringLiteral("Erhöhung der Tragfähigkeit der Verbindungsmittel Rd um 20% für allseitig schubsteife "
                       "Verbindung nach DIN 1052(2008) 10.6 (4) ansetzen"));
    QCheckBox* deltaRd =
        ankreuzfeld(QStringLiteral("Check2"),
                    QStringLiteral("Erhöhung Rd mit deltaRd infolge des Einhängeeffektes ansetzen"));
    QGroupBox* rahmen = gruppe(QStringLiteral("Tragfähigkeit der Verbindungsmittel"));
    grid(rahmen)->addWidget(erhoehung, 0, 0);
    grid(rahmen)->addWidget(deltaRd, 1, 0);
    felder()->addWidget(rahmen);
    binde(&Wand::Erhoehung20, erhoehung);
    binde(&Wand::DeltaRd, deltaRd);
}

// The angle stands beside the choice it belongs to.
void Form12::baueKlammern() {
    klammerwinkel_ = baueWahl(klammerwinkel, 1);
    beta_ = binde(&Wand::beta, {.name = QStringLiteral("TextBox2(0)"),
                                .beschriftung = QStringLiteral(">>> beta ="),
                                .einheit = QStringLiteral("°"),
                                .hoechstlaenge = 7});
    auto* felder = grid(static_cast<QGroupBox*>(klammerwinkel_->button(erste)->parentWidget()));
    beta_->setzeInZeile(felder, 0, 1);
    felder->setColumnStretch(3, 1);
    connect(klammerwinkel_->button(erste), &QRadioButton::toggled, beta_, &Werteingabe::setzeAktiv);
}

}  // namespace rippenscheibe
