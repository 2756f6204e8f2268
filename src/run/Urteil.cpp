#include "run/Urteil.h"

#include <algorithm>

#include "run/Luecken.h"

namespace rippenscheibe {

namespace {

// Action over resistance; without resistance any action counts ten times.
double quotient(Zahl a, Zahl b) {
    if (b > 0) return (a / b).value();
    return a > b ? 10 : 0;
}

double verankerung(const Wand& w) {
    return w.NachweisVerankerung ? quotient(w.Ftdst, w.AnzahlAnker * w.RdAnker) : 0;
}

struct Nachweiszeile {
    int abschnitt;  // 5.x
    std::string_view name;
    double (*eta)(const Wand&);
};

// clang-format off
constexpr std::array<Nachweiszeile, anzahlNachweise> nachweiszeilen{{
    {1, "5.1 Scheibenschub parallel",   [](const Wand& w) { return w.etaSv0.value(); }},
    {1, "5.1 Scheibenschub senkrecht",  [](const Wand& w) { return w.etaSv90.value(); }},
    {1, "5.1 Scheibenschub kombiniert", [](const Wand& w) { return w.etaKombi.value(); }},
    {2, "5.2 Schwellenpressung",        [](const Wand& w) { return w.maxEtaC90.value(); }},
    {3, "5.3 Stabilität",               [](const Wand& w) { return w.maxEtaStabilitaet.value(); }},
    {4, "5.4 Rippen auf Zug",           [](const Wand& w) { return w.maxEtaT0.value(); }},
    {5, "5.5 Beplankung 1 auf Biegung", [](const Wand& w) { return w.etaBiegung.value(); }},
    {6, "5.6 VM auf Herausziehen",      [](const Wand& w) { return w.etaHerausziehen.value(); }},
    {7, "5.7 Gebrauchstauglichkeit",    [](const Wand& w) { return quotient(w.uGesGebrauch, w.uZulGebrauch); }},
    {7, "5.7 Tragfähigkeit",            [](const Wand& w) { return quotient(w.uGesTragfaehigkeit, w.uZulTragfaehigkeit); }},
    {8, "5.8 Verankerung",              verankerung},
}};

struct Abschnittszeile {
    std::string_view name;
    bool (*beansprucht)(const Wand&);
    bool (*entfaelltImBericht)(const Wand&);
};

bool nie(const Wand& /*w*/) { return false; }

constexpr std::array<Abschnittszeile, 8> abschnittszeilen{{
    {"5.1 Scheibenbeanspruchung",    [](const Wand& w) { return w.sv0d != 0 || w.sv90d != 0; }, nie},
    {"5.2 Schwellenpressung",        [](const Wand& w) { return w.maxFcdSchwelle != 0; }, nie},
    {"5.3 Stabilität",               [](const Wand& w) { return w.maxFcdStabilitaet != 0 || w.maxMyd != 0; }, nie},
    {"5.4 Rippen auf Zug",           [](const Wand& w) { return w.maxFtd != 0; }, nie},
    {"5.5 Beplankung 1 auf Biegung", [](const Wand& w) { return w.wd != 0; }, [](const Wand& w) { return !w.WindQuer; }},
    {"5.6 VM auf Herausziehen",      [](const Wand& w) { return w.wd < 0; }, [](const Wand& w) { return !(w.wk < 0 && w.WindQuer); }},
    {"5.7 Horizontale Verformung",   [](const Wand& w) { return w.Fvd != 0; }, nie},
    {"5.8 Verankerung",              [](const Wand& w) { return w.maxFtd > 0; }, nie},
}};
// clang-format on

double gerundet(double eta) { return Round(eta, 4).value(); }

}  // namespace

std::array<Nachweiswert, anzahlNachweise> nachweiswerte(const Wand& w) {
    std::array<Nachweiswert, anzahlNachweise> werte{};
    for (std::size_t i = 0; i < werte.size(); ++i)
        werte[i] = {nachweiszeilen[i].name, nachweiszeilen[i].eta(w)};
    return werte;
}

int ueberschritteneNachweise(const Wand& w) {
    const auto werte = nachweiswerte(w);
    return static_cast<int>(std::ranges::count_if(werte, [](const Nachweiswert& n) { return n.eta > 1; }));
}

Urteil urteil(const Wand& w, Laufergebnis ergebnis) {
    if (ergebnis == Laufergebnis::hinweise) return {};
    const auto werte = nachweiswerte(w);
    double groesster = 0;
    for (const Nachweiswert& wert : werte) groesster = std::max(groesster, wert.eta);
    if (groesster == 0) return {groesster, std::nullopt};
    const auto* erster = std::find_if(werte.begin(), werte.end(), [&](const Nachweiswert& wert) {
        return gerundet(wert.eta) == gerundet(groesster) && (wert.eta > 1) == (groesster > 1);
    });
    return {groesster, erster->name};
}

std::vector<Abschnittsurteil> abschnittsurteile(const Wand& w) {
    std::vector<Abschnittsurteil> urteile;
    for (const Abschnittszeile& zeile : abschnittszeilen) {
        const int abschnitt = static_cast<int>(urteile.size()) + 1;
        double groesster = 0;
        for (const Nachweiszeile& nachweis : nachweiszeilen)
            if (nachweis.abschnitt == abschnitt) groesster = std::max(groesster, nachweis.eta(w));
        const bool gefuehrt = groesster != 0 || zeile.beansprucht(w);
        urteile.push_back({zeile.name,
                           groesster,
                           gefuehrt ? Nachweisstand::gefuehrt : Nachweisstand::keineBeanspruchung,
                           {},
                           groesster != 0 && zeile.entfaelltImBericht(w)});
    }
    for (const Lueckenart art : luecken(w).arten()) {
        const int abschnitt = lueckenabschnitt(art);
        if (abschnitt == 0) continue;
        Abschnittsurteil& offen = urteile[static_cast<std::size_t>(abschnitt) - 1];
        offen.stand = Nachweisstand::offen;
        if (!offen.luecke.empty()) offen.luecke += "; ";
        offen.luecke += lueckensatz(w, art);
    }
    return urteile;
}

}  // namespace rippenscheibe
