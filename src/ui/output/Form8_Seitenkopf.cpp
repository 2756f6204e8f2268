#include "ui/output/Form8_Seitenkopf.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>
#include <utility>

#include "report/Seiten.h"
#include "report/Seitenkopf.h"
#include "ui/basics/Freitext.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Pfadwahl.h"
#include "ui/paper/PdfAusgabe.h"
#include "ui/paper/Seitenmaler.h"

namespace rippenscheibe {

namespace {

constexpr int fest = 0;  // the template with fixed texts
constexpr int ohne = 5;  // the one without a head

constexpr std::array<const char*, 6> vorlagentexte{
    "Vorlage 1: Vordefinierter Seitenkopf, nicht änderbar",
    "Vorlage 2: Seitenkopf mit Rahmen u. Schatten",
    "Vorlage 3: Seitenkopf mit Rahmen aber ohne Schatten",
    "Vorlage 4: Seitenkopf, doppelter Rahmen und Schatten",
    "Vorlage 5: Seitenkopf, doppelter Rahmen ohne Schatten",
    "Vorlage 6: Kein Seitenkopf",
};

// The check boxes "Check1" to "Check7" and the settings they hold.
struct Haken {
    const char* text;
    bool Einstellungen::*feld;
};
constexpr std::array<Haken, 7> hakenfelder{{
    {"Logo drucken (ca. 1,5 x 1,5 cm)", &Einstellungen::LogoDrucken},
    {"Fußzeile drucken", &Einstellungen::FusszeileDrucken},
    {"Seitenzahl standardmäßig drucken", &Einstellungen::SeitenzahlStandard},
    {"Systembilder standardmäßig drucken", &Einstellungen::SystembildStandard},
    {"Schnittkraftlinien etc. standardmäßig drucken", &Einstellungen::SchnittkraftStandard},
    {"Programmname drucken (empfohlen)", &Einstellungen::ProgrammnameDrucken},
    {"BLATT anstatt Bezeichnung SEITE drucken", &Einstellungen::BlattStattSeite},
}};
constexpr std::size_t hakenProgrammname = 5;

// The font of one text line of the head.
struct Kopfschrift {
    std::string& name;
    bool& fett;
    bool& kursiv;
    bool& unterstrichen;
};
Kopfschrift kopfschrift(Einstellungen& e, std::size_t zeile) {
    if (zeile == 0) return {e.Kopf1Schrift, e.Kopf1Fett, e.Kopf1Kursiv, e.Kopf1Unterstrichen};
    return {e.Kopf2Schrift, e.Kopf2Fett, e.Kopf2Kursiv, e.Kopf2Unterstrichen};
}

QFont qfont(const Kopfschrift& s) {
    Schrift schrift{.fett = s.fett, .kursiv = s.kursiv, .unterstrichen = s.unterstrichen};
    if (!s.name.empty()) schrift.name = s.name;
    return papierschrift(schrift);
}

// The strips of the page that the preview shows, mm.
constexpr double seitenbreite = 210;
constexpr double kopfhoehe = 30;
constexpr double fussbeginn = 271;
constexpr double fusshoehe = 12;
constexpr double trennung = 3;  // between the strips
constexpr double vorschauhoehe = kopfhoehe + trennung + fusshoehe;

}  // namespace

// ---- The preview ----

Kopfvorschau::Kopfvorschau(const Wand& w, QImage logo, QWidget* parent)
    : QWidget(parent), w_(w), logo_(std::move(logo)) {
    QSizePolicy verhalten(QSizePolicy::Expanding, QSizePolicy::Fixed);
    verhalten.setHeightForWidth(true);
    setSizePolicy(verhalten);
}

void Kopfvorschau::zeige(const Einstellungen& e) {
    e_ = e;
    update();
}

QSize Kopfvorschau::sizeHint() const { return {680, heightForWidth(680)}; }

int Kopfvorschau::heightForWidth(int breite) const {
    return static_cast<int>(std::lround(breite * vorschauhoehe / seitenbreite));
}

void Kopfvorschau::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double mm = width() / seitenbreite;
    Druckauftrag auftrag{
        .einstellungen = e_, .zaehlung = {}, .Projekt = w_.Projekt, .Position = w_.Position, .anlauf = {}};
    auftrag.zaehlung.SeitenzahlDrucken = e_.SeitenzahlStandard;
    auftrag.zaehlung.Startseite = 1;

