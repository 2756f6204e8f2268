#include "ui/folder/Lastfaelle.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <system_error>

#include "files/Dateischreiber.h"
#include "files/Pfad.h"
#include "study/Lastfaelle.h"
#include "ui/basics/Knopf.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/folder/Lastfallmodell.h"
#include "ui/studyparts/Zellen.h"
#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {

namespace {

// Numbers are typed, kinds are chosen from a list.
class Lastzelle : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override {
        const QStringList worte = Lastfallmodell::auswahl(index.column());
        if (worte.isEmpty()) return QStyledItemDelegate::createEditor(parent, option, index);
        auto* liste = new QComboBox(parent);
        liste->addItems(worte);
        return liste;
    }
    void setEditorData(QWidget* feld, const QModelIndex& index) const override {
        auto* liste = qobject_cast<QComboBox*>(feld);
        if (liste == nullptr) return QStyledItemDelegate::setEditorData(feld, index);
        liste->setCurrentText(index.data(Qt::DisplayRole).toString());
    }
    void setModelData(QWidget* feld, QAbstractItemModel* modell, const QModelIndex& index) const override {
        const auto* liste = qobject_cast<QComboBox*>(feld);
        if (liste == nullptr) return QStyledItemDelegate::setModelData(feld, modell, index);
        modell->setData(index, QString::number(liste->currentIndex() + 1));
    }
};

QString pfadtextVon(const std::filesystem::path& pfad) { return qtext(pfadtext(pfad)); }

}  // namespace

Lastfaelle::Lastfaelle(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Lastfaelle"), QStringLiteral("  Lastfälle"),
              Tippen::aendertNichts),
      modell_(new Lastfallmodell(programm.w, this)),
      tabelle_(new QTableView(this)),
      ort_(new QLabel(this)),
      urteil_(new QLabel(this)),
      satz_(new QLabel(this)) {
    auto* erklaerung = new QLabel(
        QStringLiteral("Ein Lauf weist eine Lasteinwirkungsdauer nach; hier steht für jeden Lastfall eine "
                       "Zeile. Grau ist, was der Lastfall aus der Position übernimmt."),
        this);
    erklaerung->setWordWrap(true);
    inhalt()->addWidget(erklaerung);
    ort_->setObjectName(QStringLiteral("Ort"));
    ort_->setForegroundRole(QPalette::PlaceholderText);
    ort_->setWordWrap(true);
    inhalt()->addWidget(ort_);
    inhalt()->addWidget(baueTabelle(), 1);
    inhalt()->addWidget(baueKnoepfe());
    urteil_->setObjectName(QStringLiteral("Urteil"));
    QFont fett = urteil_->font();
    fett.setWeight(QFont::DemiBold);
    urteil_->setFont(fett);
    inhalt()->addWidget(urteil_);
    satz_->setObjectName(QStringLiteral("Saetze"));
    satz_->setWordWrap(true);
    satz_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    satz_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    inhalt()->addWidget(satz_);

    sichern_ = schaltflaeche(QStringLiteral("ComSichern"), QStringLiteral("&Sichern und zurück"));
    sichern_->setDefault(true);
    connect(sichern_, &QPushButton::clicked, this, &Lastfaelle::accept);
    QPushButton* abbruch = schaltflaeche(QStringLiteral("ComAbbruch"), QStringLiteral("Ab&bruch"));
    connect(abbruch, &QPushButton::clicked, this, &Lastfaelle::reject);
    connect(modell_, &Lastfallmodell::gerechnet, this, &Lastfaelle::zeigeUrteil);
    connect(tabelle_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &Lastfaelle::zeigeUrteil);
    lade();
    connect(modell_, &Lastfallmodell::gerechnet, this, [this] { geaendert_ = true; });
    resize(1120, 560);
}

QWidget* Lastfaelle::baueTabelle() {
    tabelle_->setObjectName(QStringLiteral("Lastfalltabelle"));
    tabelle_->setAccessibleName(QStringLiteral("Lastfälle"));
    tabelle_->setModel(modell_);
    tabelle_->setItemDelegate(new Lastzelle(tabelle_));
    tabelle_->setItemDelegateForColumn(Lastfallmodell::Ausnutzung, new Ausnutzungszelle(tabelle_));
    tabelle_->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                              QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
    tabelle_->setAlternatingRowColors(true);
    fuegeInTabfolge(*tabelle_);
    tabelle_->verticalHeader()->hide();
    tabelle_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2 * raster);
    setzeEnter(*tabelle_, Enter::eigen);
    QHeaderView& kopf = *tabelle_->horizontalHeader();
    kopf.setHighlightSections(false);
    kopf.setSectionResizeMode(QHeaderView::Interactive);
    const int ziffer = fontMetrics().horizontalAdvance(QLatin1Char('0'));
    for (int spalte = 0; spalte < Lastfallmodell::Ausnutzung; ++spalte)
        tabelle_->setColumnWidth(spalte, ziffer * (Lastfallmodell::auswahl(spalte).isEmpty() ? 7 : 11));
    tabelle_->setColumnWidth(Lastfallmodell::Name, ziffer * 25);
    tabelle_->setColumnWidth(Lastfallmodell::Ausnutzung, ziffer * 18);
    kopf.setSectionResizeMode(Lastfallmodell::Massgebend, QHeaderView::Stretch);
    tabelle_->setMinimumSize(480, 160);
    return tabelle_;
}

