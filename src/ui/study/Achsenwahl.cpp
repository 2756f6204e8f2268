#include "ui/study/Achsenwahl.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/controls/Werteingabe.h"
#include "ui/studyparts/Feldworte.h"

namespace rippenscheibe {

namespace {

struct Aufschrift {
    std::string_view achse;
    const char* text;
    const char* hinweis;
};
constexpr std::array<Aufschrift, 7> aufschriften{{
    {"abstand", "Abstand der Verbindungsmittel", "Beide Seiten haben denselben Abstand"},
    {"verbindungsmittel", "Verbindungsmittel",
     "Zeilen des Katalogs, auf Seite 2 dieselbe, wenn sie dieselbe Art hat"},
    {"platte", "Plattendicke",
     "Dicke der Beplankung 1, auf Seite 2 dieselbe, wenn sie dasselbe Material hat"},
    {"rippenbreite", "Rippenbreite", "Rand- und Innenrippen haben dieselbe Breite"},
    {"rippenhoehe", "Rippenhöhe", "Rand- und Innenrippen haben dieselbe Höhe"},
    {"holz", "Festigkeitsklasse", "Festigkeitsklasse der Rippen"},
    {"anker", "Zuganker", "Anker des Katalogs; ohne Nachweis der Verankerung zählt keiner"},
}};

const Aufschrift& aufschrift(std::string_view achse) {
    return *std::find_if(aufschriften.begin(), aufschriften.end(),
                         [&](const Aufschrift& a) { return a.achse == achse; });
}

std::optional<double> alsZahl(const Achsenwert& wert) {
    const auto* zahl = std::get_if<double>(&wert.setzt.front().second);
    return zahl == nullptr || zahltext(*zahl) != wert.text ? std::nullopt : std::optional(*zahl);
}

// Many numbers with the same step between them.
bool istReihe(const Achse& achse) {
    constexpr std::size_t viele = 15;
    if (achse.werte.size() < viele || !alsZahl(achse.werte[0]) || !alsZahl(achse.werte[1])) return false;
    const double schritt = *alsZahl(achse.werte[1]) - *alsZahl(achse.werte[0]);
    for (std::size_t i = 1; i < achse.werte.size(); ++i) {
        const auto zahl = alsZahl(achse.werte[i]);
        if (!zahl || std::fabs(*zahl - *alsZahl(achse.werte[i - 1]) - schritt) > 1e-9) return false;
    }
    return true;
}

}  // namespace

Achsenwahl::Achsenwahl(const Standardachse& vorgabe, const Wand& heute, bool gewaehlt, QWidget* parent)
    : QWidget(parent),
      name_(vorgabe.name),
      vorgabe_(vorgabe.achse),
      haken_(new QCheckBox(this)),
      anzahl_(new QLabel(this)) {
    const Aufschrift& worte = aufschrift(name_);
    const QString name = qtext(name_);
    setObjectName(QStringLiteral("Achse_") + name);
    haken_->setObjectName(QStringLiteral("Achse(%1)").arg(name));
    haken_->setText(QString::fromUtf8(worte.text));
    haken_->setAccessibleName(haken_->text());
    haken_->setToolTip(QString::fromUtf8(worte.hinweis));
    const bool ohneAnker = name_ == "anker" && !heute.NachweisVerankerung;
    haken_->setEnabled(!vorgabe_.werte.empty() && !ohneAnker);
    haken_->setChecked(gewaehlt && haken_->isEnabled());
    anzahl_->setForegroundRole(QPalette::PlaceholderText);

    auto* kopf = new QHBoxLayout;
    kopf->setSpacing(Fenster::raster);
    kopf->addWidget(haken_);
    kopf->addStretch(1);
    kopf->addWidget(anzahl_);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(Fenster::raster / 2);
    spalte->addLayout(kopf);
    werte_ = istReihe(vorgabe_) ? baueReihe() : baueListe(heute);
    werte_->setVisible(haken_->isChecked());
    spalte->addWidget(werte_);
    connect(haken_, &QCheckBox::toggled, this, [this](bool an) {
        werte_->setVisible(an);
        zeigeAnzahl();
    });
    zeigeAnzahl();
}

QWidget* Achsenwahl::baueReihe() {
    auto* reihe = new QWidget(this);
    auto* grid = new QGridLayout(reihe);
    grid->setContentsMargins(3 * Fenster::raster, 0, 0, 0);
    grid->setHorizontalSpacing(Fenster::raster);
    const Feldeintrag& feld = eingabefeld(vorgabe_.felder.front());
    const double erster = *alsZahl(vorgabe_.werte.front());
    const double zweiter = *alsZahl(vorgabe_.werte[1]);
    int spalte = 0;
    const auto eingabe = [&](const char* zusatz, const char* text, double wert, const Wertebereich& bereich) {
        Wertvorgabe v;
        v.beschriftung = QString::fromUtf8(text);
        v.einheit = spalte == 6 ? qtext(feld.angabe.einheit) : QString();
        v.bereichseinheit = qtext(feld.angabe.einheit);
        v.bezeichnung = haken_->text() + QLatin1Char(' ') + v.beschriftung;
        v.bedeutung = v.bezeichnung;
        v.min = bereich.min;
        v.max = bereich.max;
        v.maske = qtext(feld.angabe.maske);
        auto* neu = new Werteingabe(qtext(name_) + QString::fromUtf8(zusatz), v, reihe);
        neu->setzeWert(wert);
        neu->setMinimumWidth(48);
        neu->setMaximumWidth(64);
        neu->setzeInZeile(grid, 0, spalte);
        connect(neu, &Werteingabe::geaendert, this, &Achsenwahl::zeigeAnzahl);
        spalte += 3;
        return neu;
    };
    const Wertebereich schritte{(zweiter - erster) / 50, feld.angabe.bereich.max};
    von_ = eingabe("Von", "von", erster, feld.angabe.bereich);
    bis_ = eingabe("Bis", "bis", *alsZahl(vorgabe_.werte.back()), feld.angabe.bereich);
    schritt_ = eingabe("Schritt", "Schritt", zweiter - erster, schritte);
    return reihe;
}

QWidget* Achsenwahl::baueListe(const Wand& heute) {
    liste_ = new QListWidget(this);
    liste_->setObjectName(qtext(name_) + QStringLiteral("Werte"));
    liste_->setAccessibleName(haken_->text() + QStringLiteral(", Werte"));
    liste_->setFrameShape(QFrame::NoFrame);
    liste_->viewport()->setAutoFillBackground(false);
    for (const Achsenwert& wert : vorgabe_.werte) {
        auto* eintrag = new QListWidgetItem(werttext(wert), liste_);
        eintrag->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        eintrag->setCheckState(Qt::Checked);
        if (!aenderungstext(heute, wert.setzt).isEmpty()) continue;
        QFont fett = liste_->font();
        fett.setWeight(QFont::DemiBold);
        eintrag->setFont(fett);
        eintrag->setToolTip(QStringLiteral("Wert von heute"));
    }
    // Numbers stand side by side, names below each other.
    const bool kurz = liste_->count() > 0 && liste_->sizeHintForColumn(0) < 110;
    constexpr int jeZeile = 4;
    constexpr int hoechstens = 6;
    if (kurz) {
        liste_->setFlow(QListView::LeftToRight);
        liste_->setWrapping(true);
        liste_->setResizeMode(QListView::Adjust);
        liste_->setGridSize(QSize(88, liste_->sizeHintForRow(0) + 4));
    }
    const int zeilen =
        std::min(kurz ? (liste_->count() + jeZeile - 1) / jeZeile : liste_->count(), hoechstens);
    liste_->setFixedHeight(zeilen * (liste_->sizeHintForRow(0) + 4) + 4);
    connect(liste_, &QListWidget::itemChanged, this, &Achsenwahl::zeigeAnzahl);
    return liste_;
}

bool Achsenwahl::gewaehlt() const { return haken_->isChecked(); }

std::optional<Achse> Achsenwahl::achse() const {
    if (liste_ == nullptr) {
        const auto gelesen = achseAus(vorgabe_.name + "=" + zahltext(von_->wert()) + ":" +
                                          zahltext(bis_->wert()) + ":" + zahltext(schritt_->wert()),
                                      Grenzen::beachten);
        const Achse* achse = std::get_if<Achse>(&gelesen);
        return achse == nullptr ? std::nullopt : std::optional(*achse);
    }
    Achse achse = vorgabe_;
    achse.werte.clear();
    for (int i = 0; i < liste_->count(); ++i)
        if (liste_->item(i)->checkState() == Qt::Checked)
            achse.werte.push_back(vorgabe_.werte[static_cast<std::size_t>(i)]);
    return achse.werte.empty() ? std::nullopt : std::optional(achse);
}

void Achsenwahl::zeigeAnzahl() {
    const std::optional<Achse> gewaehlte = gewaehlt() ? achse() : std::nullopt;
    if (!gewaehlt())
        anzahl_->setText(QStringLiteral("wie heute"));
    else if (!gewaehlte)
        anzahl_->setText(QStringLiteral("! kein Wert"));
    else
        anzahl_->setText(gewaehlte->werte.size() == 1
                             ? QStringLiteral("1 Wert")
                             : QStringLiteral("%1 Werte").arg(gewaehlte->werte.size()));
    Q_EMIT geaendert();
}

}  // namespace rippenscheibe
