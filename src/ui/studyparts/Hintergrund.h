#pragma once

#include <QObject>
#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "study/Faeden.h"

namespace rippenscheibe {

// A long computation beside a window. It runs in threads that know nothing of windows; the window looks for
// progress and result by a timer. Stopping, destroying included, waits for the threads: nothing is left
// running.
class Hintergrund : public QObject {
    Q_OBJECT

  public:
    explicit Hintergrund(QObject* parent = nullptr);
    ~Hintergrund() override;

    // Runs `arbeit(const Ausfuehrung&)` on all cores, then `fertig` in the thread of the window with what it
    // yielded. What ran before is stopped and forgotten.
    template <class Arbeit, class Fertig>
    void starte(Arbeit arbeit, Fertig fertig) {
        using Ergebnis = decltype(arbeit(std::declval<const Ausfuehrung&>()));
        const auto ergebnis = std::make_shared<std::optional<Ergebnis>>();
        beginne([=](const Ausfuehrung& ausfuehrung) { ergebnis->emplace(arbeit(ausfuehrung)); },
                [=] { fertig(std::move(**ergebnis)); });
    }
    // Ends it early: `fertig` comes with what there is.
    void halte();
    // Ends it, and nothing comes.
    void verwirf();
    bool laeuft() const { return zustand_ != nullptr; }

  Q_SIGNALS:
    void begonnen();
    void fortschritt(const rippenscheibe::Fortschritt& stand);
    // Behind `fertig`; with a sentence where the work ended by a fault and `fertig` did not come.
    void beendet(const QString& fehler);

  private:
    // What the threads share with the window.
    struct Zustand {
        std::mutex sperre;
        Fortschritt fortschritt;
        bool fehlgeschlagen = false;
        std::atomic<bool> beendet = false;
    };

    void beginne(std::function<void(const Ausfuehrung&)> arbeit, std::function<void()> fertig);
    void sieheNach();

    std::shared_ptr<Zustand> zustand_;
    std::function<void()> fertig_;
    std::jthread faden_;
    QTimer takt_;
};

}  // namespace rippenscheibe
