#include <array>
#include <cmath>

#include "model/Kataloge.h"
#include "report/Berichtsbau.h"

// Sections 1 to 4: system, loads, design parameters and strengths, actions.

namespace rippenscheibe {

namespace {

using namespace std::string_literals;

// A catalogue has more rows than names; the rows behind them are empty.
constexpr int zeilenHolzarten = 20;
constexpr int zeilenPlattenmaterialien = 20;
constexpr int zeilenVMArten = 10;
constexpr int zeilenVMTypen = 31;

// What stands in row `index` of a catalogue; nothing when there is no such row, and the line falls out.
std::optional<std::string_view> katalogname(std::span<const std::string_view> katalog, int zeilen,
                                            int index) {
    if (index < 1 || index > zeilen) return std::nullopt;
    return eintrag(katalog, index);
}

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
    const double ersterAbstand = n == Seite::eins ? 5 : 4;  // the sides differ here, and that is meant
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

void vmMasse(Berichtsbau& b, const Wand& w, Seite n) {
    const Art art = vmArt(w, n);
    b.zeile(4, {"Abstand av = ", {w.av[n], "0"}, " mm"});
    if (art != Art::naegel) {
        // The mask of the length differs between the sides, and that is meant.
        const std::string_view maskeLaenge = n == Seite::eins ? b.worte.maskeNennlaenge1 : "0.0";
        b.zeile(4, {"Nenndurchmesser d = ", {w.d[n], "0.00"}, " mm"});
        b.zeile(4, {"Nennlänge ln = ", {w.ln[n], maskeLaenge}, " mm"});
    }
    if (hatGewinde(art)) {
        b.zeile(4, {"Gewindelänge lg = ", {w.lg[n], "0.0"}, " mm"});
    }
    if (!istKlammer(art) && art != Art::schnellbauschrauben) {
        b.zeile(4, {"Kopfdurchmesser dk = ", {w.dk[n], "0.0"}, " mm"});
    }
    b.zeile(4, {"Zugfestigkeit fuk = ", {w.fuk[n], "0.0"}, " N/mm²"});
}

void vmEinbau(Berichtsbau& b, const Wand& w, Seite n) {
    const Art art = vmArt(w, n);
    if (w.Zweireihig[n]) b.zeile(4, {"VM werden zweireihig, versetzt angeordnet (doppelte Anzahl)"});
    if (art != Art::klammern && art < Art::schnellbauschrauben) {
        b.zeile(4, {w.Vorgebohrt[n] ? "VM wird vorgebohrt" : "VM wird nicht vorgebohrt"});
    }
    b.zeile(4, {w.Versenkt[n] ? "VM wird versenkt eingeschlagen / eingeschraubt"
                              : "VM wird bündig eingeschlagen / eingeschraubt und nicht versenkt"});
}

// The size of a nail, which only plain nails name.
std::optional<std::string_view> nagelzusatz(const Wand& w, Seite n) {
    if (vmArt(w, n) != Art::naegel) return "";
    const int typ = w.VMTyp[n].value();
    if (typ < 1 || typ > zeilenVMTypen) return std::nullopt;
    return nagelname(typ);
}

void verbindungsmittel(Berichtsbau& b, const Wand& w, Seite n) {
    const double ersterAbstand = n == Seite::eins ? 5 : 4;  // the sides differ here, and that is meant
    b.zeile(ersterAbstand,
            {"VM = ", katalogname(VMArten(), zeilenVMArten, w.VMArt[n].value()), nagelzusatz(w, n)});
    vmMasse(b, w, n);
    vmEinbau(b, w, n);
}

void alleVerbindungsmittel(Berichtsbau& b, const Wand& w) {
    b.h2("1.4 Verbindungsmittel VM", 7, 195);
    b.h3("1.4.1 für Beplankung 1", 6);
    verbindungsmittel(b, w, Seite::eins);
    if (w.Einseitig) return;
    b.h3("1.4.2 für Beplankung 2", 6, 200);
    verbindungsmittel(b, w, Seite::zwei);
}

Bild lastbild(const Wand& w) {
    switch (w.Lastfall.value()) {
        case 1:
            return w.WindQuer ? Bild::lastHorizontalQuer : Bild::lastHorizontal;
        case 2:
            return w.WindQuer ? Bild::lastVertikalQuer : Bild::lastVertikal;
        default:
            return w.WindQuer ? Bild::lastBeideQuer : Bild::lastBeide;
    }
}

void belastung(Berichtsbau& b, const Wand& w) {
    constexpr int sehrKurz = 5;  // any other number counts as very short
    const int lastfall = w.Lastfall.value();
    const int kled = w.KLED.value() >= 1 && w.KLED.value() < sehrKurz ? w.KLED.value() : sehrKurz;

    b.h1("2. Belastung", 7, 200);
    b.neu(Vorschub{6});
    b.neu(AnkerMerken{});
    b.zeile(0, {"KLED für veränderliche Lasten = ", eintrag(KLEDNamen(), kled)});
    b.neu(Bildzeile{lastbild(w), 140, -8, 44, 70});

    b.h2("2.1 Horizontale Lasten", 5);
    if (lastfall == 1 || lastfall == 3) b.zeile(4, {"Fv,k = ", {w.Fvk, "0.000"}, " kN"});
    if (lastfall == 2) b.zeile(4, {"Keine Horizontallasten vorhanden!"});

    b.h2("2.2 Vertikale Lasten", 5);
    b.zeile(4, {"Eigengewicht Wand g,k,Wand = ", {w.gkWand, "0.000"}, " kN/m"});
    if (lastfall == 2 || lastfall == 3) {
        b.zeile(4, {"Fc,g,k = ", {w.Fcgk, "0.000"}, " kN (Einzellasten auf die Rippen, ständig )"});
        b.zeile(4, {"Fc,q,k = ", {w.Fcqk, "0.000"}, " kN (Einzellasten auf die Rippen, veränderlich)"});
        b.zeile(4, {"g,k = ", {w.gk, "0.000"}, " kN/m (Gleichlast am Wandkopf, ständig )"});
        b.zeile(4, {"q,k = ", {w.qk, "0.000"}, " kN/m (Gleichlast am Wandkopf, veränderlich )"});
    }

    b.h2("2.3 Wind quer auf Wandebene", 5);
    if (w.WindQuer) {
        b.zeile(4, {"Wind quer zur Wand w,k = ", {w.wk, "0.000"}, " kN/m²"});
    } else {
        b.zeile(4, {"Kein Wind quer zur Wand vorhanden!"});
    }
    b.neu(AnkerPlus{70});  // the height of the picture is always kept free
}

void klammerwinkel(Berichtsbau& b, const Wand& w) {
    // Both sides are asked, on a wall sheathed on one side too; that is meant.
    if (!istKlammer(w, Seite::eins) && !istKlammer(w, Seite::zwei)) return;
    if (w.KlammerWinkelOption.value() == 1) {
        b.zeile(
            4,
            {"-> Für Klammern wird der Winkel beta zwischen Klammerrücken und Faserrichtung des Holzes mit ",
             {w.beta, "0.0"},
             "° angesetzt"});
    } else {
        b.zeile(4,
                {"-> Der Winkel beta zwischen Klammerrücken und Faserrichtung des Holzes ist kleiner 30°"});
    }
}

void bemessungsparameter(Berichtsbau& b, const Wand& w) {
    b.h2("3.1 Bemessungsparameter", 6);
    b.zeile(6,
            {w.GenauesVerfahren.value() == 1
                 ? "-> Tragfähigkeiten für die Verbindungsmittel nach vereinfachtem Verfahren gem. DIN "
                   "1052(2008), "
                   "12.2 bis 12.8"
                 : "-> Tragfähigkeiten für die Verbindungsmittel nach genauem Verfahren gem. DIN 1052(2008), "
                   "Anhang G.2.2"});
    b.zeile(4, {w.Erhoehung20 ? b.worte.erhoehung : b.worte.keineErhoehung});
    b.zeile(4, {w.DeltaRd ? "-> Erhöhung Rd mit deltaRd infolge des Einhängeeffektes wird angesetzt!"
                          : "-> Erhöhung Rd mit deltaRd infolge des Einhängeeffektes wird nicht angesetzt!"});
    if (w.VertikallastVerteilung.value() == 1) {
        b.zeile(4, {"-> Verteilung der Vertikallasten vereinfacht nur über die Rippen angesetzt "});
    } else {
        b.zeile(4, {"-> Verteilung der Vertikallasten genau gemäß der jeweiligen Beanspruchbarkeit von "
                    "Platte/Rippe"});
        b.zeile(4, {"   (Anteil Rippen = ",
                    {w.AnteilRippen * 100, "0.00"},
                    "%, Anteil Beplankung = ",
                    {w.AnteilBeplankung * 100, "0.00"},
                    "%)"});
    }
    klammerwinkel(b, w);
}

void festigkeitenRippen(Berichtsbau& b, const Wand& w) {
    b.h3("Rippen:", 6);
    b.zeile(4, {"kmod,Rippen = ", {w.kmodRippen, "0.00"}, " [-]"});
    b.zeile(4, {"Biegefestigkeit fm,d = ", {w.fmd, "0.000"}, " N/mm² "});
    b.zeile(4, {"Druckfestigkeit fc0,d = ", {w.fc0d, "0.000"}, " N/mm² "});
    b.zeile(4, {"Druckfestigkeit fc90,d = ", {w.fc90d, "0.000"}, " N/mm²"});
    b.zeile(4, {"Zugfestigkeit ft0,d = ", {w.ft0d, "0.000"}, " N/mm²"});
}

void festigkeitenBeplankung(Berichtsbau& b, const Wand& w, Seite n) {
    // Side 2 has a heading of the second rank, a page-break test and wider gaps; that is meant.
    if (n == Seite::eins) {
        b.h3("Beplankung 1:", 5);
    } else {
        b.h2("Beplankung 2:", 6, 230);
    }
    b.zeile(n == Seite::eins ? 4 : 5, {"kmod = ", {w.kmod[n], "0.00"}, " [-] "});
    b.zeile(4, {"kmod,VM = ", {w.kmodVM[n], "0.00"}, " [-] "});
    b.zeile(4, {"Schubfestigkeit fv,d = ", {w.fvd[n], "0.000"}, " N/mm² "});
    b.zeile(4, {"Druckfestigkeit fc,d = ", {w.fcd[n], "0.000"}, " N/mm² "});
    b.zeile(4, {"Biegefestigkeit fm,d = ", {w.fmdBeplankung[n], "0.000"}, " N/mm² "});
    b.zeile(4, {"G,mean = ", {w.Gmean[n], "0.000"}, " N/mm² "});
    b.zeile(4, {"G,05 = ", {w.G05[n], "0.000"}, " N/mm² "});
    if (w.Plattenbreite[n] / 1000 < 0.5 * w.Wandhoehe && w.Gestossen[n]) {
        b.zeile(4, {"Festigkeiten um 1/6 abgemindert wegen horizontal gestossener Beplankung und "
                    "Plattenlänge < halbe "
                    "Wandhöhe!"});
    }
}

void abscherfestigkeit(Berichtsbau& b, const Wand& w, Seite n) {
    const bool voll = w.tvorh[n] >= 1.0 && w.treq[n] >= 1.0;
    b.zeile(4, {"Abscherfestigkeit Rd = ",
                {w.Rd[n], "0.000"},
                n == Seite::eins ? " N (je VM, Beplankung 1)" : " N (je VM, Beplankung 2)",
                voll ? "" : " --> abgemindert wegen t,vorh < t,req (Beplankungsdicke)"});
}

// The panel's resistance in one direction.
struct Plattenfestigkeit {
    std::string_view kuerzel;   // "fv,0,d"
    std::string_view richtung;  // "parallel"
    std::string_view formel;
    const Paar<Feld>& seiten;
    const Feld& gesamt;
    const Paar<Feld>& term1;
    const Paar<Feld>& term2;
    const Paar<Feld>& term3;
};

void festigkeitDerSeite(Berichtsbau& b, const Wand& w, const Plattenfestigkeit& f, Seite n) {
    const std::string seite = std::to_string(nummer(n));
    const std::string andere = std::to_string(nummer(gegenueber(n)));
    b.zeile(n == Seite::eins ? 5 : 4, {f.kuerzel,
                                       ",",
                                       seite,
                                       " = ",
                                       {f.seiten[n], "0.000"},
                                       " N/mm (längenbezogene Schubfestigkeit ",
                                       f.richtung,
                                       " zum Plattenrand, Beplankung ",
                                       seite,
                                       ")"});
    if (!w.Einseitig && f.seiten[n] < f.seiten[gegenueber(n)]) {
        b.zeile(4, {"-> Wird nur zu 80% angesetzt, da Beplankung ", seite,
                    " weniger tragfähig als Beplankung ", andere, "!"});
    }
}

void termeDerSeite(Berichtsbau& b, const Plattenfestigkeit& f, Seite n) {
    const std::string seite = std::to_string(nummer(n));
    b.zeile(4,
            {f.kuerzel,
             ",",
             seite,
             " = min[",
             {f.term1[n], "0.000"},
             "; ",
             {f.term2[n], "0.000"},
             "; ",
             {f.term3[n], "0.000"},
             "] (Beplankung ",
             seite,
             ")"},
            Stil::klein);
}

void plattenfestigkeit(Berichtsbau& b, const Wand& w, const Plattenfestigkeit& f) {
    festigkeitDerSeite(b, w, f, Seite::eins);
    if (!w.Einseitig) festigkeitDerSeite(b, w, f, Seite::zwei);
    b.zeile(5,
            {f.kuerzel,
             ",gesamt = ",
             {f.gesamt, "0.000"},
             " N/mm (längenbezogene Schubfestigkeit ",
             f.richtung,
             " zum Plattenrand, gesamt)"},
            Stil::fett);
    b.zeile(5, {f.formel}, Stil::klein);
    termeDerSeite(b, f, Seite::eins);
    if (!w.Einseitig) termeDerSeite(b, f, Seite::zwei);
}

void tragfaehigkeiten(Berichtsbau& b, const Wand& w) {
    b.h2("3.3 Tragfähigkeiten", 6, 180);
    b.h3("Verbindungsmittel:", 5);
    abscherfestigkeit(b, w, Seite::eins);
    if (!w.Einseitig) abscherfestigkeit(b, w, Seite::zwei);
    b.h3("Beplankung:", 6);
    b.zeile(4, {"kv1 = ", {w.kv1, "0.00"}, " [-]"});
    b.zeile(4, {"kv2 = ", {w.kv2, "0.00"}, " [-]"});
    plattenfestigkeit(b, w,
                      {"fv,0,d", "parallel", "fv,0,d = min[kv1*Rd/av; kv1*kv2*fv,d*t; kv1*kv2*fv,d*35*t²/ar]",
                       w.fv0dn, w.fv0d, w.fv0dTerm1, w.fv0dTerm2, w.fv0dTerm3});
    plattenfestigkeit(b, w,
                      {"fv,90,d", "senkrecht", b.worte.formelSenkrecht, w.fv90dn, w.fv90d, w.fv90dTerm1,
                       w.fv90dTerm2, w.fv90dTerm3});
}

void festigkeiten(Berichtsbau& b, const Wand& w) {
    b.h1("3. Bemessungsparameter / Festigkeiten etc.", 0, 230);
    bemessungsparameter(b, w);
    b.h2("3.2 Festigkeiten", 7, 205);
    festigkeitenRippen(b, w);
    festigkeitenBeplankung(b, w, Seite::eins);
    if (!w.Einseitig) festigkeitenBeplankung(b, w, Seite::zwei);
    tragfaehigkeiten(b, w);
}

// A force or moment of the ribs: each rib in the long form, the greatest alone in the short one.
template <class Wert>
void rippenkraefte(Berichtsbau& b, const Wand& w, std::string_view ueberschrift, std::string_view kuerzel,
                   std::string_view groesster, const Feld& groessterWert, std::string_view einheit,
                   Wert&& wert) {
    b.h2(ueberschrift, 0, 250);
    if (b.jedeRippe()) {
        b.rippen(w, 6, [&](const std::string& name, int i, double abstand) {
            b.zeile(abstand, {name, ": ", kuerzel, " = ", {wert(i), "0.000"}, einheit});
        });
    } else {
        b.zeile(6, {groesster, " = ", {groessterWert, "0.000"}, einheit});
    }
    b.neu(Vorschub{7});
}

void beanspruchungen(Berichtsbau& b, const Wand& w) {
    b.h1("4. Beanspruchungen", 7, 230);
    b.neu(Bildzeile{Bild::schnittkraefte, 140, 0, 50, 34});
    b.neu(AnkerMerken{});
    b.h2("4.1 Schubfluss parallel zu den Plattenrändern", 6);
    b.zeile(5, {"sv,0,d = ", {w.sv0d, "0.000"}, " N/mm"});
    b.h2(b.worte.ueberschrift42, 6);
    b.zeile(5, {"sv,90,d = ", {w.sv90d, "0.000"}, " N/mm"});
    b.neu(AnkerPlus{30});

    rippenkraefte(b, w, "4.3 Druckkräfte für Schwellenpressung", "Fc,d", "max. Fc,d", w.maxFcdSchwelle, " kN",
                  [&](int i) { return w.FcdSchwelle(i); });
    rippenkraefte(b, w, "4.4 Druckkräfte für Stabilitätsnachweis", "Fc,d", "max. Fc,d", w.maxFcdStabilitaet,
                  " kN", [&](int i) { return w.FcdStabilitaet(i) + w.FcdVeraenderlich(i); });
    rippenkraefte(b, w, "4.5 Zugkräfte für Nachweis Längszug Rippen", "Ft,d", "max. Ft,d", w.maxFtd, " kN",
                  [&](int i) { return w.Ftd(i); });
    if (w.WindQuer) {
        rippenkraefte(b, w, "4.6 Momente aus Wind quer zur Plattenebene", "My,d", "max.My,d", w.maxMyd,
                      " kNm", [&](int i) { return w.Myd(i); });
    }
}

}  // namespace

void berichtTeil1(Berichtsbau& b, const Wand& w) {
    b.h1("1. System", 1);
    abmessungen(b, w);
    rippenquerschnitte(b, w);
    beplankungen(b, w);
    alleVerbindungsmittel(b, w);
    belastung(b, w);
    festigkeiten(b, w);
    beanspruchungen(b, w);
}

}  // namespace rippenscheibe
