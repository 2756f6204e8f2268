#include "ui/drawings/Kurvenbild.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace rippenscheibe {

namespace {

// Colours that stay apart for every eye, on a light and on a dark ground; the strokes differ too.
struct Kurvenstil {
    QRgb farbe;
    std::vector<double> striche;  // mm: stroke, gap ...; empty: a full line
};

const Kurvenstil& kurvenstil(std::size_t i) {
    static const std::array<Kurvenstil, 8> stile{{{0xFF0072B2, {}},
                                                  {0xFFD55E00, {3.0, 1.0}},
                                                  {0xFF009E73, {}},
                                                  {0xFFB4589A, {1.2, 0.8}},
                                                  {0xFF3E95CD, {3.0, 0.8, 0.8, 0.8}},
                                                  {0xFFC58A00, {}},
                                                  {0xFF7A6FB0, {1.8, 1.2}},
                                                  {0xFF7F8A94, {0.6, 0.6}}}};
    return stile[i % stile.size()];
}

bool istListe(const Kurvendaten& daten) { return !daten.xNamen.empty(); }

// A step of 1, 2 or 5 times a power of ten, so that at most `hoechstens` of them fit.
double schritt(double bereich, int hoechstens) {
    const double roh = bereich / std::max(1, hoechstens);
    const double zehner = std::pow(10.0, std::floor(std::log10(roh)));
    for (const double m : {1.0, 2.0, 5.0})
        if (m * zehner >= roh * 0.999999) return m * zehner;
    return 10.0 * zehner;
}

QString xText(const Zeichner& z, const Kurvendaten& daten, double x) {
    const auto stelle = std::find(daten.x.begin(), daten.x.end(), x);
    if (istListe(daten) && stelle != daten.x.end()) {
        const auto i = static_cast<std::size_t>(stelle - daten.x.begin());
        if (i < daten.xNamen.size()) return daten.xNamen[i];
    }
    return z.zahl(daten.maske, x);
}

double groessterWert(const Kurvendaten& daten) {
    double groesster = 0.0;
    for (const Kurve& kurve : daten.kurven)
        for (const double eta : kurve.werte)
            if (std::isfinite(eta)) groesster = std::max(groesster, eta);
    return groesster;
}

class Kurvenbild {
  public:
    Kurvenbild(Zeichner& z, const Kurvendaten& daten, double marke) : z_(z), daten_(daten), marke_(marke) {}
    Kurvenrahmen zeichne();

  private:
    void ordneAn();
    void sperren();
    void gitter();
    void xAchse();
    QColor farbe(std::size_t i) const;
    void kurve(std::size_t i);
    void punkte(std::size_t i);
    void namen();
    void marke();

