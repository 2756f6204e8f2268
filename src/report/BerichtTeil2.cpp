#include "model/Kataloge.h"
#include "report/Berichtsbau.h"

// Sections 5 and 6: the proofs and the verdict.

namespace rippenscheibe {

namespace {

// The lines of the panel proof end in a blank, unlike all others.
constexpr Endungen endungenScheibe{" <= 1,00 ", " > 1,00!!! "};

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

void groessteAusnutzung(Berichtsbau& b, double abstand, std::string_view name, const Feld& eta) {
    b.ausnutzung(abstand, name, eta, {"max. Ausnutzung = "}, "0.000");
}

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

void biegung(Berichtsbau& b, const Wand& w) {
    b.h2("5.5 Nachweis der Beplankung 1 auf Biegung", 7, 250);
    if (!w.WindQuer) {
        b.zeile(6, {"Kein Wind auf Beplankung vorhanden --> Nachweis entfällt!"});
        return;
    }
    const bool erfuellt = w.etaBiegung <= 1.0;
    // The bracket stays open in the failing line; that is meant.
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

void verformungen(Berichtsbau& b, const Wand& w) {
    b.h2("5.7 Nachweis der horizontalen Verformung", 7, 250);
    verformung(b, 6, "5.7 Gebrauchstauglichkeit", w.uGesGebrauch, w.uZulGebrauch,
               "Grenzzustand Gebrauchstauglichkeit");
    verformung(b, 5, "5.7 Tragfähigkeit", w.uGesTragfaehigkeit, w.uZulTragfaehigkeit,
               "Grenzzustand Tragfähigkeit");
}

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
