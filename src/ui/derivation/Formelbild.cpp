#include "ui/derivation/Formelbild.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "trace/Formel.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

using namespace herleitung;  // expressions are all this file is about

namespace {

constexpr double verkleinerung = 0.72;  // of indices and exponents
constexpr double kleinste = 8;          // px
constexpr double strich = 1;            // px, rules of fractions and roots

QFont schrift(const QString& familie, const Formelkasten& k) {
    QFont f(familie);
    f.setPixelSize(std::max(1, qRound(k.groesse)));
    f.setItalic(k.kursiv);
    f.setBold(k.fett);
    return f;
}

}  // namespace

// Builds the boxes of a formula from its expression.
class Formelsetzer {
  public:
    Formelsetzer(const Darstellung& d, Formelbild& bild, const QFont& font) : d_(d), bild_(bild) {
        bild_.familie_ = font.family();
        groesse_ = font.pixelSize() > 0 ? font.pixelSize() : QFontMetricsF(font).height() * 0.8;
        groesse_ *= 1.15;
    }

    using Index = std::size_t;

    void zeile(const std::vector<Index>& teile) {
        const Index reihe = nebeneinander(teile);
        const double y = bild_.zeilen_.empty() ? 0 : unterkante_ + 0.6 * groesse_;
        bild_.zeilen_.push_back({{0, y + k(reihe).oben}, reihe});
        unterkante_ = y + k(reihe).oben + k(reihe).unten;
    }

    Index wort(const QString& text, bool kursiv = false, bool fett = false) {
        Formelkasten kasten;
        kasten.art = Formelkasten::Art::text;
        kasten.text = text;
        kasten.groesse = groesse_;
        kasten.kursiv = kursiv;
        kasten.fett = fett;
        const QFontMetricsF mass(schrift(bild_.familie_, kasten));
        kasten.breite = mass.horizontalAdvance(text);
        kasten.oben = mass.ascent();
        kasten.unten = mass.descent();
        return neu(kasten);
    }

    // "f_{m,d}" with the rib behind it.
    Index zeichen(const Stand& s) {
        const Feldeintrag& f = d_.feld(s);
        std::vector<Index> teile = symbol(f.zeichen.empty() ? f.name : f.zeichen);
        if (s.rippe >= 0) teile.push_back(wort(QStringLiteral("(%1)").arg(s.rippe)));
        return nebeneinander(teile);
    }

    Index setze(Ort ort, Formelstil stil) {
        const Knoten& x = d_.knoten(ort);
        switch (x.op) {
            case Op::plus:
                return zwei(x, QStringLiteral(" + "), stil, false, [](Op op) { return op == Op::negativ; });
            case Op::minus:
                return zwei(x, QStringLiteral(" − "), stil, false, istStrich);
            case Op::mal:
                return zwei(x, QStringLiteral(" · "), stil, true, istStrich);
            case Op::durch:
                return bruch(setze(x.a, stil), setze(x.b, stil));
            case Op::negativ:
                return nebeneinander({wort(QStringLiteral("−")), geklammertWenn(x.a, stil, istStrich)});
            case Op::hoch:
                return potenz(x, stil);
            case Op::wurzel:
                return umschliesse(Formelkasten::Art::wurzel, setze(x.a, stil));
            case Op::betrag:
                return umschliesse(Formelkasten::Art::schranken, setze(x.a, stil));
            case Op::sinus:
                return nebeneinander({wort(QStringLiteral("sin")), klammern(setze(x.a, stil))});
            case Op::ganz:
                return nebeneinander({wort(QStringLiteral("ganz")), klammern(setze(x.a, stil))});
            case Op::gerundet:
                return nebeneinander(
                    {wort(QStringLiteral("rund")),
                     klammern(nebeneinander({setze(x.a, stil), wort(QStringLiteral("; %1").arg(x.b))}))});
            case Op::kleinstes:
            case Op::groesstes:
                return liste(x, stil);
            default:
                return blatt(ort, stil);
        }
    }