    Zeichner& z_;
    const Kurvendaten& daten_;
    double marke_;
    Kurvenrahmen r_;
};

void Kurvenbild::ordneAn() {
    const double t = z_.t();
    double namen = 0.0;
    for (const Kurve& kurve : daten_.kurven) namen = std::max(namen, z_.textbreite(kurve.name));
    const QRectF f = z_.flaeche();
    r_.feld = f.adjusted(z_.textbreite(QStringLiteral("8,88")) + 1.4 * t, 3.2 * t,
                         -std::min(namen, 0.3 * f.width()) - 1.4 * t, -4.6 * t);
    // Points of a list keep clear of the axis.
    const double luft = istListe(daten_) ? 0.05 * (daten_.x.back() - daten_.x.front()) : 0.0;
    r_.xVon = daten_.x.front() - luft;
    r_.xBis = daten_.x.back() + luft;
    // What is far beyond 1,00 is cut at the upper edge.
    r_.yBis = std::clamp(1.08 * groessterWert(daten_), 1.2, 3.0);
}

void Kurvenbild::sperren() {
    const double t = z_.t();
    for (const Sperrbereich& s : daten_.sperren) {
        const double von = std::clamp(r_.x(s.von), r_.feld.left(), r_.feld.right());
        const double bis = std::clamp(r_.x(s.bis), r_.feld.left(), r_.feld.right());
        if (bis - von < 0.05) continue;
        QColor farbe = z_.stil().nebentinte;
        farbe.setAlphaF(0.14F);
        const QRectF bereich(von, r_.feld.top(), bis - von, r_.feld.height());
        z_.fuelle(bereich, farbe);
        farbe.setAlphaF(0.5F);
        z_.schraffur(bereich, 1.2 * t, farbe);
        if (bis - von < 6.0 * t) continue;
        const QStringList zeilen = z_.umbrochen(s.grund, bis - von - 1.0 * t, {0.9}, 3);
        z_.zeilen({von + 0.5 * t, r_.feld.top() + 0.4 * t}, zeilen, {0.9, false, z_.stil().tinte});
    }
}

void Kurvenbild::gitter() {
    const double t = z_.t();
    const double dy = schritt(r_.yBis, static_cast<int>(r_.feld.height() / (3.0 * t)));
    QColor fein = z_.stil().nebentinte;
    fein.setAlphaF(0.3F);
    for (int i = 0; i * dy <= r_.yBis + 1e-9; ++i) {
        const double y = r_.y(i * dy);
        z_.linie({r_.feld.left(), y}, {r_.feld.right(), y}, Strich::mass, fein);
        if (std::fabs(i * dy - 1.0) > 0.4 * dy || i * dy == 1.0)
            z_.text({r_.feld.left() - 0.5 * t, y}, z_.zahl("0.00", i * dy), Qt::AlignRight | Qt::AlignVCenter,
                    {1.0, i * dy == 1.0, {}});
    }
    z_.linie({r_.feld.left(), r_.y(1.0)}, {r_.feld.right(), r_.y(1.0)}, Strich::schnitt, z_.stil().last);
    z_.linie(r_.feld.bottomLeft(), r_.feld.topLeft(), Strich::ansicht, z_.stil().tinte);
    z_.linie(r_.feld.bottomLeft(), r_.feld.bottomRight(), Strich::ansicht, z_.stil().tinte);
    z_.text({0.4 * t, 1.6 * t}, QStringLiteral("Ausnutzung [-]"), Qt::AlignLeft, {1.0, true, {}});
}

void Kurvenbild::xAchse() {
    const double t = z_.t();
    std::vector<double> stellen;
    if (istListe(daten_)) {
        stellen = daten_.x;
    } else {
        const double breite = z_.textbreite(xText(z_, daten_, r_.xBis)) + 1.5 * t;
        const double dx = schritt(r_.xBis - r_.xVon, static_cast<int>(r_.feld.width() / breite));
        const double erste = std::ceil(r_.xVon / dx - 1e-9) * dx;
        for (int i = 0; erste + i * dx <= r_.xBis + 1e-9 * dx; ++i) stellen.push_back(erste + i * dx);
    }
    double frei = -1e9;  // names of a list that would meet are left out
    for (const double x : stellen) {
        const double ort = r_.x(x);
        z_.linie({ort, r_.feld.bottom()}, {ort, r_.feld.bottom() + 0.4 * t}, Strich::mass, z_.stil().tinte);
        const QString text = xText(z_, daten_, x);
        const double halb = z_.textbreite(text) / 2.0;
        if (ort - halb < frei) continue;
        z_.text({ort, r_.feld.bottom() + 0.8 * t}, text, Qt::AlignHCenter | Qt::AlignTop);
        frei = ort + halb + 0.6 * t;
    }
    z_.text({r_.feld.center().x(), z_.flaeche().height() - 0.6 * t}, daten_.achse, Qt::AlignHCenter,
            {1.0, true, {}});
}

QColor Kurvenbild::farbe(std::size_t i) const {
    const QColor farbe = QColor::fromRgb(kurvenstil(i).farbe);
    return z_.stil().grund.lightness() < 128 ? farbe.lighter(150) : farbe;
}

void Kurvenbild::kurve(std::size_t i) {
    const Kurve& kurve = daten_.kurven[i];
    const Kurvenstil& stil = kurvenstil(i);
    QPen pen = z_.stift(Strich::schnitt, farbe(i));
    if (!stil.striche.empty()) {
        QList<qreal> muster;
        for (const double s : stil.striche) muster << s / pen.widthF();
        pen.setDashPattern(muster);
    }
    z_.painter().setPen(pen);
    QPolygonF stueck;
    const auto zeichneStueck = [&] {
        if (stueck.size() > 1) z_.painter().drawPolyline(stueck);
        stueck.clear();
    };
    for (std::size_t k = 0; k < std::min(daten_.x.size(), kurve.werte.size()); ++k) {
        if (std::isfinite(kurve.werte[k]))
            stueck << QPointF(r_.x(daten_.x[k]), r_.y(std::min(kurve.werte[k], 10.0 * r_.yBis)));
        else
            zeichneStueck();
    }
    zeichneStueck();
}

void Kurvenbild::punkte(std::size_t i) {
    const Kurve& kurve = daten_.kurven[i];
    const QColor ton = farbe(i);
    for (std::size_t k = 0; k < std::min(daten_.x.size(), kurve.werte.size()); ++k)
        if (std::isfinite(kurve.werte[k]) && kurve.werte[k] <= r_.yBis)
            z_.kreis({r_.x(daten_.x[k]), r_.y(kurve.werte[k])}, 0.3 * z_.t(), ton, Strich::mass, ton);
}

// Each name stands at the right end of its curve; names that would meet move apart.
void Kurvenbild::namen() {
    const double t = z_.t();
    struct Name {
        std::size_t i;
        double y;
    };
    std::vector<Name> namen;
    for (std::size_t i = 0; i < daten_.kurven.size(); ++i) {
        const auto& werte = daten_.kurven[i].werte;
        const auto letzter =
            std::find_if(werte.rbegin(), werte.rend(), [](double eta) { return std::isfinite(eta); });
        if (letzter != werte.rend()) namen.push_back({i, r_.y(std::min(*letzter, r_.yBis))});
    }
    std::sort(namen.begin(), namen.end(), [](const Name& a, const Name& b) { return a.y > b.y; });
    double frei = r_.feld.bottom() + 0.5 * t;
    for (Name& name : namen) {
        name.y = std::min(name.y, frei);
        frei = name.y - 1.25 * t;
    }
    for (const Name& name : namen)
        z_.text({r_.feld.right() + 0.6 * t, name.y},
                z_.gekuerzt(daten_.kurven[name.i].name, z_.flaeche().width() - r_.feld.right() - 0.7 * t),
                Qt::AlignLeft | Qt::AlignVCenter, {1.0, true, farbe(name.i)});
}

// A line with a grip at the top, its value, and a dot on the decisive curve.
void Kurvenbild::marke() {
    if (!std::isfinite(marke_) || marke_ < r_.xVon || marke_ > r_.xBis) return;
    const double t = z_.t();
    const double x = r_.x(marke_);
    const QColor tinte = z_.stil().tinte;
    z_.linie({x, r_.feld.top() - 0.2 * t}, {x, r_.feld.bottom()}, Strich::ansicht, tinte);
    z_.vieleck({{x - 0.6 * t, r_.feld.top() - 1.1 * t},
                {x + 0.6 * t, r_.feld.top() - 1.1 * t},
                {x, r_.feld.top() - 0.1 * t}},
               tinte, Strich::mass, tinte);
    const Kurvenwert groesster = rippenscheibe::groessterWert(daten_, marke_);
    QString text = xText(z_, daten_, marke_);
    if (!groesster.name.isEmpty())
        text += QStringLiteral(":  %1 = %2").arg(groesster.name, z_.zahl("0.00", groesster.eta));
    const double halb = z_.textbreite(text, {1.0, true, {}}) / 2.0;
    const double titel = z_.textbreite(QStringLiteral("Ausnutzung [-]"), {1.0, true, {}}) + 1.4 * t;
    const double mitte =
        std::clamp(x, std::min(titel + halb, z_.flaeche().width() - halb), z_.flaeche().width() - halb);
    z_.text({mitte, r_.feld.top() - 1.6 * t}, text, Qt::AlignHCenter, {1.0, true, {}});
    if (groesster.name.isEmpty() || groesster.eta > r_.yBis) return;
    z_.kreis({r_.x(groesster.x), r_.y(groesster.eta)}, 0.4 * t, z_.stil().grund, Strich::schnitt, tinte);
}

Kurvenrahmen Kurvenbild::zeichne() {
    ordneAn();
    sperren();
    gitter();
    xAchse();
    z_.painter().save();
    z_.painter().setClipRect(r_.feld, Qt::IntersectClip);
    for (std::size_t i = 0; i < daten_.kurven.size(); ++i) istListe(daten_) ? punkte(i) : kurve(i);
    z_.painter().restore();
    namen();
    marke();
    return r_;
}

}  // namespace

