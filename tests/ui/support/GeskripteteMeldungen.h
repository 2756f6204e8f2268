#pragma once

#include <gtest/gtest.h>

#include <QFont>
#include <deque>
#include <functional>
#include <vector>

#include "ui/basics/Meldungen.h"

namespace rippenscheibe {

inline void erwarte(const Meldung& meldung, Symbol symbol, const char* titel, const char* text,
                    Knoepfe knoepfe = Knoepfe::ok) {
    EXPECT_EQ(meldung.symbol, symbol);
    EXPECT_EQ(meldung.titel, QString::fromUtf8(titel));
    EXPECT_EQ(meldung.text, QString::fromUtf8(text));
    EXPECT_EQ(meldung.knoepfe, knoepfe);
}

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
        return naechste(antworten).value_or(escape(meldung.knoepfe));
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
        return naechste(schriften);
    }
    void piep() override { ++gepiept; }

  private:
    static Antwort escape(Knoepfe knoepfe) {
        if (knoepfe == Knoepfe::ok) return Antwort::ok;
        return knoepfe == Knoepfe::jaNein ? Antwort::nein : Antwort::abbrechen;
    }
    std::optional<QString> waehle(const Dateiwahl& wahl) {
        gewaehlt.push_back(wahl);
        return naechste(dateien);
    }
    template <class T>
    static std::optional<T> naechste(std::deque<T>& schlange) {
        if (schlange.empty()) return std::nullopt;
        const T vorne = schlange.front();
        schlange.pop_front();
        return vorne;
    }
};

}  // namespace rippenscheibe
