#include "ui/output/Form6_Druck.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdint>
#include <limits>

#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Zieldatei.h"
#include "ui/controls/Werteingabe.h"
#include "ui/derivation/Rechenwegdruck.h"
#include "ui/paper/Druckdialog.h"
#include "ui/paper/Druckpuffer.h"

namespace rippenscheibe {

namespace {

constexpr double groessteSeite = std::numeric_limits<std::int16_t>::max();

// Thrown through the page machine when the user stops the job.
struct Druckstopp {};

bool hatBemerkungen(const Wand& w) {
    const bool vor = std::any_of(w.Vorbemerkungen.begin(), w.Vorbemerkungen.end(),
                                 [](const std::string& zeile) { return !zeile.empty(); });
    return vor || w.AnzahlZusatzbemerkungen.value() != 0;
}

}  // namespace

Form6::Form6(Programm& programm, Meldungen& meldungen, QWidget* parent, Wahl wahl)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form6"), QStringLiteral("   Drucken "),
              Tippen::aendertNichts),
      logo_(liesLogo(programm.ordner)) {
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(2 * raster);
    optionen_ = baueOptionen();
    spalten->addWidget(optionen_);
    spalten->addWidget(baueVorschau(), 1);
    inhalt()->addLayout(spalten, 1);

    fortschritt_ = new QProgressBar(this);
    fortschritt_->setObjectName(QStringLiteral("ProgressBar1"));
    fortschritt_->setAccessibleName(QStringLiteral("Fortschritt"));
    fortschritt_->setTextVisible(false);
    fortschritt_->setFixedWidth(25 * raster);
    fortschritt_->hide();  // until a job starts
    fusszeile()->insertWidget(0, fortschritt_);

    QPushButton* start = schaltflaeche(QStringLiteral("Command1"), QStringLiteral("Drucken"));
    start->setToolTip(QStringLiteral("Startet den Ausdruck / Export"));
    start->setDefault(true);
    QPushButton* alsPdf = schaltflaeche(QStringLiteral("ComPdf"), QStringLiteral("Als PDF speichern"));
    alsPdf->setToolTip(QStringLiteral("Schreibt den Ausdruck in eine PDF-Datei"));
    alsRtf_ = schaltflaeche(QStringLiteral("ComRtf"), QStringLiteral("Als RTF speichern"));
    alsRtf_->setToolTip(QStringLiteral("Schreibt den Rechenweg in eine RTF-Datei"));
    stopp_ = schaltflaeche(QStringLiteral("Command3"), QStringLiteral("Druck stoppen"));
    stopp_->setToolTip(QStringLiteral("Löscht den Druckauftrag"));
    stopp_->setEnabled(false);
    QPushButton* abbruch = schaltflaeche(QStringLiteral("Command2"), QStringLiteral("Abbruch"));
    abbruch->setToolTip(QStringLiteral("Zurück zum Programm"));

    connect(start, &QPushButton::clicked, this, &Form6::drucke);
    connect(alsPdf, &QPushButton::clicked, this, &Form6::speicherePdf);
    connect(alsRtf_, &QPushButton::clicked, this, &Form6::speichereRtf);
    connect(stopp_, &QPushButton::clicked, this, [this] { gestoppt_ = true; });
    connect(abbruch, &QPushButton::clicked, this, &Form6::reject);

    lade();
    if (wahl == Wahl::rechenweg) rechenweg_->setChecked(true);
    waehleForm();
    folgeAenderungen();
    resize(1040, 720);
}

// ---- Building ----

QCheckBox* Form6::ankreuzfeld(const QString& name, const QString& text) {
    auto* feld = new QCheckBox(text, this);
    feld->setObjectName(name);
    feld->setAccessibleName(text);
    return feld;
}

QWidget* Form6::baueOptionen() {
    auto* spalte = new QWidget(this);
    auto* reihe = new QVBoxLayout(spalte);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(raster);
    reihe->addWidget(baueForm());
    reihe->addWidget(baueUmfang());
    reihe->addWidget(baueSeitenzahl());
    reihe->addWidget(baueLogo());
    reihe->addStretch(1);
    return spalte;
}

