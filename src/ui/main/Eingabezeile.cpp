#include "ui/main/Eingabezeile.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QToolTip>
#include <algorithm>

#include "ui/controls/Kurzzeile.h"

namespace rippenscheibe {

namespace {

constexpr int rand = 8;  // px beside the contents of a row
constexpr int oben = 3;  // px above and below them
constexpr int symbolgroesse = 24;
constexpr int pfeilbreite = 6;  // px of the chevron

QString ohneMerkbuchstaben(QString text) { return text.remove(QLatin1Char('&')); }

}  // namespace

Eingabezeile::Eingabezeile(const QString& name, const QString& text, QWidget* parent)
    : QPushButton(text, parent), zusammenfassung_(new Kurzzeile(this)) {
    setObjectName(name);
    setAccessibleName(text);
    setAutoDefault(false);
    setIconSize({symbolgroesse, symbolgroesse});
    setAttribute(Qt::WA_Hover);
    QSizePolicy groesse(QSizePolicy::Expanding, QSizePolicy::Fixed);
    groesse.setHeightForWidth(true);
    setSizePolicy(groesse);
    zusammenfassung_->setAttribute(Qt::WA_TransparentForMouseEvents);
    zusammenfassung_->setObjectName(name + QStringLiteral("_Zusammenfassung"));
}

void Eingabezeile::setzeZusammenfassung(const QString& text) {
    zusammenfassung_->setzeText(text);
    setAccessibleDescription(text);
    updateGeometry();
    ordne();
}

void Eingabezeile::setzeSummenzeilen(int zeilen) {
    if (!zusammenfassung_->setzeHoechstzeilen(zeilen)) return;
    updateGeometry();
    ordne();
}

void Eingabezeile::setzeTaste(const QKeySequence& taste) {
    taste_ = taste.toString(QKeySequence::NativeText);
    update();
}

int Eingabezeile::beschriftungshoehe() const { return fontMetrics().lineSpacing(); }

// Right of the icon and left of the chevron.
QRect Eingabezeile::textflaeche() const {
    return rect().adjusted(2 * rand + symbolgroesse, oben, -2 * rand - pfeilbreite, -oben);
}

int Eingabezeile::summenbreite(int breite) const { return breite - 4 * rand - symbolgroesse - pfeilbreite; }

int Eingabezeile::heightForWidth(int breite) const {
    return beschriftungshoehe() + zusammenfassung_->heightForWidth(summenbreite(breite)) + 2 * oben;
}

int Eingabezeile::hoehe(int breite, int summenzeilen) const {
    return beschriftungshoehe() + zusammenfassung_->hoehe(summenbreite(breite), summenzeilen) + 2 * oben;
}

QSize Eingabezeile::sizeHint() const {
    const int textbreite = fontMetrics().horizontalAdvance(ohneMerkbuchstaben(text()));
    const int breite = textbreite + 4 * rand + symbolgroesse + pfeilbreite;
    return {breite, heightForWidth(std::max(breite, width()))};
}

QSize Eingabezeile::minimumSizeHint() const { return {sizeHint().width(), heightForWidth(width())}; }

void Eingabezeile::ordne() {
    zusammenfassung_->setGeometry(textflaeche().adjusted(0, beschriftungshoehe(), 0, 0));
}

void Eingabezeile::resizeEvent(QResizeEvent* event) {
    QPushButton::resizeEvent(event);
    ordne();
    updateGeometry();
}

bool Eingabezeile::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto& hilfe = static_cast<const QHelpEvent&>(*event);
        QToolTip::showText(hilfe.globalPos(),
                           zusammenfassung_->gekuerzt() ? zusammenfassung_->text() : QString(), this);
        return true;
    }
    return QPushButton::event(event);
}

void Eingabezeile::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.setRenderHint(QPainter::Antialiasing);
    QColor fuellung = palette().color(QPalette::Highlight);
    fuellung.setAlpha(isDown() ? 70 : underMouse() && isEnabled() ? 40 : hasFocus() ? 26 : 0);
    maler.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 1.5) : QPen(Qt::NoPen));
    maler.setBrush(fuellung);
    maler.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);

    const QRect flaeche = textflaeche();
    icon().paint(&maler, rand, (height() - symbolgroesse) / 2, symbolgroesse, symbolgroesse);
    QFont schrift = font();
    schrift.setWeight(QFont::Medium);
    maler.setFont(schrift);
    maler.setPen(palette().color(QPalette::ButtonText));
    QStyleOptionButton angaben;
    initStyleOption(&angaben);
    const bool unterstrichen = style()->styleHint(QStyle::SH_UnderlineShortcut, &angaben, this) != 0;
    maler.drawText(
        flaeche.left(), flaeche.top(), flaeche.width(), beschriftungshoehe(),
        Qt::AlignLeft | Qt::AlignVCenter | (unterstrichen ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
        text());
    const double mitte = height() / 2.0;
    const double rechts = width() - rand;
    maler.setPen(QPen(palette().color(QPalette::PlaceholderText), 1.5));
    const QPointF pfeil[] = {
        {rechts - pfeilbreite + 1, mitte - 4}, {rechts - 1, mitte}, {rechts - pfeilbreite + 1, mitte + 4}};
    maler.drawPolyline(pfeil, 3);
    maler.setFont(font());
    maler.setPen(palette().color(QPalette::PlaceholderText));
    const int frei = flaeche.width() - QFontMetrics(schrift).horizontalAdvance(ohneMerkbuchstaben(text()));
    if (fontMetrics().horizontalAdvance(taste_) + rand <= frei)
        maler.drawText(flaeche.left(), flaeche.top(), flaeche.width(), beschriftungshoehe(),
                       Qt::AlignRight | Qt::AlignVCenter, taste_);
}

}  // namespace rippenscheibe
