#include "report/sections/Abschnitte.h"
#include "report/sections/Katalogname.h"

// Sections 1.1 to 1.3: measures, ribs, sheathing.

namespace rippenscheibe {

namespace {

using namespace std::string_literals;

void abmessungen(Berichtsbau& b, const Wand& w) {
    b.h2("1.1 Abmessungen", 6);
    b.zeile(5, {"Wandlänge l = ", {w.Wandlaenge, "0.000"}, " m"});
    b.zeile(4, {"Wandhöhe h = ", {w.Wandhoehe, "0.000"}, " m"});
    b.zeile(4, {"Abstand der Rippen ar = ",
                {w.Rippenabstand / 1000, "0.000"},
                " m  (ar,Rest = ",
                {w.RippenabstandRest / 1000, "0.000"},
                " m)"});
}

struct Rippenquerschnitt {
    const Feld& breite;  // mm
    const Feld& hoehe;   // mm
    const Feld& A;       // cm²
    const Feld& Wy;      // cm³
};
void rippenquerschnitt(Berichtsbau& b, const Rippenquerschnitt& q) {
    b.zeile(5, {"b/h = ", {q.breite / 10, "0.0"}, "/", {q.hoehe / 10, "0.0"}, " cm"});
    b.zeile(4, {"A = ", {q.A, "0.000"}, " cm²"});
    b.zeile(4, {"Wy = ", {q.Wy, "0.000"}, " cm³"});
}

void fussrippenende(Berichtsbau& b, std::string_view ende, bool durchgehend) {
    b.zeile(5, {"Fussrippe ", ende,
                durchgehend ? " durchgehend (Überstand ü = 3cm wird beidseitig angesetzt für A,ef)"
                            : " bündig (Überstand ü = 3cm wird nur einseitig angesetzt für A,ef)"});
}

void rippenquerschnitte(Berichtsbau& b, const Wand& w) {
    b.h2("1.2 Querschnittswerte/Material Rippen", 7);
    b.zeile(5, {"Holzfestigkeitsklasse = ", katalogname(Holzarten(), zeilenHolzarten, w.Holzart.value())});
    b.zeile(4, {"Nutzungsklasse für Rippen: NKL ", {w.NKLRippen, "0"}});
    b.h3("1.2.1 Randrippen", 6);
    b.neu(Bildzeile{Bild::rippe, 100, 0, 90, 37});
    rippenquerschnitt(b, {w.bRandrippe, w.hRandrippe, w.ARandrippe, w.WyRandrippe});
    b.h3("1.2.2 Innenrippen", 6);
    rippenquerschnitt(b, {w.bInnenrippe, w.hInnenrippe, w.AInnenrippe, w.WyInnenrippe});
    b.h3("1.2.3 Kopf-/Fussrippen", 6);
    b.zeile(5, {"b/h = ", {w.hInnenrippe / 10, "0.0"}, "/", {w.bKopfFussrippe / 10, "0.0"}, " cm"});
    b.zeile(4, {"A = ", {w.bKopfFussrippe * w.hRandrippe / 100, "0.000"}, " cm²"});
    fussrippenende(b, "links", w.FussrippeLinksDurchgehend);
    fussrippenende(b, "rechts", w.FussrippeRechtsDurchgehend);
}

std::optional<std::string_view> plattenname(const Wand& w, Seite n) {
    if (plattenmaterial(w, n) < Platte::frei) {
        return katalogname(Plattenmaterialien(), zeilenPlattenmaterialien, w.Material[n].value());
    }
    const std::string* name = w.eigeneMaterialien.name(w.EigenesMaterial[n]);
    return name != nullptr ? std::optional<std::string_view>(*name) : std::nullopt;
}

void beplankung(Berichtsbau& b, const Wand& w, Seite n) {
    const std::string seite = std::to_string(nummer(n));
    const double ersterAbstand = n == Seite::eins ? 5 : 4;  // Meant: the sides differ here
    b.h3("1.3."s + seite + " Beplankung " + seite, 6, 245);
    b.zeile(ersterAbstand, {"Material = ", plattenname(w, n)});
    b.zeile(4, {"Nutzungsklasse für Beplankung ", seite, ": NKL ", {w.NKLBeplankung[n], "0"}});
    b.zeile(4, {"Plattendicke t = ", {Plattendicke(w, n), "0.0"}, " mm"});
    b.zeile(4, {"Plattenbreite lp = ", {w.Plattenbreite[n] / 1000, "0.000"}, " m"});
    b.zeile(4, {w.Gestossen[n] ? "Die Beplankung ist horizontal einmal gestossen."
                               : "Die Beplankung ist horizontal nicht gestossen."});
}

void beplankungen(Berichtsbau& b, const Wand& w) {
    b.h2("1.3 Beplankung", 7);
    b.zeile(5, {w.Einseitig ? "Die Wandtafel ist nur einseitig beplankt!"
                            : "Die Wandtafel ist zweiseitig beplankt!"});
    beplankung(b, w, Seite::eins);
    if (!w.Einseitig) beplankung(b, w, Seite::zwei);
}

}  // namespace

void systemangaben(Berichtsbau& b, const Wand& w) {
    b.h1("1. System", 1);
    abmessungen(b, w);
    rippenquerschnitte(b, w);
    beplankungen(b, w);
}

}  // namespace rippenscheibe
