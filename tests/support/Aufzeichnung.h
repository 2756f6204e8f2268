#pragma once

#include <string>
#include <vector>

#include "basis/Zahlenformat.h"
#include "report/Zeichenflaeche.h"

namespace rippenscheibe::inline tests {

// A surface that notes what is drawn on it.
class Aufzeichnung : public Zeichenflaeche {
  public:
    enum class Art { text, rahmen, flaeche, bild, lesezeichen };
    struct Eintrag {
        Art art;
        int seite;
        Rechteck wo;
        Schrift schrift;
        std::string text;
        Bild bild = Bild::system;
    };

    std::vector<Eintrag> eintraege;
    int seiten = 1;

    void setzeSchrift(const Schrift& schrift) override { schrift_ = schrift; }
    void setzeStrich(double) override {}
    void text(double x, double y, std::string_view text) override {
        eintraege.push_back({Art::text, seiten, {x, y, 0, 0}, schrift_, std::string(text)});
    }
    void rahmen(const Rechteck& r, Farbe) override { eintraege.push_back({Art::rahmen, seiten, r, {}, {}}); }
    void flaeche(const Rechteck& r, Farbe) override {
        eintraege.push_back({Art::flaeche, seiten, r, {}, {}});
    }
    void bild(Bild bild, const Rechteck& r) override {
        eintraege.push_back({Art::bild, seiten, r, {}, {}, bild});
    }
    void neueSeite() override { ++seiten; }
    double texthoehe(std::string_view) const override { return 4; }
    void lesezeichen(int rang, double y, std::string_view text) override {
        eintraege.push_back(
            {Art::lesezeichen, seiten, {static_cast<double>(rang), y, 0, 0}, {}, std::string(text)});
    }

    std::vector<Eintrag> nur(Art art) const {
        std::vector<Eintrag> auswahl;
        for (const Eintrag& e : eintraege) {
            if (e.art == art) auswahl.push_back(e);
        }
        return auswahl;
    }
    // The first entry with this text; a text nobody drew stands on page 0.
    Eintrag zeile(std::string_view text) const {
        for (const Eintrag& e : eintraege) {
            if (e.art == Art::text && e.text == text) return e;
        }
        return {Art::text, 0, {}, {}, {}};
    }

    // Everything in the order of drawing, a line each: page, place, style, text.
    std::string protokoll() const {
        std::string alles;
        for (const Eintrag& e : eintraege) {
            if (e.art == Art::lesezeichen) continue;
            alles += std::to_string(e.seite) + " " + mm(e.wo.x, 7) + " " + mm(e.wo.y, 7) + " ";
            alles += e.art == Art::text ? beschreibung(e.schrift) + "|" + e.text + "|" : form(e);
            alles += '\n';
        }
        return alles;
    }

  private:
    static std::string beschreibung(const Schrift& s) {
        return s.name + " " + std::to_string(s.groesse) + (s.fett ? "b" : "") + (s.kursiv ? "i" : "") +
               (s.unterstrichen ? "u" : "");
    }
    // Hundredths of a millimetre, right-aligned, whatever the locale.
    static std::string mm(double wert, std::size_t breite = 0) {
        const std::string text = formatiere("0.00", wert, '.');
        return text.size() < breite ? std::string(breite - text.size(), ' ') + text : text;
    }
    static std::string form(const Eintrag& e) {
        const std::string mass = " " + mm(e.wo.breite) + " x " + mm(e.wo.hoehe);
        if (e.art == Art::bild) return "Bild " + std::to_string(static_cast<int>(e.bild)) + mass;
        return (e.art == Art::rahmen ? "Rahmen" : "Fläche") + mass;
    }

    Schrift schrift_;
};

}  // namespace rippenscheibe::inline tests
