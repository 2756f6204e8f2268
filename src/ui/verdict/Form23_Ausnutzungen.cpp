#include "ui/verdict/Form23_Ausnutzungen.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "ui/basics/Programm.h"
#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Urteilsworte.h"

namespace rippenscheibe {

namespace {

constexpr int Zeilennummer = Ausnutzungsbaum::rolleZeile;
enum Rolle { Abschnittsnummer = Zeilennummer + 1, Eta, Urteilsart, Name, Wert };

constexpr int rand = 6;  // px

// "5.1 Scheibenschub parallel | bar | 0,61  ✓ erfüllt"; a row without a bar is a heading.
class Balkenzeile : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {360, option.fontMetrics.height() + rand};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        if (option.state & QStyle::State_Selected)
            painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
        const bool ganzerAbschnitt = !index.data(Zeilennummer).isValid();
        QFont schrift = option.font;
        schrift.setWeight(ganzerAbschnitt ? QFont::DemiBold : QFont::Normal);
        painter->setFont(schrift);
        const QRect flaeche = option.rect.adjusted(rand, 0, -rand, 0);
        if (!index.data(Urteilsart).isValid()) {
            painter->setPen(option.palette.color(QPalette::PlaceholderText));
            painter->drawText(flaeche, Qt::AlignVCenter, index.data(Name).toString());
        } else {
            maleZeile(*painter, flaeche, option, index);
        }
        painter->restore();
    }

  private:
    static void maleZeile(QPainter& painter, const QRect& flaeche, const QStyleOptionViewItem& option,
                          const QModelIndex& index) {
        const auto urteil = static_cast<Balkenurteil>(index.data(Urteilsart).toInt());
        const QFontMetrics masse(painter.font());
        const int rechts = masse.horizontalAdvance(QStringLiteral("00,000  ! nicht nachgewiesen "));
        // The columns of all rows stand below each other, whatever their indent.
        const int anfang = std::max(flaeche.left(), option.widget->width() * 2 / 5);
        const QRect name(flaeche.left(), flaeche.top(), anfang - rand - flaeche.left(), flaeche.height());
        const QRect balken(anfang, flaeche.center().y() - balkenhoehe / 2,
                           std::max(flaeche.right() - rechts - anfang, 0), balkenhoehe);
        painter.setPen(option.palette.color(QPalette::Text));
        painter.drawText(name, Qt::AlignVCenter,
                         masse.elidedText(index.data(Name).toString(), Qt::ElideRight, name.width()));
        maleBalken(painter, balken, index.data(Eta).toDouble(), urteil, option.palette);
        const QRect worte(flaeche.right() - rechts + rand, flaeche.top(), rechts - rand, flaeche.height());
        painter.drawText(worte, Qt::AlignVCenter, index.data(Wert).toString());
        painter.setPen(urteilsfarbe(option.palette, urteil));
        painter.drawText(worte.adjusted(masse.horizontalAdvance(QStringLiteral("00,000 ")), 0, 0, 0),
                         Qt::AlignVCenter, urteilszeichen(urteil) + QLatin1Char(' ') + urteilswort(urteil));
    }
};

// Nothing was computed where nothing is asked for, nor where a proof is missing.
QString abschnittswert(const Abschnittsurteil& abschnitt, Balkenurteil urteil, char dezimalzeichen) {
    if (urteil == Balkenurteil::ohneBedarf) return QStringLiteral("–");
    if (urteil == Balkenurteil::ohneNachweis && abschnitt.groesster == 0) return QString();
    return etatext(abschnitt.groesster, dezimalzeichen);
}

struct Zeileninhalt {
    QString name;
    double eta = 0.0;
    Balkenurteil urteil = Balkenurteil::erfuellt;
    QString wert;
    QString zusatz;  // behind the verdict in the tip
};

QTreeWidgetItem* fuegeHinzu(QTreeWidgetItem* eltern, const Zeileninhalt& inhalt) {
    auto* eintrag = new QTreeWidgetItem(eltern);
    eintrag->setData(0, Eta, inhalt.eta);
    eintrag->setData(0, Urteilsart, static_cast<int>(inhalt.urteil));
    eintrag->setData(0, Name, inhalt.name);
    eintrag->setData(0, Wert, inhalt.wert);
    QString ganz = QStringLiteral("%1: %2, %3").arg(inhalt.name, inhalt.wert, urteilswort(inhalt.urteil));
    if (!inhalt.zusatz.isEmpty()) ganz += QStringLiteral(" (%1)").arg(inhalt.zusatz);
    eintrag->setText(0, ganz);
    eintrag->setToolTip(0, ganz);
    return eintrag;
}

// The place of rows without demand; made with the first of them.
QTreeWidgetItem* ohneBedarf(QTreeWidgetItem* eltern, QTreeWidgetItem*& falte) {
    if (falte == nullptr) {
        falte = new QTreeWidgetItem;
        eltern->addChild(falte);
    }
    return falte;
}

