#include "ui/basics/Klartext.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>

namespace rippenscheibe {

Klartext::Klartext(QObject* parent) : QObject(parent) {
    if (QCoreApplication::instance() != nullptr) QCoreApplication::instance()->installEventFilter(this);
}

// A label is polished before it is laid out for the first time, and a tool tip before it takes its text.
bool Klartext::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::Polish) return false;
    auto* schild = qobject_cast<QLabel*>(object);
    if (schild != nullptr && schild->textFormat() == Qt::AutoText) schild->setTextFormat(Qt::PlainText);
    return false;
}

}  // namespace rippenscheibe
