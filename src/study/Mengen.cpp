#include "study/Mengen.h"

#include <algorithm>
#include <cmath>

#include "materials/Materialkennwerte.h"
#include "materials/Querschnittswerte.h"
#include "model/Kataloge.h"
#include "run/Zuweisen.h"
#include "study/Felder.h"

namespace rippenscheibe {

namespace {

// Calls the visitor with each item of timber: name, section, length of one piece, pieces.
template <class Besucher>
void jederHolzposten(const Wand& w, Besucher besucher) {
    const double l = 1000 * w.Wandlaenge.value();
    const double lichteHoehe = 1000 * w.Wandhoehe.value() - 2 * w.bKopfFussrippe.value();
    const double h = w.hRandrippe.value();
    double innen = 0;
    fuerJedeInnenrippe(w, [&](double) { ++innen; });
    besucher("Randrippen", w.bRandrippe.value(), h, lichteHoehe, 2);
    if (innen > 0) besucher("Innenrippen", w.bInnenrippe.value(), w.hInnenrippe.value(), lichteHoehe, innen);
    besucher("Kopf- und Fußrippe", w.bKopfFussrippe.value(), h, l, 2);
    if (!w.Gestossen[Seite::eins] && (w.Einseitig || !w.Gestossen[Seite::zwei])) return;

    // Blocking between the ribs; equal bays in a row are one item.
    double links = w.bRandrippe.value();  // right face of the rib at the left
    double laenge = 0;
    double stueck = 0;
    const auto feld = [&](double bis) {
        const double licht = bis - links;
        if (stueck > 0 && std::fabs(licht - laenge) > 1e-6) {
            besucher("Querhölzer am Stoß", w.bKopfFussrippe.value(), h, laenge, stueck);
            stueck = 0;
        }
        laenge = licht;
        if (licht > 0) ++stueck;
    };
    const double halb = w.bInnenrippe.value() / 2;
    fuerJedeInnenrippe(w, [&](double achse) {
        feld(achse - halb);
        links = achse + halb;
    });
    feld(l - w.bRandrippe.value());
    if (stueck > 0) besucher("Querhölzer am Stoß", w.bKopfFussrippe.value(), h, laenge, stueck);
}

double flaeche(const Wand& w) { return w.Wandlaenge.value() * w.Wandhoehe.value(); }

double vmStueck(const Wand& w, Seite n, const Reihenregel& regel) {
    double summe = 0;
    fuerJedeVMReihe(w, n, regel, [&](const VMReihe& reihe) { summe += reihe.stueck(); });
    return summe;
}

double ankerStueck(const Wand& w) {
    return w.NachweisVerankerung ? 2.0 * static_cast<double>(w.AnzahlAnker.value()) : 0;
}

double plattenstueck(const Wand& w, Seite n) {
    const double breite = w.Plattenbreite[n].value();
    if (!(breite > 0)) return 0;
    return std::ceil(1000 * w.Wandlaenge.value() / breite - 1e-9) * (w.Gestossen[n] ? 2 : 1);
}

// Adds to the item that is equal but for `zahl`, or appends it.
template <class Posten, class Gleich, class Addiere>
void sammle(std::vector<Posten>& summe, const std::vector<Posten>& posten, Gleich gleich, Addiere plus) {
    for (const Posten& p : posten) {
        const auto treffer =
            std::find_if(summe.begin(), summe.end(), [&](const Posten& s) { return gleich(s, p); });
        if (treffer == summe.end()) {
            summe.push_back(p);
        } else {
            plus(*treffer, p);
        }
    }
}

}  // namespace

Mengen mengen(const Wand& w, const Reihenregel& regel) {
    Mengen m;
    jederHolzposten(w, [&](const char* name, double b, double h, double laenge, double stueck) {
        m.holz.push_back({name, b, h, laenge, stueck});
    });
    for (const Seite n : beideSeiten) {
        if (!beplankt(w, n)) continue;
        Mengen seite;
        seite.platten.push_back(
            {std::string(beplankungsname(w, n)), plattendicke(w, n), flaeche(w), plattenstueck(w, n)});
        seite.verbindungsmittel.push_back({verbindungsmitteltext(w, n), vmStueck(w, n, regel)});
        addiere(m, seite);
    }
    if (ankerStueck(w) > 0) m.anker.push_back({std::string(ankername(w)), ankerStueck(w)});
    return m;
}

void addiere(Mengen& summe, const Mengen& posten) {
    sammle(
        summe.holz, posten.holz,
        [](const Holzposten& a, const Holzposten& b) {
            return a.bezeichnung == b.bezeichnung && a.b == b.b && a.h == b.h &&
                   std::fabs(a.laenge - b.laenge) < 0.05;
        },
        [](Holzposten& a, const Holzposten& b) { a.stueck += b.stueck; });
    sammle(
        summe.platten, posten.platten,
        [](const Plattenposten& a, const Plattenposten& b) {
            return a.material == b.material && a.dicke == b.dicke;
        },
        [](Plattenposten& a, const Plattenposten& b) {
            a.flaeche += b.flaeche;
            a.stueck += b.stueck;
        });
    const auto gleicherName = [](const Stueckposten& a, const Stueckposten& b) { return a.name == b.name; };
    const auto addiereStueck = [](Stueckposten& a, const Stueckposten& b) { a.stueck += b.stueck; };
    sammle(summe.verbindungsmittel, posten.verbindungsmittel, gleicherName, addiereStueck);
    sammle(summe.anker, posten.anker, gleicherName, addiereStueck);
}

double holzvolumen(const Mengen& m) {
    double summe = 0;
    for (const Holzposten& p : m.holz) summe += p.b * p.h * p.laenge * p.stueck * 1e-9;
    return summe;
}

std::vector<Mengenzeile> mengenzeilen(const Mengen& m) {
    std::vector<Mengenzeile> zeilen;
    const auto gerundet = [](double menge) { return std::round(menge * 1e6) / 1e6; };
    for (const Holzposten& p : m.holz)
        zeilen.push_back(
            {"Holz", p.bezeichnung,
             kommatext(p.b) + "x" + kommatext(p.h) + ", l = " + kommatext(std::round(p.laenge * 10) / 10),
             p.stueck, gerundet(p.b * p.h * p.laenge * p.stueck * 1e-9), "m³"});
    for (const Plattenposten& p : m.platten)
        zeilen.push_back(
            {"Platte", p.material, kommatext(p.dicke) + " mm", p.stueck, gerundet(p.flaeche), "m²"});
    for (const Stueckposten& p : m.verbindungsmittel)
        zeilen.push_back({"Verbindungsmittel", p.name, "", p.stueck, gerundet(p.stueck), "Stück"});
    for (const Stueckposten& p : m.anker)
        zeilen.push_back({"Anker", p.name, "", p.stueck, gerundet(p.stueck), "Stück"});
    return zeilen;
}

Mengensummen mengensummen(const Wand& w, const Reihenregel& regel) {
    Mengensummen m;
    jederHolzposten(w, [&](const char*, double b, double h, double laenge, double stueck) {
        m.holz += b * h * laenge * stueck * 1e-9;
    });
    for (const Seite n : beideSeiten) {
        if (!beplankt(w, n)) continue;
        m.platten[n] = flaeche(w);
        m.verbindungsmittel[n] = vmStueck(w, n, regel);
    }
    m.anker = ankerStueck(w);
    return m;
}

std::string_view beplankungsname(const Wand& w, Seite n) {
    constexpr int eigenes = 13;
    if (w.Material[n].value() < eigenes) return eintrag(Plattenmaterialien(), w.Material[n].value());
    const std::string* name = w.eigeneMaterialien.name(w.EigenesMaterial[n]);
    return name != nullptr && !name->empty() ? std::string_view(*name) : "freies Material";
}

std::string verbindungsmitteltext(const Wand& w, Seite n) {
    return std::string(eintrag(VMArten(), w.VMArt[n].value())) + " " + kommatext(w.d[n].value()) + "x" +
           kommatext(w.ln[n].value());
}

std::string_view ankername(const Wand& w) {
    constexpr int frei = 13;
    if (w.Ankertyp == frei)
        return w.FreierAnkerName.empty() ? "freier Anker" : std::string_view(w.FreierAnkerName);
    const std::string_view name = eintrag(Ankernamen(), w.Ankertyp.value());
    return name.substr(name.rfind(' ') + 1);
}

bool beplankt(const Eingaben& w, Seite n) { return n == Seite::eins || !w.Einseitig; }

double plattendicke(const Eingaben& w, Seite n) {
    return n == Seite::eins ? w.Plattendicke1.value() : wieGetippt(w.Plattendicke2.value());
}

double wandgewicht(Wand& w) {
    zuweisen(w, grundmasse(w));
    for (const Seite n : beideSeiten)
        if (beplankt(w, n)) beplankungswerte(w, n);
    eigengewicht(w, Daemmung::keine);
    return w.GewichtGesamt.value();
}

}  // namespace rippenscheibe
