#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "design/Beanspruchbarkeiten.h"
#include "design/Beanspruchungen.h"
#include "design/Herausziehen.h"
#include "design/Nachweise.h"
#include "design/Stabilitaet.h"
#include "design/Verankerung.h"
#include "design/Verbindungsmittelabstaende.h"
#include "design/Verformungen.h"
#include "fasteners/Verteiler.h"
#include "files/EigeneMaterialienDatei.h"
#include "files/Positionsdatei.h"
#include "materials/Materialkennwerte.h"
#include "materials/Querschnittswerte.h"
#include "materials/kmod.h"
#include "plausibility/Plausibilitaetslauf.h"
#include "run/Berechnungslauf.h"
#include "run/Zuweisen.h"

// Who owns which group of results: a mark is written into every field of a group, one routine is called, and
// the group has changed or not.

namespace rippenscheibe {
namespace {

using Namen = std::set<std::string_view>;

struct Besitzer {
    std::string_view name;
    std::function<void(Wand&)> routine;
    Namen besitzt;
    Namen ruft = {};     // groups of the owners it calls
    Namen aendert = {};  // groups of others that it changes itself, every one of them on purpose
};

template <void (*routine)(Wand&, Seite)>
void jeSeite(Wand& w) {
    for (const Seite n : beideSeiten) routine(w, n);
}
void beanspruchbarkeiten(Wand& w) {
    beanspruchbarkeitParallel(w);
    beanspruchbarkeitSenkrecht(w);
}
void knickUndKippbeiwerte(Wand& w) {
    knickbeiwert(w);
    kippbeiwerte(w);
}

const std::vector<Besitzer>& besitzer() {
    static const std::vector<Besitzer> alle{
        {"zuweisen",
         [](Wand& w) { zuweisen(w, grundmasse(w)); },
         {"Beplankungsdicken"},
         {"Bemessungslasten", "Querschnitte"}},
        {"bemessungslasten", bemessungslasten, {"Bemessungslasten"}},
        {"querschnittswerte", querschnittswerte, {"Querschnitte"}},
        {"eigengewicht", [](Wand& w) { eigengewicht(w, Daemmung::vorhanden); }, {"Eigengewicht"}},
        {"modifikationsbeiwerte", jeSeite<modifikationsbeiwerte>, {"Modifikationsbeiwerte"}},
        {"holzwerte", holzwerte, {"Holzwerte"}},
        {"beplankungswerte", jeSeite<beplankungswerte>, {"Beplankungswerte"}},
        // Countersinking takes 2 mm off the thickness of the calculation.
        {"verteiler",
         jeSeite<verteiler>,
         {"Tragfaehigkeiten", "Anschlusswerte", "VereinfachtesVerfahren", "Versagensarten", "Einhaengeeffekt",
          "Ausziehwerte", "Gipsfaserbeiwerte"},
         {},
         {"Beplankungsdicken"}},
        {"beanspruchbarkeiten", beanspruchbarkeiten, {"Beanspruchbarkeiten"}},
        // The exact distribution reduces the loads in place, pass by pass.
        {"beanspruchungen",
         beanspruchungen,
         {"Beanspruchungen"},
         {"Abstaende", "Beanspruchbarkeiten", "KnickenUndKippen", "Querdruckbeiwert", "Querschnitte"},
         {"Bemessungslasten"}},
        {"querdruckbeiwert", querdruckbeiwert, {"Querdruckbeiwert"}},
        {"knick- und kippbeiwerte", knickUndKippbeiwerte, {"KnickenUndKippen"}},
        {"nachweisSchwellenpressung",
         nachweisSchwellenpressung,
         {"Schwellenpressung"},
         {"Querdruckbeiwert", "Querschnitte"}},
        {"nachweisStabilitaet", nachweisStabilitaet, {"Stabilitaet"}, {"KnickenUndKippen"}},
        {"nachweisZug", nachweisZug, {"Zugnachweis"}},
        // The resistance of side 1 is formed once more, and one row of fasteners halves its force in place.
        {"nachweisHerausziehen",
         nachweisHerausziehen,
         {"Herausziehnachweis"},
         {},
         {"Ausziehwerte", "Beanspruchungen"}},
        {"nachweisVerformung", nachweisVerformung, {"Verformungen"}},
        // The simplified method raises the force at the edge in place.
        {"ankerzugkraft", ankerzugkraft, {"Ankerzugkraft", "Lagesicherheit"}, {}, {"Beanspruchungen"}},
        {"nachweise",
         nachweise,
         {"Schubnachweis", "Biegenachweis"},
         {"Abstaende", "Ankerzugkraft", "Ausziehwerte", "Beanspruchbarkeiten", "Beanspruchungen",
          "Bemessungslasten", "Herausziehnachweis", "KnickenUndKippen", "Lagesicherheit", "Querdruckbeiwert",
          "Querschnitte", "Schwellenpressung", "Stabilitaet", "Verformungen", "Zugnachweis"}},
        {"wandsteifigkeit", wandsteifigkeit, {"Wandsteifigkeit"}},
        {"zusammenfassung", zusammenfassung, {"Zusammenfassung"}},
        // The capacity of a catalogue anchor is written into the inputs.
        {"nachweisVerankerung", nachweisVerankerung, {"Betonanker"}, {}, {"Verankerung"}},
        {"verbindungsmittelabstaende", jeSeite<verbindungsmittelabstaende>, {"Abstaende"}},
        // The checks leave an effective length, and no capacity where rib or fastener are unusable.
        {"plausibilitaetslauf", plausibilitaetslauf, {}, {}, {"Ausziehwerte", "Tragfaehigkeiten"}},
    };
    return alle;
}

// Writes a mark into the fields it visits.
struct Marke {
    double zahl;
    bool wahr;

