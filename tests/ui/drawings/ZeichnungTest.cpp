#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <limits>
#include <map>
#include <vector>

#include "files/EigeneMaterialienDatei.h"
#include "files/Positionsdatei.h"
#include "run/Zuweisen.h"
#include "ui/drawings/Ausgabe.h"
#include "ui/drawings/Dxf.h"
#include "ui/drawings/Kurvenansicht.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {
namespace {

std::vector<Zeichnung> jede() {
    std::vector<Zeichnung> alle;
    for (int i = 0; i <= static_cast<int>(Zeichnung::startbild); ++i)
        alle.push_back(static_cast<Zeichnung>(i));
    return alle;
}
const std::vector<Zeichnung> alleZeichnungen = jede();

// What a painter was told, in device units: filled rectangles, texts with their boxes, dashed lines.
struct Mitschrift {
    struct Text {
        QString text;
        QRectF kasten;
        double punkt;  // size in points where the unit is a millimetre
    };
    struct Flaeche {
        QRectF r;
        QColor farbe;
    };
    struct Strichlinie {
        QColor farbe;
        double teilung;  // stroke and gap
    };
    std::vector<Text> texte;
    std::vector<Flaeche> flaechen;
    std::vector<Strichlinie> strichlinien;

    auto zahlDerTexte(const QString& text) const {
        return std::count_if(texte.begin(), texte.end(), [&](const Text& t) { return t.text == text; });
    }
    const Text* beginntMit(const QString& anfang) const {
        const auto t = std::find_if(texte.begin(), texte.end(),
                                    [&](const Text& x) { return x.text.startsWith(anfang); });
        return t == texte.end() ? nullptr : &*t;
    }
    std::vector<QRectF> mitFarbe(const QColor& farbe) const {
        std::vector<QRectF> r;
        for (const Flaeche& f : flaechen)
            if (f.farbe.rgb() == farbe.rgb()) r.push_back(f.r);
        return r;
    }
};

class Mitschreiber : public QPaintEngine {
  public:
    explicit Mitschreiber(Mitschrift& mitschrift) : QPaintEngine(AllFeatures), mitschrift_(mitschrift) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath& pfad) override { flaeche(pfad.boundingRect()); }
    void drawPolygon(const QPointF* punkte, int anzahl, PolygonDrawMode modus) override {
        if (modus != PolylineMode)
            flaeche(QPolygonF(QVector<QPointF>(punkte, punkte + anzahl)).boundingRect());
    }
    void drawRects(const QRectF* r, int anzahl) override {
        std::for_each(r, r + anzahl, [this](const QRectF& x) { flaeche(x); });
    }
    void drawLines(const QLineF*, int) override {
        const QPen pen = painter()->pen();
        if (pen.style() != Qt::CustomDashLine) return;
        const auto muster = pen.dashPattern();
        mitschrift_.strichlinien.push_back(
            {pen.color(), (muster[0] + muster[1]) * pen.widthF() * massstab()});
    }
    void drawTextItem(const QPointF& p, const QTextItem& text) override {
        const QRectF kasten(p.x(), p.y() - 0.7 * text.font().pixelSize(), text.width(),
                            0.7 * text.font().pixelSize());
        mitschrift_.texte.push_back({text.text(), painter()->combinedTransform().mapRect(kasten),
                                     text.font().pixelSize() * massstab() * 72.0 / 25.4});
    }

  private:
    double massstab() const { return std::sqrt(std::fabs(painter()->combinedTransform().determinant())); }
    void flaeche(const QRectF& r) {
        const QBrush brush = painter()->brush();
        if (brush.style() == Qt::SolidPattern)
            mitschrift_.flaechen.push_back({painter()->combinedTransform().mapRect(r), brush.color()});
    }
    Mitschrift& mitschrift_;
};

class Mitschreibgeraet : public QPaintDevice {
  public:
    Mitschrift mitschrift;
    QPaintEngine* paintEngine() const override { return &schreiber_; }

