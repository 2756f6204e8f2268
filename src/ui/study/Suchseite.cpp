#include "ui/study/Suchseite.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QSpinBox>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "basis/Zahlenformat.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/study/Achsenwahl.h"
#include "ui/study/Wandauswahl.h"
#include "ui/studyparts/Lastfallwahl.h"
#include "ui/studyparts/Laufleiste.h"

namespace rippenscheibe {

namespace {

struct Zielworte {
    const char* auswahl;
    const char* spalte;
    const char* maske;
    const char* kleinere;  // candidates that come before a design
};
constexpr std::array<Zielworte, 3> zielworte{{
    {"kleinste Kosten", "Kosten", "0.00", "billigere"},
    {"wenigste Verbindungsmittel", "Stück", "0", "mit weniger Verbindungsmitteln"},
    {"kleinstes Gewicht", "Gewicht [kN]", "0.000", "leichtere"},
}};

const Zielworte& worte(Auslegungsziel ziel) { return zielworte[static_cast<std::size_t>(ziel)]; }

QString zahl(const char* maske, double wert) { return qtext(formatiere(maske, wert, dezimalzeichen())); }

QCheckBox* haken(const char* name, const char* text, const char* hinweis, bool an) {
    auto* neu = new QCheckBox(QString::fromUtf8(text));
    neu->setObjectName(QString::fromUtf8(name));
    neu->setAccessibleName(neu->text());
    neu->setToolTip(QString::fromUtf8(hinweis));
    neu->setChecked(an);
    return neu;
}

double zielwert(const Auslegungsauftrag& a, Wand w) {
    if (a.ziel == Auslegungsziel::kosten) return a.preise.kosten(w, a.reihen).value_or(0);
    if (a.ziel == Auslegungsziel::gewicht) return wandgewicht(w);
    const Mengensummen m = mengensummen(w, a.reihen);
    return m.verbindungsmittel[Seite::eins] + m.verbindungsmittel[Seite::zwei];
}

// Why the walls before the first design are none, or why none is.
QString befundtext(const Auslegungsauftrag& a, const Auslegungsergebnis& e) {
    const QString gruende = qtext(ausscheidegruende(e));
    const std::size_t raus = e.geprueft - e.bestanden;
    QString text;
    if (!e.vollstaendig)
        text = QStringLiteral("Angehalten nach %1 von %2 Kandidaten, bis dahin bewiesen. ")
                   .arg(ganzzahltext(e.geprueft), ganzzahltext(e.kandidaten));
    if (e.entwuerfe.empty() && !e.vollstaendig) return text + QStringLiteral("Noch besteht keine.");
    if (e.entwuerfe.empty()) {
        text += QStringLiteral("Keine der %1 Wände besteht: %2.").arg(ganzzahltext(e.kandidaten), gruende);
        if (!e.knappVerfehlt.empty()) text += QStringLiteral(" Am nächsten kommen:");
        return text;
    }
    if (raus == 0) return text + QStringLiteral("Schon die erste in der Reihenfolge besteht.");
    return text + QStringLiteral("%1 %2 scheiden aus: %3.")
                      .arg(ganzzahltext(raus), QString::fromUtf8(worte(a.ziel).kleinere), gruende);
}

// What a design sets in the wall of today.
Zuweisungen entwurfsaenderung(const Auslegungsauftrag& a, const Entwurf& entwurf, Pruefstand& stand) {
    Zuweisungen setzt;
    for (std::size_t i = 0; i < a.raster.achsen().size(); ++i)
        for (const auto& zuweisung : a.raster.wert(entwurf.nummer, i).setzt) setzt.push_back(zuweisung);
    if (a.eigengewicht) {
        setzeEntwurf(a, entwurf.nummer, stand);
        setzt.emplace_back(eingabeindex("gkWand"), stand.felder().zahl(eingabeindex("gkWand")));
    }
    return setzt;
}

// The axes on which some wall differs from that of today.
std::vector<const Achse*> verschiedene(const Raster& raster, const std::vector<Wand>& waende,
                                       const Wand& heute) {
    std::vector<const Achse*> achsen;
    for (const Achse& achse : raster.achsen())
        if (std::any_of(waende.begin(), waende.end(),
                        [&](const Wand& w) { return achsentext(achse, w) != achsentext(achse, heute); }))
            achsen.push_back(&achse);
    return achsen;
}

}  // namespace

Suchseite::Suchseite(Programm& programm, QWidget* parent)
    : QWidget(parent), programm_(programm), jeKandidat_(sekundenJeWand(studienwand(programm))) {
    auto* links = new QWidget;
    auto* spalte = new QVBoxLayout(links);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(Fenster::raster);
    spalte->addWidget(baueWahl(), 1);
    lauf_ = new Laufleiste(hintergrund_, QStringLiteral("Suchen"), QStringLiteral("&Suchen"),
                           QStringLiteral("Die Wände werden geordnet."));
    spalte->addWidget(lauf_);
    auto* teiler = new QSplitter(Qt::Horizontal, this);
    teiler->setObjectName(QStringLiteral("TeilerSuche"));
    teiler->setChildrenCollapsible(false);
    teiler->setHandleWidth(2 * Fenster::raster);
    teiler->addWidget(links);
    teiler->addWidget(baueErgebnis());
    teiler->setSizes({390, 800});
    teiler->setStretchFactor(1, 1);
    auto* aussen = new QVBoxLayout(this);
    aussen->addWidget(teiler);

    connect(lauf_, &Laufleiste::starte, this, &Suchseite::starte);
    connect(&programm_, &Programm::geaendert, this, [this] {
        if (!befund_->text().isEmpty()) lauf_->setzeStand(QStringLiteral("Die Wand ist seither geändert."));
    });
    zeigeUmfang();
}

Zuweisungen Suchseite::gewaehlt() const { return entwuerfe_->gewaehlt(); }

// ---- What is searched ----

QWidget* Suchseite::baueWahl() {
    auto* inhalt = new QWidget;
    auto* spalte = new QVBoxLayout(inhalt);
    spalte->setContentsMargins(0, 0, Fenster::raster, 0);
    spalte->setSpacing(Fenster::raster);
    auto* rahmen = new QGroupBox(QStringLiteral("Was sich ändern darf"));
    auto* achsen = new QVBoxLayout(rahmen);
    achsen->setSpacing(Fenster::raster);
    const Wand heute = studienwand(programm_);
    for (const Standardachse& vorgabe : standardachsen(heute)) {
        const bool gewaehlt = vorgabe.name == "abstand" || vorgabe.name == "verbindungsmittel";
        achsen_.push_back(new Achsenwahl(vorgabe, heute, gewaehlt));
        connect(achsen_.back(), &Achsenwahl::geaendert, this, &Suchseite::zeigeUmfang);
        achsen->addWidget(achsen_.back());
    }
    spalte->addWidget(rahmen);
    spalte->addWidget(baueBedingungen());
    spalte->addStretch(1);
    auto* rollbereich = new QScrollArea;
    rollbereich->setFrameShape(QFrame::NoFrame);
    rollbereich->setFocusPolicy(Qt::NoFocus);
    rollbereich->setWidgetResizable(true);
    rollbereich->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rollbereich->setWidget(inhalt);
    rollbereich->setMinimumWidth(inhalt->sizeHint().width() +
                                 style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    return rollbereich;
}

QWidget* Suchseite::baueBedingungen() {
    auto* rahmen = new QGroupBox(QStringLiteral("Ziel und Bedingungen"));
    auto* grid = new QGridLayout(rahmen);
    grid->setHorizontalSpacing(Fenster::raster);
    grid->setVerticalSpacing(Fenster::raster);
    grid->setColumnStretch(2, 1);
    const auto zeile = [&](int nummer, const char* text, QWidget* feld) {
        auto* schild = new QLabel(QString::fromUtf8(text), rahmen);
        schild->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        schild->setBuddy(feld);
        grid->addWidget(schild, nummer, 0);
        grid->addWidget(feld, nummer, 1, 1, 2);
    };
    ziel_ = new QComboBox(rahmen);
    ziel_->setObjectName(QStringLiteral("Ziel"));
    ziel_->setAccessibleName(QStringLiteral("Ziel"));
    ziel_->setToolTip(QStringLiteral("Wonach die Wände geordnet und gesucht werden"));
    for (const Zielworte& z : zielworte) ziel_->addItem(QString::fromUtf8(z.auswahl));
    zeile(0, "Ziel:", ziel_);
    zahl_ = new QSpinBox(rahmen);
    zahl_->setObjectName(QStringLiteral("Zahl"));
    zahl_->setAccessibleName(QStringLiteral("Zahl der Entwürfe"));
    zahl_->setToolTip(QStringLiteral("So viele Wände, die bestehen, werden gesucht"));
    zahl_->setRange(1, 100);
    zahl_->setValue(5);
    zeile(1, "Entwürfe:", zahl_);
    Wertvorgabe v;
    v.beschriftung = QStringLiteral("Ausnutzung höchstens");
    v.bedeutung = QStringLiteral("größte Ausnutzung eines Entwurfs");
    v.min = 0.01;
    v.max = 1;
    v.maske = QStringLiteral("0.00");
    hoechstens_ = new Werteingabe(QStringLiteral("Hoechstens"), v, rahmen);
    hoechstens_->setzeWert(1);
    hoechstens_->setzeInZeile(grid, 2);
    richtungen_ =
        haken("BeideRichtungen", "beide Richtungen von Fv",
              "Jede Wand wird mit Fv,k und mit −Fv,k gerechnet; die größere Ausnutzung zählt", true);
    luecken_ = haken("MitLuecken", "auch Wände mit Lücken",
                     "Auch Wände, bei denen etwas Gefordertes nicht nachgewiesen ist", false);
    eigengewicht_ = haken("Eigengewicht", "Eigengewicht folgt der Wand",
                          "Das Eigengewicht gk,Wand wird für jede Wand neu gebildet", false);
    lastfaelle_ = new Lastfallwahl(programm_);
    connect(lastfaelle_, &QCheckBox::clicked, this, &Suchseite::zeigeUmfang);
    int nummer = 3;
    for (QCheckBox* feld : {static_cast<QCheckBox*>(lastfaelle_), richtungen_, luecken_, eigengewicht_})
        grid->addWidget(feld, nummer++, 0, 1, 3);
    return rahmen;
}

QWidget* Suchseite::baueErgebnis() {
    auto* ergebnis = new QWidget;
    auto* spalte = new QVBoxLayout(ergebnis);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(Fenster::raster);
    befund_ = new QLabel(ergebnis);
    befund_->setObjectName(QStringLiteral("Befund"));
    befund_->setWordWrap(true);
    preise_ = new QLabel(ergebnis);
    preise_->setObjectName(QStringLiteral("Preise"));
    preise_->setWordWrap(true);
    preise_->setForegroundRole(QPalette::PlaceholderText);
    entwuerfe_ = new Wandauswahl(QStringLiteral("Entwuerfe"), QStringLiteral("Entwürfe"), Qt::Vertical);
    entwuerfe_->setSizes({220, 320});
    connect(entwuerfe_, &Wandauswahl::auswahlGeaendert, this, &Suchseite::auswahlGeaendert);
    entwuerfe_->beginne(studienwand(programm_), {QStringLiteral("Entwürfe")}, 0);
    spalte->addWidget(entwuerfe_, 1);
    spalte->addWidget(befund_);
    spalte->addWidget(preise_);
    return ergebnis;
}

std::variant<Auslegungsauftrag, QString> Suchseite::auftrag() const {
    std::vector<Achse> achsen;
    for (const Achsenwahl* wahl : achsen_) {
        if (!wahl->gewaehlt()) continue;
        auto achse = wahl->achse();
        if (!achse) return QStringLiteral("Es ist kein Wert gewählt.");
        achsen.push_back(std::move(*achse));
    }
    if (achsen.empty()) return QStringLiteral("Es ist nichts gewählt, was sich ändern darf.");
    const Wand heute = studienwand(programm_);
    Auslegungsauftrag a{};
    a.vorlage = heute;
    a.materialien = heute.eigeneMaterialien;
    a.regel.beideRichtungen = richtungen_->isChecked();
    a.regel.mitLuecken = luecken_->isChecked();
    a.regel.hoechstens = hoechstens_->wert();
    a.regel.lastfaelle = lastfaelle_->faelle();
    a.raster = Raster(std::move(achsen));
    a.ziel = static_cast<Auslegungsziel>(ziel_->currentIndex());
    a.eigengewicht = eigengewicht_->isChecked();
    a.zahl = static_cast<std::size_t>(zahl_->value());
    return a;
}

void Suchseite::zeigeUmfang() {
    if (lauf_ == nullptr) return;
    const auto wunsch = auftrag();
    if (const auto* satz = std::get_if<QString>(&wunsch)) return lauf_->setzeUmfang(*satz, false);
    const auto& a = std::get<0>(wunsch);
    const std::size_t anzahl = a.raster.anzahl();
    const std::size_t laeufe = anzahl * std::max<std::size_t>(a.regel.lastfaelle.size(), 1);
    const double dauer = static_cast<double>(laeufe) * jeKandidat_ / kernzahl();
    lauf_->setzeUmfang(QStringLiteral("%1 Kandidaten · %2").arg(ganzzahltext(anzahl), zeittext(dauer)), true);
}

// ---- The search ----

void Suchseite::starte() {
    auto wunsch = auftrag();
    auto* a = std::get_if<Auslegungsauftrag>(&wunsch);
    if (a == nullptr) return;
    preise_->clear();
    if (a->ziel == Auslegungsziel::kosten) {
        auto gelesen = Preise::lade(programm_.ordner);
        if (const auto* fehler = std::get_if<std::string>(&gelesen)) {
            befund_->setText(QStringLiteral("! ") + qtext(*fehler));
            return;
        }
        a->preise = std::get<0>(std::move(gelesen));
        preise_->setText(qtext(a->preise.herkunft()));
    }
    hintergrund_.starte(
        [gesucht = *a, heute = studienwand(programm_)](const Ausfuehrung& ausfuehrung) {
            Pruefstand stand(gesucht.vorlage, gesucht.materialien, gesucht.regel);
            const Bewertung bewertet = stand.bewerte();
            return Fund{gesucht, legeAus(gesucht, ausfuehrung), heute, bewertet};
        },
        [this](const Fund& fund) { zeige(fund); });
}

// ---- What was found ----

void Suchseite::zeige(const Fund& fund) {
    if (const auto* fehler = std::get_if<std::string>(&fund.ergebnis)) {
        befund_->setText(QStringLiteral("! ") + qtext(*fehler));
        return;
    }
    const auto& ergebnis = std::get<Auslegungsergebnis>(fund.ergebnis);
    befund_->setText(befundtext(fund.auftrag, ergebnis));
    zeigeEntwuerfe(fund, ergebnis.entwuerfe.empty() ? ergebnis.knappVerfehlt : ergebnis.entwuerfe);
}

// The columns: rank and value, what differs from today in some design, what decides, quantities.
void Suchseite::zeigeEntwuerfe(const Fund& fund, const std::vector<Entwurf>& entwuerfe) {
    const Auslegungsauftrag& a = fund.auftrag;
    Pruefstand stand(a.vorlage, a.materialien, a.regel);
    std::vector<Wand> waende;
    std::vector<Zuweisungen> aenderungen;
    for (const Entwurf& entwurf : entwuerfe) {
        aenderungen.push_back(entwurfsaenderung(a, entwurf, stand));
        waende.push_back(mitZuweisungen(fund.heute, aenderungen.back()));
    }
    const std::vector<const Achse*> verschieden = verschiedene(a.raster, waende, fund.heute);
    const bool mitAnkern = std::any_of(waende.begin(), waende.end(),
                                       [&](const Wand& w) { return mengensummen(w, a.reihen).anker > 0; });

    QStringList spalten{QStringLiteral("Rang"), QString::fromUtf8(worte(a.ziel).spalte),
                        QStringLiteral("Ausnutzung")};
    for (const Achse* achse : verschieden) spalten << spaltenname(achse->felder);
    const auto massgebend = static_cast<int>(spalten.size());
    spalten << QStringLiteral("maßgebend") << QStringLiteral("Richtung") << QStringLiteral("VM [Stück]")
            << QStringLiteral("Holz [m³]") << QStringLiteral("Platten [m²]");
    if (mitAnkern) spalten << QStringLiteral("Anker");
    entwuerfe_->beginne(fund.heute, spalten, massgebend);

    const auto zellen = [&](const QString& rang, double wert, const Bewertung& b, const Wand& w) {
        QList<Studienzelle> zeile{
            {rang}, {zahl(worte(a.ziel).maske, wert), true}, ausnutzungszelle(b, a.regel)};
        for (const Achse* achse : verschieden) zeile << Studienzelle{achsentext(*achse, w)};
        zeile << massgebendzelle(b, a.regel)
              << Studienzelle{richtungstext(b, a.regel, fund.heute.Fvk.value())};
        const Mengensummen m = mengensummen(w, a.reihen);
        zeile << Studienzelle{zahl("0", m.verbindungsmittel[Seite::eins] + m.verbindungsmittel[Seite::zwei]),
                              true}
              << Studienzelle{zahl("0.000", m.holz), true}
              << Studienzelle{zahl("0.0", m.platten[Seite::eins] + m.platten[Seite::zwei]), true};
        if (mitAnkern) zeile << Studienzelle{zahl("0", m.anker), true};
        return zeile;
    };
    entwuerfe_->fuegeHeuteAn(
        zellen(QStringLiteral("heute"), zielwert(a, fund.heute), fund.heuteBewertet, fund.heute));
    for (std::size_t i = 0; i < entwuerfe.size(); ++i)
        entwuerfe_->fuegeAn(zellen(entwuerfe[i].bewertung.ausgang == Ausgang::besteht ? QString::number(i + 1)
                                                                                      : QStringLiteral("–"),
                                   entwuerfe[i].wert, entwuerfe[i].bewertung, waende[i]),
                            aenderungen[i]);
    entwuerfe_->schliesseAb();
}

}  // namespace rippenscheibe
