#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "files/Dateischreiber.h"
#include "files/Positionsdatei.h"
#include "run/Berechnungslauf.h"
#include "support/Bedienung.h"
#include "support/GeskripteteMeldungen.h"
#include "ui/basics/Programm.h"
#include "ui/main/Fensterfabrik.h"
#include "ui/session/Sicherungskopie.h"

namespace rippenscheibe {

inline std::filesystem::path beispiel(const std::string& name) {
    return std::filesystem::path(RIPPENSCHEIBE_BEISPIELE) / (name + ".rsw");
}

// A program with a folder of its own.
class Programmprobe : public testing::Test {
  protected:
    Programmprobe() {
        programm.fenster = std::make_unique<Fensterfabrik>();
        programm.zuweisen();
    }

    // Every window up to `letztes` once, and those that only others open.
    void jedesNebenfenster(QWidget& hauptfenster, Fensterart letztes,
                           const std::function<void(QWidget&)>& pruefung) {
        const auto zeige = [&](Fensterart art, const std::function<void(QWidget&)>& bedienen) {
            return mitFenster([&] { oeffne(art, programm, meldungen, &hauptfenster); }, bedienen);
        };
        const std::pair<Fensterart, const char*> weitere[] = {{Fensterart::verbindungsmittel, "ComInfo2"},
                                                              {Fensterart::belastung, "Command2"},
                                                              {Fensterart::projektdaten, "Command1"},
                                                              {Fensterart::bemerkungen, "Command3"},
                                                              {Fensterart::bemerkungen, "Command4"}};
        for (const auto& [art, knopf] : weitere)
            zeige(art, [&, knopf = knopf](QWidget& fenster) {
                EXPECT_TRUE(mitFenster([&] { klicke(fenster, knopf); }, pruefung)) << knopf;
            });
        for (int art = 0; art <= static_cast<int>(letztes); ++art)
            EXPECT_TRUE(zeige(static_cast<Fensterart>(art), pruefung)) << art;
    }

    QString datei(const char* name) const { return ordner.filePath(QLatin1String(name)); }
    QByteArray inhalt(const QString& name) const {
        return QByteArray::fromStdString(liesDatei(pfad(name)).bytes);
    }
    // A saved position of this length, m.
    QString gespeicherte(const char* name, double laenge) const {
        Wand andere;
        andere.Wandlaenge = laenge;
        EXPECT_FALSE(schreibePosition(pfad(datei(name)), andere));
        return datei(name);
    }
    // What a crashed program of the same folder leaves behind: a wall of 9 m.
    void stuerzeAb(const std::string& dateiname = {}) const {
        Programm abgestuerzt(pfad(ordner.path()));
        abgestuerzt.Dateiname = dateiname;
        abgestuerzt.felder.Wandlaenge = 9;
        abgestuerzt.zuweisen();
        abgestuerzt.setzeGesichert(false);
        Sicherungskopie(abgestuerzt).sichere();
    }

    QTemporaryDir ordner;
    Programm programm{pfad(ordner.path())};
    GeskripteteMeldungen meldungen;
};

// An example that was run.
class Gerechnet : public Programmprobe {
  protected:
    Gerechnet() { rechne("windsog"); }

    void rechne(const std::string& name) {
        EXPECT_FALSE(liesPosition(beispiel(name), programm.w).fehler);
        programm.felder = grundmasse(programm.w);
        programm.zuweisen();
        EXPECT_EQ(starte(programm.w), Laufergebnis::gerechnet);
    }
};

}  // namespace rippenscheibe
