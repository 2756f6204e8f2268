#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "report/Zeichenflaeche.h"

namespace rippenscheibe {

// Holds the pages of a print job until they are sent, because platforms cannot take a job back that was
// begun: a job stopped before is dropped, and nothing was printed.
class Druckpuffer : public Zeichenflaeche {
  public:
    // `vorSeite` is called before each page but the first. It may throw to stop the job.
    explicit Druckpuffer(std::function<void()> vorSeite = {});

    // Draws all that was held on another surface.
    void spiele(Zeichenflaeche& ziel) const;
    // The same of some pages alone, from 1.
    void spiele(Zeichenflaeche& ziel, int von, int bis) const;

    void setzeSchrift(const Schrift& schrift) override;
    void setzeStrich(double breite) override;
    void text(double x, double y, std::string_view text) override;
    void rahmen(const Rechteck& rechteck, Farbe farbe) override;
    void flaeche(const Rechteck& rechteck, Farbe farbe) override;
    void bild(Bild bild, const Rechteck& rechteck) override;
    void formel(int nummer, double x, double y) override;
    void neueSeite() override;
    double texthoehe(std::string_view text) const override;
    void lesezeichen(int rang, double y, std::string_view text) override;

  private:
    std::function<void()> vorSeite_;
    std::vector<std::function<void(Zeichenflaeche&)>> aufrufe_;
    Schrift schrift_;
};

}  // namespace rippenscheibe
