#include "ui/help/Form10_Randbedingungen.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <array>
#include <cstddef>
#include <initializer_list>

#include "report/Bericht.h"
#include "ui/basics/Programm.h"
#include "ui/drawings/Zeichnungsansicht.h"

namespace rippenscheibe {

namespace {

// The scrolling picture is told in twips, 15 to a pixel.
constexpr int twipsJePixel = 15;
constexpr int takt = 80;              // ms
constexpr int schritt = 40;           // twips a tick
constexpr int zeigergrenze = 6000;    // the pointer starts it above this height
constexpr int obererRand = -5000;     // beyond it the picture ...
constexpr int untererAnfang = 10000;  // ... comes back from below
constexpr int rahmenbreite = 300;

// A paragraph: its lines in the list of the report, from 1.
struct Absatz {
    std::size_t erste;
    std::size_t letzte;
};

// The lines joined to running text.
QString absatztext(const Absatz& absatz) {
    QString text;
    for (std::size_t i = absatz.erste; i <= absatz.letzte; ++i) {
        if (!text.isEmpty() && !text.endsWith(QLatin1Char(' '))) text += QLatin1Char(' ');
        text += qtext(randbedingungstexte()[i - 1]);
    }
    return text;
}

QLabel* absaetze(std::initializer_list<Absatz> liste, QWidget* parent) {
    QStringList texte;
    for (const Absatz& absatz : liste) texte << absatztext(absatz).trimmed();
    auto* schild = new QLabel(texte.join(QStringLiteral("\n\n")), parent);
    schild->setTextFormat(Qt::PlainText);
    schild->setWordWrap(true);
    schild->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    schild->setTextInteractionFlags(Qt::TextSelectableByMouse);
    schild->setMinimumWidth(340);
    return schild;
}

// A tab with a sketch of the report and its paragraphs.
QWidget* karte(const QString& name, Zeichnung was, std::initializer_list<Absatz> texte,
               const Programm& programm) {
    auto* seite = new QWidget;
    auto* zeile = new QHBoxLayout(seite);
    zeile->setSpacing(3 * Fenster::raster);
    zeile->setContentsMargins(2 * Fenster::raster, 2 * Fenster::raster, 2 * Fenster::raster,
                              2 * Fenster::raster);
    auto* bild = new Zeichnungsansicht(was, seite);
    bild->setObjectName(name);
    bild->setzeWand(programm.w);
    bild->setMinimumSize(400, 400);
    zeile->addWidget(bild, 3);
    zeile->addWidget(absaetze(texte, seite), 2);
    return seite;
}

}  // namespace

Form10::Form10(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Form10"), QStringLiteral("  Randbedingungen"),
              Tippen::aendertNichts),
      rahmen_(new QFrame),
      ausschnitt_(new QWidget(rahmen_)),
      bild_(new Zeichnungsansicht(Zeichnung::rollbild, ausschnitt_)),
      uhr_(new QTimer(this)) {
    auto* karten = new QTabWidget(this);
    karten->setObjectName(QStringLiteral("SSTab1"));
    karten->setAccessibleName(QStringLiteral("Randbedingungen"));
    karten->addTab(baueErsteKarte(), QStringLiteral("Randbedingungen für Berechnung"));
    karten->addTab(
        karte(QStringLiteral("Picture1"), Zeichnung::stoesse, {{3, 4}, {9, 10}, {12, 13}}, programm),
        QStringLiteral("Stöße in Wandtafeln"));
    karten->addTab(karte(QStringLiteral("Picture2"), Zeichnung::oeffnungen, {{5, 8}, {18, 18}}, programm),
                   QStringLiteral("Öffnungen / Aussparungen"));
    karten->addTab(karte(QStringLiteral("Picture3"), Zeichnung::gruppen, {{14, 17}}, programm),
                   QStringLiteral("Gruppen von Wandtafeln"));
    inhalt()->addWidget(karten, 1);
    zurueck(QStringLiteral("ComEnde"));

    uhr_->setObjectName(QStringLiteral("Timer1"));
    uhr_->setInterval(takt);
    connect(uhr_, &QTimer::timeout, this, &Form10::rolle);
    connect(this, &QDialog::finished, uhr_, &QTimer::stop);
}

QWidget* Form10::baueErsteKarte() {
    auto* seite = new QWidget;
    auto* zeile = new QHBoxLayout(seite);
    zeile->setSpacing(3 * raster);
    zeile->setContentsMargins(2 * raster, 2 * raster, 2 * raster, 2 * raster);
    zeile->addWidget(absaetze({{1, 2}, {3, 4}, {11, 11}, {12, 13}}, seite), 1);
    rahmen_->setParent(seite);
    rahmen_->setObjectName(QStringLiteral("Frame1"));
    rahmen_->setFrameShape(QFrame::StyledPanel);
    rahmen_->setFixedWidth(rahmenbreite);
    rahmen_->setMinimumHeight(zeigergrenze / twipsJePixel + 10 * raster);
    rahmen_->setMouseTracking(true);
    rahmen_->installEventFilter(this);
    auto* innen = new QVBoxLayout(rahmen_);
    innen->setContentsMargins(0, 0, 0, 0);
    innen->addWidget(ausschnitt_);
    ausschnitt_->setAttribute(Qt::WA_TransparentForMouseEvents);
    ausschnitt_->installEventFilter(this);
    bild_->setObjectName(QStringLiteral("Image1"));
    bild_->setzeWand(programm_.w);
    zeile->addWidget(rahmen_);
    return seite;
}

bool Form10::eventFilter(QObject* object, QEvent* event) {
    if (object == rahmen_ && event->type() == QEvent::MouseMove) {
        const auto& maus = static_cast<const QMouseEvent&>(*event);
        const bool oben = maus.position().y() * twipsJePixel < zeigergrenze;
        if (oben && !uhr_->isActive()) uhr_->start();
    }
    // As tall as what passes by: its end is in sight when it jumps back.
    if (object == ausschnitt_ && event->type() == QEvent::Resize)
        bild_->resize(ausschnitt_->width(), ausschnitt_->height() - obererRand / twipsJePixel);
    return Fenster::eventFilter(object, event);
}

void Form10::rolle() {
    oben_ -= schritt;
    if (oben_ < obererRand) oben_ = untererAnfang;
    bild_->move(0, oben_ / twipsJePixel);
}

}  // namespace rippenscheibe
