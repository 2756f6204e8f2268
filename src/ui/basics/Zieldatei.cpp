#include "ui/basics/Zieldatei.h"

#include <QDir>
#include <QFileInfo>

#include "files/Positionsdatei.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

// The file dialog asks about the name as it was chosen, and it appends the ending only to a name without a
// point: "1.2" is written to "1.2.rsw", which it has not asked about.
bool darfUeberschreiben(Meldungen& meldungen, QWidget* fenster, const QString& gewaehlt) {
    const QString ziel = qtext(mitEndung(utf8(gewaehlt)));
    if (ziel == gewaehlt || !QFileInfo::exists(ziel)) return true;
    const QString frage =
        QStringLiteral("Die Datei\n%1\nist bereits vorhanden. Soll sie überschrieben werden?");
    return meldungen.zeige(fenster, {Symbol::frage, QStringLiteral("Datei speichern"), frage.arg(ziel),
                                     Knoepfe::jaNein}) == Antwort::ja;
}

}  // namespace

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
    return alsDateiname(name);
}

QString alsDateiname(QString text) {
    for (const QChar trenner : {QLatin1Char('/'), QLatin1Char('\\'), QLatin1Char(':')})
        text.replace(trenner, QLatin1Char('-'));
    return text;
}

std::optional<QString> waehleZiel(Meldungen& meldungen, QWidget* fenster, const Dateiwahl& wahl) {
    for (;;) {
        std::optional<QString> datei = meldungen.sichern(fenster, wahl);
        if (!datei || QFileInfo(*datei).absoluteDir().exists()) return datei;
        meldungen.kritisch(
            fenster, wahl.titel,
            QStringLiteral("Der Ordner\n%1\nist nicht vorhanden.").arg(QFileInfo(*datei).absolutePath()));
    }
}

Dateiwahl positionswahl(const QString& titel, const QString& ordner, const QString& vorschlag) {
    return {titel, ordner, vorschlag, QStringLiteral("Datei Rippenscheibe 2.0 (*.rsw);;alle Dateien (*.*)"),
            QStringLiteral("rsw")};
}

std::optional<QString> waehlePositionsziel(Meldungen& meldungen, QWidget* fenster, const Dateiwahl& wahl) {
    std::optional<QString> datei;
    do {
        datei = waehleZiel(meldungen, fenster, wahl);
    } while (datei && !darfUeberschreiben(meldungen, fenster, *datei));
    return datei;
}

}  // namespace rippenscheibe
