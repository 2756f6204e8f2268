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

QFont schrift(const QString& familie, const Formelkasten& k) {
    QFont f(familie);
    f.setPixelSize(std::max(1, qRound(k.groesse)));
    f.setItalic(k.kursiv);
    f.setBold(k.fett);
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

}  // namespace

// Builds the boxes of a formula from its expression.
class Formelsetzer {
  public:
    Formelsetzer(const Darstellung& d, Formelbild& bild, const Formelmass& mass)
        : d_(d), bild_(bild), mass_(mass), groesse_(mass.groesse) {
        bild_.familie_ = mass.familie;
        bild_.strich_ = mass.strich;
    }

    using Index = std::size_t;

    void zeile(const std::vector<Index>& teile, double x = 0) {
        const Index reihe = nebeneinander(teile);
        const double y = bild_.zeilen_.empty() ? 0 : unterkante_ + mass_.zeilenluft;
        bild_.zeilen_.push_back({{x, y + k(reihe).oben}, reihe});
        unterkante_ = y + k(reihe).oben + k(reihe).unten;
    }

    // "links = symbols = numbers = value": in one row if the measure asks for it, else in rows whose signs of
    // equality stand below each other.
    void gleichung(Index links, Ort ausdruck, const QString& wert) {
        const Index gleich = wort(QStringLiteral(" = "));
        const bool nurWert = ausdruck == keiner;
        const bool rechnet = !nurWert && !istBlatt(d_.knoten(ausdruck).op) &&
                             d_.symbolisch(ausdruck) != d_.eingesetzt(ausdruck);
        std::vector<Index> zeichen = nurWert ? std::vector<Index>() : glieder(ausdruck, Formelstil::zeichen);
        std::vector<Index> zahlen = rechnet ? glieder(ausdruck, Formelstil::zahlen) : std::vector<Index>();
        const std::vector<Index> ergebnis{gleich, wort(wert, false, true)};
        std::vector<Index> alles{links};
        for (const std::vector<Index>* stueck : {&zeichen, &zahlen}) {
            if (stueck->empty()) continue;
            alles.push_back(gleich);
            alles.insert(alles.end(), stueck->begin(), stueck->end());
        }
        alles.insert(alles.end(), ergebnis.begin(), ergebnis.end());
        if (nurWert || (mass_.einzeilig && breite(alles) <= mass_.breite)) return zeile(alles);

        const double einzug = k(links).breite;
        const double hinterGleich = einzug + k(gleich).breite;
        if (mass_.einzeilig) (zahlen.empty() ? zeichen : zahlen).push_back(nebeneinander(ergebnis));
        umbrich({links, gleich}, zeichen, 0, hinterGleich);
        if (!zahlen.empty()) umbrich({gleich}, zahlen, einzug, hinterGleich);
        if (!mass_.einzeilig) zeile(ergebnis, einzug);
        const double b = bild_.groesse().width();
        if (mass_.einzeilig && b > mass_.breite) bild_.massstab_ = mass_.breite / b;
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
                return summe(x, QStringLiteral(" + "), stil, [](Op op) { return op == Op::negativ; });
            case Op::minus:
                return summe(x, QStringLiteral(" − "), stil, istStrich);
            case Op::mal:
                return produkt(x, stil);
            case Op::durch:
                return imBruch_ ? schraegerBruch(x, stil) : bruch(x, stil);
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
        if (constexpr std::string_view groesstes = "max "; zeichen.starts_with(groesstes)) {
            teile.push_back(wort(qtext(groesstes)));
            zeichen.remove_prefix(groesstes.size());
        }
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
        groesse_ = std::max(mass_.kleinste, groesse_ * verkleinerung);
        const Index index = wort(text);
        groesse_ = vorher;
        Formelkasten kasten;
        const double tiefe = 0.22 * groesse_;
        kasten.breite = k(index).breite + mass_.strich;
        kasten.oben = k(index).oben - tiefe;
        kasten.unten = k(index).unten + tiefe;
        kasten.teile = {{{0, tiefe}, index}};
        return neu(std::move(kasten));
    }

    double breite(const std::vector<Index>& teile) {
        double summe = 0;
        for (const Index teil : teile) summe += k(teil).breite;
        return summe;
    }

    // A row and as many more as it takes, each but the first from `einzug` on.
    void umbrich(std::vector<Index> reihe, const std::vector<Index>& teile, double x, double einzug) {
        double b = x + breite(reihe);
        bool leer = true;
        for (const Index teil : teile) {
            if (!leer && mass_.breite > 0 && b + k(teil).breite > mass_.breite) {
                zeile(reihe, x);
                reihe.clear();
                b = x = einzug;
            }
            reihe.push_back(teil);
            b += k(teil).breite;
            leer = false;
        }
        zeile(reihe, x);
    }

