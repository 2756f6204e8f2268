#pragma once

#include <vector>

#include "model/VMReihen.h"
#include "ui/drawings/Wandgeometrie.h"
#include "ui/drawings/Zeichner.h"

// The wall panel in elevation, without what stands around it.

namespace rippenscheibe {

// Where things of the wall stand on the drawing: x from its left edge, y up from its foot, both in mm.
struct Massstab {
    double f = 1.0;
    QPointF fuss;  // left lower corner of the wall on the drawing
    double x(double wand) const { return fuss.x() + f * wand; }
    double y(double wand) const { return fuss.y() - f * wand; }
    QRectF rechteck(double links, double unten, double breite, double hoehe) const {
        return {x(links), y(unten + hoehe), f * breite, f * hoehe};
    }
};

// How the panel is shown.
enum class Tafelart {
    aufgeschnitten,  // sheathing 1 cut away to show the ribs and sheathing 2
    miniatur,        // the same without fasteners and marks
    bauzeichnung,    // both sheathings whole and in outline, every fastener
};

class Tafelbild {
  public:
    Tafelbild(Zeichner& z, const Wand& w, const Wandgeometrie& g, const Massstab& m, Tafelart art)
        : z_(z), w_(w), g_(g), m_(m), art_(art) {}
    void zeichne();
    // Whether the name of the anchors stands beside them; else it needs a place elsewhere.
    static bool ankernameAmAnker(const Zeichner& z, const Wand& w, const Wandgeometrie& g, const Massstab& m);

  private:
    void rippen();
    void rippe(const QRectF& r, Strich strich, const QString& name);
    void platte(Seite n);
    QPolygonF gezeigt(Seite n) const;
    void stoesse(Seite n);
    void vmReihen(Seite n);
    void vmReihe(const VMReihe& reihe, Seite n);
    std::vector<VMReihe> reihen(Seite n) const;
    void stoesseUndReihen(Seite n);
    void marken();
    void anker();
    void ankerblech(bool links);
    void ankername();
    QRectF ankerrechteck(bool links) const;
    void bauteile();

    Zeichner& z_;
    const Wand& w_;
    const Wandgeometrie& g_;
    const Massstab& m_;
    Tafelart art_;
};

}  // namespace rippenscheibe
