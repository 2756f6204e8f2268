#include "ui/drawings/Zeichnungsansicht.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFontInfo>
#include <QHelpEvent>
#include <QMenu>
#include <QMetaMethod>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "ui/basics/Programm.h"
#include "ui/drawings/Bildmenue.h"
#include "ui/drawings/Dxf.h"

namespace rippenscheibe {

namespace {

// Keeps the parts of a drawing while it is painted.
class Teilesammler : public Zeichenhoerer {
  public:
    explicit Teilesammler(std::vector<Bauteil>& teile) : teile_(teile) {}
    void bauteil(const Bauteil& teil) override { teile_.push_back(teil); }

  private:
    std::vector<Bauteil>& teile_;
};

void maleHervor(QPainter& painter, const QPainterPath& form, QColor farbe) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(farbe, 1.5));
    farbe.setAlphaF(0.18F);
    painter.setBrush(farbe);
    painter.drawPath(form);
}

}  // namespace

Zeichnungsansicht::Zeichnungsansicht(Zeichnung was, QWidget* parent) : Wandansicht(parent), was_(was) {
    setzeVorgaben(wand_);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true);
    setAccessibleName(titel(was_));
    if (beweglich())
        setAccessibleDescription(QStringLiteral(
            "Mausrad vergrößert, Ziehen verschiebt, Doppelklick auf freie Fläche zeigt wieder alles"));
}

bool Zeichnungsansicht::beweglich() const {
    switch (was_) {
        case Zeichnung::ansicht:
        case Zeichnung::rippen:
        case Zeichnung::beplankung:
        case Zeichnung::verbindungsmittel1:
        case Zeichnung::verbindungsmittel2:
        case Zeichnung::anker:
        case Zeichnung::last:
        case Zeichnung::ueberstand:
            return true;
        default:
            return false;
    }
}

void Zeichnungsansicht::setzeWand(const Wand& w) {
    wand_ = w;
    hervor_.reset();
    update();
}

void Zeichnungsansicht::setzeDezimalzeichen(char zeichen) {
    dezimalzeichen_ = zeichen;
    update();
}

void Zeichnungsansicht::bieteDateien(Programm& programm, Meldungen& meldungen) {
    programm_ = &programm;
    meldungen_ = &meldungen;
}

QSize Zeichnungsansicht::sizeHint() const {
    constexpr double punkteJeMm = 5.0;  // labels of the screen are larger than those on paper
    return (groesse(was_) * punkteJeMm).toSize();
}

QSize Zeichnungsansicht::minimumSizeHint() const { return sizeHint() * 0.7; }

Zeichenstil Zeichnungsansicht::stil() const {
    Zeichenstil stil = Zeichenstil::zuPalette(palette());
    stil.dezimalzeichen = dezimalzeichen_;
    const QFontInfo schrift(font());
    stil.familie = schrift.family();
    stil.schrifthoehe = std::clamp(schrift.pixelSize() / stil.mm, 2.4, 6.0);
    stil.grundFuellen = false;  // the ground is that of the widget, however the drawing is moved
    stil.lupe = sicht_.lupe();
    return stil;
}

void Zeichnungsansicht::paintEvent(QPaintEvent*) {
    const Zeichenstil stil = this->stil();
    QPainter painter(this);
    painter.fillRect(rect(), stil.grund);
    painter.save();
    painter.setTransform(sicht_.abbildung(), true);
    teile_.clear();
    Teilesammler sammler(teile_);
    zeichne(painter, QRectF(rect()), was_, wand_, stil, &sammler);
    painter.restore();
    if (hervor_) maleHervor(painter, *hervor_, palette().color(QPalette::Highlight));
}

void Zeichnungsansicht::resizeEvent(QResizeEvent* event) {
    Wandansicht::resizeEvent(event);
    sicht_.begrenze(size());
    hervor_.reset();
}

// ---- The pointer ----

