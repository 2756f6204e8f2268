#pragma once

#include <QImage>
#include <QPainter>
#include <functional>
#include <string_view>

#include "model/Wand.h"
#include "report/Zeichenflaeche.h"
#include "ui/paper/Papierschrift.h"

// The pages of the report on paper: a surface in millimetres on any painter, be it that of a printer, of a
// PDF, of a preview or of a widget.

namespace rippenscheibe {

class Seitenmaler final : public Zeichenflaeche {
  public:
    // What the pictures show. `logo` may be empty: then nothing is painted at its place.
    struct Bildquelle {
        const Wand& w;
        QImage logo;
        char dezimalzeichen = ',';
        // Draws a formula by its number; `mm` is the painter's unit for one.
        std::function<void(QPainter&, double mm, int nummer, QPointF ort)> formel{};
    };
    // `mm` is the painter's unit for one millimetre; the painter's origin is the corner of the page.
    // `neueSeite` begins the next page.
    Seitenmaler(QPainter& painter, double mm, Bildquelle bilder, std::function<void()> neueSeite = {});

    void setzeSchrift(const Schrift& schrift) override;
    void setzeStrich(double breite) override;
    void text(double x, double y, std::string_view text) override;
    void rahmen(const Rechteck& rechteck, Farbe farbe) override;
    void flaeche(const Rechteck& rechteck, Farbe farbe) override;
    void bild(Bild bild, const Rechteck& rechteck) override;
    void formel(int nummer, double x, double y) override;
    void neueSeite() override;
    double texthoehe(std::string_view text) const override;

    // The first line that reached beyond the right edge of the paper, which cuts it off; empty when none did.
    // It happens where the fonts of the report are not installed and another one is wider.
    const QString& abgeschnitten() const { return abgeschnitten_; }

  private:
    QRectF inEinheiten(const Rechteck& r) const;
    void unterstreiche(QPointF grundlinie, double breite);

    QPainter& painter_;
    double mm_;
    Bildquelle bilder_;
    std::function<void()> neueSeite_;
    QColor textfarbe_ = Qt::black;
    QString abgeschnitten_;
    double strich_ = 0.0;  // painter units
    Schrift schrift_;      // the current font
    Schriftmass mass_;     // of it
};

}  // namespace rippenscheibe
