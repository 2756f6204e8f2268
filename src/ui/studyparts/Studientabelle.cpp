#include "ui/studyparts/Studientabelle.h"

#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/basics/Programm.h"
#include "ui/verdict/Sofortrechnung.h"

namespace rippenscheibe {

namespace {

enum Rolle { Eta = Qt::UserRole, Urteilsart, Nummer };

constexpr int rand = 6;  // px
constexpr int balkenhoehe = 8;

// A bar, then the text with the sign of its verdict.
class Balkenzelle : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize groesse = QStyledItemDelegate::sizeHint(option, index);
        groesse.setHeight(option.fontMetrics.height() + rand);
        if (index.data(Eta).isValid()) groesse.rwidth() = 60 + textbreite(option) + 3 * rand;
        return groesse;
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        if (!index.data(Eta).isValid()) return QStyledItemDelegate::paint(painter, option, index);
        QStyleOptionViewItem leer = option;
        initStyleOption(&leer, index);
        leer.text.clear();
        option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &leer, painter, option.widget);
        painter->save();
        painter->setFont(leer.font);
        const auto urteil = static_cast<Balkenurteil>(index.data(Urteilsart).toInt());
        const QRect flaeche = option.rect.adjusted(rand, 0, -rand, 0);
        const int text = textbreite(option);
        const QRect balken(flaeche.left(), flaeche.center().y() - balkenhoehe / 2,
                           flaeche.width() - text - rand, balkenhoehe);
        maleBalken(*painter, balken, index.data(Eta).toDouble(), urteil, option.palette);
        const QRect worte(flaeche.right() - text, flaeche.top(), text, flaeche.height());
        const bool hervor = option.state & QStyle::State_Selected;
        painter->setPen(option.palette.color(hervor ? QPalette::HighlightedText : QPalette::Text));
        painter->drawText(worte, Qt::AlignVCenter | Qt::AlignLeft, index.data(Qt::DisplayRole).toString());
        if (!hervor) painter->setPen(urteilsfarbe(option.palette, urteil));
        painter->drawText(worte, Qt::AlignVCenter | Qt::AlignRight, urteilszeichen(urteil));
        painter->restore();
    }

  private:
    static int textbreite(const QStyleOptionViewItem& option) {
        return option.fontMetrics.horizontalAdvance(QStringLiteral("0,0000  ✓"));
    }
};

}  // namespace

Studientabelle::Studientabelle(const QString& name, const QString& bezeichnung, QWidget* parent)
    : QTreeWidget(parent) {
    setObjectName(name);
    setAccessibleName(bezeichnung);
    setItemDelegate(new Balkenzelle(this));
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
            zeile->setData(spalte, Eta, *zelle.eta);
            zeile->setData(spalte, Urteilsart, static_cast<int>(zelle.urteil));
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

void Studientabelle::schliesseAb() {
    constexpr int hoechstens = 240;  // px; what is longer stands in its tip
    header()->setStretchLastSection(false);
    for (int spalte = 0; spalte < columnCount(); ++spalte) {
        header()->setSectionResizeMode(spalte,
                                       spalte == breit_ ? QHeaderView::Stretch : QHeaderView::Interactive);
        const int bedarf = std::max(sizeHintForColumn(spalte), header()->sectionSizeHint(spalte));
        if (spalte != breit_) header()->resizeSection(spalte, std::min(bedarf, hoechstens));
    }
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

QString massgebendzelle(const Bewertung& bewertung, const Bewertungsregel& regel) {
    if (bewertung.ausgang == Ausgang::hinweis || bewertung.ausgang == Ausgang::luecke)
        return qtext(scheitertAn(bewertung, regel));
    return bewertung.massgebend ? qtext(massgebendText(bewertung, regel))
                                : QStringLiteral("ohne Beanspruchung");
}

QString richtungstext(const Bewertung& bewertung, double Fvk) {
    if (!bewertung.massgebend || bewertung.ausgang == Ausgang::hinweis || Fvk == 0)
        return QStringLiteral("–");
    return bewertung.nachLinks ? QStringLiteral("← −Fv,k") : QStringLiteral("→ +Fv,k");
}

}  // namespace rippenscheibe
