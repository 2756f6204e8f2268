#include "ui/input/Eingabedialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "files/Positionsdatei.h"
#include "ui/basics/Freitext.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Wandansicht.h"
#include "ui/controls/Werteingabe.h"
#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Urteilsanzeige.h"

namespace rippenscheibe {

namespace {

constexpr QSize kleinsteSkizze(260, 190);
constexpr const char* geladeneWahl = "geladeneWahl";

// The tab key comes to the chosen one of a row of options, the arrow keys to the others.
void richteTabfolge(const QButtonGroup& auswahl) {
    if (auswahl.checkedButton() == nullptr) return;
    for (QAbstractButton* knopf : auswahl.buttons())
        knopf->setFocusPolicy(knopf->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

}  // namespace

Eingabedialog::Eingabedialog(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
                             const QString& titel)
    : Fenster(programm, meldungen, parent, name, titel) {
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(2 * raster);
    felder_ = new QVBoxLayout;
    felder_->setSpacing(raster + raster / 2);
    skizzen_ = new QVBoxLayout;
    skizzen_->setSpacing(raster);
    spalten->addLayout(felder_);
    spalten->addLayout(skizzen_, 1);
    inhalt()->addLayout(spalten, 1);
    urteil_ = new Urteilszeile(this);
    setzeUeberFuss(urteil_);
}

void Eingabedialog::beginne() {
    // Built last, so that the tab key comes to them behind the fields.
    QPushButton* ende = schaltflaeche(QStringLiteral("ComEnde"), QStringLiteral("Übernehmen &und zurück"));
    ende->setDefault(true);
    connect(ende, &QPushButton::clicked, this, &Eingabedialog::uebernehmen);
    QPushButton* abbruch = schaltflaeche(QStringLiteral("Command1"), QStringLiteral("&Abbruch"));
    connect(abbruch, &QPushButton::clicked, this, &QDialog::reject);

    lade(programm_.w);
    laedt_ = false;
    folgeAenderungen();
    zeichneNeu();
    geheZumFeld();
}

// To the control of the input that someone wants to see.
void Eingabedialog::geheZumFeld() {
    if (programm_.Feldziel.empty()) return;
    const auto ziel = std::ranges::find(bindungen_, programm_.Feldziel, &Bindung::feld);
    if (ziel == bindungen_.end()) return;
    auto* feld = qobject_cast<QWidget*>(ziel->bedienung);
    if (const auto* auswahl = qobject_cast<QButtonGroup*>(ziel->bedienung)) feld = auswahl->checkedButton();
    if (feld != nullptr) feld->setFocus(Qt::TabFocusReason);
}

void Eingabedialog::folgeAenderungen() {
    for (auto* feld : findChildren<Werteingabe*>())
        connect(feld, &Werteingabe::geaendert, this, &Eingabedialog::zeichneNeu);
    for (auto* feld : findChildren<QAbstractButton*>())
        if (feld->isCheckable()) connect(feld, &QAbstractButton::toggled, this, &Eingabedialog::zeichneNeu);
    for (auto* auswahl : findChildren<QButtonGroup*>()) {
        richteTabfolge(*auswahl);
        connect(auswahl, &QButtonGroup::idToggled, this, [auswahl] { richteTabfolge(*auswahl); });
    }
    for (auto* feld : findChildren<QComboBox*>())
        connect(feld, &QComboBox::currentIndexChanged, this, &Eingabedialog::zeichneNeu);
}

void Eingabedialog::lade(const Wand& w) {
    for (const Bindung& bindung : bindungen_) bindung.lade(w);
}

void Eingabedialog::schreibe(Wand& w) const {
    for (const Bindung& bindung : bindungen_) bindung.schreibe(w);
}

void Eingabedialog::beschreibe(QWidget& feld, const Feldangabe& angabe, const QString& zusatz) {
    Wertvorgabe vorgabe;
    vorgabe.bedeutung = qtext(angabe.bedeutung);
    vorgabe.quelle = qtext(angabe.quelle);
    if (!zusatz.isEmpty()) vorgabe.bedeutung += QStringLiteral(", ") + zusatz;
    feld.setToolTip(feldhinweis(vorgabe));
    feld.setAccessibleDescription(vorgabe.bedeutung);
}

void Eingabedialog::waehle(QButtonGroup& auswahl, const std::vector<Wahlwert>& werte, int sonst, int wert) {
    const auto zeile = std::ranges::find(werte, wert, &Wahlwert::wert);
    if (QAbstractButton* knopf = auswahl.button(zeile != werte.end() ? zeile->id : sonst))
        knopf->setChecked(true);
    auswahl.setProperty(geladeneWahl, auswahl.checkedId());
}

std::optional<int> Eingabedialog::gewaehlt(const QButtonGroup& auswahl, const std::vector<Wahlwert>& werte) {
    const auto zeile = std::ranges::find(werte, auswahl.checkedId(), &Wahlwert::id);
    if (zeile == werte.end() || zeile->id == auswahl.property(geladeneWahl).toInt()) return std::nullopt;
    return zeile->wert;
}

void Eingabedialog::zeichneNeu() {
    Wand w = programm_.w;
    schreibe(w);
    zuweisen(w, programm_.felder);
    urteil_->zeige(rechneSofort(w, programm_.felder));
    ergaenzeSkizze(w);
    for (Wandansicht* ansicht : ansichten_) ansicht->setzeWand(w);
}

void Eingabedialog::skizziere(Wandansicht* ansicht) {
    ansicht->setzeDezimalzeichen(dezimalzeichen());
    ansicht->setMinimumSize(kleinsteSkizze);
    ansicht->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);  // as tall as the fields
    skizzen_->addWidget(ansicht, 1);
    ansichten_.push_back(ansicht);
}

void Eingabedialog::uebernehmen() {
    if (!eingabenGueltig(*this, meldungen_)) return;
    const std::string vorher = positionstext(programm_.w);
    for (QLineEdit* feld : findChildren<QLineEdit*>())
        if (qobject_cast<Werteingabe*>(feld) == nullptr) ersetzeAnfuehrungszeichen(meldungen_, this, {feld});
    schreibe(programm_.w);
    if (positionstext(programm_.w) != vorher) programm_.setzeGesichert(false);
    if (const std::optional<Ablehnung> grund = ablehnung(programm_.w)) {
        meldungen_.kritisch(this, grund->titel, grund->text);
        if (grund->feld != nullptr) grund->feld->setFocus(Qt::OtherFocusReason);
        return;
    }
    programm_.zuweisen();
    accept();
}

Werteingabe* Eingabedialog::werteingabe(const QString& name, const Wertvorgabe& vorgabe) {
    return new Werteingabe(name, vorgabe, this);
}

QCheckBox* Eingabedialog::ankreuzfeld(const QString& name, const QString& text) {
    auto* feld = new QCheckBox(text, this);
    feld->setObjectName(name);
    feld->setAccessibleName(text.simplified());
    return feld;
}

QButtonGroup* Eingabedialog::optionen(const QString& name, std::initializer_list<Optionstext> texte) {
    auto* auswahl = new QButtonGroup(this);
    for (const Optionstext& eintrag : texte) option(auswahl, name, eintrag.index, eintrag.text);
    return auswahl;
}

QRadioButton* Eingabedialog::option(QButtonGroup* auswahl, const QString& name, int index,
                                    const QString& text) {
    auto* feld = new QRadioButton(text, this);
    feld->setObjectName(QStringLiteral("%1(%2)").arg(name).arg(index));
    feld->setAccessibleName(text.simplified());
    auswahl->addButton(feld, index);
    return feld;
}

QComboBox* Eingabedialog::liste(const QString& name, const QString& bezeichnung,
                                std::span<const std::string_view> eintraege) {
    auto* feld = new QComboBox(this);
    feld->setObjectName(name);
    feld->setAccessibleName(bezeichnung.simplified());
    for (const std::string_view text : eintraege) feld->addItem(qtext(text));
    return feld;
}

QLabel* Eingabedialog::notiz(const QString& text) {
    auto* schild = new QLabel(text, this);
    schild->setTextFormat(Qt::PlainText);
    schild->setForegroundRole(QPalette::PlaceholderText);
    return schild;
}

QLabel* Eingabedialog::warnung(const QString& name) {
    auto* schild = new QLabel(this);
    schild->setObjectName(name);
    schild->setTextFormat(Qt::PlainText);
    QPalette farben = schild->palette();
    farben.setColor(QPalette::WindowText, urteilsfarben(farben).warnung);
    schild->setPalette(farben);
    schild->hide();
    return schild;
}

QGroupBox* Eingabedialog::gruppe(const QString& titel) {
    auto* rahmen = new QGroupBox(titel, this);
    auto* felder = new QGridLayout(rahmen);
    felder->setHorizontalSpacing(raster);
    felder->setVerticalSpacing(raster);
    return rahmen;
}

QGridLayout* Eingabedialog::grid(QGroupBox* gruppe) { return static_cast<QGridLayout*>(gruppe->layout()); }

void Eingabedialog::waehle(QComboBox* liste, const Ganzzahl& index) {
    liste->setCurrentIndex(index.value() - 1);
}

void Eingabedialog::uebernimm(const QComboBox* liste, Ganzzahl& index) {
    if (liste->currentIndex() >= 0) index = liste->currentIndex() + 1;
}

}  // namespace rippenscheibe
