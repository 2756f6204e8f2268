#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "ui/drawings/Skizzen.h"

namespace rippenscheibe {

namespace {

// Where things of the wall stand on the drawing: x from its left edge, y up from its foot, both in mm.
struct Massstab {
    double f = 1.0;
    QPointF fuss;  // left lower corner of the wall on the drawing
    double x(double wand) const { return fuss.x() + f * wand; }
    double y(double wand) const { return fuss.y() - f * wand; }
    QRectF rechteck(double links, double unten, double breite, double hoehe) const {
        return {x(links), y(unten + hoehe), f * breite, f * hoehe};
    }
};

// The elevation uncovers the ribs to the right of this line: above it sheathing 1 is cut away.
constexpr double schnittOben = 0.66;
constexpr double schnittUnten = 0.52;

enum class Lastform { gleichlast, einzellast };
// One row of arrows above the wall, with a text for each load that it stands for.
struct Lastzeile {
    Lastform form;
    double wert;   // signed, the arrows point down when it is positive
    double bezug;  // the value with arrows of middle size
    std::vector<QString> texte;
};

// Permanent and variable loads of the same direction share a row.
void fuegeLast(std::vector<Lastzeile>& zeilen, Lastform form, Zahl wert, const QString& text) {
    if (!(wert != 0)) return;
    for (Lastzeile& zeile : zeilen) {
        if (zeile.form != form || (zeile.wert > 0.0) != (wert.value() > 0.0)) continue;
        zeile.wert += wert.value();
        zeile.texte.push_back(text);
        return;
    }
    constexpr double bezug = 5.0;
    zeilen.push_back({form, wert.value(), bezug, {text}});
}

std::vector<Lastzeile> lastzeilen(const Zeichner& z, const Wand& w) {
    std::vector<Lastzeile> zeilen;
    if (!hatVertikallast(w)) return zeilen;
    const QString kN = QStringLiteral("kN je Rippe");
    const QString kNm = QStringLiteral("kN/m");
    fuegeLast(zeilen, Lastform::gleichlast, w.gk, lasttext(z, QStringLiteral("g,k"), w.gk, kNm));
    fuegeLast(zeilen, Lastform::gleichlast, w.qk, lasttext(z, QStringLiteral("q,k"), w.qk, kNm));
    fuegeLast(zeilen, Lastform::einzellast, w.Fcgk, lasttext(z, QStringLiteral("Fc,g,k"), w.Fcgk, kN));
    fuegeLast(zeilen, Lastform::einzellast, w.Fcqk, lasttext(z, QStringLiteral("Fc,q,k"), w.Fcqk, kN));
    return zeilen;
}

// Arrow length by value, between a half and the whole of `hoechstens`.
double pfeillaenge(double wert, double bezug, double hoechstens) {
    const double betrag = std::fabs(wert);
    return hoechstens * (0.5 + 0.5 * betrag / (betrag + bezug));
}

class Ansicht {
  public:
    Ansicht(Zeichner& z, const Wand& w, const Wandgeometrie& g) : z_(z), w_(w), g_(g) {}
    void zeichne();

  private:
    void ordneAn();
    void boden();
    void hintereBeplankung();
    void rippen();
    void vordereBeplankung();
    void beplankung(Seite n);
    QPolygonF aufgeschnitten(Seite n) const;
    void stoesse(Seite n);
    void vmReihen(Seite n);
    void vmReihe(QPointF von, QPointF nach, Seite n);
    void stoesseUndReihen(Seite n);
    void anker();
    void lasten();
    void lastzeile(const Lastzeile& last, double unten);
    void horizontallast();
    void masse();
    void schnittUndLegende();
    void legende(const QRectF& r);
    double lastzeilenhoehe(const Lastzeile& last) const {
        return (2.1 + 1.35 * static_cast<double>(last.texte.size())) * z_.t();
    }