    // Where a sum or a product may break: its terms, each behind its sign.
    std::vector<Index> glieder(Ort ort, Formelstil stil) {
        const Knoten& x = d_.knoten(ort);
        const bool summe = x.op == Op::plus || x.op == Op::minus;
        if (!summe && x.op != Op::mal) return {setze(ort, stil)};
        const Op links = d_.knoten(x.a).op;
        const bool kette = summe ? links == Op::plus || links == Op::minus : links == Op::mal;
        std::vector<Index> teile = kette   ? glieder(x.a, stil)
                                   : summe ? std::vector{setze(x.a, stil)}
                                           : std::vector{geklammertWenn(x.a, stil, istStrich)};
        const Index zeichen = wort(x.op == Op::plus    ? QStringLiteral(" + ")
                                   : x.op == Op::minus ? QStringLiteral(" − ")
                                                       : QStringLiteral(" · "));
        const Index rechts = geklammertWenn(
            x.b, stil, [&](Op op) { return x.op == Op::plus ? op == Op::negativ : istStrich(op); });
        teile.push_back(nebeneinander({zeichen, rechts}));
        return teile;
    }

    template <class Bedingung>
    Index geklammertWenn(Ort ort, Formelstil stil, Bedingung&& bedingung) {
        const bool negativeZahl = istBlatt(d_.knoten(ort).op) && d_.knoten(ort).wert < 0 &&
                                  (stil == Formelstil::zahlen || d_.knoten(ort).op == Op::zahl);
        const Index innen = setze(ort, stil);
        return bedingung(d_.knoten(ort).op) || negativeZahl ? klammern(innen) : innen;
    }

    template <class Bedingung>
    Index summe(const Knoten& x, const QString& zeichen, Formelstil stil, Bedingung&& bedingung) {
        const Index links = setze(x.a, stil);
        const Index mitte = wort(zeichen);
        return nebeneinander({links, mitte, geklammertWenn(x.b, stil, bedingung)});
    }

    Index produkt(const Knoten& x, Formelstil stil) {
        // "(E / γ) · A": behind an oblique stroke a factor would seem to stand below it.
        const Index links =
            geklammertWenn(x.a, stil, [&](Op op) { return istStrich(op) || (imBruch_ && op == Op::durch); });
        const Index mitte = wort(QStringLiteral(" · "));
        return nebeneinander({links, mitte, geklammertWenn(x.b, stil, istStrich)});
    }

    // A quotient within another one stays in its line: "a / b".
    Index schraegerBruch(const Knoten& x, Formelstil stil) {
        const Index zaehler = geklammertWenn(x.a, stil, istStrich);
        const Index mitte = wort(QStringLiteral(" / "));
        const Index nenner = geklammertWenn(
            x.b, stil, [](Op op) { return istStrich(op) || op == Op::mal || op == Op::durch; });
        return nebeneinander({zaehler, mitte, nenner});
    }

    Index bruch(const Knoten& x, Formelstil stil) {
        imBruch_ = true;
        const Index zaehler = setze(x.a, stil);
        const Index nenner = setze(x.b, stil);
        imBruch_ = false;
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
        kasten.oben = k(innen).oben + (art == Formelkasten::Art::wurzel ? 3 : 1) * mass_.strich;
        kasten.unten = k(innen).unten + mass_.strich;
        kasten.teile = {{{links, 0}, innen}};
        return neu(std::move(kasten));
    }
    Index klammern(Index innen) { return umschliesse(Formelkasten::Art::klammern, innen); }

