#include "ui/basics/Werteingabe.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QPainter>
#include <charconv>
#include <cmath>
#include <string>
#include <utility>

#include "basis/Zahlenformat.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

constexpr QColor rot(0xB3, 0x26, 0x1E);

QString formatiert(const QString& maske, double wert) {
    return qtext(formatiere(utf8(maske), wert, dezimalzeichen()));
}

// As few digits as the limit needs: 0,2 and 100.
QString grenze(double wert) {
    return QString::number(wert, 'g', 12).replace(QLatin1Char('.'), QLatin1Char(dezimalzeichen()));
}

}  // namespace

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
    setAccessibleName((vorgabe_.beschriftung + QLatin1Char(' ') + vorgabe_.einheit).simplified());
    setAccessibleDescription(bereichstext());
    connect(this, &QLineEdit::textEdited, this, &Werteingabe::uebernimmText);
    zeigeWert();
}

void Werteingabe::setzeWert(double wert) {
    const bool neu = wert != wert_;
    wert_ = wert;
    zeigeWert();
    if (neu) Q_EMIT geaendert(wert_);
}

QString Werteingabe::bereichstext() const {
    const QString& schild = vorgabe_.bereichseinheit.isEmpty() ? vorgabe_.einheit : vorgabe_.bereichseinheit;
    const QString einheit = schild.section(QLatin1Char('('), 0, 0).trimmed();
    const QString text =
        QStringLiteral("zulässig: %1 bis %2").arg(grenze(vorgabe_.min), grenze(vorgabe_.max));
    return einheit.isEmpty() ? text : text + QLatin1Char(' ') + einheit;
}

void Werteingabe::setzeInZeile(QGridLayout* grid, int zeile, int spalte) {
    grid->addWidget(beschriftung_, zeile, spalte);
    grid->addWidget(this, zeile, spalte + 1);
    grid->addWidget(einheit_, zeile, spalte + 2);
}

void Werteingabe::setzeAktiv(bool aktiv) {
    setEnabled(aktiv);
    beschriftung_->setEnabled(aktiv);
    einheit_->setEnabled(aktiv);
}

void Werteingabe::uebernimmText(const QString& text) {
    const std::optional<double> gelesen = zahlAus(text);
    const bool gut = gelesen && *gelesen >= vorgabe_.min && *gelesen <= vorgabe_.max;
    setzeAbgelehnt(!gut);
    if (!gut || *gelesen == wert_) return;
    wert_ = *gelesen;
    Q_EMIT geaendert(wert_);
}

void Werteingabe::zeigeWert() {
    const QString text = formatiert(vorgabe_.maske, wert_);
    // A value may need more characters than the user may type; it is never cut.
    if (vorgabe_.hoechstlaenge > 0) setMaxLength(std::max<int>(vorgabe_.hoechstlaenge, int(text.size())));
    if (text != this->text()) setText(text);
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

// The allowed range beneath the field, over whatever stands there, so that nothing jumps.
void Werteingabe::zeigeBereich() {
    if (!abgelehnt_ || !isVisible()) {
        if (bereich_ != nullptr) bereich_->hide();
        return;
    }
    if (bereich_ == nullptr) {
        bereich_ = new QLabel(bereichstext(), window());
        bereich_->setObjectName(objectName() + QStringLiteral("_Bereich"));
        bereich_->setAutoFillBackground(true);
        bereich_->setMargin(3);
        bereich_->setFrameShape(QFrame::Box);
        bereich_->setAttribute(Qt::WA_TransparentForMouseEvents);
        QPalette farben = palette();
        farben.setColor(QPalette::Window, palette().color(QPalette::ToolTipBase));
        farben.setColor(QPalette::WindowText, palette().color(QPalette::ToolTipText));
        bereich_->setPalette(farben);
    }
    bereich_->adjustSize();
    QPoint ort = mapTo(window(), QPoint(0, height() + 1));
    ort.setX(std::max(0, std::min(ort.x(), window()->width() - bereich_->width() - 4)));
    if (ort.y() + bereich_->height() > window()->height())
        ort.setY(ort.y() - height() - 2 - bereich_->height());
    bereich_->move(ort);
    bereich_->raise();
    bereich_->show();
}

void Werteingabe::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (!abgelehnt_) return;
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(QPen(rot, 2));
    maler.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
}

void Werteingabe::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) return;
    // A good text is put in order when the format shows all of it; else it stays as it was typed.
    const std::optional<double> gezeigt = zahlAus(formatiert(vorgabe_.maske, wert_));
    if (abgelehnt_ || gezeigt == wert_) zeigeWert();
}

void Werteingabe::hideEvent(QHideEvent* event) {
    QLineEdit::hideEvent(event);
    if (bereich_ != nullptr) bereich_->hide();
}

}  // namespace rippenscheibe
