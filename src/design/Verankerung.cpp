#include "design/Verankerung.h"

#include "design/Rippen.h"
#include "materials/Teilsicherheitsbeiwerte.h"
#include "materials/kmod.h"
#include "model/Anker.h"

namespace rippenscheibe {

namespace {

// Takes the permanent factor out and the one for stabilising or for destabilising actions in.
Zahl stabilisierend() { return gammaGStabilisierend / gammaG; }
Zahl destabilisierend() { return gammaQ / gammaG; }

// Only the permanent compression directly above the tension edge stabilises.
void zugkraftVereinfacht(Wand& w) {
    const Zahl kante = w.Fvd >= 0 ? Zahl(1) : Zahl(w.AnzahlRippen);
    w.FStab = stabilisierend() * w.FcdStabilitaet(kante);
    // Meant: only a purely horizontal load keeps its force.
    if (w.Lastfall != 1) {
        soVorgegeben("neben Vertikallasten wird die Randkraft um γQ / γG vergrößert");
        w.FEdge = destabilisierend() * w.FEdge;
    }
    const Zahl kraft = w.FEdge - w.FStab;
    w.Ftdst = kraft > 0 ? kraft : Zahl(0);
}

// Running sums of the moments about the far support, kNm, up to rib `letzte`.
void momente(Wand& w, int erste, Zahl letzte, const auto& hebel) {
    for (int i = erste; letzte >= i && i < static_cast<int>(Rippenfeld::laenge); ++i) {
        w.MStab(i) = w.MStab(i - 1) + w.FcdStabilitaet(i) * hebel(i);
        w.MDst(i) = w.MDst(i - 1) + w.Ftd(i) * hebel(i);
    }
    w.MStabSumme = stabilisierend() * w.MStab(letzte);
    const Zahl destabilisierendesMoment = w.MDst(letzte);
    // Meant: only a purely horizontal load without permanent load keeps its moment.
    const bool nurHorizontal = w.gd == 0 && w.Lastfall == 1;
    if (!nurHorizontal) soVorgegeben("neben ständiger Last wird das Kippmoment um γQ / γG vergrößert");
    w.MDstSumme = nurHorizontal ? destabilisierendesMoment : destabilisierend() * destabilisierendesMoment;
}

// Sum of the moments about the support at the compressed edge.
void zugkraftGenau(Wand& w) {
    w.MStab.leere();
    w.MDst.leere();
    const Zahl n = w.AnzahlRippen;
    const Zahl a = w.Rippenabstand / 1000;
    const Zahl rest = w.RippenabstandRest / 1000;
    const bool kurzesFeld = rest != 0;
    if (w.Fvd >= 0) {
        momente(w, 1, n - 1, [&](int i) { return (n - 1 - i) * a + (kurzesFeld ? rest : a); });
    } else {
        momente(w, 2, n, [&](int i) -> Zahl {
            if (!kurzesFeld) return (i - 1) * a;
            return n == i ? Zahl(w.Wandlaenge) : (w.Wandlaenge - rest) - (n - 1 - i) * a;
        });
    }
    if (w.Wandlaenge != 0) {
        w.FStab = w.MStabSumme / w.Wandlaenge;
        w.FDst = w.MDstSumme / w.Wandlaenge;
        w.Ftdst = Max((w.MDstSumme - w.MStabSumme) / w.Wandlaenge, 0);
    }
}

// kN, from nails, load duration and cap.
Zahl tragfaehigkeit(const Wand& w, const Anker& typ, const Kammnagel& nagel) {
    const Zahl k = kmodHolz(w.KLED.value());
    if (typ.gruppe == Ankergruppe::HTT)
        return Min((w.AnzahlAnkerNaegel - 3.5) * nagel.fHTT * k / gammaM, k * nagel.deckelHTT / gammaM);
    const Zahl naegel = typ.gruppe != Ankergruppe::HD2PSG ? Zahl(w.AnzahlAnkerNaegel)
                        : w.Teilausnagelung == 1          ? Zahl(naegelVoll)
                                                          : Zahl(naegelTeilweise);
    return Min(nagel.f * naegel * k / gammaM, typ.deckel / gammaM);
}

// The nail of the record; one outside the catalogue carries nothing.
Kammnagel kammnagel(const Wand& w) {
    const int nummer = w.Kammnagel.value();
    const bool vorhanden = nummer >= 1 && nummer <= static_cast<int>(Kammnaegel().size());
    return vorhanden ? Kammnaegel()[static_cast<std::size_t>(nummer) - 1] : Kammnagel{};
}

}  // namespace

void ankerzugkraft(Wand& w) {
    if (w.LagesicherungVerfahren == 2) {
        zugkraftGenau(w);
    } else {
        zugkraftVereinfacht(w);
    }
}

void ankertragfaehigkeit(Wand& w) {
    const Anker* typ = anker(w.Ankertyp.value());
    if (typ == nullptr || typ->gruppe == Ankergruppe::frei) return;
    w.RdAnker = tragfaehigkeit(w, *typ, kammnagel(w));
}

void nachweisVerankerung(Wand& w) {
    ankertragfaehigkeit(w);
    const Anker* typ = anker(w.Ankertyp.value());
    if (typ != nullptr) w.Fbd = typ->beton * w.Ftdst;
}

}  // namespace rippenscheibe
