#include "ui/input/Form12_Bemessungsparameter.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"

namespace rippenscheibe {

Form12::Form12(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Eingabedialog(programm, meldungen, parent, QStringLiteral("Form12"),
                    QStringLiteral("  Bemessungsparameter")) {
    const auto paar = [this](const QString& name, const QString& erste, const QString& zweite) {
        return optionen(name, {{0, erste}, {1, zweite}});
    };
    const auto rahmen = [this](const QString& titel, QButtonGroup* auswahl) {
        QGroupBox* gruppe_ = gruppe(titel);
        grid(gruppe_)->addWidget(auswahl->button(0), 0, 0, 1, 4);
        grid(gruppe_)->addWidget(auswahl->button(1), 1, 0, 1, 4);
        felder()->addWidget(gruppe_);
        return gruppe_;
    };

    verfahren_ =
        paar(QStringLiteral("Option1"),
             QStringLiteral(" vereinfachtes Berechnungsverfahren nach DIN 1052 (2008), 12.2 bis 12.8"),
             QStringLiteral(" genaues Berechnungsverfahren nach DIN 1052 (2008), Anhang G.2.2"));
    rahmen(QStringLiteral("Berechnungsverfahren"), verfahren_);

    erhoehung_ = ankreuzfeld(
        QStringLiteral("Check1"),
        QStringLiteral("Erhöhung der Tragfähigkeit der Verbindungsmittel Rd um 20% für allseitig schubsteife "
                       "Verbindung nach DIN 1052(2008) 10.6 (4) ansetzen"));
    deltaRd_ = ankreuzfeld(QStringLiteral("Check2"),
                           QStringLiteral("Erhöhung Rd mit deltaRd infolge des Einhängeeffektes ansetzen"));
    QGroupBox* erhoehungen = gruppe(QStringLiteral("Tragfähigkeit der Verbindungsmittel"));
    grid(erhoehungen)->addWidget(erhoehung_, 0, 0);
    grid(erhoehungen)->addWidget(deltaRd_, 1, 0);
    felder()->addWidget(erhoehungen);

    klammerwinkel_ = paar(
        QStringLiteral("Option2"),
        QStringLiteral(
            " der Winkel zwischen Klammerrücken und Faserrichtung des Holzes ist größer/gleich 30° "),
        QStringLiteral(" der Winkel zwischen Klammerrücken und Faserrichtung des Holzes ist kleiner 30° "));
    beta_ = binde(&Wand::beta, {.name = QStringLiteral("TextBox2(0)"),
                                .beschriftung = QStringLiteral(">>> beta ="),
                                .einheit = QStringLiteral("°"),
                                .hoechstlaenge = 7});
    QGroupBox* klammern = gruppe(QStringLiteral("Klammern"));
    grid(klammern)->addWidget(klammerwinkel_->button(0), 0, 0);
    grid(klammern)->addWidget(klammerwinkel_->button(1), 1, 0);
    beta_->setzeInZeile(grid(klammern), 0, 1);
    grid(klammern)->setColumnStretch(3, 1);
    felder()->addWidget(klammern);

    verteilung_ = paar(QStringLiteral("Option3"),
                       QStringLiteral(" vereinfacht Verteilung nur über die Rippen ansetzen "),
                       QStringLiteral(" genaue Aufteilung der Lasten auf Rippen und Beplankung gemäß der "
                                      "jeweiligen Beanspruchbarkeit"));
    rahmen(QStringLiteral("Verteilung der Vertikallasten"), verteilung_);

    lagesicherung_ =
        paar(QStringLiteral("Option4"),
             QStringLiteral(
                 " vereinfacht: für die Ermittlung der Zuglasten als stabilisierende Kräfte nur Druckkräfte "
                 "direkt über der Randrippe berücksichtigen"),
             QStringLiteral(" genau: für die Ermittlung der Zuglasten die Summe der Momente um die Auflager "
                            "berücksichtigen"));
    rahmen(QStringLiteral("Nachweis der Lagesicherheit"), lagesicherung_);
    felder()->addStretch(1);

    // A number of a file that is neither of a choice: the calculation takes it as this one.
    constexpr int erste = 0;
    constexpr int zweite = 1;
    binde(&Wand::GenauesVerfahren, verfahren_, {{0, 1}, {1, 2}}, zweite);
    binde(&Wand::Erhoehung20, erhoehung_);
    binde(&Wand::DeltaRd, deltaRd_);
    binde(&Wand::KlammerWinkelOption, klammerwinkel_, {{0, 1}, {1, 2}}, zweite);
    binde(&Wand::VertikallastVerteilung, verteilung_, {{0, 1}, {1, 2}}, erste);
    binde(&Wand::LagesicherungVerfahren, lagesicherung_, {{0, 1}, {1, 2}}, erste);

    connect(klammerwinkel_->button(0), &QRadioButton::toggled, beta_, &Werteingabe::setzeAktiv);
    beginne();
    beta_->setzeAktiv(klammerwinkel_->checkedId() == 0);
}

}  // namespace rippenscheibe