QWidget* Lastfaelle::baueKnoepfe() {
    auto* leiste = new QWidget(this);
    auto* reihe = new QHBoxLayout(leiste);
    reihe->setContentsMargins(0, 0, 0, 0);
    const auto fuegeAn = [&](const char* name, const char* text, const char* tip, auto tue) {
        QPushButton* neu = neuerKnopf(leiste, QLatin1String(name), qtext(text), qtext(tip));
        connect(neu, &QPushButton::clicked, this, tue);
        reihe->addWidget(neu);
        return neu;
    };
    fuegeAn("Vorschlagen", "&Vorschlagen",
            "Lastfälle aus den Lasten der Position: Fv in beiden Richtungen mit voller und kleinster "
            "Vertikallast, Vertikallast allein, Winddruck und Windsog",
            [this] { schlageVor(); });
    reihe->addSpacing(2 * raster);
    fuegeAn("Neu", "&Neuer Lastfall", "Einen Lastfall mit den Lasten der Position anfügen",
            [this] { tabelle_->selectRow(modell_->fuegeEin(-1)); });
    QPushButton* kopie = fuegeAn("Verdoppeln", "Ver&doppeln", "Den gewählten Lastfall noch einmal einfügen",
                                 [this] { tabelle_->selectRow(modell_->fuegeEin(zeile())); });
    QPushButton* weg = fuegeAn("Loeschen", "&Löschen", "Den gewählten Lastfall löschen",
                               [this] { modell_->loesche(zeile()); });
    const auto schalte = [this, kopie, weg] {
        kopie->setEnabled(zeile() >= 0);
        weg->setEnabled(zeile() >= 0);
    };
    connect(tabelle_->selectionModel(), &QItemSelectionModel::currentRowChanged, leiste, schalte);
    connect(modell_, &Lastfallmodell::gerechnet, leiste, schalte);
    schalte();
    reihe->addStretch(1);
    return leiste;
}

int Lastfaelle::zeile() const { return tabelle_->currentIndex().row(); }

void Lastfaelle::lade() {
    if (programm_.Dateiname.empty()) {
        ort_->setText(
            QStringLiteral("Die Position ist noch nicht gesichert. Die Tabelle liegt neben ihrer "
                           "Datei; bis dahin lässt sie sich nur ansehen."));
        sichern_->setEnabled(false);
        sichern_->setToolTip(QStringLiteral("Zuerst die Position sichern"));
        modell_->setzeFaelle({});
        return;
    }
    const std::filesystem::path datei = lastfalldatei(pfad(qtext(programm_.Dateiname)));
    auto gelesen = liesLastfaelle(datei);
    if (const auto* fehler = std::get_if<std::string>(&gelesen)) {
        ort_->setText(qtext(*fehler) + QStringLiteral("\nDie Datei bleibt unverändert."));
        gesperrt_ = true;
        sichern_->setEnabled(false);
    } else {
        ort_->setText(QStringLiteral("Neben der Position: ") + pfadtextVon(datei.filename()));
        ort_->setToolTip(pfadtextVon(datei));
        modell_->setzeFaelle(std::get<0>(gelesen));
    }
    if (modell_->massgebend() >= 0) tabelle_->selectRow(modell_->massgebend());
}

void Lastfaelle::schlageVor() {
    const auto vorschlag = vorgeschlageneLastfaelle(programm_.w);
    if (vorschlag.empty()) {
        meldungen_.hinweis(this, QStringLiteral(" Hinweis"), QStringLiteral("Die Wand hat keine Lasten."));
        return;
    }
    const Meldung frage{
        Symbol::frage, QStringLiteral("Lastfälle"),
        QStringLiteral("Soll die Tabelle durch die vorgeschlagenen Lastfälle ersetzt werden?"),
        Knoepfe::jaNein};
    if (modell_->rowCount() > 0 && meldungen_.zeige(this, frage) != Antwort::ja) return;
    modell_->setzeFaelle(vorschlag);
    tabelle_->selectRow(modell_->massgebend());
}

