#include "fasteners/Ausziehen.h"

#include <array>

#include "materials/Teilsicherheitsbeiwerte.h"

namespace rippenscheibe {

namespace {

constexpr double rohdichteKopf = 380;
constexpr int ersteKlasse3 = 7;

// clang-format off
constexpr std::array<Tragfaehigkeitsklasse, 9> klassen{{
    {30, 60,  60},  // 1A
    {30, 60,  80},  // 1B
    {30, 60, 100},  // 1C
    {40, 70,  60},  // 2A
    {40, 70,  80},  // 2B
    {40, 70, 100},  // 2C
    {50, 80,  60},  // 3A
    {50, 80,  80},  // 3B
    {50, 80, 100},  // 3C
}};
// clang-format on
[[maybe_unused]] const Tabellenangabe tabelle(klassen, "Tragfähigkeitsklassen");

}  // namespace

const Tragfaehigkeitsklasse* tragfaehigkeitsklasse(const Wand& w, Seite n) {
    const int nummer = w.VMKlasse[n].value();
    const bool vorhanden = nummer >= 1 && nummer <= static_cast<int>(klassen.size());
    return vorhanden ? &klassen[static_cast<std::size_t>(nummer) - 1] : nullptr;
}

bool istKlasse3(const Wand& w, Seite n) {
    return w.VMKlasse[n] >= ersteKlasse3 && tragfaehigkeitsklasse(w, n) != nullptr;
}

Dickenband dickenband(const Wand& w, Seite n) {
    if (w.t[n] < 12) return Dickenband::unter12;
    return w.t[n] <= 20 ? Dickenband::bis20 : Dickenband::ueber20;
}

Zahl ausziehparameter(Zahl c, Zahl rho) { return c * 1e-6 * pow(rho, 2); }
Zahl kopfdurchziehparameter(Zahl c) { return ausziehparameter(c, rohdichteKopf); }

Einbindung pruefeEinbindung(const Wand& w, Seite n, int vielfaches) {
    if (w.lef[n] < vielfaches * w.d[n]) return Einbindung::zuKurz;
    if (w.lef[n] > vielfaches * w.d[n]) return Einbindung::genuegt;
    return Einbindung::grenze;
}

void setzeEinbindelaenge(Wand& w, Seite n) { w.lef[n] = Min(w.ln[n] - w.t[n], w.lg[n]); }

void begrenzeEinbindelaenge(Wand& w, Seite n) {
    if (w.lef[n] > groessteEinbindung * w.d[n]) w.lef[n] = groessteEinbindung * w.d[n];
}

void setzeRxd(Wand& w, Seite n) { w.Rxd[n] = w.kmodVM[n] * w.Rxk[n] / gammaM; }

}  // namespace rippenscheibe
