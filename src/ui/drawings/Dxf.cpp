#include "ui/drawings/Dxf.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "files/Zeichensatz.h"
#include "ui/drawings/Skizzen.h"

namespace rippenscheibe {

namespace {

// A layer and its colour by index.
struct Dxfebene {
    const char* name;
    int farbe;
};

// In the order of `Ebene`.
constexpr std::array<Dxfebene, 6> ebenen{
    {{"Rippen", 32}, {"Beplankung1", 40}, {"Beplankung2", 140}, {"VM", 8}, {"Anker", 5}, {"Masse", 7}}};

// Collects the entities. Coordinates come as painters have them, y down.
class Dxfdatei {
  public:
    void setzeEbene(Ebene ebene) { ebene_ = ebenen[static_cast<std::size_t>(ebene)].name; }

    void linie(QPointF von, QPointF nach) {
        beginne("LINE");
        punkt(10, von);
        punkt(11, nach);
    }

    void linienzug(const QPolygonF& punkte, bool geschlossen) {
        if (punkte.size() < 2) return;
        beginne("POLYLINE");
        paar(66, 1);
        punkt(10, {0.0, 0.0}, Grenzen::bleiben);
        paar(70, geschlossen ? 1 : 0);
        for (const QPointF& p : punkte) {
            beginne("VERTEX");
            punkt(10, p);
        }
        beginne("SEQEND");
    }

    void kreis(QPointF mitte, double radius) {
        beginne("CIRCLE");
        punkt(10, mitte);
        paar(40, radius);
    }

    // From base point to base point: a reader with other letters makes them narrower or wider.
    void text(QPointF von, QPointF bis, double hoehe, const QString& text) {
        beginne("TEXT");
        punkt(10, von);
        paar(40, hoehe);
        paar(1, kodiert(text.toStdString()));
        paar(50, std::atan2(von.y() - bis.y(), bis.x() - von.x()) * 180.0 / 3.14159265358979);
        paar(72, 5);
        punkt(11, bis);
    }

    QByteArray bytes() const {
        Dxfdatei kopf;
        kopf.paar(0, "SECTION");
        kopf.paar(2, "HEADER");
        kopf.paar(9, "$ACADVER");
        kopf.paar(1, "AC1009");
        kopf.paar(9, "$DWGCODEPAGE");
        kopf.paar(3, "ansi_1252");
        kopf.paar(9, "$EXTMIN");
        kopf.punkt(10, linksOben_);
        kopf.paar(9, "$EXTMAX");
        kopf.punkt(10, rechtsUnten_);
        kopf.paar(0, "ENDSEC");
        kopf.tabellen();
        kopf.paar(0, "SECTION");
        kopf.paar(2, "ENTITIES");
        kopf.text_ += text_;
        kopf.paar(0, "ENDSEC");
        kopf.paar(0, "EOF");
        return QByteArray::fromStdString(kopf.text_);
    }

  private:
    enum class Grenzen { wachsen, bleiben };

    void paar(int gruppe, const std::string& wert) {
        text_ += std::to_string(gruppe) + "\r\n" + wert + "\r\n";
    }
    void paar(int gruppe, int wert) { paar(gruppe, std::to_string(wert)); }
    void paar(int gruppe, double wert) { paar(gruppe, QByteArray::number(wert, 'f', 4).toStdString()); }
    void punkt(int gruppe, QPointF p, Grenzen grenzen = Grenzen::wachsen) {
        const QPointF hoch(p.x(), -p.y());
        paar(gruppe, hoch.x());
        paar(gruppe + 10, hoch.y());
        paar(gruppe + 20, 0.0);
        if (grenzen == Grenzen::bleiben) return;
        linksOben_ = {std::min(linksOben_.x(), p.x()), std::max(linksOben_.y(), p.y())};
        rechtsUnten_ = {std::max(rechtsUnten_.x(), p.x()), std::min(rechtsUnten_.y(), p.y())};
    }
    void beginne(const char* was) {
        paar(0, was);
        paar(8, ebene_);
    }
    void tabellen() {
        paar(0, "SECTION");
        paar(2, "TABLES");
        paar(0, "TABLE");
        paar(2, "LTYPE");
        paar(70, 1);
        paar(0, "LTYPE");
        paar(2, "CONTINUOUS");
        paar(70, 0);
        paar(3, "Solid line");
        paar(72, 65);
        paar(73, 0);
        paar(40, 0.0);
        paar(0, "ENDTAB");
        paar(0, "TABLE");
        paar(2, "LAYER");
        paar(70, static_cast<int>(ebenen.size()));
        for (const Dxfebene& ebene : ebenen) {
            paar(0, "LAYER");
            paar(2, ebene.name);
            paar(70, 0);
            paar(62, ebene.farbe);
            paar(6, "CONTINUOUS");
        }
        paar(0, "ENDTAB");
        paar(0, "ENDSEC");
    }

