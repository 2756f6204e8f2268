#include "ui/controls/Werteingabe.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QRegularExpression>
#include <QTimer>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

#include "basis/Zahlenformat.h"
#include "model/Feldangaben.h"
#include "ui/basics/Meldungen.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

constexpr QColor rot(0xB3, 0x26, 0x1E);

QString formatiert(const QString& maske, double wert) {
    return qtext(formatiere(utf8(maske), wert, dezimalzeichen()));
}

// The unit without its explanation: "kN" of "kN (ständig)", nothing of "[-]".
QString blosseEinheit(const Wertvorgabe& vorgabe) {
    const QString& einheit = vorgabe.bereichseinheit.isEmpty() ? vorgabe.einheit : vorgabe.bereichseinheit;
    return einheit == QStringLiteral("[-]") ? QString() : einheit.section(QLatin1Char('('), 0, 0).trimmed();
}

QString bereich(const Wertvorgabe& vorgabe) {
    return QStringLiteral("zulässig: ") +
           qtext(bereichstext({vorgabe.min, vorgabe.max}, utf8(blosseEinheit(vorgabe)), dezimalzeichen()));
}

}  // namespace

Wertvorgabe wertvorgabe(const Feldangabe& angabe, const Wertschild& schild, const QString& zusatz) {
    Wertvorgabe vorgabe;
    vorgabe.beschriftung = schild.beschriftung;
    vorgabe.einheit = schild.einheit;
    vorgabe.bereichseinheit = schild.bereichseinheit;
    vorgabe.hoechstlaenge = schild.hoechstlaenge;
    vorgabe.maske = qtext(angabe.maske);
    vorgabe.symbol = qtext(angabe.symbol).remove(QRegularExpression(QStringLiteral("[_{}]")));
    vorgabe.bedeutung = qtext(angabe.bedeutung);
    vorgabe.quelle = qtext(angabe.quelle);
    if (!zusatz.isEmpty()) vorgabe.bedeutung += QStringLiteral(", ") + zusatz;
    if (angabe.bereich.begrenzt()) {
        vorgabe.min = angabe.bereich.min / schild.teiler;
        vorgabe.max = angabe.bereich.max / schild.teiler;
    }
    return vorgabe;
}

QString feldhinweis(const Wertvorgabe& vorgabe) {
    QStringList zeilen;
    const QString trenner = vorgabe.symbol.isEmpty() ? QString() : vorgabe.symbol + QStringLiteral(": ");
    if (!vorgabe.bedeutung.isEmpty()) zeilen << trenner + vorgabe.bedeutung;
    if (const QString einheit = blosseEinheit(vorgabe); !einheit.isEmpty())
        zeilen << QStringLiteral("Einheit: ") + einheit;
    if (vorgabe.max < Wertvorgabe{}.max) zeilen << bereich(vorgabe);
    if (!vorgabe.quelle.isEmpty()) zeilen << QStringLiteral("Quelle: ") + vorgabe.quelle;
    return zeilen.join(QLatin1Char('\n'));
}

std::optional<double> zahlAus(const QString& text) {
    std::string ziffern = utf8(text.trimmed());
    std::size_t marken = 0;
    for (char& zeichen : ziffern) {
        if (zeichen == ',' || zeichen == '.') {
            zeichen = '.';
            ++marken;
        } else if ((zeichen < '0' || zeichen > '9') && zeichen != '-' && zeichen != '+') {
            return std::nullopt;  // no exponents, no grouping by blanks
        }
    }
    if (marken > 1) return std::nullopt;
    if (ziffern.starts_with('+') && !ziffern.starts_with("+-")) ziffern.erase(0, 1);
    double wert = 0.0;
    const char* ende = ziffern.data() + ziffern.size();
    const auto [gelesen, fehler] = std::from_chars(ziffern.data(), ende, wert);
    if (fehler != std::errc() || gelesen != ende || !std::isfinite(wert)) return std::nullopt;
    return wert;
}

