#include "report/sections/Abschnitte.h"

namespace rippenscheibe {

namespace {

// Section 6: the verdict.
void zusammenfassung(Berichtsbau& b, const Wand& w) {
    const std::string_view urteil = w.AlleNachweiseErfuellt
                                        ? "--> Alle Nachweise werden erfüllt!"
                                        : "--> Achtung, es werden nicht alle Nachweise erfüllt!";
    if (b.gedruckt()) {
        b.h1("6. Zusammenfassung", 7, 250);
        b.zeile(6, {urteil});
        b.neu(Vorschub{12});
    } else {
        b.neu(Trennlinie{'_'});
        b.zeile(0, {urteil}, Stil::schluss);
    }
}

}  // namespace

void berichtTeil2(Berichtsbau& b, const Wand& w) {
    b.neu(Seitenkopfdruck{});
    b.h1("5. Nachweise", 0, 245);
    scheibe(b, w);
    schwellenpressung(b, w);
    stabilitaet(b, w);
    laengszug(b, w);
    biegung(b, w);
    herausziehen(b, w);
    verformungen(b, w);
    lagesicherheit(b, w);
    zusammenfassung(b, w);
}

}  // namespace rippenscheibe
