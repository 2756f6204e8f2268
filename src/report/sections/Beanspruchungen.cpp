#include "report/sections/Abschnitte.h"

// Section 4: the actions.

namespace rippenscheibe {

namespace {

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

}  // namespace

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

}  // namespace rippenscheibe