    std::string text_;
    std::string ebene_ = ebenen.back().name;
    static constexpr double weit = std::numeric_limits<double>::max();
    QPointF linksOben_{weit, -weit};
    QPointF rechtsUnten_{-weit, weit};
};

// The strokes of a dashed line, from `von` to `nach`; lengths as those of the pen times `breite`.
template <class Strich>
void jederStrich(QLineF linie, const QList<qreal>& muster, double beginn, double breite,
                 const Strich& strich) {
    const double laenge = linie.length();
    const double an = muster[0] * breite;
    const double teilung = an + muster[1] * breite;
    if (!(teilung > 0.0) || laenge / teilung > 1e5) return strich(linie.p1(), linie.p2());
    const double erster = -std::fmod(beginn * breite, teilung);
    for (int i = 0; erster + i * teilung < laenge; ++i) {
        const double s = erster + i * teilung;
        const double ab = std::max(0.0, s);
        const double bis = std::min(laenge, s + an);
        if (bis > ab) strich(linie.pointAt(ab / laenge), linie.pointAt(bis / laenge));
    }
}

// Writes what a painter draws; surfaces become their outlines.
class Dxfmaler : public QPaintEngine {
  public:
    explicit Dxfmaler(Dxfdatei& datei) : QPaintEngine(AllFeatures), datei_(datei) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

    void drawLines(const QLineF* linien, int anzahl) override {
        const QPen pen = painter()->pen();
        const QTransform t = painter()->combinedTransform();
        const double breite = pen.widthF() * massstab();
        const auto schreibe = [this](QPointF von, QPointF nach) { datei_.linie(von, nach); };
        for (int i = 0; i < anzahl; ++i) {
            const QLineF linie = t.map(linien[i]);
            if (pen.style() == Qt::CustomDashLine)
                jederStrich(linie, pen.dashPattern(), pen.dashOffset(), breite, schreibe);
            else
                schreibe(linie.p1(), linie.p2());
        }
    }
    void drawPolygon(const QPointF* punkte, int anzahl, PolygonDrawMode modus) override {
        const QPolygonF v(QList<QPointF>(punkte, punkte + anzahl));
        datei_.linienzug(painter()->combinedTransform().map(v), modus != PolylineMode);
    }
    void drawPath(const QPainterPath& pfad) override {
        for (QPolygonF v : pfad.toSubpathPolygons(painter()->combinedTransform())) {
            const bool geschlossen = v.isClosed();
            if (geschlossen) v.removeLast();
            datei_.linienzug(v, geschlossen);
        }
    }
    void drawEllipse(const QRectF& r) override {
        datei_.kreis(painter()->combinedTransform().map(r.center()), r.width() / 2.0 * massstab());
    }
    void drawTextItem(const QPointF& p, const QTextItem& text) override {
        const QTransform t = painter()->combinedTransform();
        datei_.text(t.map(p), t.map(p + QPointF(text.width(), 0.0)),
                    QFontMetricsF(text.font()).capHeight() * massstab(), text.text());
    }

  private:
    double massstab() const { return std::sqrt(std::fabs(painter()->combinedTransform().determinant())); }
    Dxfdatei& datei_;
};

class Dxfgeraet : public QPaintDevice, public Zeichenhoerer {
  public:
    Dxfdatei datei;
    QPaintEngine* paintEngine() const override { return &maler_; }
    void ebene(Ebene ebene) override { datei.setzeEbene(ebene); }

  protected:
    int metric(PaintDeviceMetric was) const override {
        if (was == PdmWidth || was == PdmHeight) return 1 << 20;
        if (was == PdmDpiX || was == PdmDpiY || was == PdmPhysicalDpiX || was == PdmPhysicalDpiY) return 96;
        if (was == PdmDevicePixelRatioScaled) return static_cast<int>(devicePixelRatioFScale());
        return 1;
    }

  private:
    mutable Dxfmaler maler_{datei};
};

constexpr double verkleinerungAnsicht = 50.0;
constexpr double verkleinerungSchnitt = 10.0;
constexpr double abstandDesSchnitts = 1200.0;  // mm below the wall

Zeichenstil stil(double verkleinerung, char dezimalzeichen) {
    Zeichenstil s = Zeichenstil::papier(verkleinerung);
    s.dezimalzeichen = dezimalzeichen;
    s.flaechen = false;
    return s;
}

}  // namespace

QByteArray dxf(const Wand& w, char dezimalzeichen) {
    if (!pruefeGeometrie(w).geometrie) return {};
    Dxfgeraet geraet;
    QPainter painter(&geraet);
    const QRectF blatt(0.0, 0.0, 1.0, 1.0);  // both drawings stand where they are told
    {
        Zeichner z(painter, blatt, stil(verkleinerungAnsicht, dezimalzeichen), &geraet);
        zeichneBauansicht(z, w, 1.0 / verkleinerungAnsicht);
    }
    {
        Zeichner z(painter, blatt.translated(0.0, abstandDesSchnitts),
                   stil(verkleinerungSchnitt, dezimalzeichen), &geraet);
        zeichneBauschnitt(z, w, 1.0 / verkleinerungSchnitt);
    }
    painter.end();
    return geraet.datei.bytes();
}

}  // namespace rippenscheibe
