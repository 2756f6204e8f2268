#include "ui/basics/Materialtabelle.h"

#include <QFile>

#include "ui/basics/Programm.h"

namespace rippenscheibe {

Gelesen<EigeneMaterialien> ladeEigeneMaterialien(const std::filesystem::path& datei, ErsteTabelle erste) {
    Gelesen<EigeneMaterialien> tabelle = liesEigeneMaterialien(datei);
    if (tabelle.lage != Dateilage::fehlt) return tabelle;
    verbindeRessourcen();
    QFile geliefert(QStringLiteral(":/Plattenwerte.dat"));
    if (!geliefert.open(QIODevice::ReadOnly)) return tabelle;
    const std::string bytes = geliefert.readAll().toStdString();
    if (erste == ErsteTabelle::ablegen) static_cast<void>(schreibeDauerhaft(datei, bytes));
    tabelle.wert = eigeneMaterialienAus(dekodiert(bytes));
    return tabelle;
}

}  // namespace rippenscheibe
