#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

// Work on several threads with results in the order of the input, whoever finishes first.

namespace rippenscheibe {

struct Fortschritt {
    std::size_t geprueft = 0;
    std::size_t gesamt = 0;
    std::size_t gefunden = 0;
};
// Called from worker threads, never from two at once.
using Fortschrittsmeldung = std::function<void(const Fortschritt&)>;

// How a long computation is run.
struct Ausfuehrung {
    int faeden = 1;
    std::stop_token halt{};
    Fortschrittsmeldung fortschritt{};
};

// As many threads as the machine has cores.
int kernzahl();

// Takes pieces from `lies` (nothing: the end), works on each in one of the threads and hands the results to
// `schreibe` in the order of the pieces; false there ends the work, as does the stop token. `lies` and
// `schreibe` are never called from two threads at once. `werkstatt` makes what one thread keeps between its
// pieces. At most a few results a thread wait for their turn, so that memory does not grow with the input.
// An exception of any of them ends the work and is thrown to the caller.
template <class Lies, class Werkstatt, class Arbeite, class Schreibe>
void fliessband(const Ausfuehrung& ausfuehrung, Lies lies, Werkstatt werkstatt, Arbeite arbeite,
                Schreibe schreibe) {
    using Eigenes = decltype(werkstatt());
    using Stueck = typename decltype(lies())::value_type;
    using Ergebnis = decltype(arbeite(std::declval<Eigenes&>(), std::declval<Stueck&>()));
    const auto zahl = static_cast<std::size_t>(ausfuehrung.faeden > 1 ? ausfuehrung.faeden : 1);
    const std::size_t hoechstensWartend = 4 * zahl;

    std::mutex lesen;  // held while a piece is read; `sperre` guards all that follows
    std::mutex sperre;
    std::condition_variable platz;
    std::map<std::size_t, Ergebnis> fertig;
    std::size_t gelesen = 0;
    std::size_t geschrieben = 0;
    bool schluss = false;
    bool schreibt = false;
    std::exception_ptr fehler;

    const auto beende = [&] {
        const std::lock_guard schloss(sperre);
        schluss = true;
        platz.notify_all();
    };
    // The next piece with its number; nothing at the end.
    const auto naechstes = [&]() -> std::optional<std::pair<std::size_t, Stueck>> {
        const std::lock_guard leser(lesen);
        {
            std::unique_lock schloss(sperre);
            platz.wait(schloss, [&] { return schluss || gelesen - geschrieben < hoechstensWartend; });
            if (schluss || ausfuehrung.halt.stop_requested()) return std::nullopt;
        }
        auto stueck = lies();
        if (!stueck) return std::nullopt;
        const std::lock_guard schloss(sperre);
        return std::pair(gelesen++, std::move(*stueck));
    };
    // Whoever writes does so for all, as long as the next in order is there.
    const auto liefere = [&](std::size_t nummer, Ergebnis ergebnis) {
        std::unique_lock schloss(sperre);
        fertig.emplace(nummer, std::move(ergebnis));
        if (schreibt) return true;
        schreibt = true;
        bool weiter = true;
        while (weiter && !fertig.empty() && fertig.begin()->first == geschrieben) {
            auto knoten = fertig.extract(fertig.begin());
            schloss.unlock();
            weiter = schreibe(std::move(knoten.mapped()));
            schloss.lock();
            ++geschrieben;
            platz.notify_all();
        }
        schreibt = !weiter;  // behind a refused piece nothing is written
        return weiter;
    };
    const auto arbeiter = [&] {
        try {
            Eigenes eigenes = werkstatt();
            while (auto stueck = naechstes())
                if (!liefere(stueck->first, arbeite(eigenes, stueck->second))) break;
        } catch (...) {
            const std::lock_guard schloss(sperre);
            if (!fehler) fehler = std::current_exception();
        }
        beende();
    };
    {
        std::vector<std::jthread> faeden;
        for (std::size_t i = 1; i < zahl; ++i) faeden.emplace_back(arbeiter);
        arbeiter();
    }
    if (fehler) std::rethrow_exception(fehler);
}

}  // namespace rippenscheibe
