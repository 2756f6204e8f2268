#pragma once

#include "ui/basics/Fenster.h"

class QListWidget;

namespace rippenscheibe {

// "  Systemkonfiguration": what the machine is, for questions to the maker. Filled anew whenever the
// window becomes active.
class Form13 : public Fenster {
    Q_OBJECT

  public:
    Form13(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;

  private:
    void fuelle();

    QListWidget* liste_;
};

}  // namespace rippenscheibe
