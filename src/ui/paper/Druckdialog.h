#pragma once

#include <QPageSize>
#include <QPrinter>
#include <QString>
#include <cstdint>

class QWidget;

namespace rippenscheibe {

class Meldungen;

// The printer dialog: lets the user choose printer, paper and copies, and directs a printer object to the
// choice. A thin layer over the platform's dialog; it has those settings that the platform reports.
class clsPrintDialog {
  public:
    clsPrintDialog(QPrinter& drucker, Meldungen& meldungen, QWidget* fenster);

    static QString Version() { return QStringLiteral("1.00 (14.01.2000)"); }
    static QString CopyRight() { return QStringLiteral("Rippenscheibe"); }
    // The printer that is chosen when the user chooses none; "" when there is no printer.
    static QString GetDefaultPrinterName();

    // What the dialog offers and starts with. Page numbers of 0 offer no choice of pages.
    std::int16_t PDnFromPage = 0;
    std::int16_t PDnToPage = 0;
    std::int16_t PDnMinPage = 0;
    std::int16_t PDnMaxPage = 0;
    std::int16_t PDnCopies = 1;
    bool PD_PageNums = false;
    bool PD_Selection = false;
    bool PD_Collate = false;
    bool PD_DisablePrintToFile = false;
    bool PD_HidePrintToFile = false;
    bool PD_NoPageNums = false;
    bool PD_NoSelection = true;
    // Asks for the setup of the printer. The platform's dialog always holds both, so it changes nothing.
    bool PD_PrintSetup = false;

    // Setting it to false does nothing: pages and selection stay as they are.
    void setPD_AllPages(bool alle);
    bool PD_AllPages() const { return !PD_PageNums && !PD_Selection; }

    // Shows the dialog and takes the choice over into the printer object. After a cancel the printer is as it
    // was and only Cancelled changes.
    void ShowPrinter();

    // What the user chose.
    bool Cancelled() const { return cancelled_; }
    QString DeviceName() const { return drucker_.printerName(); }
    int Copies() const { return drucker_.copyCount(); }
    bool Collate() const { return drucker_.collateCopies(); }
    QPrinter::ColorMode Color() const { return drucker_.colorMode(); }
    QPrinter::DuplexMode Duplex() const { return drucker_.duplex(); }
    QPrinter::PaperSource DefaultSource() const { return drucker_.paperSource(); }
    int PrintQuality() const { return drucker_.resolution(); }  // dots per inch
    QPageSize PaperSize() const { return drucker_.pageLayout().pageSize(); }
    QString FormName() const { return PaperSize().name(); }
    // Width and length of the page, mm: crosswise to the paper when the page lies on its side.
    double PaperWidth() const { return seite().width(); }
    double PaperLength() const { return seite().height(); }
    QPageLayout::Orientation Orientation() const { return drucker_.pageLayout().orientation(); }

  private:
    QRectF seite() const { return drucker_.pageLayout().fullRect(QPageLayout::Millimeter); }

    QPrinter& drucker_;
    Meldungen& meldungen_;
    QWidget* fenster_;
    bool cancelled_ = false;
};

}  // namespace rippenscheibe
