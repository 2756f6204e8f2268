#include "ui/input/Form14_Eigengewicht.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "basis/Zahlenformat.h"
#include "materials/Materialkennwerte.h"
#include "materials/Querschnittswerte.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"

namespace rippenscheibe {

Form14::Form14(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form14"),
              QStringLiteral("  Eigengewicht ermitteln")) {
    baueDaemmung();
    baueWichten();
    inhalt()->addStretch(1);

    QPushButton* ende = schaltflaeche(QStringLiteral("ComEnde"), QStringLiteral("Übernehmen und zurück"));
    ende->setDefault(true);
    connect(ende, &QPushButton::clicked, this, [this] {
        if (eingabenGueltig(*this, meldungen_)) accept();
    });
    connect(schaltflaeche(QStringLiteral("Command1"), QStringLiteral("Abbruch")), &QPushButton::clicked, this,
            &QDialog::reject);

    daemmung_->button(keineDaemmung)->setChecked(true);
    dicke_->setzeWert((programm.w.hRandrippe / 10).value());
    connect(daemmung_, &QButtonGroup::idToggled, this, &Form14::rechne);
    connect(dicke_, &Werteingabe::geaendert, this, &Form14::rechne);
    rechne();
}

void Form14::baueDaemmung() {
    daemmung_ = new QButtonGroup(this);
    const auto option = [this](int index, const QString& text) {
        auto* feld = new QRadioButton(text, this);
        feld->setObjectName(QStringLiteral("Option1(%1)").arg(index));
        feld->setAccessibleName(text.simplified());
        daemmung_->addButton(feld, index);
        return feld;
    };
    auto* ohne = option(keineDaemmung, QStringLiteral(" keine Dämmung vorhanden"));
    auto* mit = option(mitDaemmung, QStringLiteral(" Dämmung vorhanden >>>"));
    dicke_ = new Werteingabe(QStringLiteral("Textbox1(0)"),
                             {.beschriftung = QStringLiteral("Dicke der Dämmung ="),
                              .einheit = QStringLiteral("cm"),
                              .min = bereichDickeDaemmung.min,
                              .max = bereichDickeDaemmung.max,
                              .maske = QStringLiteral("0.0")},
                             this);
    ergebnis_ = new Werteingabe(
        QStringLiteral("Textbox1(1)"),
        {.beschriftung = QStringLiteral("g,k,Wand ="), .einheit = QStringLiteral("kN/m")}, this);
    ergebnis_->setReadOnly(true);
    ergebnis_->setAccessibleDescription(QStringLiteral("Ergebnis, nur Anzeige"));

    auto* felder = new QGridLayout;
    felder->setSpacing(raster);
    felder->addWidget(ohne, 0, 0);
    felder->addWidget(mit, 1, 0);
    dicke_->setzeInZeile(felder, 1, 1);
    ergebnis_->setzeInZeile(felder, 2, 1);
    inhalt()->addLayout(felder);
}

void Form14::baueWichten() {
    auto* wichten = new QGroupBox(QStringLiteral("Angesetzte Wichten"), this);
    auto* zeilen = new QVBoxLayout(wichten);
    zeilen->setSpacing(raster / 2);
    for (const QString& text :
         {QStringLiteral("g - Nadelholz = 5,0 kN/m³"), QStringLiteral("g - Spanplatten / OSB = 6,0 kN/m³"),
          QStringLiteral("g - Gipskarton = 0,09 kN/m² je cm Dicke"),
          QStringLiteral("g - Faserdämmstoffe = 0,01 kN/m² je cm Dicke")})
        zeilen->addWidget(new QLabel(text, wichten));
    inhalt()->addWidget(wichten);
    wichtenhinweis_ = new QLabel(herkunft(), this);
    wichtenhinweis_->setObjectName(QStringLiteral("Wichtenhinweis"));
    wichtenhinweis_->setForegroundRole(QPalette::PlaceholderText);
    wichtenhinweis_->setWordWrap(true);
    inhalt()->addWidget(wichtenhinweis_);
}

double Form14::gkWand() const { return ergebnis_->wert(); }

// The wall as it is entered now, with the unit weights of its materials.
Wand Form14::jetzt() const {
    Wand w = programm_.w;
    zuweisen(w, programm_.felder);
    for (const Seite n : beideSeiten) beplankungswerte(w, n);
    return w;
}

QString Form14::herkunft() const {
    const Wand w = jetzt();
    const auto zahl = [&](Seite n) {
        return qtext(formatiere("0.0", w.Wichte[n].value(), dezimalzeichen()));
    };
    const QString werte =
        w.Einseitig ? zahl(Seite::eins) : zahl(Seite::eins) + QStringLiteral(" / ") + zahl(Seite::zwei);
    return QStringLiteral("Wichten der gewählten Beplankung: %1 kN/m³").arg(werte);
}

void Form14::rechne() {
    const bool vorhanden = daemmung_->checkedId() == mitDaemmung;
    dicke_->setzeAktiv(vorhanden);
    Wand w = jetzt();  // the record itself is changed by nothing but the accept of the load dialog
    w.DickeDaemmung = dicke_->wert();
    eigengewicht(w, vorhanden ? Daemmung::vorhanden : Daemmung::keine);
    const Zahl jeMeter = w.GewichtGesamt / w.Wandlaenge;
    if (!jeMeter.failed()) ergebnis_->setzeWert(jeMeter.value());
}

}  // namespace rippenscheibe
