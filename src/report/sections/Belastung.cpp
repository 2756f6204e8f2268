#include "model/Kataloge.h"
#include "report/sections/Abschnitte.h"

// Section 2: the loads.

namespace rippenscheibe {

namespace {

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

}  // namespace

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

}  // namespace rippenscheibe
