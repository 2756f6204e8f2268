#include "ui/paper/Druckpuffer.h"

#include <string>
#include <utility>

#include "ui/paper/Seitenmaler.h"

namespace rippenscheibe {

namespace {

// Hands on what is drawn on some pages; fonts and pens of all of them, because they hold beyond their page.
class Seitenauswahl final : public Zeichenflaeche {
  public:
    Seitenauswahl(Zeichenflaeche& ziel, int von, int bis) : ziel_(ziel), von_(von), bis_(bis) {}

    void setzeSchrift(const Schrift& schrift) override { ziel_.setzeSchrift(schrift); }
    void setzeStrich(double breite) override { ziel_.setzeStrich(breite); }
    void text(double x, double y, std::string_view worte) override {
        if (gewaehlt()) ziel_.text(x, y, worte);
    }
    void rahmen(const Rechteck& rechteck, Farbe farbe) override {
        if (gewaehlt()) ziel_.rahmen(rechteck, farbe);
    }
    void flaeche(const Rechteck& rechteck, Farbe farbe) override {
        if (gewaehlt()) ziel_.flaeche(rechteck, farbe);
    }
    void bild(Bild was, const Rechteck& rechteck) override {
        if (gewaehlt()) ziel_.bild(was, rechteck);
    }
    void formel(int nummer, double x, double y) override {
        if (gewaehlt()) ziel_.formel(nummer, x, y);
    }
    void neueSeite() override {
        ++seite_;
        if (seite_ > von_ && seite_ <= bis_) ziel_.neueSeite();
    }
    double texthoehe(std::string_view worte) const override { return ziel_.texthoehe(worte); }

  private:
    bool gewaehlt() const { return seite_ >= von_ && seite_ <= bis_; }

    Zeichenflaeche& ziel_;
    int von_;
    int bis_;
    int seite_ = 1;
};

}  // namespace

Druckpuffer::Druckpuffer(std::function<void()> vorSeite) : vorSeite_(std::move(vorSeite)) {}

void Druckpuffer::spiele(Zeichenflaeche& ziel) const {
    for (const auto& aufruf : aufrufe_) aufruf(ziel);
}

void Druckpuffer::spiele(Zeichenflaeche& ziel, int von, int bis) const {
    Seitenauswahl auswahl(ziel, von, bis);
    spiele(auswahl);
}

void Druckpuffer::setzeSchrift(const Schrift& schrift) {
    schrift_ = schrift;
    aufrufe_.emplace_back([schrift](Zeichenflaeche& f) { f.setzeSchrift(schrift); });
}
void Druckpuffer::setzeStrich(double breite) {
    aufrufe_.emplace_back([breite](Zeichenflaeche& f) { f.setzeStrich(breite); });
}
void Druckpuffer::text(double x, double y, std::string_view text) {
    aufrufe_.emplace_back([x, y, worte = std::string(text)](Zeichenflaeche& f) { f.text(x, y, worte); });
}
void Druckpuffer::rahmen(const Rechteck& rechteck, Farbe farbe) {
    aufrufe_.emplace_back([rechteck, farbe](Zeichenflaeche& f) { f.rahmen(rechteck, farbe); });
}
void Druckpuffer::flaeche(const Rechteck& rechteck, Farbe farbe) {
    aufrufe_.emplace_back([rechteck, farbe](Zeichenflaeche& f) { f.flaeche(rechteck, farbe); });
}
void Druckpuffer::bild(Bild bild, const Rechteck& rechteck) {
    aufrufe_.emplace_back([bild, rechteck](Zeichenflaeche& f) { f.bild(bild, rechteck); });
}
void Druckpuffer::formel(int nummer, double x, double y) {
    aufrufe_.emplace_back([nummer, x, y](Zeichenflaeche& f) { f.formel(nummer, x, y); });
}
void Druckpuffer::neueSeite() {
    if (vorSeite_) vorSeite_();
    aufrufe_.emplace_back([](Zeichenflaeche& f) { f.neueSeite(); });
}
double Druckpuffer::texthoehe(std::string_view) const { return schriftmass(schrift_).hoehe; }
void Druckpuffer::lesezeichen(int rang, double y, std::string_view text) {
    aufrufe_.emplace_back(
        [rang, y, worte = std::string(text)](Zeichenflaeche& f) { f.lesezeichen(rang, y, worte); });
}

}  // namespace rippenscheibe
