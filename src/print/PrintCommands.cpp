#include "print/PrintCommands.h"

#include "print/BusyWindow.h"
#include "print/PrintHost.h"
#include "print/clsCommDlg.h"
#include "print/rules/PrinterDevice.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"

#include <QWidget>

namespace {

constexpr int PrintFlags = clsCommDlg::HidePrintToFile | clsCommDlg::Collate | clsCommDlg::NoSelection;

} // namespace

PrintCommands::PrintCommands(PrinterDevice &printer, CommonDialogs &dialogs, AlertBox &alertBox, PrintHost &host)
    : m_printer(printer)
    , m_dialogs(dialogs)
    , m_alertBox(alertBox)
    , m_host(host)
    , m_layout(printer, [this](int page) { showPrinting(page); })
    , m_preview(m_layout, host)
{
}

void PrintCommands::ShowPrintPreview(std::unique_ptr<PrintSource> document)
{
    m_preview.open(std::move(document));
}

void PrintCommands::PageSetup()
{
    clsCommDlg dialog(m_dialogs, m_alertBox);
    dialog.Owner = m_host.window();
    dialog.flags = clsCommDlg::PrintSetup;
    try {
        dialog.setAction(clsCommDlg::ActionPrint);
    } catch (const CommDlgError &) {
        return;
    }
    if (m_preview.isOpen())
        m_preview.rebuild(0);
}

void PrintCommands::PrintDocument(const PrintSource &document)
{
    countPages(document);
    clsCommDlg dialog(m_dialogs, m_alertBox);
    if (!choosePages(dialog))
        return;
    const bool collate = dialog.flags & clsCommDlg::Collate;
    m_layout.CopiesOfPage = collate ? 1 : dialog.Copies;
    QString fault;
    const int page = m_preview.visiblePage();
    try {
        const BusyWindow busy(m_host.window());
        printCopies(document, collate ? dialog.Copies : 1);
    } catch (const PrinterError &error) {
        fault = error.text();
    }
    m_host.showStatus(resText(506));
    if (m_preview.isOpen())
        m_preview.rebuild(page);
    if (!fault.isEmpty())
        report(fault);
}

void PrintCommands::printPreviewed()
{
    const std::shared_ptr<const PrintSource> document = m_preview.document();
    PrintDocument(*document);
}

/// The layout then holds the document with the printer's present paper; a preview's pages stay as they are.
void PrintCommands::countPages(const PrintSource &document)
{
    const BusyWindow busy(m_host.window());
    m_layout.PrintLayout(modUtskrift::PreviewMode, document);
    m_printer.setDocName(m_layout.PageTitle());
}

bool PrintCommands::choosePages(clsCommDlg &dialog)
{
    dialog.Owner = m_host.window();
    dialog.MinPage = 1;
    dialog.MaxPage = m_layout.pageCount();
    dialog.flags = PrintFlags;
    try {
        dialog.setAction(clsCommDlg::ActionPrint);
    } catch (const CommDlgError &) {
        return false;
    }
    const bool range = dialog.flags & clsCommDlg::PageNumbers;
    m_layout.FromPage = range ? dialog.FromPage : 0;
    m_layout.ToPage = range ? dialog.ToPage : 0;
    return true;
}

void PrintCommands::printCopies(const PrintSource &document, int copies)
{
    m_host.aboutToPrint();
    for (int copy = 0; copy < copies; ++copy)
        m_layout.PrintLayout(modUtskrift::PrintMode, document);
    m_printer.endDoc();
}

// The lock on redrawing is lifted for the moment, so that the status bar can follow.
void PrintCommands::showPrinting(int page)
{
    m_host.window()->setUpdatesEnabled(true);
    m_host.showStatus(resText(12405) + QString::number(page));
    m_host.window()->setUpdatesEnabled(false);
}

void PrintCommands::report(const QString &text)
{
    Alert alert;
    alert.title = resText(12400);
    alert.prompt = text;
    alert.exclamation = true;
    m_alertBox.show(m_host.window(), alert);
}
