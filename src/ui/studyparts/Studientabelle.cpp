#include "ui/studyparts/Studientabelle.h"

#include <QHeaderView>
#include <algorithm>

#include "ui/basics/Programm.h"
#include "ui/studyparts/Zellen.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {

namespace {

constexpr int Nummer = Ausnutzungszelle::Urteil + 1;

// The horizontal load of the case that governs.
double horizontallast(const Bewertung& bewertung, const Bewertungsregel& regel, double Fvk) {
    if (bewertung.lastfall < 0) return Fvk;
    for (const auto& [feld, wert] : regel.lastfaelle[static_cast<std::size_t>(bewertung.lastfall)].werte)
        if (feld == eingabeindex("Fvk")) return std::get<double>(wert);
    return Fvk;
}

}  // namespace

Studientabelle::Studientabelle(const QString& name, const QString& bezeichnung, QWidget* parent)
    : QTreeWidget(parent) {
    setObjectName(name);
    setAccessibleName(bezeichnung);
    setAccessibleDescription(QStringLiteral("Eine Wand je Zeile; die gewählte wird gezeichnet"));
    setItemDelegate(new Ausnutzungszelle(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    header()->setSectionsMovable(false);
    connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* zeile) {
        if (zeile != nullptr) Q_EMIT gewaehlt(nummer());
    });
}

void Studientabelle::beginne(const QStringList& spalten, int breit) {
    breit_ = breit;
    clear();
    setColumnCount(static_cast<int>(spalten.size()));
    setHeaderLabels(spalten);
}

void Studientabelle::fuegeZeileAn(const QList<Studienzelle>& zellen, int nummer, bool heute) {
    auto* zeile = new QTreeWidgetItem;
    zeile->setData(0, Nummer, nummer);
    for (int spalte = 0; spalte < zellen.size(); ++spalte) {
        const Studienzelle& zelle = zellen[spalte];
        zeile->setText(spalte, zelle.text);
        zeile->setTextAlignment(spalte, Qt::AlignVCenter | (zelle.zahl ? Qt::AlignRight : Qt::AlignLeft));
        zeile->setToolTip(spalte, zelle.tip.isEmpty() ? zelle.text : zelle.tip);
        if (zelle.eta) {
            zeile->setData(spalte, Ausnutzungszelle::Eta, *zelle.eta);
            zeile->setData(spalte, Ausnutzungszelle::Urteil, static_cast<int>(zelle.urteil));
            zeile->setData(spalte, Qt::AccessibleTextRole,
                           QStringLiteral("%1, %2").arg(zelle.text, urteilswort(zelle.urteil)));
        }
        if (!heute) continue;
        QFont schrift = font();
        schrift.setItalic(true);
        zeile->setFont(spalte, schrift);
    }
    addTopLevelItem(zeile);
}

// Columns as wide as their texts; what does not fit the table is reached by scrolling.
void Studientabelle::verteileBreiten() {
    constexpr int hoechstens = 240;  // px; what is longer stands in its tip
    int rest = viewport()->width();
    for (int spalte = 0; spalte < columnCount(); ++spalte) {
        const int bedarf = std::max(sizeHintForColumn(spalte), header()->sectionSizeHint(spalte));
        header()->resizeSection(spalte, std::min(bedarf, hoechstens));
        rest -= header()->sectionSize(spalte);
    }
    if (rest > 0 && breit_ < columnCount())
        header()->resizeSection(breit_, header()->sectionSize(breit_) + rest);
}

void Studientabelle::resizeEvent(QResizeEvent* event) {
    QTreeWidget::resizeEvent(event);
    verteileBreiten();
}

void Studientabelle::schliesseAb() {
    header()->setStretchLastSection(false);
    verteileBreiten();
    QTreeWidgetItem* erste = topLevelItem(0);
    for (int zeile = 0; zeile < topLevelItemCount(); ++zeile)
        if (topLevelItem(zeile)->data(0, Nummer).toInt() >= 0) {
            erste = topLevelItem(zeile);
            break;
        }
    setCurrentItem(erste);
}

int Studientabelle::nummer() const {
    return currentItem() == nullptr ? -1 : currentItem()->data(0, Nummer).toInt();
}

Balkenurteil balkenurteil(Ausgang ausgang) {
    switch (ausgang) {
        case Ausgang::besteht:
            return Balkenurteil::erfuellt;
        case Ausgang::ueberschritten:
            return Balkenurteil::ueberschritten;
        case Ausgang::hinweis:
        case Ausgang::luecke:
            break;
    }
    return Balkenurteil::ohneNachweis;
}

Studienzelle ausnutzungszelle(const Bewertung& bewertung, const Bewertungsregel& regel) {
    const Balkenurteil urteil = balkenurteil(bewertung.ausgang);
    Studienzelle zelle{QStringLiteral("–"), false, 0.0, urteil, qtext(scheitertAn(bewertung, regel))};
    if (bewertung.ausgang == Ausgang::hinweis) return zelle;
    zelle.text = etatext(bewertung.maxEta);
    zelle.eta = bewertung.maxEta;
    return zelle;
}

Studienzelle massgebendzelle(const Bewertung& bewertung, const Bewertungsregel& regel) {
    if (bewertung.ausgang == Ausgang::hinweis || bewertung.ausgang == Ausgang::luecke)
        return {qtext(scheitertAn(bewertung, regel))};
    if (!bewertung.massgebend) return {QStringLiteral("ohne Beanspruchung")};
    Studienzelle zelle{qtext(*bewertung.massgebend)};
    zelle.tip = qtext(massgebendText(bewertung, regel));
    return zelle;
}

QString richtungstext(const Bewertung& bewertung, const Bewertungsregel& regel, double Fvk) {
    if (!bewertung.massgebend || bewertung.ausgang == Ausgang::hinweis ||
        horizontallast(bewertung, regel, Fvk) == 0)
        return QStringLiteral("–");
    return bewertung.nachLinks ? QStringLiteral("← −Fv,k") : QStringLiteral("→ +Fv,k");
}

}  // namespace rippenscheibe
