#include "ui/study/WasHilftSeite.h"

#include <QLabel>
#include <QVBoxLayout>
#include <utility>

#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/studyparts/Wandauswahl.h"

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

// Whether a step makes a wall pass, or a passing wall less used.
bool hilft(const Bewertung& schritt, const Bewertung& heute) {
    return schritt.ausgang == Ausgang::besteht &&
           (heute.ausgang != Ausgang::besteht || schritt.maxEta < heute.maxEta);
}

}  // namespace

WasHilftSeite::WasHilftSeite(Programm& programm, QWidget* parent)
    : QWidget(parent),
      programm_(programm),
      stand_(new QLabel(this)),
      waende_(new Wandauswahl(QStringLiteral("Schritte"), QStringLiteral("Nächste Schritte"), Qt::Horizontal,
                              this)) {
    stand_->setObjectName(QStringLiteral("SchritteStand"));
    stand_->setWordWrap(true);
    waende_->setSizes({780, 400});
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(Fenster::raster);
    spalte->addWidget(stand_);
    spalte->addWidget(waende_, 1);
    connect(waende_, &Wandauswahl::auswahlGeaendert, this, &WasHilftSeite::auswahlGeaendert);
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
                                   {massgebendzelle(b, regel_)},
                                   {richtungstext(b, heute.Fvk.value())}};
    };
    waende_->fuegeHeuteAn(zellen(QStringLiteral("heute"), hilfe.heute));
    int helfende = 0;
    for (const Hilfeschritt& schritt : hilfe.schritte) {
        waende_->fuegeAn(zellen(aenderungstext(heute, schritt.setzt), schritt.bewertung), schritt.setzt);
        if (hilft(schritt.bewertung, hilfe.heute)) ++helfende;
    }
    stand_->setText(QStringLiteral("%1 nächste Schritte, jeder für sich gerechnet; %2.")
                        .arg(hilfe.schritte.size())
                        .arg(helfende == 1 ? QStringLiteral("1 davon hilft")
                                           : QStringLiteral("%1 davon helfen").arg(helfende)));
    waende_->schliesseAb();
}

}  // namespace rippenscheibe
