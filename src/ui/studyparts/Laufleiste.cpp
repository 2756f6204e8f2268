#include "ui/studyparts/Laufleiste.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <chrono>

#include "basis/Zahlenformat.h"
#include "study/Bewertung.h"
#include "ui/basics/Fenster.h"
#include "ui/basics/Knopf.h"
#include "ui/basics/Programm.h"
#include "ui/studyparts/Hintergrund.h"

namespace rippenscheibe {

double sekundenJeWand(const Wand& w) {
    constexpr int mal = 20;
    Pruefstand stand(w, w.eigeneMaterialien);
    const auto beginn = std::chrono::steady_clock::now();
    for (int i = 0; i < mal; ++i) {
        stand.beginne();
        stand.bewerte();
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - beginn).count() / mal;
}

QString zeittext(double sekunden) {
    const auto ganze = [](double wert, const char* einheit) {
        return QStringLiteral("höchstens ") + qtext(formatiere("0", wert, ',')) + QString::fromUtf8(einheit);
    };
    if (sekunden < 1) return QStringLiteral("unter 1 s");
    if (sekunden < 100) return ganze(sekunden, " s");
    if (sekunden < 6000) return ganze(sekunden / 60, " min");
    return ganze(sekunden / 3600, " h");
}

QString ganzzahltext(std::size_t zahl) { return QLocale().toString(static_cast<qulonglong>(zahl)); }

Laufleiste::Laufleiste(Hintergrund& hintergrund, const QString& name, const QString& text,
                       const QString& vorbereitung, QWidget* parent)
    : QWidget(parent),
      hintergrund_(hintergrund),
      vorbereitung_(vorbereitung),
      umfang_(new QLabel(this)),
      start_(neuerKnopf(this, name, text,
                        QStringLiteral("Rechnet mit allen Kernen; die Position bleibt, wie sie ist"))),
      halt_(neuerKnopf(this, QStringLiteral("Anhalten"), QStringLiteral("An&halten"),
                       QStringLiteral("Beendet die Rechnung"))),
      balken_(new QProgressBar(this)),
      stand_(new QLabel(this)) {
    umfang_->setObjectName(QStringLiteral("Umfang"));
    balken_->setObjectName(QStringLiteral("Fortschritt"));
    balken_->setAccessibleName(QStringLiteral("Fortschritt"));
    balken_->setTextVisible(false);
    stand_->setObjectName(QStringLiteral("Stand"));
    stand_->setForegroundRole(QPalette::PlaceholderText);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(Fenster::raster);
    knoepfe->addWidget(start_);
    knoepfe->addWidget(halt_);
    knoepfe->addWidget(balken_, 1);
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(Fenster::raster);
    spalte->addWidget(umfang_);
    spalte->addLayout(knoepfe);
    spalte->addWidget(stand_);
    connect(start_, &QPushButton::clicked, this, &Laufleiste::starte);
    connect(halt_, &QPushButton::clicked, &hintergrund_, &Hintergrund::halte);
    connect(&hintergrund_, &Hintergrund::begonnen, this, [this] { zeigeLauf(true); });
    connect(&hintergrund_, &Hintergrund::fortschritt, this, &Laufleiste::zeige);
    connect(&hintergrund_, &Hintergrund::beendet, this, [this](const QString& fehler) {
        zeigeLauf(false);
        if (!fehler.isEmpty()) stand_->setText(QStringLiteral("! ") + fehler);
    });
    zeigeLauf(false);
}

void Laufleiste::setzeUmfang(const QString& umfang, bool moeglich) {
    moeglich_ = moeglich;
    umfang_->setText(moeglich ? umfang : QStringLiteral("! ") + umfang);
    start_->setEnabled(moeglich_ && !hintergrund_.laeuft());
}

void Laufleiste::setzeStand(const QString& stand) { stand_->setText(stand); }

void Laufleiste::zeigeLauf(bool laeuft) {
    if (laeuft) {
        halt_->setEnabled(true);
        if (start_->hasFocus()) halt_->setFocus();
        stand_->setText(vorbereitung_);
    }
    start_->setEnabled(!laeuft && moeglich_);
    if (!laeuft && halt_->hasFocus()) start_->setFocus();
    halt_->setEnabled(laeuft);
    balken_->setRange(0, laeuft ? 0 : 1);
    balken_->setValue(0);
}

void Laufleiste::zeige(const Fortschritt& stand) {
    if (stand.gesamt == 0) return;
    constexpr int teile = 1000;
    balken_->setRange(0, teile);
    balken_->setValue(
        static_cast<int>(static_cast<double>(stand.geprueft) / static_cast<double>(stand.gesamt) * teile));
    QString text = QStringLiteral("%1 von %2").arg(ganzzahltext(stand.geprueft), ganzzahltext(stand.gesamt));
    if (stand.gefunden != stand.geprueft)
        text = QStringLiteral("geprüft %1 · gefunden %2").arg(text, ganzzahltext(stand.gefunden));
    stand_->setText(text);
}

}  // namespace rippenscheibe