  protected:
    int metric(PaintDeviceMetric was) const override {
        if (was == PdmWidth || was == PdmHeight) return 10000;
        if (was == PdmDpiX || was == PdmDpiY || was == PdmPhysicalDpiX || was == PdmPhysicalDpiY) return 96;
        return was == PdmDevicePixelRatioScaled ? static_cast<int>(devicePixelRatioFScale()) : 1;
    }

  private:
    mutable Mitschreiber schreiber_{mitschrift};
};

Mitschrift schreibeMit(Zeichnung was, const Wand& w, QSizeF groesse, const Zeichenstil& stil) {
    Mitschreibgeraet geraet;
    QPainter painter(&geraet);
    zeichne(painter, QRectF(QPointF(0.0, 0.0), groesse), was, w, stil);
    return geraet.mitschrift;
}
// On paper, in millimetres and in the size of the report.
Mitschrift aufPapier(Zeichnung was, const Wand& w) {
    return schreibeMit(was, w, groesse(was), Zeichenstil::papier());
}

Wand wand(const std::function<void(Wand&)>& aendere = {}) {
    Wand w;
    setzeVorgaben(w);
    if (aendere) aendere(w);
    return w;
}

struct Fall {
    const char* name;
    std::function<void(Wand&)> aendere;
};

TEST(Zeichnung, TheElevationShowsEveryRibAndTheLastBay) {
    struct Rippenfall {
        double l, ar;
        std::size_t rippen;
        QString letztesFeld;  // "" when the spacing divides the length
    };
    // 5,0 / 0,625 = 8 bays; 2,6 / 0,625 = 4,16: four bays and 0,100; 30,1 / 0,625 = 48,16.
    for (const Rippenfall& f : {Rippenfall{5.0, 625, 9, {}},
                                {2.6, 625, 6, QStringLiteral("0,100")},
                                {0.5, 500, 2, {}},
                                {30.1, 625, 50, QStringLiteral("0,100")},
                                {0.9, 1250, 2, QStringLiteral("0,900")}}) {
        const Wand w = wand([&](Wand& x) { x.Wandlaenge = f.l, x.Rippenabstand = f.ar; });
        const Mitschrift m = aufPapier(Zeichnung::ansicht, w);
        // Beside the ribs, timber are the head and the bottom rib and the two sections below.
        EXPECT_EQ(m.mitFarbe(Zeichenstil::papier().holz).size() - 4, f.rippen) << f.l;
        if (!f.letztesFeld.isEmpty() && f.ar < 1000 * f.l) {
            EXPECT_EQ(m.zahlDerTexte(f.letztesFeld), 1) << f.l;
        }
    }
}

TEST(Zeichnung, FastenersStandAtTheirRealSpacingAndAreThinnedOutWhenTooClose) {
    const auto teilung = [](double l, double av) {
        const Wand w = wand([&](Wand& x) { x.Wandlaenge = l, x.av[Seite::eins] = av; });
        const Mitschrift m = aufPapier(Zeichnung::ansicht, w);
        // The head rib is as long as the wall: the scale of the drawing, mm on paper for 1 mm of wall.
        double laengste = 0.0;
        for (const QRectF& r : m.mitFarbe(Zeichenstil::papier().holz))
            laengste = std::max(laengste, r.width());
        for (const auto& s : m.strichlinien)
            if (s.farbe == Zeichenstil::papier().stahl)
                return std::pair(s.teilung, av * laengste / (l * 1000.0));
        return std::pair(0.0, -1.0);
    };
    const auto [normal, wirklich] = teilung(5.0, 60.0);
    EXPECT_NEAR(normal, wirklich, 1e-6);
    const auto [eng, zuEng] = teilung(60.0, 20.0);
    EXPECT_LT(zuEng, 0.4);
    EXPECT_GE(eng, 0.8);
    EXPECT_NEAR(eng / zuEng, std::round(eng / zuEng), 1e-6);  // every second, third ... fastener
}

