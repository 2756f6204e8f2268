#pragma once

#include <QPainter>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <string_view>
#include <vector>

#include "ui/drawings/Zeichenstil.h"

// The drawing tools: lines by weight, materials, text, arrows and dimensions, all in millimetres.

namespace rippenscheibe {

// Line weights: cut 0.50 mm, seen 0.25 mm, dimension and hatching 0.13 mm.
enum class Strich { schnitt, ansicht, mass };
enum class Linienart { voll, gestrichelt };

// How a text stands: size as a multiple of the style's, colour (invalid: ink), turned by 90° to read from
// below.
struct Textart {
    double faktor = 1.0;
    bool fett = false;
    QColor farbe{};
    bool senkrecht = false;
};

// One dimension chain: the points along the line and a text for each piece between two of them. A text
// that does not fit goes outside at the two ends and is left out in the middle.
struct Masskette {
    std::vector<double> stellen;
    std::vector<QString> texte;
};

class Zeichner {
  public:
    // Sets the painter up for `flaeche` (painter units), in millimetres from its top left corner; the
    // painter is as before when the Zeichner goes.
    Zeichner(QPainter& painter, const QRectF& flaeche, const Zeichenstil& stil);
    ~Zeichner();
    Zeichner(const Zeichner&) = delete;
    Zeichner& operator=(const Zeichner&) = delete;

    const QRectF& flaeche() const { return flaeche_; }  // mm, from (0, 0)
    const Zeichenstil& stil() const { return stil_; }
    QPainter& painter() { return painter_; }
    double t() const { return stil_.schrifthoehe; }  // the unit of all spacing, mm
    bool zuKlein() const;                            // no drawing can be read here

    // A value with the decimal mark of the style; masks as in `formatiere`. "–" when it is not finite.
    QString zahl(std::string_view maske, double wert) const;

    QPen stift(Strich strich, const QColor& farbe, Linienart art = Linienart::voll) const;
    void linie(QPointF von, QPointF nach, Strich strich, const QColor& farbe,
               Linienart art = Linienart::voll);
    void rechteck(const QRectF& r, const QBrush& fuellung, Strich strich, const QColor& farbe);
    void vieleck(const QPolygonF& v, const QBrush& fuellung, Strich strich, const QColor& farbe);
    void kreis(QPointF mitte, double radius, const QBrush& fuellung, Strich strich, const QColor& farbe);

    // Timber along the grain, and end grain with its cross.
    void holz(const QRectF& r, Strich strich = Strich::ansicht);
    void hirnholz(const QRectF& r);
    // Parallel lines at 45° inside `r`, every `abstand` mm.
    void schraffur(const QRectF& r, double abstand, const QColor& farbe);
    // A zigzag line across that says: shortened here.
    void bruchlinie(QPointF von, QPointF nach, const QColor& farbe);

    // Text at a point: `lage` says which side of the text the point is (as Qt::Alignment).
    void text(QPointF punkt, const QString& text, Qt::Alignment lage, const Textart& art = {});
    // The same in a given width: a long text shrinks to three quarters before it is cut.
    void textPassend(QPointF punkt, const QString& text, Qt::Alignment lage, double breite,
                     const Textart& art = {});
    // Text on a patch of ground, for a label that stands before lines. The point is its middle.
    void schild(QPointF mitte, const QString& text, const Textart& art = {});
    double textbreite(const QString& text, const Textart& art = {}) const;
    QString gekuerzt(const QString& text, double breite, const Textart& art = {}) const;
    // Text in lines of at most `breite`; gives the height it takes.
    double absatz(QPointF linksOben, double breite, const QString& text, const Textart& art = {});
    // A number in a circle: the mark of a side.
    void marke(QPointF mitte, const QString& text, const QColor& farbe);

    void pfeil(QPointF von, QPointF nach, const QColor& farbe, double staerke = 0.35);
    // A thin line with a dot at what a label means.
    void hinweislinie(QPointF ding, QPointF label, const QColor& farbe);

    // Dimensions with 45° ticks, figures above the line. `hilfe` is where the extension lines start.
    void massWaagerecht(double y, double hilfe, const Masskette& kette);
    void massSenkrecht(double x, double hilfe, const Masskette& kette);

    // A frame with a sentence, in place of a drawing that cannot be made.
    void satzImRahmen(const QString& satz);

  private:
    QFont font(const Textart& art) const;
    void strichmarke(QPointF p);

    QPainter& painter_;
    Zeichenstil stil_;
    QRectF flaeche_;
};

}  // namespace rippenscheibe
