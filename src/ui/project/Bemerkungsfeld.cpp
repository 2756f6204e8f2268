#include "ui/project/Bemerkungsfeld.h"

#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

#include "basis/Laengenmass.h"
#include "model/Bemerkungen.h"
#include "ui/basics/Programm.h"
#include "ui/paper/Papierschrift.h"

namespace rippenscheibe {

Bemerkungsfeld::Bemerkungsfeld(const Schrift& schrift, double breite, QWidget* parent)
    : QPlainTextEdit(parent), breite_(breite) {
    setFont(papierschrift(schrift));
    setTabChangesFocus(true);
    setLineWrapMode(QPlainTextEdit::NoWrap);
}

double Bemerkungsfeld::linie() const { return breite_ / mmJeZoll * logicalDpiX(); }

QSize Bemerkungsfeld::sizeHint() const {
    const int rand = 2 * frameWidth() + static_cast<int>(2 * document()->documentMargin()) +
                     verticalScrollBar()->sizeHint().width() + 8;
    return {static_cast<int>(linie()) + rand, QPlainTextEdit::sizeHint().height()};
}

void Bemerkungsfeld::paintEvent(QPaintEvent* event) {
    const double x = contentOffset().x() + document()->documentMargin() + linie();
    QPainter maler(viewport());
    QColor tinte = palette().color(QPalette::Text);
    tinte.setAlphaF(0.05F);
    maler.fillRect(QRectF(x, 0, viewport()->width() - x, viewport()->height()), tinte);
    tinte.setAlphaF(0.35F);
    maler.setPen(QPen(tinte, 1, Qt::DashLine));
    maler.drawLine(QPointF(x, 0), QPointF(x, viewport()->height()));
    maler.end();
    QPlainTextEdit::paintEvent(event);
}

Zeilengrenze::Zeilengrenze(QPlainTextEdit* feld)
    : QObject(feld), feld_(feld), letzterGuter_(feld->toPlainText()) {
    connect(feld, &QPlainTextEdit::textChanged, this, &Zeilengrenze::pruefe);
}

// Between what begins and what ends both texts alike lies the change; it is taken back in one step with it.
void Zeilengrenze::pruefe() {
    const QString text = feld_->toPlainText();
    if (passtInVorbemerkungen(textAus(*feld_))) {
        letzterGuter_ = text;
        return;
    }
    const auto anfang = std::mismatch(text.begin(), text.end(), letzterGuter_.begin(), letzterGuter_.end());
    const auto ende = std::mismatch(
        std::make_reverse_iterator(text.end()), std::make_reverse_iterator(anfang.first),
        std::make_reverse_iterator(letzterGuter_.end()), std::make_reverse_iterator(anfang.second));
    const int von = static_cast<int>(anfang.first - text.begin());
    const int bis = static_cast<int>(ende.first.base() - text.begin());
    const QString vorher(anfang.second, static_cast<qsizetype>(ende.second.base() - anfang.second));
    const QSignalBlocker still(feld_);
    QTextCursor stelle(feld_->document());
    stelle.joinPreviousEditBlock();
    stelle.setPosition(von);
    stelle.setPosition(bis, QTextCursor::KeepAnchor);
    stelle.insertText(vorher);
    stelle.endEditBlock();
    feld_->setTextCursor(stelle);
}

std::string textAus(const QPlainTextEdit& feld) {
    return utf8(feld.toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
}

void zeigeText(QPlainTextEdit& feld, std::string_view text) {
    feld.setPlainText(qtext(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
}

}  // namespace rippenscheibe
