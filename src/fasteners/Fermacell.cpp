#include "fasteners/Fermacell.h"

#include <array>
#include <cassert>

#include "fasteners/Grundlagen.h"
#include "fasteners/Klammern.h"

namespace rippenscheibe {

namespace {

// Penetration into the rib, mm.
constexpr double treqNagel = 30;
constexpr double treqSondernagel = 27;
constexpr Paar<double> treqKlammer{{32, 30}};

bool duennerAls2(const Wand& w, Seite n) { return w.d[n] < 2; }
bool dickerAls3(const Wand& w, Seite n) { return w.d[n] > 3; }
// Meant: nails on side 2 measure the penetration by d1, the diameter of side 1.
bool nageleinbindungUnter4d1(const Wand& w, Seite n) {
    if (n == Seite::zwei) soVorgegeben("Nägel auf Seite 2 messen die Einbindetiefe mit d1 von Seite 1");
    return w.ln[n] - w.t[n] < 4 * w.d[Seite::eins];
}

constexpr std::array<Ausschluss, 4> ausschluesseNaegel{randrippeZuDuenn, duennerAls2, dickerAls3,
                                                       nageleinbindungUnter4d1};
constexpr std::array<Ausschluss, 4> ausschluesseSondernaegel{randrippeZuDuenn, duennerAls2, dickerAls3,
                                                             einbindungUnter4d};

void setzeFliessmoment(Wand& w, Seite n, double fukKleinste) {
    w.Myk[n] = w.fuk[n] >= fukKleinste ? fliessmoment(fliessmomentNagel, w.fuk[n], w.d[n]) : Zahl(0);
}

void setzeFliessmomentNagel(Wand& w, Seite n) { setzeFliessmoment(w, n, 600); }
void setzeFliessmomentKlammer(Wand& w, Seite n) { setzeFliessmoment(w, n, 800); }

// Factor of fibre board under thick nails; a staple of side 2 goes by the same rule.
Zahl faserbeiwertNagel(const Wand& w, Seite n) {
    return w.t[n] <= 12.5 && w.d[n] > 2.5 ? 2.5 / w.d[n] : Zahl(1);
}

Zahl faserbeiwertKlammer(const Wand& w, Seite n) {
    // Meant: side 1 reduces under vertical load, whatever the thickness.
    if (n == Seite::eins)
        soVorgegeben("kFaser mindert Klammern auf Seite 1 unter Vertikallast, auf Seite 2 wie bei Nägeln");
    if (n == Seite::zwei) return faserbeiwertNagel(w, n);
    return w.Lastfall == 2 || w.Lastfall == 3 ? 1.5 / w.d[n] : Zahl(1);
}

// Material group, reductions and Rk; only kFaser is assigned when predrilled.
void setzeRkFaser(Wand& w, Seite n, double treqRippe, Zahl kFaser) {
    setzeGruppe(w, n, Lochleibung::gipsfaser, {0.7, 7 * w.d[n], treqRippe});
    setzeAbminderung(w, n);
    w.kFaser[n] = kFaser;
    w.Rk[n] = vereinfachteTragfaehigkeit(w, n) * w.kFaser[n];
}

// Embedment strength of special nails and staples in the exact method.
void setzeLochleibungGenau(Wand& w, Seite n) {
    setzeLochleibung(w, n, Lochleibung::gipsfaser);
    // Meant: predrilled, side 1 keeps the earlier value, side 2 has none.
    if (n == Seite::zwei && w.Vorgebohrt[n]) {
        soVorgegeben("vorgebohrt hat Seite 2 keine Lochleibungsfestigkeit, Seite 1 behält die frühere");
        w.fhkPlatte[n] = 0;
    }
}

}  // namespace

void naegelFermacellVereinfacht(Wand& w, Seite n) {
    assert(istGipsfaser(w, n));
    setzeFliessmomentNagel(w, n);
    setzeRkFaser(w, n, treqNagel, faserbeiwertNagel(w, n));
    w.Rd[n] = ausgeschlossen(w, n, ausschluesseNaegel) ? Zahl(0) : bemessungswert(w, n, w.Rk[n]);
}

void naegelFermacellGenau(Wand& w, Seite n) {
    assert(istGipsfaser(w, n));
    setzeFliessmomentNagel(w, n);
    versenke(w, n);
    // Predrilled nails have none on either side.
    w.fhkPlatte[n] = w.Vorgebohrt[n] ? Zahl(0) : lochleibung(w, n, Lochleibung::gipsfaser);
    setzeVersagensarten(w, n, Schaefte::einer);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesseNaegel) ? Zahl(0) : kleinsteVersagensart(w, n);
}

void sondernaegelFermacellVereinfacht(Wand& w, Seite n) {
    assert(istGipsfaser(w, n));
    setzeFliessmomentNagel(w, n);
    setzeRkFaser(w, n, treqSondernagel, faserbeiwertNagel(w, n));
    // Meant: side 1 adds deltaRk1, which this family never computes: what another fastener left there enters,
    // whatever DeltaRd says.
    if (n == Seite::eins) soVorgegeben("Seite 1 zählt ΔRk hinzu, wie ein anderes Verbindungsmittel es ließ");
    const Zahl zuwachs = n == Seite::eins ? Zahl(w.deltaRk[n]) : Zahl(0);
    w.Rd[n] =
        ausgeschlossen(w, n, ausschluesseSondernaegel) ? Zahl(0) : bemessungswert(w, n, w.Rk[n] + zuwachs);
}

void sondernaegelFermacellGenau(Wand& w, Seite n) {
    assert(istGipsfaser(w, n));
    setzeFliessmomentNagel(w, n);
    versenke(w, n);
    setzeLochleibungGenau(w, n);
    setzeVersagensarten(w, n, Schaefte::einer);
    w.Rd[n] = ausgeschlossen(w, n, ausschluesseSondernaegel) ? Zahl(0) : kleinsteVersagensart(w, n);
}

// Staples on fibre board have no least length; only the penetration is tested.
void klammernFermacellVereinfacht(Wand& w, Seite n) {
    assert(istGipsfaser(w, n));
    setzeFliessmomentKlammer(w, n);
    // Meant: staples need 32 mm on side 1 and 30 mm on side 2.
    soVorgegeben("Klammern in Gipsfaserplatten brauchen auf Seite 1 32 mm in der Rippe, auf Seite 2 30 mm");
    setzeRkFaser(w, n, treqKlammer[n], faserbeiwertKlammer(w, n));
    w.Rd[n] = einbindungUnter8d(w, n) ? Zahl(0) : klammerRdVereinfacht(w, n);
}

void klammernFermacellGenau(Wand& w, Seite n) {
    assert(istGipsfaser(w, n));
    setzeFliessmomentKlammer(w, n);
    versenke(w, n);
    setzeLochleibungGenau(w, n);
    setzeVersagensarten(w, n, Schaefte::zwei);
    w.Rd[n] = einbindungUnter8d(w, n) ? Zahl(0) : klammerRdGenau(w, n);
}

}  // namespace rippenscheibe
