#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdint>

#include "report/Bericht.h"
#include "run/Berechnungslauf.h"
#include "run/FrischerLauf.h"
#include "run/Zuweisen.h"
#include "trace/Herleitung.h"

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

void lauf(benchmark::State& state, double laenge) {
    Wand w = wand(laenge);
    const Grundmasse felder = grundmasse(w);
    for (auto _ : state) {
        zuweisen(w, felder);
        benchmark::DoNotOptimize(starte(w, Hinweisbehandlung::uebergehen));
    }
}
BENCHMARK_CAPTURE(lauf, neunRippen, 5)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(lauf, zweihundertRippen, 124)->Unit(benchmark::kMicrosecond);

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

// The whole derivation of a wall, at most 5 ms.
void herleitungNeunRippen(benchmark::State& state) {
    constexpr auto hoechstens = std::chrono::milliseconds(5);
    Wand w = wand(5);
    const Grundmasse felder = grundmasse(w);
    zuweisen(w, felder);
    const auto beginn = std::chrono::steady_clock::now();
    for (auto _ : state) benchmark::DoNotOptimize(leiteHer(w, felder));
    const auto dauer = std::chrono::steady_clock::now() - beginn;
    if (dauer > hoechstens * static_cast<std::int64_t>(state.iterations()))
        state.SkipWithError("more than 5 ms");
}
BENCHMARK(herleitungNeunRippen)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace rippenscheibe

BENCHMARK_MAIN();
