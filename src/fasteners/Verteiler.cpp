#include "fasteners/Verteiler.h"

#include <algorithm>
#include <array>
#include <span>

#include "fasteners/DIN18182.h"
#include "fasteners/Fermacell.h"
#include "fasteners/Grundlagen.h"
#include "fasteners/Klammern.h"
#include "fasteners/Naegel.h"
#include "fasteners/Schnellbauschrauben.h"
#include "fasteners/Schrauben.h"
#include "fasteners/Schrauben_Zulassung.h"
#include "fasteners/Sondernaegel.h"

namespace rippenscheibe {

namespace {

using Tragfaehigkeit = void (*)(Wand& w, Seite n);

struct Familie {
    Art art;
    Tragfaehigkeit vereinfacht;
    Tragfaehigkeit genau;
};

// clang-format off
constexpr std::array<Familie, 8> familien{{
    {Art::naegel,                naegelVereinfacht,              naegelGenau},
    {Art::sondernaegel,          sondernaegelVereinfacht,        sondernaegelGenau},
    {Art::klammern,              klammernVereinfacht,            klammernGenau},
    {Art::schrauben,             schraubenVereinfacht,           schraubenGenau},
    {Art::schraubenMitZulassung, schraubenZulassungVereinfacht,  schraubenZulassungGenau},
    {Art::schnellbauschrauben,   schnellbauschraubenVereinfacht, schnellbauschraubenGenau},
    {Art::naegelDin18182,        naegelDin18182Vereinfacht,      naegelDin18182Genau},
    {Art::klammernDin18182,      klammernDin18182Vereinfacht,    klammernDin18182Genau},
}};

// Gypsum fibre board knows three kinds; with any other nothing runs and Rd stays as it was.
constexpr std::array<Familie, 3> familienGipsfaser{{
    {Art::naegel,       naegelFermacellVereinfacht,       naegelFermacellGenau},
    {Art::sondernaegel, sondernaegelFermacellVereinfacht, sondernaegelFermacellGenau},
    {Art::klammern,     klammernFermacellVereinfacht,     klammernFermacellGenau},
}};
// clang-format on
static_assert(familien.size() == 8 && familienGipsfaser.size() == 3);

constexpr double dickeNebenGipsfaser = 12;  // mm, approval Z-9.1-187
constexpr double RdKleinstes = 20;          // N
constexpr double erhoehung = 1.2;           // DIN 1052 (2008), 10.6 (4)

void berechneFamilie(Wand& w, Seite n) {
    const std::span<const Familie> auswahl =
        istGipsfaser(w, n) ? std::span<const Familie>(familienGipsfaser) : std::span<const Familie>(familien);
    const auto familie = std::ranges::find(auswahl, vmArt(w, n), &Familie::art);
    if (familie == auswahl.end()) return;
    (w.GenauesVerfahren == 1 ? familie->vereinfacht : familie->genau)(w, n);
}

// Approval Z-9.1-187: a board opposite to gypsum fibre board needs 12 mm. The same rule runs after either
// side, also for a one-sided panel, and sees the thickness that countersinking has left.
void wendeGipsfaserregelAn(Wand& w) {
    const bool faser1 = istGipsfaser(w, Seite::eins);
    const bool faser2 = istGipsfaser(w, Seite::zwei);
    if (faser1 && !faser2 && w.t[Seite::zwei] < dickeNebenGipsfaser) {
        w.Rd[Seite::zwei] = 0;
    } else if (!faser1 && faser2 && w.t[Seite::eins] < dickeNebenGipsfaser) {
        w.Rd[Seite::eins] = 0;
    }
}

}  // namespace

void verteiler(Wand& w, Seite n) {
    berechneFamilie(w, n);
    wendeGipsfaserregelAn(w);
    if (w.Rd[n] < RdKleinstes) w.Rd[n] = 0;
    if (w.Erhoehung20) w.Rd[n] = erhoehung * w.Rd[n];
}

}  // namespace rippenscheibe
