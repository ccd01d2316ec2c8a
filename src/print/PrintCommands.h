#pragma once

#include "print/PrintPreview.h"
#include "print/rules/modUtskrift.h"

#include <memory>

class AlertBox;
class CommonDialogs;
class PrinterDevice;
class PrintHost;
class clsCommDlg;

/// The commands Page Setup, Print Preview and Print. Owns the layout and the preview; the printer, the dialogs and the
/// main window are handed in and must outlive it.
class PrintCommands
{
public:
    PrintCommands(PrinterDevice &printer, CommonDialogs &dialogs, AlertBox &alertBox, PrintHost &host);

    PrintPreview &preview() { return m_preview; }

    /// Opens the preview of a document.
    void ShowPrintPreview(std::unique_ptr<PrintSource> document);
    /// Shows the page setup; a preview that is open follows it.
    void PageSetup();
    /// Asks for pages and copies and prints them. While the preview is open, its document is printed.
    void PrintDocument(const PrintSource &document);
    void printPreviewed();

private:
    void countPages(const PrintSource &document);
    bool choosePages(clsCommDlg &dialog);
    void printCopies(const PrintSource &document, int copies);
    void showPrinting(int page);
    void report(const QString &text);

    PrinterDevice &m_printer;
    CommonDialogs &m_dialogs;
    AlertBox &m_alertBox;
    PrintHost &m_host;
    modUtskrift m_layout;
    PrintPreview m_preview;
};