    // Paper is white in a dark window too.
    const auto streifen = [&](double oben, double hoehe, double seitenoben, auto&& zeichne) {
        painter.save();
        painter.fillRect(QRectF(0, oben * mm, width(), hoehe * mm), Qt::white);
        painter.setClipRect(QRectF(0, oben * mm, width(), hoehe * mm));
        painter.translate(0, (oben - seitenoben) * mm);
        Seitenmaler maler(painter, mm, {w_, logo_});
        zeichne(maler);
        painter.restore();
    };
    streifen(0, kopfhoehe, 0, [&](Zeichenflaeche& f) { druckeKopf(f, e_, seitenzahl(auftrag, 1)); });
    streifen(kopfhoehe + trennung, fusshoehe, fussbeginn,
             [&](Zeichenflaeche& f) { druckeFuss(f, e_, auftrag.Projekt, auftrag.Position); });
}

// ---- Building ----

Form8::Form8(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form8"),
              QStringLiteral("  Einstellungen für Seitenkopf und Standardpfad"), Tippen::aendertNichts),
      beimOeffnen_(programm.einstellungen),
      eigeneTexte_{beimOeffnen_.Kopfzeile1, beimOeffnen_.Kopfzeile2} {
    vorschau_ = new Kopfvorschau(programm.w, liesLogo(programm.ordner), this);
    vorschau_->setObjectName(QStringLiteral("Vorschau"));
    vorschau_->setAccessibleName(QStringLiteral("Vorschau von Seitenkopf und Fußzeile"));
    inhalt()->addWidget(vorschau_);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * raster);
    grid->setVerticalSpacing(raster);
    grid->addWidget(baueTexte(), 0, 0, 1, 2);
    grid->addWidget(baueVorlagen(), 1, 0);
    grid->addWidget(baueHaken(), 1, 1);
    grid->addWidget(bauePfad(), 2, 0, 1, 2);
    grid->addWidget(baueLogo(), 3, 0);
    grid->addWidget(
        knopf(QStringLiteral("Command8"), QStringLiteral("Liste mit Projekten löschen (bei Projektdaten)"),
              &Form8::leereProjekte),
        3, 1, Qt::AlignRight | Qt::AlignTop);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);
    inhalt()->addLayout(grid, 1);

    QPushButton* vor = schaltflaeche(QStringLiteral("Command6"), QStringLiteral("Voreinstellung"));
    connect(vor, &QPushButton::clicked, this, &Form8::setzeVoreinstellung);
    QPushButton* ja = schaltflaeche(QStringLiteral("Command3"), QStringLiteral("Übernehmen"));
    ja->setDefault(true);
    connect(ja, &QPushButton::clicked, this, &Form8::uebernehmen);
    QPushButton* nein = schaltflaeche(QStringLiteral("Command2"), QStringLiteral("Abbruch"));
    connect(nein, &QPushButton::clicked, this, &Form8::reject);

    lade();
    connect(vorlagen_, &QListWidget::currentRowChanged, this, &Form8::waehleVorlage);
    for (QLineEdit* feld : texte_) connect(feld, &QLineEdit::textEdited, this, &Form8::uebernimmTexte);
    for (QCheckBox* feld : haken_) connect(feld, &QCheckBox::toggled, this, &Form8::zeigeVorschau);
}

QPushButton* Form8::knopf(const QString& name, const QString& text, void (Form8::*tue)()) {
    QPushButton* k = Fenster::knopf(name, text);
    connect(k, &QPushButton::clicked, this, tue);
    return k;
}

QWidget* Form8::baueTexte() {
    auto* teil = new QWidget(this);
    auto* grid = new QGridLayout(teil);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(raster);
    grid->setVerticalSpacing(raster);
    textknoepfe_ = {
        knopf(QStringLiteral("Command5"), QStringLiteral("Text ändern (oben eingeben)"), &Form8::aendereText),
        knopf(QStringLiteral("Command4"), QStringLiteral("Einstellungen erste Zeile"),
              &Form8::waehleSchrift1),
        knopf(QStringLiteral("Command7"), QStringLiteral("Einstellungen zweite Zeile"),
              &Form8::waehleSchrift2)};
    for (int i = 0; i < 2; ++i) {
        auto* feld = new QLineEdit(teil);
        feld->setObjectName(QStringLiteral("Text%1").arg(i + 1));
        feld->setAccessibleName(i == 0 ? QStringLiteral("erste Zeile") : QStringLiteral("zweite Zeile"));
        auto* schild =
            new QLabel(i == 0 ? QStringLiteral("Erste Zeile :") : QStringLiteral("Zweite Zeile :"), teil);
        schild->setBuddy(feld);
        schild->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(schild, i, 0);
        grid->addWidget(feld, i, 1);
        grid->addWidget(textknoepfe_[static_cast<std::size_t>(i) + 1], i, 2);
        texte_[static_cast<std::size_t>(i)] = feld;
    }
    grid->addWidget(textknoepfe_[0], 2, 1, Qt::AlignLeft);
    grid->setColumnStretch(1, 1);
    return teil;
}

