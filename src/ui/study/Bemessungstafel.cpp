#include "ui/study/Bemessungstafel.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "files/Dateischreiber.h"
#include "study/Csv.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Zieldatei.h"
#include "ui/paper/Tafelseite.h"
#include "ui/study/Tafelfarben.h"
#include "ui/studyparts/Groessenwahl.h"
#include "ui/studyparts/Lastfallwahl.h"
#include "ui/studyparts/Laufleiste.h"
#include "ui/studyparts/Wandblatt.h"

namespace rippenscheibe {

namespace {

constexpr std::size_t hoechstensZeilen = 200;
constexpr std::size_t hoechstensSpalten = 40;
constexpr int breiteWand = 330;  // px

// Wider steps, so that at most so many values are a first table.
std::vector<Groesse> vergroebert(std::vector<Groesse> groessen, int hoechstens) {
    for (Groesse& g : groessen)
        if (!g.istListe())
            g.schritt *= std::max(1.0, std::ceil((g.bis - g.von) / g.schritt / hoechstens - 1e-9));
    return groessen;
}

bool gemeinsamesFeld(const Achse& a, const Achse& b) {
    return std::find_first_of(a.felder.begin(), a.felder.end(), b.felder.begin(), b.felder.end()) !=
           a.felder.end();
}

// The horizontal load where there is one, else the first of the choice.
std::string zuerstGesucht(const Wand& w) { return w.Lastfall == 2 ? "gk" : "Fvk"; }

QString mitKomma(const std::string& zahl) {
    return qtext(zahl).replace(QLatin1Char('.'), QLatin1Char(dezimalzeichen()));
}

// What ends the values of a cell, and where they pass again.
QString grund(const Tafelzelle& z) {
    QString text = qtext(z.massgebend);
    if (z.massgebend.empty())
        text = QStringLiteral("Bis zum Ende der Suche besteht alles.");
    else if (z.besteht())
        text.prepend(QStringLiteral("Am nächsten Schritt scheitert: "));
    if (!z.hatLoecher()) return text;
    QStringList strecken;
    for (const auto& [von, bis] : z.intervalle)
        strecken << QStringLiteral("%1 bis %2").arg(mitKomma(von), mitKomma(bis));
    return text + QStringLiteral("\nEs bestehen: ") + strecken.join(QStringLiteral("; "));
}

}  // namespace

Bemessungstafel::Bemessungstafel(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Bemessungstafel"),
              QStringLiteral("  Bemessungstafel"), Tippen::aendertNichts),
      jeWand_(sekundenJeWand(studienwand(programm))) {
    auto* teiler = new QSplitter(Qt::Horizontal, this);
    teiler->setObjectName(QStringLiteral("TeilerTafel"));
    teiler->setChildrenCollapsible(false);
    teiler->setHandleWidth(2 * raster);
    inhalt()->addWidget(baueKopf());
    teiler->addWidget(baueTafel());
    wandblatt_ = new Wandblatt;
    teiler->addWidget(wandblatt_);
    teiler->setSizes({800, breiteWand});
    teiler->setStretchFactor(0, 1);
    inhalt()->addWidget(teiler, 1);

    drucken_ = schaltflaeche(QStringLiteral("Drucken"), QStringLiteral("&Drucken ..."));
    drucken_->setToolTip(QStringLiteral("Die Tafel mit Skizze und allen festen Eingaben drucken"));
    speichern_ = schaltflaeche(QStringLiteral("Speichern"), QStringLiteral("&Speichern ..."));
    speichern_->setToolTip(QStringLiteral("Die Tafel als PDF, RTF oder CSV speichern"));
    uebernehmen_ = schaltflaeche(QStringLiteral("Uebernehmen"), QStringLiteral("Wand über&nehmen"));
    uebernehmen_->setToolTip(
        QStringLiteral("Die gewählte Wand in die Position übernehmen; lässt sich rückgängig machen"));
    zurueck(QStringLiteral("Command1"));

    for (Groessenwahl* wahl : {groesste_, zeilen_, spalten_})
        connect(wahl, &Groessenwahl::geaendert, this, &Bemessungstafel::zeigeUmfang);
    connect(lauf_, &Laufleiste::starte, this, &Bemessungstafel::starte);
    connect(tabelle_, &QTableWidget::currentCellChanged, this, &Bemessungstafel::zeigeZelle);
    connect(&programm, &Programm::geaendert, this, &Bemessungstafel::zeigeZelle);
    connect(drucken_, &QPushButton::clicked, this, &Bemessungstafel::drucke);
    connect(speichern_, &QPushButton::clicked, this, &Bemessungstafel::oeffneSpeichermenue);
    connect(uebernehmen_, &QPushButton::clicked, this,
            [this] { uebernimm(programm_, QStringLiteral("Bemessungstafel"), gewaehlt()); });
    zeigeUmfang();
    zeige();
}

QWidget* Bemessungstafel::baueKopf() {
    constexpr int ersteZeilen = 16;
    constexpr int ersteSpalten = 6;
    const Wand heute = studienwand(programm_);
    groesste_ = new Groessenwahl(QStringLiteral("Groesste"), QStringLiteral("Größter Wert von:"),
                                 groessen(heute, true), zuerstGesucht(heute));
    zeilen_ = new Groessenwahl(QStringLiteral("Zeilen"), QStringLiteral("Zeilen:"),
                               vergroebert(groessen(heute), ersteZeilen), "Wandlaenge");
    spalten_ = new Groessenwahl(QStringLiteral("Spalten"), QStringLiteral("Spalten:"),
                                vergroebert(groessen(heute), ersteSpalten), abstandsgroesse(heute));
    lauf_ = new Laufleiste(hintergrund_, QStringLiteral("Rechnen"), QStringLiteral("&Rechnen"),
                           QStringLiteral("Die Tafel wird gerechnet."));
    auto* kopf = new QWidget;
    auto* zeile = new QHBoxLayout(kopf);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->setSpacing(3 * raster);
    auto* achsen = new QVBoxLayout;
    achsen->setSpacing(raster);
    for (Groessenwahl* wahl : {groesste_, zeilen_, spalten_}) {
        wahl->setzeSchildbreite(groesste_->schildbreite());
        achsen->addWidget(wahl);
    }
    lastfaelle_ = new Lastfallwahl(programm_, this);
    connect(lastfaelle_, &QCheckBox::clicked, this, &Bemessungstafel::zeigeUmfang);
    achsen->addWidget(lastfaelle_);
    zeile->addLayout(achsen);
    zeile->addWidget(lauf_, 1, Qt::AlignTop);
    return kopf;
}

QWidget* Bemessungstafel::baueTafel() {
    auto* seite = new QWidget;
    auto* spalte = new QVBoxLayout(seite);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(raster);
    titel_ = new QLabel(seite);
    titel_->setObjectName(QStringLiteral("Titel"));
    titel_->setWordWrap(true);
    tabelle_ = new QTableWidget(seite);
    tabelle_->setObjectName(QStringLiteral("Tafel"));
    tabelle_->setAccessibleName(QStringLiteral("Bemessungstafel"));
    tabelle_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabelle_->setSelectionMode(QAbstractItemView::SingleSelection);
    tabelle_->setTabKeyNavigation(false);
    tabelle_->setCornerButtonEnabled(false);
    if (auto* ecke = tabelle_->findChild<QAbstractButton*>())
        ecke->setAccessibleName(QStringLiteral("Ecke der Tafel"));
    tabelle_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    tabelle_->horizontalHeader()->setMinimumSectionSize(64);
    tabelle_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + raster);
    legende_ = new QLabel(seite);
    legende_->setObjectName(QStringLiteral("Legende"));
    legende_->setTextFormat(Qt::RichText);
    legende_->setWordWrap(true);
    spalte->addWidget(titel_);
    spalte->addWidget(tabelle_, 1);
    spalte->addWidget(legende_);
    return seite;
}

