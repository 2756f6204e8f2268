#include "ui/basics/Zieldatei.h"

#include <QDir>
#include <QFileInfo>

#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

QString dialogordner(const Programm& programm) {
    const auto ordnerVon = [](const QString& datei) { return QFileInfo(datei).absolutePath(); };
    if (!programm.Dateiname.empty()) return ordnerVon(qtext(programm.Dateiname));
    if (!programm.DialogOrdner.isEmpty() || programm.DialogDateiname.isEmpty()) return programm.DialogOrdner;
    return ordnerVon(programm.DialogDateiname);
}

QString dateivorschlag(const Programm& programm) {
    if (!programm.Dateiname.empty()) return QFileInfo(qtext(programm.Dateiname)).completeBaseName();
    QString name = qtext(programm.w.Position);
    if (!programm.w.PositionsBemerkung.empty())
        name += QLatin1Char('-') + qtext(programm.w.PositionsBemerkung);
    for (const QChar trenner : {QLatin1Char('/'), QLatin1Char('\\'), QLatin1Char(':')})
        name.replace(trenner, QLatin1Char('-'));
    return name;
}

std::optional<QString> waehleZiel(Meldungen& meldungen, QWidget* fenster, const Dateiwahl& wahl) {
    for (;;) {
        const std::optional<QString> datei = meldungen.sichern(fenster, wahl);
        if (!datei || QFileInfo(*datei).absoluteDir().exists()) return datei;
        meldungen.kritisch(
            fenster, wahl.titel,
            QStringLiteral("Der Ordner\n%1\nist nicht vorhanden.").arg(QFileInfo(*datei).absolutePath()));
    }
}

}  // namespace rippenscheibe
