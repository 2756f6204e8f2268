#include "report/sections/Abschnitte.h"

// Section 5.7: the horizontal deformation.

namespace rippenscheibe {

namespace {

void verformung(Berichtsbau& b, double abstand, std::string_view name, Zahl vorhanden, Zahl zulaessig,
                std::string_view grenzzustand) {
    const bool erfuellt = vorhanden <= zulaessig;
    b.urteil(abstand, name, vorhanden / zulaessig, erfuellt,
             {"u,ges = ",
              {vorhanden, "0.000"},
              erfuellt ? " mm <= u,zul = " : " mm > u,zul = ",
              {zulaessig, "0.000"},
              erfuellt ? " mm (" : " mm !!! (",
              grenzzustand,
              ")"});
}

}  // namespace

void verformungen(Berichtsbau& b, const Wand& w) {
    b.h2("5.7 Nachweis der horizontalen Verformung", 7, 250);
    verformung(b, 6, "5.7 Gebrauchstauglichkeit", w.uGesGebrauch, w.uZulGebrauch,
               "Grenzzustand Gebrauchstauglichkeit");
    verformung(b, 5, "5.7 Tragfähigkeit", w.uGesTragfaehigkeit, w.uZulTragfaehigkeit,
               "Grenzzustand Tragfähigkeit");
}

}  // namespace rippenscheibe
