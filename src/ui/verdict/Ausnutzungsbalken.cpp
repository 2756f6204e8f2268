#include "ui/verdict/Ausnutzungsbalken.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <algorithm>
#include <cmath>

#include "ui/basics/Farben.h"

namespace rippenscheibe {

namespace {

constexpr double markeBei = 0.75;  // of the length of a bar stands for 1,00
constexpr double luecke = 3.0;     // px, where a bar breaks
constexpr int abstand = 8;
constexpr int kuerzester = 48;  // px, a bar in a narrow row
constexpr int ueblicher = 140;

bool dunkel(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

QColor blass(QColor farbe, float deckung) {
    farbe.setAlphaF(deckung);
    return farbe;
}

void maleMarke(QPainter& painter, const QRectF& flaeche, const QColor& farbe) {
    const double x = std::floor(flaeche.left() + flaeche.width() * markeBei + luecke / 2.0) + 0.5;
    painter.setPen(QPen(farbe, 1.0));
    painter.drawLine(QPointF(x, flaeche.top() - 2.0), QPointF(x, flaeche.bottom() + 2.0));
}

// Up to the mark an exceeded bar is pale, so that what is too much stands out.
void maleUeberschritten(QPainter& painter, const QRectF& flaeche, double eta, const QColor& farbe) {
    const double marke = flaeche.width() * markeBei;
    const double platz = flaeche.width() - marke - luecke;
    const double ueber = std::isfinite(eta) ? std::clamp((eta - 1.0) * marke, 2.0, platz) : platz;
    painter.fillRect(QRectF(flaeche.left(), flaeche.top(), marke, flaeche.height()), blass(farbe, 0.45F));
    painter.fillRect(QRectF(flaeche.left() + marke + luecke, flaeche.top(), ueber, flaeche.height()), farbe);
}

}  // namespace

Urteilsfarben urteilsfarben(const QPalette& palette) {
    const bool nacht = dunkel(palette);
    return {lesbar(nacht ? 0x81C784 : 0x2E7D32, palette), lesbar(nacht ? 0xF2776D : 0xB3261E, palette),
            lesbar(nacht ? 0xF0B95A : 0x8A5A00, palette), palette.color(QPalette::PlaceholderText)};
}

Balkenurteil balkenurteil(const Abschnittsurteil& abschnitt) {
    if (abschnitt.groesster > 1) return Balkenurteil::ueberschritten;
    if (abschnitt.stand == Nachweisstand::offen) return Balkenurteil::ohneNachweis;
    return abschnitt.stand == Nachweisstand::gefuehrt ? Balkenurteil::erfuellt : Balkenurteil::ohneBedarf;
}

QColor urteilsfarbe(const QPalette& palette, Balkenurteil urteil) {
    const Urteilsfarben farben = urteilsfarben(palette);
    switch (urteil) {
        case Balkenurteil::erfuellt:
            return farben.erfuellt;
        case Balkenurteil::ueberschritten:
            return farben.ueberschritten;
        case Balkenurteil::ohneNachweis:
            return farben.warnung;
        case Balkenurteil::ohneBedarf:
            break;
    }
    return farben.ohne;
}

QString urteilszeichen(Balkenurteil urteil) {
    switch (urteil) {
        case Balkenurteil::erfuellt:
            return QStringLiteral("✓");
        case Balkenurteil::ueberschritten:
            return QStringLiteral("✗");
        case Balkenurteil::ohneNachweis:
            return QStringLiteral("!");
        case Balkenurteil::ohneBedarf:
            break;
    }
    return QStringLiteral("–");
}

QString urteilswort(Balkenurteil urteil) {
    switch (urteil) {
        case Balkenurteil::erfuellt:
            return QStringLiteral("erfüllt");
        case Balkenurteil::ueberschritten:
            return QStringLiteral("nicht erfüllt");
        case Balkenurteil::ohneNachweis:
            return QStringLiteral("nicht nachgewiesen");
        case Balkenurteil::ohneBedarf:
            break;
    }
    return QStringLiteral("keine Beanspruchung");
}

void maleBalken(QPainter& painter, const QRectF& flaeche, double eta, Balkenurteil urteil,
                const QPalette& palette) {
    const QColor tinte = palette.color(QPalette::Text);
    const QColor farbe = urteilsfarbe(palette, urteil);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    if (urteil == Balkenurteil::ohneBedarf) {
        painter.fillRect(QRectF(flaeche.left(), std::round(flaeche.center().y()), flaeche.width(), 1.0),
                         blass(tinte, 0.35F));
        painter.restore();
        return;
    }
    painter.fillRect(flaeche, blass(tinte, 0.10F));
    if (urteil == Balkenurteil::ohneNachweis) {
        painter.fillRect(flaeche, QBrush(farbe, Qt::BDiagPattern));
    } else if (urteil == Balkenurteil::ueberschritten && (eta > 1.0 || !std::isfinite(eta))) {
        maleUeberschritten(painter, flaeche, eta, farbe);
    } else {
        const double laenge =
            std::isfinite(eta) ? std::clamp(eta, 0.0, 1.0) * flaeche.width() * markeBei : 0.0;
        painter.fillRect(QRectF(flaeche.left(), flaeche.top(), laenge, flaeche.height()), farbe);
    }
    maleMarke(painter, flaeche, tinte);
    painter.restore();
}

Ausnutzungsbalken::Ausnutzungsbalken(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Ausnutzungsbalken::setze(const Balkenwert& wert) {
    wert_ = wert;
    const QString ganz =
        wert.wert.isEmpty()
            ? QStringLiteral("%1: %2").arg(wert.name, urteilswort(wert.urteil))
            : QStringLiteral("%1: %2, %3").arg(wert.name, wert.wert, urteilswort(wert.urteil));
    setToolTip(wert.beschreibung.isEmpty() ? ganz : wert.beschreibung);
    setAccessibleName(ganz);
    setAccessibleDescription(wert.beschreibung);
    updateGeometry();
    update();
}

int Ausnutzungsbalken::namensbreite() const { return fontMetrics().horizontalAdvance(wert_.name) + 2; }

// What holds needs no sign; everything else says what it is without its colour.
QString Ausnutzungsbalken::werttext() const {
    QString zeichen = urteilszeichen(wert_.urteil);
    if (wert_.wert.isEmpty()) return zeichen;
    return wert_.urteil == Balkenurteil::erfuellt ? wert_.wert : zeichen + QLatin1Char(' ') + wert_.wert;
}

// As wide as any verdict, so that the marks of bars below each other are in line.
int Ausnutzungsbalken::wertbreite() const {
    return std::max(fontMetrics().horizontalAdvance(QStringLiteral("✗ 88,88")),
                    fontMetrics().horizontalAdvance(werttext()));
}

QSize Ausnutzungsbalken::sizeHint() const {
    const int breite = namensbreite() + ueblicher + wertbreite() + 4 * abstand;
    return {breite, std::max(fontMetrics().height(), balkenhoehe + 4) + abstand / 2};
}

QSize Ausnutzungsbalken::minimumSizeHint() const {
    return {std::min(namensbreite(), 10 * fontMetrics().averageCharWidth()) + kuerzester + wertbreite() +
                4 * abstand,
            sizeHint().height()};
}

bool Ausnutzungsbalken::event(QEvent* event) {
    if (event->type() == QEvent::FontChange) updateGeometry();
    return QAbstractButton::event(event);
}

void Ausnutzungsbalken::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect innen = rect().adjusted(abstand, 0, -abstand, 0);
    if (underMouse() || isDown())
        painter.fillRect(rect(), blass(palette().color(QPalette::Highlight), 0.12F));

    const int werte = wertbreite();
    const int namen = std::min(namensbreite(), innen.width() - werte - kuerzester - 2 * abstand);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(innen.left(), innen.top(), namen, innen.height()),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(wert_.name, Qt::ElideRight, namen));
    const int oben = innen.top() + (innen.height() - balkenhoehe) / 2;
    const QRectF balken(innen.left() + namen + abstand, oben, innen.width() - namen - werte - 2 * abstand,
                        balkenhoehe);
    maleBalken(painter, balken, wert_.eta, wert_.urteil, palette());
    if (wert_.urteil != Balkenurteil::erfuellt) painter.setPen(urteilsfarbe(palette(), wert_.urteil));
    painter.drawText(QRect(innen.right() - werte + 1, innen.top(), werte, innen.height()),
                     Qt::AlignRight | Qt::AlignVCenter, werttext());
    if (!hasFocus()) return;
    QStyleOptionFocusRect fokus;
    fokus.initFrom(this);
    fokus.backgroundColor = palette().color(QPalette::Window);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &fokus, &painter, this);
}

}  // namespace rippenscheibe
