#pragma once

#include "ui/basics/Fenster.h"

class QFrame;
class QTimer;

namespace rippenscheibe {

class Zeichnungsansicht;

// "  Randbedingungen": under which conditions the simplified proofs hold, in the words and sketches of the
// report, on four tabs. On the first a picture scrolls upward once the pointer has moved over it.
class Form10 : public Fenster {
    Q_OBJECT

  public:
    Form10(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QWidget* baueErsteKarte();
    void rolle();

    QFrame* rahmen_;
    QWidget* ausschnitt_;  // what of the picture is in sight
    Zeichnungsansicht* bild_;
    QTimer* uhr_;
    int oben_ = 0;  // top of the picture in twips
};

}  // namespace rippenscheibe
