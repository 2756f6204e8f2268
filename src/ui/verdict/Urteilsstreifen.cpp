#include "ui/verdict/Urteilsstreifen.h"

#include <QComboBox>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "report/Bericht.h"
#include "run/Luecken.h"
#include "run/Urteil.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Programm.h"
#include "ui/verdict/Ausnutzungsbalken.h"
#include "ui/verdict/Form23_Ausnutzungen.h"
#include "ui/verdict/Frischvergleich.h"

namespace rippenscheibe {

namespace {

constexpr int gezeigteLuecken = 2;

QString lueckentext(const Wand& w) {
    const auto saetze = lueckensaetze(w);
    QStringList zeilen;
    for (const std::string& satz : saetze)
        if (zeilen.size() < gezeigteLuecken) zeilen << QStringLiteral("! ") + qtext(satz);
    const auto weitere = static_cast<int>(saetze.size()) - gezeigteLuecken;
    if (weitere > 0)
        zeilen << (weitere == 1 ? QStringLiteral("und 1 weiterer Punkt")
                                : QStringLiteral("und %1 weitere Punkte").arg(weitere));
    return zeilen.join(QLatin1Char('\n'));
}

QString alleLuecken(const Wand& w) {
    QStringList zeilen;
    for (const std::string& satz : lueckensaetze(w)) zeilen << qtext(satz);
    return zeilen.join(QLatin1Char('\n'));
}

}  // namespace

Urteilsstreifen::Urteilsstreifen(const Wand& w, char dezimalzeichen, QWidget* parent)
    : QWidget(parent), baum_(new Ausnutzungsbaum(this)) {
    auto* reihe = new QHBoxLayout(this);
    reihe->setContentsMargins(0, 0, 0, 0);
    reihe->setSpacing(2 * Fenster::raster);
    reihe->addWidget(baueUrteil(w), 2);
    reihe->addWidget(baueBaum(), 3);
    std::vector<Ausnutzung> zeilen;
    for (const Absatz& absatz : fliesstext(bericht(w, Form::ansicht, {.dezimalzeichen = dezimalzeichen})))
        if (absatz.ausnutzung) zeilen.push_back(*absatz.ausnutzung);
    baum_->zeige(abschnittsurteile(w), zeilen, dezimalzeichen);
}

QWidget* Urteilsstreifen::baueUrteil(const Wand& w) {
    auto* flaeche = new QWidget(this);
    auto* spalte = new QVBoxLayout(flaeche);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(Fenster::raster / 2);
    const auto zeile = [&](const char* name, const QString& text) {
        auto* schild = new QLabel(text, flaeche);
        schild->setObjectName(QLatin1String(name));
        schild->setTextFormat(Qt::PlainText);
        schild->setWordWrap(true);
        schild->setTextInteractionFlags(Qt::TextSelectableByMouse);
        schild->setVisible(!text.isEmpty());
        spalte->addWidget(schild);
        return schild;
    };
    const auto faerbe = [](QLabel* schild, const QColor& farbe) {
        QPalette farben = schild->palette();
        farben.setColor(QPalette::WindowText, farbe);
        schild->setPalette(farben);
    };
    const Urteilsfarben farben = urteilsfarben(palette());
    QLabel* urteilzeile = zeile("Urteil", urteilssatz(w));
    QFont gross = urteilzeile->font();
    gross.setPointSizeF(gross.pointSizeF() * 1.25);
    gross.setWeight(QFont::DemiBold);
    urteilzeile->setFont(gross);
    faerbe(urteilzeile, urteil(w).erfuellt() ? farben.erfuellt : farben.ueberschritten);
    zeile("Massgebend", massgebendsatz(w));
    QLabel* luecken = zeile("Luecken", lueckentext(w));
    luecken->setToolTip(alleLuecken(w));
    faerbe(luecken, farben.warnung);
    if (const auto frisch = frischvergleich(w)) {
        faerbe(zeile("Frisch", QStringLiteral("! frisch gerechnet: ") + frisch->urteil), farben.warnung);
        zeile("FrischUrsache",
              frisch->ursache + QStringLiteral(" Mit \"Ergebnisse verwerfen\" (Extras) beginnt "
                                               "die Rechnung von vorn."))
            ->setForegroundRole(QPalette::PlaceholderText);
    }
    spalte->addStretch(1);
    // Long words scroll before they push the text out of sight.
    auto* rolle = new QScrollArea(this);
    rolle->setFrameShape(QFrame::NoFrame);
    rolle->setWidgetResizable(true);
    rolle->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rolle->setFocusPolicy(Qt::NoFocus);
    rolle->setWidget(flaeche);
    return rolle;
}

QWidget* Urteilsstreifen::baueBaum() {
    auto* flaeche = new QWidget(this);
    auto* spalte = new QVBoxLayout(flaeche);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(Fenster::raster / 2);
    baum_->setObjectName(QStringLiteral("Ausnutzungen"));
    baum_->setAccessibleName(QStringLiteral("Ausnutzungen"));
    auto* kopf = new QHBoxLayout;
    auto* schild = new QLabel(QStringLiteral("&Ausnutzungen (Marke bei 1,00)"), flaeche);
    schild->setBuddy(baum_);
    auto* folge = new QComboBox(flaeche);
    folge->setObjectName(QStringLiteral("Reihenfolge"));
    folge->setAccessibleName(QStringLiteral("Reihenfolge der Ausnutzungen"));
    folge->addItems({QStringLiteral("wie im Bericht"), QStringLiteral("nach Größe")});
    connect(folge, &QComboBox::currentIndexChanged, this, [this](int wahl) {
        baum_->ordne(wahl == 0 ? Ausnutzungsbaum::Reihenfolge::bericht
                               : Ausnutzungsbaum::Reihenfolge::groesse);
    });
    kopf->addWidget(schild, 1);
    kopf->addWidget(folge);
    spalte->addLayout(kopf);
    spalte->addWidget(baum_, 1);
    return flaeche;
}

}  // namespace rippenscheibe
