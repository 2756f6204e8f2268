#include <QDate>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "model/Feldangaben.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Kuerzel.h"
#include "ui/controls/Werteingabe.h"
#include "ui/drawings/Zeichnungsansicht.h"
#include "ui/main/Akzentknopf.h"
#include "ui/main/Eingabespalte.h"
#include "ui/main/Eingabezeile.h"
#include "ui/main/Form1_Hauptfenster.h"
#include "ui/main/Form1_Zusammenfassung.h"
#include "ui/main/Hinweisliste.h"
#include "ui/verdict/Urteilsanzeige.h"

// The two columns of the main window and its status bar.

namespace rippenscheibe {

namespace {

constexpr int raster = 8;
constexpr int schmalsteSpalte = 340;  // px
constexpr double mmJeM = 1000;

}  // namespace

const std::vector<Form1::Eingabeeintrag>& Form1::eingabeeintraege() {
    static const std::vector<Eingabeeintrag> eintraege{
        {QStringLiteral("Command5"), QStringLiteral("Abmessungen / Material für Rippen eingeben"),
         Fensterart::rippen, zusammenfassungRippen, QStringLiteral("rippen"), QKeySequence(Qt::Key_F2),
         QStringLiteral("mnuRippen"), QStringLiteral("&Rippen ...")},
        {QStringLiteral("Command1"), QStringLiteral("Beplankung deklarieren"), Fensterart::beplankung,
         zusammenfassungBeplankung, QStringLiteral("beplankung"), QKeySequence(Qt::Key_F3),
         QStringLiteral("mnuBeplankung"), QStringLiteral("Be&plankung ...")},
        {QStringLiteral("Command2"), QStringLiteral("Verbindungsmittel deklarieren"),
         Fensterart::verbindungsmittel, zusammenfassungVerbindungsmittel, QStringLiteral("verbindungsmittel"),
         QKeySequence(Qt::Key_F4), QStringLiteral("mnuVerbindungsmittel"),
         QStringLiteral("&Verbindungsmittel ...")},
        {QStringLiteral("Command3"), QStringLiteral("Verankerung deklarieren"), Fensterart::verankerung,
         zusammenfassungVerankerung, QStringLiteral("verankerung"), QKeySequence(Qt::Key_F5),
         QStringLiteral("mnuVerankerung"), QStringLiteral("Veran&kerung ...")},
        {QStringLiteral("Command4"), QStringLiteral("Belastung eingeben"), Fensterart::belastung,
         zusammenfassungBelastung, QStringLiteral("belastung"), QKeySequence(Qt::Key_F6),
         QStringLiteral("mnuBelastung"), QStringLiteral("Belas&tung ...")},
        {QStringLiteral("Command6"), QStringLiteral("Bemessungs- / Berechnungsoptionen festlegen"),
         Fensterart::bemessung, zusammenfassungBemessung, QStringLiteral("bemessung"),
         QKeySequence(Qt::Key_F7), QStringLiteral("mnuBemessung"), QStringLiteral("Bemessungs&optionen ...")},
    };
    return eintraege;
}

QWidget* Form1::baueLinkeSpalte() {
    auto* spalte = new QWidget(this);
    auto* aussen = new QVBoxLayout(spalte);
    aussen->setContentsMargins(raster, raster, raster / 2, raster);
    aussen->setSpacing(raster);

    // On a low window the inputs scroll; the start buttons stay in sight.
    auto* inhalt = new QWidget(spalte);
    auto* gruppen = new QVBoxLayout(inhalt);
    gruppen->setContentsMargins(0, 0, 0, 0);
    gruppen->setSpacing(raster);
    gruppen->addWidget(baueAbmessungen());
    gruppen->addWidget(baueEingabe());
    gruppen->addStretch(1);
    auto* rollen = new Eingabespalte(inhalt, spalte);
    rollen->setMinimumWidth(std::max(inhalt->minimumSizeHint().width() + 2 * raster, schmalsteSpalte));
    aussen->addWidget(rollen, 1);

    urteil_ = new Urteilsanzeige(spalte);
    connect(urteil_, &Urteilsanzeige::abschnittGewaehlt, this, &Form1::oeffneErgebnis);
    connect(urteil_, &Urteilsanzeige::hinweisGewaehlt, this, &Form1::oeffneZu);
    aussen->addWidget(urteil_);
    const auto startknopf = [&](QPushButton* knopf, const char* name, Fensterart ausgabe) {
        knopf->setObjectName(qtext(name));
        knopf->setAccessibleName(knopf->text());
        QFont schrift = knopf->font();
        schrift.setBold(true);
        knopf->setFont(schrift);
        knopf->setMinimumHeight(4 * raster);
        setzeEnter(*knopf, Enter::weiter);  // no key starts a run
        ohneKuerzel(*knopf);
        connect(knopf, &QPushButton::clicked, this, [this, ausgabe] { rechneUndZeige(ausgabe); });
        aussen->addWidget(knopf);
    };
    startknopf(new QPushButton(QStringLiteral("Berechnung starten und Werte ausdrucken"), spalte),
               "ComErgDruck", Fensterart::druck);
    einsehen_ = new Akzentknopf(QStringLiteral("Berechnung starten und Ergebnisse einsehen"), spalte);
    startknopf(einsehen_, "ComErgEin2", Fensterart::ergebnisse);
    return spalte;
}

QGroupBox* Form1::baueAbmessungen() {
    struct Masszeile {
        QString text;
        std::string_view feld;
        double teiler;  // mm a metre where the record holds mm
        double Grundmasse::*mass;
        QString schritt;  // what a change is called in "Rückgängig: ..."
    };
    const std::vector<Masszeile> zeilen{
        {QStringLiteral("Wandlänge l ="), "Wandlaenge", 1, &Grundmasse::Wandlaenge,
         QStringLiteral("Wandlänge")},
        {QStringLiteral("Wandhöhe h ="), "Wandhoehe", 1, &Grundmasse::Wandhoehe, QStringLiteral("Wandhöhe")},
        {QStringLiteral("Abstand Rippen ar ="), "Rippenabstand", mmJeM, &Grundmasse::Rippenabstand,
         QStringLiteral("Rippenabstand")}};
    auto* rahmen = new QGroupBox(QStringLiteral("Abmessungen"), this);
    auto* grid = new QGridLayout(rahmen);
    grid->setHorizontalSpacing(raster);
    grid->setContentsMargins(raster, raster / 2, raster, raster / 2);
    grid->setVerticalSpacing(raster / 2);
    grid->setColumnStretch(2, 1);
    int index = 0;
    for (const Masszeile& zeile : zeilen) {
        const Wertschild schild{QStringLiteral("Textbox1(%1)").arg(index), zeile.text, QStringLiteral("m"),
                                zeile.teiler};
        auto* wert =
            new Werteingabe(schild.name, wertvorgabe(eingabeangabe(zeile.feld).value(), schild), rahmen);
        wert->setzeInZeile(grid, index++);
        wert->installEventFilter(this);
        felder_.push_back({wert, zeile.mass, zeile.schritt});
        connect(wert, &Werteingabe::geaendert, this,
                [this, feld = felder_.back()](double neu) { uebernimmFeld(feld, neu); });
    }
    return rahmen;
}

QGroupBox* Form1::baueEingabe() {
    auto* rahmen = new QGroupBox(QStringLiteral("Eingabe"), this);
    auto* reihe = new QVBoxLayout(rahmen);
    reihe->setContentsMargins(raster / 2, raster / 2, raster / 2, raster / 2);
    reihe->setSpacing(0);
    for (const Eingabeeintrag& eintrag : eingabeeintraege()) {
        auto* zeile = new Eingabezeile(eintrag.name, eintrag.text, rahmen);
        zeile->setzeTaste(eintrag.taste);
        connect(zeile, &QPushButton::clicked, this, [this, art = eintrag.art] { oeffneFenster(art); });
        symbole_.push_back({[zeile](const QIcon& symbol) { zeile->setIcon(symbol); }, eintrag.symbol});
        reihe->addWidget(zeile);
        zeilen_.emplace_back(zeile, eintrag.zusammenfassung);
    }
    return rahmen;
}

QWidget* Form1::baueRechteSpalte() {
    auto* teiler = new QSplitter(Qt::Vertical, this);
    teiler->setObjectName(QStringLiteral("TeilerRechts"));
    teiler->setChildrenCollapsible(false);
    ansicht_ = new Zeichnungsansicht(Zeichnung::ansicht, teiler);
    ansicht_->setObjectName(QStringLiteral("Picture1"));
    ansicht_->setzeDezimalzeichen(dezimalzeichen());
    ansicht_->bieteDateien(programm_, meldungen_);
    connect(ansicht_, &Zeichnungsansicht::angeklickt, this, &Form1::oeffneFenster);
    teiler->addWidget(ansicht_);
    teiler->addWidget(baueHinweise());
    teiler->setStretchFactor(0, 1);
    teiler->setStretchFactor(1, 0);
    teiler->setSizes({580, 110});
    teiler->setContentsMargins(0, raster, raster, raster);
    return teiler;
}

QGroupBox* Form1::baueHinweise() {
    auto* rahmen = new QGroupBox(QStringLiteral("Hinweise / Fehler"), this);
    auto* grid = new QGridLayout(rahmen);
    grid->setSpacing(raster);
    hinweise_ = new Hinweisliste(rahmen);
    hinweise_->setObjectName(QStringLiteral("List1"));
    hinweise_->setAccessibleName(rahmen->title());
    hinweise_->setAccessibleDescription(
        QStringLiteral("Doppelklick oder Eingabetaste öffnet das Fenster der genannten Eingabe"));
    connect(hinweise_, &Hinweisliste::geoeffnet, this, &Form1::oeffneZu);
    const QString text = QStringLiteral("Info zu Randbedingungen");
    auto* info = new QToolButton(rahmen);
    info->setObjectName(QStringLiteral("ComInfo2"));
    info->setToolTip(text);
    info->setAccessibleName(text);
    info->setFocusPolicy(Qt::StrongFocus);
    info->setIconSize({24, 24});
    connect(info, &QToolButton::clicked, this, [this] { oeffneFenster(Fensterart::randbedingungen); });
    symbole_.push_back({[info](const QIcon& symbol) { info->setIcon(symbol); }, QStringLiteral("info")});
    grid->addWidget(hinweise_->standzeile(), 0, 0);
    grid->addWidget(hinweise_, 1, 0);
    grid->addWidget(info, 1, 1, Qt::AlignTop);
    return rahmen;
}

void Form1::baueStatuszeile() {
    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->setAccessibleName(QStringLiteral("Statuszeile"));
    statusBar()->setToolTip(QStringLiteral("Klick öffnet den Kalender"));
    const auto feld = [this](const QString& text, int dehnung) {
        auto* schild = new QLabel(text, this);
        schild->setContentsMargins(0, 0, 2 * raster, 0);
        schild->installEventFilter(this);
        statusBar()->addPermanentWidget(schild, dehnung);
    };
    feld(QStringLiteral(" Rippenscheibe-Tafeln - DIN 1052 (2008)"), 1);
    feld(QStringLiteral("Rippenscheibe"), 0);
    feld(QLocale().toString(QDate::currentDate(), QStringLiteral("dd.MM.yyyy")), 0);
    statusBar()->installEventFilter(this);
}

}  // namespace rippenscheibe
