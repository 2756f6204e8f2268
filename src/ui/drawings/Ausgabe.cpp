#include "ui/drawings/Ausgabe.h"

#include <QBuffer>
#include <QSvgGenerator>
#include <cmath>

#include "files/Dateischreiber.h"

namespace rippenscheibe {

namespace {

constexpr double mmJeZoll = 25.4;
constexpr double groessteKante = 20000.0;  // pixels

}  // namespace

QImage bild(Zeichnung was, const Wand& w, QSizeF mm, double aufloesung, const Zeichenstil& stil) {
    const double punkte = aufloesung / mmJeZoll;
    const QSizeF kanten = mm * punkte;
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
    zeichne(painter, QRectF(QPointF(0.0, 0.0), kanten), was, w, inPunkten);
    return bild;
}

QByteArray png(Zeichnung was, const Wand& w, QSizeF mm, double aufloesung, const Zeichenstil& stil) {
    const QImage image = bild(was, w, mm, aufloesung, stil);
    QByteArray bytes;
    if (image.isNull()) return bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    image.save(&puffer, "PNG");
    return bytes;
}

QPicture aufzeichnung(Zeichnung was, const Wand& w, QSizeF mm, const Zeichenstil& stil) {
    QPicture picture;
    QPainter painter(&picture);
    zeichne(painter, QRectF(QPointF(0.0, 0.0), mm * stil.mm), was, w, stil);
    painter.end();
    return picture;
}

QByteArray svg(Zeichnung was, const Wand& w, QSizeF mm, const Zeichenstil& stil) {
    constexpr double einheitenJeMm = 10.0;  // fine enough for the whole numbers of the view box
    QByteArray bytes;
    QBuffer puffer(&bytes);
    puffer.open(QIODevice::WriteOnly);
    QSvgGenerator erzeuger;
    erzeuger.setOutputDevice(&puffer);
    erzeuger.setTitle(QStringLiteral("Rippenscheibe"));
    erzeuger.setResolution(static_cast<int>(mmJeZoll * einheitenJeMm));
    erzeuger.setSize((mm * einheitenJeMm).toSize());
    erzeuger.setViewBox(QRectF(QPointF(0.0, 0.0), mm * einheitenJeMm));
    Zeichenstil inEinheiten = stil;
    inEinheiten.mm = einheitenJeMm;
    QPainter painter(&erzeuger);
    zeichne(painter, QRectF(QPointF(0.0, 0.0), mm * einheitenJeMm), was, w, inEinheiten);
    painter.end();
    return bytes;
}

bool speichereSvg(const std::filesystem::path& datei, Zeichnung was, const Wand& w, QSizeF mm,
                  const Zeichenstil& stil) {
    const QByteArray bytes = svg(was, w, mm, stil);
    return !bytes.isEmpty() && !schreibeDauerhaft(datei, bytes.toStdString());
}

}  // namespace rippenscheibe
