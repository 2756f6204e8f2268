#include "ui/basics/Meldungen.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QStandardPaths>

namespace rippenscheibe {

namespace {

QMessageBox::Icon icon(Symbol symbol) {
    switch (symbol) {
        case Symbol::kritisch:
            return QMessageBox::Critical;
        case Symbol::frage:
            return QMessageBox::Question;
        case Symbol::hinweis:
            return QMessageBox::Information;
        case Symbol::achtung:
            return QMessageBox::Warning;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons schaltflaechen(Knoepfe knoepfe) {
    switch (knoepfe) {
        case Knoepfe::ok:
            return QMessageBox::Ok;
        case Knoepfe::jaNein:
            return QMessageBox::Yes | QMessageBox::No;
        case Knoepfe::jaNeinAbbrechen:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

Antwort antwort(int schaltflaeche) {
    switch (schaltflaeche) {
        case QMessageBox::Yes:
            return Antwort::ja;
        case QMessageBox::No:
            return Antwort::nein;
        case QMessageBox::Cancel:
            return Antwort::abbrechen;
        default:
            return Antwort::ok;
    }
}

std::optional<QString> waehle(QFileDialog& dialog, const Dateiwahl& wahl) {
    dialog.setObjectName(QStringLiteral("CmDialog1"));
    const bool vorhanden = !wahl.ordner.isEmpty() && QFileInfo(wahl.ordner).isDir();
    dialog.setDirectory(vorhanden ? wahl.ordner
                                  : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog.setNameFilters(wahl.filter.split(QStringLiteral(";;")));
    dialog.setDefaultSuffix(wahl.endung);
    if (!wahl.vorschlag.isEmpty()) dialog.selectFile(wahl.vorschlag);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

}  // namespace

Antwort Plattformmeldungen::zeige(QWidget* fenster, const Meldung& meldung) {
    QMessageBox box(icon(meldung.symbol), meldung.titel, meldung.text, schaltflaechen(meldung.knoepfe),
                    fenster);
    box.setTextFormat(Qt::PlainText);
    if (meldung.knoepfe == Knoepfe::jaNein) box.setEscapeButton(QMessageBox::No);
    return antwort(box.exec());
}

std::optional<QString> Plattformmeldungen::oeffnen(QWidget* fenster, const Dateiwahl& wahl) {
    QFileDialog dialog(fenster, wahl.titel);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return waehle(dialog, wahl);
}

std::optional<QString> Plattformmeldungen::sichern(QWidget* fenster, const Dateiwahl& wahl) {
    QFileDialog dialog(fenster, wahl.titel);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    return waehle(dialog, wahl);
}

void Plattformmeldungen::richteDruckerEin(QWidget* fenster, QPrinter& drucker) {
    QPrintDialog dialog(&drucker, fenster);
    dialog.setWindowTitle(QStringLiteral("Drucker einrichten"));
    dialog.setOptions(QAbstractPrintDialog::PrintDialogOptions());
    dialog.exec();
}

bool Plattformmeldungen::waehleDrucker(QPrintDialog& dialog) { return dialog.exec() == QDialog::Accepted; }

std::optional<QFont> Plattformmeldungen::waehleSchrift(QWidget* fenster, const QFont& schrift) {
    bool gewaehlt = false;
    const QFont neu = QFontDialog::getFont(&gewaehlt, schrift, fenster);
    return gewaehlt ? std::optional(neu) : std::nullopt;
}

void Plattformmeldungen::piep() { QApplication::beep(); }

}  // namespace rippenscheibe
