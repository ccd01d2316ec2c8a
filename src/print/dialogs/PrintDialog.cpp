#include "print/dialogs/PrintDialog.h"

#include "print/printer/QtPrinter.h"
#include "services/desktop/EnterKey.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

PrintDialog::PrintDialog(QPrinter &printer, const QtPrinter &present, const PrintRequest &request)
    : QPrintDialog(&printer, request.owner)
    , m_printer(printer)
    , m_toFile(present.writesFile())
    , m_paper(present.printer().pageLayout())
{
    setOption(PrintPageRange, request.offerPageNumbers);
    setOption(PrintSelection, request.offerSelection);
    setOption(PrintCurrentPage, false);
    setMinMax(request.minPage, request.maxPage);
    setFromTo(request.fromPage, request.toPage);
    setPrintRange(request.pageNumbers ? PageRange : AllPages);
    if (const auto *properties = findChild<QPushButton *>(QStringLiteral("properties")))
        connect(properties, &QPushButton::clicked, this, [this] { m_seenProperties = true; });
    showOptions();
    EnterKey::leaveToDialog(*this);
}

/// Pages and copies show at once, not only behind the dialog's own button.
void PrintDialog::showOptions()
{
    const auto *buttons = findChild<QDialogButtonBox *>();
    if (!buttons)
        return;
    for (QAbstractButton *button : buttons->buttons()) {
        if (buttons->buttonRole(button) == QDialogButtonBox::ResetRole)
            button->click();
    }
}

// The dialog adds the PDF file, the last of its printers, when it shows.
void PrintDialog::showEvent(QShowEvent *event)
{
    QPrintDialog::showEvent(event);
    auto *printers = findChild<QComboBox *>(QStringLiteral("printers"));
    if (std::exchange(m_toFile, false) && printers)
        printers->setCurrentIndex(printers->count() - 1);
}

void PrintDialog::accept()
{
    orderPages();
    QPrintDialog::accept();
    if (result() == Accepted && !m_seenProperties)
        keepPaper();
}

void PrintDialog::orderPages()
{
    auto *from = findChild<QSpinBox *>(QStringLiteral("from"));
    auto *to = findChild<QSpinBox *>(QStringLiteral("to"));
    if (!from || !to || from->value() <= to->value())
        return;
    const int first = to->value();
    to->setValue(from->value());
    from->setValue(first);
}

/// The dialog would go back to the printer's usual paper.
void PrintDialog::keepPaper()
{
    const QList<QPageSize> papers = QPrinterInfo(m_printer).supportedPageSizes();
    if (m_printer.outputFormat() == QPrinter::PdfFormat || papers.contains(m_paper.pageSize()))
        m_printer.setPageSize(m_paper.pageSize());
    m_printer.setPageOrientation(m_paper.orientation());
}

PrintChoice PrintDialog::choice() const
{
    PrintChoice choice;
    choice.copies = std::max(1, m_printer.copyCount());
    choice.collate = m_printer.collateCopies();
    choice.pageNumbers = printRange() == PageRange;
    choice.selection = printRange() == Selection;
    choice.fromPage = fromPage();
    choice.toPage = toPage();
    return choice;
}
