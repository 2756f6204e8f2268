#include "ui/basics/Fenster.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

bool istZeichen(const QKeyEvent& taste) {
    return !taste.text().isEmpty() && !(taste.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

bool istEnter(const QKeyEvent& taste) {
    return taste.key() == Qt::Key_Return || taste.key() == Qt::Key_Enter;
}

// The next or previous field that takes the focus by the tab key; nullptr at the end of the chain.
QWidget* nachbar(QWidget* feld, QWidget* fenster, bool vorwaerts) {
    const auto weiter = [&](QWidget* w) {
        return vorwaerts ? w->nextInFocusChain() : w->previousInFocusChain();
    };
    for (QWidget* w = weiter(feld); w != feld; w = weiter(w)) {
        if (w == fenster) return nullptr;  // the window itself closes the ring
        if ((w->focusPolicy() & Qt::TabFocus) && w->isEnabled() && w->isVisibleTo(fenster)) return w;
    }
    return nullptr;
}

void sendeTab(QWidget* feld) {
    QKeyEvent druck(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, QStringLiteral("\t"));
    QApplication::sendEvent(feld, &druck);
}

}  // namespace

Tastenregel::Tastenregel(QWidget* fenster, QStringList enterWeiter)
    : QObject(fenster), fenster_(fenster), enterWeiter_(std::move(enterWeiter)) {
    qApp->installEventFilter(this);
}

bool Tastenregel::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    auto* feld = qobject_cast<QWidget*>(object);
    if (feld == nullptr || feld->window() != fenster_ || feld != fenster_->focusWidget()) return false;
    const auto& taste = static_cast<const QKeyEvent&>(*event);
    if (istZeichen(taste) && taste.key() != Qt::Key_Tab && taste.key() != Qt::Key_Backtab) Q_EMIT getippt();

    const QString name = feld->objectName();
    const bool beginnt = std::any_of(enterWeiter_.cbegin(), enterWeiter_.cend(),
                                     [&](const QString& anfang) { return name.startsWith(anfang); });
    if (istEnter(taste) && beginnt) {
        sendeTab(feld);
        return true;
    }
    if (name.startsWith(QStringLiteral("Text3")) &&
        (taste.key() == Qt::Key_Up || taste.key() == Qt::Key_Down)) {
        QWidget* ziel = nachbar(feld, fenster_, taste.key() == Qt::Key_Down);
        if (ziel != nullptr) ziel->setFocus(Qt::TabFocusReason);
        return true;
    }
    return false;
}

Fenster::Fenster(Programm& programm, Meldungen& meldungen, QWidget* parent, const QString& name,
                 const QString& titel, Tippen tippen, const QStringList& enterWeiter)
    : QDialog(parent), programm_(programm), meldungen_(meldungen) {
    setObjectName(name);
    setWindowTitle(titel);
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(true);
    setAccessibleName(titel.trimmed());

    auto* aussen = new QVBoxLayout(this);
    aussen->setContentsMargins(2 * raster, 2 * raster, 2 * raster, 2 * raster);
    aussen->setSpacing(2 * raster);
    inhalt_ = new QVBoxLayout;
    inhalt_->setSpacing(raster);
    aussen->addLayout(inhalt_, 1);
    fusszeile_ = new QHBoxLayout;
    fusszeile_->setSpacing(raster);
    fusszeile_->addStretch(1);
    aussen->addLayout(fusszeile_);

    auto* regel = new Tastenregel(this, enterWeiter);
    if (tippen == Tippen::aendertPosition)
        connect(regel, &Tastenregel::getippt, this, [this] { programm_.setzeGesichert(false); });
}

QPushButton* Fenster::schaltflaeche(const QString& name, const QString& text) {
    auto* knopf = new QPushButton(text, this);
    knopf->setObjectName(name);
    knopf->setAccessibleName(text.trimmed());
    knopf->setAutoDefault(false);
    fusszeile_->addWidget(knopf);
    return knopf;
}

QPushButton* Fenster::zurueck(const QString& name) {
    QPushButton* knopf = schaltflaeche(name, QStringLiteral("Zurück"));
    knopf->setToolTip(QStringLiteral("Zurück zum Hauptfenster"));
    knopf->setDefault(true);
    connect(knopf, &QPushButton::clicked, this, &QDialog::accept);
    return knopf;
}

// The first field has the focus when the window shows.
void Fenster::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (focusWidget() == nullptr || fusszeile_->indexOf(focusWidget()) >= 0)
        if (QWidget* erstes = nachbar(this, this, true)) erstes->setFocus(Qt::TabFocusReason);
}

}  // namespace rippenscheibe