TEST(Zeichnung, LoadsAppearByLoadCaseOnTheSideTheyComeFrom) {
    Wand w = wand([](Wand& x) { x.qk = 4, x.Fcgk = 2, x.Fvk = 3; });
    const auto labels = [&] {
        const Mitschrift m = aufPapier(Zeichnung::ansicht, w);
        return std::tuple(m.beginntMit(QStringLiteral("Fv,k = 3,00 kN")) != nullptr,
                          m.zahlDerTexte(QStringLiteral("q,k = 4,00 kN/m")),
                          m.zahlDerTexte(QStringLiteral("Fc,g,k = 2,00 kN je Rippe")));
    };
    EXPECT_EQ(labels(), std::tuple(true, 0, 0));
    w.Lastfall = 2;
    EXPECT_EQ(labels(), std::tuple(false, 1, 1));
    w.Lastfall = 3;
    EXPECT_EQ(labels(), std::tuple(true, 1, 1));

    // A positive load comes from the left and the height is then dimensioned at the right.
    const Mitschrift vonLinks = aufPapier(Zeichnung::ansicht, w);
    w.Fvk = -3;
    const Mitschrift vonRechts = aufPapier(Zeichnung::ansicht, w);
    const auto x = [](const Mitschrift& m, const char* text) {
        const auto* t = m.beginntMit(QString::fromUtf8(text));
        return t == nullptr ? std::nan("") : t->kasten.center().x();
    };
    EXPECT_LT(x(vonLinks, "Fv,k"), x(vonLinks, "h = "));
    EXPECT_GT(x(vonRechts, "Fv,k"), x(vonRechts, "h = "));
}

TEST(Zeichnung, AOneSidedWallShowsNothingOfSideTwo) {
    const QColor platte2 = Zeichenstil::papier().platte[Seite::zwei];
    for (const Zeichnung was : {Zeichnung::ansicht, Zeichnung::beplankung}) {
        const Mitschrift beide = aufPapier(was, wand());
        EXPECT_NE(beide.beginntMit(QStringLiteral("Beplankung\u00a02")), nullptr);
        EXPECT_FALSE(beide.mitFarbe(platte2).empty());
        const Mitschrift eine = aufPapier(was, wand([](Wand& x) { x.Einseitig = true; }));
        EXPECT_EQ(eine.beginntMit(QStringLiteral("Beplankung\u00a02")), nullptr);
        EXPECT_TRUE(eine.mitFarbe(platte2).empty());
    }
}

TEST(Zeichnung, TheElevationIsTheLargestPartAndNamesTheFastenerEntered) {
    for (const QSizeF& s : {QSizeF(800, 480), QSizeF(1200, 700), QSizeF(378, 344)}) {
        // A nail of other measures than its row of the list says.
        const Wand w = wand([](Wand& x) { x.d[Seite::eins] = 5.5, x.ln[Seite::eins] = 30; });
        const Mitschrift m = schreibeMit(Zeichnung::ansicht, w, s, Zeichenstil::hell());
        const auto* legende = m.beginntMit(QStringLiteral("Beplankung\u00a01"));
        ASSERT_NE(legende, nullptr);
        EXPECT_GE(legende->kasten.top(), 0.6 * s.height());
        EXPECT_NE(m.beginntMit(QStringLiteral("Nägel 5,5x30")), nullptr);
    }
}

TEST(Zeichnung, TheDecimalMarkIsThatOfTheStyle) {
    Zeichenstil punkt = Zeichenstil::papier();
    punkt.dezimalzeichen = '.';
    const Mitschrift m = schreibeMit(Zeichnung::ansicht, wand(), {100, 91}, punkt);
    EXPECT_EQ(m.zahlDerTexte(QStringLiteral("l = 5.000 m")), 1);
    EXPECT_EQ(m.zahlDerTexte(QStringLiteral("0.625")), 8);
}