  private:
    static bool istStrich(Op op) { return op == Op::plus || op == Op::minus || op == Op::negativ; }

    Formelkasten& k(Index i) { return bild_.kaesten_[i]; }
    Index neu(Formelkasten kasten) {
        bild_.kaesten_.push_back(std::move(kasten));
        return bild_.kaesten_.size() - 1;
    }

    Index nebeneinander(const std::vector<Index>& teile) {
        Formelkasten reihe;
        for (const Index teil : teile) {
            reihe.teile.push_back({{reihe.breite, 0}, teil});
            reihe.breite += k(teil).breite;
            reihe.oben = std::max(reihe.oben, k(teil).oben);
            reihe.unten = std::max(reihe.unten, k(teil).unten);
        }
        return neu(std::move(reihe));
    }

    // Indices stand in braces behind a line; letters of the symbol itself are slanted.
    std::vector<Index> symbol(std::string_view zeichen) {
        std::vector<Index> teile;
        while (!zeichen.empty()) {
            const std::size_t anfang = zeichen.find("_{");
            if (anfang != 0) {
                teile.push_back(wort(qtext(zeichen.substr(0, anfang)), true));
                zeichen.remove_prefix(std::min(anfang, zeichen.size()));
                continue;
            }
            const std::size_t ende = std::min(zeichen.find('}'), zeichen.size() - 1);
            teile.push_back(tiefer(qtext(zeichen.substr(2, ende - 2))));
            zeichen.remove_prefix(ende + 1);
        }
        return teile;
    }

    Index tiefer(const QString& text) {
        const double vorher = groesse_;
        groesse_ = std::max(kleinste, groesse_ * verkleinerung);
        const Index index = wort(text);
        groesse_ = vorher;
        Formelkasten kasten;
        const double tiefe = 0.22 * groesse_;
        kasten.breite = k(index).breite + 1;
        kasten.oben = k(index).oben - tiefe;
        kasten.unten = k(index).unten + tiefe;
        kasten.teile = {{{0, tiefe}, index}};
        return neu(std::move(kasten));
    }

    template <class Bedingung>
    Index geklammertWenn(Ort ort, Formelstil stil, Bedingung&& bedingung) {
        const bool negativeZahl = istBlatt(d_.knoten(ort).op) && d_.knoten(ort).wert < 0 &&
                                  (stil == Formelstil::zahlen || d_.knoten(ort).op == Op::zahl);
        const Index innen = setze(ort, stil);
        return bedingung(d_.knoten(ort).op) || negativeZahl ? klammern(innen) : innen;
    }

    template <class Bedingung>
    Index zwei(const Knoten& x, const QString& zeichen, Formelstil stil, bool linksAuch,
               Bedingung&& bedingung) {
        const Index links = linksAuch ? geklammertWenn(x.a, stil, bedingung) : setze(x.a, stil);
        const Index mitte = wort(zeichen);
        return nebeneinander({links, mitte, geklammertWenn(x.b, stil, bedingung)});
    }

    Index bruch(Index zaehler, Index nenner) {
        Formelkasten kasten;
        kasten.art = Formelkasten::Art::bruch;
        const double achse = 0.3 * groesse_;
        const double luft = 0.12 * groesse_;
        kasten.breite = std::max(k(zaehler).breite, k(nenner).breite) + 0.3 * groesse_;
        kasten.oben = achse + luft + k(zaehler).oben + k(zaehler).unten;
        kasten.unten = std::max(0.0, k(nenner).oben + k(nenner).unten + luft - achse);
        kasten.groesse = achse;
        kasten.teile = {
            {{(kasten.breite - k(zaehler).breite) / 2, -achse - luft - k(zaehler).unten}, zaehler},
            {{(kasten.breite - k(nenner).breite) / 2, -achse + luft + k(nenner).oben}, nenner}};
        return neu(std::move(kasten));
    }

