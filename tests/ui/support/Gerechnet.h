#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "basis/Dateischreiber.h"
#include "model/Positionsdatei.h"
#include "run/Berechnungslauf.h"
#include "support/Bedienung.h"
#include "support/GeskripteteMeldungen.h"
#include "ui/Programm.h"

namespace rippenscheibe {

inline std::filesystem::path beispiel(const std::string& name) {
    return std::filesystem::path(RIPPENSCHEIBE_BEISPIELE) / (name + ".rsw");
}

// A program with a folder of its own and an example that was run.
class Gerechnet : public testing::Test {
  protected:
    Gerechnet() { rechne("windsog"); }

    void rechne(const std::string& name) {
        EXPECT_FALSE(liesPosition(beispiel(name), programm.w).fehler);
        programm.felder = grundmasse(programm.w);
        programm.zuweisen();
        EXPECT_EQ(starte(programm.w), Laufergebnis::gerechnet);
    }
    QString datei(const char* name) const { return ordner.filePath(QLatin1String(name)); }
    QByteArray inhalt(const QString& name) const {
        return QByteArray::fromStdString(liesDatei(pfad(name)).bytes);
    }

    QTemporaryDir ordner;
    Programm programm{pfad(ordner.path())};
    GeskripteteMeldungen meldungen;
};

}  // namespace rippenscheibe