    template <class T>
    void operator()(const Feldangabe&, Gespeichert<T>& feld) const {
        feld = Gespeichert<T>(static_cast<T>(zahl));
    }
    void operator()(const Feldangabe&, bool& feld) const { feld = wahr; }
    void operator()(const Feldangabe&, Rippenfeld& feld) const {
        for (int i = 0; i < static_cast<int>(Rippenfeld::laenge); ++i) feld(i) = zahl;
    }
};

// All values it visits, one after another.
struct Abzug {
    std::vector<double> werte;
    std::string texte;

    template <class T>
    void operator()(const Feldangabe&, const Gespeichert<T>& feld) {
        werte.push_back(static_cast<double>(feld.value()));
    }
    void operator()(const Feldangabe&, bool feld) { werte.push_back(feld ? 1 : 0); }
    void operator()(const Feldangabe&, const std::string& feld) { texte += feld + '\n'; }
    void operator()(const Feldangabe&, const Rippenfeld& feld) {
        for (int i = 0; i < static_cast<int>(Rippenfeld::laenge); ++i) werte.push_back(feld(i).value());
    }
    template <class Zeilen>
    void operator()(const Feldangabe& angabe, const Zeilen& zeilen) {
        for (const auto& zeile : zeilen) (*this)(angabe, zeile);
    }
    bool operator==(const Abzug&) const = default;
};

template <class Gruppe>
Abzug abzug(const Gruppe& gruppe) {
    Abzug a;
    Gruppe::felder(gruppe, a);
    return a;
}

// The examples after a run, findings or not: as they are, with the other methods, and with special nails.
std::vector<Wand> gerechneteBeispiele() {
    const std::filesystem::path ordner = RIPPENSCHEIBE_BEISPIELE;
    const auto andere = [](const Ganzzahl& wahl) { return 3 - wahl; };
    std::vector<Wand> waende;
    for (const auto& eintrag : std::filesystem::directory_iterator(ordner)) {
        if (!istPositionsdatei(eintrag.path().string())) continue;
        Wand w;
        w.eigeneMaterialien = liesEigeneMaterialien(ordner / materialdatei).wert;
        liesPosition(eintrag.path(), w);
        waende.push_back(w);
        w.DeltaRd = true;
        for (Ganzzahl* wahl : {&w.GenauesVerfahren, &w.VertikallastVerteilung, &w.LagesicherungVerfahren})
            *wahl = andere(*wahl);
        waende.push_back(w);
        for (const Seite n : beideSeiten) {
            w.VMArt[n] = static_cast<int>(Art::sondernaegel);
            w.VMKlasse[n] = 9;
            w.Versenkt[n] = true;
            w.ln[n] = 200;
        }
        w.GenauesVerfahren = andere(w.GenauesVerfahren);
        w.Lastfall = 3;
        waende.push_back(w);
    }
    for (Wand& w : waende) {
        zuweisen(w, grundmasse(w));
        starte(w, Hinweisbehandlung::uebergehen);
    }
    return waende;
}

// The groups that a routine changes on any of the walls; input groups by comparison, without a mark.
Namen geaendert(const std::vector<Wand>& waende, const std::function<void(Wand&)>& routine) {
    Namen namen;
    for (const Wand& wand : waende) {
        Ergebnisse::jedeGruppe(wand, [&]<class Gruppe>(std::string_view name, const Gruppe&) {
            for (const Marke& marke : {Marke{0.3171, false}, Marke{5.713, true}}) {
                Wand w = wand;
                Gruppe::felder(static_cast<Gruppe&>(w), marke);
                const Abzug vorher = abzug(static_cast<const Gruppe&>(w));
                routine(w);
                if (abzug(static_cast<const Gruppe&>(w)) != vorher) namen.insert(name);
            }
        });
        Wand w = wand;
        routine(w);
        Eingaben::jedeGruppe(wand, [&]<class Gruppe>(std::string_view name, const Gruppe& vorher) {
            if (abzug(static_cast<const Gruppe&>(w)) != abzug(vorher)) namen.insert(name);
        });
    }
    return namen;
}

std::string aufzaehlung(const Namen& namen) {
    std::string text;
    for (const std::string_view name : namen) text += " " + std::string(name);
    return text;
}

TEST(Feldbesitz, EveryRoutineChangesItsGroupsAndNoneButThoseNamedBesides) {
    const std::vector<Wand> waende = gerechneteBeispiele();
    ASSERT_GE(waende.size(), 30U) << "the examples are missing";
    for (const Besitzer& b : besitzer()) {
        Namen erwartet = b.besitzt;
        for (const Namen& weitere : {b.ruft, b.aendert}) erwartet.insert(weitere.begin(), weitere.end());
        EXPECT_EQ(aufzaehlung(geaendert(waende, b.routine)), aufzaehlung(erwartet)) << b.name;
    }
}

TEST(Feldbesitz, EveryGroupHasOneOwner) {
    std::map<std::string_view, int> anzahl;
    for (const Besitzer& b : besitzer())
        for (const std::string_view name : b.besitzt) ++anzahl[name];
    const Wand w;
    Ergebnisse::jedeGruppe(w,
                           [&](std::string_view name, const auto&) { EXPECT_EQ(anzahl[name], 1) << name; });
}

}  // namespace
}  // namespace rippenscheibe