    Index umschliesse(Formelkasten::Art art, Index innen) {
        Formelkasten kasten;
        kasten.art = art;
        const double links = art == Formelkasten::Art::wurzel ? 0.75 * groesse_ : 0.35 * groesse_;
        const double rechts = art == Formelkasten::Art::wurzel ? 0.15 * groesse_ : 0.35 * groesse_;
        kasten.groesse = groesse_;
        kasten.breite = links + k(innen).breite + rechts;
        kasten.oben = k(innen).oben + (art == Formelkasten::Art::wurzel ? 3 : 1);
        kasten.unten = k(innen).unten + 1;
        kasten.teile = {{{links, 0}, innen}};
        return neu(std::move(kasten));
    }
    Index klammern(Index innen) { return umschliesse(Formelkasten::Art::klammern, innen); }

    Index potenz(const Knoten& x, Formelstil stil) {
        const bool blattUnten = istBlatt(d_.knoten(x.a).op);
        const Index basis =
            blattUnten ? geklammertWenn(x.a, stil, [](Op) { return false; }) : klammern(setze(x.a, stil));
        const double vorher = groesse_;
        groesse_ = std::max(kleinste, groesse_ * verkleinerung);
        const Index exponent = setze(x.b, stil);
        groesse_ = vorher;
        Formelkasten kasten;
        const double hoehe = k(basis).oben - 0.45 * k(exponent).oben;
        kasten.breite = k(basis).breite + k(exponent).breite + 1;
        kasten.oben = std::max(k(basis).oben, hoehe + k(exponent).oben);
        kasten.unten = k(basis).unten;
        kasten.teile = {{{0, 0}, basis}, {{k(basis).breite + 1, -hoehe}, exponent}};
        return neu(std::move(kasten));
    }

    void sammle(const Knoten& x, std::vector<Ort>& argumente) const {
        for (Ort i = x.a; i < x.b; ++i) {
            const Ort ort = d_.graph().argumente[static_cast<std::size_t>(i)];
            if (d_.knoten(ort).op == x.op) {
                sammle(d_.knoten(ort), argumente);  // a minimum of minima is one
            } else {
                argumente.push_back(ort);
            }
        }
    }

    // min or max of a column of values; the one that decides stands out.
    Index liste(const Knoten& x, Formelstil stil) {
        std::vector<Ort> argumente;
        sammle(x, argumente);
        Formelkasten spalte;
        spalte.art = Formelkasten::Art::liste;
        spalte.groesse = groesse_;
        const double rand = 0.7 * groesse_;
        double y = 0;
        bool gefunden = false;
        for (const Ort ort : argumente) {
            const bool entscheidet = !gefunden && d_.knoten(ort).wert == x.wert;
            gefunden = gefunden || entscheidet;
            Index zeile = setze(ort, stil);
            if (entscheidet) zeile = nebeneinander({zeile, wort(QStringLiteral("  ◂"), false, true)});
            y += k(zeile).oben;
            spalte.teile.push_back({{rand, y}, zeile});
            y += k(zeile).unten;
            spalte.breite = std::max(spalte.breite, rand + k(zeile).breite);
        }
        const double mitte = y / 2 + 0.3 * groesse_;  // of the column on the axis
        for (Formelkasten::Teil& teil : spalte.teile) teil.ort.ry() -= mitte;
        spalte.oben = mitte;
        spalte.unten = y - mitte;
        const Index name = wort(x.op == Op::kleinstes ? QStringLiteral("min ") : QStringLiteral("max "));
        return nebeneinander({name, neu(std::move(spalte))});
    }

