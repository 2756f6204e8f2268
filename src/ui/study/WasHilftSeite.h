#pragma once

#include <QWidget>

#include "study/WasHilft.h"
#include "ui/studyparts/Feldworte.h"
#include "ui/studyparts/Hintergrund.h"

class QLabel;

namespace rippenscheibe {

class Lastfallwahl;
class Programm;
class Wandauswahl;

// What real next steps do to the wall, the best first.
class WasHilftSeite : public QWidget {
    Q_OBJECT

  public:
    WasHilftSeite(Programm& programm, QWidget* parent = nullptr);

    // What the chosen step changes.
    Zuweisungen gewaehlt() const;

  Q_SIGNALS:
    void auswahlGeaendert(bool aendertEtwas);

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void rechne();
    void zeige(const Wand& heute, const Hilfe& hilfe);

    Programm& programm_;
    Bewertungsregel regel_;
    QLabel* stand_;
    Lastfallwahl* lastfaelle_;
    Wandauswahl* waende_;
    Hintergrund hintergrund_;  // the last: it stops before the others go
};

}  // namespace rippenscheibe
