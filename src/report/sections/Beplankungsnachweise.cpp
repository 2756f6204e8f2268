#include "report/sections/Abschnitte.h"

// Sections 5.1, 5.5 and 5.6: the proofs of sheathing and fasteners.

namespace rippenscheibe {

namespace {

// The lines of the panel proof end in a blank, unlike all others.
constexpr Endungen endungenScheibe{" <= 1,00 ", " > 1,00!!! "};

}  // namespace

void scheibe(Berichtsbau& b, const Wand& w) {
    b.h2("5.1 Nachweis der Scheibenbeanspruchung", 6);
    b.ausnutzung(6, "5.1 Scheibenschub parallel", w.etaSv0,
                 {"Ausnutzung Scheibenschub parallel zu Rändern: eta = sv,0,d / fv,0,d = "}, "0.00",
                 endungenScheibe);
    b.ausnutzung(5, "5.1 Scheibenschub senkrecht", w.etaSv90,
                 {"Ausnutzung Scheibenschub senkrecht zu Rändern: eta = sv,90,d / fv,90,d = "}, "0.00",
                 endungenScheibe);
    b.ausnutzung(5, "5.1 Scheibenschub kombiniert", w.etaKombi,
                 {"Ausnutzung Scheibenschub kombiniert: eta = max(sv,0,d / 0.7*fv,0,d bzw. sv,90,d / "
                  "0.7*fv,90,d) = "},
                 "0.00", endungenScheibe);
    if (w.sv0d != 0 && w.sv90d != 0) {
        b.zeile(
            6,
            {"(DIN 1052(2008),8.7.7: bei Kombination Abminderung Festigkeit mit Faktor 0,7 wenn sv,0,d <> 0 "
             "und sv,90,d <> 0)"});
    }
}

void biegung(Berichtsbau& b, const Wand& w) {
    b.h2("5.5 Nachweis der Beplankung 1 auf Biegung", 7, 250);
    if (!w.WindQuer) {
        b.zeile(6, {"Kein Wind auf Beplankung vorhanden --> Nachweis entfällt!"});
        return;
    }
    const bool erfuellt = w.etaBiegung <= 1.0;
    // Meant: the bracket stays open in the failing line.
    b.urteil(6, "5.5 Beplankung 1 auf Biegung", w.etaBiegung, erfuellt,
             {"max. Ausnutzung = ",
              {w.etaBiegung, "0.000"},
              erfuellt ? " <= 1,00  (" : " > 1,00!!!  (",
              "max. Sigma = ",
              {w.SigmaBiegung, "0.000"},
              erfuellt ? " N/mm²)" : " N/mm²"});
}

void herausziehen(Berichtsbau& b, const Wand& w) {
    b.h2("5.6 Nachweis der VM auf Herausziehen", 7, 250);
    // Only suction pulls: a pressure of any size reports no tension.
    if (!(w.wk < 0 && w.WindQuer)) {
        b.zeile(6, {"Keine Zugkräfte in VM vorhanden --> Nachweis entfällt!"});
        return;
    }
    b.ausnutzung(6, "5.6 VM auf Herausziehen", w.etaHerausziehen, {"max. Ausnutzung eta = "}, "0.000");
    b.zeile(5, {"max.Fax,d = ", {w.maxFaxd, "0.000"}, " N"});
    b.zeile(4, {"Rx,d = ", {w.Rxd[Seite::eins], "0.000"}, " N"});
}

}  // namespace rippenscheibe
