#include "ui/drawings/Legende.h"

#include <algorithm>

namespace rippenscheibe {

namespace {

Legendeneintrag seite(const Zeichner& z, const Wand& w, Seite n) {
    const Zeichenstil& stil = z.stil();
    if (n == Seite::zwei && w.Einseitig)
        return {QStringLiteral("Seite 2: nicht beplankt"),
                {},
                {},
                {},
                stil.grund,
                stil.nebentinte,
                Fensterart::beplankung,
                Fensterart::beplankung};
    return {QStringLiteral("Beplankung\u00a0%1: %2\u00a0mm")
                .arg(nummer(n))
                .arg(z.zahl("0.0", Plattendicke(w, n).value())),
            plattenname(w, n),
            verbindungsmittelzeile(w, n, z),
            plattenzeile(w, n, z),
            stil.platte[n],
            stil.plattenkante[n],
            Fensterart::beplankung,
            Fensterart::verbindungsmittel};
}

// The lines of one entry in a column, and how they are set.
struct Satz {
    QStringList kopf;
    QStringList namen;
    QStringList werte;
};

Satz gesetzt(const Zeichner& z, const Legendeneintrag& e, double breite, int namenszeilen, double faktor) {
    const Textart kopfart{faktor, true, {}};
    const Textart art{faktor};
    Satz s;
    if (!e.zeile.isEmpty() && z.textbreite(e.zeile, kopfart) <= breite) {
        s.kopf = {e.zeile};
    } else {
        s.kopf = z.umbrochen(e.titel, breite, kopfart);
        if (!e.name.isEmpty()) s.namen = z.umbrochen(e.name, breite, art, namenszeilen);
    }
    if (!e.werte.isEmpty()) s.werte = z.umbrochen(e.werte, breite, art);
    return s;
}

double hoehe(const Zeichner& z, const Satz& s, double faktor) {
    return z.zeilenhoehe({faktor}) * static_cast<double>(s.kopf.size() + s.namen.size() + s.werte.size());
}

// The entries in rows of one or two columns.
struct Tabelle {
    int spalten = 1;
    double faktor = 1.0;  // of the text
    double spaltenbreite = 0.0;
    std::vector<Satz> saetze;
    std::vector<double> zeilenhoehen;
    double hoehe = 0.0;
};

constexpr double einzug = 1.4;  // in units of the text
constexpr double zeilenluft = 0.5;
constexpr double schmalsteSpalte = 12.5;
constexpr double breitesteSpalte = 24.0;

Tabelle tabelle(const Zeichner& z, double breite, const std::vector<Legendeneintrag>& eintraege, int spalten,
                int namenszeilen, double faktor) {
    const double t = z.t();
    Tabelle tab;
    tab.faktor = faktor;
    tab.spalten = spalten;
    // Columns keep together in a wide drawing.
    tab.spaltenbreite = std::min((breite - (spalten - 1) * t) / spalten, breitesteSpalte * t);
    for (std::size_t i = 0; i < eintraege.size(); ++i) {
        tab.saetze.push_back(gesetzt(z, eintraege[i], tab.spaltenbreite - einzug * t, namenszeilen, faktor));
        const double h = hoehe(z, tab.saetze.back(), faktor);
        if (i % static_cast<std::size_t>(spalten) == 0)
            tab.zeilenhoehen.push_back(h);
        else
            tab.zeilenhoehen.back() = std::max(tab.zeilenhoehen.back(), h);
    }
    for (const double h : tab.zeilenhoehen) tab.hoehe += h + zeilenluft * t;
    tab.hoehe -= zeilenluft * t;
    return tab;
}

int spalten(const Zeichner& z, double breite) { return breite >= 2.0 * schmalsteSpalte * z.t() ? 2 : 1; }

// The first table that fits: whole names before shortened ones, and those before smaller text.
Tabelle passendeTabelle(const Zeichner& z, const QRectF& r, const std::vector<Legendeneintrag>& eintraege) {
    Tabelle beste;
    for (const double faktor : {1.0, 0.85, 0.7}) {
        for (const int namenszeilen : {3, 2, 1}) {
            beste = tabelle(z, r.width(), eintraege, spalten(z, r.width()), namenszeilen, faktor);
            if (beste.hoehe <= r.height()) return beste;
        }
    }
    return beste;
}

void zeichneEintrag(Zeichner& z, QPointF ab, const Tabelle& tab, const Legendeneintrag& e, const Satz& s) {
    const double breite = tab.spaltenbreite;
    const Textart art{tab.faktor};
    const double t = z.t();
    z.rechteck({ab.x(), ab.y() + 0.15 * t, 0.8 * t, 0.8 * t}, e.fuellung, Strich::mass, e.kante);
    const double x = ab.x() + einzug * t;
    double y = ab.y();
    y += z.zeilen({x, y}, s.kopf, {tab.faktor, true, {}});
    y += z.zeilen({x, y}, s.namen, art);
    z.bauteil(QRectF(ab, QPointF(ab.x() + breite, y)), e.fenster, e.zeile.isEmpty() ? e.titel : e.zeile);
    if (s.werte.isEmpty()) return;
    const double werteAb = y;
    y += z.zeilen({x, y}, s.werte, art);
    z.bauteil(QRectF(QPointF(ab.x(), werteAb), QPointF(ab.x() + breite, y)), e.fensterWerte, e.werte);
}

}  // namespace

std::vector<Legendeneintrag> legende(const Zeichner& z, const Wand& w, Ankerlegende anker) {
    const Zeichenstil& stil = z.stil();
    std::vector<Legendeneintrag> eintraege{seite(z, w, Seite::eins), seite(z, w, Seite::zwei)};
    const auto fuege = [&](const QString& titel, const QString& name, const QColor& farbe,
                           Fensterart fenster) {
        const QString zeile = name.isEmpty() ? QString() : titel + QLatin1Char(' ') + name;
        eintraege.push_back({titel, name, {}, zeile, farbe, farbe, fenster, fenster});
    };
    if (w.WindQuer)
        fuege(QStringLiteral("Wind quer"), lasttext(z, QStringLiteral("w,k"), w.wk, QStringLiteral("kN/m²")),
              stil.last, Fensterart::belastung);
    if (anker == Ankerlegende::mit && w.NachweisVerankerung)
        fuege(QStringLiteral("Anker: %1 ×").arg(w.AnzahlAnker.value()), ankerkurzname(w), stil.stahl,
              Fensterart::verankerung);
    return eintraege;
}

double legendenhoehe(const Zeichner& z, double breite, const std::vector<Legendeneintrag>& eintraege) {
    return tabelle(z, breite, eintraege, spalten(z, breite), 3, 1.0).hoehe;
}

void zeichneLegende(Zeichner& z, const QRectF& r, const std::vector<Legendeneintrag>& eintraege) {
    const double t = z.t();
    const Tabelle tab = passendeTabelle(z, r, eintraege);
    double y = r.top() + std::max(0.0, (r.height() - tab.hoehe) / 2.0);
    for (std::size_t i = 0; i < eintraege.size(); ++i) {
        const auto spalten = static_cast<std::size_t>(tab.spalten);
        const double x = r.left() + static_cast<double>(i % spalten) * (tab.spaltenbreite + t);
        zeichneEintrag(z, {x, y}, tab, eintraege[i], tab.saetze[i]);
        if ((i + 1) % spalten == 0) y += tab.zeilenhoehen[i / spalten] + zeilenluft * t;
    }
}

}  // namespace rippenscheibe
