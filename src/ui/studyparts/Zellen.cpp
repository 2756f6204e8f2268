#include "ui/studyparts/Zellen.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <algorithm>

#include "ui/verdict/Ausnutzungsbalken.h"

namespace rippenscheibe {

namespace {

constexpr int rand = 6;  // px
constexpr int balkenbreite = 56;

// The cell as the style draws it, without what stands in it.
void maleGrund(QPainter& painter, QStyleOptionViewItem option) {
    option.text.clear();
    option.icon = {};
    option.features &= ~QStyleOptionViewItem::HasDecoration;
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &option, &painter, option.widget);
}

QColor schriftfarbe(const QStyleOptionViewItem& option) {
    const bool hervor = option.state & QStyle::State_Selected;
    return option.palette.color(hervor ? QPalette::HighlightedText : QPalette::Text);
}

int werteplatz(const QFontMetrics& schrift) {
    return schrift.horizontalAdvance(QStringLiteral("0,0000  ✓ "));
}

}  // namespace

QSize Ausnutzungszelle::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QSize groesse = QStyledItemDelegate::sizeHint(option, index);
    groesse.setHeight(std::max(groesse.height(), option.fontMetrics.height() + rand));
    if (index.data(Eta).isValid()) groesse.setWidth(balkenbreite + werteplatz(option.fontMetrics) + 3 * rand);
    return groesse;
}

void Ausnutzungszelle::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    if (!index.data(Eta).isValid()) return QStyledItemDelegate::paint(painter, option, index);
    QStyleOptionViewItem zelle = option;
    initStyleOption(&zelle, index);
    maleGrund(*painter, zelle);
    painter->save();
    painter->setFont(zelle.font);
    const auto urteil = static_cast<Balkenurteil>(index.data(Urteil).toInt());
    const QRect platz = option.rect.adjusted(rand, 0, -rand, 0);
    const int worte = werteplatz(option.fontMetrics);
    const QRectF balken(platz.left(), platz.center().y() - balkenhoehe / 2.0, platz.width() - worte - rand,
                        balkenhoehe);
    maleBalken(*painter, balken, index.data(Eta).toDouble(), urteil, option.palette);
    const QRect text(platz.right() - worte, platz.top(), worte, platz.height());
    painter->setPen(schriftfarbe(zelle));
    painter->drawText(text, Qt::AlignVCenter | Qt::AlignLeft, zelle.text);
    if (!(option.state & QStyle::State_Selected)) painter->setPen(urteilsfarbe(option.palette, urteil));
    painter->drawText(text, Qt::AlignVCenter | Qt::AlignRight, urteilszeichen(urteil));
    painter->restore();
}

QSize Wandzelle::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {bildgroesse.width() + 180, bildgroesse.height() + rand};
}

void Wandzelle::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem zelle = option;
    initStyleOption(&zelle, index);
    maleGrund(*painter, zelle);
    painter->save();
    const QRect bild(QPoint(option.rect.left() + rand,
                            option.rect.top() + (option.rect.height() - bildgroesse.height()) / 2),
                     bildgroesse);
    const auto miniatur = index.data(Qt::DecorationRole).value<QPixmap>();
    if (!miniatur.isNull()) painter->drawPixmap(bild.topLeft(), miniatur);
    const int links = miniatur.isNull() ? rand : bildgroesse.width() + 3 * rand;
    QRect platz = option.rect.adjusted(links, rand / 2, -rand, -rand / 2);
    const QStringList zeilen = index.data().toString().split(QLatin1Char('\n'));
    QFont fett = zelle.font;
    fett.setWeight(QFont::DemiBold);
    const int hoehe = zelle.fontMetrics.lineSpacing();
    constexpr int saetzehoehe = 3;  // lines that a reason may take instead of a picture
    const int hoechstens = miniatur.isNull() ? saetzehoehe : static_cast<int>(zeilen.size());
    platz.setTop(platz.center().y() - hoehe * hoechstens / 2);
    QColor leise = schriftfarbe(zelle);
    leise.setAlphaF(0.65F);
    for (int i = 0; i < zeilen.size(); ++i) {
        painter->setFont(i == 0 ? fett : zelle.font);
        painter->setPen(i < 2 ? schriftfarbe(zelle) : leise);
        const bool umbrochen = miniatur.isNull() && i > 0;
        const QRect zeile(platz.left(), platz.top() + i * hoehe, platz.width(),
                          umbrochen ? (saetzehoehe - i) * hoehe : hoehe);
        if (umbrochen)
            painter->drawText(zeile, Qt::AlignTop | Qt::AlignLeft | Qt::TextWordWrap, zeilen[i]);
        else
            painter->drawText(zeile, Qt::AlignVCenter | Qt::AlignLeft,
                              painter->fontMetrics().elidedText(zeilen[i], Qt::ElideRight, platz.width()));
    }
    painter->restore();
}

void Zeilenzelle::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    QStyleOptionViewItem zelle = option;
    initStyleOption(&zelle, index);
    maleGrund(*painter, zelle);
    painter->save();
    painter->setFont(zelle.font);
    painter->setPen(schriftfarbe(zelle));
    const QRect platz = option.rect.adjusted(rand / 2, 0, -rand / 2, 0);
    const QStringList zeilen = index.data().toString().split(QLatin1Char('\n'));
    const int hoehe = zelle.fontMetrics.lineSpacing();
    int oben = platz.center().y() - hoehe * static_cast<int>(zeilen.size()) / 2;
    for (const QString& text : zeilen) {
        painter->drawText(QRect(platz.left(), oben, platz.width(), hoehe), Qt::AlignVCenter | Qt::AlignLeft,
                          zelle.fontMetrics.elidedText(text, Qt::ElideRight, platz.width()));
        oben += hoehe;
    }
    painter->restore();
}

}  // namespace rippenscheibe
