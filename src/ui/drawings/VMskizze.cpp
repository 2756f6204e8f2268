#include <algorithm>

#include "ui/drawings/Skizzen.h"

// The sketch of a fastener in sheathing and rib.

namespace rippenscheibe {

namespace {

constexpr double versenktiefe = 2.0;  // mm

struct VMwerte {
    Art art;
    double d, ln, dk, lg, t;  // mm
};

VMwerte vmWerte(const Wand& w, Seite n) {
    return {vmArt(w, n),
            gezeichneterWert(w.d[n], 0.2, 100.0, 2.7),
            gezeichneterWert(w.ln[n], 5.0, 500.0, 50.0),
            gezeichneterWert(w.dk[n], 0.5, 100.0, 6.0),
            gezeichneterWert(w.lg[n], 1.0, 500.0, 25.0),
            gezeichneterWert(Plattendicke(w, n), 1.0, 300.0, 15.0)};
}

// Where the fastener and what it is driven into stand on the drawing.
struct VMbild {
    double f;       // scale
    QRectF platte;  // the sheathing
    double ende;    // where the timber is cut
    double kopf;    // the fastener runs from here
    double spitze;  // to here
    double achse;   // at this height
};

VMbild vmBild(const Zeichner& z, const VMwerte& v, bool versenkt) {
    const double t = z.t();
    const QRectF r = z.flaeche();
    const double holz = std::max(1.25 * (v.ln - v.t), 0.8 * v.t);  // timber behind the sheathing, shortened
    const double hoch = istKlammer(v.art) ? klammerruecken : std::max(v.dk, v.d);
    const double oben = 5.6 * t;   // title and the length
    const double unten = 6.6 * t;  // two dimensions and the spacing
    const double mitte = std::max(1.0, r.height() - oben - unten);
    VMbild b{};
    b.f = std::min((r.width() - 3.0 * t) / (v.t + holz), mitte / (1.6 * hoch));
    b.achse = oben + mitte / 2.0;
    const double x = (r.width() - b.f * (v.t + holz)) / 2.0;
    const double h = std::min(mitte, std::max(3.4 * hoch * b.f, 6.0 * t));
    b.platte = QRectF(x, b.achse - h / 2.0, b.f * v.t, h);
    b.ende = x + b.f * (v.t + holz);
    b.kopf = x + (versenkt ? std::min(versenktiefe, 0.4 * v.t) * b.f : 0.0);
    b.spitze = b.kopf + b.f * v.ln;
    return b;
}

void plattenUndHolz(Zeichner& z, const VMbild& b, Seite n) {
    const double t = z.t();
    const QRectF& p = b.platte;
    z.fuelle(QRectF(p.topRight(), QPointF(b.ende, p.bottom())), z.stil().holz);
    for (const double kante : {p.top(), p.bottom()})
        z.linie({p.right(), kante}, {b.ende, kante}, Strich::ansicht, z.stil().holzlinie);
    z.bruchlinie({b.ende, p.bottom() + 0.4 * t}, {b.ende, p.top() - 0.4 * t}, z.stil().tinte);
    z.rechteck(p, z.stil().platte[n], Strich::schnitt, z.stil().plattenkante[n]);
    z.schraffur(p, std::max(1.0, 0.5 * t), z.stil().plattenkante[n]);
}

void bohrung(Zeichner& z, const VMbild& b, double d) {
    const double halb = 0.5 * b.f * d + 0.25 * z.t();
    for (const double seite : {-halb, halb})
        z.linie({b.platte.left(), b.achse + seite}, {b.spitze, b.achse + seite}, Strich::mass,
                z.stil().tinteAufHolz, Linienart::gestrichelt);
}

// What is entered of the fastener, above and below the picture.
void vmTexte(Zeichner& z, const Wand& w, Seite n, const VMwerte& v) {
    const double t = z.t();
    const QRectF r = z.flaeche();
    const double mitte = r.width() / 2.0;
    const char zeichen = z.stil().dezimalzeichen;
    z.textPassend({mitte, 1.3 * t}, verbindungsmittelname(w, n, z), Qt::AlignHCenter, r.width() - t,
                  {1.0, true, {}});
    QString querschnitt = QStringLiteral("d = %1").arg(durchmessertext(v.d, zeichen));
    if (!istKlammer(v.art) && v.art != Art::schnellbauschrauben)
        querschnitt += QStringLiteral(",  dk = %1").arg(z.zahl("0.0", v.dk));
    z.text({mitte, 2.7 * t}, querschnitt + QStringLiteral(" mm"), Qt::AlignHCenter);
    z.text({mitte, r.height() - 0.6 * t},
           QStringLiteral("av = %1 mm%2")
               .arg(laengentext(w.av[n].value(), zeichen),
                    w.Zweireihig[n] ? QStringLiteral(", zweireihig versetzt") : QString()),
           Qt::AlignHCenter);
}

void vmMasse(Zeichner& z, const VMbild& b, const VMwerte& v) {
    const double t = z.t();
    const auto mm = [&](const char* name, double wert) {
        return QStringLiteral("%1 = %2").arg(QLatin1String(name), z.zahl("0.0", wert));
    };
    z.massWaagerecht(b.platte.top() - 1.0 * t, b.platte.top(), {{b.kopf, b.spitze}, {mm("l", v.ln)}});
    double linie = b.platte.bottom() + 1.9 * t;
    z.massWaagerecht(linie, b.platte.bottom(), {{b.platte.left(), b.platte.right()}, {mm("t", v.t)}});
    if (!hatGewinde(v.art)) return;
    linie += 1.9 * t;
    z.massWaagerecht(linie, b.platte.bottom(),
                     {{std::max(b.kopf, b.spitze - b.f * v.lg), b.spitze}, {mm("lg", v.lg)}});
}

}  // namespace

void zeichneVerbindungsmittel(Zeichner& z, const Wand& w, Seite n) {
    const VMwerte v = vmWerte(w, n);
    const VMbild b = vmBild(z, v, w.Versenkt[n]);
    plattenUndHolz(z, b, n);
    if (w.Vorgebohrt[n]) bohrung(z, b, v.d);
    const double dk = istKlammer(v.art) ? klammerruecken : v.dk;
    zeichneVM(z, {b.kopf, b.achse}, {1.0, 0.0}, v.art, {v.d * b.f, v.ln * b.f, dk * b.f, v.lg * b.f});
    vmTexte(z, w, n, v);
    vmMasse(z, b, v);
}

}  // namespace rippenscheibe
