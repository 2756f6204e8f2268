#include <algorithm>
#include <cmath>

#include "ui/drawings/Zeichner.h"

namespace rippenscheibe {

void Zeichner::strichmarke(QPointF p) {
    const double a = 0.28 * t();
    painter_.setPen(stift(Strich::ansicht, stil_.tinte));
    painter_.drawLine(p + QPointF(-a, a), p + QPointF(a, -a));
}

// From a little behind the part to a little beyond the dimension line.
void Zeichner::hilfslinie(QPointF ab, QPointF bis) {
    const QPointF d = bis - ab;
    const double laenge = std::max(1e-9, std::hypot(d.x(), d.y()));
    linie(ab + d / laenge * 0.3 * t(), bis + d / laenge * 0.4 * t(), Strich::mass, stil_.tinte);
}

namespace {

// Where the text of one piece stands along the line: inside, outside at an end, or nowhere.
struct Textplatz {
    double mitte = 0.0;
    bool gezeichnet = true;
    double linieBis = 0.0;  // the dimension line reaches to here
};

Textplatz textplatz(const Masskette& kette, std::size_t i, double breite, double rand) {
    const double a = kette.stellen[i];
    const double b = kette.stellen[i + 1];
    if (breite + rand <= std::fabs(b - a)) return {(a + b) / 2.0, true, b};
    const double richtung = b >= a ? 1.0 : -1.0;
    if (i + 2 == kette.stellen.size())
        return {b + richtung * (rand + breite / 2.0), true, b + richtung * (rand + breite)};
    if (i == 0) return {a - richtung * (rand + breite / 2.0), true, a - richtung * (rand + breite)};
    return {0.0, false, a};
}

}  // namespace

void Zeichner::massWaagerecht(double y, double hilfe, const Masskette& kette) {
    if (kette.stellen.size() < 2) return;
    const Ebenenwechsel wechsel(*this, Ebene::masse);
    double von = kette.stellen.front();
    double bis = kette.stellen.back();
    for (std::size_t i = 0; i + 1 < kette.stellen.size() && i < kette.texte.size(); ++i) {
        const Textplatz p = textplatz(kette, i, textbreite(kette.texte[i]), 0.5 * t());
        if (!p.gezeichnet) continue;
        text({p.mitte, y - 0.3 * t()}, kette.texte[i], Qt::AlignHCenter);
        von = std::min(von, p.linieBis);
        bis = std::max(bis, p.linieBis);
    }
    linie({von, y}, {bis, y}, Strich::mass, stil_.tinte);
    for (const double x : kette.stellen) {
        hilfslinie({x, hilfe}, {x, y});
        strichmarke({x, y});
    }
}

void Zeichner::massSenkrecht(double x, double hilfe, const Masskette& kette) {
    if (kette.stellen.size() < 2) return;
    const Ebenenwechsel wechsel(*this, Ebene::masse);
    double oben = std::min(kette.stellen.front(), kette.stellen.back());
    double unten = std::max(kette.stellen.front(), kette.stellen.back());
    for (std::size_t i = 0; i + 1 < kette.stellen.size() && i < kette.texte.size(); ++i) {
        const Textplatz p = textplatz(kette, i, textbreite(kette.texte[i]), 0.5 * t());
        if (!p.gezeichnet) continue;
        text({x - 0.3 * t(), p.mitte}, kette.texte[i], Qt::AlignHCenter, {1.0, false, {}, true});
        oben = std::min(oben, p.linieBis);
        unten = std::max(unten, p.linieBis);
    }
    linie({x, oben}, {x, unten}, Strich::mass, stil_.tinte);
    for (const double y : kette.stellen) {
        hilfslinie({hilfe, y}, {x, y});
        strichmarke({x, y});
    }
}

void Zeichner::kleinmassWaagerecht(double y, double hilfe, double von, double bis, const QString& zahl) {
    const Ebenenwechsel wechsel(*this, Ebene::masse);
    massWaagerecht(y, hilfe, {{von, bis}, {}});
    const bool unten = y > hilfe;
    text({(von + bis) / 2.0, y + (unten ? 0.5 : -0.5) * t()}, zahl,
         Qt::AlignHCenter | (unten ? Qt::AlignTop : Qt::AlignBottom));
}

void Zeichner::kleinmassSenkrecht(double x, double hilfe, double von, double bis, const QString& zahl) {
    const Ebenenwechsel wechsel(*this, Ebene::masse);
    massSenkrecht(x, hilfe, {{von, bis}, {}});
    const bool rechts = x > hilfe;
    text({x + (rechts ? 0.5 : -0.5) * t(), (von + bis) / 2.0}, zahl,
         Qt::AlignVCenter | (rechts ? Qt::AlignLeft : Qt::AlignRight));
}

}  // namespace rippenscheibe