// The governing case, and what there is to say of the chosen one.
void Lastfaelle::zeigeUrteil() {
    const Fallurteil* fall = modell_->urteil(modell_->massgebend());
    const Balkenurteil art = fall == nullptr           ? Balkenurteil::ohneBedarf
                             : !fall->urteil.maxEta    ? Balkenurteil::ohneNachweis
                             : fall->urteil.erfuellt() ? Balkenurteil::erfuellt
                                                       : Balkenurteil::ueberschritten;
    QString text =
        QStringLiteral("Noch keine Lastfälle. „Vorschlagen“ bildet sie aus den Lasten der Position.");
    if (fall != nullptr && fall->urteil.maxEta)
        text = QStringLiteral("%1 maßgebend %2 · %3")
                   .arg(urteilszeichen(art), etatext(*fall->urteil.maxEta), qtext(massgebendText(*fall)));
    else if (fall != nullptr)
        text = QStringLiteral("! %1: Hinweise, keine Berechnung").arg(qtext(fall->name));
    urteil_->setText(text);
    QPalette farben = urteil_->palette();
    farben.setColor(QPalette::WindowText, urteilsfarbe(palette(), art));
    urteil_->setPalette(farben);

    QStringList saetze;
    if (const Fallurteil* gewaehlt = modell_->urteil(zeile())) {
        for (const std::string& hinweis : gewaehlt->hinweise)
            saetze << QStringLiteral("Hinweis: ") + qtext(hinweis);
        for (const auto& [_, luecke] : gewaehlt->luecken) saetze << QStringLiteral("Lücke: ") + qtext(luecke);
        for (QString& satz : saetze) satz = qtext(gewaehlt->name) + QStringLiteral(" – ") + satz;
    }
    satz_->setText(saetze.join(QLatin1Char('\n')));
}

bool Lastfaelle::raeumeAb(const std::filesystem::path& datei) {
    std::error_code fehler;
    if (!std::filesystem::exists(datei, fehler) && !fehler) return true;
    const Meldung frage{
        Symbol::frage, QStringLiteral("Lastfälle"),
        QStringLiteral("Die Tabelle ist leer. Soll die Datei\n%1\ngelöscht werden?").arg(pfadtextVon(datei)),
        Knoepfe::jaNein};
    if (meldungen_.zeige(this, frage) != Antwort::ja) return false;
    std::filesystem::remove(datei, fehler);
    if (!fehler) return true;
    meldungen_.kritisch(this, QStringLiteral(" Fehler"),
                        QStringLiteral("Die Datei\n%1\nkann nicht gelöscht werden.").arg(pfadtextVon(datei)));
    return false;
}

bool Lastfaelle::sichere() {
    const auto faelle = modell_->faelle();
    if (!faelle) {
        const QModelIndex zelle = modell_->abgelehnt();
        tabelle_->setCurrentIndex(zelle);
        meldungen_.hinweis(this, QStringLiteral(" Hinweis"), zelle.data(Qt::ToolTipRole).toString());
        return false;
    }
    const std::filesystem::path datei = lastfalldatei(pfad(qtext(programm_.Dateiname)));
    if (faelle->empty()) return raeumeAb(datei);
    if (const auto fehler = schreibeDauerhaft(datei, lastfaelletext(*faelle))) {
        meldungen_.kritisch(this, QStringLiteral(" Fehler"), qtext(fehler->text));
        return false;
    }
    return true;
}

void Lastfaelle::accept() {
    if (sichern_->isEnabled() && sichere()) Fenster::accept();
}

void Lastfaelle::reject() {
    if (geaendert_ && !gesperrt_) {
        const bool sicherbar = sichern_->isEnabled();
        const Antwort antwort = meldungen_.zeige(
            this, sicherbar ? Meldung{Symbol::frage, QStringLiteral("Lastfälle"),
                                      QStringLiteral("Sollen die geänderten Lastfälle gesichert werden?"),
                                      Knoepfe::jaNeinAbbrechen}
                            : Meldung{Symbol::frage, QStringLiteral("Lastfälle"),
                                      QStringLiteral("Die Lastfälle sind nicht gesichert. Sollen sie "
                                                     "verworfen werden?"),
                                      Knoepfe::jaNein});
        if (sicherbar && antwort == Antwort::ja) return accept();
        if (antwort != (sicherbar ? Antwort::nein : Antwort::ja)) return;
    }
    Fenster::reject();
}

}  // namespace rippenscheibe
