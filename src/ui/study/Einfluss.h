#pragma once

#include <vector>

#include "study/Variation.h"
#include "ui/basics/Fenster.h"
#include "ui/drawings/Kurvenbild.h"
#include "ui/studyparts/Hintergrund.h"

class QLabel;

namespace rippenscheibe {

class Groessenwahl;
class Kurvenansicht;
class Lastfallwahl;
class Wandblatt;

// The points of one axis as curves: a section of the proofs each, without demand none. The values of a list
// count from 0. Findings forbid the stretch about their points.
Kurvendaten kurvendaten(const Achse& achse, bool istListe, const std::vector<Variationspunkt>& punkte);

// One input on an axis, the utilisations over it, and the wall at a mark that can be dragged from today's
// value; the position changes only by a take-over.
class Einfluss : public Fenster {
    Q_OBJECT

  public:
    Einfluss(Programm& programm, Meldungen& meldungen, QWidget* parent = nullptr);

  private:
    // What was computed, for which wall.
    struct Verlauf {
        Wand heute;
        Achse achse;
        bool istListe = false;
        Bewertungsregel regel;
        std::vector<Variationspunkt> punkte;
        bool vollstaendig = true;
    };

    void rechne();
    void zeige(Verlauf verlauf);
    void zeigeMarke(double x);
    void zeigeUrteil(const Variationspunkt& punkt);
    void oeffneBildmenue();
    std::size_t stelle(double x) const;

    Verlauf verlauf_;
    Kurvendaten daten_;
    Groessenwahl* wahl_;
    Lastfallwahl* lastfaelle_;
    QLabel* stand_;
    Kurvenansicht* kurven_;
    Wandblatt* wandblatt_;
    QPushButton* uebernehmen_;
    QPushButton* bild_;
    Hintergrund hintergrund_;  // the last: it stops before the others go
};

}  // namespace rippenscheibe
