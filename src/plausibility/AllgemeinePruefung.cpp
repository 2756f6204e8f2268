#include "plausibility/MessageBoxen.h"
#include "plausibility/Pruefzeilen.h"

namespace rippenscheibe {

namespace {

// The finding on a pair that is not permitted names both.
constexpr std::string_view paarung = "{VMArt} sind für {Material} nicht zulässig! Bitte ändern!";

// clang-format off
// The general check of one side. Meant: the last row allows the 8 mm screw that the check of the diameter
// refuses.
constexpr std::array<Verstoss, 8> allgemein{{
    {[](const Angaben& a) { return hatGewinde(a.VMArt) && a.ln <= a.lg; },
     "Die Gewinde-/Rillenlänge lg muss kleiner sein als die Länge l! Bitte ändern!"},
    {[](const Angaben& a) { return !istKlammer(a.VMArt) && a.dk <= a.d; },
     "Der Kopfdurchmesser dk muss größer sein als der Durchmesser d! Bitte ändern!"},
    {[](const Angaben& a) { return a.hRandrippe + a.t < a.ln; },
     "Die Länge l des VM ist größer als die Wanddicke + Beplankung 1! Bitte ändern!"},
    {[](const Angaben& a) { return holzwerkstoff(a.Material) && a.VMArt >= Art::schnellbauschrauben; }, paarung},
    {[](const Angaben& a) { return istGipskarton(a.Material)    && a.VMArt <  Art::schnellbauschrauben; }, paarung},
    {[](const Angaben& a) { return istGipsfaser(a.Material)     && a.VMArt >= Art::schrauben; }, paarung},
    {[](const Angaben& a) { return a.VMArt == Art::schnellbauschrauben && a.d < 4; },
     "Durchmesser der Schnellbauschrauben muss >= 4 mm sein! Bitte ändern!"},
    {[](const Angaben& a) { return a.VMArt == Art::schraubenMitZulassung && a.d > 8; },
     "Durchmesser der Schrauben darf max. 8 mm betragen! Bitte ändern!"},
}};
// clang-format on

}  // namespace

std::vector<Hinweis> allgemeinePruefung(const Wand& w) {
    std::vector<Hinweis> hinweise;
    for (const Seite n : beideSeiten) {
        if (n == Seite::zwei && w.Einseitig) continue;
        Seitenpruefung(hinweise, w, n, Eingabeort::Verbindungsmittel).verstoesse(allgemein);
    }
    return hinweise;
}

}  // namespace rippenscheibe
