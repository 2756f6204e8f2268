#pragma once

#include <QByteArray>
#include <string>
#include <string_view>
#include <vector>

#include "report/Zeichenflaeche.h"

namespace rippenscheibe {

// A heading of the report in the outline of a PDF.
struct Lesezeichen {
    int rang;   // 1 to 3
    int seite;  // from 0
    double y;   // from the top of the page, mm
    std::string text;
};

// A surface that draws nothing and notes the headings.
class Lesezeichensammler final : public Zeichenflaeche {
  public:
    std::vector<Lesezeichen> gefundene{};

    void setzeSchrift(const Schrift&) override {}
    void setzeStrich(double) override {}
    void text(double, double, std::string_view) override {}
    void rahmen(const Rechteck&, Farbe) override {}
    void flaeche(const Rechteck&, Farbe) override {}
    void bild(Bild, const Rechteck&) override {}
    void neueSeite() override { ++seite_; }
    double texthoehe(std::string_view) const override { return 0.0; }
    void lesezeichen(int rang, double y, std::string_view text) override {
        gefundene.push_back({rang, seite_, y, std::string(text)});
    }

  private:
    int seite_ = 0;
};

// The same PDF with an outline, appended as an update of the file: Qt writes none. A file that is not built
// as Qt builds it comes back as it is.
QByteArray mitLesezeichen(QByteArray pdf, const std::vector<Lesezeichen>& lesezeichen);

}  // namespace rippenscheibe