const std::vector<Fall> uebliche{
    {"defaults", [](Wand&) {}},
    {"narrow", [](Wand& w) { w.Wandlaenge = 0.5, w.Rippenabstand = 500; }},
    {"long", [](Wand& w) { w.Wandlaenge = 30.1, w.Wandhoehe = 3, w.NachweisVerankerung = true; }},
    {"tall", [](Wand& w) { w.Wandlaenge = 1.25, w.Wandhoehe = 6, w.Lastfall = 3, w.qk = 5; }},
    {"one-sided", [](Wand& w) { w.Wandlaenge = 2.6, w.Einseitig = true, w.Gestossen[Seite::eins] = true; }},
    {"all loads",
     [](Wand& w) {
         w.Lastfall = 3, w.Fvk = -12.5, w.gk = 2.5, w.qk = 4, w.Fcgk = 3, w.Fcqk = 1, w.WindQuer = true,
         w.wk = -0.8;
     }},
    {"uplift", [](Wand& w) { w.Lastfall = 3, w.gk = 2.5, w.qk = -4, w.Fcgk = 3, w.Fcqk = -1; }},
    {"staples", [](Wand& w) { w.VMArt[Seite::eins] = 3, w.Zweireihig[Seite::eins] = true; }},
    {"screws", [](Wand& w) { w.VMArt[Seite::eins] = 5, w.d[Seite::eins] = 4, w.ln[Seite::eins] = 80; }},
    {"seat anchor", [](Wand& w) { w.NachweisVerankerung = true, w.Ankertyp = 12, w.AnzahlAnker = 2; }},
    {"sill runs on", [](Wand& w) { w.FussrippeLinksDurchgehend = w.FussrippeRechtsDurchgehend = true; }},
    {"flat ribs", [](Wand& w) { w.bRandrippe = 400, w.hRandrippe = 90, w.hInnenrippe = 90; }},
};

void pruefeLabels(const Mitschrift& m, QSizeF blatt, const std::string& name) {
    for (std::size_t i = 0; i < m.texte.size(); ++i) {
        const auto& a = m.texte[i];
        EXPECT_TRUE(QRectF(QPointF(), blatt).adjusted(-0.1, -0.1, 0.1, 0.1).contains(a.kasten))
            << name << ": " << a.text.toStdString();
        for (std::size_t j = i + 1; j < m.texte.size(); ++j)
            EXPECT_FALSE(a.kasten.intersects(m.texte[j].kasten))
                << name << ": " << a.text.toStdString() << " / " << m.texte[j].text.toStdString();
    }
}

TEST(Zeichnung, LabelsStayInsideTheDrawingAndDoNotMeet) {
    for (const Fall& fall : uebliche) {
        const Wand w = wand(fall.aendere);
        for (const Zeichnung was : {Zeichnung::rippen, Zeichnung::beplankung}) {
            const QSizeF quadrat(320, 310);  // the two parts stand one above the other
            pruefeLabels(schreibeMit(was, w, quadrat, Zeichenstil::hell()), quadrat, fall.name);
        }
        for (const Zeichnung was : alleZeichnungen) {
            const std::string name = std::to_string(static_cast<int>(was)) + ' ' + fall.name;
            pruefeLabels(aufPapier(was, w), groesse(was), name + ", paper");
            for (const double punkte : {3.5, 5.0}) {  // the smallest and the usual size of the widget
                const QSizeF s = groesse(was) * punkte;
                pruefeLabels(schreibeMit(was, w, s, Zeichenstil::hell()), s, name + ", screen");
            }
        }
    }
}

TEST(Zeichnung, OfNoExampleAWordOrAFigureIsCutOnPaper) {
    for (const auto& datei : std::filesystem::directory_iterator(RIPPENSCHEIBE_BEISPIELE)) {
        if (datei.path().extension() != ".rsw") continue;
        Wand w = wand();
        w.eigeneMaterialien = liesEigeneMaterialien(datei.path().parent_path() / "Plattenwerte.dat").wert;
        ASSERT_FALSE(liesPosition(datei.path(), w).fehler);
        zuweisen(w, grundmasse(w));
        for (const Zeichnung was : {Zeichnung::ansicht, Zeichnung::beplankung, Zeichnung::anker}) {
            const Mitschrift m = aufPapier(was, w);
            pruefeLabels(m, groesse(was), datei.path().stem());
            for (const auto& t : m.texte) {
                EXPECT_FALSE(t.text.contains(QStringLiteral("…"))) << datei.path() << t.text.toStdString();
                EXPECT_GE(t.punkt, 7.0) << datei.path() << t.text.toStdString();
            }
        }
    }
}