void beschrifteFalte(QTreeWidgetItem* falte) {
    if (falte == nullptr) return;
    const QString text = QStringLiteral("ohne Beanspruchung (%1)").arg(falte->childCount());
    falte->setText(0, text);
    falte->setData(0, Name, text);
    // It stays the last, whatever came behind it.
    QTreeWidgetItem* eltern = falte->parent();
    QTreeWidgetItem* wurzel = eltern != nullptr ? eltern : falte->treeWidget()->invisibleRootItem();
    wurzel->addChild(wurzel->takeChild(wurzel->indexOfChild(falte)));
}

}  // namespace

Ausnutzungsbaum::Ausnutzungsbaum(QWidget* parent) : QTreeWidget(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    // A soft ground under a chosen row: the bars keep their colours.
    QPalette farben = palette();
    QColor grund = farben.color(QPalette::Highlight);
    grund.setAlphaF(0.18F);
    farben.setColor(QPalette::Highlight, grund);
    setPalette(farben);
    setIndentation(16);
    setItemDelegate(new Balkenzeile(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // Not the current row: the tree makes its first row current when it gets the focus, and that is no
    // choice.
    connect(this, &QTreeWidget::itemSelectionChanged, this, [this] {
        if (const auto gewaehlt = selectedItems(); !gewaehlt.isEmpty()) melde(gewaehlt.constFirst());
    });
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* eintrag) {
        melde(eintrag);
        if (eintrag->childCount() > 0 && !eintrag->isExpanded()) eintrag->setExpanded(true);
    });
}

void Ausnutzungsbaum::zeige(const std::vector<Abschnittsurteil>& abschnitte,
                            const std::vector<Ausnutzung>& zeilen, char dezimalzeichen) {
    abschnitte_ = abschnitte;
    zeilen_ = zeilen;
    dezimalzeichen_ = dezimalzeichen;
    baue();
}

void Ausnutzungsbaum::ordne(Reihenfolge reihenfolge) {
    reihenfolge_ = reihenfolge;
    baue();
}

void Ausnutzungsbaum::melde(const QTreeWidgetItem* eintrag) {
    if (eintrag == nullptr) return;
    if (eintrag->data(0, Zeilennummer).isValid())
        Q_EMIT zeileGewaehlt(eintrag->data(0, Zeilennummer).toInt());
    else if (eintrag->data(0, Abschnittsnummer).isValid())
        Q_EMIT abschnittGewaehlt(eintrag->data(0, Abschnittsnummer).toInt());
}

void Ausnutzungsbaum::baue() {
    const QSignalBlocker ruhe(this);
    clear();
    // The indices of a list in the order that is chosen.
    const auto geordnet = [this](const auto& liste, const auto& eta) {
        std::vector<std::size_t> folge(liste.size());
        for (std::size_t i = 0; i < folge.size(); ++i) folge[i] = i;
        if (reihenfolge_ == Reihenfolge::groesse)
            std::stable_sort(folge.begin(), folge.end(),
                             [&](std::size_t a, std::size_t b) { return eta(liste[a]) > eta(liste[b]); });
        return folge;
    };
    const auto zeilenfolge = geordnet(zeilen_, [](const Ausnutzung& z) { return z.eta; });
    QTreeWidgetItem* leereAbschnitte = nullptr;
    for (const std::size_t i : geordnet(abschnitte_, [](const Abschnittsurteil& a) { return a.groesster; })) {
        const Abschnittsurteil& a = abschnitte_[i];
        const Balkenurteil urteil = balkenurteil(a);
        const bool leer = urteil == Balkenurteil::ohneBedarf;
        QString zusatz = qtext(a.luecke);
        if (a.entfaelltImBericht) zusatz = QStringLiteral("zählt, obwohl der Bericht \"entfällt\" sagt");
        QTreeWidgetItem* abschnitt = fuegeHinzu(
            leer ? ohneBedarf(invisibleRootItem(), leereAbschnitte) : invisibleRootItem(),
            {qtext(a.name), a.groesster, urteil, abschnittswert(a, urteil, dezimalzeichen_), zusatz});
        abschnitt->setData(0, Abschnittsnummer, static_cast<int>(i));
        const std::string nummer = std::string(a.name.substr(0, a.name.find(' ') + 1));
        QTreeWidgetItem* leereZeilen = nullptr;
        for (const std::size_t j : zeilenfolge) {
            const Ausnutzung& z = zeilen_[j];
            if (!z.name.starts_with(nummer)) continue;
            QTreeWidgetItem* eltern = z.eta == 0 && !leer ? ohneBedarf(abschnitt, leereZeilen) : abschnitt;
            fuegeHinzu(eltern, {qtext(z.name),
                                z.eta,
                                z.erfuellt ? Balkenurteil::erfuellt : Balkenurteil::ueberschritten,
                                etatext(z.eta, dezimalzeichen_),
                                {}})
                ->setData(0, Zeilennummer, static_cast<int>(j));
        }
        beschrifteFalte(leereZeilen);
    }
    beschrifteFalte(leereAbschnitte);
}

}  // namespace rippenscheibe
