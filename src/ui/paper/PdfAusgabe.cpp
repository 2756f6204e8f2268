#include "ui/paper/PdfAusgabe.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QUuid>

#include "basis/Laengenmass.h"
#include "files/Positionsdatei.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Zieldatei.h"
#include "ui/paper/Druckpuffer.h"
#include "ui/paper/PdfLesezeichen.h"
#include "ui/paper/Seitenmaler.h"

namespace rippenscheibe {

namespace {

constexpr int aufloesung = 1200;  // dots per inch of the PDF's coordinates

}  // namespace

Ausdruck standardausdruck(const Wand& w, const Einstellungen& e, const QImage& logo) {
    Ausdruck a;
    a.optionen.Systemgrafik = e.SystembildStandard;
    a.optionen.dezimalzeichen = dezimalzeichen();
    a.auftrag.einstellungen = e;
    a.auftrag.zaehlung.SeitenzahlDrucken = e.SeitenzahlStandard;
    a.auftrag.zaehlung.Startseite = 1;
    a.auftrag.Projekt = w.Projekt;
    a.auftrag.Position = w.Position;
    a.logo = logo;
    return a;
}

QImage liesLogo(const std::filesystem::path& programmordner) {
    const Dateiinhalt inhalt = liesDatei(programmordner / logodatei);
    return QImage::fromData(QByteArray::fromStdString(inhalt.bytes));
}

QString dokumenttitel(const Wand& w) {
    const QString position = QStringLiteral("Position ") + qtext(w.Position);
    return w.Projekt.empty() ? position : qtext(w.Projekt) + QStringLiteral(" - ") + position;
}

Druckergebnis setze(Zeichenflaeche& flaeche, const Wand& w, const Ausdruck& ausdruck) {
    if (ausdruck.dokument != nullptr)
        return druckeSeiten(flaeche, ausdruck.dokument->zeilen, ausdruck.auftrag);
    return druckeSeiten(flaeche, bericht(w, ausdruck.form, ausdruck.optionen), ausdruck.auftrag);
}

std::optional<QString> aufGeraet(QPagedPaintDevice& geraet, const Wand& w, const Ausdruck& ausdruck,
                                 const std::function<void(Zeichenflaeche&)>& zeichne) {
    QPainter painter;
    if (!painter.begin(&geraet)) return std::nullopt;
    Seitenmaler maler(painter, geraet.logicalDpiY() / mmJeZoll,
                      {w, ausdruck.logo, ausdruck.optionen.dezimalzeichen,
                       ausdruck.dokument != nullptr ? ausdruck.dokument->male : nullptr},
                      [&] { geraet.newPage(); });
    zeichne(maler);
    if (!painter.end()) return std::nullopt;
    return maler.abgeschnitten();
}

QString abgeschnittenText(const QString& zeile) {
    return QStringLiteral(
               "Diese Zeile reicht über den rechten Rand des Papiers und ist abgeschnitten:\n%1\n"
               "Wahrscheinlich fehlt die Schrift Liberation Sans (Paket fonts-liberation).")
        .arg(zeile.trimmed());
}

Pdf pdf(const Wand& w, const Ausdruck& ausdruck) {
    Pdf datei;
    QBuffer puffer(&datei.bytes);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter schreiber(&puffer);
    schreiber.setPageSize(QPageSize(QPageSize::A4));
    schreiber.setPageMargins(QMarginsF());
    schreiber.setResolution(aufloesung);
    schreiber.setTitle(dokumenttitel(w));
    schreiber.setCreator(QStringLiteral("Rippenscheibe"));
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // Newer Qt gives each document a random number; the same position gives the same file.
    schreiber.setDocumentId(QUuid::createUuidV5(QUuid(), QByteArray::fromStdString(positionstext(w))));
#endif
    Druckpuffer seiten;
    datei.ergebnis = setze(seiten, w, ausdruck);
    datei.abgeschnitten =
        aufGeraet(schreiber, w, ausdruck, [&](Zeichenflaeche& f) { seiten.spiele(f); }).value_or(QString());
    puffer.close();
    Lesezeichensammler sammler;
    seiten.spiele(sammler);
    datei.bytes = mitLesezeichen(datei.bytes, sammler.gefundene);
    return datei;
}

std::optional<Druckergebnis> speicherePdf(Programm& programm, Meldungen& meldungen, QWidget* fenster,
                                          const Ausdruck& ausdruck) {
    const std::optional<QString> ziel =
        waehleZiel(meldungen, fenster,
                   {.titel = QStringLiteral("Als PDF speichern"),
                    .ordner = dialogordner(programm),
                    .vorschlag = dateivorschlag(programm) + (ausdruck.dokument != nullptr
                                                                 ? QStringLiteral(" Rechenweg.pdf")
                                                                 : QStringLiteral(".pdf")),
                    .filter = QStringLiteral("PDF-Datei (*.pdf)"),
                    .endung = QStringLiteral("pdf")});
    if (!ziel) return std::nullopt;
    const Pdf datei = pdf(programm.w, ausdruck);
    if (const auto fehler = schreibeDauerhaft(pfad(*ziel), datei.bytes.toStdString())) {
        meldungen.kritisch(fenster, QStringLiteral("Fehler"), qtext(fehler->text));
        return std::nullopt;
    }
    if (!datei.abgeschnitten.isEmpty())
        meldungen.hinweis(fenster, QStringLiteral("PDF"), abgeschnittenText(datei.abgeschnitten));
    return datei.ergebnis;
}

}  // namespace rippenscheibe
