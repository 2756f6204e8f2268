#include "report/sections/Abschnitte.h"

// Sections 5.2 to 5.4: the proofs of the ribs.

namespace rippenscheibe {

namespace {

void groessteAusnutzung(Berichtsbau& b, double abstand, std::string_view name, const Feld& eta) {
    b.ausnutzung(abstand, name, eta, {"max. Ausnutzung = "}, "0.000");
}

}  // namespace

void schwellenpressung(Berichtsbau& b, const Wand& w) {
    b.h2("5.2 Nachweis der Schwellenpressung", 7, 250);
    b.zeile(6, {"kc,90 = ", {w.kc90, "0.00"}, " [-]"});
    if (b.jedeRippe()) {
        b.rippen(w, 5, [&](const std::string& name, int i, double abstand) {
            b.ausnutzung(abstand, "5.2 " + name, w.etaC90(i),
                         {name, ": Sigma,c,90,d = ", {w.SigmaC90d(i), "0.000"}, " N/mm² --> eta = "},
                         "0.000");
        });
    }
    groessteAusnutzung(b, 5, "5.2 Schwellenpressung", w.maxEtaC90);
}

void stabilitaet(Berichtsbau& b, const Wand& w) {
    b.h2("5.3 Nachweis der Stabilität", 7, 250);
    if (b.jedeRippe()) {
        b.rippen(w, 5, [&](const std::string& name, int i, double abstand) {
            b.ausnutzung(abstand, "5.3 " + name, w.etaStabilitaet(i), {name, ": eta = "}, "0.000");
        });
    }
    groessteAusnutzung(b, 5, "5.3 Stabilität", w.maxEtaStabilitaet);
}

void laengszug(Berichtsbau& b, const Wand& w) {
    b.h2("5.4 Nachweis der Rippen auf Zug", 7, 250);
    if (b.jedeRippe()) {
        b.rippen(w, 5, [&](const std::string& name, int i, double abstand) {
            b.ausnutzung(abstand, "5.4 " + name, w.etaT0(i),
                         {name, ": Sigma,t,0,d = ", {w.SigmaT0d(i), "0.000"}, " N/mm² --> eta = "}, "0.000");
        });
    }
    groessteAusnutzung(b, 5, "5.4 Rippen auf Zug", w.maxEtaT0);
}

}  // namespace rippenscheibe
