#include "ui/output/Druckpuffer.h"

#include <string>
#include <utility>

#include "ui/output/Seitenmaler.h"

namespace rippenscheibe {

Druckpuffer::Druckpuffer(std::function<void()> vorSeite) : vorSeite_(std::move(vorSeite)) {}

void Druckpuffer::spiele(Zeichenflaeche& ziel) const {
    for (const auto& aufruf : aufrufe_) aufruf(ziel);
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
