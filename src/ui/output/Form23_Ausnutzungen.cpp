#include "ui/output/Form23_Ausnutzungen.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "basis/Zahlenformat.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

enum Rolle { Eta = Qt::UserRole, Erfuellt, Name, Wert };

constexpr double markeBei = 0.75;  // of the width of a bar stands for 1,00
constexpr int rand = 8;            // px
constexpr int balkenhoehe = 8;
constexpr int luecke = 3;  // where a bar breaks

struct Urteilsfarben {
    QColor erfuellt;
    QColor ueberschritten;
};

// Green and red of the verdicts, lighter on a dark ground.
Urteilsfarben urteilsfarben(const QPalette& palette) {
    if (palette.color(QPalette::Base).lightness() < 128) return {QColor(0x81C784), QColor(0xF2776D)};
    return {QColor(0x2E7D32), QColor(0xB3261E)};
}

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
        const Urteilsfarben farben = urteilsfarben(option.palette);
        const bool erfuellt = index.data(Erfuellt).toBool();
        const QColor farbe = erfuellt ? farben.erfuellt : farben.ueberschritten;
        const QRect flaeche = option.rect.adjusted(rand, rand / 2, -rand, -rand / 2);
        const int zeile = option.fontMetrics.height();

        painter->setPen(option.palette.color(QPalette::Text));
        painter->drawText(
            QRect(flaeche.left(), flaeche.top(), flaeche.width(), zeile), Qt::AlignLeft,
            option.fontMetrics.elidedText(index.data(Name).toString(), Qt::ElideRight, flaeche.width()));
        const QRect balken(flaeche.left(), flaeche.top() + zeile + 2, flaeche.width(), balkenhoehe);
        maleBalken(*painter, balken, index.data(Eta).toDouble(), farben, option.palette);

        const QRect unten(flaeche.left(), balken.bottom() + 2, flaeche.width(), zeile);
        painter->setPen(option.palette.color(QPalette::PlaceholderText));
        painter->drawText(unten, Qt::AlignLeft, index.data(Wert).toString());
        painter->setPen(farbe);
        QFont fett = option.font;
        fett.setBold(true);
        painter->setFont(fett);
        painter->drawText(unten, Qt::AlignRight,
                          erfuellt ? QStringLiteral("✓ erfüllt") : QStringLiteral("✗ nicht erfüllt"));
        painter->restore();
    }

  private:
    static void maleBalken(QPainter& painter, const QRect& flaeche, double eta, const Urteilsfarben& farben,
                           const QPalette& palette) {
        const double marke = flaeche.width() * markeBei;
        QColor bahn = palette.color(QPalette::Text);
        bahn.setAlphaF(0.10F);
        painter.fillRect(flaeche, bahn);
        // Up to the mark an exceeded bar is pale, so that what is too much stands out.
        QColor grundfarbe = eta > 1.0 ? farben.ueberschritten : farben.erfuellt;
        if (eta > 1.0) grundfarbe.setAlphaF(0.45F);
        painter.fillRect(
            QRectF(flaeche.left(), flaeche.top(), std::clamp(eta, 0.0, 1.0) * marke, flaeche.height()),
            grundfarbe);
        if (eta > 1.0) {
            const double ueber = std::min((eta - 1.0) * marke, flaeche.width() - marke - luecke);
            painter.fillRect(QRectF(flaeche.left() + marke + luecke, flaeche.top(), std::max(ueber, 2.0),
                                    flaeche.height()),
                             farben.ueberschritten);
        }
        painter.setPen(QPen(palette.color(QPalette::Text), 1));
        const double x = flaeche.left() + marke + luecke / 2.0;
        painter.drawLine(QPointF(x, flaeche.top() - 2), QPointF(x, flaeche.bottom() + 2));
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
