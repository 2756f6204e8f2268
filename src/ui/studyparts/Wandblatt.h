#pragma once

#include <QWidget>

#include "ui/verdict/Ausnutzungsbalken.h"

class QLabel;

namespace rippenscheibe {

struct Wand;
class Zeichnungsansicht;

// One wall of a study: what it is and its verdict in bold, the reason, and its drawing. The lines are named
// "Wert", "Urteil" and "Grund"; they keep their room, so that the drawing stays where it is.
class Wandblatt : public QWidget {
    Q_OBJECT

  public:
    explicit Wandblatt(QWidget* parent = nullptr);

    void zeigeWand(const Wand& w, const QString& wert);
    void zeigeUrteil(const QString& text, Balkenurteil art);
    void zeigeGrund(const QString& text, const QString& hinweis = {});

  private:
    QLabel* wert_;
    QLabel* urteil_;
    QLabel* grund_;
    Zeichnungsansicht* ansicht_;
};

}  // namespace rippenscheibe
