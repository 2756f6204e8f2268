#include "ui/session/ZuletztMenue.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <utility>

namespace rippenscheibe {

namespace {

const QString schluessel = QStringLiteral("Zuletzt");

}  // namespace

ZuletztMenue::ZuletztMenue(QString einstellungen, std::function<void(const QString&)> oeffne, QWidget* parent)
    : QMenu(QStringLiteral("&Zuletzt geöffnet"), parent),
      einstellungen_(std::move(einstellungen)),
      oeffne_(std::move(oeffne)) {
    setObjectName(QStringLiteral("mnuFRecent"));
    connect(this, &QMenu::aboutToShow, this, &ZuletztMenue::fuelle);
}

void ZuletztMenue::merke(const QString& datei) const {
    QSettings merker(einstellungen_, QSettings::IniFormat);
    QStringList dateien = merker.value(schluessel).toStringList();
    const QString ganz = QFileInfo(datei).absoluteFilePath();
    dateien.removeAll(ganz);
    dateien.prepend(ganz);
    merker.setValue(schluessel, dateien.mid(0, hoechstens));
}

void ZuletztMenue::fuelle() {
    clear();
    const QSettings merker(einstellungen_, QSettings::IniFormat);
    int nummer = 0;
    for (const QString& datei : merker.value(schluessel).toStringList()) {
        if (!QFileInfo::exists(datei)) continue;
        QString text = QDir::toNativeSeparators(datei);
        text.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* aktion = addAction(QStringLiteral("&%1  %2").arg(++nummer).arg(text));
        connect(aktion, &QAction::triggered, this, [this, datei] { oeffne_(datei); });
    }
    if (nummer == 0) addAction(QStringLiteral("(keine)"))->setEnabled(false);
}

}  // namespace rippenscheibe
