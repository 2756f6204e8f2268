#include "ui/drawings/Wandgeometrie.h"

#include <algorithm>
#include <cmath>

#include "basis/Zahlenformat.h"
#include "model/Kataloge.h"

namespace rippenscheibe {

namespace {

constexpr double kleinstesMass = 1.0;         // mm
constexpr double groesstesMass = 1.0e6;       // mm
constexpr double hoechsteRippenzahl = 200.0;  // as many as the calculation holds
constexpr double hoechsteStosszahl = 500.0;

bool zeichenbar(double mass) { return mass >= kleinstesMass && mass <= groesstesMass; }

QString utf8text(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

// Joints at the multiples of the panel width inside the wall. The right one is left out where the rest
// is only a rounding error.
std::vector<double> stoesse(double l, double plattenbreite) {
    std::vector<double> x;
    if (!zeichenbar(plattenbreite) || l / plattenbreite > hoechsteStosszahl) return x;
    for (int k = 1; k * plattenbreite < l - kleinstesMass; ++k) x.push_back(k * plattenbreite);
    return x;
}

QString masssatz(const Wandgeometrie& g) {
    if (!zeichenbar(g.l)) return QStringLiteral("Mit dieser Wandlänge lässt sich die Wand nicht zeichnen.");
    if (!zeichenbar(g.h)) return QStringLiteral("Mit dieser Wandhöhe lässt sich die Wand nicht zeichnen.");
    if (g.l / g.h > 500.0 || g.h / g.l > 500.0)
        return QStringLiteral("Wandlänge und Wandhöhe liegen zum Zeichnen zu weit auseinander.");
    if (!zeichenbar(g.ar))
        return QStringLiteral("Mit diesem Abstand der Rippen lässt sich die Wand nicht zeichnen.");
    if (g.l / g.ar > hoechsteRippenzahl - 2.0)
        return QStringLiteral("Die Wand hat mehr als 200 Rippen und wird nicht gezeichnet.");
    if (!zeichenbar(g.bRandrippe) || !zeichenbar(g.bInnenrippe) || !zeichenbar(g.bKopfFussrippe) ||
        !zeichenbar(g.hRippe))
        return QStringLiteral("Mit diesen Querschnitten der Rippen lässt sich die Wand nicht zeichnen.");
    if (2.0 * g.bRandrippe > g.l || 2.0 * g.bKopfFussrippe > g.h)
        return QStringLiteral("Die Rippen sind größer als die Wand; sie wird nicht gezeichnet.");
    return {};
}

}  // namespace

std::vector<double> Wandgeometrie::rippenachsen() const {
    std::vector<double> achsen{bRandrippe / 2.0};
    achsen.insert(achsen.end(), innenrippen.begin(), innenrippen.end());
    achsen.push_back(l - bRandrippe / 2.0);
    return achsen;
}

double gezeichneterWert(Zahl wert, double kleinster, double groesster, double ersatz) {
    return wert.failed() ? ersatz : std::clamp(wert.value(), kleinster, groesster);
}

Geometriepruefung pruefeGeometrie(const Wand& w) {
    Wandgeometrie g;
    g.l = w.Wandlaenge.value() * 1000.0;
    g.h = w.Wandhoehe.value() * 1000.0;
    g.ar = w.Rippenabstand.value();
    g.bRandrippe = w.bRandrippe.value();
    g.bInnenrippe = w.bInnenrippe.value();
    g.bKopfFussrippe = w.bKopfFussrippe.value();
    g.hRippe = w.hRandrippe.value();
    g.einseitig = w.Einseitig;
    if (const QString satz = masssatz(g); !satz.isEmpty()) return {std::nullopt, satz};

    // Rib axes as the calculation counts them; the last bay is the shorter one.
    const double felder = std::floor(g.l / g.ar);
    g.rest = std::max(0.0, g.l - felder * g.ar);
    const int innen = static_cast<int>(felder) - (g.l == felder * g.ar ? 1 : 0);
    for (int i = 1; i <= innen; ++i) g.innenrippen.push_back(i * g.ar);
    for (const Seite n : beideSeiten) {
        g.t[n] = gezeichneterWert(Plattendicke(w, n), 1.0, 1000.0, 15.0);
        g.av[n] = gezeichneterWert(w.av[n], 1.0, 10000.0, 60.0);
        g.plattenstoesse[n] = stoesse(g.l, w.Plattenbreite[n].value());
    }
    return {g, {}};
}

bool hatHorizontallast(const Wand& w) { return w.Lastfall.value() != 2; }
bool hatVertikallast(const Wand& w) { return w.Lastfall.value() != 1; }

QString plattenname(const Wand& w, Seite n) {
    if (plattenmaterial(w, n) >= Platte::frei) {
        const std::string* name = w.eigeneMaterialien.name(w.EigenesMaterial[n]);
        return name != nullptr && !name->empty() ? utf8text(*name) : QStringLiteral("freies Material");
    }
    return utf8text(eintrag(Plattenmaterialien(), w.Material[n].value()));
}

QString durchmessertext(double mm, char dezimalzeichen) {
    QString text = utf8text(formatiere("0.00", mm, dezimalzeichen));
    if (text.endsWith(QLatin1Char('0'))) text.chop(1);
    return text;
}

QString laengentext(double mm, char dezimalzeichen) {
    QString text = utf8text(formatiere("0.0", mm, dezimalzeichen));
    if (text.endsWith(QLatin1Char('0'))) text.chop(2);  // with its decimal mark
    return text;
}

QString verbindungsmittelname(const Wand& w, Seite n, const Zeichner& z) {
    const QString name = utf8text(eintrag(VMArten(), w.VMArt[n].value()));
    const char zeichen = z.stil().dezimalzeichen;
    return name + QLatin1Char(' ') + durchmessertext(w.d[n].value(), zeichen) + QLatin1Char('x') +
           laengentext(w.ln[n].value(), zeichen);
}

QString verbindungsmittelzeile(const Wand& w, Seite n, const Zeichner& z) {
    return QStringLiteral("%1, av\u00a0=\u00a0%2\u00a0mm%3")
        .arg(verbindungsmittelname(w, n, z), laengentext(w.av[n].value(), z.stil().dezimalzeichen),
             w.Zweireihig[n] ? QStringLiteral(", 2-reihig") : QString());
}

QString plattenzeile(const Wand& w, Seite n, const Zeichner& z) {
    return QStringLiteral("Beplankung\u00a0%1: %2, %3\u00a0mm")
        .arg(nummer(n))
        .arg(plattenname(w, n), z.zahl("0.0", Plattendicke(w, n).value()));
}

QString rippenmass(const Zeichner& z, double mm) { return z.zahl("0.0", mm / 10.0) + QStringLiteral(" cm"); }

QString metertext(double mm, const Zeichner& z) {
    QString text = z.zahl("0.0000", mm / 1000.0);
    if (text.endsWith(QLatin1Char('0'))) text.chop(1);
    return text;
}

QString ankerkurzname(const Wand& w) {
    const int typ = w.Ankertyp.value();
    if (typ == freierAnker) {
        return w.FreierAnkerName.empty() ? QStringLiteral("freier Anker") : utf8text(w.FreierAnkerName);
    }
    return utf8text(eintrag(Ankernamen(), typ)).section(QLatin1Char(' '), -1);
}

QString lasttext(const Zeichner& z, const QString& name, Zahl wert, const QString& einheit) {
    return name + QStringLiteral(" = ") + z.zahl("0.00", wert.value()) + QLatin1Char(' ') + einheit;
}

}  // namespace rippenscheibe
