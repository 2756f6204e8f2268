#include "ui/paper/PdfAusgabe.h"

#include <QFileInfo>
#include <QPagedPaintDevice>

#include "basis/Laengenmass.h"
#include "files/Positionsdatei.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"
#include "ui/basics/Zieldatei.h"
#include "ui/drawings/Ausgabe.h"
#include "ui/paper/Druckpuffer.h"
#include "ui/paper/Seitenmaler.h"

namespace rippenscheibe {

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

Pdfdokument::Pdfdokument(const QString& titel, const std::string& kennung) {
    puffer_.open(QIODevice::WriteOnly);
    richteEin(schreiber_, QPageSize(QPageSize::A4), titel, kennung);
}

Druckergebnis Pdfdokument::haengeAn(const Wand& w, const Ausdruck& ausdruck, const std::string& name) {
    Druckpuffer seiten;
    const Druckergebnis ergebnis = setze(seiten, w, ausdruck);
    if (painter_.isActive()) {
        schreiber_.newPage();
    } else {
        painter_.begin(&schreiber_);
    }
    Seitenmaler maler(painter_, schreiber_.logicalDpiY() / mmJeZoll,
                      {w, ausdruck.logo, ausdruck.optionen.dezimalzeichen,
                       ausdruck.dokument != nullptr ? ausdruck.dokument->male : nullptr},
                      [this] { schreiber_.newPage(); });
    seiten.spiele(maler);
    if (datei_.abgeschnitten.isEmpty()) datei_.abgeschnitten = maler.abgeschnitten();

    Lesezeichensammler sammler;
    seiten.spiele(sammler);
    const int tiefer = name.empty() ? 0 : 1;
    if (!name.empty()) lesezeichen_.push_back({1, seiten_, 0.0, name});
    for (Lesezeichen zeichen : sammler.gefundene) {
        zeichen.rang += tiefer;
        zeichen.seite += seiten_;
        lesezeichen_.push_back(zeichen);
    }
    seiten_ += ergebnis.seiten;
    datei_.ergebnis = {seiten_, ergebnis.LetzteSeite};
    return ergebnis;
}

Pdf Pdfdokument::schliesse() {
    if (painter_.isActive()) painter_.end();
    puffer_.close();
    datei_.bytes = mitLesezeichen(datei_.bytes, lesezeichen_);
    return datei_;
}

Pdf pdf(const Wand& w, const Ausdruck& ausdruck) {
    Pdfdokument dokument(dokumenttitel(w), positionstext(w));
    dokument.haengeAn(w, ausdruck);
    return dokument.schliesse();
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