Werteingabe::Werteingabe(const QString& name, Wertvorgabe vorgabe, QWidget* parent)
    : QLineEdit(parent),
      vorgabe_(std::move(vorgabe)),
      beschriftung_(new QLabel(vorgabe_.beschriftung, parent)),
      einheit_(new QLabel(vorgabe_.einheit, parent)) {
    setObjectName(name);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (vorgabe_.hoechstlaenge > 0) setMaxLength(vorgabe_.hoechstlaenge);
    setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000,000")) + 12);
    setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("000000,000")) + 28);
    beschriftung_->setTextFormat(Qt::PlainText);
    beschriftung_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    beschriftung_->setBuddy(this);
    einheit_->setTextFormat(Qt::PlainText);
    const QString& gemeint = vorgabe_.bedeutung.isEmpty() ? vorgabe_.beschriftung : vorgabe_.bedeutung;
    const QString einheit = blosseEinheit(vorgabe_);
    setAccessibleName(
        (einheit.isEmpty() ? gemeint : gemeint + QStringLiteral(" in ") + einheit).simplified());
    setAccessibleDescription(bereichstext());
    for (QWidget* teil : {static_cast<QWidget*>(this), static_cast<QWidget*>(beschriftung_)})
        teil->setToolTip(feldhinweis(vorgabe_));
    connect(this, &QLineEdit::textEdited, this, &Werteingabe::uebernimmText);
    zeigeWert();
}

void Werteingabe::setzeWert(double wert) {
    const bool neu = wert != wert_;
    wert_ = wert;
    darfLeerSein_ = false;
    zeigeWert();
    if (neu) Q_EMIT geaendert(wert_);
}

void Werteingabe::setzeLeer() {
    setzeWert(0.0);
    darfLeerSein_ = true;
    zeigeWert();
}

QString Werteingabe::bereichstext() const { return bereich(vorgabe_); }

QString Werteingabe::bezeichnung() const {
    if (!vorgabe_.bezeichnung.isEmpty()) return vorgabe_.bezeichnung;
    return vorgabe_.beschriftung.section(QLatin1Char('='), 0, 0).simplified();
}

void Werteingabe::setzeInZeile(QGridLayout* grid, int zeile, int spalte) {
    zelle_ = new QWidget(parentWidget());
    auto* reihen = new QGridLayout(zelle_);
    reihen->setContentsMargins(0, 0, 0, 0);
    reihen->setHorizontalSpacing(8);
    reihen->setVerticalSpacing(0);
    reihen->setColumnStretch(1, 1);
    reihen->addWidget(this, 0, 0);
    reihen->addWidget(einheit_, 0, 1);
    beschriftung_->setMinimumHeight(sizeHint().height());  // beside the field, not beside its range
    grid->addWidget(beschriftung_, zeile, spalte, Qt::AlignTop);
    grid->addWidget(zelle_, zeile, spalte + 1, 1, 2, Qt::AlignTop);
}

void Werteingabe::setzeDaneben(QWidget* teil) {
    auto* reihen = static_cast<QGridLayout*>(zelle_->layout());
    reihen->setColumnStretch(1, 0);
    reihen->setColumnStretch(3, 1);
    reihen->addWidget(teil, 0, 2);
}

void Werteingabe::setzeAktiv(bool aktiv) {
    setEnabled(aktiv);
    beschriftung_->setEnabled(aktiv);
    einheit_->setEnabled(aktiv);
}

void Werteingabe::uebernimmText(const QString& text) {
    const std::optional<double> gelesen = zahlAus(text);
    const bool geleert = darfLeerSein_ && text.isEmpty();
    const bool gut = geleert || (gelesen && erlaubt(*gelesen));
    setzeAbgelehnt(!gut);
    if (geleert)
        aendere(0.0);
    else
        aendere(gut ? *gelesen : vorher_);
}

void Werteingabe::aendere(double wert) {
    if (wert == wert_) return;
    wert_ = wert;
    Q_EMIT geaendert(wert_);
}

void Werteingabe::zeigeWert() {
    const bool leer = darfLeerSein_ && wert_ == 0.0;
    const QString text = leer ? QString() : formatiert(vorgabe_.maske, wert_);
    // A value may need more characters than the user may type; it is never cut.
    if (vorgabe_.hoechstlaenge > 0) setMaxLength(std::max<int>(vorgabe_.hoechstlaenge, int(text.size())));
    if (text != this->text()) setText(text);
    vorher_ = wert_;
    setzeAbgelehnt(false);
}

void Werteingabe::setzeAbgelehnt(bool abgelehnt) {
    const bool neu = abgelehnt_ != abgelehnt;
    abgelehnt_ = abgelehnt;
    zeigeBereich();
    if (!neu) return;
    setAccessibleDescription(abgelehnt ? QStringLiteral("Wert abgelehnt, ") + bereichstext()
                                       : bereichstext());
    update();
}

