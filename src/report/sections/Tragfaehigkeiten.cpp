#include "report/sections/Abschnitte.h"

// Section 3.3: resistances of fasteners and panel.

namespace rippenscheibe {

namespace {

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

}  // namespace

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

}  // namespace rippenscheibe
