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