    Index blatt(Ort ort, Formelstil stil) {
        const Knoten& x = d_.knoten(ort);
        const bool fuehrtWeiter = x.op == Op::stand || x.op == Op::eigenes;
        Index kasten = 0;
        if (stil == Formelstil::zahlen) {
            kasten = wort(qtext(d_.blattwert(ort)));
        } else if (const Stand* s = d_.standAus(ort)) {
            kasten = zeichen(*s);
        } else if (x.op == Op::konstante) {
            kasten = nebeneinander(symbol(d_.graph().konstanten[static_cast<std::size_t>(x.a)]));
        } else {
            kasten = wort(qtext(d_.blattzeichen(ort)));
        }
        if (fuehrtWeiter) k(kasten).knoten = ort;
        return kasten;
    }

    const Darstellung& d_;
    Formelbild& bild_;
    double groesse_ = 14;
    double unterkante_ = 0;
};

namespace {

void setzeZeilen(Formelsetzer& s, const Darstellung& d, Ort ausdruck, std::size_t links,
                 const QString& wert) {
    const QString gleich = QStringLiteral(" = ");
    s.zeile({links, s.wort(gleich), s.setze(ausdruck, Formelstil::zeichen)});
    const bool rechnet = d.symbolisch(ausdruck) != d.eingesetzt(ausdruck);
    if (rechnet && !istBlatt(d.knoten(ausdruck).op))
        s.zeile({s.wort(gleich), s.setze(ausdruck, Formelstil::zahlen)});
    s.zeile({s.wort(gleich), s.wort(wert, false, true)});
}

}  // namespace

Formelbild Formelbild::gleichung(const Darstellung& d, const herleitung::Schritt& schritt,
                                 const QFont& schrift) {
    Formelbild bild;
    Formelsetzer s(d, bild, schrift);
    const Stand& stand = d.stand(schritt);
    const QString wert = schritt.behalten ? QStringLiteral("ohne Wert") : qtext(d.wertMitEinheit(stand));
    const Op op = d.knoten(schritt.ausdruck).op;
    if (op == Op::zahl || op == Op::tabelle) {
        s.zeile({s.zeichen(stand), s.wort(QStringLiteral(" = ")), s.wort(wert, false, true)});
    } else {
        setzeZeilen(s, d, schritt.ausdruck, s.zeichen(stand), wert);
    }
    return bild;
}

Formelbild Formelbild::ausdruck(const Darstellung& d, Ort ort, const QFont& schrift) {
    Formelbild bild;
    Formelsetzer s(d, bild, schrift);
    setzeZeilen(s, d, ort, s.wort(QStringLiteral("im Bericht")), qtext(lesbar(d.knoten(ort).wert)));
    return bild;
}

QSizeF Formelbild::groesse() const {
    QSizeF groesse(0, 0);
    for (const Formelkasten::Teil& zeile : zeilen_) {
        const Formelkasten& k = kaesten_[zeile.kasten];
        groesse = groesse.expandedTo({zeile.ort.x() + k.breite, zeile.ort.y() + k.unten});
    }
    return groesse;
}

