#pragma once

#include <vector>

#include "ui/drawings/Tafelbild.h"

// The loads around the elevation: rows of arrows above the wall, and the horizontal load at its head.

namespace rippenscheibe {

class Lastbild {
  public:
    // Where the words of the rows stand: beside the arrows, or above them where no room is left.
    enum class Wortlage { daneben, darueber };

    Lastbild(Zeichner& z, const Wand& w, const Wandgeometrie& g);

    bool horizontal() const { return horizontal_; }
    bool vonLinks() const { return vonLinks_; }
    double hoehe(Wortlage lage) const;  // of all rows
    double wortbreite() const;          // of the longest words of the rows, 0 without rows
    double kraftbreite() const;         // of the horizontal load beside the wall, 0 without one

    void zeichne(const Massstab& m, Wortlage lage);

  private:
    enum class Form { gleichlast, einzellast };
    // One row of arrows, with a text for each load that it stands for.
    struct Reihe {
        Form form;
        double wert;  // signed, the arrows point down when it is positive
        std::vector<QString> texte;
    };

    void fuege(Form form, Zahl wert, const QString& name, const QString& einheit);
    double zeilenbreite(const Reihe& reihe) const;
    double hoehe(const Reihe& reihe, Wortlage lage) const;
    std::vector<double> stellen(const Reihe& reihe, const Massstab& m) const;
    void pfeile(const Reihe& reihe, const Massstab& m, double unten);
    void worteDaneben(const Reihe& reihe, const Massstab& m, double unten);
    void worteDarueber(const Reihe& reihe, const Massstab& m, double unten);
    void kraft(const Massstab& m);

    Zeichner& z_;
    const Wand& w_;
    const Wandgeometrie& g_;
    std::vector<Reihe> reihen_;
    bool horizontal_;
    bool vonLinks_;
};

}  // namespace rippenscheibe