QWidget* Form8::baueVorlagen() {
    auto* teil = new QWidget(this);
    auto* reihe = new QVBoxLayout(teil);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(raster / 2);
    vorlagen_ = new QListWidget(teil);
    vorlagen_->setObjectName(QStringLiteral("List1"));
    vorlagen_->setAccessibleName(QStringLiteral("Vorhandene Seitenköpfe"));
    for (const char* text : vorlagentexte) vorlagen_->addItem(QString::fromUtf8(text));
    vorlagen_->setMinimumWidth(vorlagen_->sizeHintForColumn(0) + 3 * raster);
    auto* schild = new QLabel(QStringLiteral("Vorhandene Seitenköpfe :"), teil);
    schild->setBuddy(vorlagen_);
    reihe->addWidget(schild);
    reihe->addWidget(vorlagen_, 1);
    return teil;
}

QGroupBox* Form8::baueHaken() {
    auto* rahmen = new QGroupBox(QStringLiteral("Ausdruck"), this);
    auto* reihe = new QVBoxLayout(rahmen);
    reihe->setSpacing(raster);
    for (std::size_t i = 0; i < hakenfelder.size(); ++i) {
        haken_[i] = new QCheckBox(QString::fromUtf8(hakenfelder[i].text), rahmen);
        haken_[i]->setObjectName(QStringLiteral("Check%1").arg(i + 1));
        haken_[i]->setAccessibleName(haken_[i]->text());
        reihe->addWidget(haken_[i]);
    }
    return rahmen;
}

QWidget* Form8::bauePfad() {
    auto* teil = new QWidget(this);
    auto* reihe = new QHBoxLayout(teil);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(raster);
    pfad_ = new QLineEdit(teil);
    pfad_->setObjectName(QStringLiteral("Text3"));
    pfad_->setAccessibleName(QStringLiteral("Standardpfad"));
    auto* schild = new QLabel(QStringLiteral("Standardpfad:"), teil);
    schild->setBuddy(pfad_);
    reihe->addWidget(schild);
    reihe->addWidget(pfad_, 1);
    reihe->addWidget(knopf(QStringLiteral("Command1"), QStringLiteral("Pfad auswählen"), &Form8::waehlePfad));
    return teil;
}

QWidget* Form8::baueLogo() {
    constexpr int kante = 57;  // px, 15 mm
    auto* teil = new QWidget(this);
    auto* reihe = new QHBoxLayout(teil);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(raster);
    auto* bild = new QLabel(teil);
    bild->setObjectName(QStringLiteral("Image1"));
    bild->setAccessibleName(QStringLiteral("aktuelles Logo"));
    bild->setFixedSize(kante, kante);
    bild->setFrameShape(QFrame::StyledPanel);
    bild->setAlignment(Qt::AlignCenter);
    bild->setScaledContents(true);
    const QImage logo = liesLogo(programm_.ordner);
    if (!logo.isNull()) bild->setPixmap(QPixmap::fromImage(logo));
    reihe->addWidget(bild);
    reihe->addWidget(new QLabel(QStringLiteral("aktuelles Logo (ca .Druckgröße)"), teil), 1);
    bild->setToolTip(QStringLiteral("Die Datei \"Logo.jpg\" im Ordner des Programms"));
    return teil;
}

// ---- Loading and choosing ----

void Form8::lade() {
    const Einstellungen& e = programm_.einstellungen;
    for (std::size_t i = 0; i < haken_.size(); ++i) haken_[i]->setChecked(e.*hakenfelder[i].feld);
    pfad_->setText(qtext(e.StandardPfad.empty() ? vorgabepfad : std::string_view(e.StandardPfad)));
    vorlagen_->setCurrentRow(e.Kopfvorlage.value());
    waehleVorlage(e.Kopfvorlage.value());
    zeigeSchriften();
    vorlagen_->setFocus();
}

// A template without texts of its own shows and stores others; the user's texts come back with the next
// template that has them.
void Form8::waehleVorlage(int vorlage) {
    if (vorlage < 0) return;
    std::array<std::string, 2> inhalt = eigeneTexte_;
    if (vorlage == fest) inhalt = {std::string(kopfzeile1Vorlage0), std::string(kopfzeile2Vorlage0)};
    if (vorlage == ohne) inhalt = {};
    const bool aenderbar = vorlage != fest && vorlage != ohne;
    for (std::size_t i = 0; i < texte_.size(); ++i) {
        texte_[i]->setText(qtext(inhalt[i]));
        texte_[i]->setReadOnly(!aenderbar);
    }
    // Without a head there is no text to change or style either.
    for (QPushButton* k : textknoepfe_) k->setEnabled(aenderbar);
    if (vorlage == fest) haken_[hakenProgrammname]->setChecked(true);
    haken_[hakenProgrammname]->setEnabled(vorlage != fest);
    programm_.einstellungen.Kopfvorlage = vorlage;
    programm_.einstellungen.Kopfzeile1 = inhalt[0];
    programm_.einstellungen.Kopfzeile2 = inhalt[1];
    zeigeVorschau();
}