// ---- The computation ----

std::variant<Tafelauftrag, QString> Bemessungstafel::auftrag() const {
    Tafelauftrag t{};
    for (const auto& [wahl, achse] : {std::pair(groesste_, &Tafelauftrag::groesste),
                                      {zeilen_, &Tafelauftrag::zeilen},
                                      {spalten_, &Tafelauftrag::spalten}}) {
        auto gelesen = wahl->achse();
        if (const auto* satz = std::get_if<std::string>(&gelesen)) return qtext(*satz);
        t.*achse = std::get<Achse>(std::move(gelesen));
    }
    if (gemeinsamesFeld(t.groesste, t.zeilen) || gemeinsamesFeld(t.groesste, t.spalten) ||
        gemeinsamesFeld(t.zeilen, t.spalten))
        return QStringLiteral("Gesuchte Größe, Zeilen und Spalten sind nicht verschieden.");
    if (t.zeilen.werte.size() > hoechstensZeilen || t.spalten.werte.size() > hoechstensSpalten)
        return QStringLiteral("Die Tafel hat mehr als %1 Zeilen oder %2 Spalten.")
            .arg(hoechstensZeilen)
            .arg(hoechstensSpalten);
    const Wand heute = studienwand(programm_);
    t.vorlage = heute;
    t.materialien = heute.eigeneMaterialien;
    t.regel.lastfaelle = lastfaelle_->faelle(Raster({t.groesste, t.zeilen, t.spalten}));
    return t;
}

