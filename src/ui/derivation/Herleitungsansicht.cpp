#include "ui/derivation/Herleitungsansicht.h"

#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <variant>

#include "trace/Formel.h"
#include "trace/Herleitung.h"
#include "ui/basics/Fensteroeffner.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

using namespace herleitung;  // steps are all this file is about

namespace {

constexpr int raster = 8;
constexpr double rand = 6;  // around a formula, px

// The pencil of an input, or as much room.
QIcon zeilenbild(const QPalette& farben, bool eingabe) {
    constexpr int seite = 16;
    constexpr int dichte = 2;
    QPixmap bild(seite * dichte, seite * dichte);
    bild.setDevicePixelRatio(dichte);
    bild.fill(Qt::transparent);
    if (!eingabe) return bild;
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(farben.color(QPalette::Link));
    zeichneStift(maler, QRectF(2, 2, seite - 4, seite - 4));
    return bild;
}

// The dialog of each group of inputs; the three lengths of the wall stand in the main window.
std::optional<Fensterart> dialogZu(std::string_view feld) {
    std::optional<Fensterart> art;
    Fensterart gruppe = Fensterart::rippen;
    const auto pruefe = [&](const Feldangabe& angabe, const auto&) {
        if (angabe.name == feld) art = gruppe;
    };
    const auto w = std::make_unique<Wand>();
    System::felder(*w, pruefe);
    gruppe = Fensterart::beplankung;
    Beplankung::felder(*w, pruefe);
    gruppe = Fensterart::verbindungsmittel;
    Verbindungsmittel::felder(*w, pruefe);
    gruppe = Fensterart::verankerung;
    Verankerung::felder(*w, pruefe);
    gruppe = Fensterart::belastung;
    Belastung::felder(*w, pruefe);
    gruppe = Fensterart::bemessung;
    Bemessungsparameter::felder(*w, pruefe);
    const bool hauptfenster = feld == "Wandlaenge" || feld == "Wandhoehe" || feld == "Rippenabstand";
    return hauptfenster ? std::nullopt : art;
}

}  // namespace

// ---- The formula ----

Formelfeld::Formelfeld(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Formel"));
    setAccessibleName(QStringLiteral("Formel"));
    setMouseTracking(true);
}

void Formelfeld::zeige(Formelbild bild, const QString& worte) {
    bild_ = std::move(bild);
    setAccessibleName(worte);
    setFixedSize((bild_.groesse() + QSizeF(2 * rand, 2 * rand)).toSize());
    update();
}

void Formelfeld::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    bild_.male(maler, {rand, rand}, palette());
}

std::optional<Ort> Formelfeld::unter(const QPointF& punkt) const {
    return bild_.treffer(punkt - QPointF(rand, rand));
}