TEST(Zeichnung, SizesThatCannotBeDrawnGiveAFrameWithASentence) {
    for (const Fall& fall : std::initializer_list<Fall>{
             {"no length", [](Wand& w) { w.Wandlaenge = 0; }},
             {"negative height", [](Wand& w) { w.Wandhoehe = -2.5; }},
             {"huge length", [](Wand& w) { w.Wandlaenge = 1e300; }},
             {"tiny height", [](Wand& w) { w.Wandhoehe = 1e-300; }},
             {"no spacing", [](Wand& w) { w.Rippenabstand = 0; }},
             {"negative spacing", [](Wand& w) { w.Rippenabstand = -625; }},
             {"500 ribs", [](Wand& w) { w.Wandlaenge = 100, w.Rippenabstand = 200; }},
             {"ribs without width", [](Wand& w) { w.bInnenrippe = 0; }},
             {"ribs wider than the wall", [](Wand& w) { w.Wandlaenge = 0.2, w.bRandrippe = 10000; }},
         }) {
        const Mitschrift m = aufPapier(Zeichnung::ansicht, wand(fall.aendere));
        EXPECT_TRUE(m.mitFarbe(Zeichenstil::papier().holz).empty()) << fall.name;
        EXPECT_FALSE(m.texte.empty()) << fall.name;
    }
}

TEST(Zeichnung, NoInputAndNoAreaMakesADrawingFailOrHang) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    for (const double wert : {0.0, -1.0, 1e-300, 0.3, 1e5, 1e300, -1e300}) {
        Wand w = wand();
        jedeEingabe(w, [&](auto&&, auto& feld) {
            if constexpr (std::is_same_v<std::decay_t<decltype(feld)>, Feld>) feld = wert;
        });
        for (const Zeichnung was : alleZeichnungen) aufPapier(was, w);
        // The shape of the wall is drawn, everything else is absurd.
        w.Wandlaenge = 5.0, w.Wandhoehe = 2.5, w.Rippenabstand = 625.0;
        w.bRandrippe = 80.0, w.bInnenrippe = 80.0, w.bKopfFussrippe = 60.0, w.hRandrippe = 160.0;
        w.Material[Seite::eins] = 13, w.Ankertyp = 99, w.VMArt[Seite::zwei] = -3;
        for (const Zeichnung was : alleZeichnungen) EXPECT_LT(aufPapier(was, w).texte.size(), 500U);
    }
    for (const QSizeF& s :
         {QSizeF(0, 0), {-5, 3}, {1, 1}, {8, 400}, {400, 8}, {nan, 50}, {50, inf}, {1e9, 1e9}})
        for (const Zeichnung was : alleZeichnungen) schreibeMit(was, wand(), s, Zeichenstil::papier());
    Zeichenstil ohneMass = Zeichenstil::papier(0.0);
    EXPECT_FALSE(schreibeMit(Zeichnung::ansicht, wand(), {100, 91}, ohneMass).texte.empty());
    Bildvorlage zuGross = bildvorlage(Zeichnung::ansicht, wand());
    zuGross.mm = {1e9, 10};
    EXPECT_TRUE(bild(zuGross, 300, Zeichenstil::papier()).isNull());
}

TEST(Zeichnung, APainterIsLeftAsItWas) {
    QImage image(200, 200, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::red, 3.0));
    painter.setClipRect(10, 10, 100, 100);
    const QTransform vorher = painter.worldTransform();
    zeichneBild(painter, {0, 0, 200, 200}, Bild::system, wand(), Zeichenstil::hell());
    EXPECT_EQ(painter.pen(), QPen(Qt::red, 3.0));
    EXPECT_EQ(painter.worldTransform(), vorher);
    EXPECT_EQ(painter.clipBoundingRect(), QRectF(10, 10, 100, 100));
}

