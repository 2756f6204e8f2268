#pragma once

#include <random>

#include "model/Kataloge.h"
#include "model/Wand.h"

namespace rippenscheibe::inline tests {

// Inputs of all kinds, most of them usual, some that findings stop; the same seed yields the same walls.
class Zufallswaende {
  public:
    explicit Zufallswaende(unsigned saat) : zufall_(saat) {}

    Eingaben naechste() {
        Eingaben e;
        e.Wandlaenge = aus({1.25, 2.5, 3.1, 5.0, 7.5, 11.3});
        e.Wandhoehe = aus({2.5, 2.75, 3.0});
        e.Rippenabstand = aus({312.5, 400, 625, 833});
        e.bRandrippe = aus({60, 80, 120});
        e.bInnenrippe = aus({60, 80});
        e.hRandrippe = e.hInnenrippe = aus({120, 160, 200});
        e.Holzart = ganz(1, 13);
        e.NKLRippen = ganz(1, 2);
        e.Einseitig = jeder(3);
        for (const Seite n : beideSeiten) {
            e.Material[n] = jeder(4) ? ganz(1, 12) : ganz(1, 2);
            e.Gestossen[n] = jeder(5);
            e.Plattenbreite[n] = aus({1200, 1250, 2500});
            e.NKLBeplankung[n] = ganz(1, 2);
            e.VMKlasse[n] = ganz(1, 9);
            e.av[n] = aus({60, 60, 75, 100, 150});
            if (jeder(4)) {
                e.VMArt[n] = ganz(1, 8);
                e.d[n] = aus({1.53, 2.5, 2.8, 4});
                e.ln[n] = aus({45, 50, 60, 70});
                e.fuk[n] = aus({400, 600, 900});
            } else if (jeder(2)) {
                e.VMArt[n] = 3;
                e.d[n] = 1.53;
                e.ln[n] = 50;
                e.fuk[n] = 900;
            }
            e.dk[n] = 2 * Zahl(e.d[n]);
            e.Vorgebohrt[n] = jeder(6);
            e.Zweireihig[n] = jeder(6);
        }
        e.Plattendicke1 = aus({10, 12.5, 15, 18});
        e.Plattendicke2 = aus({10, 12.5, 15, 18});
        e.NachweisVerankerung = jeder(2);
        e.Ankertyp = ganz(1, 13);
        e.AnzahlAnker = ganz(1, 2);
        e.Kammnagel = ganz(1, 4);
        e.Lastfall = ganz(1, 3);
        e.Fvk = aus({-12, -4, 0, 3, 8, 15});
        e.gk = aus({-3, 0, 2, 10});
        e.qk = aus({0, 3, 12});
        e.wk = aus({-0.8, 0, 0.6});
        e.Fcgk = aus({0, 0, 4});
        e.Fcqk = aus({0, 0, 6});
        e.WindQuer = jeder(2);
        e.KLED = ganz(1, 5);
        e.GenauesVerfahren = ganz(1, 2);
        e.DeltaRd = jeder(3);
        e.VertikallastVerteilung = ganz(1, 2);
        e.LagesicherungVerfahren = ganz(1, 2);
        return e;
    }

  private:
    bool jeder(int n) { return ganz(1, n) == 1; }
    int ganz(int von, int bis) {
        return von + static_cast<int>(zufall_() % static_cast<unsigned>(bis - von + 1));
    }
    double aus(std::initializer_list<double> werte) {
        return werte.begin()[zufall_() % static_cast<unsigned>(werte.size())];
    }

    std::mt19937 zufall_;
};

}  // namespace rippenscheibe::inline tests