QGroupBox* Form6::baueForm() {
    auto* rahmen = new QGroupBox(QStringLiteral("Form"), this);
    rahmen->setObjectName(QStringLiteral("Frame1"));
    auto* reihe = new QVBoxLayout(rahmen);
    reihe->setSpacing(raster);
    lang_ = new QRadioButton(QStringLiteral("ausführlicher Ausdruck"), rahmen);
    lang_->setObjectName(QStringLiteral("Option1(1)"));
    lang_->setChecked(true);
    auto* kurz = new QRadioButton(QStringLiteral("Kurzausdruck"), rahmen);
    kurz->setObjectName(QStringLiteral("Option1(0)"));
    rechenweg_ = new QRadioButton(QStringLiteral("Rechenweg"), rahmen);
    rechenweg_->setObjectName(QStringLiteral("Option1(2)"));
    rechenweg_->setToolTip(QStringLiteral("Woher jede Zahl des Berichts kommt, mit einem Prüfblatt davor"));
    for (QRadioButton* knopf : {lang_, kurz, rechenweg_}) {
        knopf->setAccessibleName(knopf->text());
        reihe->addWidget(knopf);
    }
    return rahmen;
}

QGroupBox* Form6::baueUmfang() {
    auto* rahmen = umfang_ = new QGroupBox(QStringLiteral("Umfang"), this);
    rahmen->setObjectName(QStringLiteral("Frame4"));
    auto* reihe = new QVBoxLayout(rahmen);
    reihe->setSpacing(raster);
    bemerkungen_ = ankreuzfeld(QStringLiteral("Check1(8)"), QStringLiteral("Bemerkungen"));
    systemgrafik_ = ankreuzfeld(QStringLiteral("Check2"), QStringLiteral("Systemgrafik drucken"));
    randbedingungen_ = ankreuzfeld(QStringLiteral("Check4"), QStringLiteral("Randbedingungen drucken"));
    randbedingungen_->setChecked(true);
    // Meant: no line of the report depends on this box; the proof is printed when it was made.
    QCheckBox* lagesicherheit =
        ankreuzfeld(QStringLiteral("Check3"), QStringLiteral("Nachweis der Lagesicherheit drucken"));
    lagesicherheit->setChecked(true);
    for (QCheckBox* feld : {bemerkungen_, systemgrafik_, randbedingungen_, lagesicherheit})
        reihe->addWidget(feld);
    return rahmen;
}

QGroupBox* Form6::baueSeitenzahl() {
    auto* rahmen = new QGroupBox(QStringLiteral("Seitenzahl"), this);
    rahmen->setObjectName(QStringLiteral("Frame5"));
    auto* grid = new QGridLayout(rahmen);
    grid->setHorizontalSpacing(raster);
    grid->setVerticalSpacing(raster);
    seitenzahl_ = ankreuzfeld(QStringLiteral("Check12"), QStringLiteral("Seitenzahl drucken"));
    grid->addWidget(seitenzahl_, 0, 0, 1, 3);
    const auto zahl = [&](const QString& name, const QString& text, int zeile) {
        auto* feld = new Werteingabe(name,
                                     {.beschriftung = text,
                                      .einheit = {},
                                      .min = 0,
                                      .max = groessteSeite,
                                      .maske = QStringLiteral("0"),
                                      .hoechstlaenge = 5},
                                     rahmen);
        feld->setzeInZeile(grid, zeile);
        return feld;
    };
    startseite_ = zahl(QStringLiteral("Textbox1"), QStringLiteral("Startseite :"), 1);
    suffix_ = zahl(QStringLiteral("Textbox100"), QStringLiteral("Suffix :"), 2);
    index_ = new QLineEdit(rahmen);
    index_->setObjectName(QStringLiteral("Text200"));
    index_->setAccessibleName(QStringLiteral("Index"));
    index_->setFixedWidth(12 * raster);
    indexschild_ = new QLabel(QStringLiteral("Index :"), rahmen);
    indexschild_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    indexschild_->setBuddy(index_);
    grid->addWidget(indexschild_, 3, 0);
    grid->addWidget(index_, 3, 1);
    grid->setColumnStretch(2, 1);
    return rahmen;
}

