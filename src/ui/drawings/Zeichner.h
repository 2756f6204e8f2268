#pragma once

#include <QPainter>
#include <QPolygonF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <string_view>
#include <vector>

#include "ui/drawings/Zeichenhoerer.h"
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

// Strokes in a row: length of a stroke, distance from stroke to stroke, and where the first begins, mm.
struct Strichfolge {
    double strich;
    double teilung;
    double beginn = 0.0;
};

class Zeichner {
  public:
    // Sets the painter up for `flaeche` (painter units), in millimetres from its top left corner; the
    // painter is as before when the Zeichner goes.
    Zeichner(QPainter& painter, const QRectF& flaeche, const Zeichenstil& stil,
             Zeichenhoerer* hoerer = nullptr);
    ~Zeichner();
    Zeichner(const Zeichner&) = delete;
    Zeichner& operator=(const Zeichner&) = delete;

    const QRectF& flaeche() const { return flaeche_; }  // mm, from (0, 0)
    const Zeichenstil& stil() const { return stil_; }
    QPainter& painter() { return painter_; }
    double t() const { return stil_.schrifthoehe; }  // the unit of all spacing, mm
    bool zuKlein() const;                            // no drawing can be read here

    // The layer of what follows; annotation at first.
    void ebene(Ebene ebene);
    Ebene ebene() const { return ebene_; }
    // A part to point at, in mm.
    void bauteil(const QPolygonF& form, Fensterart fenster, const QString& name);

    // A value with the decimal mark of the style; masks as in `formatiere`. "–" when it is not finite.
    QString zahl(std::string_view maske, double wert) const;

    // ---- Lines and shapes (Zeichner.cpp) ----

    QPen stift(Strich strich, const QColor& farbe, Linienart art = Linienart::voll) const;
    void linie(QPointF von, QPointF nach, Strich strich, const QColor& farbe,
               Linienart art = Linienart::voll);
    void rechteck(const QRectF& r, const QBrush& fuellung, Strich strich, const QColor& farbe);
    void vieleck(const QPolygonF& v, const QBrush& fuellung, Strich strich, const QColor& farbe);
    void kreis(QPointF mitte, double radius, const QBrush& fuellung, Strich strich, const QColor& farbe);
    // A surface without an edge.
    void fuelle(const QPolygonF& v, const QColor& farbe);
    // A level or upright row of strokes, `dicke` mm thick.
    void strichreihe(QPointF von, QPointF nach, const Strichfolge& folge, double dicke, const QColor& farbe);

    // Timber along the grain, and end grain with its cross.
    void holz(const QRectF& r, Strich strich = Strich::ansicht);
    void hirnholz(const QRectF& r);
    // Parallel lines at 45° inside `r`, every `abstand` mm.
    void schraffur(const QRectF& r, double abstand, const QColor& farbe);
    // The ground that a wall stands on: a line with hatching below.
    void boden(double links, double rechts, double y);
    // A zigzag line across that says: shortened here.
    void bruchlinie(QPointF von, QPointF nach, const QColor& farbe);

    void pfeil(QPointF von, QPointF nach, const QColor& farbe, double staerke = 0.35);
    // A thin line with a dot at what a label means.
    void hinweislinie(QPointF ding, QPointF label, const QColor& farbe);

    // ---- Text (Zeichner_Text.cpp) ----

    // Text at a point: `lage` says which side of the text the point is (as Qt::Alignment).
    void text(QPointF punkt, const QString& text, Qt::Alignment lage, const Textart& art = {});
    // The same in a given width: a long text shrinks to three quarters before it is cut.
    void textPassend(QPointF punkt, const QString& text, Qt::Alignment lage, double breite,
                     const Textart& art = {});
    // Text on a patch of ground, for a label that stands before lines. The point is its middle.
    void schild(QPointF mitte, const QString& text, const Textart& art = {});
    double textbreite(const QString& text, const Textart& art = {}) const;
    QString gekuerzt(const QString& text, double breite, const Textart& art = {}) const;
    // The text in lines of at most `breite`; what is beyond the last of `hoechstens` lines is cut.
    QStringList umbrochen(const QString& text, double breite, const Textart& art = {},
                          int hoechstens = 100) const;
    // Writes such lines below each other, from the top; gives the height they take.
    double zeilen(QPointF linksOben, const QStringList& zeilen, const Textart& art = {});
    double zeilenhoehe(const Textart& art = {}) const;
    // Text in lines of at most `breite`; gives the height it takes.
    double absatz(QPointF linksOben, double breite, const QString& text, const Textart& art = {});
    // A number in a circle: the mark of a side.
    void marke(QPointF mitte, const QString& text, const QColor& farbe);
    // A frame with a sentence, in place of a drawing that cannot be made.
    void satzImRahmen(const QString& satz);

    // ---- Dimensions (Zeichner_Masse.cpp) ----

    // Dimensions with 45° ticks, figures above the line. `hilfe` is where the extension lines start.
    void massWaagerecht(double y, double hilfe, const Masskette& kette);
    void massSenkrecht(double x, double hilfe, const Masskette& kette);
    // One dimension of something small: the figure stands on the far side of the line and may be wider.
    void kleinmassWaagerecht(double y, double hilfe, double von, double bis, const QString& zahl);
    void kleinmassSenkrecht(double x, double hilfe, double von, double bis, const QString& zahl);

  private:
    QFont font(const Textart& art) const;
    double schriftgroesse(const Textart& art) const;  // mm
    void strichmarke(QPointF p);
    void hilfslinie(QPointF ab, QPointF bis);
    double linienbreite(double mm) const;  // as drawn
    QPen alsStift(double breite, const QColor& farbe) const;
    QPointF aufRaster(QPointF p, double breiteX, double breiteY) const;
    QLineF gerade(QPointF von, QPointF nach, double breite) const;

    QPainter& painter_;
    Zeichenstil stil_;
    Zeichenhoerer* hoerer_;
    QTransform geraet_;  // from mm to the pixels of the device
    QRectF flaeche_;
    Ebene ebene_ = Ebene::masse;
};

// Draws on another layer as long as it lives.
class Ebenenwechsel {
  public:
    Ebenenwechsel(Zeichner& z, Ebene ebene) : z_(z), vorher_(z.ebene()) { z.ebene(ebene); }
    ~Ebenenwechsel() { z_.ebene(vorher_); }
    Ebenenwechsel(const Ebenenwechsel&) = delete;
    Ebenenwechsel& operator=(const Ebenenwechsel&) = delete;

  private:
    Zeichner& z_;
    Ebene vorher_;
};

}  // namespace rippenscheibe