void Bemessungstafel::zeigeUmfang() {
    const auto wunsch = auftrag();
    if (const auto* satz = std::get_if<QString>(&wunsch)) return lauf_->setzeUmfang(*satz, false);
    const auto& t = std::get<Tafelauftrag>(wunsch);
    const std::size_t zellen = t.zeilen.werte.size() * t.spalten.werte.size();
    const std::size_t waende = zellen * t.groesste.werte.size();
    const std::size_t laeufe = waende * std::max<std::size_t>(t.regel.lastfaelle.size(), 1);
    lauf_->setzeUmfang(QStringLiteral("%1 Felder, %2 Wände · %3")
                           .arg(ganzzahltext(zellen), ganzzahltext(waende),
                                zeittext(static_cast<double>(laeufe) * jeWand_ / kernzahl())),
                       true);
}

void Bemessungstafel::starte() {
    const auto wunsch = auftrag();
    const auto* t = std::get_if<Tafelauftrag>(&wunsch);
    if (t == nullptr) return;
    hintergrund_.starte(
        [gesucht = *t, wand = studienwand(programm_)](const Ausfuehrung& ausfuehrung) {
            return Stand{gesucht, bemessungstafel(gesucht, ausfuehrung), wand};
        },
        [this](Stand neu) {
            if (!neu.tafel.vollstaendig)
                return lauf_->setzeStand(QStringLiteral("Angehalten; gezeigt ist die Tafel davor."));
            stand_ = std::move(neu);
            zeige();
        });
}

// ---- The table ----

void Bemessungstafel::zeige() {
    for (QPushButton* knopf : {drucken_, speichern_}) knopf->setEnabled(!stand_.leer());
    legende_->setVisible(!stand_.leer());
    if (stand_.leer()) {
        titel_->setText(QStringLiteral("Noch nicht gerechnet."));
        return zeigeZelle();
    }
    const Tafelauftrag& t = stand_.auftrag;
    const std::size_t faelle = t.regel.lastfaelle.size();
    titel_->setText(QStringLiteral("Größter Wert: %1. Zeilen: %2. Spalten: %3.%4")
                        .arg(mitEinheit(t.groesste.felder), mitEinheit(t.zeilen.felder),
                             mitEinheit(t.spalten.felder),
                             faelle == 0 ? QString() : QStringLiteral(" Mit %1 Lastfällen.").arg(faelle)));
    fuelleTabelle();
    legende_->setText(farblegende(stand_.tafel, palette()));
    waehleErsteBestehende();
    zeigeZelle();
}

void Bemessungstafel::fuelleTabelle() {
    const Tafelauftrag& t = stand_.auftrag;
    const auto texte = tafelzeilen(t, stand_.tafel, dezimalzeichen());
    const std::vector<std::string> alle = massgebende(stand_.tafel);
    const auto kopf = [](const Achse& achse) {
        QStringList namen;
        for (const Achsenwert& wert : achse.werte) namen << werttext(wert);
        return namen;
    };
    const auto feld = [&](std::size_t zeile, std::size_t spalte) {
        const std::string& massgebend = stand_.tafel.zellen[zeile][spalte].massgebend;
        auto* neu = new QTableWidgetItem(qtext(texte[zeile + 1][spalte + 1]));
        neu->setTextAlignment(Qt::AlignCenter);
        neu->setToolTip(qtext(massgebend));
        const auto stelle = std::find(alle.begin(), alle.end(), massgebend);
        if (stelle != alle.end())
            neu->setBackground(tafelfarbe(static_cast<std::size_t>(stelle - alle.begin()), palette()));
        return neu;
    };
    tabelle_->clear();
    tabelle_->setRowCount(static_cast<int>(t.zeilen.werte.size()));
    tabelle_->setColumnCount(static_cast<int>(t.spalten.werte.size()));
    tabelle_->setVerticalHeaderLabels(kopf(t.zeilen));
    tabelle_->setHorizontalHeaderLabels(kopf(t.spalten));
    for (int i = 0; i < tabelle_->rowCount(); ++i)
        for (int j = 0; j < tabelle_->columnCount(); ++j)
            tabelle_->setItem(i, j, feld(static_cast<std::size_t>(i), static_cast<std::size_t>(j)));
}

void Bemessungstafel::waehleErsteBestehende() {
    const auto& zellen = stand_.tafel.zellen;
    tabelle_->setCurrentCell(0, 0);
    for (std::size_t i = 0; i < zellen.size(); ++i)
        for (std::size_t j = 0; j < zellen[i].size(); ++j)
            if (zellen[i][j].besteht())
                return tabelle_->setCurrentCell(static_cast<int>(i), static_cast<int>(j));
}

