#include <gtest/gtest.h>

#include <vector>

#include "Pruefwand.h"

// A fastener just outside a rule has no capacity, just inside it has one.

namespace rippenscheibe {
namespace {

using Stelle = void (*)(Wand& w, Seite n, double x);

void hRandrippe(Wand& w, Seite /*n*/, double x) { w.hRandrippe = x; }
void ln(Wand& w, Seite n, double x) { w.ln[n] = x; }
void d(Wand& w, Seite n, double x) { w.d[n] = x; }
void dk(Wand& w, Seite n, double x) { w.dk[n] = x; }
void lg(Wand& w, Seite n, double x) { w.lg[n] = x; }
void t(Wand& w, Seite n, double x) { w.t[n] = x; }

// Screws of side 2, simplified, have a yield moment at d = 4 alone, so that other diameters have no capacity.
enum class Routinen { alle, ohneSeite2Vereinfacht };

struct Regel {
    Mittel mittel;
    Stelle setze;
    double verboten, erlaubt;
    Routinen routinen = Routinen::alle;
};

constexpr Routinen drei = Routinen::ohneSeite2Vereinfacht;

Mittel schraube(double durchmesser, double laenge, double gewinde) {
    return {Art::schrauben, 1, 22, durchmesser, laenge, 400, 20, gewinde};
}
Mittel zulassung(double durchmesser, double laenge) {
    return {Art::schraubenMitZulassung, 1, 22, durchmesser, laenge, 400, 20, 5};
}
Mittel schnellbau(double durchmesser, double dicke) {
    return {Art::schnellbauschrauben, 3, dicke, durchmesser, 75, 400};
}
Mittel gipsnagel(double durchmesser) { return {Art::naegelDin18182, 3, 12.5, durchmesser, 45, 600}; }

// clang-format off
const std::vector<Regel> regeln{
    {{Art::naegel, 1, 15, 2.5, 50, 600}, hRandrippe, 34.9, 35},           // 14 d
    {{Art::naegel, 1, 6, 0.9, 50, 600},  ln, 9.9, 10},
    {{Art::naegel, 1, 15, 2.5, 50, 600}, ln, 24.9, 25},                   // t + 4 d
    {{Art::sondernaegel, 1, 15, 2.5, 50, 600}, hRandrippe, 34.9, 35},
    {{Art::sondernaegel, 1, 15, 2.5, 99, 600}, d, 8.01, 8},
    {{Art::sondernaegel, 1, 6, 0.9, 50, 600},  ln, 9.9, 10},
    {{Art::sondernaegel, 1, 15, 2.5, 50, 600}, ln, 24.9, 25},
    {{Art::klammern, 1, 12, 1.0, 50, 800}, ln, 28.9, 29},
    {{Art::klammern, 1, 12, 1.3, 50, 800}, ln, 28.9, 29},
    {{Art::klammern, 1, 12, 1.3, 28, 800}, d, 1.0, 0.99},
    {{Art::klammern, 1, 12, 1.3, 34, 800}, d, 1.31, 1.3},
    {{Art::klammern, 1, 12, 1.5, 50, 800}, ln, 34.9, 35},
    {{Art::klammern, 1, 12, 1.5, 34, 800}, d, 1.59, 1.6},
    {{Art::klammern, 1, 15, 2.0, 50, 800}, ln, 30.9, 31},                 // t + 8 d
    {schraube(4, 50, 40), hRandrippe, 55.9, 56},
    {schraube(4, 50, 40), d, 3.99, 4},
    {schraube(4, 80, 60), d, 8, 7.99, drei},
    {schraube(4, 50, 40), dk, 7.4, 7.5},
    {schraube(4.5, 50, 40), dk, 8.2, 8.3, drei},
    {schraube(5, 50, 40), dk, 9.1, 9.2, drei},
    {{Art::schrauben, 1, 22, 4, 50, 400, 7.4, 40}, d, 4, 4.2, drei},      // these three diameters only
    {schraube(4, 50, 40), lg, 29.9, 30},                                  // 0.6 ln
    {schraube(4, 50, 40), ln, 37.9, 38},
    {zulassung(4.5, 50), hRandrippe, 62.9, 63, drei},
    {zulassung(4.5, 50), d, 3.99, 4.01, drei},
    {zulassung(4.5, 80), d, 8, 7.99, drei},
    {zulassung(4.5, 50), ln, 39.9, 40, drei},
    {schnellbau(4.5, 12), hRandrippe, 62.9, 63},
    {schnellbau(4.0, 7), ln, 24.9, 25},
    {schnellbau(4.0, 7), ln, 55.1, 55},
    {schnellbau(4.3, 7), ln, 24.9, 25},
    {schnellbau(4.3, 7), ln, 55.1, 55},
    {schnellbau(5.1, 12), ln, 69.9, 70},
    {schnellbau(5.1, 12), ln, 130.1, 130},
    {schnellbau(5.5, 12), ln, 69.9, 70},
    {schnellbau(5.5, 12), ln, 130.1, 130},
    {schnellbau(4.3, 12), d, 4.3, 4.5},                                   // 75 mm long, any other diameter
    {schnellbau(4.5, 12), ln, 29.9, 30},
    {gipsnagel(2.5), t, 0, 6},
    {gipsnagel(2.5), hRandrippe, 34.9, 35},
    {gipsnagel(2.2), ln, 27.9, 28},
    {gipsnagel(2.2), ln, 50.1, 50},
    {gipsnagel(2.5), ln, 29.9, 30},
    {gipsnagel(2.5), ln, 70.1, 70},
    {gipsnagel(2.8), ln, 40.9, 41},
    {gipsnagel(2.8), ln, 70.1, 70},
    {gipsnagel(3.0), ln, 24.4, 24.5},
    {{Art::klammernDin18182, 3, 12.5, 1.3, 50, 700}, ln, 28.9, 29},
    {{Art::klammernDin18182, 3, 12.5, 1.5, 50, 700}, ln, 34.9, 35},
    {{Art::klammernDin18182, 3, 12.5, 2.0, 50, 700}, ln, 28.4, 28.5},
    {{Art::naegel, 7, 12.5, 2.5, 50, 600}, hRandrippe, 34.9, 35},
    {{Art::naegel, 7, 12.5, 2.5, 50, 600}, d, 1.99, 2},
    {{Art::naegel, 7, 12.5, 2.5, 50, 600}, d, 3.01, 3},
    {{Art::naegel, 7, 12.5, 2.5, 50, 600}, ln, 22.4, 22.5},
    {{Art::sondernaegel, 7, 12.5, 2.5, 50, 600}, hRandrippe, 34.9, 35},
    {{Art::sondernaegel, 7, 12.5, 2.5, 50, 600}, d, 1.99, 2},
    {{Art::sondernaegel, 7, 12.5, 2.5, 50, 600}, d, 3.01, 3},
    {{Art::sondernaegel, 7, 12.5, 2.5, 50, 600}, ln, 22.4, 22.5},
    {{Art::klammern, 7, 12.5, 1.5, 50, 800}, ln, 24.4, 24.5},             // no least length here
};
// clang-format on

double kapazitaet(const Regel& regel, Verfahren verfahren, Seite n, double x) {
    Wand w = wand(regel.mittel, verfahren);
    for (const Seite seite : beideSeiten) regel.setze(w, seite, x);
    verteiler(w, n);
    return w.Rd[n].value();
}

TEST(Ausschluss, EachRuleRefusesJustOutsideAndAcceptsAtItsLimit) {
    for (const auto& regel : regeln) {
        for (const Verfahren verfahren : {Verfahren::vereinfacht, Verfahren::genau}) {
            for (const Seite n : beideSeiten) {
                if (regel.routinen == drei && verfahren == Verfahren::vereinfacht && n == Seite::zwei)
                    continue;
                SCOPED_TRACE(::testing::Message()
                             << "kind " << static_cast<int>(regel.mittel.art) << " material "
                             << regel.mittel.material << " refused " << regel.verboten << " side "
                             << nummer(n) << (verfahren == Verfahren::genau ? " exact" : " simplified"));
                EXPECT_EQ(kapazitaet(regel, verfahren, n, regel.verboten), 0);
                EXPECT_GT(kapazitaet(regel, verfahren, n, regel.erlaubt), 0);
            }
        }
    }
}

TEST(Ausschluss, APredrilledRibMayBeThin) {
    for (const auto& mittel :
         {Mittel{Art::naegel, 1, 15, 2.5, 50, 600}, Mittel{Art::sondernaegel, 1, 15, 2.5, 50, 600},
          schraube(4, 50, 40), zulassung(4, 50)}) {
        Wand w = wand(mittel, Verfahren::vereinfacht);
        w.hRandrippe = 30;
        for (const Seite n : beideSeiten) {
            w.Vorgebohrt[n] = true;
            verteiler(w, n);
            EXPECT_GT(w.Rd[n].value(), 0) << static_cast<int>(mittel.art);
        }
    }
}

TEST(Ausschluss, Side2OfApprovedScrewsSimplifiedMeasuresTheRibByTheDiameterOfSide1) {
    for (const auto& [d1, h, erlaubt] :
         {std::tuple(6.0, 83.9, false), {6.0, 84.0, true}, {2.0, 28.0, true}}) {
        Wand w = wand(zulassung(4, 50), Verfahren::vereinfacht);
        w.d[Seite::eins] = d1;
        w.hRandrippe = h;
        verteiler(w, Seite::zwei);
        EXPECT_EQ(w.Rd[Seite::zwei].value() > 0, erlaubt) << d1 << " " << h;
    }
}

TEST(Ausschluss, Side2OfFibreBoardNailsMeasuresThePenetrationByTheDiameterOfSide1) {
    for (const Verfahren verfahren : {Verfahren::vereinfacht, Verfahren::genau}) {
        for (const auto& [art, erlaubt] : {std::pair(Art::naegel, false), {Art::sondernaegel, true}}) {
            Wand w = wand({art, 7, 12.5, 2.5, 27.5, 600}, verfahren);  // 15 mm in the rib, 4 d2 = 10
            w.d[Seite::eins] = 5;                                      // 4 d1 = 20
            verteiler(w, Seite::zwei);
            EXPECT_EQ(w.Rd[Seite::zwei].value() > 0, erlaubt);
        }
    }
}

}  // namespace
}  // namespace rippenscheibe
