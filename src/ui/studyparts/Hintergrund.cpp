#include "ui/studyparts/Hintergrund.h"

#include <exception>

namespace rippenscheibe {

Hintergrund::Hintergrund(QObject* parent) : QObject(parent) {
    constexpr int takt = 30;  // ms
    takt_.setInterval(takt);
    connect(&takt_, &QTimer::timeout, this, &Hintergrund::sieheNach);
}

Hintergrund::~Hintergrund() { verwirf(); }

void Hintergrund::beginne(std::function<void(const Ausfuehrung&)> arbeit, std::function<void()> fertig) {
    verwirf();
    zustand_ = std::make_shared<Zustand>();
    fertig_ = std::move(fertig);
    faden_ = std::jthread([zustand = zustand_, arbeit = std::move(arbeit)](const std::stop_token& halt) {
        const auto melde = [&zustand](const Fortschritt& stand) {
            const std::lock_guard schloss(zustand->sperre);
            zustand->fortschritt = stand;
        };
        try {
            arbeit({kernzahl(), halt, melde});
        } catch (const std::exception&) {
            const std::lock_guard schloss(zustand->sperre);
            zustand->fehlgeschlagen = true;
        }
        zustand->beendet = true;
    });
    takt_.start();
    Q_EMIT begonnen();
}

void Hintergrund::halte() { faden_.request_stop(); }

void Hintergrund::verwirf() {
    takt_.stop();
    faden_.request_stop();
    if (faden_.joinable()) faden_.join();
    zustand_.reset();
    fertig_ = nullptr;
}

void Hintergrund::sieheNach() {
    const bool amEnde = zustand_->beendet;
    Fortschritt stand;
    bool fehlgeschlagen = false;
    {
        const std::lock_guard schloss(zustand_->sperre);
        stand = zustand_->fortschritt;
        fehlgeschlagen = zustand_->fehlgeschlagen;
    }
    Q_EMIT fortschritt(stand);
    if (!amEnde) return;
    const auto fertig = std::move(fertig_);
    verwirf();
    if (!fehlgeschlagen) fertig();
    Q_EMIT beendet(fehlgeschlagen ? QStringLiteral("Der Speicher reicht für diese Rechnung nicht.")
                                  : QString());
}

}  // namespace rippenscheibe
