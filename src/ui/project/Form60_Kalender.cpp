#include "ui/project/Form60_Kalender.h"

#include <QCalendarWidget>
#include <QLocale>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/basics/Farben.h"

namespace rippenscheibe {

namespace {

// A plain arrow in the colour of the month beside it, in place of Qt's green ball.
void faerbePfeil(const QCalendarWidget& kalender, const QString& name, Qt::ArrowType pfeil) {
    auto* knopf = kalender.findChild<QToolButton*>(name);
    if (knopf == nullptr) return;
    knopf->setIcon(QIcon());
    knopf->setArrowType(pfeil);
    QPalette farben = knopf->palette();
    for (const QPalette::ColorRole rolle : {QPalette::ButtonText, QPalette::WindowText})
        farben.setColor(rolle, farben.color(QPalette::HighlightedText));
    knopf->setPalette(farben);
}

}  // namespace

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
    faerbePfeil(*kalender, QStringLiteral("qt_calendar_prevmonth"), Qt::LeftArrow);
    faerbePfeil(*kalender, QStringLiteral("qt_calendar_nextmonth"), Qt::RightArrow);
    kalender->setMinimumSize(360, 260);
    inhalt()->addWidget(kalender, 1);
    zurueck(QStringLiteral("Com1"));
}

}  // namespace rippenscheibe
