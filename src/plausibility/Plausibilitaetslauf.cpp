#include "plausibility/Plausibilitaetslauf.h"

#include "plausibility/Hinweistexte.h"
#include "plausibility/MessageBoxen.h"
#include "plausibility/Randbedingungen.h"

namespace rippenscheibe {

namespace {

constexpr Meldung wandKuerzerAlsFeld{
    "Wandlänge ist kleiner als Rippenabstand - 2 x b,Randrippe --> unzulässig!", Eingabeort::Abmessungen};
constexpr Meldung wandKuerzerAlsPlatte{"Wandlänge ist kleiner Plattenbreite der Beplankung 1 --> unzulässig!",
                                       Eingabeort::Beplankung};

// The wall has to be at least as long as a clear bay and as a panel; lengths of the wall in m.
void pruefeWandlaenge(Wand& w) {
    if (w.Rippenabstand / 1000 - 2 * w.bRandrippe / 1000 > w.Wandlaenge)
        w.Hinweise.emplace_back(wandKuerzerAlsFeld.text);
    for (const Seite n : beideSeiten) {
        if (n == Seite::zwei && w.Einseitig) continue;
        if (w.Plattenbreite[n] / 1000 > w.Wandlaenge)
            w.Hinweise.push_back(fuerSeite(wandKuerzerAlsPlatte.text, n));
    }
}

}  // namespace

void plausibilitaetslauf(Wand& w) {
    w.Hinweise.clear();
    pruefeWandlaenge(w);
    for (auto& hinweis : allgemeinePruefung(w)) w.Hinweise.push_back(std::move(hinweis));
    pruefeBeplankungUndVerbindungsmittel(w, Seite::eins);
    if (!w.Einseitig) pruefeBeplankungUndVerbindungsmittel(w, Seite::zwei);
    pruefeGegenseiteDerGipsfaserplatte(w);
    pruefeRandbedingungen(w);
}

Eingabeort ort(std::string_view hinweis) {
    const std::string text = ohneSeite(hinweis);
    for (const Meldung& meldung : {wandKuerzerAlsFeld, wandKuerzerAlsPlatte})
        if (text == meldung.text) return meldung.ort;
    if (const auto gefunden = ortDerEinzelpruefung(text)) return *gefunden;
    return ortDerRandbedingung(text).value_or(Eingabeort::unbekannt);
}

}  // namespace rippenscheibe