Kurvenwert groessterWert(const Kurvendaten& daten, double x) {
    Kurvenwert wert;
    if (daten.x.empty()) return wert;
    const auto naechstes = std::min_element(daten.x.begin(), daten.x.end(), [x](double a, double b) {
        return std::fabs(a - x) < std::fabs(b - x);
    });
    const auto k = static_cast<std::size_t>(naechstes - daten.x.begin());
    wert.x = *naechstes;
    for (const Kurve& kurve : daten.kurven) {
        if (k >= kurve.werte.size() || !std::isfinite(kurve.werte[k])) continue;
        if (wert.name.isEmpty() || kurve.werte[k] > wert.eta) wert = {wert.x, kurve.werte[k], kurve.name};
    }
    return wert;
}

Kurvenrahmen zeichneKurvenbild(Zeichner& z, const Kurvendaten& daten, double marke) {
    const double t = z.t();
    if (daten.x.size() < 2 || !(daten.x.back() > daten.x.front())) {
        z.satzImRahmen(QStringLiteral("Es gibt keine zwei Werte, zwischen denen sich etwas ändert."));
        return {};
    }
    if (z.zuKlein() || z.flaeche().width() < 20.0 * t || z.flaeche().height() < 12.0 * t) return {};
    return Kurvenbild(z, daten, marke).zeichne();
}

Bildvorlage bildvorlage(const Kurvendaten& daten, double marke) {
    return {[daten, marke](QPainter& painter, const QRectF& flaeche, const Zeichenstil& stil) {
                Zeichner z(painter, flaeche, stil);
                zeichneKurvenbild(z, daten, marke);
            },
            {160.0, 90.0},
            QStringLiteral("Einfluss ") + daten.achse.section(QStringLiteral(" ["), 0, 0)};
}

}  // namespace rippenscheibe
