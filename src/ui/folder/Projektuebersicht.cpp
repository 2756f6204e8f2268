#include "ui/folder/Projektuebersicht.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QStandardPaths>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "files/Dateischreiber.h"
#include "files/Pfad.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Knopf.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Zieldatei.h"
#include "ui/folder/Mengenseite.h"
#include "ui/folder/Projektleser.h"
#include "ui/folder/Projektmodell.h"
#include "ui/paper/PdfAusgabe.h"
#include "ui/paper/Sammelpdf.h"
#include "ui/studyparts/Hintergrund.h"
#include "ui/studyparts/Zellen.h"

namespace rippenscheibe {

namespace {

struct Spaltenmass {
    Projektmodell::Spalte spalte;
    int ziffern;  // width in digits
};
constexpr std::array<Spaltenmass, 8> spaltenmasse{{{Projektmodell::Wand, 30},
                                                   {Projektmodell::Masse, 13},
                                                   {Projektmodell::Beplankung, 20},
                                                   {Projektmodell::Befestigung, 25},
                                                   {Projektmodell::Verankerung, 10},
                                                   {Projektmodell::Ausnutzung, 14},
                                                   {Projektmodell::Massgebend, 22},
                                                   {Projektmodell::Datum, 8}}};

QString ordnertext(const std::string& pfad) {
    return QDir::cleanPath(QDir::fromNativeSeparators(qtext(pfad)));
}

// The folders a project may lie in: that of the open position first, then those the program knows.
QStringList bekannteOrdner(const Programm& programm) {
    QStringList ordner;
    if (!programm.Dateiname.empty()) ordner << QFileInfo(qtext(programm.Dateiname)).absolutePath();
    if (!programm.Positionspfad.empty()) ordner << ordnertext(programm.Positionspfad);
    if (!programm.einstellungen.StandardPfad.empty())
        ordner << ordnertext(programm.einstellungen.StandardPfad);
    for (const Projekteintrag& eintrag : programm.projekte.eintraege)
        if (!eintrag.pfad.empty()) ordner << ordnertext(eintrag.pfad);
    ordner << QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    ordner.removeIf([](const QString& pfad) { return !QFileInfo(pfad).isDir(); });
    ordner.removeDuplicates();
    return ordner;
}

}  // namespace

Projektuebersicht::Projektuebersicht(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Projektuebersicht"),
              QStringLiteral("  Projektübersicht"), Tippen::aendertNichts),
      modell_(new Projektmodell(this)),
      filter_(new Projektfilter(this)),
      leser_(new Projektleser(this)),
      drucker_(new Hintergrund(this)),
      neu_(new QTimer(this)) {
    filter_->setSourceModel(modell_);
    modell_->setzeFarben(palette(), devicePixelRatioF());
    inhalt()->addWidget(baueKopf());
    auto* teiler = new QSplitter(Qt::Vertical, this);
    teiler->setChildrenCollapsible(false);
    teiler->addWidget(baueTabelle());
    teiler->addWidget(baueUnten());
    teiler->setStretchFactor(0, 1);
    teiler->setSizes({430, 170});
    inhalt()->addWidget(teiler, 1);
    baueKnoepfe();

    neu_->setSingleShot(true);
    neu_->setInterval(0);
    connect(neu_, &QTimer::timeout, this, &Projektuebersicht::zeigeAuswahl);
    connect(leser_, &Projektleser::gefunden, this, &Projektuebersicht::zeigeDateien);
    connect(leser_, &Projektleser::gelesen, modell_, &Projektmodell::nimmAuf);
    connect(leser_, &Projektleser::vorangekommen, this, &Projektuebersicht::zeigeZahlen);
    connect(drucker_, &Hintergrund::fortschritt, this, [this](const Fortschritt& stand) {
        balken_->setRange(0, static_cast<int>(stand.gesamt));
        balken_->setValue(static_cast<int>(stand.geprueft));
    });
    connect(drucker_, &Hintergrund::beendet, this, [this](const QString& fehler) {
        zeigeDruck(false);
        if (!fehler.isEmpty()) meldungen_.kritisch(this, QStringLiteral(" Fehler"), fehler);
    });
    zeigeDruck(false);
    resize(1240, 660);

    const QStringList ordner = bekannteOrdner(programm_);
    for (const QString& pfad : ordner) ordnerwahl_->addItem(QDir::toNativeSeparators(pfad), pfad);
    connect(ordnerwahl_, &QComboBox::currentIndexChanged, this,
            [this](int stelle) { waehleOrdner(ordnerwahl_->itemData(stelle).toString()); });
    if (!ordner.isEmpty()) waehleOrdner(ordner.constFirst());
}

// The thread ends before what it works on.
Projektuebersicht::~Projektuebersicht() { drucker_->verwirf(); }

// ---- Building ----

QWidget* Projektuebersicht::baueKopf() {
    auto* kopf = new QWidget(this);
    auto* reihe = new QHBoxLayout(kopf);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(raster);
    const auto schild = [&](const char* text, QWidget* feld) {
        auto* neu = new QLabel(qtext(text), kopf);
        neu->setBuddy(feld);
        reihe->addWidget(neu);
    };
    ordnerwahl_ = new QComboBox(kopf);
    ordnerwahl_->setObjectName(QStringLiteral("Ordner"));
    ordnerwahl_->setAccessibleName(QStringLiteral("Ordner des Projekts"));
    ordnerwahl_->setToolTip(QStringLiteral("Ordner, dessen Positionen gezeigt werden"));
    ordnerwahl_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    ordnerwahl_->setMinimumContentsLength(16);
    ordnerwahl_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    schild("&Ordner :", ordnerwahl_);
    reihe->addWidget(ordnerwahl_, 3);
    QPushButton* anderer = neuerKnopf(kopf, QStringLiteral("AndererOrdner"), QStringLiteral("Andere&r ..."),
                                      QStringLiteral("Einen anderen Ordner über eine Position darin wählen"));
    anderer->setAccessibleName(QStringLiteral("Anderer Ordner"));
    connect(anderer, &QPushButton::clicked, this, &Projektuebersicht::frageOrdner);
    reihe->addWidget(anderer);
    reihe->addSpacing(raster);

    auto* suche = new QLineEdit(kopf);
    suche->setObjectName(QStringLiteral("Suche"));
    suche->setAccessibleName(QStringLiteral("Suchen"));
    suche->setPlaceholderText(QStringLiteral("Name, Material, Anker, Nachweis ..."));
    suche->setToolTip(QStringLiteral("Nur Zeilen zeigen, in denen jedes dieser Wörter steht"));
    suche->setClearButtonEnabled(true);
    connect(suche, &QLineEdit::textChanged, filter_, &Projektfilter::suche);
    schild("S&uchen :", suche);
    reihe->addWidget(suche, 2);
    auto* wahl = new QComboBox(kopf);
    wahl->setObjectName(QStringLiteral("Wahl"));
    wahl->setAccessibleName(QStringLiteral("Zeigen"));
    wahl->setToolTip(QStringLiteral("Nur Positionen mit diesem Urteil zeigen"));
    wahl->addItems({QStringLiteral("alle"), QStringLiteral("erfüllt"), QStringLiteral("nicht erfüllt"),
                    QStringLiteral("mit Lücken"), QStringLiteral("mit Hinweisen"),
                    QStringLiteral("nicht lesbar")});
    connect(wahl, &QComboBox::currentIndexChanged, filter_,
            [this](int stelle) { filter_->waehle(static_cast<Projektfilter::Wahl>(stelle)); });
    schild("Z&eigen :", wahl);
    reihe->addWidget(wahl);
    return kopf;
}

QWidget* Projektuebersicht::baueTabelle() {
    tabelle_ = new QTableView(this);
    tabelle_->setObjectName(QStringLiteral("Positionen"));
    tabelle_->setAccessibleName(QStringLiteral("Positionen des Projekts"));
    tabelle_->setModel(filter_);
    tabelle_->setItemDelegateForColumn(Projektmodell::Wand, new Wandzelle(tabelle_));
    tabelle_->setItemDelegateForColumn(Projektmodell::Ausnutzung, new Ausnutzungszelle(tabelle_));
    for (const int spalte : {Projektmodell::Befestigung, Projektmodell::Massgebend})
        tabelle_->setItemDelegateForColumn(spalte, new Zeilenzelle(tabelle_));
    tabelle_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabelle_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    tabelle_->setAlternatingRowColors(true);
    tabelle_->setShowGrid(false);
    fuegeInTabfolge(*tabelle_);
    tabelle_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    tabelle_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    tabelle_->verticalHeader()->hide();
    tabelle_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabelle_->verticalHeader()->setDefaultSectionSize(Wandzelle::bildgroesse.height() + raster);
    QHeaderView& kopf = *tabelle_->horizontalHeader();
    kopf.setHighlightSections(false);
    kopf.setStretchLastSection(false);
    kopf.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    const int ziffer = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    for (const Spaltenmass& mass : spaltenmasse) tabelle_->setColumnWidth(mass.spalte, ziffer * mass.ziffern);
    kopf.setSectionResizeMode(Projektmodell::Offen, QHeaderView::Stretch);
    kopf.setMinimumSectionSize(ziffer * 7);
    tabelle_->setSortingEnabled(true);
    tabelle_->sortByColumn(Projektmodell::Wand, Qt::AscendingOrder);
    tabelle_->setMinimumSize(560, 160);
    setzeEnter(*tabelle_, Enter::eigen);
    connect(tabelle_, &QTableView::activated, this, &Projektuebersicht::oeffne);
    const auto spaeter = [this] { neu_->start(); };
    connect(tabelle_->selectionModel(), &QItemSelectionModel::selectionChanged, this, spaeter);
    connect(modell_, &QAbstractItemModel::dataChanged, this, spaeter);
    connect(modell_, &QAbstractItemModel::modelReset, this, spaeter);
    return tabelle_;
}

QWidget* Projektuebersicht::baueUnten() {
    auto* teiler = new QSplitter(Qt::Horizontal, this);
    teiler->setChildrenCollapsible(false);
    saetze_ = new QPlainTextEdit(teiler);
    saetze_->setObjectName(QStringLiteral("Saetze"));
    saetze_->setAccessibleName(QStringLiteral("Hinweise und Lücken der gewählten Positionen"));
    saetze_->setReadOnly(true);
    saetze_->setTabChangesFocus(true);
    saetze_->setMinimumSize(200, 96);
    teiler->addWidget(saetze_);
    mengen_ = new Mengenseite(programm_, meldungen_, teiler);
    connect(mengen_, &Mengenseite::umgeschaltet, this, &Projektuebersicht::zeigeAuswahl);
    teiler->addWidget(mengen_);
    teiler->setStretchFactor(1, 1);
    teiler->setSizes({420, 780});
    return teiler;
}

void Projektuebersicht::baueKnoepfe() {
    zahlen_ = new QLabel(this);
    zahlen_->setObjectName(QStringLiteral("Zahlen"));
    fusszeile()->insertWidget(0, zahlen_);
    balken_ = new QProgressBar(this);
    balken_->setObjectName(QStringLiteral("Fortschritt"));
    balken_->setAccessibleName(QStringLiteral("Fortschritt des Drucks"));
    balken_->setMaximumWidth(160);
    fusszeile()->addWidget(balken_);
    anhalten_ = schaltflaeche(QStringLiteral("Anhalten"), QStringLiteral("An&halten"));
    anhalten_->setToolTip(QStringLiteral("Den Druck beenden, ohne eine Datei zu schreiben"));
    connect(anhalten_, &QPushButton::clicked, drucker_, &Hintergrund::halte);
    const auto knopf = [this](const char* name, const char* text, const char* tip, Form form) {
        QPushButton* neu = schaltflaeche(QLatin1String(name), qtext(text));
        neu->setToolTip(qtext(tip));
        connect(neu, &QPushButton::clicked, this, [this, form] { drucke(form); });
        return neu;
    };
    drucken_ = {
        knopf("AlleLang", "&Alle drucken ...",
              "Alle Positionen des Ordners frisch rechnen und ausführlich in eine PDF-Datei drucken",
              Form::lang),
        knopf("AlleKurz", "Alle &kurz drucken ...",
              "Alle Positionen des Ordners frisch rechnen und kurz in eine PDF-Datei drucken", Form::kurz)};
    oeffnen_ = schaltflaeche(QStringLiteral("Oeffnen"), QStringLiteral("Ö&ffnen"));
    oeffnen_->setToolTip(QStringLiteral("Die gewählte Position öffnen (auch mit Doppelklick oder Enter)"));
    connect(oeffnen_, &QPushButton::clicked, this, [this] { oeffne(tabelle_->currentIndex()); });
    zurueck(QStringLiteral("ComEnde"));
}

// ---- Reading ----

void Projektuebersicht::waehleOrdner(const QString& ordner) {
    if (ordner.isEmpty()) return;
    modell_->beginne(programm_.w.eigeneMaterialien);
    leser_->beginne(pfad(ordner), programm_.w.eigeneMaterialien);
}

void Projektuebersicht::frageOrdner() {
    const auto datei = meldungen_.oeffnen(
        this, {QStringLiteral("Ordner über eine Position darin wählen"), qtext(pfadtext(leser_->ordner())),
               QString(), QStringLiteral("Datei Rippenscheibe 2.0 (*.rsw);;alle Dateien (*.*)"),
               QStringLiteral("rsw")});
    if (!datei) return;
    const QString ordner = QFileInfo(*datei).absolutePath();
    int stelle = ordnerwahl_->findData(ordner);
    if (stelle < 0) {
        ordnerwahl_->insertItem(0, QDir::toNativeSeparators(ordner), ordner);
        stelle = 0;
    }
    ordnerwahl_->setCurrentIndex(stelle);
    if (pfad(ordner) != leser_->ordner()) waehleOrdner(ordner);
}

void Projektuebersicht::zeigeDateien(const std::vector<Projektdatei>& dateien, const QString& fehler) {
    fehler_ = fehler;
    std::vector<std::filesystem::path> namen;
    for (const Projektposition* position : gewaehlte()) namen.push_back(position->datei.position.datei);
    if (namen.empty() && !programm_.Dateiname.empty()) namen.push_back(pfad(qtext(programm_.Dateiname)));
    modell_->setzeDateien(dateien);
    waehleZeilen(namen);
}

// ---- Showing ----

void Projektuebersicht::waehleZeilen(const std::vector<std::filesystem::path>& namen) {
    QItemSelection wahl;
    QModelIndex erste;
    for (std::size_t i = 0; i < modell_->dateien().size(); ++i) {
        const auto& datei = modell_->dateien()[i].position.datei;
        if (std::find(namen.begin(), namen.end(), datei) == namen.end()) continue;
        const QModelIndex zeile = filter_->mapFromSource(modell_->index(static_cast<int>(i), 0));
        if (!zeile.isValid()) continue;
        if (!erste.isValid()) erste = zeile;
        wahl.select(zeile, zeile);
    }
    if (!erste.isValid() && filter_->rowCount() > 0) erste = filter_->index(0, 0);
    if (!erste.isValid()) return;
    tabelle_->setCurrentIndex(erste);
    if (!wahl.isEmpty())
        tabelle_->selectionModel()->select(wahl,
                                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    tabelle_->scrollTo(erste);
}

std::vector<const Projektposition*> Projektuebersicht::gewaehlte() const {
    std::vector<const Projektposition*> positionen;
    for (const QModelIndex& zeile : tabelle_->selectionModel()->selectedRows())
        if (const Projektposition* position = modell_->position(filter_->mapToSource(zeile).row()))
            positionen.push_back(position);
    return positionen;
}

// "14 Positionen: 12 erfüllt, 1 nicht erfüllt, 1 nicht lesbar", or why nothing more is read.
void Projektuebersicht::zeigeZahlen(const QString& lesefehler) {
    if (!lesefehler.isEmpty()) return zahlen_->setText(lesefehler);
    constexpr std::array<const char*, 4> worte{"erfüllt", "nicht erfüllt", "mit Hinweisen", "nicht lesbar"};
    std::array<int, worte.size()> staende{};
    int gelesen = 0;
    for (int zeile = 0; zeile < modell_->rowCount(); ++zeile) {
        const Projektposition* position = modell_->position(zeile);
        if (position == nullptr) continue;
        ++gelesen;
        ++staende[static_cast<std::size_t>(position->stand())];
    }
    QStringList teile;
    for (std::size_t i = 0; i < worte.size(); ++i)
        if (staende[i] > 0) teile << QStringLiteral("%1 %2").arg(staende[i]).arg(qtext(worte[i]));
    const int alle = modell_->rowCount();
    QString text = alle == 1 ? QStringLiteral("1 Position") : QStringLiteral("%1 Positionen").arg(alle);
    if (!fehler_.isEmpty()) text = fehler_;
    if (gelesen < alle) text += QStringLiteral(", %1 gelesen").arg(gelesen);
    if (!teile.isEmpty()) text += QStringLiteral(": ") + teile.join(QStringLiteral(", "));
    zahlen_->setText(text);
    for (QPushButton* knopf : drucken_) knopf->setEnabled(alle > 0);
}

void Projektuebersicht::zeigeAuswahl() {
    const auto positionen = gewaehlte();
    QStringList saetze;
    for (const Projektposition* position : positionen) {
        const QString name = qtext(pfadtext(position->datei.position.datei.filename()));
        QStringList eigene = projektsaetze(*position);
        if (position->lastfaelle > 0)
            eigene.prepend(QStringLiteral("%1 Lastfälle, maßgebend %2")
                               .arg(position->lastfaelle)
                               .arg(qtext(position->massgebend)));
        if (eigene.isEmpty()) eigene << QStringLiteral("keine Hinweise, keine Lücken");
        saetze << name + QStringLiteral("\n  ") + eigene.join(QStringLiteral("\n  "));
    }
    saetze_->setPlainText(saetze.join(QLatin1Char('\n')));
    oeffnen_->setEnabled(tabelle_->currentIndex().isValid());

    Mengen summe;
    int waende = 0;
    const auto zaehle = [&](const Projektposition& position) {
        if (!position.fehler.empty()) return;
        addiere(summe, position.mengen);
        ++waende;
    };
    const bool projekt = mengen_->ganzesProjekt();
    if (!projekt)
        for (const Projektposition* position : positionen) zaehle(*position);
    for (int zeile = 0; projekt && zeile < modell_->rowCount(); ++zeile)
        if (const Projektposition* position = modell_->position(zeile)) zaehle(*position);
    mengen_->zeige(summe,
                   QStringLiteral("%1 (%2)").arg(
                       projekt ? qtext(ordnername(leser_->ordner())) : QStringLiteral("Auswahl"),
                       waende == 1 ? QStringLiteral("1 Wand") : QStringLiteral("%1 Wände").arg(waende)),
                   qtext(pfadtext(leser_->ordner())));
}

void Projektuebersicht::changeEvent(QEvent* event) {
    Fenster::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && tabelle_ != nullptr)
        modell_->setzeFarben(palette(), devicePixelRatioF());
}

// ---- Opening and printing ----

// The main window asks for what is not saved and opens it, once this window is gone.
void Projektuebersicht::oeffne(const QModelIndex& zeile) {
    if (!zeile.isValid()) return;
    const auto& datei = modell_->dateien()[static_cast<std::size_t>(filter_->mapToSource(zeile).row())];
    if (programm_.fenster != nullptr) programm_.fenster->positionswunsch = pfadtext(datei.position.datei);
    accept();
}

void Projektuebersicht::drucke(Form form) {
    const auto ziel = waehleZiel(meldungen_, this,
                                 {.titel = QStringLiteral("Alle Positionen drucken"),
                                  .ordner = qtext(pfadtext(leser_->ordner())),
                                  .vorschlag = qtext(ordnername(leser_->ordner())) + QStringLiteral(".pdf"),
                                  .filter = QStringLiteral("PDF-Datei (*.pdf)"),
                                  .endung = QStringLiteral("pdf")});
    if (!ziel) return;
    Sammelauftrag auftrag{
        modell_->dateien(),      ordnername(leser_->ordner()), programm_.w.eigeneMaterialien,
        programm_.einstellungen, liesLogo(programm_.ordner),   form,
        dezimalzeichen()};
    zeigeDruck(true);
    drucker_->starte([auftrag = std::move(auftrag)](
                         const Ausfuehrung& ausfuehrung) { return sammelpdf(auftrag, ausfuehrung); },
                     [this, ziel = *ziel](const Sammelpdf& pdf) { sichere(pdf, ziel); });
}

void Projektuebersicht::sichere(const Sammelpdf& pdf, const QString& ziel) {
    if (!pdf.vollstaendig) return;
    if (!pdf.bytes.isEmpty())
        if (const auto fehler = schreibeDauerhaft(pfad(ziel), pdf.bytes.toStdString())) {
            meldungen_.kritisch(this, QStringLiteral(" Fehler"), qtext(fehler->text));
            return;
        }
    QString text = pdf.gedruckt == 0 ? QStringLiteral("Keine Position konnte gedruckt werden.")
                                     : QStringLiteral("%1 von %2 Positionen auf %3 Seiten gedruckt in\n%4")
                                           .arg(pdf.gedruckt)
                                           .arg(modell_->rowCount())
                                           .arg(pdf.seiten)
                                           .arg(QDir::toNativeSeparators(ziel));
    constexpr std::size_t hoechstens = 12;
    for (std::size_t i = 0; i < std::min(hoechstens, pdf.meldungen.size()); ++i)
        text += (i == 0 ? QStringLiteral("\n\n") : QStringLiteral("\n")) + qtext(pdf.meldungen[i]);
    if (pdf.meldungen.size() > hoechstens)
        text += QStringLiteral("\nund %1 weitere Meldungen").arg(pdf.meldungen.size() - hoechstens);
    meldungen_.hinweis(this, QStringLiteral("Alle drucken"), text);
}

void Projektuebersicht::zeigeDruck(bool laeuft) {
    balken_->setVisible(laeuft);
    anhalten_->setVisible(laeuft);
    for (QPushButton* knopf : drucken_) knopf->setVisible(!laeuft);
    if (laeuft) balken_->setRange(0, 0);
}

}  // namespace rippenscheibe