// What was drawn last lies on top.
const Bauteil* Zeichnungsansicht::teilAn(QPointF ort) const {
    if (!isSignalConnected(QMetaMethod::fromSignal(&Zeichnungsansicht::angeklickt))) return nullptr;
    const auto teil =
        std::find_if(teile_.rbegin(), teile_.rend(), [&](const Bauteil& t) { return t.form.contains(ort); });
    return teil == teile_.rend() ? nullptr : &*teil;
}

void Zeichnungsansicht::hebeHervor(const Bauteil* teil) {
    const auto form = teil != nullptr ? std::optional(teil->form) : std::nullopt;
    if (form == hervor_) return;
    hervor_ = form;
    update();
}

void Zeichnungsansicht::zeigeZeiger() {
    if (hervor_)
        setCursor(Qt::PointingHandCursor);
    else if (!sicht_.ganz())
        setCursor(gezogen_ ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
    else
        unsetCursor();
}

void Zeichnungsansicht::passeEin() {
    sicht_.einpassen();
    hervor_.reset();
    zeigeZeiger();
    update();
}

bool Zeichnungsansicht::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return Wandansicht::event(event);
    const auto& hilfe = static_cast<const QHelpEvent&>(*event);
    const Bauteil* teil = teilAn(hilfe.pos());
    if (teil == nullptr)
        QToolTip::hideText();
    else
        QToolTip::showText(hilfe.globalPos(), teil->name, this, teil->form.boundingRect().toAlignedRect());
    return true;
}

// A turn that changes nothing scrolls what the drawing stands in.
void Zeichnungsansicht::wheelEvent(QWheelEvent* event) {
    constexpr double jeRaste = 1.25;
    const double rasten = event->angleDelta().y() / 120.0;
    if (!beweglich() || !sicht_.zoome(event->position(), std::pow(jeRaste, rasten), size()))
        return event->ignore();
    hervor_.reset();
    zeigeZeiger();
    update();
    event->accept();
}

void Zeichnungsansicht::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return Wandansicht::mousePressEvent(event);
    gedrueckt_ = event->position();
    gezogen_ = false;
}

void Zeichnungsansicht::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) {
        hebeHervor(teilAn(event->position()));
        return zeigeZeiger();
    }
    const QPointF weg = event->position() - gedrueckt_;
    if (!gezogen_ && weg.manhattanLength() < QApplication::startDragDistance()) return;
    gezogen_ = true;
    hervor_.reset();
    if (sicht_.ganz()) return;
    sicht_.schiebe(weg, size());
    gedrueckt_ = event->position();
    zeigeZeiger();
    update();
}

void Zeichnungsansicht::mouseReleaseEvent(QMouseEvent* event) {
    const bool geklickt = event->button() == Qt::LeftButton && !gezogen_;
    gezogen_ = false;
    zeigeZeiger();
    const Bauteil* teil = geklickt ? teilAn(event->position()) : nullptr;
    if (teil == nullptr) return;
    const Fensterart fenster = teil->fenster;  // a window may repaint this one
    hebeHervor(nullptr);
    Q_EMIT angeklickt(fenster);
}

void Zeichnungsansicht::mouseDoubleClickEvent(QMouseEvent* event) {
    if (teilAn(event->position()) == nullptr) passeEin();
}

void Zeichnungsansicht::leaveEvent(QEvent*) { hebeHervor(nullptr); }

void Zeichnungsansicht::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menue(this);
    if (beweglich()) {
        QAction* alles = menue.addAction(QStringLiteral("&Alles zeigen"));
        alles->setEnabled(!sicht_.ganz());
        connect(alles, &QAction::triggered, this, &Zeichnungsansicht::passeEin);
        menue.addSeparator();
    }
    if (programm_ != nullptr) {
        std::vector<Bilddatei> weitere;
        if (was_ == Zeichnung::ansicht)
            weitere.push_back({QStringLiteral("D&XF"), QStringLiteral("DXF-Zeichnung (*.dxf)"),
                               QStringLiteral("dxf"), [this] { return dxf(wand_, dezimalzeichen_); }});
        fuegeBildaktionenAn(menue, this, *programm_, *meldungen_, bildvorlage(was_, wand_), weitere);
    }
    if (!menue.isEmpty()) menue.exec(event->globalPos());
}

}  // namespace rippenscheibe
