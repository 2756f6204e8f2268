#include "ui/basics/Knopf.h"

#include <QPushButton>

namespace rippenscheibe {

QPushButton* neuerKnopf(QWidget* eltern, const QString& name, const QString& text, const QString& tip) {
    auto* neu = new QPushButton(text, eltern);
    neu->setObjectName(name);
    neu->setAccessibleName(QString(text).remove(QLatin1Char('&')).simplified());
    neu->setToolTip(tip);
    neu->setAutoDefault(false);
    return neu;
}

}  // namespace rippenscheibe
