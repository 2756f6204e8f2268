#include "ui/project/Form60_Kalender.h"

#include <QCalendarWidget>
#include <QLocale>
#include <QTextCharFormat>
#include <QVBoxLayout>

#include "ui/basics/Farben.h"

namespace rippenscheibe {

Form60::Form60(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form60"),
              QStringLiteral("               Kalender"), Tippen::aendertNichts) {
    auto* kalender = new QCalendarWidget(this);
    kalender->setObjectName(QStringLiteral("MView1"));
    kalender->setAccessibleName(QStringLiteral("Kalender"));
    kalender->setLocale(QLocale(QLocale::German, QLocale::Germany));
    kalender->setFirstDayOfWeek(Qt::Monday);
    kalender->setVerticalHeaderFormat(QCalendarWidget::ISOWeekNumbers);
    // The red of Qt's weekends cannot be read on a dark ground.
    QTextCharFormat frei;
    frei.setForeground(lesbar(QColor(0xB3261E), palette()));
    for (const Qt::DayOfWeek tag : {Qt::Saturday, Qt::Sunday}) kalender->setWeekdayTextFormat(tag, frei);
    kalender->setMinimumSize(360, 260);
    inhalt()->addWidget(kalender, 1);
    zurueck(QStringLiteral("Com1"));
}

}  // namespace rippenscheibe
