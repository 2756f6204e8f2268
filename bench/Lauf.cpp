#include <benchmark/benchmark.h>

#include "report/Bericht.h"
#include "run/Berechnungslauf.h"
#include "run/FrischerLauf.h"
#include "run/Zuweisen.h"

// What one press of a start button costs. The default wall has nine ribs.

namespace rippenscheibe {
namespace {

Wand wand(double laenge) {
    Wand w;
    w.Wandlaenge = laenge;
    w.Lastfall = 3;
    w.gk = 8;
    w.qk = 4;
    w.VertikallastVerteilung = 2;
    w.NachweisVerankerung = true;
    return w;
}

void laufNeunRippen(benchmark::State& state) {
    Wand w = wand(5);
    const Grundmasse felder = grundmasse(w);
    for (auto _ : state) {
        zuweisen(w, felder);
        benchmark::DoNotOptimize(starte(w, Hinweisbehandlung::uebergehen));
    }
}
BENCHMARK(laufNeunRippen)->Unit(benchmark::kMicrosecond);

void laufZweihundertRippen(benchmark::State& state) {
    Wand w = wand(124);
    const Grundmasse felder = grundmasse(w);
    for (auto _ : state) {
        zuweisen(w, felder);
        benchmark::DoNotOptimize(starte(w, Hinweisbehandlung::uebergehen));
    }
}
BENCHMARK(laufZweihundertRippen)->Unit(benchmark::kMicrosecond);

// A run of its own: the results of program start, then the run.
void frischerLaufNeunRippen(benchmark::State& state) {
    Wand w = wand(5);
    for (auto _ : state) benchmark::DoNotOptimize(rechneFrisch(w));
}
BENCHMARK(frischerLaufNeunRippen)->Unit(benchmark::kMicrosecond);

// A copy of all results of a run.
void ergebnisseKopieren(benchmark::State& state) {
    Wand w = wand(5);
    rechneFrisch(w);
    Ergebnisse kopie;
    benchmark::DoNotOptimize(&kopie);
    for (auto _ : state) {
        kopie = w;
        benchmark::ClobberMemory();
    }
}
BENCHMARK(ergebnisseKopieren)->Unit(benchmark::kNanosecond);

void berichtLang(benchmark::State& state) {
    Wand w = wand(5);
    zuweisen(w, grundmasse(w));
    starte(w, Hinweisbehandlung::uebergehen);
    for (auto _ : state) benchmark::DoNotOptimize(bericht(w, Form::lang));
}
BENCHMARK(berichtLang)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace rippenscheibe

BENCHMARK_MAIN();
