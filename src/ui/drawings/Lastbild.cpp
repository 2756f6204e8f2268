#include "ui/drawings/Lastbild.h"

#include <algorithm>
#include <cmath>

namespace rippenscheibe {

namespace {

constexpr double groesstePfeil = 1.9;  // all lengths in units of the text
constexpr double pfeilluft = 0.6;
constexpr double zeilenschritt = 1.35;
constexpr double wortluft = 1.2;  // between two loads in one line
constexpr double kraftpfeil = 7.0;

// Arrow length by value, between a half and the whole of `hoechstens`; `bezug` has one of middle size.
double pfeillaenge(double wert, double bezug, double hoechstens) {
    const double betrag = std::fabs(wert);
    return hoechstens * (0.5 + 0.5 * betrag / (betrag + bezug));
}

}  // namespace

Lastbild::Lastbild(Zeichner& z, const Wand& w, const Wandgeometrie& g)
    : z_(z),
      w_(w),
      g_(g),
      horizontal_(hatHorizontallast(w) && !(Zahl(w.Fvk) == 0)),
      vonLinks_(w.Fvk.value() >= 0.0F) {
    if (!hatVertikallast(w)) return;
    const QString kN = QStringLiteral("kN je Rippe");
    const QString kNm = QStringLiteral("kN/m");
    fuege(Form::gleichlast, w.gk, QStringLiteral("g,k"), kNm);
    fuege(Form::gleichlast, w.qk, QStringLiteral("q,k"), kNm);
    fuege(Form::einzellast, w.Fcgk, QStringLiteral("Fc,g,k"), kN);
    fuege(Form::einzellast, w.Fcqk, QStringLiteral("Fc,q,k"), kN);
}

// Permanent and variable loads of the same direction share a row.
void Lastbild::fuege(Form form, Zahl wert, const QString& name, const QString& einheit) {
    if (!(wert != 0)) return;
    const QString text = lasttext(z_, name, wert, einheit);
    for (Reihe& reihe : reihen_) {
        if (reihe.form != form || (reihe.wert > 0.0) != (wert.value() > 0.0)) continue;
        reihe.wert += wert.value();
        reihe.texte.push_back(text);
        return;
    }
    reihen_.push_back({form, wert.value(), {text}});
}

double Lastbild::zeilenbreite(const Reihe& reihe) const {
    double breite = wortluft * z_.t() * static_cast<double>(reihe.texte.size() - 1);
    for (const QString& text : reihe.texte) breite += z_.textbreite(text);
    return breite;
}

double Lastbild::hoehe(const Reihe& reihe, Wortlage lage) const {
    const double pfeile = groesstePfeil + pfeilluft;
    if (lage == Wortlage::darueber) return (pfeile + zeilenschritt) * z_.t();
    return std::max(pfeile, zeilenschritt * static_cast<double>(reihe.texte.size()) + 0.4) * z_.t();
}

double Lastbild::hoehe(Wortlage lage) const {
    double summe = 0.0;
    for (const Reihe& reihe : reihen_) summe += hoehe(reihe, lage);
    return summe;
}

double Lastbild::wortbreite() const {
    double breite = 0.0;
    for (const Reihe& reihe : reihen_)
        for (const QString& text : reihe.texte) breite = std::max(breite, z_.textbreite(text));
    return breite;
}

double Lastbild::kraftbreite() const {
    if (!horizontal_) return 0.0;
    const QString text = lasttext(z_, QStringLiteral("Fv,k"), w_.Fvk, QStringLiteral("kN"));
    return std::max(z_.textbreite(text), pfeillaenge(w_.Fvk.value(), 10.0, kraftpfeil * z_.t())) +
           0.8 * z_.t();
}

// Point loads stand on the ribs, as many as can be told apart; the first and the last always.
std::vector<double> Lastbild::stellen(const Reihe& reihe, const Massstab& m) const {
    std::vector<double> x;
    if (reihe.form == Form::gleichlast) {
        const double laenge = g_.l * m.f;
        const int zahl = std::clamp(static_cast<int>(laenge / (1.3 * z_.t())), 1, 200);
        for (int i = 0; i <= zahl; ++i) x.push_back(m.x(0.0) + laenge * i / zahl);
        return x;
    }
    const std::vector<double> achsen = g_.rippenachsen();
    for (const double achse : achsen)
        if (x.empty() || m.x(achse) - x.back() >= 0.7 * z_.t()) x.push_back(m.x(achse));
    if (const double letzte = m.x(achsen.back()); letzte - x.back() > 0.01) {
        if (x.size() > 1) x.pop_back();
        x.push_back(letzte);
    }
    return x;
}

void Lastbild::pfeile(const Reihe& reihe, const Massstab& m, double unten) {
    const double t = z_.t();
    const double laenge = pfeillaenge(reihe.wert, 5.0, groesstePfeil * t);
    const QColor farbe = z_.stil().last;
    if (reihe.form == Form::gleichlast) {
        z_.linie({m.x(0.0), unten - laenge}, {m.x(g_.l), unten - laenge}, Strich::ansicht, farbe);
        z_.linie({m.x(0.0), unten}, {m.x(g_.l), unten}, Strich::mass, farbe);
    }
    for (const double x : stellen(reihe, m)) {
        const QPointF oben(x, unten - laenge);
        const QPointF fuss(x, unten - 0.1 * t);
        reihe.wert >= 0.0 ? z_.pfeil(oben, fuss, farbe, 0.25) : z_.pfeil(fuss, oben, farbe, 0.25);
    }
    z_.bauteil(QRectF(m.x(0.0), unten - laenge, g_.l * m.f, laenge), Fensterart::belastung,
               QStringList(reihe.texte.begin(), reihe.texte.end()).join(QStringLiteral(", ")));
}

void Lastbild::worteDaneben(const Reihe& reihe, const Massstab& m, double unten) {
    const double t = z_.t();
    const double hoehe = zeilenschritt * t * static_cast<double>(reihe.texte.size());
    double y = unten - (groesstePfeil * t) / 2.0 - hoehe / 2.0 + 0.8 * t;
    for (const QString& text : reihe.texte) {
        z_.text({m.x(g_.l) + 0.9 * t, y}, text, Qt::AlignLeft, {1.0, false, z_.stil().last});
        y += zeilenschritt * t;
    }
}

void Lastbild::worteDarueber(const Reihe& reihe, const Massstab& m, double unten) {
    const double t = z_.t();
    const double y = unten - pfeillaenge(reihe.wert, 5.0, groesstePfeil * t) - 0.4 * t;
    const double breite = zeilenbreite(reihe);
    const double rechts = z_.flaeche().width() - breite - 0.3 * t;
    double x = std::clamp(m.x(g_.l / 2.0) - breite / 2.0, 0.3 * t, std::max(0.3 * t, rechts));
    for (const QString& text : reihe.texte) {
        z_.text({x, y}, text, Qt::AlignLeft, {1.0, false, z_.stil().last});
        x += z_.textbreite(text) + wortluft * t;
    }
}

// A positive load comes from the left: it pulls at the left edge rib and presses on the right one. Its words
// stand below the arrow, beside a very low wall above it.
void Lastbild::kraft(const Massstab& m) {
    const double t = z_.t();
    const double richtung = vonLinks_ ? 1.0 : -1.0;
    const double laenge = pfeillaenge(w_.Fvk.value(), 10.0, kraftpfeil * t);
    const double y = m.y(g_.h - g_.bKopfFussrippe / 2.0);
    const double ziel = (vonLinks_ ? m.x(0.0) : m.x(g_.l)) - richtung * 0.3 * t;
    z_.pfeil({ziel - richtung * laenge, y}, {ziel, y}, z_.stil().last, 0.6);
    const QString text = lasttext(z_, QStringLiteral("Fv,k"), w_.Fvk, QStringLiteral("kN"));
    const double grundlinie = g_.h * m.f > 3.4 * t ? y + 1.6 * t : y - 0.7 * t;
    z_.text({ziel - richtung * 0.2 * t, grundlinie}, text, vonLinks_ ? Qt::AlignRight : Qt::AlignLeft,
            {1.0, false, z_.stil().last});
    const double links = vonLinks_ ? ziel - laenge : ziel;
    z_.bauteil(QRectF(links, y - 0.5 * t, laenge, t), Fensterart::belastung, text);
}

void Lastbild::zeichne(const Massstab& m, Wortlage lage) {
    double unten = m.y(g_.h) - 0.4 * z_.t();
    for (const Reihe& reihe : reihen_) {
        pfeile(reihe, m, unten);
        lage == Wortlage::daneben ? worteDaneben(reihe, m, unten) : worteDarueber(reihe, m, unten);
        unten -= hoehe(reihe, lage);
    }
    if (horizontal_) kraft(m);
}

}  // namespace rippenscheibe
