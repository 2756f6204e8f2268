#include "run/Positionslauf.h"

#include <utility>

#include "files/Pfad.h"
#include "files/Positionsdatei.h"
#include "files/Zeichensatz.h"

namespace rippenscheibe {

namespace {

constexpr std::string_view haeltAn =
    "Es liegen konstruktive Fehler vor, bitte Hinweise beachten und Fehler beheben!";
constexpr std::string_view nichtAlleErfuellt =
    "Es werden nicht alle Nachweise erfüllt, bitte Ergebnisse prüfen! ";

Oeffnung abgelehnt(const std::filesystem::path& datei, std::string_view grund) {
    return {.fehler = pfadtext(datei) + ": " + std::string(grund)};
}

// What is said of a run.
Positionslauf beurteile(const Wand& w, Laufergebnis ergebnis) {
    Positionslauf lauf;
    lauf.ergebnis = ergebnis;
    if (!lauf.gerechnet())
        lauf.satz = haeltAn;
    else if (!w.AlleNachweiseErfuellt)
        lauf.satz = nichtAlleErfuellt;
    lauf.meldungen = texte(w.Hinweise);
    if (!lauf.satz.empty())
        lauf.meldungen.emplace(lauf.gerechnet() ? lauf.meldungen.end() : lauf.meldungen.begin(), lauf.satz);
    if (w.Hinweise.empty())
        lauf.rueckgabe = w.AlleNachweiseErfuellt ? Rueckgabe::erfuellt : Rueckgabe::nichtErfuellt;
    return lauf;
}

}  // namespace

Oeffnung oeffnePosition(const std::filesystem::path& datei, Wand& w, Einlass einlass) {
    const bool streng = einlass == Einlass::nurPositionen;
    if (const auto grund = streng ? einwand(datei) : std::nullopt) return abgelehnt(datei, *grund);
    Dateiinhalt inhalt = liesDatei(datei);
    if (inhalt.lage == Dateilage::unlesbar || (streng && inhalt.fehler))
        return {.fehler = inhalt.fehler->text};
    const std::string text = dekodiert(inhalt.bytes);
    Oeffnung oeffnung;
    oeffnung.gelesen = inhalt.lage == Dateilage::vorhanden;
    if (streng && positionsbefund(text).ganzeAnweisungen == 0) {
        oeffnung.fehler = abgelehnt(datei, keinePosition).fehler;
        return oeffnung;
    }
    for (const Uebersprungen& feld : liesPositionstext(text, w))
        oeffnung.vorbehalte.push_back(beschreibung(feld));
    oeffnung.felder = grundmasse(w);
    oeffnung.bytes = std::move(inhalt.bytes);
    return oeffnung;
}

Positionslauf laufePosition(Wand& w, const Grundmasse& felder, int laeufe, Hinweisbehandlung hinweise) {
    Laufergebnis ergebnis = Laufergebnis::hinweise;
    for (int i = 0; i < laeufe; ++i) {
        zuweisen(w, felder);
        ergebnis = starte(w, hinweise);
    }
    return beurteile(w, ergebnis);
}

}  // namespace rippenscheibe
