#pragma once

#include "print/preview/PrintPreview.h"
#include "print/rules/PrintRun.h"

#include <optional>

class AlertBox;
class CommonDialogs;
class PrinterDevice;
class PrintHost;

/// The commands Page Setup, Print Preview and Print. Owns the preview; the printer, the dialogs and the main window are
/// handed in and must outlive it.
class PrintCommands
{
public:
    PrintCommands(PrinterDevice &printer, CommonDialogs &dialogs, AlertBox &alertBox, PrintHost &host);

    PrintPreview &preview() { return m_preview; }

    /// Opens the preview of a document.
    void ShowPrintPreview(const Printable &document);
    /// Shows the page setup; a preview that is open follows it.
    void PageSetup();
    /// Asks for pages and copies and prints them. The program answers while it prints. While the preview is open, its
    /// document is printed.
    void PrintDocument(const Printable &document);
    void printPreviewed();

private:
    int countPages(const Printable &document);
    std::optional<PageChoice> choosePages(const Printable &document, int pageCount);
    void printPages(PrintRun &run);

    PrinterDevice &m_printer;
    CommonDialogs &m_dialogs;
    AlertBox &m_alertBox;
    PrintHost &m_host;
    PrintPreview m_preview;
};