TEST(Zeichnung, FilesHoldTheDrawingInItsSize) {
    const QImage image =
        QImage::fromData(png(bildvorlage(Zeichnung::last, wand()), 254, Zeichenstil::papier()), "PNG");
    EXPECT_EQ(image.size(), QSize(440, 700));
    EXPECT_EQ(image.dotsPerMeterX(), 10000);
    const Bildvorlage ansicht = bildvorlage(Zeichnung::ansicht, wand());
    const QByteArray text = svg(ansicht, Zeichenstil::papier());
    EXPECT_TRUE(text.contains("l = 5,000 m"));
    EXPECT_TRUE(text.contains("width=\"100mm\""));
    EXPECT_TRUE(pdf(ansicht, Zeichenstil::papier()).startsWith("%PDF"));
}

// The groups of a DXF file: code and value.
using Dxfgruppen = std::vector<std::pair<int, QByteArray>>;
Dxfgruppen gruppen(const QByteArray& datei) {
    Dxfgruppen alle;
    const auto zeilen = datei.split('\n');
    for (qsizetype i = 0; i + 1 < zeilen.size(); i += 2)
        alle.emplace_back(zeilen[i].trimmed().toInt(), zeilen[i + 1].trimmed());
    return alle;
}

TEST(Zeichnung, TheDxfHoldsTheWallInFullSizeOnItsLayers) {
    const Wand w = wand([](Wand& x) { x.NachweisVerankerung = true, x.Plattenbreite[Seite::eins] = 1300; });
    const Dxfgruppen datei = gruppen(dxf(w, ','));
    std::map<QByteArray, int> striche;  // by layer
    double rechts = 0.0;
    double oben = 0.0;
    QByteArray was;
    QByteArray ebene;
    std::vector<QByteArray> texte;
    for (const auto& [gruppe, wert] : datei) {
        if (gruppe == 0) was = wert;
        if (gruppe == 8) ebene = wert, ++striche[ebene];
        if (was == "TEXT" && gruppe == 1) texte.push_back(wert);
        if (was != "VERTEX" || ebene != "Rippen") continue;
        if (gruppe == 10) rechts = std::max(rechts, wert.toDouble());
        if (gruppe == 20) oben = std::max(oben, wert.toDouble());
    }
    EXPECT_DOUBLE_EQ(rechts, 5000.0);
    EXPECT_DOUBLE_EQ(oben, 2500.0);
    for (const char* name : {"Rippen", "Beplankung1", "Beplankung2", "VM", "Anker", "Masse"})
        EXPECT_GT(striche[name], 3) << name;
    EXPECT_EQ(striche.size(), 6U);
    // 2500 mm high at av = 60 mm: one row of an inner rib alone has 40 strokes.
    EXPECT_GT(striche["VM"], 40 * 14);
    EXPECT_EQ(std::count(texte.begin(), texte.end(), "l = 5,000 m"), 1);
    EXPECT_EQ(datei.back(), std::pair(0, QByteArray("EOF")));
    EXPECT_TRUE(dxf(wand([](Wand& x) { x.Wandlaenge = 0; }), ',').isEmpty());
}

