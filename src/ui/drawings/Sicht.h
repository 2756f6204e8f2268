#pragma once

#include <QPointF>
#include <QSizeF>
#include <QTransform>

namespace rippenscheibe {

// Which part of a drawing a widget shows, and how large: the whole at first. The drawing always covers the
// widget.
class Sicht {
  public:
    static constexpr double groessteLupe = 40.0;

    double lupe() const { return lupe_; }
    bool ganz() const { return lupe_ == 1.0; }
    // From the drawing as it stands in the whole widget to the widget.
    QTransform abbildung() const;

    // Enlarges by a factor; what stands at `um` stays there. False when nothing changed.
    bool zoome(QPointF um, double faktor, QSizeF flaeche);
    void schiebe(QPointF um, QSizeF flaeche);
    void einpassen();
    // Keeps the drawing over a widget of another size.
    void begrenze(QSizeF flaeche);

  private:
    double lupe_ = 1.0;
    QPointF versatz_;
};

}  // namespace rippenscheibe
