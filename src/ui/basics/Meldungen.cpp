#include "ui/basics/Meldungen.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <array>

namespace rippenscheibe {

namespace {

struct Symbolart {
    QMessageBox::Icon icon;  // what the platform says to a screen reader and to the ear
    const char* bild;
};
constexpr std::array<Symbolart, 4> symbolarten{{
    {QMessageBox::Critical, "kritisch"},
    {QMessageBox::Question, "frage"},
    {QMessageBox::Information, "hinweis"},
    {QMessageBox::Warning, "achtung"},
}};

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

void beschrifte(QMessageBox& box, const Knopfworte& worte) {
    const auto setze = [&](QMessageBox::StandardButton welcher, const QString& wort) {
        if (QAbstractButton* knopf = box.button(welcher); knopf != nullptr && !wort.isEmpty())
            knopf->setText(wort);
    };
    setze(QMessageBox::Yes, worte.ja);
    setze(QMessageBox::No, worte.nein);
    setze(QMessageBox::Cancel, worte.abbrechen);
}

void setzeVorgabe(QMessageBox& box, Antwort vorgabe) {
    for (const auto welcher : {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
        if (box.button(welcher) != nullptr && antwort(welcher) == vorgabe) box.setDefaultButton(welcher);
}

// The platform's own dialog takes no line of ours.
void meldeFehlendenOrdner(QFileDialog& dialog, const QString& ordner) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    auto* zeile = new QLabel(QStringLiteral("Der Ordner %1 ist nicht vorhanden.").arg(ordner), &dialog);
    zeile->setObjectName(QStringLiteral("OrdnerFehlt"));
    zeile->setTextFormat(Qt::PlainText);
    zeile->setWordWrap(true);
    zeile->setForegroundRole(QPalette::PlaceholderText);
    if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout()))
        grid->addWidget(zeile, grid->rowCount(), 0, 1, -1);
}

std::optional<QString> waehle(QFileDialog& dialog, const Dateiwahl& wahl) {
    dialog.setObjectName(QStringLiteral("CmDialog1"));
    const bool vorhanden = !wahl.ordner.isEmpty() && QFileInfo(wahl.ordner).isDir();
    if (!vorhanden && !wahl.ordner.isEmpty()) meldeFehlendenOrdner(dialog, wahl.ordner);
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
    const Symbolart& art = symbolarten[static_cast<std::size_t>(meldung.symbol)];
    QMessageBox box(art.icon, meldung.titel, meldung.text, schaltflaechen(meldung.knoepfe), fenster);
    box.setTextFormat(Qt::PlainText);
    constexpr int kante = 40;  // px
    const QIcon bild(QStringLiteral(":/icons/meldung-%1.svg").arg(QLatin1String(art.bild)));
    box.setIconPixmap(bild.pixmap(QSize(kante, kante), box.devicePixelRatioF()));
    for (QAbstractButton* knopf : box.buttons()) knopf->setIcon(QIcon());
    beschrifte(box, meldung.worte);
    // Said in any case: a desktop that orders the buttons the other way would take another one.
    setzeVorgabe(box, meldung.vorgabe.value_or(meldung.knoepfe == Knoepfe::ok ? Antwort::ok : Antwort::ja));
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
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        hinweis(fenster, QStringLiteral(" Hinweis"),
                QStringLiteral("Auf diesem Rechner ist kein Drucker eingerichtet.\n\n"
                               "Der Ausdruck kann als PDF-Datei gespeichert werden."));
        return;
    }
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
