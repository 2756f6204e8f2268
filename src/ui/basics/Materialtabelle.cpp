#include "ui/basics/Materialtabelle.h"

#include <QFile>
#include <system_error>

#include "files/Dateischreiber.h"
#include "files/EigeneMaterialienDatei.h"
#include "files/Zeichensatz.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

EigeneMaterialien ladeEigeneMaterialien(const std::filesystem::path& datei, ErsteTabelle erste) {
    std::error_code fehler;
    if (std::filesystem::exists(datei, fehler)) return liesEigeneMaterialien(datei);
    verbindeRessourcen();
    QFile geliefert(QStringLiteral(":/Plattenwerte.dat"));
    if (!geliefert.open(QIODevice::ReadOnly)) return {};
    const std::string bytes = geliefert.readAll().toStdString();
    if (erste == ErsteTabelle::ablegen) static_cast<void>(schreibeDauerhaft(datei, bytes));
    return eigeneMaterialienAus(dekodiert(bytes));
}

}  // namespace rippenscheibe
