#pragma once

#include <QWidget>

#include "ui/drawings/Kurvenbild.h"

namespace rippenscheibe {

class Meldungen;
class Programm;

// Utilisations over one input, with a mark that mouse and arrow keys move from value to value.
class Kurvenansicht : public QWidget {
    Q_OBJECT

  public:
    explicit Kurvenansicht(QWidget* parent = nullptr);

    void setze(const Kurvendaten& daten, double marke);
    double marke() const { return marke_; }
    void setzeMarke(double x);
    void setzeDezimalzeichen(char zeichen);
    // Offers a context menu that copies and saves the drawing.
    void bieteDateien(Programm& programm, Meldungen& meldungen);

    QSize sizeHint() const override { return {640, 380}; }
    QSize minimumSizeHint() const override { return {360, 220}; }

  Q_SIGNALS:
    // The user moved the mark to one of the values of x.
    void markeBewegt(double x);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void bewegeZu(double x);
    void bewegeNach(const QPointF& ort);
    void benenne();
    std::ptrdiff_t stelle() const;  // of the x next to the mark

    Kurvendaten daten_;
    double marke_ = 0.0;
    char dezimalzeichen_ = ',';
    Kurvenrahmen rahmen_;  // as last painted
    double mm_ = 1.0;      // pixels
    Programm* programm_ = nullptr;
    Meldungen* meldungen_ = nullptr;
};

}  // namespace rippenscheibe