QWidget* Form6::baueLogo() {
    auto* bild = new QLabel(this);
    bild->setObjectName(QStringLiteral("Picture1"));
    bild->setAccessibleName(QStringLiteral("Logo im Seitenkopf"));
    bild->setVisible(!logo_.isNull());
    constexpr int kante = 56;  // px, about the size on paper
    if (!logo_.isNull())
        bild->setPixmap(QPixmap::fromImage(
            logo_.scaled({kante, kante}, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
    return bild;
}

QWidget* Form6::baueVorschau() {
    vorschaudrucker_.setPageSize(programm_.drucker().pageLayout().pageSize());
    vorschaudrucker_.setFullPage(true);
    auto* spalte = new QWidget(this);
    auto* reihe = new QVBoxLayout(spalte);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(raster / 2);
    auto* leiste = new QHBoxLayout;
    leiste->setSpacing(raster / 2);
    vorschau_ = new QPrintPreviewWidget(&vorschaudrucker_, spalte);
    vorschau_->setObjectName(QStringLiteral("Vorschau"));
    vorschau_->setAccessibleName(QStringLiteral("Vorschau der Seiten"));
    vorschau_->setZoomMode(QPrintPreviewWidget::FitToWidth);
    seitenanzahl_ = new QLabel(spalte);
    seitenanzahl_->setObjectName(QStringLiteral("Seitenanzahl"));
    seitenanzahl_->setForegroundRole(QPalette::PlaceholderText);
    leiste->addWidget(seitenanzahl_);
    const auto knopf = [&](const QString& name, const QString& text, auto&& tue) {
        auto* k = new QToolButton(spalte);
        k->setObjectName(name);
        k->setText(text);
        k->setAccessibleName(text);
        k->setAutoRaise(true);
        connect(k, &QToolButton::clicked, vorschau_, tue);
        leiste->addWidget(k);
    };
    knopf(QStringLiteral("VorigeSeite"), QStringLiteral("Vorige Seite"),
          [this] { vorschau_->setCurrentPage(std::max(vorschau_->currentPage() - 1, 1)); });
    knopf(QStringLiteral("NaechsteSeite"), QStringLiteral("Nächste Seite"), [this] {
        vorschau_->setCurrentPage(std::min(vorschau_->currentPage() + 1, vorschau_->pageCount()));
    });
    leiste->addStretch(1);
    knopf(QStringLiteral("Kleiner"), QStringLiteral("Kleiner"), [this] { vorschau_->zoomOut(); });
    knopf(QStringLiteral("Groesser"), QStringLiteral("Größer"), [this] { vorschau_->zoomIn(); });
    knopf(QStringLiteral("Seitenbreite"), QStringLiteral("Seitenbreite"),
          [this] { vorschau_->setZoomMode(QPrintPreviewWidget::FitToWidth); });
    knopf(QStringLiteral("GanzeSeite"), QStringLiteral("Ganze Seite"),
          [this] { vorschau_->setZoomMode(QPrintPreviewWidget::FitInView); });
    reihe->addLayout(leiste);
    reihe->addWidget(vorschau_, 1);
    connect(vorschau_, &QPrintPreviewWidget::paintRequested, this, &Form6::zeigeVorschau);
    connect(vorschau_, &QPrintPreviewWidget::previewChanged, this, &Form6::zeigeSeite);
    // The page in view changes by scrolling, which the preview does not tell. It counts it on the same
    // signal, and connected first.
    for (auto* leisteDaneben : vorschau_->findChildren<QScrollBar*>())
        connect(leisteDaneben, &QScrollBar::valueChanged, this, &Form6::zeigeSeite);
    return spalte;
}

// ---- Loading ----

void Form6::lade() {
    const bool bemerkungen = hatBemerkungen(programm_.w);
    bemerkungen_->setChecked(bemerkungen);
    bemerkungen_->setEnabled(bemerkungen);
    systemgrafik_->setChecked(programm_.einstellungen.SystembildStandard);

    startseite_->setzeWert(liesLetzteSeite(programm_.datei(seitendatei)) + 1);
    suffix_->setzeWert(0);
    seitenzahl_->setChecked(programm_.SeitenzahlDrucken);
    setzeZaehlung(programm_.SeitenzahlDrucken);
    if (!programm_.einstellungen.SeitenzahlStandard) {
        // Meant: suffix and index keep their state here.
        seitenzahl_->setChecked(false);
        startseite_->setzeAktiv(false);
    }
}

void Form6::setzeZaehlung(bool an) {
    startseite_->setzeAktiv(an);
    suffix_->setzeAktiv(an);
    indexschild_->setEnabled(an);
    index_->setEnabled(an);
}

// The derivation has no parts to choose from.
void Form6::waehleForm() {
    if (rechenweg_->isChecked() && dokument_ == nullptr) {
        dokument_ = rechenwegdokument(letzterLauf(programm_));
        if (dokument_ == nullptr) {
            lang_->setChecked(true);
            rechenweg_->setEnabled(false);
            rechenweg_->setToolTip(
                QStringLiteral("Der letzte Lauf ist nicht mehr bekannt: bitte neu berechnen."));
        }
    }
    umfang_->setEnabled(!rechenweg_->isChecked());
    alsRtf_->setEnabled(rechenweg_->isChecked());
}

void Form6::folgeAenderungen() {
    connect(rechenweg_, &QRadioButton::toggled, this, &Form6::waehleForm);
    connect(seitenzahl_, &QCheckBox::toggled, this, &Form6::setzeZaehlung);
    // One new preview for a burst of changes.
    auto* uhr = new QTimer(this);
    uhr->setSingleShot(true);
    uhr->setInterval(0);
    connect(uhr, &QTimer::timeout, vorschau_, &QPrintPreviewWidget::updatePreview);
    const auto neu = [uhr] { uhr->start(); };
    for (auto* feld : optionen_->findChildren<QAbstractButton*>())
        connect(feld, &QAbstractButton::toggled, this, neu);
    for (Werteingabe* feld : {startseite_, suffix_}) connect(feld, &Werteingabe::geaendert, this, neu);
    connect(index_, &QLineEdit::textChanged, this, neu);
}

// ---- Printing ----

Ausdruck Form6::ausdruck() const {
    Ausdruck a = standardausdruck(programm_.w, programm_.einstellungen, logo_);
    a.form = lang_->isChecked() ? Form::lang : Form::kurz;
    if (rechenweg_->isChecked()) a.dokument = dokument_;
    a.optionen.Systemgrafik = systemgrafik_->isChecked();
    a.optionen.MitBemerkungen = bemerkungen_->isChecked();
    a.optionen.MitRandbedingungen = randbedingungen_->isChecked();
    a.auftrag.zaehlung = {};
    if (seitenzahl_->isChecked())
        a.auftrag.zaehlung = {.SeitenzahlDrucken = true,
                              .Startseite = static_cast<int>(startseite_->wert()),
                              .Suffix = static_cast<int>(suffix_->wert()),
                              .IndexText = utf8(index_->text())};
    return a;
}

void Form6::zeigeVorschau(QPrinter* drucker) {
    const Ausdruck a = ausdruck();
    aufGeraet(*drucker, programm_.w, a, [&](Zeichenflaeche& f) { setze(f, programm_.w, a); });
}

void Form6::zeigeSeite() {
    seitenanzahl_->setText(
        QStringLiteral("Seite %1 von %2").arg(vorschau_->currentPage()).arg(vorschau_->pageCount()));
}

void Form6::uebernimmZaehlung() {
    programm_.SeitenzahlDrucken = seitenzahl_->isChecked();
    programm_.einstellungen.Suffix = seitenzahl_->isChecked() ? suffix_->wert() : 0.0;
}

void Form6::drucke() {
    if (!eingabenGueltig(*this, meldungen_)) return;
    setWindowTitle(QStringLiteral("    Ausdruck erfolgt...."));
    uebernimmZaehlung();
    clsPrintDialog dialog(programm_.drucker(), meldungen_, this);
    dialog.PD_PrintSetup = true;
    // The sheets of this job, as the preview counts them.
    const auto blaetter = static_cast<std::int16_t>(vorschau_->pageCount());
    dialog.PDnMinPage = dialog.PDnFromPage = std::min<std::int16_t>(blaetter, 1);
    dialog.PDnMaxPage = dialog.PDnToPage = blaetter;
    dialog.ShowPrinter();
    if (dialog.Cancelled()) {
        setWindowTitle(QStringLiteral(" Drucken"));
        return;
    }
    const bool auswahl = dialog.PD_PageNums && dialog.PDnFromPage > 0;
    erstesBlatt_ = auswahl ? dialog.PDnFromPage : 1;
    letztesBlatt_ = auswahl ? dialog.PDnToPage : std::numeric_limits<int>::max();
    druckt_ = true;
    gestoppt_ = false;
    optionen_->setEnabled(false);
    const auto knoepfe = findChildren<QPushButton*>();
    for (QPushButton* knopf : knoepfe) knopf->setEnabled(knopf == stopp_);
    const bool gesendet = setzeUndSende();
    for (QPushButton* knopf : knoepfe) knopf->setEnabled(knopf != stopp_);
    alsRtf_->setEnabled(rechenweg_->isChecked());
    optionen_->setEnabled(true);
    druckt_ = false;
    if (gestoppt_) setWindowTitle(QStringLiteral(" Drucken"));
    fortschritt_->hide();
    // When the printer fails the window stays as it is, and nothing is reported.
    if (gesendet) accept();
}

// First all pages are laid out, which can be stopped; then they go to the printer.
bool Form6::setzeUndSende() {
    Ausdruck a = ausdruck();
    a.auftrag.anlauf = [this] { zeigeAnlauf(); };
    Druckpuffer puffer([this] { pruefeStopp(); });
    Druckergebnis ergebnis;
    try {
        ergebnis = setze(puffer, programm_.w, a);
        pruefeStopp();
    } catch (const Druckstopp&) {
        return false;
    }
    QPrinter& drucker = programm_.drucker();
    drucker.setFullPage(true);
    drucker.setDocName(dokumenttitel(programm_.w));
    drucker.setCreator(QStringLiteral("Rippenscheibe"));
    const auto abgeschnitten = aufGeraet(
        drucker, programm_.w, a, [&](Zeichenflaeche& f) { puffer.spiele(f, erstesBlatt_, letztesBlatt_); });
    if (!abgeschnitten) return false;
    if (!abgeschnitten->isEmpty())
        meldungen_.hinweis(this, QStringLiteral("Drucken"), abgeschnittenText(*abgeschnitten));
    merkeSeite(ergebnis);
    return true;
}

// A moving bar while the job starts; it measures nothing.
void Form6::zeigeAnlauf() {
    constexpr int schritte = 4000;
    fortschritt_->show();
    fortschritt_->setRange(1, schritte);
    for (int i = 1; i <= schritte; ++i) fortschritt_->setValue(i);
    pruefeStopp();
}

// Lets the stop button work, and leaves the page machine when it was pressed.
void Form6::pruefeStopp() const {
    QCoreApplication::processEvents();
    if (gestoppt_) throw Druckstopp{};
}

void Form6::reject() {
    if (druckt_) {
        gestoppt_ = true;
        return;
    }
    Fenster::reject();
}

void Form6::speicherePdf() {
    if (!eingabenGueltig(*this, meldungen_)) return;
    uebernimmZaehlung();
    const auto ergebnis = rippenscheibe::speicherePdf(programm_, meldungen_, this, ausdruck());
    if (ergebnis) merkeSeite(*ergebnis);
}

void Form6::speichereRtf() {
    const std::optional<QString> ziel =
        waehleZiel(meldungen_, this,
                   {.titel = QStringLiteral("Als RTF speichern"),
                    .ordner = dialogordner(programm_),
                    .vorschlag = dateivorschlag(programm_) + QStringLiteral(" Rechenweg.rtf"),
                    .filter = QStringLiteral("Rich-Text-Format (*.RTF)"),
                    .endung = QStringLiteral("rtf")});
    if (!ziel) return;
    if (const auto fehler = schreibeDauerhaft(pfad(*ziel), rechenwegRtf(letzterLauf(programm_))))
        meldungen_.kritisch(this, QStringLiteral("Fehler"), qtext(fehler->text));
}

// The last page number printed, for the next opening of the window. The field stays: what is saved as PDF and
// then printed from the same window is one document with the same numbers. A file that cannot be written is
// no reason to stop.
void Form6::merkeSeite(const Druckergebnis& ergebnis) {
    if (!ergebnis.LetzteSeite) return;
    static_cast<void>(schreibeLetzteSeite(programm_.datei(seitendatei), *ergebnis.LetzteSeite));
}

}  // namespace rippenscheibe