namespace {

// The signs around the parts of a box at `o`, its left end on the base line.
void maleBruchstrich(QPainter& maler, const Formelkasten& k, QPointF o) {
    maler.drawLine(QPointF(o.x() + 1, o.y() - k.groesse), QPointF(o.x() + k.breite - 1, o.y() - k.groesse));
}

void maleWurzel(QPainter& maler, const Formelkasten& k, QPointF o) {
    const double oben = o.y() - k.oben;
    const double unten = o.y() + k.unten;
    const double r = 0.75 * k.groesse;
    maler.drawPolyline(QPolygonF({{o.x() + 0.1 * r, o.y() - 0.3 * k.groesse},
                                  {o.x() + 0.3 * r, o.y() - 0.4 * k.groesse},
                                  {o.x() + 0.6 * r, unten - 1},
                                  {o.x() + 0.95 * r, oben + 1},
                                  {o.x() + k.breite - 1, oben + 1}}));
}

void maleKlammern(QPainter& maler, const Formelkasten& k, QPointF o) {
    const double oben = o.y() - k.oben;
    const double unten = o.y() + k.unten;
    const double b = 0.22 * k.groesse;
    for (const double seite : {1.0, -1.0}) {
        const double x = seite > 0 ? o.x() + 2 : o.x() + k.breite - 2;
        QPainterPath bogen(QPointF(x + seite * b, oben));
        bogen.quadTo(QPointF(x - seite * b, (oben + unten) / 2), QPointF(x + seite * b, unten));
        maler.drawPath(bogen);
    }
}

void maleSchranken(QPainter& maler, const Formelkasten& k, QPointF o) {
    for (const double x : {o.x() + 3, o.x() + k.breite - 3})
        maler.drawLine(QPointF(x, o.y() - k.oben), QPointF(x, o.y() + k.unten));
}

// One large brace at the left.
void maleListe(QPainter& maler, const Formelkasten& k, QPointF o) {
    const double oben = o.y() - k.oben;
    const double unten = o.y() + k.unten;
    const double x = o.x() + 0.15 * k.groesse;
    const double b = 0.3 * k.groesse;
    const double mitte = (oben + unten) / 2;
    QPainterPath bogen(QPointF(x + b, oben + 1));
    bogen.quadTo(QPointF(x, oben + 1), QPointF(x + b / 2, (oben + mitte) / 2));
    bogen.quadTo(QPointF(x + b / 2, mitte - 2), QPointF(x, mitte));
    bogen.quadTo(QPointF(x + b / 2, mitte + 2), QPointF(x + b / 2, (unten + mitte) / 2));
    bogen.quadTo(QPointF(x, unten - 1), QPointF(x + b, unten - 1));
    maler.drawPath(bogen);
}

void maleZeichen(QPainter& maler, const Formelkasten& k, QPointF o, const QString& familie) {
    switch (k.art) {
        case Formelkasten::Art::text:
            maler.setFont(schrift(familie, k));
            maler.drawText(o, k.text);
            break;
        case Formelkasten::Art::bruch:
            return maleBruchstrich(maler, k, o);
        case Formelkasten::Art::wurzel:
            return maleWurzel(maler, k, o);
        case Formelkasten::Art::klammern:
            return maleKlammern(maler, k, o);
        case Formelkasten::Art::schranken:
            return maleSchranken(maler, k, o);
        case Formelkasten::Art::liste:
            return maleListe(maler, k, o);
        case Formelkasten::Art::reihe:
            break;
    }
}

}  // namespace

void Formelbild::male(QPainter& maler, QPointF ecke, const QPalette& farben) const {
    const std::function<void(const Formelkasten&, QPointF, bool)> male = [&](const Formelkasten& k, QPointF o,
                                                                             bool verweis) {
        verweis = verweis || k.knoten != keiner;
        maler.setPen(QPen(farben.color(verweis ? QPalette::Link : QPalette::Text), strich));
        maleZeichen(maler, k, o, familie_);
        for (const Formelkasten::Teil& teil : k.teile) male(kaesten_[teil.kasten], o + teil.ort, verweis);
    };
    maler.setBrush(Qt::NoBrush);
    for (const Formelkasten::Teil& zeile : zeilen_) male(kaesten_[zeile.kasten], ecke + zeile.ort, false);
}

std::optional<Ort> Formelbild::treffer(QPointF punkt) const {
    std::optional<Ort> gefunden;
    const std::function<void(const Formelkasten&, QPointF)> suche = [&](const Formelkasten& k, QPointF o) {
        const bool innen = QRectF(o.x(), o.y() - k.oben, k.breite, k.oben + k.unten).contains(punkt);
        if (innen && k.knoten != keiner) gefunden = k.knoten;
        for (const Formelkasten::Teil& teil : k.teile) suche(kaesten_[teil.kasten], o + teil.ort);
    };
    for (const Formelkasten::Teil& zeile : zeilen_) suche(kaesten_[zeile.kasten], zeile.ort);
    return gefunden;
}

}  // namespace rippenscheibe