    Zeichner& z_;
    const Wand& w_;
    const Wandgeometrie& g_;
    std::vector<Lastzeile> lastzeilen_;
    Massstab m_;
    bool massRechts_ = true;
    double schnittOben_ = 0.0;  // y where the section begins; the height of the area without one
};

void Ansicht::ordneAn() {
    const double t = z_.t();
    const QRectF r = z_.flaeche();
    lastzeilen_ = lastzeilen(z_, w_);
    const bool horizontal = hatHorizontallast(w_) && !(Zahl(w_.Fvk) == 0);
    const double kraft =
        horizontal
            ? z_.textbreite(lasttext(z_, QStringLiteral("Fv,k"), w_.Fvk, QStringLiteral("kN"))) + 1.4 * t
            : 0.0;
    const bool nachRechts = w_.Fvk.value() >= 0.0F;
    // The height is dimensioned on the side without the load.
    massRechts_ = nachRechts || !horizontal;
    const double massrand = 4.6 * t;
    const double links = massRechts_ ? std::max(1.5 * t, kraft) : massrand;
    const double rechts = massRechts_ ? massrand : kraft;
    double oben = 1.2 * t;
    for (const Lastzeile& last : lastzeilen_) oben += lastzeilenhoehe(last);
    const double unten = 7.0 * t;  // ground and two dimension chains
    const bool mitSchnitt = r.height() >= 20.0 * t + oben && r.width() >= 26.0 * t;
    const double schnitt = mitSchnitt ? std::clamp(0.31 * r.height(), 10.0 * t, 17.0 * t) : 0.0;

    const double breite = std::max(1.0, r.width() - links - rechts);
    const double hoehe = std::max(1.0, r.height() - oben - unten - schnitt);
    m_.f = std::min(breite / g_.l, hoehe / g_.h);
    // Spare height goes in three parts: above, between elevation and section, and below.
    const double rest = hoehe - m_.f * g_.h;
    // The section grows with it as long as its width allows.
    const double hoechstens = std::max(schnitt, 0.2 * r.width() + 7.0 * t);
    const double mehrSchnitt = mitSchnitt ? std::min({0.5 * rest, 12.0 * t, hoechstens - schnitt}) : 0.0;
    const double luft = (rest - mehrSchnitt) / (mitSchnitt ? 3.0 : 2.0);
    m_.fuss = QPointF(links + (breite - m_.f * g_.l) / 2.0, oben + luft + m_.f * g_.h);
    schnittOben_ = mitSchnitt ? r.height() - schnitt - mehrSchnitt - 0.5 * luft : r.height();
}

void Ansicht::boden() {
    const double ueber = 1.4 * z_.t();
    const double y = m_.y(0.0);
    const double links = m_.x(0.0) - ueber;
    const double rechts = m_.x(g_.l) + ueber;
    z_.schraffur({links, y, rechts - links, 0.8 * z_.t()}, 0.55 * z_.t(), z_.stil().nebentinte);
    z_.linie({links, y}, {rechts, y}, Strich::schnitt, z_.stil().tinte);
}

QPolygonF Ansicht::aufgeschnitten(Seite n) const {
    const QPointF lo = QPointF(m_.x(0.0), m_.y(g_.h));
    const QPointF lu = QPointF(m_.x(0.0), m_.y(0.0));
    const QPointF ro = QPointF(m_.x(g_.l), m_.y(g_.h));
    const QPointF ru = QPointF(m_.x(g_.l), m_.y(0.0));
    const QPointF so = QPointF(m_.x(schnittOben * g_.l), m_.y(g_.h));
    const QPointF su = QPointF(m_.x(schnittUnten * g_.l), m_.y(0.0));
    return n == Seite::eins ? QPolygonF{lo, so, su, lu} : QPolygonF{so, ro, ru, su};
}

void Ansicht::beplankung(Seite n) {
    QColor farbe = z_.stil().platte[n];
    farbe.setAlphaF(static_cast<float>(z_.stil().plattendeckung));
    z_.painter().setPen(Qt::NoPen);
    z_.painter().setBrush(farbe);
    z_.painter().drawPolygon(aufgeschnitten(n));
}

void Ansicht::hintereBeplankung() {
    if (!g_.einseitig) beplankung(Seite::zwei);
}

void Ansicht::rippen() {
    const double hoehe = g_.h - 2.0 * g_.bKopfFussrippe;
    // The bottom rib runs on beyond the wall where it is continuous there.
    const double ueber = std::max(30.0, 0.9 * z_.t() / m_.f);
    const double links = w_.FussrippeLinksDurchgehend ? ueber : 0.0;
    const double rechts = w_.FussrippeRechtsDurchgehend ? ueber : 0.0;
    for (const double achse : g_.innenrippen)
        z_.holz(m_.rechteck(achse - g_.bInnenrippe / 2.0, g_.bKopfFussrippe, g_.bInnenrippe, hoehe),
                Strich::mass);
    z_.holz(m_.rechteck(0.0, g_.bKopfFussrippe, g_.bRandrippe, hoehe));
    z_.holz(m_.rechteck(g_.l - g_.bRandrippe, g_.bKopfFussrippe, g_.bRandrippe, hoehe));
    z_.holz(m_.rechteck(0.0, g_.h - g_.bKopfFussrippe, g_.l, g_.bKopfFussrippe));
    z_.holz(m_.rechteck(-links, 0.0, g_.l + links + rechts, g_.bKopfFussrippe));
}

void Ansicht::vordereBeplankung() {
    beplankung(Seite::eins);
    z_.bruchlinie({m_.x(schnittUnten * g_.l), m_.y(0.0)}, {m_.x(schnittOben * g_.l), m_.y(g_.h)},
                  z_.stil().plattenkante[Seite::eins]);
}

void Ansicht::stoesse(Seite n) {
    const QColor farbe = z_.stil().plattenkante[n];
    for (const double x : g_.plattenstoesse[n])
        z_.linie({m_.x(x), m_.y(0.0)}, {m_.x(x), m_.y(g_.h)}, Strich::ansicht, farbe, Linienart::gestrichelt);
    if (!w_.Gestossen[n]) return;
    z_.linie({m_.x(0.0), m_.y(g_.h / 2.0)}, {m_.x(g_.l), m_.y(g_.h / 2.0)}, Strich::ansicht, farbe,
             Linienart::gestrichelt);
}

// A row of fasteners as one dashed line: a stroke is a fastener, at its real spacing. Where the strokes
// would run together only every second, third ... is drawn; the legend gives the spacing.
void Ansicht::vmReihe(QPointF von, QPointF nach, Seite n) {
    constexpr double engste = 0.4;  // mm, 1.5 pixels on a screen
    const double abstand = g_.av[n] * m_.f;
    const double gezeichnet = abstand >= engste ? abstand : abstand * std::ceil(2.0 * engste / abstand);
    const double strich = std::min(0.4 * gezeichnet, 0.35 * z_.t());
    QPen pen(z_.stil().stahl, std::max(0.2, z_.stil().mindestbreite / z_.stil().mm));
    if (n == Seite::zwei) pen.setColor(z_.stil().plattenkante[n]);
    pen.setCapStyle(Qt::FlatCap);
    pen.setDashPattern({strich / pen.widthF(), (gezeichnet - strich) / pen.widthF()});
    z_.painter().setPen(pen);
    z_.painter().drawLine(von, nach);
    if (!w_.Zweireihig[n]) return;
    const bool waagerecht = std::fabs(nach.x() - von.x()) > std::fabs(nach.y() - von.y());
    const double versatz = std::max(0.5, 0.2 * z_.t());
    pen.setDashOffset(gezeichnet / 2.0 / pen.widthF());
    z_.painter().setPen(pen);
    const QPointF quer = waagerecht ? QPointF(0.0, versatz) : QPointF(versatz, 0.0);
    z_.painter().drawLine(von + quer, nach + quer);
}

void Ansicht::vmReihen(Seite n) {
    const double rand = std::min(g_.bKopfFussrippe, g_.bRandrippe) / 2.0;
    const double oben = g_.h - g_.bKopfFussrippe / 2.0;
    const double unten = g_.bKopfFussrippe / 2.0;
    const auto senkrecht = [&](double x) { vmReihe({m_.x(x), m_.y(unten)}, {m_.x(x), m_.y(oben)}, n); };
    vmReihe({m_.x(rand), m_.y(oben)}, {m_.x(g_.l - rand), m_.y(oben)}, n);
    vmReihe({m_.x(rand), m_.y(unten)}, {m_.x(g_.l - rand), m_.y(unten)}, n);
    senkrecht(g_.bRandrippe / 2.0);
    senkrecht(g_.l - g_.bRandrippe / 2.0);
    const auto& stoesse = g_.plattenstoesse[n];
    for (const double achse : g_.innenrippen) {
        const bool stoss = std::any_of(stoesse.begin(), stoesse.end(),
                                       [&](double x) { return std::fabs(x - achse) < g_.bInnenrippe / 2.0; });
        const bool zweiReihen = stoss && g_.bInnenrippe * m_.f > 1.6;
        if (!zweiReihen) {
            senkrecht(achse);
            continue;
        }
        senkrecht(achse - g_.bInnenrippe / 4.0);
        senkrecht(achse + g_.bInnenrippe / 4.0);
    }
}

// Joints and fasteners of a side, as far as its sheathing is shown.
void Ansicht::stoesseUndReihen(Seite n) {
    QPainterPath gezeigt;
    gezeigt.addPolygon(aufgeschnitten(n));
    z_.painter().save();
    z_.painter().setClipPath(gezeigt, Qt::IntersectClip);
    stoesse(n);
    vmReihen(n);
    z_.painter().restore();
}

void Ansicht::anker() {
    if (!w_.NachweisVerankerung) return;
    const double t = z_.t();
    const double hoehe = std::clamp(0.16 * g_.h * m_.f, 1.8 * t, 5.0 * t);
    const double breite = std::clamp(0.6 * g_.bRandrippe * m_.f, 0.5 * t, 1.2 * t);
    for (const bool links : {true, false}) {
        const double innen = links ? 1.0 : -1.0;
        const double x = links ? m_.x(g_.bRandrippe) : m_.x(g_.l - g_.bRandrippe);
        const double y = m_.y(0.0);
        const auto von = [&](double dx, double dy) { return QPointF(x + innen * dx, y - dy); };
        z_.vieleck({von(0.0, 0.0), von(0.0, hoehe), von(-0.35 * breite, hoehe), von(-0.35 * breite, 0.3 * t),
                    von(-0.35 * breite, 0.0)},
                   z_.stil().stahl, Strich::mass, z_.stil().stahl);
        z_.vieleck({von(0.0, 0.0), von(breite, 0.0), von(breite, 0.3 * t), von(0.0, 0.3 * t)},
                   z_.stil().stahl, Strich::mass, z_.stil().stahl);
        z_.linie(von(0.55 * breite, 0.9 * t), von(0.55 * breite, -1.5 * t), Strich::schnitt, z_.stil().stahl);
    }
}

void Ansicht::lastzeile(const Lastzeile& last, double unten) {
    const double t = z_.t();
    const double laenge = pfeillaenge(last.wert, last.bezug, 1.9 * t);
    const double von = m_.x(0.0);
    const double bis = m_.x(g_.l);
    const QColor farbe = z_.stil().last;
    std::vector<double> stellen;
    if (last.form == Lastform::einzellast) {
        double letzte = -1e9;
        for (std::size_t i = 0; i <= g_.innenrippen.size() + 1; ++i) {
            double x =
                m_.x(i <= g_.innenrippen.size() && i > 0 ? g_.innenrippen[i - 1] : g_.bRandrippe / 2.0);
            if (i == g_.innenrippen.size() + 1) x = m_.x(g_.l - g_.bRandrippe / 2.0);
            if (x - letzte < 0.7 * t && i > 0 && i <= g_.innenrippen.size()) continue;
            stellen.push_back(x);
            letzte = x;
        }
    } else {
        const int zahl = std::clamp(static_cast<int>((bis - von) / (1.3 * t)), 1, 200);
        for (int i = 0; i <= zahl; ++i) stellen.push_back(von + (bis - von) * i / zahl);
        z_.linie({von, unten - laenge}, {bis, unten - laenge}, Strich::ansicht, farbe);
        z_.linie({von, unten}, {bis, unten}, Strich::mass, farbe);
    }
    for (const double x : stellen) {
        const QPointF oben(x, unten - laenge);
        const QPointF fuss(x, unten - 0.1 * t);
        last.wert >= 0.0 ? z_.pfeil(oben, fuss, farbe, 0.25) : z_.pfeil(fuss, oben, farbe, 0.25);
    }
    double y = unten - laenge - 0.4 * t;
    for (auto text = last.texte.rbegin(); text != last.texte.rend(); ++text, y -= 1.3 * t)
        z_.text({(von + bis) / 2.0, y}, *text, Qt::AlignHCenter, {1.0, false, farbe});
}

void Ansicht::lasten() {
    double unten = m_.y(g_.h) - 0.4 * z_.t();
    for (const Lastzeile& last : lastzeilen_) {
        lastzeile(last, unten);
        unten -= lastzeilenhoehe(last);
    }
    horizontallast();
}

// A positive load comes from the left: it pulls at the left edge rib and presses on the right one.
void Ansicht::horizontallast() {
    if (!hatHorizontallast(w_) || Zahl(w_.Fvk) == 0) return;
    const double t = z_.t();
    const bool nachRechts = w_.Fvk.value() >= 0.0F;
    const double laenge = pfeillaenge(w_.Fvk.value(), 10.0, 7.0 * t);
    const double y = m_.y(g_.h - g_.bKopfFussrippe / 2.0);
    const double ziel = nachRechts ? m_.x(0.0) - 0.3 * t : m_.x(g_.l) + 0.3 * t;
    const double start = nachRechts ? ziel - laenge : ziel + laenge;
    z_.pfeil({start, y}, {ziel, y}, z_.stil().last, 0.6);
    z_.text({nachRechts ? ziel - 0.2 * t : ziel + 0.2 * t, y + 1.6 * t},
            lasttext(z_, QStringLiteral("Fv,k"), w_.Fvk, QStringLiteral("kN")),
            nachRechts ? Qt::AlignRight : Qt::AlignLeft, {1.0, false, z_.stil().last});
}

void Ansicht::masse() {
    const double t = z_.t();
    const double fuss = m_.y(0.0) + 0.8 * t;
    const double laenge = m_.f * g_.l;
    constexpr double vernachlaessigbar = 0.5;  // mm: a last bay that is only a rounding error
    const bool rest = g_.rest > vernachlaessigbar;
    const QString ar = z_.zahl("0.000", g_.ar / 1000.0);
    Masskette felder;
    const double ersteLinie = fuss + 2.2 * t;
    const auto ganze = static_cast<std::size_t>(std::floor(g_.l / g_.ar));
    if (m_.f * g_.ar > z_.textbreite(ar) + 0.5 * t) {
        for (std::size_t i = 0; i <= ganze; ++i)
            felder.stellen.push_back(m_.x(static_cast<double>(i) * g_.ar));
        felder.texte.assign(ganze, ar);
    } else if (ganze > 0) {
        felder.stellen = {m_.x(0.0), m_.x(static_cast<double>(ganze) * g_.ar)};
        const QString summe = z_.zahl("0.000", static_cast<double>(ganze) * g_.ar / 1000.0);
        const QString kette = QStringLiteral("%1 × %2 = %3").arg(ganze).arg(ar, summe);
        felder.texte = {ganze == 1 ? ar : kette};
    } else {
        felder.stellen = {m_.x(0.0)};
    }
    if (rest) {
        felder.stellen.push_back(m_.x(g_.l));
        felder.texte.push_back(z_.zahl("0.000", g_.rest / 1000.0));
    }
    const bool einzeln = felder.texte.size() > 1 || ganze > 1;
    if (einzeln) z_.massWaagerecht(ersteLinie, fuss, felder);
    const double zweiteLinie = einzeln ? ersteLinie + 2.2 * t : ersteLinie;
    z_.massWaagerecht(
        zweiteLinie, fuss,
        {{m_.x(0.0), m_.x(g_.l)},
         {(laenge > 9.0 * t ? QStringLiteral("l = ") : QString()) + z_.zahl("0.000", g_.l / 1000.0) +
          (laenge > 9.0 * t ? QStringLiteral(" m") : QString())}});
    const bool hoch = m_.f * g_.h > 9.0 * t;
    z_.massSenkrecht(massRechts_ ? m_.x(g_.l) + 3.4 * t : m_.x(0.0) - 2.6 * t,
                     massRechts_ ? m_.x(g_.l) + 1.4 * t : m_.x(0.0) - 1.4 * t,
                     {{m_.y(0.0), m_.y(g_.h)},
                      {(hoch ? QStringLiteral("h = ") : QString()) + z_.zahl("0.000", g_.h / 1000.0) +
                       (hoch ? QStringLiteral(" m") : QString())}});
}

void Ansicht::legende(const QRectF& r) {
    const double t = z_.t();
    const double zeile = 1.45 * t;
    const auto seite = [&](Seite n) {
        return QStringLiteral("Beplankung %1: %2, %3 mm")
            .arg(nummer(n))
            .arg(plattenname(w_, n), z_.zahl("0.0", Plattendicke(w_, n).value()));
    };
    const auto vm = [&](Seite n) {
        return QStringLiteral("%1, av = %2 mm%3")
            .arg(verbindungsmittelname(w_, n, z_), z_.zahl("0", w_.av[n].value()),
                 w_.Zweireihig[n] ? QStringLiteral(", 2-reihig") : QString());
    };
    struct Eintrag {
        QString kopf;
        QString fuss;
        QColor fuellung;
        QColor kante;
    };
    std::vector<Eintrag> eintraege;
    if (g_.einseitig) {
        eintraege.push_back(
            {QStringLiteral("Seite 2: nicht beplankt"), {}, z_.stil().grund, z_.stil().nebentinte});
    } else {
        eintraege.push_back({seite(Seite::zwei), vm(Seite::zwei), z_.stil().platte[Seite::zwei],
                             z_.stil().plattenkante[Seite::zwei]});
    }
    eintraege.push_back({seite(Seite::eins), vm(Seite::eins), z_.stil().platte[Seite::eins],
                         z_.stil().plattenkante[Seite::eins]});
    if (w_.WindQuer) {
        eintraege.push_back({lasttext(z_, QStringLiteral("Wind quer w,k"), w_.wk, QStringLiteral("kN/m²")),
                             {},
                             z_.stil().last,
                             z_.stil().last});
    }
    if (w_.NachweisVerankerung) {
        eintraege.push_back(
            {QStringLiteral("Anker: %1 × %2").arg(w_.AnzahlAnker.value()).arg(ankerkurzname(w_)),
             {},
             z_.stil().stahl,
             z_.stil().stahl});
    }
    double hoehe = -0.6 * t;
    for (const Eintrag& e : eintraege) hoehe += (e.fuss.isEmpty() ? 1.0 : 2.0) * zeile + 0.6 * t;
    double laengste = 1.0;
    for (const Eintrag& e : eintraege)
        laengste = std::max({laengste, z_.textbreite(e.kopf, {1.0, true, {}}), z_.textbreite(e.fuss)});
    // Long names shrink a little before they are cut.
    constexpr double kleinste = 0.78;
    const double faktor = std::min(
        {1.0, r.height() / std::max(hoehe, 1.0), std::max(kleinste, (r.width() - 1.6 * t) / laengste)});
    const double links = r.left() + 1.6 * t * faktor;
    const double breite = r.right() - links;
    double y = r.top() + std::max(0.0, (r.height() - hoehe * faktor) / 2.0) + t * faktor;
    for (const Eintrag& e : eintraege) {
        const double s = 0.8 * t * faktor;
        z_.rechteck({r.left(), y - s, s, s}, e.fuellung, Strich::mass, e.kante);
        const Textart kopf{faktor, true, {}};
        z_.text({links, y}, z_.gekuerzt(e.kopf, breite, kopf), Qt::AlignLeft, kopf);
        y += zeile * faktor;
        if (!e.fuss.isEmpty()) {
            z_.text({links, y}, z_.gekuerzt(e.fuss, breite, {faktor}), Qt::AlignLeft, {faktor});
            y += zeile * faktor;
        }
        y += 0.6 * t * faktor;
    }
}

void Ansicht::schnittUndLegende() {
    const QRectF r = z_.flaeche();
    if (schnittOben_ >= r.height() - 1.0) return;
    const double t = z_.t();
    const double links = std::max(1.5 * t, std::min(m_.x(0.0), 0.2 * r.width()) - 2.2 * t);
    const double mitte = links + 0.52 * (r.width() - links);
    const QRectF schnitt(links, schnittOben_ + 0.8 * t, mitte - links - 2.0 * t,
                         r.height() - schnittOben_ - 2.4 * t);
    const QRectF gezeichnet = zeichneSchnitt(z_, schnitt, w_, Schnittbeschriftung::masse);
    // The legend keeps near the section but leaves it in the left half of a wide drawing.
    const double legendeLinks = std::max(gezeichnet.right() + 3.0 * t, std::min(mitte, 0.46 * r.width()));
    legende({legendeLinks, schnittOben_ + 0.3 * t, r.width() - legendeLinks - 0.5 * t,
             r.height() - schnittOben_ - 0.6 * t});
}

void Ansicht::zeichne() {
    ordneAn();
    boden();
    hintereBeplankung();
    rippen();
    if (!g_.einseitig) stoesseUndReihen(Seite::zwei);
    vordereBeplankung();
    stoesseUndReihen(Seite::eins);
    z_.rechteck(m_.rechteck(0.0, 0.0, g_.l, g_.h), Qt::NoBrush, Strich::schnitt, z_.stil().holzlinie);
    const double markenhoehe = m_.y(0.78 * g_.h);
    if (m_.f * g_.l > 14.0 * z_.t() && m_.f * g_.h > 4.0 * z_.t()) {
        z_.marke({m_.x(0.25 * g_.l), markenhoehe}, QStringLiteral("1"), z_.stil().plattenlinie[Seite::eins]);
        if (!g_.einseitig)
            z_.marke({m_.x(0.85 * g_.l), markenhoehe}, QStringLiteral("2"),
                     z_.stil().plattenlinie[Seite::zwei]);
    }
    anker();
    lasten();
    masse();
    schnittUndLegende();
}

}  // namespace

void zeichneAnsicht(Zeichner& z, const Wand& w) {
    const Geometriepruefung pruefung = pruefeGeometrie(w);
    if (!pruefung.geometrie) return z.satzImRahmen(pruefung.satz);
    Ansicht(z, w, *pruefung.geometrie).zeichne();
}

}  // namespace rippenscheibe
