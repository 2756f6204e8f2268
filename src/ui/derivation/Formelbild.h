#pragma once

#include <QFont>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <optional>
#include <vector>

#include "trace/Darstellung.h"

class QPainter;

namespace rippenscheibe {

// A typeset expression as boxes that lie on a base line: text with indices, fractions, roots, powers,
// brackets, lists of a minimum. Lengths are logical pixels.
struct Formelkasten {
    enum class Art { reihe, text, bruch, wurzel, klammern, schranken, liste, stift };
    Art art = Art::reihe;
    double breite = 0;
    double oben = 0;   // above the base line
    double unten = 0;  // below it
    QString text;
    double groesse = 0;  // font size in pixels
    bool kursiv = false;
    bool fett = false;
    herleitung::Ort knoten = herleitung::keiner;  // of a leaf that leads on
    struct Teil {
        QPointF ort;  // of its base line's left end
        std::size_t kasten;
    };
    std::vector<Teil> teile;
};

enum class Formelstil { zeichen, zahlen };

// How formulas are set. All lengths are pixels of the surface that they are drawn on.
struct Formelmass {
    QString familie;
    double groesse = 14;     // of the font
    double kleinste = 8;     // of indices
    double strich = 1;       // rules of fractions and roots
    double zeilenluft = 8;   // between rows
    double breite = 0;       // rows break there; 0: never
    bool einzeilig = false;  // in one row where that fits, and smaller where not even a term does
    bool stifte = false;     // inputs carry a pencil
};
// The pencil of an input, in the pen of the painter.
void zeichneStift(QPainter& maler, const QRectF& rahmen);

// On the screen, a little larger than the text around it.
Formelmass schirmmass(const QFont& schrift, double breite);

// One formula, laid out once.
class Formelbild {
  public:
    // "R_{d,1} = min { ... }" in symbols, in numbers, and the value.
    static Formelbild gleichung(const Darstellung& d, const herleitung::Schritt& schritt,
                                const Formelmass& mass);
    // The same for a value that the report itself forms.
    static Formelbild ausdruck(const Darstellung& d, herleitung::Ort ort, const Formelmass& mass);
    // "σ_{c,90,d} = 0 N/mm²" of a value from before the run.
    static Formelbild stand(const Darstellung& d, const herleitung::Stand& stand, const Formelmass& mass);

    QSizeF groesse() const;
    double breiteErsteZeile() const;
    double grundlinie() const;  // of the first row
    void male(QPainter& maler, QPointF ecke, const QPalette& farben) const;
    // The leaf under a point that leads on.
    std::optional<herleitung::Ort> treffer(QPointF punkt) const;

  private:
    friend class Formelsetzer;
    std::vector<Formelkasten> kaesten_;
    std::vector<Formelkasten::Teil> zeilen_;
    QString familie_;
    double strich_ = 1;
    double massstab_ = 1;
};

}  // namespace rippenscheibe
