#include "report/Bericht.h"

#include <algorithm>
#include <utility>

#include "report/Berichtsbau.h"

namespace rippenscheibe {

namespace {

// The first lines of the printed report: as many preliminary remarks from the first on as are filled,
// whichever these are. Meant: with 1 and 3 filled, 1 and the empty 2 print.
void gedruckteVorbemerkungen(Berichtsbau& b, const Wand& w) {
    b.neu(Seitenpruefung{225});
    const auto gefuellt = std::count_if(w.Vorbemerkungen.begin(), w.Vorbemerkungen.end(),
                                        [](const std::string& zeile) { return !zeile.empty(); });
    if (gefuellt == 0) return;
    double abstand = 0;
    for (const std::string& zeile : std::span(w.Vorbemerkungen).first(static_cast<std::size_t>(gefuellt))) {
        b.zeile(abstand, {zeile});
        abstand = 5;
    }
    b.neu(Vorschub{10});
}

void gedruckterTitel(Berichtsbau& b, const Wand& w) {
    b.neu(Zeilenstand{28});
    b.zeile(0, {"Position: ", w.Position, "  ", w.PositionsBemerkung}, Stil::kopf);
    b.neu(Zeilenstand{34});
    b.zeile(0, {"Bemessung von Wandtafeln nach DIN 1052 (2008)"}, Stil::kopfUnterstrichen);
    b.neu(Zeilenstand{45});
    if (b.optionen.Systemgrafik) {
        b.neu(Bildzeile{Bild::system, 20, 0, 100, 91});
        b.neu(Vorschub{92});
    }
    if (b.optionen.MitBemerkungen) gedruckteVorbemerkungen(b, w);
}

void titelDerAnsicht(Berichtsbau& b, const Wand& w) {
    b.neu(Leerzeile{});
    b.zeile(0, {"Eingabedaten und Ergebnisse :"}, Stil::titel);
    b.neu(Leerzeile{});
    b.zeile(0, {"Bemessung von Wandtafeln nach DIN 1052 (2008)"});
    b.neu(Leerzeile{});
    b.neu(Leerzeile{});
    b.zeile(0, {"Projekt : ", w.Projekt});
    b.zeile(0, {"Position : ", w.Position, "  ", w.PositionsBemerkung});
    b.zeile(0, {"Datum : ", w.Datum});
    b.neu(Leerzeile{});
    for (const std::string& zeile : w.Vorbemerkungen) {
        if (!zeile.empty()) b.zeile(0, {zeile});
    }
}

std::span<const std::string> zusatzbemerkungen(const Wand& w) {
    const auto anzahl = static_cast<std::size_t>(std::max<int>(w.AnzahlZusatzbemerkungen.value(), 0));
    return std::span(w.Zusatzbemerkungen).first(std::min(anzahl, w.Zusatzbemerkungen.size()));
}

void schlussDerAnsicht(Berichtsbau& b, const Wand& w) {
    for (const std::string& zeile : zusatzbemerkungen(w)) b.zeile(0, {zeile});
    for (int i = 0; i < 3; ++i) b.neu(Leerzeile{});
}

void gedruckterSchluss(Berichtsbau& b, const Wand& w) {
    if (b.optionen.MitRandbedingungen) berichtTeil3(b);
    if (!b.optionen.MitBemerkungen) return;
    const std::span<const std::string> zeilen = zusatzbemerkungen(w);
    if (!zeilen.empty()) b.neu(Leerzeile{});
    b.neu(Schlussbemerkungen{Texte(zeilen.begin(), zeilen.end())});
}

}  // namespace

Schrift schrift(Stil stil) {
    Schrift s;
    switch (stil) {
        case Stil::titel:
            s.groesse = 14;
            s.fett = s.unterstrichen = true;
            s.farbe = Farbe::blau;
            break;
        case Stil::kopf:
            s.groesse = 12;
            break;
        case Stil::kopfUnterstrichen:
            s.groesse = 12;
            s.unterstrichen = true;
            break;
        case Stil::ueberschrift1:
        case Stil::schluss:
            s.groesse = 12;
            s.fett = s.unterstrichen = true;
            break;
        case Stil::ueberschrift2:
            s.fett = s.unterstrichen = true;
            break;
        case Stil::ueberschrift3:
        case Stil::fett:
            s.fett = true;
            break;
        case Stil::klein:
            s.groesse = 8;
            break;
        case Stil::anmerkung:
            s.groesse = 8;
            s.farbe = Farbe::dunkelgrau;
            break;
        case Stil::bemerkung:
            s.name = "Courier New";
            break;
        case Stil::text:
            break;
    }
    return s;
}

Bericht bericht(const Wand& w, Form form, const Berichtsoptionen& optionen) {
    Berichtsbau b(form, optionen);
    b.neu(Seitenkopfdruck{});
    if (b.gedruckt()) {
        gedruckterTitel(b, w);
    } else {
        titelDerAnsicht(b, w);
    }
    berichtTeil1(b, w);
    berichtTeil2(b, w);
    if (b.gedruckt()) {
        gedruckterSchluss(b, w);
    } else {
        schlussDerAnsicht(b, w);
    }
    return std::move(b).fertig();
}

}  // namespace rippenscheibe
