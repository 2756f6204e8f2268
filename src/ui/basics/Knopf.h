#pragma once

#include <QString>

class QPushButton;
class QWidget;

namespace rippenscheibe {

// A button by this object name; its caption is read out without the mark of its letter for the Alt key. Enter
// presses it only when it has the focus.
QPushButton* neuerKnopf(QWidget* eltern, const QString& name, const QString& text, const QString& tip = {});

}  // namespace rippenscheibe