void Form8::uebernimmTexte() {
    eigeneTexte_ = {utf8(texte_[0]->text()), utf8(texte_[1]->text())};
    programm_.einstellungen.Kopfzeile1 = eigeneTexte_[0];
    programm_.einstellungen.Kopfzeile2 = eigeneTexte_[1];
    zeigeVorschau();
}

// The boxes show the texts in their fonts.
void Form8::zeigeSchriften() {
    for (std::size_t i = 0; i < texte_.size(); ++i)
        texte_[i]->setFont(qfont(kopfschrift(programm_.einstellungen, i)));
    zeigeVorschau();
}

// What is chosen, with boxes that are not accepted yet.
void Form8::zeigeVorschau() {
    Einstellungen e = programm_.einstellungen;
    for (std::size_t i = 0; i < haken_.size(); ++i) e.*hakenfelder[i].feld = haken_[i]->isChecked();
    vorschau_->zeige(e);
}

// ---- Buttons ----

void Form8::aendereText() {
    for (QLineEdit* feld : texte_) feld->setReadOnly(false);
    texte_[0]->setFocus();
}

void Form8::waehleSchrift1() { waehleSchrift(0); }
void Form8::waehleSchrift2() { waehleSchrift(1); }

// Name and styles are taken at once; the size is always 10.
void Form8::waehleSchrift(std::size_t zeile) {
    const Kopfschrift s = kopfschrift(programm_.einstellungen, zeile);
    const std::optional<QFont> neu = meldungen_.waehleSchrift(this, qfont(s));
    if (!neu) return;
    s.name = utf8(neu->family());
    s.fett = neu->bold();
    s.kursiv = neu->italic();
    s.unterstrichen = neu->underline();
    zeigeSchriften();
}

void Form8::waehlePfad() {
    if (Pfadwahl(programm_, meldungen_, this, Pfadwahl::Zweck::standardpfad).exec() == QDialog::Accepted)
        pfad_->setText(qtext(programm_.einstellungen.StandardPfad));
}

void Form8::leereProjekte() { programm_.projekte.eintraege.assign(1, {}); }

void Form8::setzeVoreinstellung() {
    const Einstellungen vorgabe;
    Einstellungen& e = programm_.einstellungen;
    for (std::size_t i = 0; i < texte_.size(); ++i) {
        Einstellungen quelle = vorgabe;
        const Kopfschrift neu = kopfschrift(quelle, i);
        const Kopfschrift s = kopfschrift(e, i);
        s.name = neu.name;
        s.fett = neu.fett;
        s.kursiv = neu.kursiv;
        s.unterstrichen = neu.unterstrichen;
    }
    for (std::size_t i = 0; i < haken_.size(); ++i) haken_[i]->setChecked(vorgabe.*hakenfelder[i].feld);
    pfad_->setText(qtext(vorgabe.StandardPfad));
    eigeneTexte_ = {vorgabe.Kopfzeile1, vorgabe.Kopfzeile2};
    vorlagen_->setCurrentRow(vorgabe.Kopfvorlage.value());
    waehleVorlage(vorgabe.Kopfvorlage.value());
    zeigeSchriften();
}

void Form8::uebernehmen() {
    if (!pfadIstSpeicherbar(meldungen_, *pfad_)) return;
    if (!texte_[0]->isReadOnly()) {
        ersetzeAnfuehrungszeichen(meldungen_, this, {texte_[0], texte_[1]});
        uebernimmTexte();
    }
    Einstellungen& e = programm_.einstellungen;
    e.StandardPfad = pfad_->text().isEmpty() ? std::string(vorgabepfad) : utf8(pfad_->text());
    programm_.DialogOrdner = qtext(e.StandardPfad);
    for (std::size_t i = 0; i < haken_.size(); ++i) e.*hakenfelder[i].feld = haken_[i]->isChecked();
    // Settings that cannot be written hold until the program ends.
    if (const auto fehler = programm_.sichereEinstellungen())
        meldungen_.kritisch(this, QStringLiteral("Fehler"), qtext(fehler->text));
    accept();
}

// Check boxes are stored on accept only, so there is nothing to bring back. Meant: fonts stay as they were
// chosen.
void Form8::reject() {
    Einstellungen& e = programm_.einstellungen;
    e.Kopfvorlage = beimOeffnen_.Kopfvorlage;
    e.Kopfzeile1 = beimOeffnen_.Kopfzeile1;
    e.Kopfzeile2 = beimOeffnen_.Kopfzeile2;
    e.StandardPfad = beimOeffnen_.StandardPfad;
    Fenster::reject();
}

}  // namespace rippenscheibe