void drehe(QWidget& w, QPointF ort, int rasten) {
    QWheelEvent rad(ort, w.mapToGlobal(ort), {}, {0, 120 * rasten}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
    QApplication::sendEvent(&w, &rad);
}

TEST(Zeichnung, TheWheelKeepsWhatIsUnderThePointerAndADoubleClickShowsAll) {
    Sicht sicht;
    const QSizeF flaeche(800, 480);
    const QPointF um(600, 100);
    sicht.zoome(um, 4.0, flaeche);
    sicht.zoome(um, 2.0, flaeche);
    EXPECT_EQ(sicht.abbildung().map(um), um);
    EXPECT_DOUBLE_EQ(sicht.lupe(), 8.0);
    sicht.schiebe({1e6, -1e6}, flaeche);  // the drawing still covers the widget
    EXPECT_EQ(sicht.abbildung().map(QPointF(0, 0)).x(), 0.0);
    EXPECT_EQ(sicht.abbildung().map(QPointF(0, 480)).y(), 480.0);

    Zeichnungsansicht ansicht(Zeichnung::ansicht);
    ansicht.resize(800, 480);
    const QImage ganz = ansicht.grab().toImage();
    drehe(ansicht, um, 3);
    EXPECT_NE(ansicht.grab().toImage(), ganz);
    QTest::mouseDClick(&ansicht, Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(ansicht.grab().toImage(), ganz);
}

TEST(Zeichnung, AClickOnAPartAsksForTheWindowOfItsInputs) {
    Zeichnungsansicht ansicht(Zeichnung::ansicht);
    ansicht.setzeWand(wand([](Wand& w) { w.NachweisVerankerung = true; }));
    ansicht.resize(800, 480);
    ansicht.grab();
    std::vector<Fensterart> gefragt;
    QObject::connect(&ansicht, &Zeichnungsansicht::angeklickt, [&](Fensterart f) { gefragt.push_back(f); });
    for (int y = 2; y < 480; y += 3)
        for (int x = 2; x < 800; x += 3) QTest::mouseClick(&ansicht, Qt::LeftButton, {}, {x, y});
    for (const Fensterart f : {Fensterart::rippen, Fensterart::beplankung, Fensterart::verbindungsmittel,
                               Fensterart::verankerung, Fensterart::belastung})
        EXPECT_GT(std::count(gefragt.begin(), gefragt.end(), f), 3);
    const auto vorher = gefragt.size();
    QTest::mouseClick(&ansicht, Qt::LeftButton, {}, {2, 2});
    EXPECT_EQ(gefragt.size(), vorher);  // empty ground
}

TEST(Kurvenansicht, TheMarkGoesToTheNextValueByMouseAndKey) {
    const double nichts = std::numeric_limits<double>::quiet_NaN();
    Kurvenansicht ansicht;
    ansicht.resize(640, 380);
    ansicht.setze({.achse = QStringLiteral("Abstand av [mm]"),
                   .x = {40, 60, 80, 100},
                   .kurven = {{QStringLiteral("5.1"), {0.4, 0.6, 0.8, 1.0}},
                              {QStringLiteral("5.2"), {0.9, nichts, 0.1, nichts}}}},
                  60);
    ansicht.grab();
    QSignalSpy bewegt(&ansicht, &Kurvenansicht::markeBewegt);
    QTest::keyClick(&ansicht, Qt::Key_Right);
    EXPECT_EQ(ansicht.marke(), 80.0);
    QTest::mouseClick(&ansicht, Qt::LeftButton, {}, {635, 200});
    EXPECT_EQ(ansicht.marke(), 100.0);
    QTest::keyClick(&ansicht, Qt::Key_Right);  // there is no further one
    EXPECT_EQ(bewegt.count(), 2);
    QTest::keyClick(&ansicht, Qt::Key_Home);
    EXPECT_TRUE(ansicht.accessibleDescription().endsWith(QStringLiteral("0,90 in 5.2")));
}

TEST(Zeichnung, TheViewFollowsItsPaletteAndSaysWhatItShows) {
    Zeichnungsansicht ansicht(Zeichnung::ansicht);
    ansicht.resize(600, 400);
    for (const QColor grund : {QColor(0xFFFFFF), QColor(0x202020)}) {
        QPalette palette = ansicht.palette();
        palette.setColor(QPalette::Base, grund);
        ansicht.setPalette(palette);
        EXPECT_EQ(ansicht.grab().toImage().pixelColor(1, 1), grund);
    }
    const QImage vorher = ansicht.grab().toImage();
    ansicht.setzeWand(wand([](Wand& w) { w.Wandlaenge = 2.5; }));
    EXPECT_NE(ansicht.grab().toImage(), vorher);
    for (const Zeichnung was : alleZeichnungen)
        EXPECT_FALSE(Zeichnungsansicht(was).accessibleName().isEmpty());
}

}  // namespace
}  // namespace rippenscheibe
