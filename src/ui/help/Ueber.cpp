#include "ui/help/Ueber.h"

#include <QClipboard>
#include <QDir>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>
#include <utility>
#include <vector>

#include "basis/Version.h"
#include "ui/basics/Programm.h"

namespace rippenscheibe {

namespace {

using Zeile = std::pair<QString, QString>;

std::vector<Zeile> angaben(const Programm& programm) {
    const QString ordner = QString::fromStdU16String(programm.ordner.u16string());
    return {
        {QStringLiteral("Version"), qtext(programmversion())},
        {QStringLiteral("Norm"), QStringLiteral("DIN 1052 (2008)")},
        {QStringLiteral("Qt"), QString::fromLatin1(qVersion())},
        {QStringLiteral("System"),
         QStringLiteral("%1, %2").arg(QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture())},
        {QStringLiteral("Programmordner"), QDir::toNativeSeparators(ordner)},
    };
}

}  // namespace

Ueber::Ueber(Programm& programm, Meldungen& meldungen, QWidget* parent)
    : Fenster(programm, meldungen, parent, QStringLiteral("Ueber"), QStringLiteral("Über Rippenscheibe"),
              Tippen::aendertNichts) {
    constexpr int kante = 64;  // px
    auto* kopf = new QHBoxLayout;
    kopf->setSpacing(2 * raster);
    auto* bild = new QLabel(this);
    bild->setPixmap(
        QIcon(QStringLiteral(":/icons/rippenscheibe.svg")).pixmap(QSize(kante, kante), devicePixelRatioF()));
    kopf->addWidget(bild, 0, Qt::AlignTop);
    auto* worte = new QVBoxLayout;
    worte->setSpacing(raster / 2);
    auto* name = new QLabel(QStringLiteral("Rippenscheibe"), this);
    QFont gross = name->font();
    gross.setPointSizeF(gross.pointSizeF() * 1.6);
    gross.setWeight(QFont::DemiBold);
    name->setFont(gross);
    worte->addWidget(name);
    worte->addWidget(new QLabel(QStringLiteral("Bemessung von Wandtafeln in Holzrahmenbauweise"), this));
    kopf->addLayout(worte, 1);
    inhalt()->addLayout(kopf);
    inhalt()->addSpacing(raster);

    auto* liste = new QFormLayout;
    liste->setHorizontalSpacing(2 * raster);
    liste->setVerticalSpacing(raster / 2);
    QString text = QStringLiteral("Rippenscheibe");
    for (const auto& [was, wert] : angaben(programm)) {
        auto* schild = new QLabel(wert, this);
        schild->setObjectName(was);
        schild->setTextFormat(Qt::PlainText);
        schild->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto* links = new QLabel(was, this);
        links->setForegroundRole(QPalette::PlaceholderText);
        liste->addRow(links, schild);
        text += QStringLiteral("\n%1: %2").arg(was, wert);
    }
    inhalt()->addLayout(liste);
    inhalt()->addStretch(1);

    QPushButton* kopieren = schaltflaeche(QStringLiteral("Kopieren"), QStringLiteral("&Kopieren"));
    kopieren->setToolTip(QStringLiteral("Kopiert diese Angaben in die Zwischenablage"));
    connect(kopieren, &QPushButton::clicked, this, [text] { QGuiApplication::clipboard()->setText(text); });
    zurueck(QStringLiteral("ComEnde"));
}

}  // namespace rippenscheibe