const Tafelzelle* Bemessungstafel::zelle() const {
    const auto zeile = static_cast<std::size_t>(tabelle_->currentRow());
    const auto spalte = static_cast<std::size_t>(tabelle_->currentColumn());
    const auto& zellen = stand_.tafel.zellen;  // the table may still have the size of the one before
    return zeile < zellen.size() && spalte < zellen[zeile].size() ? &zellen[zeile][spalte] : nullptr;
}

// What the wall of the cell sets, with the largest value that passes, else the start.
Zuweisungen Bemessungstafel::gewaehlt() const {
    const Tafelzelle* z = zelle();
    if (z == nullptr) return {};
    const Tafelauftrag& t = stand_.auftrag;
    const auto& werte = t.groesste.werte;
    auto groesster = std::find_if(werte.begin(), werte.end(),
                                  [&](const Achsenwert& wert) { return wert.text == z->groesste; });
    if (groesster == werte.end()) groesster = werte.begin();
    Zuweisungen setzt;
    for (const Achsenwert* wert :
         {&t.zeilen.werte[static_cast<std::size_t>(tabelle_->currentRow())],
          &t.spalten.werte[static_cast<std::size_t>(tabelle_->currentColumn())], &*groesster})
        setzt.insert(setzt.end(), wert->setzt.begin(), wert->setzt.end());
    return setzt;
}

void Bemessungstafel::zeigeZelle() {
    const Tafelzelle* z = zelle();
    const Zuweisungen setzt = gewaehlt();
    const Wand heute = studienwand(programm_);
    QString wert = QStringLiteral("Wand wie heute");
    if (z != nullptr)
        wert = z->besteht() ? QStringLiteral("%1: bis %2 besteht die Wand.")
                                  .arg(mitEinheit(stand_.auftrag.groesste.felder), mitKomma(z->groesste))
                            : QStringLiteral("Schon der Anfang besteht nicht.");
    wandblatt_->zeigeWand(mitZuweisungen(z == nullptr ? heute : stand_.wand, setzt), wert);
    wandblatt_->zeigeGrund(z == nullptr ? QString() : grund(*z));
    uebernehmen_->setEnabled(!aenderungstext(heute, setzt).isEmpty());
}

// ---- Paper and files ----

Tafelblatt Bemessungstafel::blatt() const { return tafelblatt(stand_.auftrag, stand_.tafel); }

std::string Bemessungstafel::csv() const {
    const Csvform form{.trenner = ';', .dezimal = dezimalzeichen()};
    std::string text;
    for (const auto& zeile : tafelzeilen(stand_.auftrag, stand_.tafel, form.dezimal))
        text += csvZeile(zeile, form);
    return text;
}

void Bemessungstafel::drucke() {
    QPrintDialog dialog(&programm_.drucker(), this);
    if (meldungen_.waehleDrucker(dialog)) druckeTafel(programm_.drucker(), blatt(), stand_.wand);
}

void Bemessungstafel::oeffneSpeichermenue() {
    struct Form {
        const char* name;
        const char* filter;
        const char* endung;
        std::function<std::string()> bytes;
    };
    const std::vector<Form> formen{
        {"&PDF", "PDF-Datei (*.pdf)", "pdf", [this] { return tafelPdf(blatt(), stand_.wand).toStdString(); }},
        {"&RTF", "Rich Text (*.rtf)", "rtf", [this] { return tafelRtf(blatt()); }},
        {"&CSV", "Tabelle (*.csv)", "csv", [this] { return csv(); }}};
    QMenu menue(this);
    for (const Form& form : formen)
        connect(menue.addAction(QStringLiteral("Als %1 speichern ...").arg(QString::fromUtf8(form.name))),
                &QAction::triggered, this, [this, &form] {
                    const QString endung = QString::fromUtf8(form.endung);
                    const auto ziel = waehleZiel(meldungen_, this,
                                                 {.titel = QStringLiteral("Bemessungstafel speichern"),
                                                  .ordner = dialogordner(programm_),
                                                  .vorschlag = dateivorschlag(programm_) +
                                                               QStringLiteral(" Bemessungstafel.") + endung,
                                                  .filter = QString::fromUtf8(form.filter),
                                                  .endung = endung});
                    if (!ziel) return;
                    if (const auto fehler = schreibeDauerhaft(pfad(*ziel), form.bytes()))
                        meldungen_.kritisch(this, QStringLiteral("Fehler"), qtext(fehler->text));
                });
    menue.exec(speichern_->mapToGlobal(QPoint(0, speichern_->height())));
}

}  // namespace rippenscheibe
