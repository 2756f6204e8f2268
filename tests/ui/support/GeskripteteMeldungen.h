#pragma once

#include <QFont>
#include <deque>
#include <functional>
#include <vector>

#include "ui/Meldungen.h"

namespace rippenscheibe {

// Answers boxes and file dialogs from queues and records what they said. A box without an answer in the
// queue gets the one of its Esc key; a file dialog without one is cancelled.
class GeskripteteMeldungen : public Meldungen {
  public:
    std::deque<Antwort> antworten;
    std::deque<QString> dateien;
    std::deque<QFont> schriften;
    bool druckAbgebrochen = false;                       // what the print dialog answers
    std::function<void(QPrintDialog&)> imDruckdialog{};  // what the user does in it

    std::vector<Meldung> gezeigt;
    std::vector<Dateiwahl> gewaehlt;
    QFont vorgelegt;  // what the font dialog began with
    int gepiept = 0;
    int druckerEingerichtet = 0;

    Antwort zeige(QWidget*, const Meldung& meldung) override {
        gezeigt.push_back(meldung);
        if (antworten.empty()) return escape(meldung.knoepfe);
        const Antwort antwort = antworten.front();
        antworten.pop_front();
        return antwort;
    }
    std::optional<QString> oeffnen(QWidget*, const Dateiwahl& wahl) override { return waehle(wahl); }
    std::optional<QString> sichern(QWidget*, const Dateiwahl& wahl) override { return waehle(wahl); }
    void richteDruckerEin(QWidget*, QPrinter&) override { ++druckerEingerichtet; }
    bool waehleDrucker(QPrintDialog& dialog) override {
        if (imDruckdialog) imDruckdialog(dialog);
        return !druckAbgebrochen;
    }
    std::optional<QFont> waehleSchrift(QWidget*, const QFont& schrift) override {
        vorgelegt = schrift;
        if (schriften.empty()) return std::nullopt;
        const QFont gewaehlteSchrift = schriften.front();
        schriften.pop_front();
        return gewaehlteSchrift;
    }
    void piep() override { ++gepiept; }

  private:
    static Antwort escape(Knoepfe knoepfe) {
        if (knoepfe == Knoepfe::ok) return Antwort::ok;
        return knoepfe == Knoepfe::jaNein ? Antwort::nein : Antwort::abbrechen;
    }
    std::optional<QString> waehle(const Dateiwahl& wahl) {
        gewaehlt.push_back(wahl);
        if (dateien.empty()) return std::nullopt;
        const QString datei = dateien.front();
        dateien.pop_front();
        return datei;
    }
};

}  // namespace rippenscheibe
