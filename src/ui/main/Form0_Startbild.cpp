#include "ui/main/Form0_Startbild.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/basics/Programm.h"
#include "ui/drawings/Zeichnungen.h"

namespace rippenscheibe {

namespace {

constexpr QSize fenstergroesse(560, 340);
constexpr int streifen = 96;  // height of the strip with the texts, px

QLabel* schild(const QString& name, const QString& text, double faktor, bool fett, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setAccessibleName(text);
    QFont schrift = label->font();
    schrift.setPointSizeF(schrift.pointSizeF() * faktor);
    schrift.setBold(fett);
    label->setFont(schrift);
    return label;
}

}  // namespace

Form0::Form0(const Programm& programm, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      programm_(programm) {
    setObjectName(QStringLiteral("form0"));
    setWindowTitle(QStringLiteral("Rippenscheibe"));
    setAccessibleName(windowTitle());
    setFixedSize(fenstergroesse);
    setFocusPolicy(Qt::StrongFocus);

    auto* aussen = new QVBoxLayout(this);
    aussen->setContentsMargins(24, fenstergroesse.height() - streifen + 8, 24, 12);
    aussen->setSpacing(2);
    aussen->addWidget(
        schild(QStringLiteral("lblProductName"), QStringLiteral("Rippenscheibe"), 2.0, true, this));
    auto* unten = new QHBoxLayout;
    unten->addWidget(schild(QStringLiteral("lblVersion"), QStringLiteral("Version 2.0 - DIN 1052 (2008)"),
                            1.0, false, this));
    unten->addStretch(1);
    unten->addWidget(schild(QStringLiteral("Label1"), QStringLiteral("Rippenscheibe"), 1.0, false, this));
    aussen->addLayout(unten);

    if (const QScreen* schirm = QGuiApplication::primaryScreen())
        move(schirm->availableGeometry().center() - rect().center());

    auto* uhr = new QTimer(this);
    uhr->setObjectName(QStringLiteral("Timer1"));
    uhr->setSingleShot(true);
    connect(uhr, &QTimer::timeout, this, &QWidget::close);
    uhr->start(anzeigedauer);
}

void Form0::keyPressEvent(QKeyEvent*) { close(); }

void Form0::mousePressEvent(QMouseEvent*) { close(); }

void Form0::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    if (entladen_) return;
    entladen_ = true;
    Q_EMIT entladen();
}

void Form0::paintEvent(QPaintEvent*) {
    QPainter maler(this);
    maler.fillRect(rect(), palette().color(QPalette::Base));
    const QRectF bild(0, 0, width(), height() - streifen);
    zeichne(maler, bild, Zeichnung::startbild, programm_.w, Zeichenstil::zuPalette(palette()));
    maler.fillRect(QRect(0, height() - streifen, width(), streifen), palette().color(QPalette::Window));
    maler.setPen(palette().color(QPalette::Mid));
    maler.drawLine(0, height() - streifen, width(), height() - streifen);
    maler.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace rippenscheibe
