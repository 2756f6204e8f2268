#include "report/Fassung.h"

namespace rippenscheibe {

namespace {

constexpr Fassung gedruckt{
    .maskeNennlaenge1 = "0.00",
    .erhoehung =
        "-> Erhöhung von Rd für VM um 20% für allseitig schubsteife Verbindung nach DIN 1052(2008) "
        "10.6 (4)!",
    // The missing noun belongs to the printed wording.
    .keineErhoehung =
        "-> Keine von Rd für VM um 20% für allseitig schubsteife Verbindung nach DIN "
        "1052(2008) 10.6 (4)!",
    .formelSenkrecht = "(fv,90,d = min[Rd/av; kv2*fc,d*t; kv2*fc,d*20*t²/ar])",
    .ueberschrift42 = "4.2 längenbez. Druckbeanspruchung senkrecht zu den Plattenrändern:",
    .vereinfachteLagesicherheit =
        "Vereinfachter Nachweis der Lagesicherheit, d.h. stabilis. Kräfte nur "
        "Druckkräfte direkt über der Randrippe angesetzt!",
    .nachFedersteifigkeit = " kN/mm",
    .bemerkungFedersteifigkeit = "(Summe k,ser = 100000 bedeutet starr)",
    .nachAnkertragfaehigkeit = " kN je Anker",
    .nachBetonanker = " kN",
    .bemerkungBetonanker = "(der Ankerbolzen ist hierfür separat nachzuweisen!)",
};

constexpr Fassung eingesehen{
    .maskeNennlaenge1 = "0.0",
    .erhoehung =
        "-> Erhöhung der Tragfähigkeit Rd für VM um 20% für allseitig schubsteife Verbindung nach "
        "DIN 1052(2008) 10.6 (4)!",
    .keineErhoehung =
        "-> Keine Erhöhung der Tragfähigkeit Rd für VM um 20% für allseitig schubsteife "
        "Verbindung nach DIN 1052(2008) 10.6 (4)!",
    .formelSenkrecht = "fv,90,d = min[Rd/av; kv2*fc,d*t; kv2*fc,d*20*t²/ar]",
    .ueberschrift42 = "4.2 längenbezogene Druckbeanspruchung senkrecht zu den Plattenrändern:",
    .vereinfachteLagesicherheit =
        "Vereinfachter Nachweis der Lagesicherheit, d.h. stabilis. Kräfte nur "
        "Druckkräfte direkt über der Randrippe für Ermittlung der Zuglasten!",
    .nachFedersteifigkeit = " kN/mm (100000 = starr)",
    .bemerkungFedersteifigkeit = "",
    .nachAnkertragfaehigkeit = " kN (je Anker)",
    .nachBetonanker = " kN (der Ankerbolzen ist hierfür separat nachzuweisen!)",
    .bemerkungBetonanker = "",
};

}  // namespace

const Fassung& fassung(Form form) { return form == Form::ansicht ? eingesehen : gedruckt; }

}  // namespace rippenscheibe
