#include "ui/main/Variantenvergleich.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "files/Positionsdatei.h"
#include "ui/basics/Knopf.h"
#include "ui/basics/Kuerzel.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Zieldatei.h"
#include "ui/main/Eingabetext.h"
#include "ui/verdict/Urteilsanzeige.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {

namespace {

const QString strich = QStringLiteral("–");

// What a section says in one cell: a value, a dash without demand, a sign and what is open.
QString zellentext(const Abschnittsurteil& abschnitt) {
    if (abschnitt.stand == Nachweisstand::keineBeanspruchung) return strich;
    const QString wert =
        (abschnitt.groesster > 1 ? QStringLiteral("✗ ") : QString()) + etatext(abschnitt.groesster);
    return abschnitt.stand == Nachweisstand::gefuehrt ? wert : QStringLiteral("! ") + qtext(abschnitt.luecke);
}

std::optional<double> vergleichswert(const Abschnittsurteil& abschnitt) {
    if (abschnitt.stand != Nachweisstand::gefuehrt) return std::nullopt;
    return abschnitt.groesster;
}

}  // namespace

std::optional<std::size_t> besteSpalte(const std::vector<std::optional<double>>& werte) {
    std::optional<std::size_t> beste;
    for (std::size_t i = 0; i < werte.size(); ++i)
        if (werte[i] && (!beste || *werte[i] < *werte[*beste])) beste = i;
    if (!beste) return std::nullopt;
    const auto liestSichGleich = [&](const std::optional<double>& wert) {
        return wert && etatext(*wert) == etatext(*werte[*beste]);
    };
    const auto anzahl =
        std::count_if(werte.begin(), werte.end(), [](const auto& wert) { return wert.has_value(); });
    return anzahl > 1 && std::count_if(werte.begin(), werte.end(), liestSichGleich) == 1 ? beste
                                                                                         : std::nullopt;
}

Variantenvergleich::Variantenvergleich(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Varianten"),
              QStringLiteral("Varianten vergleichen"), Tippen::aendertNichts) {
    baueMerkzeile();
    baueTabelle();
    speichern_ = schaltflaeche(QStringLiteral("ComSpeichern"), QStringLiteral("Als Position &speichern ..."));
    speichern_->setToolTip(QStringLiteral("Speichert die gewählte Variante als Positionsdatei"));
    connect(speichern_, &QPushButton::clicked, this, &Variantenvergleich::speichere);
    loeschen_ = schaltflaeche(QStringLiteral("ComLoeschen"), QStringLiteral("Variante &löschen"));
    loeschen_->setToolTip(QStringLiteral("Vergisst die gewählte Variante"));
    connect(loeschen_, &QPushButton::clicked, this, &Variantenvergleich::loesche);
    zurueck(QStringLiteral("ComEnde"));
    constexpr QSize platzFuerDrei(900, 560);
    resize(platzFuerDrei);
    zeige();
}

void Variantenvergleich::baueMerkzeile() {
    auto* zeile = new QHBoxLayout;
    auto* schild = new QLabel(QStringLiteral("&Name der Variante:"), this);
    name_ = new QLineEdit(this);
    name_->setObjectName(QStringLiteral("Text1"));
    name_->setAccessibleName(QStringLiteral("Name der Variante"));
    name_->setToolTip(QStringLiteral("Unter diesem Namen stehen die Eingaben in der Tabelle"));
    schild->setBuddy(name_);
    QPushButton* merken =
        neuerKnopf(this, QStringLiteral("ComMerken"), QStringLiteral("Variante &merken"),
                   QStringLiteral("Merkt die Eingaben unter diesem Namen, bis das Programm endet"));
    connect(merken, &QPushButton::clicked, this, &Variantenvergleich::merke);
    zeile->addWidget(schild);
    zeile->addWidget(name_, 1);
    zeile->addWidget(merken);
    inhalt()->addLayout(zeile);
}

void Variantenvergleich::baueTabelle() {
    tabelle_ = new QTableWidget(this);
    tabelle_->setObjectName(QStringLiteral("Variantentabelle"));
    tabelle_->setAccessibleName(windowTitle());
    tabelle_->setAccessibleDescription(
        QStringLiteral("Je Spalte eine Variante mit Urteil, Ausnutzungen und abweichenden Eingaben"));
    tabelle_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabelle_->setSelectionBehavior(QAbstractItemView::SelectColumns);
    tabelle_->setSelectionMode(QAbstractItemView::SingleSelection);
    fuegeInTabfolge(*tabelle_);
    tabelle_->verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    tabelle_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    constexpr int schmalsteSpalte = 130;
    tabelle_->horizontalHeader()->setMinimumSectionSize(schmalsteSpalte);
    // Texts wrap at the width that the window gives the columns.
    connect(tabelle_->horizontalHeader(), &QHeaderView::sectionResized, tabelle_,
            &QTableView::resizeRowsToContents, Qt::QueuedConnection);
    connect(tabelle_, &QTableWidget::itemSelectionChanged, this, &Variantenvergleich::zeigeAuswahl);
    inhalt()->addWidget(tabelle_, 1);
    legende_ = new QLabel(this);
    legende_->setForegroundRole(QPalette::PlaceholderText);
    legende_->setWordWrap(true);
    inhalt()->addWidget(legende_);
}

