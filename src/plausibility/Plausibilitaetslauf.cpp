#include "plausibility/Plausibilitaetslauf.h"

#include <string_view>
#include <utility>

#include "plausibility/Hinweistexte.h"
#include "plausibility/MessageBoxen.h"
#include "plausibility/Randbedingungen.h"

namespace rippenscheibe {

namespace {

constexpr std::string_view wandKuerzerAlsFeld =
    "Wandlänge ist kleiner als Rippenabstand - 2 x b,Randrippe --> unzulässig!";
constexpr std::string_view wandKuerzerAlsPlatte =
    "Wandlänge ist kleiner Plattenbreite der Beplankung 1 --> unzulässig!";

// The wall has to be at least as long as a clear bay and as a panel; lengths of the wall in m.
void pruefeWandlaenge(Wand& w) {
    if (w.Rippenabstand / 1000 - 2 * w.bRandrippe / 1000 > w.Wandlaenge)
        w.Hinweise.push_back({std::string(wandKuerzerAlsFeld), std::nullopt, Eingabeort::Wandlaenge});
    for (const Seite n : beideSeiten) {
        if (n == Seite::zwei && w.Einseitig) continue;
        if (w.Plattenbreite[n] / 1000 > w.Wandlaenge)
            w.Hinweise.push_back({fuerSeite(wandKuerzerAlsPlatte, n), n, Eingabeort::Beplankung});
    }
}

}  // namespace

void plausibilitaetslauf(Wand& w) {
    w.Hinweise.clear();
    pruefeWandlaenge(w);
    for (Hinweis& hinweis : allgemeinePruefung(w)) w.Hinweise.push_back(std::move(hinweis));
    pruefeBeplankungUndVerbindungsmittel(w, Seite::eins);
    if (!w.Einseitig) pruefeBeplankungUndVerbindungsmittel(w, Seite::zwei);
    pruefeGegenseiteDerGipsfaserplatte(w);
    pruefeRandbedingungen(w);
}

}  // namespace rippenscheibe