void Formelfeld::mouseMoveEvent(QMouseEvent* ereignis) {
    setCursor(unter(ereignis->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void Formelfeld::mousePressEvent(QMouseEvent* ereignis) {
    if (const auto ort = unter(ereignis->position())) Q_EMIT gewaehlt(*ort);
}

// ---- The view ----

Herleitungsansicht::Herleitungsansicht(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : QWidget(parent),
      programm_(programm),
      meldungen_(meldungen),
      vorDemLauf_(programm.vorDemLauf),
      nachDemLauf_(programm.w) {
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(raster, raster, raster, raster);
    spalte->setSpacing(raster);
    const auto schild = [&](const QString& name, Qt::TextFormat format) {
        auto* s = new QLabel(this);
        s->setObjectName(name);
        s->setTextFormat(format);
        s->setWordWrap(true);
        spalte->addWidget(s);
        return s;
    };
    pfadzeile_ = schild(QStringLiteral("Herleitungspfad"), Qt::RichText);
    pfadzeile_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    pfadzeile_->setAccessibleName(QStringLiteral("Pfad"));
    bedeutung_ = schild(QStringLiteral("Bedeutung"), Qt::PlainText);
    rahmen_ = new QScrollArea(this);
    rahmen_->setFrameShape(QFrame::StyledPanel);
    rahmen_->setAccessibleName(QStringLiteral("Formel"));
    rahmen_->setBackgroundRole(QPalette::Base);
    formel_ = new Formelfeld(rahmen_);
    rahmen_->setWidget(formel_);
    spalte->addWidget(rahmen_, 3);
    anmerkungen_ = schild(QStringLiteral("Anmerkungen"), Qt::PlainText);
    auto* ueberschrift = schild(QStringLiteral("WoherTitel"), Qt::PlainText);
    ueberschrift->setText(QStringLiteral("Worauf der Wert beruht:"));
    woher_ = new QListWidget(this);
    woher_->setObjectName(QStringLiteral("Woher"));
    woher_->setAccessibleName(QStringLiteral("Worauf der Wert beruht"));
    woher_->setWordWrap(true);
    ueberschrift->setBuddy(woher_);
    spalte->addWidget(woher_, 2);
    connect(formel_, &Formelfeld::gewaehlt, this, &Herleitungsansicht::gehe);
    connect(woher_, &QListWidget::itemActivated, this, [this](QListWidgetItem* zeile) { waehle(*zeile); });
    connect(woher_, &QListWidget::itemClicked, this, [this](QListWidgetItem* zeile) { waehle(*zeile); });
    connect(pfadzeile_, &QLabel::linkActivated, this, [this](const QString& stufe) {
        pfad_.resize(static_cast<std::size_t>(stufe.toInt()) + 1);
        zeige();
    });
    melde(QStringLiteral("Auf eine Zahl des Berichts klicken: hier steht, woher sie kommt."));
}

// The derivation repeats the run; it must yield the very report that is shown.
bool Herleitungsansicht::leiteHer() {
    if (graph_ != nullptr) return true;
    if (vergeblich_) return false;
    graph_ = leiteLaufHer(vorDemLauf_, programm_.felder, nachDemLauf_, dezimalzeichen());
    vergeblich_ = graph_ == nullptr;
    if (vergeblich_) return false;
    d_ = std::make_unique<Darstellung>(*graph_);
    return true;
}

void Herleitungsansicht::zeigeStelle(const std::vector<QString>& zeilenBisher, const QString& zeile,
                                     int spalte) {
    if (zeile.isEmpty()) return;
    if (!leiteHer()) {
        melde(QStringLiteral("Zu diesem Text gibt es keine Herleitung: bitte neu berechnen."));
        return;
    }
    const std::string text = utf8(zeile);
    auto davor = std::ranges::count(zeilenBisher, zeile);
    const auto treffer = std::ranges::find_if(
        graph_->bericht, [&](const Berichtszeile& z) { return z.text == text && davor-- == 0; });
    if (treffer == graph_->bericht.end() || treffer->zahlen.empty()) return;
    const auto stelle = static_cast<std::size_t>(zeile.left(spalte).toUtf8().size());
    auto zahl = std::ranges::find_if(treffer->zahlen, [&](const auto& z) { return z.bis >= stelle; });
    if (zahl == treffer->zahlen.end()) --zahl;
    beginne(zahl->ausdruck);
}

void Herleitungsansicht::beginne(Ort ausdruck) {
    pfad_.clear();
    const Stand* stand = d_->standAus(ausdruck);
    if (stand == nullptr) {
        pfad_.push_back({keiner, ausdruck});
        zeige();
    } else {
        gehe(ausdruck);
    }
}

// One level down, or to the input.
void Herleitungsansicht::gehe(Ort knoten) {
    const Stand* stand = d_->standAus(knoten);
    if (stand != nullptr && stand->schritt != keiner) {
        pfad_.push_back(
            {stand->schritt, graph_->schritte[static_cast<std::size_t>(stand->schritt)].ausdruck});
        zeige();
    } else if (stand != nullptr && d_->feld(*stand).eingabe && !pfad_.empty()) {
        oeffneEingabe(*stand);
    } else if (stand != nullptr) {
        const QString wert = qtext(d_->zeichen(*stand) + " = " + d_->wertMitEinheit(*stand));
        const QString art = d_->feld(*stand).eingabe
                                ? QStringLiteral("Eingabe: ") + qtext(d_->feld(*stand).bedeutung)
                                : QStringLiteral("nicht zugewiesen, Stand vor dem Lauf");
        if (pfad_.empty()) {
            melde(wert + QLatin1Char('\n') + art);
            woher(knoten, false);
        } else {
            anmerkungen_->setText(wert + QLatin1String(": ") + art);
        }
    }
}

QString Herleitungsansicht::name(const Station& s) const {
    if (s.schritt == keiner) return QStringLiteral("im Bericht");
    return qtext(d_->zeichen(d_->stand(graph_->schritte[static_cast<std::size_t>(s.schritt)])));
}

void Herleitungsansicht::zeigePfad() {
    QString text;
    for (std::size_t i = 0; i < pfad_.size(); ++i) {
        if (i > 0) text += QStringLiteral(" › ");
        const QString wort = name(pfad_[i]).toHtmlEscaped();
        const bool letzte = i + 1 == pfad_.size();
        text += letzte ? QStringLiteral("<b>%1</b>").arg(wort)
                       : QStringLiteral("<a href=\"%1\">%2</a>").arg(i).arg(wort);
    }
    pfadzeile_->setText(text);
}

void Herleitungsansicht::zeige() {
    const Station& s = pfad_.back();
    const Formelmass mass = schirmmass(font(), rahmen_->viewport()->width() - 2 * rand);
    zeigePfad();
    QStringList zeilen;
    if (s.schritt == keiner) {
        bedeutung_->setText(QStringLiteral("vom Bericht gebildet"));
        formel_->zeige(Formelbild::ausdruck(*d_, s.ausdruck, mass), qtext(d_->symbolisch(s.ausdruck)));
    } else {
        const herleitung::Schritt& schritt = graph_->schritte[static_cast<std::size_t>(s.schritt)];
        const Stand& stand = d_->stand(schritt);
        QString bedeutung = qtext(d_->feld(stand).bedeutung);
        if (stand.rippe >= 0) bedeutung += QStringLiteral(", Rippe %1").arg(stand.rippe);
        bedeutung_->setText(bedeutung);
        formel_->zeige(Formelbild::gleichung(*d_, schritt, mass), qtext(d_->zeile(schritt)));
        for (const std::string& text : d_->anmerkungen(schritt)) zeilen << qtext(text);
    }
    anmerkungen_->setText(zeilen.join(QLatin1Char('\n')));
    formel_->show();
    rahmen_->ensureVisible(0, 0);
    woher_->clear();
    zeigeWoher(s);
}

void Herleitungsansicht::zeigeWoher(const Station& s) {
    jederOperand(*graph_, s.ausdruck, [&](Ort ort) { woher(ort, false); });
    if (s.schritt == keiner) return;
    const herleitung::Schritt& schritt = graph_->schritte[static_cast<std::size_t>(s.schritt)];
    for (const Bedingung& b : schritt.bedingungen) {
        for (const Ort seite : {b.links, b.rechts})
            jederOperand(*graph_, seite, [&](Ort ort) { woher(ort, true); });
    }
}

// A row of the list, once for each value.
void Herleitungsansicht::woher(Ort knoten, bool bedingung) {
    const Stand* stand = d_->standAus(knoten);
    if (stand == nullptr) return;
    const Feldeintrag& feld = d_->feld(*stand);
    QString text = qtext(d_->zeichen(*stand) + " = " + d_->wertMitEinheit(*stand)) + QStringLiteral("   ") +
                   qtext(feld.bedeutung);
    if (stand->schritt == keiner)
        text += feld.eingabe ? QStringLiteral(" (Eingabe)") : QStringLiteral(" (Stand vor dem Lauf)");
    if (bedingung) text = QStringLiteral("Bedingung: ") + text;
    for (int i = 0; i < woher_->count(); ++i) {
        const QString da = woher_->item(i)->text();
        if (da == text || QStringLiteral("Bedingung: ") + da == text) return;
    }
    auto* zeile = new QListWidgetItem(text, woher_);
    zeile->setData(Qt::UserRole, knoten);
    zeile->setIcon(zeilenbild(palette(), stand->schritt == keiner && feld.eingabe));
}

void Herleitungsansicht::waehle(const QListWidgetItem& zeile) {
    const Ort knoten = zeile.data(Qt::UserRole).toInt();
    const Stand* stand = d_->standAus(knoten);
    if (stand != nullptr && stand->schritt == keiner && d_->feld(*stand).eingabe) {
        oeffneEingabe(*stand);
    } else {
        gehe(knoten);
    }
}

void Herleitungsansicht::oeffneEingabe(const Stand& stand) {
    const std::string_view feld = d_->feld(stand).name;
    const std::optional<Fensterart> art = dialogZu(feld);
    if (!art) {
        anmerkungen_->setText(qtext(d_->zeichen(stand)) +
                              QStringLiteral(" wird im Hauptfenster eingegeben."));
        return;
    }
    programm_.Feldziel = feld == "hInnenrippe" ? "hRandrippe" : feld;  // one control for both
    oeffne(*art, programm_, meldungen_, window());
    programm_.Feldziel.clear();
}

// No formula, only words.
void Herleitungsansicht::melde(const QString& text) {
    pfad_.clear();
    pfadzeile_->clear();
    bedeutung_->setText(text);
    anmerkungen_->clear();
    woher_->clear();
    formel_->hide();
}

}  // namespace rippenscheibe
