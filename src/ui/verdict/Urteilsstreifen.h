#pragma once

#include <QWidget>

#include "model/Wand.h"

class QVBoxLayout;

namespace rippenscheibe {

class Ausnutzungsbaum;

// What stands above the text of the result view: the verdict, what decides it, what it leaves open and where
// a fresh run says something else; beside it all utilisations as bars.
class Urteilsstreifen : public QWidget {
    Q_OBJECT

  public:
    Urteilsstreifen(const Wand& w, char dezimalzeichen, QWidget* parent);

    Ausnutzungsbaum* baum() const { return baum_; }

  private:
    QWidget* baueUrteil(const Wand& w);
    QWidget* baueBaum();

    Ausnutzungsbaum* baum_;
};

}  // namespace rippenscheibe