// The allowed range beneath the field. While one types it floats over whatever stands there, so that nothing
// jumps; beneath a field that was left it takes its own place, so that it covers no other one.
void Werteingabe::zeigeBereich() {
    if (!abgelehnt_ || !isVisible()) {
        if (bereich_ != nullptr) bereich_->hide();
        return;
    }
    if (bereich_ == nullptr) {
        bereich_ = new QLabel(bereichstext());
        bereich_->setObjectName(objectName() + QStringLiteral("_Bereich"));
        bereich_->setTextFormat(Qt::PlainText);
        bereich_->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    if (bereich_->isVisible() && bereich_->parentWidget() == zelle_) return;
    const bool schwebt = hasFocus() || zelle_ == nullptr;
    bereich_->setAutoFillBackground(schwebt);
    bereich_->setFrameShape(schwebt ? QFrame::Box : QFrame::NoFrame);
    bereich_->setMargin(schwebt ? 3 : 0);
    if (schwebt) {
        lasseBereichSchweben();
    } else {
        bereich_->setPalette(QPalette());
        static_cast<QGridLayout*>(zelle_->layout())->addWidget(bereich_, 1, 0, 1, 2);
    }
    bereich_->show();
}

// As long as a mouse button is held nothing may move: what is clicked would no longer be under the pointer.
void Werteingabe::zeigeBereichNachDemKlick() {
    constexpr int gleichWieder = 50;  // ms
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        zeigeBereich();
    else
        QTimer::singleShot(gleichWieder, this, &Werteingabe::zeigeBereichNachDemKlick);
}

// Over the window or what scrolls in it, above the field where there is no room beneath.
void Werteingabe::lasseBereichSchweben() {
    QWidget* flaeche = parentWidget();
    while (!flaeche->isWindow() &&
           flaeche->parentWidget()->objectName() != QStringLiteral("qt_scrollarea_viewport"))
        flaeche = flaeche->parentWidget();
    bereich_->setParent(flaeche);
    QPalette farben = palette();
    farben.setColor(QPalette::Window, palette().color(QPalette::ToolTipBase));
    farben.setColor(QPalette::WindowText, palette().color(QPalette::ToolTipText));
    bereich_->setPalette(farben);
    bereich_->adjustSize();
    QPoint ort = mapTo(flaeche, QPoint(0, height() + 1));
    ort.setX(std::max(0, std::min(ort.x(), flaeche->width() - bereich_->width() - 4)));
    if (ort.y() + bereich_->height() > flaeche->height())
        ort.setY(ort.y() - height() - 2 - bereich_->height());
    bereich_->move(ort);
    bereich_->raise();
}

void Werteingabe::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (!abgelehnt_) return;
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(rot, 2));
    maler.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
}

void Werteingabe::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    zeigeBereich();
}

void Werteingabe::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
    zeigeBereichNachDemKlick();
    if (abgelehnt_) return;
    vorher_ = wert_;
    // A good text is put in order when the format shows all of it; else it stays as it was typed.
    if (zahlAus(formatiert(vorgabe_.maske, wert_)) == wert_) zeigeWert();
}

void Werteingabe::hideEvent(QHideEvent* event) {
    QLineEdit::hideEvent(event);
    if (abgelehnt_ && !isVisibleTo(window())) zeigeWert();
    if (bereich_ != nullptr) bereich_->hide();
}

void Werteingabe::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled() && abgelehnt_) zeigeWert();
}

Werteingabe* abgelehntesFeld(const QWidget& fenster) {
    for (auto* feld : fenster.findChildren<Werteingabe*>())
        if (feld->abgelehnt() && feld->window() == &fenster) return feld;
    return nullptr;
}

bool eingabenGueltig(QWidget& fenster, Meldungen& meldungen) {
    Werteingabe* feld = abgelehntesFeld(fenster);
    if (feld == nullptr) return true;
    meldungen.kritisch(&fenster, QStringLiteral(" Fehler"),
                       QStringLiteral("Die Eingabe \"%1\" bei \"%2\" ist unzulässig.\n\n%3")
                           .arg(feld->text(), feld->bezeichnung(), feld->bereichstext()));
    feld->setFocus(Qt::OtherFocusReason);
    feld->selectAll();
    return false;
}

}  // namespace rippenscheibe
