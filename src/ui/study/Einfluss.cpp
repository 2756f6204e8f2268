#include "ui/study/Einfluss.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <utility>

#include "ui/basics/Programm.h"
#include "ui/drawings/Bildmenue.h"
#include "ui/drawings/Kurvenansicht.h"
#include "ui/studyparts/Feldworte.h"
#include "ui/studyparts/Groessenwahl.h"
#include "ui/studyparts/Lastfallwahl.h"
#include "ui/studyparts/Studientabelle.h"
#include "ui/studyparts/Wandblatt.h"

namespace rippenscheibe {

namespace {

constexpr std::size_t hoechstensWerte = 2000;
constexpr double keiner = std::numeric_limits<double>::quiet_NaN();

double xWert(const Achse& achse, bool istListe, std::size_t i) {
    return istListe ? static_cast<double>(i) : std::get<double>(achse.werte[i].setzt.front().second);
}

// The value of today among those of the axis: rising, and once.
Achse mitHeute(const Achse& achse, const Wand& heute) {
    Wand kopie = heute;
    std::set<double> werte{Feldzugriff(kopie).zahl(achse.felder.front())};
    if (eingabefeld(achse.felder.front()).typ == Feldart::f32)
        werte = {wieGetippt(static_cast<float>(*werte.begin()))};
    for (std::size_t i = 0; i < achse.werte.size(); ++i) werte.insert(xWert(achse, false, i));
    std::string text = achse.name + "=";
    for (const double wert : werte) text += (text.back() == '=' ? "" : ",") + zahltext(wert);
    return std::get<Achse>(achseAus(text, Grenzen::uebergehen));
}

// The place of today's value, nothing where the list does not hold it.
double heutigerWert(const Achse& achse, bool istListe, const Wand& heute) {
    for (std::size_t i = 0; i < achse.werte.size(); ++i)
        if (aenderungstext(heute, achse.werte[i].setzt).isEmpty()) return xWert(achse, istListe, i);
    return keiner;
}

// So many places that neighbours differ.
std::string maske(const Achse& achse) {
    std::size_t stellen = 0;
    for (const Achsenwert& wert : achse.werte)
        if (const std::size_t punkt = wert.text.find('.'); punkt != std::string::npos)
            stellen = std::max(stellen, wert.text.size() - punkt - 1);
    return stellen == 0 ? "0" : "0." + std::string(std::min<std::size_t>(stellen, 4), '0');
}

Kurve kurve(const std::vector<Variationspunkt>& punkte, std::size_t abschnitt) {
    Kurve k;
    for (const Variationspunkt& p : punkte) {
        k.werte.push_back(keiner);
        if (abschnitt >= p.abschnitte.size()) continue;
        const Abschnittsurteil& a = p.abschnitte[abschnitt];
        k.name = qtext(a.name).section(QLatin1Char(' '), 0, 0);
        const bool gefuehrt =
            a.stand == Nachweisstand::gefuehrt || (a.stand == Nachweisstand::offen && a.groesster > 0);
        if (gefuehrt) k.werte.back() = a.groesster;
    }
    return k;
}

std::vector<Sperrbereich> sperren(const std::vector<double>& x, const std::vector<Variationspunkt>& punkte) {
    std::vector<Sperrbereich> alle;
    bool offen = false;
    for (std::size_t i = 0; i < punkte.size(); ++i) {
        const bool gesperrt = punkte[i].bewertung.ausgang == Ausgang::hinweis;
        const double davor = i == 0 ? x[i] : (x[i - 1] + x[i]) / 2;
        const double danach = i + 1 == x.size() ? x[i] : (x[i] + x[i + 1]) / 2;
        const QString grund = qtext(punkte[i].bewertung.hinweis);
        if (gesperrt && (!offen || alle.back().grund != grund)) alle.push_back({davor, danach, grund});
        if (gesperrt) alle.back().bis = danach;
        offen = gesperrt;
    }
    return alle;
}

}  // namespace

Kurvendaten kurvendaten(const Achse& achse, bool istListe, const std::vector<Variationspunkt>& punkte) {
    constexpr std::size_t abschnitte = 8;
    Kurvendaten d;
    d.achse = istListe ? feldname(achse.felder) : mitEinheit(achse.felder);
    d.maske = maske(achse);
    for (std::size_t i = 0; i < punkte.size(); ++i) {
        d.x.push_back(xWert(achse, istListe, i));
        if (!istListe) continue;
        d.xNamen.push_back(werttext(achse.werte[i]));
    }
    for (std::size_t a = 0; a < abschnitte; ++a) {
        Kurve k = kurve(punkte, a);
        if (std::any_of(k.werte.begin(), k.werte.end(), [](double eta) { return std::isfinite(eta); }))
            d.kurven.push_back(std::move(k));
    }
    d.sperren = sperren(d.x, punkte);
    return d;
}

Einfluss::Einfluss(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Einfluss"), QStringLiteral("  Einfluss"),
              Tippen::aendertNichts),
      wahl_(new Groessenwahl(QStringLiteral("Groesse"), QStringLiteral("Eingabe:"),
                             groessen(studienwand(programm)), abstandsgroesse(programm.w), this)),
      lastfaelle_(new Lastfallwahl(programm, this)),
      stand_(new QLabel(this)),
      kurven_(new Kurvenansicht),
      wandblatt_(new Wandblatt) {
    stand_->setObjectName(QStringLiteral("Stand"));
    stand_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    stand_->setToolTip(QStringLiteral("Jeder Wert ist frisch und in beiden Richtungen von Fv gerechnet"));
    kurven_->setObjectName(QStringLiteral("Kurven"));
    kurven_->setzeDezimalzeichen(dezimalzeichen());
    kurven_->bieteDateien(programm, meldungen);
    auto* teiler = new QSplitter(Qt::Horizontal, this);
    teiler->setObjectName(QStringLiteral("TeilerEinfluss"));
    teiler->setChildrenCollapsible(false);
    teiler->setHandleWidth(2 * raster);
    teiler->addWidget(kurven_);
    teiler->addWidget(wandblatt_);
    teiler->setSizes({760, 380});
    teiler->setStretchFactor(0, 1);
    inhalt()->addWidget(wahl_);
    auto* zeile = new QHBoxLayout;
    zeile->setSpacing(3 * raster);
    zeile->addWidget(lastfaelle_);
    zeile->addWidget(stand_, 1);
    inhalt()->addLayout(zeile);
    inhalt()->addWidget(teiler, 1);

    bild_ = schaltflaeche(QStringLiteral("Bild"), QStringLiteral("&Bild ..."));
    bild_->setToolTip(QStringLiteral("Kurven kopieren oder als SVG, PNG, PDF speichern"));
    uebernehmen_ = schaltflaeche(QStringLiteral("Uebernehmen"), QStringLiteral("Wert über&nehmen"));
    uebernehmen_->setToolTip(
        QStringLiteral("Den Wert an der Marke in die Position übernehmen; lässt sich rückgängig machen"));
    zurueck(QStringLiteral("Command1"));

    connect(wahl_, &Groessenwahl::geaendert, this, &Einfluss::rechne);
    connect(lastfaelle_, &QCheckBox::clicked, this, &Einfluss::rechne);
    connect(&programm, &Programm::geaendert, this, &Einfluss::rechne);
    connect(&hintergrund_, &Hintergrund::fortschritt, this, [this](const Fortschritt& stand) {
        if (stand.geprueft < stand.gesamt)
            stand_->setText(
                QStringLiteral("Wird gerechnet: %1 von %2 Werten").arg(stand.geprueft).arg(stand.gesamt));
    });
    connect(kurven_, &Kurvenansicht::markeBewegt, this, &Einfluss::zeigeMarke);
    connect(bild_, &QPushButton::clicked, this, &Einfluss::oeffneBildmenue);
    connect(uebernehmen_, &QPushButton::clicked, this, [this] {
        uebernimm(programm_, QStringLiteral("Einfluss"),
                  verlauf_.achse.werte[stelle(kurven_->marke())].setzt);
    });
    resize(1180, 740);  // room for what the value at the mark is told to change
    rechne();
}

void Einfluss::rechne() {
    const auto gelesen = wahl_->achse();
    if (const auto* satz = std::get_if<std::string>(&gelesen)) {
        hintergrund_.verwirf();
        stand_->setText(QStringLiteral("! ") + qtext(*satz));
        return;
    }
    Verlauf verlauf{studienwand(programm_), std::get<Achse>(gelesen), wahl_->groesse().istListe(), {}, {}};
    if (!verlauf.istListe) verlauf.achse = mitHeute(verlauf.achse, verlauf.heute);
    verlauf.regel.lastfaelle = lastfaelle_->faelle(Raster({verlauf.achse}));
    if (verlauf.achse.werte.size() > hoechstensWerte) {
        hintergrund_.verwirf();
        stand_->setText(QStringLiteral("! Es sind mehr als %1 Werte.").arg(hoechstensWerte));
        return;
    }
    hintergrund_.starte(
        [verlauf](const Ausfuehrung& ausfuehrung) {
            Verlauf neu = verlauf;
            const Variationsauftrag v{
                neu.heute, neu.heute.eigeneMaterialien, neu.regel, Raster({neu.achse}), {}, true};
            variiere(v, ausfuehrung, [&](const Variationspunkt& punkt) {
                neu.punkte.push_back(punkt);
                return true;
            });
            neu.vollstaendig = neu.punkte.size() == neu.achse.werte.size();
            return neu;
        },
        [this](Verlauf neu) { zeige(std::move(neu)); });
}

void Einfluss::zeige(Verlauf verlauf) {
    verlauf_ = std::move(verlauf);
    daten_ = kurvendaten(verlauf_.achse, verlauf_.istListe, verlauf_.punkte);
    const double heute = heutigerWert(verlauf_.achse, verlauf_.istListe, verlauf_.heute);
    const auto bestehen =
        std::count_if(verlauf_.punkte.begin(), verlauf_.punkte.end(),
                      [](const Variationspunkt& p) { return p.bewertung.ausgang == Ausgang::besteht; });
    stand_->setText(QStringLiteral("%1 von %2 Werten bestehen. Die Marke lässt sich ziehen.")
                        .arg(bestehen)
                        .arg(verlauf_.punkte.size()));
    Wand wand = verlauf_.heute;
    const double naechster = verlauf_.istListe ? 0 : Feldzugriff(wand).zahl(verlauf_.achse.felder.front());
    const double marke = std::isfinite(heute) ? heute : naechster;
    kurven_->setze(daten_, marke);
    zeigeMarke(marke);
}

std::size_t Einfluss::stelle(double x) const {
    const auto naechste = std::min_element(daten_.x.begin(), daten_.x.end(), [x](double a, double b) {
        return std::fabs(a - x) < std::fabs(b - x);
    });
    return static_cast<std::size_t>(naechste - daten_.x.begin());
}

// Drawing, value and verdict of the wall at the mark.
void Einfluss::zeigeMarke(double x) {
    if (verlauf_.punkte.empty()) return;
    const std::size_t i = stelle(x);
    const Zuweisungen& setzt = verlauf_.achse.werte[i].setzt;
    const Wand wand = mitZuweisungen(verlauf_.heute, setzt);
    const QString aenderung = aenderungstext(verlauf_.heute, setzt);
    wandblatt_->zeigeWand(wand, aenderung.isEmpty()
                                    ? QStringLiteral("heute: %1").arg(achsentext(verlauf_.achse, wand))
                                    : aenderung);
    uebernehmen_->setEnabled(!aenderung.isEmpty());
    zeigeUrteil(verlauf_.punkte[i]);
}

void Einfluss::zeigeUrteil(const Variationspunkt& punkt) {
    const Bewertung& b = punkt.bewertung;
    const Balkenurteil art = balkenurteil(b.ausgang);
    const QString ausnutzung = ausnutzungszelle(b, verlauf_.regel).text;
    wandblatt_->zeigeUrteil(b.ausgang == Ausgang::hinweis
                                ? QStringLiteral("! Hinweis, keine Berechnung")
                                : QStringLiteral("%1 %2 · größte Ausnutzung %3")
                                      .arg(urteilszeichen(art), urteilswort(art), ausnutzung),
                            art);
    const Studienzelle massgebend = massgebendzelle(b, verlauf_.regel);
    QStringList zeilen{massgebend.tip.isEmpty() ? massgebend.text : massgebend.tip};
    if (const QString richtung = richtungstext(b, verlauf_.regel, verlauf_.heute.Fvk.value());
        richtung != QStringLiteral("–"))
        zeilen.front() += QStringLiteral(" · ") + richtung;
    if (!punkt.luecken.empty()) zeilen << QStringLiteral("! ") + qtext(punkt.luecken.front());
    if (punkt.luecken.size() > 1)
        zeilen.back() += QStringLiteral(" (und %1 weitere)").arg(punkt.luecken.size() - 1);
    QStringList luecken;
    for (const std::string& luecke : punkt.luecken) luecken << qtext(luecke);
    wandblatt_->zeigeGrund(zeilen.join(QLatin1Char('\n')), luecken.join(QLatin1Char('\n')));
}

void Einfluss::oeffneBildmenue() {
    QMenu menue(this);
    fuegeBildaktionenAn(menue, this, programm_, meldungen_, bildvorlage(daten_, kurven_->marke()));
    menue.exec(bild_->mapToGlobal(QPoint(0, bild_->height())));
}

}  // namespace rippenscheibe
