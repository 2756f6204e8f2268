#include "ui/drawings/Bildmenue.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QMenu>

#include "files/Dateischreiber.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

constexpr double aufloesung = 300;  // dots per inch

// "Position Ansicht": the open file's name, or that of the position, and what is shown.
QString vorschlag(const Programm& programm, const QString& titel) {
    const QString position = programm.Dateiname.empty()
                                 ? qtext(programm.w.Position)
                                 : QFileInfo(qtext(programm.Dateiname)).completeBaseName();
    return QStringList{position.trimmed(), titel}.join(QLatin1Char(' ')).trimmed();
}

void speichere(QWidget* fenster, const Programm& programm, Meldungen& meldungen, const Bilddatei& datei,
               const QString& titel) {
    const std::optional<QString> ziel =
        meldungen.sichern(fenster, {.titel = QStringLiteral("Als %1 speichern").arg(datei.name),
                                    .ordner = programm.DialogOrdner,
                                    .vorschlag = vorschlag(programm, titel) + QLatin1Char('.') + datei.endung,
                                    .filter = datei.filter,
                                    .endung = datei.endung});
    if (!ziel) return;
    if (const auto fehler = schreibeDauerhaft(pfad(*ziel), datei.bytes().toStdString()))
        meldungen.kritisch(fenster, QStringLiteral("Fehler"), qtext(fehler->text));
}

}  // namespace

void fuegeBildaktionenAn(QMenu& menue, QWidget* fenster, Programm& programm, Meldungen& meldungen,
                         const Bildvorlage& vorlage, const std::vector<Bilddatei>& weitere) {
    Zeichenstil stil = Zeichenstil::papier();
    stil.dezimalzeichen = dezimalzeichen();
    QAction* kopieren = menue.addAction(QStringLiteral("Bild &kopieren"));
    QObject::connect(kopieren, &QAction::triggered, fenster, [vorlage, stil] {
        QApplication::clipboard()->setImage(bild(vorlage, aufloesung, stil));
    });
    menue.addSeparator();
    std::vector<Bilddatei> dateien{{QStringLiteral("&SVG"), QStringLiteral("SVG-Zeichnung (*.svg)"),
                                    QStringLiteral("svg"), [=] { return svg(vorlage, stil); }},
                                   {QStringLiteral("&PNG"), QStringLiteral("PNG-Bild (*.png)"),
                                    QStringLiteral("png"), [=] { return png(vorlage, aufloesung, stil); }},
                                   {QStringLiteral("P&DF"), QStringLiteral("PDF-Datei (*.pdf)"),
                                    QStringLiteral("pdf"), [=] { return pdf(vorlage, stil); }}};
    dateien.insert(dateien.end(), weitere.begin(), weitere.end());
    for (Bilddatei& datei : dateien) {
        QAction* aktion = menue.addAction(QStringLiteral("Als %1 speichern ...").arg(datei.name));
        datei.name.remove(QLatin1Char('&'));
        QObject::connect(aktion, &QAction::triggered, fenster,
                         [=, &programm, &meldungen, titel = vorlage.titel] {
                             speichere(fenster, programm, meldungen, datei, titel);
                         });
    }
}

}  // namespace rippenscheibe
