#include "print/PrintCommands.h"

#include "print/BusyWindow.h"
#include "print/PrintHost.h"
#include "print/dialogs/clsCommDlg.h"
#include "print/printer/frmPrinting.h"
#include "print/rules/PrinterDevice.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/Hourglass.h"
#include "services/status/modSBFunc.h"

#include <QWidget>

namespace {

constexpr int PrintFlags = clsCommDlg::HidePrintToFile | clsCommDlg::Collate | clsCommDlg::NoSelection;

} // namespace

PrintCommands::PrintCommands(PrinterDevice &printer, CommonDialogs &dialogs, AlertBox &alertBox, PrintHost &host)
    : m_printer(printer)
    , m_dialogs(dialogs)
    , m_alertBox(alertBox)
    , m_host(host)
    , m_preview(printer, host)
{
}

void PrintCommands::ShowPrintPreview(const Printable &document)
{
    m_preview.open(document);
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

void PrintCommands::printPreviewed()
{
    const Printable document = m_preview.document();
    PrintDocument(document);
}

void PrintCommands::PrintDocument(const Printable &document)
{
    const std::optional<PageChoice> choice = choosePages(document, countPages(document));
    if (!choice)
        return;
    const int visiblePage = m_preview.visiblePage();
    QString fault;
    try {
        const Hourglass hourglass;
        PrintRun run(document, m_printer, *choice);
        printPages(run);
    } catch (const PrinterError &error) {
        fault = error.text();
    }
    m_host.showStatus(resText(modSBFunc::Ready));
    if (m_preview.isOpen())
        m_preview.rebuild(visiblePage);
    if (!fault.isEmpty())
        clsCommDlg::reportPrinterError(m_alertBox, m_host.window(), fault);
}

int PrintCommands::countPages(const Printable &document)
{
    const BusyWindow busy(m_host.window());
    const std::unique_ptr<const PageLayout> layout = document.layOut(m_printer);
    m_printer.setDocName(layout->PageTitle());
    return layout->pageCount();
}

std::optional<PageChoice> PrintCommands::choosePages(const Printable &document, int pageCount)
{
    clsCommDlg dialog(m_dialogs, m_alertBox);
    dialog.Owner = m_host.window();
    dialog.InitDir = document.folder();
    dialog.MinPage = 1;
    dialog.MaxPage = pageCount;
    dialog.flags = PrintFlags;
    try {
        dialog.setAction(clsCommDlg::ActionPrint);
    } catch (const CommDlgError &) {
        return std::nullopt;
    }
    PageChoice choice;
    if (dialog.flags & clsCommDlg::PageNumbers) {
        choice.FromPage = dialog.FromPage;
        choice.ToPage = dialog.ToPage;
    }
    choice.Copies = dialog.Copies;
    choice.Collate = dialog.flags & clsCommDlg::Collate;
    return choice;
}

void PrintCommands::printPages(PrintRun &run)
{
    frmPrinting box(
        run, [this](const QString &text) { m_host.showStatus(text); }, m_host.window());
    box.print();
}
