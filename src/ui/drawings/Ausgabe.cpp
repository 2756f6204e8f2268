#include "ui/drawings/Ausgabe.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <QUuid>
#include <cmath>

#include "basis/Laengenmass.h"

namespace rippenscheibe {

namespace {

constexpr double groessteKante = 20000.0;  // pixels

}  // namespace

Bildvorlage bildvorlage(Zeichnung was, const Wand& w) {
    return {[was, w](QPainter& painter, const QRectF& flaeche, const Zeichenstil& stil) {
                zeichne(painter, flaeche, was, w, stil);
            },
            groesse(was), titel(was)};
}

QImage bild(const Bildvorlage& vorlage, double aufloesung, const Zeichenstil& stil) {
    const double punkte = aufloesung / mmJeZoll;
    const QSizeF kanten = vorlage.mm * punkte;
    const auto brauchbar = [](double x) { return x >= 1.0 && x <= groessteKante; };
    if (!brauchbar(kanten.width()) || !brauchbar(kanten.height())) return {};
    QImage bild(kanten.toSize(), QImage::Format_RGB32);
    if (bild.isNull()) return {};
    bild.fill(stil.grund);
    bild.setDotsPerMeterX(static_cast<int>(std::lround(punkte * 1000.0)));
    bild.setDotsPerMeterY(static_cast<int>(std::lround(punkte * 1000.0)));
    Zeichenstil inPunkten = stil;
    inPunkten.mm = punkte;
    QPainter painter(&bild);
    vorlage.zeichne(painter, QRectF(QPointF(0.0, 0.0), kanten), inPunkten);
    return bild;
}

QByteArray png(const Bildvorlage& vorlage, double aufloesung, const Zeichenstil& stil) {
    const QImage image = bild(vorlage, aufloesung, stil);
    QByteArray bytes;
    if (image.isNull()) return bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    image.save(&puffer, "PNG");
    return bytes;
}

QByteArray svg(const Bildvorlage& vorlage, const Zeichenstil& stil) {
    constexpr double einheitenJeMm = 10.0;  // fine enough for the whole numbers of the view box
    const QRectF flaeche(QPointF(0.0, 0.0), vorlage.mm * einheitenJeMm);
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    QSvgGenerator erzeuger;
    erzeuger.setOutputDevice(&puffer);
    erzeuger.setTitle(vorlage.titel);
    erzeuger.setResolution(static_cast<int>(mmJeZoll * einheitenJeMm));
    erzeuger.setSize(flaeche.size().toSize());
    erzeuger.setViewBox(flaeche);
    Zeichenstil inEinheiten = stil;
    inEinheiten.mm = einheitenJeMm;
    QPainter painter(&erzeuger);
    vorlage.zeichne(painter, flaeche, inEinheiten);
    painter.end();
    return bytes;
}

void richteEin(QPdfWriter& pdf, const QPageSize& format, const QString& titel, const std::string& kennung) {
    pdf.setPageSize(format);
    pdf.setPageMargins(QMarginsF());
    pdf.setResolution(pdfAufloesung);
    pdf.setTitle(titel);
    pdf.setCreator(QStringLiteral("Rippenscheibe"));
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    pdf.setDocumentId(QUuid::createUuidV5(QUuid(), QByteArray::fromStdString(kennung)));
#else
    Q_UNUSED(kennung)
#endif
}

QByteArray pdf(const Bildvorlage& vorlage, const Zeichenstil& stil) {
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    QPdfWriter schreiber(&puffer);
    richteEin(schreiber, QPageSize(vorlage.mm, QPageSize::Millimeter, {}, QPageSize::ExactMatch),
              vorlage.titel, vorlage.titel.toStdString());
    Zeichenstil inPunkten = stil;
    inPunkten.mm = pdfAufloesung / mmJeZoll;
    QPainter painter(&schreiber);
    vorlage.zeichne(painter, QRectF(QPointF(0.0, 0.0), vorlage.mm * inPunkten.mm), inPunkten);
    painter.end();
    return bytes;
}

}  // namespace rippenscheibe