// ---- What the table shows ----

void Variantenvergleich::zeige() {
    rechne();
    name_->setText(QStringLiteral("Variante %1").arg(programm_.varianten.size() + 1));
    const QSignalBlocker still(tabelle_);
    tabelle_->setRowCount(0);  // with the buttons in it
    tabelle_->setColumnCount(static_cast<int>(spalten_.size()));
    QStringList koepfe;
    for (const Spalte& spalte : spalten_) koepfe << spalte.name;
    tabelle_->setHorizontalHeaderLabels(koepfe);
    zeigeUebernehmen();
    zeigeUrteile();
    zeigeAbschnitte();
    zeigeEingaben();
    tabelle_->setRowHidden(0, programm_.varianten.empty());  // no button stands in it
    tabelle_->resizeRowsToContents();
    legende_->setText(
        programm_.varianten.empty()
            ? QStringLiteral("Noch keine Variante gemerkt: merken, die Eingaben ändern, vergleichen.")
            : QStringLiteral("▼ kleinster Wert der Zeile. Jede Spalte ist frisch gerechnet, wie "
                             "nach dem Programmstart."));
    zeigeAuswahl();
    vergibKuerzel(*this);
}

void Variantenvergleich::rechne() {
    spalten_.clear();
    const auto nimm = [this](const QString& name, const Eingabestand& stand) {
        Spalte spalte{name, {}, {}};
        spalte.wand.eigeneMaterialien = programm_.w.eigeneMaterialien;
        static_cast<Eingaben&>(spalte.wand) = stand.eingaben;
        spalte.ergebnis = rechneFrischFuer(spalte.wand, stand.felder);
        spalten_.push_back(std::move(spalte));
    };
    nimm(QStringLiteral("jetzt"), programm_.eingabestand());
    for (const Variante& variante : programm_.varianten) nimm(variante.name, variante.stand);
}

int Variantenvergleich::fuegeZeileAn(const QString& kopf, const QStringList& texte) {
    const int zeile = tabelle_->rowCount();
    tabelle_->insertRow(zeile);
    tabelle_->setVerticalHeaderItem(zeile, new QTableWidgetItem(kopf));
    for (int i = 0; i < tabelle_->columnCount(); ++i) {
        auto* zelle = new QTableWidgetItem(texte.value(i));
        zelle->setToolTip(texte.value(i));
        tabelle_->setItem(zeile, i, zelle);
    }
    return zeile;
}

void Variantenvergleich::hebeHervor(int zeile, std::size_t spalte) {
    QTableWidgetItem* zelle = tabelle_->item(zeile, static_cast<int>(spalte));
    QFont fett = tabelle_->font();
    fett.setBold(true);
    zelle->setFont(fett);
    zelle->setData(Qt::AccessibleTextRole, zelle->text() + QStringLiteral(", kleinster Wert"));
    zelle->setText(zelle->text() + QStringLiteral(" ▼"));
}

void Variantenvergleich::zeigeUebernehmen() {
    const int zeile = fuegeZeileAn(QString(), {});
    for (std::size_t i = 1; i < spalten_.size(); ++i) {
        QPushButton* neu = neuerKnopf(
            tabelle_, QStringLiteral("ComUebernehmen(%1)").arg(i), QStringLiteral("Übernehmen"),
            QStringLiteral("Setzt diese Eingaben an die Stelle der jetzigen; rückgängig zu machen"));
        neu->setAccessibleName(QStringLiteral("%1 übernehmen").arg(spalten_[i].name));
        // Behind the click: the table, and with it the button, is made anew.
        connect(
            neu, &QPushButton::clicked, this, [this, i] { uebernimm(i - 1); }, Qt::QueuedConnection);
        tabelle_->setCellWidget(zeile, static_cast<int>(i), neu);
    }
}

// The verdict, and what decides: marked only among walls without a finding and without an open demand.
void Variantenvergleich::zeigeUrteile() {
    QStringList urteile;
    QStringList massgebend;
    std::vector<std::optional<double>> werte;
    for (const Spalte& spalte : spalten_) {
        const Sofortergebnis& ergebnis = spalte.ergebnis;
        urteile << urteilstext(ergebnis);
        massgebend << (ergebnis.urteil.maxEta
                           ? massgebendtext(ergebnis.urteil).remove(QStringLiteral("maßgebend "))
                           : strich);
        werte.push_back(ergebnis.luecken.isEmpty() ? ergebnis.urteil.maxEta : std::nullopt);
    }
    const int urteil = fuegeZeileAn(QStringLiteral("Urteil"), urteile);
    for (std::size_t i = 0; i < spalten_.size(); ++i) {
        QTableWidgetItem* zelle = tabelle_->item(urteil, static_cast<int>(i));
        zelle->setForeground(urteilsfarbe(palette(), gesamturteil(spalten_[i].ergebnis)));
        QStringList hinweise;
        for (const Hinweis& hinweis : spalten_[i].ergebnis.hinweise) hinweise << qtext(hinweis.text);
        if (!hinweise.isEmpty()) zelle->setToolTip(hinweise.join(QLatin1Char('\n')));
    }
    const int zeile = fuegeZeileAn(QStringLiteral("maßgebend"), massgebend);
    if (const auto beste = besteSpalte(werte)) hebeHervor(zeile, *beste);
}

