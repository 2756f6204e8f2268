#include "report/sections/Abschnitte.h"

// Sections 3.1 and 3.2: design parameters and strengths.

namespace rippenscheibe {

namespace {

void klammerwinkel(Berichtsbau& b, const Wand& w) {
    // Meant: both sides are asked, on a wall sheathed on one side too.
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
    // Meant: side 2 has a heading of the second rank, a page-break test and wider gaps.
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

}  // namespace

void bemessungUndFestigkeiten(Berichtsbau& b, const Wand& w) {
    b.h1("3. Bemessungsparameter / Festigkeiten etc.", 0, 230);
    bemessungsparameter(b, w);
    b.h2("3.2 Festigkeiten", 7, 205);
    festigkeitenRippen(b, w);
    festigkeitenBeplankung(b, w, Seite::eins);
    if (!w.Einseitig) festigkeitenBeplankung(b, w, Seite::zwei);
}

}  // namespace rippenscheibe