    Index potenz(const Knoten& x, Formelstil stil) {
        const bool blattUnten = istBlatt(d_.knoten(x.a).op);
        const Index basis =
            blattUnten ? geklammertWenn(x.a, stil, [](Op) { return false; }) : klammern(setze(x.a, stil));
        const double vorher = groesse_;
        groesse_ = std::max(mass_.kleinste, groesse_ * verkleinerung);
        const Index exponent = setze(x.b, stil);
        groesse_ = vorher;
        Formelkasten kasten;
        const double hoehe = k(basis).oben - 0.45 * k(exponent).oben;
        kasten.breite = k(basis).breite + k(exponent).breite + mass_.strich;
        kasten.oben = std::max(k(basis).oben, hoehe + k(exponent).oben);
        kasten.unten = k(basis).unten;
        kasten.teile = {{{0, 0}, basis}, {{k(basis).breite + mass_.strich, -hoehe}, exponent}};
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
            if (y > 0) y += 0.2 * groesse_;
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

    Index stift() {
        Formelkasten kasten;
        kasten.art = Formelkasten::Art::stift;
        kasten.groesse = 0.62 * groesse_;
        kasten.breite = kasten.oben = kasten.groesse;
        return neu(std::move(kasten));
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
        const Stand* stand = d_.standAus(ort);
        if (mass_.stifte && stil == Formelstil::zeichen && stand != nullptr && d_.feld(*stand).eingabe)
            kasten = nebeneinander({kasten, stift()});
        if (fuehrtWeiter) k(kasten).knoten = ort;
        return kasten;
    }

    const Darstellung& d_;
    Formelbild& bild_;
    const Formelmass& mass_;
    double groesse_;
    double unterkante_ = 0;
    bool imBruch_ = false;
};

void zeichneStift(QPainter& maler, const QRectF& r) {
    const auto punkt = [&](double x, double y) {
        return QPointF(r.x() + x * r.width(), r.y() + y * r.height());
    };
    maler.drawPolygon(QPolygonF(
        {punkt(0.05, 0.95), punkt(0.12, 0.68), punkt(0.72, 0.08), punkt(0.92, 0.28), punkt(0.32, 0.88)}));
    maler.drawLine(punkt(0.58, 0.22), punkt(0.78, 0.42));
}

Formelmass schirmmass(const QFont& schrift, double breite) {
    const double groesse =
        1.15 * (schrift.pixelSize() > 0 ? schrift.pixelSize() : QFontMetricsF(schrift).height() * 0.8);
    return {.familie = schrift.family(),
            .groesse = groesse,
            .zeilenluft = 0.6 * groesse,
            .breite = breite,
            .stifte = true};
}

Formelbild Formelbild::gleichung(const Darstellung& d, const herleitung::Schritt& schritt,
                                 const Formelmass& mass) {
    Formelbild bild;
    Formelsetzer s(d, bild, mass);
    const Stand& stand = d.stand(schritt);
    const QString wert = schritt.behalten ? QStringLiteral("ohne Wert") : qtext(d.wertMitEinheit(stand));
    const Op op = d.knoten(schritt.ausdruck).op;
    const bool nurWert = op == Op::zahl || op == Op::tabelle;
    s.gleichung(s.zeichen(stand), nurWert ? keiner : schritt.ausdruck, wert);
    return bild;
}

Formelbild Formelbild::stand(const Darstellung& d, const Stand& stand, const Formelmass& mass) {
    Formelbild bild;
    Formelsetzer s(d, bild, mass);
    s.gleichung(s.zeichen(stand), keiner, qtext(d.wertMitEinheit(stand)));
    return bild;
}

Formelbild Formelbild::ausdruck(const Darstellung& d, Ort ort, const Formelmass& mass) {
    Formelbild bild;
    Formelsetzer s(d, bild, mass);
    s.gleichung(s.wort(QStringLiteral("im Bericht")), ort, qtext(lesbar(d.knoten(ort).wert)));
    return bild;
}

QSizeF Formelbild::groesse() const {
    QSizeF groesse(0, 0);
    for (const Formelkasten::Teil& zeile : zeilen_) {
        const Formelkasten& k = kaesten_[zeile.kasten];
        groesse = groesse.expandedTo({zeile.ort.x() + k.breite, zeile.ort.y() + k.unten});
    }
    return groesse * massstab_;
}

double Formelbild::breiteErsteZeile() const {
    return zeilen_.empty() ? 0 : massstab_ * kaesten_[zeilen_.front().kasten].breite;
}

double Formelbild::grundlinie() const { return zeilen_.empty() ? 0 : massstab_ * zeilen_.front().ort.y(); }

namespace {

// The signs around the parts of a box at `o`, its left end on the base line.
void maleBruchstrich(QPainter& maler, const Formelkasten& k, QPointF o, double strich) {
    maler.drawLine(QPointF(o.x() + strich, o.y() - k.groesse),
                   QPointF(o.x() + k.breite - strich, o.y() - k.groesse));
}

void maleWurzel(QPainter& maler, const Formelkasten& k, QPointF o, double strich) {
    const double oben = o.y() - k.oben;
    const double unten = o.y() + k.unten;
    const double r = 0.75 * k.groesse;
    maler.drawPolyline(QPolygonF({{o.x() + 0.1 * r, o.y() - 0.3 * k.groesse},
                                  {o.x() + 0.3 * r, o.y() - 0.4 * k.groesse},
                                  {o.x() + 0.6 * r, unten - strich},
                                  {o.x() + 0.95 * r, oben + strich},
                                  {o.x() + k.breite - strich, oben + strich}}));
}

void maleKlammern(QPainter& maler, const Formelkasten& k, QPointF o, double strich) {
    const double oben = o.y() - k.oben;
    const double unten = o.y() + k.unten;
    const double b = 0.22 * k.groesse;
    for (const double seite : {1.0, -1.0}) {
        const double x = seite > 0 ? o.x() + 2 * strich : o.x() + k.breite - 2 * strich;
        QPainterPath bogen(QPointF(x + seite * b, oben));
        bogen.quadTo(QPointF(x - seite * b, (oben + unten) / 2), QPointF(x + seite * b, unten));
        maler.drawPath(bogen);
    }
}

void maleSchranken(QPainter& maler, const Formelkasten& k, QPointF o, double strich) {
    for (const double x : {o.x() + 3 * strich, o.x() + k.breite - 3 * strich})
        maler.drawLine(QPointF(x, o.y() - k.oben), QPointF(x, o.y() + k.unten));
}

// One large brace at the left.
void maleListe(QPainter& maler, const Formelkasten& k, QPointF o, double strich) {
    const double oben = o.y() - k.oben;
    const double unten = o.y() + k.unten;
    const double x = o.x() + 0.15 * k.groesse;
    const double b = 0.3 * k.groesse;
    const double mitte = (oben + unten) / 2;
    QPainterPath bogen(QPointF(x + b, oben + strich));
    bogen.quadTo(QPointF(x, oben + strich), QPointF(x + b / 2, (oben + mitte) / 2));
    bogen.quadTo(QPointF(x + b / 2, mitte - 2 * strich), QPointF(x, mitte));
    bogen.quadTo(QPointF(x + b / 2, mitte + 2 * strich), QPointF(x + b / 2, (unten + mitte) / 2));
    bogen.quadTo(QPointF(x, unten - strich), QPointF(x + b, unten - strich));
    maler.drawPath(bogen);
}

void maleZeichen(QPainter& maler, const Formelkasten& k, QPointF o, const QString& familie, double strich) {
    switch (k.art) {
        case Formelkasten::Art::text:
            maler.setFont(schrift(familie, k));
            maler.drawText(o, k.text);
            break;
        case Formelkasten::Art::bruch:
            return maleBruchstrich(maler, k, o, strich);
        case Formelkasten::Art::wurzel:
            return maleWurzel(maler, k, o, strich);
        case Formelkasten::Art::klammern:
            return maleKlammern(maler, k, o, strich);
        case Formelkasten::Art::schranken:
            return maleSchranken(maler, k, o, strich);
        case Formelkasten::Art::liste:
            return maleListe(maler, k, o, strich);
        case Formelkasten::Art::stift:
            return zeichneStift(
                maler, QRectF(o.x() + 0.15 * k.groesse, o.y() - k.oben, 0.85 * k.groesse, k.groesse));
        case Formelkasten::Art::reihe:
            break;
    }
}

}  // namespace

void Formelbild::male(QPainter& maler, QPointF ecke, const QPalette& farben) const {
    const std::function<void(const Formelkasten&, QPointF, bool)> male = [&](const Formelkasten& k, QPointF o,
                                                                             bool verweis) {
        verweis = verweis || k.knoten != keiner;
        maler.setPen(QPen(farben.color(verweis ? QPalette::Link : QPalette::Text), strich_));
        maleZeichen(maler, k, o, familie_, strich_);
        for (const Formelkasten::Teil& teil : k.teile) male(kaesten_[teil.kasten], o + teil.ort, verweis);
    };
    maler.save();
    maler.translate(ecke);
    maler.scale(massstab_, massstab_);
    maler.setBrush(Qt::NoBrush);
    for (const Formelkasten::Teil& zeile : zeilen_) male(kaesten_[zeile.kasten], zeile.ort, false);
    maler.restore();
}

std::optional<Ort> Formelbild::treffer(QPointF punkt) const {
    std::optional<Ort> gefunden;
    const std::function<void(const Formelkasten&, QPointF)> suche = [&](const Formelkasten& k, QPointF o) {
        const bool innen = QRectF(o.x(), o.y() - k.oben, k.breite, k.oben + k.unten).contains(punkt);
        if (innen && k.knoten != keiner) gefunden = k.knoten;
        for (const Formelkasten::Teil& teil : k.teile) suche(kaesten_[teil.kasten], o + teil.ort);
    };
    punkt /= massstab_;
    for (const Formelkasten::Teil& zeile : zeilen_) suche(kaesten_[zeile.kasten], zeile.ort);
    return gefunden;
}

}  // namespace rippenscheibe