void Variantenvergleich::zeigeAbschnitte() {
    const auto gerechnet = std::find_if(spalten_.begin(), spalten_.end(), [](const Spalte& spalte) {
        return !spalte.ergebnis.abschnitte.empty();
    });
    if (gerechnet == spalten_.end()) return;
    for (std::size_t n = 0; n < gerechnet->ergebnis.abschnitte.size(); ++n) {
        QStringList texte;
        std::vector<std::optional<double>> werte;
        for (const Spalte& spalte : spalten_) {
            const auto& abschnitte = spalte.ergebnis.abschnitte;
            texte << (abschnitte.empty() ? QString() : zellentext(abschnitte[n]));
            werte.push_back(abschnitte.empty() ? std::nullopt : vergleichswert(abschnitte[n]));
        }
        const int zeile = fuegeZeileAn(qtext(gerechnet->ergebnis.abschnitte[n].name), texte);
        for (std::size_t i = 0; i < werte.size(); ++i)
            if (werte[i] > 1.0)
                tabelle_->item(zeile, static_cast<int>(i))
                    ->setForeground(urteilsfarbe(palette(), Balkenurteil::ueberschritten));
        if (const auto beste = besteSpalte(werte)) hebeHervor(zeile, *beste);
    }
}

void Variantenvergleich::zeigeEingaben() {
    std::vector<std::vector<Eingabetext>> eingaben;
    for (const Spalte& spalte : spalten_) eingaben.push_back(eingabetexte(spalte.wand));
    for (std::size_t n = 0; n < eingaben.front().size(); ++n) {
        QStringList texte;
        for (const auto& spalte : eingaben) texte << spalte[n].wert;
        if (texte.count(texte.constFirst()) < texte.size()) fuegeZeileAn(eingaben.front()[n].name, texte);
    }
}

void Variantenvergleich::zeigeAuswahl() {
    for (QPushButton* knopf : {speichern_, loeschen_}) knopf->setEnabled(gewaehlte().has_value());
}

void Variantenvergleich::changeEvent(QEvent* event) {
    Fenster::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !spalten_.empty()) zeige();
}

// ---- What can be done with a variant ----

// A name that is taken already gets the inputs of now.
void Variantenvergleich::merke() {
    QString name = name_->text().trimmed();
    if (name.isEmpty()) name = QStringLiteral("Variante %1").arg(programm_.varianten.size() + 1);
    const auto alte = std::find_if(programm_.varianten.begin(), programm_.varianten.end(),
                                   [&](const Variante& variante) { return variante.name == name; });
    if (alte != programm_.varianten.end())
        alte->stand = programm_.eingabestand();
    else
        programm_.varianten.push_back({name, programm_.eingabestand()});
    zeige();
}

void Variantenvergleich::uebernimm(std::size_t variante) {
    const Variante uebernommen = programm_.varianten[variante];
    programm_.uebernimm(uebernommen.stand, uebernommen.name);
    zeige();
}

// The variant of the chosen column; the first column is none.
std::optional<std::size_t> Variantenvergleich::gewaehlte() const {
    const auto spalten = tabelle_->selectionModel()->selectedColumns();
    if (spalten.size() != 1 || spalten.constFirst().column() < 1) return std::nullopt;
    return static_cast<std::size_t>(spalten.constFirst().column()) - 1;
}

void Variantenvergleich::speichere() {
    const Variante& variante = programm_.varianten[*gewaehlte()];
    const std::optional<QString> ziel =
        waehlePositionsziel(meldungen_, this,
                            positionswahl(QStringLiteral("Variante speichern"), dialogordner(programm_),
                                          alsDateiname(variante.name)));
    if (!ziel) return;
    Wand w = programm_.w;
    static_cast<Eingaben&>(w) = variante.stand.eingaben;
    zuweisen(w, variante.stand.felder);
    if (const auto fehler = schreibePosition(pfad(qtext(mitEndung(utf8(*ziel)))), w)) {
        meldungen_.piep();
        meldungen_.kritisch(this, QStringLiteral(" Fehler"), qtext(fehler->text));
    }
}

void Variantenvergleich::loesche() {
    programm_.varianten.erase(programm_.varianten.begin() + static_cast<std::ptrdiff_t>(*gewaehlte()));
    zeige();
}

}  // namespace rippenscheibe
