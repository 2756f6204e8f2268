#include "ui/main/Hinweisliste.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

#include "ui/basics/Programm.h"

namespace rippenscheibe {

Hinweisliste::Hinweisliste(QWidget* parent)
    : QListWidget(parent), standzeile_(new QLabel(QStringLiteral("Stand vor der letzten Änderung"), parent)) {
    setWordWrap(true);
    setSpacing(1);
    setAlternatingRowColors(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    standzeile_->setForegroundRole(QPalette::PlaceholderText);
    standzeile_->hide();
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* eintrag) { oeffne(row(eintrag)); });
}

void Hinweisliste::zeige(const std::vector<Hinweis>& hinweise) {
    gezeigt_ = hinweise;
    clear();
    for (const Hinweis& hinweis : hinweise) addItem(qtext(hinweis.text));
}

void Hinweisliste::oeffne(int zeile) {
    if (zeile >= 0) Q_EMIT geoeffnet(gezeigt_[static_cast<std::size_t>(zeile)].ort);
}

void Hinweisliste::setzeStand(Stand stand) {
    stand_ = stand;
    standzeile_->setVisible(stand == Stand::veraltet);
    viewport()->update();
}

void Hinweisliste::paintEvent(QPaintEvent* event) {
    QListWidget::paintEvent(event);
    QPainter maler(viewport());
    if (hasFocus()) {
        maler.setPen(QPen(palette().color(QPalette::Highlight), 2));
        maler.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
    if (count() > 0) return;
    maler.setPen(palette().color(QPalette::PlaceholderText));
    maler.drawText(viewport()->rect(), Qt::AlignCenter,
                   stand_ == Stand::ungeprueft ? QStringLiteral("noch nicht geprüft")
                                               : QStringLiteral("keine Hinweise"));
}

void Hinweisliste::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentItem() != nullptr) {
        oeffne(currentRow());
        return;
    }
    QListWidget::keyPressEvent(event);
}

}  // namespace rippenscheibe
