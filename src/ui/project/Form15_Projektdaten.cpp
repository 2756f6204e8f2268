#include "ui/project/Form15_Projektdaten.h"

#include <QComboBox>
#include <QDate>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "files/Positionsdatei.h"
#include "ui/basics/Freitext.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Pfadwahl.h"
#include "ui/paper/Papierschrift.h"
#include "ui/verdict/Ausnutzungsbalken.h"

namespace rippenscheibe {

namespace {

// From the start of the project's name to the one of the position in the foot line of a page, mm.
constexpr double fusszeilenplatz = 155 - 25;

}  // namespace

Form15::Form15(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form15"), QStringLiteral("  Projektdaten")),
      projekt_(new QComboBox(this)) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(raster);
    grid->setVerticalSpacing(raster);
    grid->setColumnStretch(1, 1);
    inhalt()->addLayout(grid);

    baueProjekt(*grid);
    position_ = textfeld(grid, 1, QStringLiteral("Position :"));
    datum_ = textfeld(grid, 2, QStringLiteral("Datum :"));
    bemerkung_ = textfeld(grid, 3, QStringLiteral("Bemerkung :"));
    pfad_ = textfeld(grid, 0, QStringLiteral("Pfad :"));
    QPushButton* waehlen = knopf(QStringLiteral("Command1"), QStringLiteral("Pfad wählen"));
    connect(waehlen, &QPushButton::clicked, this, &Form15::waehlePfad);
    grid->addWidget(waehlen, grid->rowCount() - 1, 2);
    inhalt()->addStretch(1);
    QPushButton* ende = schaltflaeche(QStringLiteral("ComEnde"), QStringLiteral("Zurück zum Hauptfenster"));
    ende->setDefault(true);
    connect(ende, &QPushButton::clicked, this, &Form15::zurueckZumHauptfenster);
    lade();
}

void Form15::baueProjekt(QGridLayout& grid) {
    projekt_->setObjectName(QStringLiteral("Combo1"));
    projekt_->setAccessibleName(QStringLiteral("Projekt"));
    projekt_->setEditable(true);
    projekt_->setInsertPolicy(QComboBox::NoInsert);
    // A name is taken as typed: completing "Haus 1" to a known "Haus 12" would file it under another project.
    projekt_->setCompleter(nullptr);
    projekt_->setMinimumWidth(360);
    projekt_->lineEdit()->setObjectName(QStringLiteral("Combo1_Text"));
    projekt_->lineEdit()->setAccessibleName(QStringLiteral("Projekt"));
    grid.addWidget(beschriftung(QStringLiteral("Projekt :"), projekt_), 0, 0);
    grid.addWidget(projekt_, 0, 1, 1, 2);

    platz_ = new QLabel(QStringLiteral("⚠ Der Name ist zu lang für die Fußzeile des Ausdrucks."), this);
    platz_->setObjectName(QStringLiteral("Fusszeilenplatz"));
    platz_->setWordWrap(true);
    QPalette farben = platz_->palette();
    farben.setColor(QPalette::WindowText, urteilsfarben(palette()).warnung);
    platz_->setPalette(farben);
    grid.addWidget(platz_, 1, 1, 1, 2);
    connect(projekt_, &QComboBox::editTextChanged, this, &Form15::zeigeFusszeilenplatz);
    connect(projekt_, &QComboBox::activated, this, &Form15::waehleProjekt);
}

// The chooser starts at the typed folder; cancelled, it leaves the stored one.
void Form15::waehlePfad() {
    const std::string vorher = std::exchange(programm_.Positionspfad, utf8(pfad_->text()));
    Pfadwahl wahl(programm_, meldungen_, this, Pfadwahl::Zweck::positionspfad);
    if (wahl.exec() == QDialog::Accepted) {
        pfad_->setText(wahl.pfad());
    } else {
        programm_.Positionspfad = vorher;
    }
}

// A row "Text1(index)" of the grid.
QLineEdit* Form15::textfeld(QGridLayout* grid, int index, const QString& text) {
    auto* feld = new QLineEdit(this);
    feld->setObjectName(QStringLiteral("Text1(%1)").arg(index));
    feld->setAccessibleName(text.section(QLatin1Char(' '), 0, 0));
    const int zeile = grid->rowCount();
    grid->addWidget(beschriftung(text, feld), zeile, 0);
    grid->addWidget(feld, zeile, 1, 1, index == 0 ? 1 : 2);
    return feld;
}

void Form15::lade() {
    // Empty entries keep their place in the list, but there is nothing to choose in them.
    const auto& eintraege = programm_.projekte.eintraege;
    for (std::size_t i = 0; i < eintraege.size(); ++i) {
        if (!eintraege[i].name.empty()) projekt_->addItem(qtext(eintraege[i].name), static_cast<int>(i));
        if (eintraege[i].name == programm_.w.Projekt && aktuellesProjekt_ == 1)
            aktuellesProjekt_ = static_cast<int>(i) + 1;
    }
    projekt_->setCurrentIndex(
        projekt_->findText(qtext(programm_.w.Projekt), Qt::MatchFixedString | Qt::MatchCaseSensitive));
    projekt_->setEditText(qtext(programm_.w.Projekt));
    position_->setText(qtext(programm_.w.Position));
    const bool leer = programm_.w.Datum.empty();
    if (leer) vorgeschlagenesDatum_ = QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy"));
    datum_->setText(leer ? vorgeschlagenesDatum_ : qtext(programm_.w.Datum));
    bemerkung_->setText(qtext(programm_.w.PositionsBemerkung));
    pfad_->setText(qtext(programm_.Positionspfad));
    geladen_ = eingaben();
    zeigeFusszeilenplatz();
}

void Form15::waehleProjekt(int eintrag) {
    const int stelle = projekt_->itemData(eintrag).toInt();
    aktuellesProjekt_ = stelle + 1;
    pfad_->setText(qtext(programm_.projekte.eintraege[static_cast<std::size_t>(stelle)].pfad));
}

// A project that is not in the list is added with the folder as it was entered, an empty one too; an
// existing entry keeps its folder.
void Form15::merkeProjekt() {
    auto& eintraege = programm_.projekte.eintraege;
    const std::string& name = programm_.w.Projekt;
    const auto gleich = [&](const Projekteintrag& eintrag) { return eintrag.name == name; };
    if (std::any_of(eintraege.begin(), eintraege.end(), gleich)) return;
    eintraege.push_back({name, programm_.Positionspfad});
}

void Form15::zurueckZumHauptfenster() {
    if (!pfadIstSpeicherbar(meldungen_, *pfad_)) return;
    ersetzeAnfuehrungszeichen(meldungen_, this, {projekt_, position_, datum_, bemerkung_});
    Wand& w = programm_.w;
    // The date that the window filled in does not make an untouched position a changed one.
    if (w.Datum.empty() && datum_->text() == vorgeschlagenesDatum_) w.Datum = utf8(vorgeschlagenesDatum_);
    const std::string vorher = positionstext(w);
    w.Projekt = utf8(projekt_->currentText());
    w.Position = utf8(position_->text());
    w.Datum = utf8(datum_->text());
    w.PositionsBemerkung = utf8(bemerkung_->text());
    programm_.Positionspfad = utf8(pfad_->text());
    if (positionstext(w) != vorher) programm_.setzeGesichert(false);
    merkeProjekt();
    if (programm_.Positionspfad.empty()) programm_.Positionspfad = programm_.einstellungen.StandardPfad;
    Q_EMIT programm_.geaendert();
    accept();
}

std::array<QString, 5> Form15::eingaben() const {
    return {projekt_->currentText(), position_->text(), datum_->text(), bemerkung_->text(), pfad_->text()};
}

void Form15::reject() {
    if (eingaben() == geladen_) return Fenster::reject();
    const Antwort antwort =
        meldungen_.zeige(this, {Symbol::frage,
                                QStringLiteral("Projektdaten"),
                                QStringLiteral("Sollen die geänderten Projektdaten übernommen werden?"),
                                Knoepfe::jaNeinAbbrechen,
                                {QStringLiteral("Übernehmen"), QStringLiteral("Verwerfen"), {}},
                                {}});
    if (antwort == Antwort::ja) zurueckZumHauptfenster();
    if (antwort == Antwort::nein) Fenster::reject();
}

// The foot line of a page leaves 130 mm between "Projekt :" and "Position :"; the page prints the name as it
// is.
void Form15::zeigeFusszeilenplatz() {
    const QString zeile = QStringLiteral("Projekt :  ") + projekt_->currentText();
    platz_->setVisible(papierbreite({.groesse = 8, .fett = true}, utf8(zeile)) > fusszeilenplatz);
}

}  // namespace rippenscheibe
