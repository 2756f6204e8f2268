#include "ui/project/Form99_EigeneMaterialien.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "files/EigeneMaterialienDatei.h"
#include "files/Materialverwaltung.h"
#include "files/Zeichensatz.h"
#include "ui/basics/Freitext.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"

namespace rippenscheibe {

namespace {

// One number of a material: its column, the index of its box TextBox2, its words and what it means.
struct Wertzeile {
    int spalte;
    int index;
    const char* beschriftung;
    const char* einheit;
    const char* bedeutung;
};

// The boxes in the order of the eye: characteristic values, kmod of service class 1, of class 2, fh,1,k.
// Meant: the unit text of fh,1,k speaks of bending.
// clang-format off
constexpr std::array<Wertzeile, 20> wertzeilen{{
    { 2,  1, "fv,k =",                  "N/mm² (Schub als Scheibe)",                                "Schubfestigkeit bei Scheibenbeanspruchung"},
    { 3,  0, "fc,k =",                  "N/mm² (Druck als Scheibe)",                                "Druckfestigkeit bei Scheibenbeanspruchung"},
    { 4,  2, "ft,k =",                  "N/mm² (Zug als Scheibe)",                                  "Zugfestigkeit bei Scheibenbeanspruchung"},
    { 5,  6, "fm,k =",                  "N/mm² (Biegung als Platte, rechtwinklig zur Deckschicht)", "Biegefestigkeit bei Plattenbeanspruchung"},
    { 6,  3, "t,req =",                 " x d         (d = VM-Durchmesser)",                        "Mindestdicke als Vielfaches von d"},
    { 8,  5, "E,mean =",                "N/mm² (E-Modul)",                                          "Elastizitätsmodul"},
    { 9,  7, "G,mean =",                "N/mm² (Schubmodul)",                                       "Schubmodul"},
    {10,  8, "rho,k =",                 "kg/m³ (Rohdichte)",                                        "charakteristische Rohdichte"},
    {11,  9, "Wichte =",                "kN/m³",                                                    "Wichte für das Eigengewicht"},
    {12,  4, "KLED ständig: k,mod =",   "[-]",                                                      "Modifikationsbeiwert, NKL 1, KLED ständig"},
    {13, 10, "KLED lang: k,mod =",      "[-]",                                                      "Modifikationsbeiwert, NKL 1, KLED lang"},
    {14, 11, "KLED mittel: k,mod =",    "[-]",                                                      "Modifikationsbeiwert, NKL 1, KLED mittel"},
    {15, 12, "KLED kurz: k,mod =",      "[-]",                                                      "Modifikationsbeiwert, NKL 1, KLED kurz"},
    {21, 18, "KLED sehr kurz: k,mod =", "[-]",                                                      "Modifikationsbeiwert, NKL 1, KLED sehr kurz"},
    {16, 13, "KLED ständig: k,mod =",   "[-]",                                                      "Modifikationsbeiwert, NKL 2, KLED ständig"},
    {17, 14, "KLED lang: k,mod =",      "[-]",                                                      "Modifikationsbeiwert, NKL 2, KLED lang"},
    {18, 15, "KLED mittel: k,mod =",    "[-]",                                                      "Modifikationsbeiwert, NKL 2, KLED mittel"},
    {19, 16, "KLED kurz: k,mod =",      "[-]",                                                      "Modifikationsbeiwert, NKL 2, KLED kurz"},
    {22, 19, "KLED sehr kurz: k,mod =", "[-]",                                                      "Modifikationsbeiwert, NKL 2, KLED sehr kurz"},
    {20, 17, "fh,1,k =",                "N/mm² (Biegung als Platte)",                               "Lochleibungsfestigkeit der Beplankung"},
}};
// clang-format on
constexpr std::size_t kennwerte = 9;
constexpr std::size_t kmodKlasse1 = 9;
constexpr std::size_t kmodKlasse2 = 14;
constexpr std::size_t kmodWerte = 5;
constexpr std::size_t fh1k = 19;

// The choice of column 7, 1 to 5, is the index + 1.
constexpr std::size_t spalteLochleibung = 7;
constexpr int festVorgegeben = 4;
constexpr std::array<const char*, 5> lochleibungen{
    "fh,1,k berechnen wie für Sperrholz-Platten", "fh,1,k berechnen wie für OSB-Platten",
    "fh,1,k berechnen wie für Faser-Platten", "fh,1,k berechnen wie für Gipskarton-Platten",
    "fh,1,k fest vorgeben mit "};

}  // namespace

Form99::Form99(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form99"),
              QStringLiteral("   Materialien für Beplankungen anlegen / verwalten"), Tippen::aendertNichts),
      tabelle_(programm.w.eigeneMaterialien),
      gelesen_(tabelle_),
      liste_(new QComboBox(this)),
      name_(new QLineEdit(this)),
      lochleibung_(new QButtonGroup(this)) {
    baueKopf();
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(2 * raster);
    auto* links = new QVBoxLayout;
    links->setSpacing(raster);
    links->addWidget(baueKennwerte());
    auto* rechts = new QVBoxLayout;
    rechts->setSpacing(raster);
    rechts->addWidget(baueKmod(QStringLiteral("k,mod - Werte für NKL 1"), kmodKlasse1));
    rechts->addWidget(baueKmod(QStringLiteral("k,mod - Werte für NKL 2"), kmodKlasse2));
    links->addWidget(baueLochleibung());
    links->addStretch(1);
    rechts->addStretch(1);
    spalten->addLayout(links, 1);
    spalten->addLayout(rechts);
    inhalt()->addLayout(spalten, 1);

    uebernehmen_ = schaltflaeche(QStringLiteral("Command3"), QStringLiteral("Übernehmen"));
    QPushButton* ende = schaltflaeche(QStringLiteral("Command1"), QStringLiteral("Zurück"));
    ende->setToolTip(QStringLiteral("Zurück "));

    connect(liste_, &QComboBox::currentIndexChanged, this, [this](int zeile) {
        Werte(zeile);
        setzeZustand(Zustand::anzeigen);
    });
    connect(neu_, &QPushButton::clicked, this, &Form99::neuesMaterial);
    connect(loeschen_, &QPushButton::clicked, this, &Form99::loescheMaterial);
    connect(bearbeiten_, &QPushButton::clicked, this, &Form99::bearbeite);
    connect(uebernehmen_, &QPushButton::clicked, this, &Form99::uebernehmen);
    connect(ende, &QPushButton::clicked, this, &Form99::zurueckUndSichern);
    connect(lochleibung_, &QButtonGroup::idToggled, this, &Form99::richteLochleibung);
    // From the name to its values.
    QWidget::setTabOrder(bearbeiten_, name_);
    fuelleListe(0);
}

void Form99::baueKopf() {
    auto* kopf = new QHBoxLayout;
    kopf->setSpacing(raster);
    liste_->setObjectName(QStringLiteral("Combo1"));
    liste_->setAccessibleName(QStringLiteral("Material"));
    liste_->setMinimumWidth(260);
    kopf->addWidget(beschriftung(QStringLiteral("Material:"), liste_));
    kopf->addWidget(liste_, 1);
    const auto baue = [&](int index, const QString& text) {
        QPushButton* k = knopf(QStringLiteral("Command2(%1)").arg(index), text);
        kopf->addWidget(k);
        return k;
    };
    neu_ = baue(0, QStringLiteral("Neues Material anlegen"));
    loeschen_ = baue(1, QStringLiteral("Material löschen"));
    bearbeiten_ = baue(2, QStringLiteral("Material bearbeiten"));
    inhalt()->addLayout(kopf);
}

Werteingabe* Form99::werteingabe(std::size_t zeile) {
    const Wertzeile& z = wertzeilen[zeile];
    Wertvorgabe vorgabe;
    vorgabe.beschriftung = QString::fromUtf8(z.beschriftung);
    vorgabe.einheit = QString::fromUtf8(z.einheit);
    const Wertebereich bereich = materialbereich(z.spalte);
    vorgabe.min = bereich.min;
    vorgabe.max = bereich.max;
    vorgabe.maske = QStringLiteral("0.00");
    vorgabe.symbol =
        vorgabe.beschriftung.section(QLatin1Char('='), 0, 0).section(QLatin1Char(':'), -1).trimmed();
    vorgabe.bedeutung = QString::fromUtf8(z.bedeutung);
    werte_.push_back(new Werteingabe(QStringLiteral("TextBox2(%1)").arg(z.index), vorgabe, this));
    return werte_.back();
}

QWidget* Form99::baueKennwerte() {
    auto* rahmen = new QGroupBox(QStringLiteral("Kennwerte"), this);
    auto* grid = new QGridLayout(rahmen);
    grid->setHorizontalSpacing(raster);
    grid->setVerticalSpacing(raster);
    grid->setColumnStretch(2, 1);
    name_->setObjectName(QStringLiteral("Textbox1"));
    name_->setAccessibleName(QStringLiteral("Bezeichnung"));
    grid->addWidget(beschriftung(QStringLiteral("Bezeichnung:"), name_), 0, 0);
    grid->addWidget(name_, 0, 1, 1, 2);
    for (std::size_t i = 0; i < kennwerte; ++i) werteingabe(i)->setzeInZeile(grid, static_cast<int>(i) + 1);
    return rahmen;
}

QGroupBox* Form99::baueKmod(const QString& titel, int ersteZeile) {
    auto* rahmen = new QGroupBox(titel, this);
    auto* grid = new QGridLayout(rahmen);
    grid->setHorizontalSpacing(raster);
    grid->setVerticalSpacing(raster);
    for (std::size_t i = 0; i < kmodWerte; ++i)
        werteingabe(static_cast<std::size_t>(ersteZeile) + i)->setzeInZeile(grid, static_cast<int>(i));
    return rahmen;
}

QWidget* Form99::baueLochleibung() {
    auto* rahmen = new QGroupBox(QStringLiteral("Lochleibungsfestigkeit"), this);
    auto* grid = new QGridLayout(rahmen);
    grid->setHorizontalSpacing(raster);
    grid->setVerticalSpacing(raster / 2);
    grid->setColumnStretch(3, 1);
    for (std::size_t i = 0; i < lochleibungen.size(); ++i) {
        auto* option = new QRadioButton(QString::fromUtf8(lochleibungen[i]), rahmen);
        option->setObjectName(QStringLiteral("Option1(%1)").arg(i));
        option->setAccessibleName(option->text().trimmed());
        lochleibung_->addButton(option, static_cast<int>(i));
        const bool fest = i == festVorgegeben;
        grid->addWidget(option, static_cast<int>(i), 0, 1, fest ? 1 : 4);
    }
    Werteingabe* wert = werteingabe(fh1k);
    wert->setzeInZeile(grid, festVorgegeben, 1);
    return rahmen;
}

void Form99::setzeZustand(Zustand zustand) {
    zustand_ = zustand;
    const bool frei = zustand != Zustand::anzeigen;
    name_->setEnabled(frei);
    for (Werteingabe* wert : werte_) wert->setzeAktiv(frei);
    for (QAbstractButton* option : lochleibung_->buttons()) option->setEnabled(frei);
    uebernehmen_->setEnabled(frei);
    // What was begun is finished first; otherwise a choice would wipe it out.
    liste_->setEnabled(!frei);
    loeschen_->setEnabled(!frei);
    bearbeiten_->setEnabled(!frei);
    neu_->setEnabled(!frei && nimmtWeitereAuf(tabelle_));
    richteLochleibung();
    setzeFarben();
}

// A material that is only shown is there to be read: its boxes are off, but not dimmed.
void Form99::setzeFarben() {
    QPalette farben = palette();
    if (zustand_ == Zustand::anzeigen)
        for (const auto rolle : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            farben.setColor(QPalette::Disabled, rolle, palette().color(QPalette::Active, rolle));
    for (auto* rahmen : findChildren<QGroupBox*>()) rahmen->setPalette(farben);
}

// A fixed fh,1,k is entered only where it is chosen.
void Form99::richteLochleibung() {
    werte_[fh1k]->setzeAktiv(zustand_ != Zustand::anzeigen && lochleibung_->checkedId() == festVorgegeben);
}

void Form99::fuelleListe(int auswahl) {
    {
        const QSignalBlocker still(liste_);
        liste_->clear();
        for (const auto& zeile : tabelle_.zeilen) liste_->addItem(qtext(zeile.name));
        liste_->setCurrentIndex(auswahl);
    }
    Werte(liste_->currentIndex());
    setzeZustand(Zustand::anzeigen);
}

void Form99::leere() {
    name_->clear();
    for (Werteingabe* wert : werte_) wert->setzeLeer();
    lochleibung_->setExclusive(false);
    for (QAbstractButton* option : lochleibung_->buttons()) option->setChecked(false);
    lochleibung_->setExclusive(true);
}

// Shows row `zeile` (from 0); empty cells are empty boxes.
void Form99::Werte(int zeile) {
    leere();
    if (zeile < 0 || static_cast<std::size_t>(zeile) >= tabelle_.zeilen.size()) return;
    const auto& material = tabelle_.zeilen[static_cast<std::size_t>(zeile)];
    name_->setText(qtext(material.name));
    for (std::size_t i = 0; i < wertzeilen.size(); ++i) {
        const auto& zelle = material.zellen[static_cast<std::size_t>(wertzeilen[i].spalte)];
        if (!zelle.leer) werte_[i]->setzeWert(zelle.wert);
    }
    const auto wahl = static_cast<int>(material.zellen[spalteLochleibung].wert) - 1;
    if (QAbstractButton* option = lochleibung_->button(wahl)) option->setChecked(true);
}

EigeneMaterialien::Zeile Form99::eingabe() const {
    EigeneMaterialien::Zeile zeile;
    // The reserved columns of an edited material stay as they are.
    if (zustand_ == Zustand::bearbeiten)
        zeile = tabelle_.zeilen[static_cast<std::size_t>(liste_->currentIndex())];
    zeile.name = utf8(name_->text());
    for (std::size_t i = 0; i < wertzeilen.size(); ++i) {
        const double wert = werte_[i]->wert();
        // A box never filled holds 0, which its range does not allow: the cell stays empty.
        const int spalte = wertzeilen[i].spalte;
        zeile.zellen[static_cast<std::size_t>(spalte)] = {wert, wert < materialbereich(spalte).min};
    }
    const int wahl = lochleibung_->checkedId();
    zeile.zellen[spalteLochleibung] = {static_cast<double>(wahl + 1), wahl < 0};
    return zeile;
}

void Form99::neuesMaterial() {
    leere();
    lochleibung_->buttons().front()->setChecked(true);
    setzeZustand(Zustand::neu);
    name_->setFocus();
}

void Form99::bearbeite() {
    if (liste_->currentIndex() < 0) return;
    Werte(liste_->currentIndex());
    setzeZustand(Zustand::bearbeiten);
    name_->setFocus();
}

void Form99::uebernehmen() {
    if (!eingabenGueltig(*this, meldungen_)) return;
    ersetzeAnfuehrungszeichen(meldungen_, this, {name_});
    if (name_->text().trimmed().isEmpty()) {
        meldungen_.kritisch(this, QStringLiteral(" Fehler"),
                            QStringLiteral("Bitte eine Bezeichnung eingeben!"));
        name_->setFocus();
        return;
    }
    if (zustand_ == Zustand::neu) {
        tabelle_.zeilen.push_back(eingabe());
        fuelleListe(static_cast<int>(tabelle_.zeilen.size()) - 1);
    } else if (zustand_ == Zustand::bearbeiten) {
        const int zeile = liste_->currentIndex();
        tabelle_.zeilen[static_cast<std::size_t>(zeile)] = eingabe();
        fuelleListe(zeile);
    }
}

void Form99::loescheMaterial() {
    if (tabelle_.zeilen.size() <= 1) {
        meldungen_.kritisch(this, QStringLiteral("Hinweis"),
                            QStringLiteral("Mindestens ein Material muss in der Liste erhalten bleiben!"));
        return;
    }
    const Antwort antwort = meldungen_.zeige(
        this, {Symbol::achtung, QStringLiteral("Achtung"),
               QStringLiteral("Soll das Material wirklich gelöscht werden ?"), Knoepfe::jaNein});
    if (antwort != Antwort::ja) return;
    loesche(tabelle_, static_cast<std::size_t>(std::max(liste_->currentIndex(), 0)));
    fuelleListe(0);
}

bool Form99::sichere() {
    const auto fehler = sichereEigeneMaterialien(programm_.datei(materialdatei), tabelle_, gelesen_);
    if (fehler) meldungen_.kritisch(this, QStringLiteral("Fehler"), qtext(fehler->text));
    return !fehler;
}

// A file that cannot be written keeps the window open; the table stays as it is in the program.
void Form99::zurueckUndSichern() {
    if (sichere()) accept();
}

// Esc and the cross of the window save too. Where the file cannot be written they are still a way out: the
// table goes back to what the file holds, so that the program never works with rows that are not on the disk
// and the next opening compares with a table that was read.
void Form99::reject() {
    if (zustand_ != Zustand::anzeigen) {
        const Antwort antwort = meldungen_.zeige(
            this, {Symbol::frage,
                   QStringLiteral("Eigene Materialien"),
                   QStringLiteral(
                       "Das Material in Bearbeitung ist noch nicht übernommen. Soll es verworfen werden?"),
                   Knoepfe::jaNein,
                   {QStringLiteral("Verwerfen"), QStringLiteral("Weiter bearbeiten"), {}},
                   Antwort::nein});
        if (antwort != Antwort::ja) return;
    }
    if (!sichere()) tabelle_ = gelesen_;
    Fenster::reject();
}

}  // namespace rippenscheibe
