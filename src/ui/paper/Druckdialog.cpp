#include "ui/paper/Druckdialog.h"

#include <QPrintDialog>
#include <QPrinterInfo>

#include "ui/basics/Meldungen.h"

namespace rippenscheibe {

clsPrintDialog::clsPrintDialog(QPrinter& drucker, Meldungen& meldungen, QWidget* fenster)
    : drucker_(drucker), meldungen_(meldungen), fenster_(fenster) {}

QString clsPrintDialog::GetDefaultPrinterName() { return QPrinterInfo::defaultPrinterName(); }

void clsPrintDialog::setPD_AllPages(bool alle) {
    if (!alle) return;
    PD_PageNums = false;
    PD_Selection = false;
}

void clsPrintDialog::ShowPrinter() {
    cancelled_ = false;
    QPrintDialog dialog(&drucker_, fenster_);
    const bool seitenwahl = !PD_NoPageNums && PDnMaxPage > 0;
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, seitenwahl);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, !PD_NoSelection);
    dialog.setOption(QAbstractPrintDialog::PrintToFile, !PD_HidePrintToFile && !PD_DisablePrintToFile);
    if (seitenwahl) {
        dialog.setMinMax(PDnMinPage, PDnMaxPage);
        dialog.setFromTo(PDnFromPage, PDnToPage);
    }
    if (PD_PageNums) dialog.setPrintRange(QAbstractPrintDialog::PageRange);
    if (PD_Selection) dialog.setPrintRange(QAbstractPrintDialog::Selection);
    const int kopien = drucker_.copyCount();
    const bool sortiert = drucker_.collateCopies();
    if (PDnCopies > 1) drucker_.setCopyCount(PDnCopies);
    if (PD_Collate) drucker_.setCollateCopies(true);

    if (!meldungen_.waehleDrucker(dialog)) {
        cancelled_ = true;
        drucker_.setCopyCount(kopien);
        drucker_.setCollateCopies(sortiert);
        return;
    }
    PD_PageNums = dialog.printRange() == QAbstractPrintDialog::PageRange;
    PD_Selection = dialog.printRange() == QAbstractPrintDialog::Selection;
    PDnFromPage = static_cast<std::int16_t>(dialog.fromPage());
    PDnToPage = static_cast<std::int16_t>(dialog.toPage());
    PDnCopies = static_cast<std::int16_t>(drucker_.copyCount());
}

}  // namespace rippenscheibe
