#include "print/rules/PrintRun.h"

#include "print/rules/PrinterDevice.h"
#include "resources/StringTable.h"

#include <algorithm>

PrintRun::PrintRun(const Printable &document, PrinterDevice &printer, const PageChoice &choice)
    : m_layout(document.layOut(printer))
    , m_printer(printer)
    , m_choice(choice)
{
    choosePages();
    if (m_pages.empty())
        throw PrinterError(resText(14091).arg(m_layout->pageCount()));
}

PrintRun::~PrintRun()
{
    m_printer.killDoc();
}

bool PrintRun::PrintToPrinter(int page) const
{
    const bool inRange = m_choice.FromPage == 0 || (page >= m_choice.FromPage && page <= m_choice.ToPage);
    return inRange && m_printer.wantsPage(page);
}

void PrintRun::choosePages()
{
    for (int page = 0; page < m_layout->pageCount(); ++page) {
        if (PrintToPrinter(page + 1))
            m_pages.push_back(page);
    }
    if (m_printer.lastPageFirst())
        std::reverse(m_pages.begin(), m_pages.end());
}

int PrintRun::page() const
{
    const size_t sheet = size_t(m_sheetsDone);
    return m_pages[m_choice.Collate ? sheet % m_pages.size() : sheet / size_t(m_choice.Copies)] + 1;
}

void PrintRun::printSheet()
{
    m_printer.startPage();
    m_layout->drawPage(page() - 1, m_printer);
    ++m_sheetsDone;
}

void PrintRun::end()
{
    m_printer.endDoc();
}
