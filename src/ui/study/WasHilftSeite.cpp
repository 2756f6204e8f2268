#include "ui/study/WasHilftSeite.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/study/Wandauswahl.h"
#include "ui/studyparts/Lastfallwahl.h"

namespace rippenscheibe {

namespace {

// The words of the inputs, short as a column needs them; the whole stands in the tip.
QString gekuerzt(QString text) {
    const std::pair<const char*, const char*> kuerzel[] = {
        {"Abstand der Verbindungsmittel", "av"},
        {"Verbindungsmittel", "VM"},
        {", Beplankung ", " Seite "},
        {", beide Seiten", " beide Seiten"},
        {"Rippenhöhe und Höhe der Innenrippen", "Rippenhöhe"},
    };
    for (const auto& [lang, kurz] : kuerzel) text.replace(QString::fromUtf8(lang), QString::fromUtf8(kurz));
    return text;
}

// How many steps lower the utilisation, and whether one of them is enough.
QString befund(const Hilfe& hilfe) {
    const auto zaehle = [&](const auto& merkmal) {
        return std::count_if(hilfe.schritte.begin(), hilfe.schritte.end(),
                             [&](const Hilfeschritt& s) { return merkmal(s.bewertung); });
    };
    const auto bessere = zaehle(
        [&](const Bewertung& b) { return b.ausgang != Ausgang::hinweis && b.maxEta < hilfe.heute.maxEta; });
    const auto genuegende = zaehle([](const Bewertung& b) { return b.ausgang == Ausgang::besteht; });
    QString text =
        QStringLiteral("%1 nächste Schritte, jeder für sich gerechnet; ").arg(hilfe.schritte.size());
    if (hilfe.heute.ausgang != Ausgang::hinweis)
        text += QStringLiteral("%1 davon verringern die Ausnutzung, ").arg(bessere);
    return text + (genuegende == 0 ? QStringLiteral("keiner genügt allein.")
                                   : QStringLiteral("mit %1 davon besteht die Wand.").arg(genuegende));
}

}  // namespace

WasHilftSeite::WasHilftSeite(Programm& programm, QWidget* parent)
    : QWidget(parent),
      programm_(programm),
      stand_(new QLabel(this)),
      lastfaelle_(new Lastfallwahl(programm, this)),
      waende_(new Wandauswahl(QStringLiteral("Schritte"), QStringLiteral("Nächste Schritte"), Qt::Horizontal,
                              this)) {
    stand_->setObjectName(QStringLiteral("SchritteStand"));
    stand_->setWordWrap(true);
    waende_->setSizes({780, 400});
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(Fenster::raster);
    spalte->addWidget(stand_);
    spalte->addWidget(lastfaelle_);
    spalte->addWidget(waende_, 1);
    connect(waende_, &Wandauswahl::auswahlGeaendert, this, &WasHilftSeite::auswahlGeaendert);
    connect(lastfaelle_, &QCheckBox::clicked, this, &WasHilftSeite::rechne);
    connect(&programm_, &Programm::geaendert, this, [this] {
        if (isVisible()) rechne();
    });
}

Zuweisungen WasHilftSeite::gewaehlt() const { return waende_->gewaehlt(); }

void WasHilftSeite::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    rechne();
}

void WasHilftSeite::rechne() {
    const Wand heute = studienwand(programm_);
    regel_.lastfaelle = lastfaelle_->faelle();
    hintergrund_.starte(
        [heute, regel = regel_](const Ausfuehrung& a) {
            return wasHilft(heute, heute.eigeneMaterialien, regel, a);
        },
        [this, heute](const Hilfe& hilfe) { zeige(heute, hilfe); });
}

void WasHilftSeite::zeige(const Wand& heute, const Hilfe& hilfe) {
    waende_->beginne(heute,
                     {QStringLiteral("Schritt"), QStringLiteral("Ausnutzung"), QStringLiteral("maßgebend"),
                      QStringLiteral("Richtung")},
                     0);
    const auto zellen = [&](const QString& text, const Bewertung& b) {
        return QList<Studienzelle>{{gekuerzt(text), false, {}, {}, text},
                                   ausnutzungszelle(b, regel_),
                                   massgebendzelle(b, regel_),
                                   {richtungstext(b, regel_, heute.Fvk.value())}};
    };
    waende_->fuegeHeuteAn(zellen(QStringLiteral("heute"), hilfe.heute));
    for (const Hilfeschritt& schritt : hilfe.schritte)
        waende_->fuegeAn(zellen(aenderungstext(heute, schritt.setzt), schritt.bewertung), schritt.setzt);
    stand_->setText(befund(hilfe));
    waende_->schliesseAb();
}

}  // namespace rippenscheibe
