#include "ui/main/Form1_Teile.h"

#include <QKeyEvent>
#include <QPainter>

namespace rippenscheibe {

Kurzzeile::Kurzzeile(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setForegroundRole(QPalette::PlaceholderText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void Kurzzeile::setzeText(const QString& text) {
    setText(text);
    setzeHinweis();
}

QSize Kurzzeile::minimumSizeHint() const { return {0, fontMetrics().height() + 2}; }

void Kurzzeile::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setPen(palette().color(foregroundRole()));
    const QString gezeigt = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    maler.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, gezeigt);
}

void Kurzzeile::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    setzeHinweis();
}

void Kurzzeile::setzeHinweis() {
    const bool passt = fontMetrics().horizontalAdvance(text()) <= contentsRect().width();
    setToolTip(passt ? QString() : text());
}

Hinweisliste::Hinweisliste(QWidget* parent) : QListWidget(parent) {
    setWordWrap(true);
    setSpacing(1);
    setAlternatingRowColors(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* eintrag) { Q_EMIT geoeffnet(eintrag->text()); });
}

void Hinweisliste::zeige(const QStringList& hinweise) {
    clear();
    addItems(hinweise);
}

void Hinweisliste::paintEvent(QPaintEvent* event) {
    QListWidget::paintEvent(event);
    if (count() > 0) return;
    QPainter maler(viewport());
    maler.setPen(palette().color(QPalette::PlaceholderText));
    maler.drawText(viewport()->rect(), Qt::AlignCenter, QStringLiteral("keine Hinweise"));
}

void Hinweisliste::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentItem() != nullptr) {
        Q_EMIT geoeffnet(currentItem()->text());
        return;
    }
    QListWidget::keyPressEvent(event);
}

}  // namespace rippenscheibe
