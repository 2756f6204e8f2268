#include "ui/output/Form23_Ausnutzungen.h"

#include <QPainter>
#include <cmath>

#include "basis/Zahlenformat.h"
#include "ui/basics/Ausnutzungsbalken.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

enum Rolle { Eta = Qt::UserRole, Erfuellt, Name, Wert };

constexpr int rand = 8;  // px
constexpr int balkenhoehe = 8;

class Balkenmaler : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {160, 2 * option.fontMetrics.height() + balkenhoehe + 2 * rand};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        const bool gewaehlt = option.state & QStyle::State_Selected;
        if (gewaehlt) {
            QColor grund = option.palette.color(QPalette::Highlight);
            grund.setAlphaF(0.18F);
            painter->fillRect(option.rect, grund);
        }
        const Balkenurteil urteil =
            index.data(Erfuellt).toBool() ? Balkenurteil::erfuellt : Balkenurteil::ueberschritten;
        const QRect flaeche = option.rect.adjusted(rand, rand / 2, -rand, -rand / 2);
        const int zeile = option.fontMetrics.height();

        painter->setPen(option.palette.color(QPalette::Text));
        painter->drawText(
            QRect(flaeche.left(), flaeche.top(), flaeche.width(), zeile), Qt::AlignLeft,
            option.fontMetrics.elidedText(index.data(Name).toString(), Qt::ElideRight, flaeche.width()));
        const QRect balken(flaeche.left(), flaeche.top() + zeile + 2, flaeche.width(), balkenhoehe);
        maleBalken(*painter, balken, index.data(Eta).toDouble(), urteil, option.palette);

        const QRect unten(flaeche.left(), balken.bottom() + 2, flaeche.width(), zeile);
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
        painter->drawText(unten, Qt::AlignLeft, index.data(Wert).toString());
        painter->setPen(urteilsfarbe(option.palette, urteil));
        QFont fett = option.font;
        fett.setBold(true);
        painter->setFont(fett);
        painter->drawText(unten, Qt::AlignRight,
                          urteilszeichen(urteil) + QLatin1Char(' ') + urteilswort(urteil));
        painter->restore();
    }
};

}  // namespace

QString ausnutzungstext(double eta, char dezimalzeichen) {
    return std::isfinite(eta) ? qtext(formatiere("0.00", eta, dezimalzeichen)) : QStringLiteral("∞");
}

Ausnutzungsliste::Ausnutzungsliste(QWidget* parent) : QListWidget(parent) {
    setItemDelegate(new Balkenmaler(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setUniformItemSizes(true);
    connect(this, &QListWidget::currentRowChanged, this, &Ausnutzungsliste::gewaehlt);
    connect(this, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* zeile) { Q_EMIT gewaehlt(row(zeile)); });
}

void Ausnutzungsliste::zeige(const std::vector<Ausnutzung>& ausnutzungen, char dezimalzeichen) {
    const QSignalBlocker ruhe(this);
    clear();
    for (const Ausnutzung& a : ausnutzungen) {
        const QString name = qtext(a.name);
        const QString wert = ausnutzungstext(a.eta, dezimalzeichen);
        const QString urteil = a.erfuellt ? QStringLiteral("erfüllt") : QStringLiteral("nicht erfüllt");
        auto* zeile = new QListWidgetItem(this);
        zeile->setData(Eta, a.eta);
        zeile->setData(Erfuellt, a.erfuellt);
        zeile->setData(Name, name);
        zeile->setData(Wert, wert);
        const QString ganz = QStringLiteral("%1: %2, %3").arg(name, wert, urteil);
        zeile->setText(ganz);
        zeile->setToolTip(ganz);
    }
}

}  // namespace rippenscheibe
