#include "ui/folder/Projektleser.h"

#include <QFileSystemWatcher>
#include <QSet>
#include <QTimer>
#include <mutex>
#include <optional>
#include <utility>

#include "files/Pfad.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

struct Projektleser::Eingang {
    std::mutex sperre;
    std::optional<std::vector<Projektdatei>> dateien;
    std::vector<Projektposition> positionen;
    std::string fehler;
};

Projektleser::Projektleser(QObject* parent)
    : QObject(parent), waechter_(new QFileSystemWatcher(this)), ruhe_(new QTimer(this)) {
    constexpr int ruhezeit = 200;  // ms
    ruhe_->setSingleShot(true);
    ruhe_->setInterval(ruhezeit);
    connect(ruhe_, &QTimer::timeout, this, &Projektleser::liesNeu);
    for (const auto signal : {&QFileSystemWatcher::directoryChanged, &QFileSystemWatcher::fileChanged})
        connect(waechter_, signal, ruhe_, qOverload<>(&QTimer::start));
    connect(&hintergrund_, &Hintergrund::fortschritt, this, &Projektleser::nimmEntgegen);
    connect(&hintergrund_, &Hintergrund::beendet, this, &Projektleser::schliesseAb);
}

void Projektleser::beginne(const std::filesystem::path& ordner, const EigeneMaterialien& materialien) {
    hintergrund_.verwirf();
    ordner_ = ordner;
    materialien_ = materialien;
    dateien_.clear();
    bekannte_.clear();
    const QStringList beobachtet = waechter_->files() + waechter_->directories();
    if (!beobachtet.isEmpty()) waechter_->removePaths(beobachtet);
    liesNeu();
}

void Projektleser::liesNeu() {
    if (hintergrund_.laeuft()) {
        nochmal_ = true;
        return;
    }
    eingang_ = std::make_shared<Eingang>();
    hintergrund_.starte(
        [eingang = eingang_, ordner = ordner_, bekannte = bekannte_,
         materialien = materialien_](const Ausfuehrung& ausfuehrung) {
            lies(*eingang, ordner, bekannte, materialien, ausfuehrung);
            return true;
        },
        [](bool) {});
}

void Projektleser::lies(Eingang& eingang, const std::filesystem::path& ordner,
                        const std::map<std::filesystem::path, Projektdatei>& bekannte,
                        const EigeneMaterialien& materialien, const Ausfuehrung& ausfuehrung) {
    auto gefunden = projektdateien(ordner);
    std::vector<Projektdatei> neue;
    {
        const std::lock_guard schloss(eingang.sperre);
        if (auto* fehler = std::get_if<std::string>(&gefunden)) eingang.fehler = std::move(*fehler);
        auto& dateien = eingang.dateien.emplace();
        if (auto* alle = std::get_if<0>(&gefunden)) dateien = std::move(*alle);
        for (const Projektdatei& datei : dateien) {
            const auto schon = bekannte.find(datei.position.datei);
            if (schon == bekannte.end() || !(schon->second == datei)) neue.push_back(datei);
        }
    }
    liesProjekt(neue, materialien, ausfuehrung, [&](Projektposition position) {
        const std::lock_guard schloss(eingang.sperre);
        eingang.positionen.push_back(std::move(position));
        return !ausfuehrung.halt.stop_requested();
    });
}

void Projektleser::nimmEntgegen() {
    std::optional<std::vector<Projektdatei>> dateien;
    std::vector<Projektposition> positionen;
    std::string fehler;
    {
        const std::lock_guard schloss(eingang_->sperre);
        dateien.swap(eingang_->dateien);
        positionen.swap(eingang_->positionen);
        fehler = eingang_->fehler;
    }
    if (dateien) {
        dateien_ = std::move(*dateien);
        Q_EMIT gefunden(dateien_, qtext(fehler));
    }
    for (const Projektposition& position : positionen) {
        bekannte_.insert_or_assign(position.datei.position.datei, position.datei);
        Q_EMIT gelesen(position);
    }
    Q_EMIT vorangekommen({});
}

void Projektleser::schliesseAb(const QString& fehler) {
    nimmEntgegen();
    if (!fehler.isEmpty()) Q_EMIT vorangekommen(fehler);
    beobachte();
    if (std::exchange(nochmal_, false)) ruhe_->start();
}

// A folder tells of new and removed files, a file of those written where they stand.
void Projektleser::beobachte() {
    QStringList dateien{qtext(pfadtext(ordner_))};
    for (const Projektdatei& datei : dateien_) {
        dateien << qtext(pfadtext(datei.position.datei));
        if (datei.lastfaelle.groesse > 0) dateien << qtext(pfadtext(datei.lastfaelle.datei));
    }
    const QStringList schon = waechter_->files() + waechter_->directories();
    const QSet<QString> bekannt(schon.begin(), schon.end());
    dateien.removeIf([&](const QString& datei) { return bekannt.contains(datei); });
    if (!dateien.isEmpty()) waechter_->addPaths(dateien);
}

}  // namespace rippenscheibe
