#include "model/Kataloge.h"
#include "report/sections/Abschnitte.h"

// Section 5.8: the anchorage.

namespace rippenscheibe {

namespace {

Bild ankerbild(Ankergruppe gruppe) {
    switch (gruppe) {
        case Ankergruppe::HD:
            return Bild::ankerHD;
        case Ankergruppe::HTT:
            return Bild::ankerHTT;
        case Ankergruppe::HD2P:
            return Bild::ankerHD2P;
        default:
            return Bild::ankerHD2PSG;
    }
}

std::optional<std::string_view> kammnagelname(int index) {
    if (index < 1 || index > static_cast<int>(Kammnaegel().size())) return std::nullopt;
    return Kammnaegel()[static_cast<std::size_t>(index) - 1].gedruckt;
}

// A number outside the catalogue has no name and no picture, and counts its nails.
void gewaehlterAnker(Berichtsbau& b, const Wand& w) {
    const Anker* const typ = anker(w.Ankertyp.value());
    const bool frei = w.Ankertyp.value() == freierAnker;
    b.zeile(5, {"gewählter Zuganker = ",
                {w.AnzahlAnker, "0"},
                "x",
                typ != nullptr ? std::optional(typ->name) : std::nullopt,
                frei ? std::string_view(w.FreierAnkerName) : ""});
    if (frei) return;
    if (typ != nullptr) b.neu(Bildzeile{ankerbild(typ->gruppe), 132, -14, 66, 90});
    b.zeile(5, {kammnagelname(w.Kammnagel.value())});
    if (typ != nullptr && typ->gruppe == Ankergruppe::HD2PSG) {
        b.zeile(5, {w.Teilausnagelung.value() == 1 ? "Zuganker voll ausgenagelt"
                                                   : "Zuganker nur teilweise ausgenagelt"});
    } else {
        b.zeile(5, {"Anzahl Nägel = ", {w.AnzahlAnkerNaegel, "0"}, " Stück"});
    }
}

void bemerkung(Berichtsbau& b, std::string_view text) {
    if (!text.empty()) b.zeile(4, {text});
}

void ankertragfaehigkeit(Berichtsbau& b, const Wand& w) {
    b.zeile(5, {"Federsteifigkeit eines Zugankers Summe k,ser = ",
                {w.kserAnker, "0.000"},
                b.worte.nachFedersteifigkeit});
    bemerkung(b, b.worte.bemerkungFedersteifigkeit);
    b.zeile(5, {"Aufnehmbare Zugkraft Rd = ", {w.RdAnker, "0.000"}, b.worte.nachAnkertragfaehigkeit});
    const Zahl gesamt = w.AnzahlAnker * w.RdAnker;
    const bool ausreichend = gesamt >= w.Ftdst;
    b.urteil(5, "5.8 Verankerung", w.Ftdst / gesamt, ausreichend,
             {"Rd,ges = ",
              {gesamt, "0.000"},
              ausreichend ? " kN >= Ft,dst = " : " kN < Ft,dst = ",
              {w.Ftdst, "0.000"},
              ausreichend ? " kN --> ausreichend" : " kN --> nicht ausreichend!!!"});
    if (w.Ankertyp.value() == freierAnker) return;
    b.zeile(5, {"Durch Betonanker aufzunehmende Kraft Fb,d = ", {w.Fbd, "0.000"}, b.worte.nachBetonanker});
    bemerkung(b, b.worte.bemerkungBetonanker);
}

}  // namespace

void lagesicherheit(Berichtsbau& b, const Wand& w) {
    b.h2("5.8 Nachweis der Lagesicherheit / Verankerung", 7, w.NachweisVerankerung ? 170 : 255);
    if (!w.NachweisVerankerung) {
        b.zeile(6, {"Nachweis nicht erforderlich bzw. gemäß Vorgabe nicht geführt!"});
        return;
    }
    b.zeile(6,
            {w.LagesicherungVerfahren.value() == 1 ? b.worte.vereinfachteLagesicherheit
                                                   : "Genauer Nachweis der Lagesicherheit, d.h. Ermittlung "
                                                     "der Zuglasten mit Summe der Momente um die "
                                                     "Auflager!"});
    b.zeile(5, {"Gamma,F für destabilierende Einwirkungen = 1,50 [-]"});
    b.zeile(4, {"Gamma,F für stabilierende Einwirkungen = 0,90 [-]"});
    b.zeile(5, {"Ft,dst = ", {w.Ftdst, "0.000"}, " kN (zu verankernde Zugkraft)"});
    gewaehlterAnker(b, w);
    ankertragfaehigkeit(b, w);
}

}  // namespace rippenscheibe
