#pragma once

#include "print/rules/Printable.h"

class PrinterDevice;

/// Which pages of a document are printed, and how often.
struct PageChoice
{
    int FromPage = 0; ///< from 1; 0 stands for all pages
    int ToPage = 0;
    int Copies = 1;
    bool Collate = true; ///< whole copies one after the other, else all copies of a page before the next page
};

/// One run of the printer: the chosen pages of a document, sheet by sheet, as one job. The printer must outlive it.
class PrintRun
{
public:
    /// Throws PrinterError when the document has none of the chosen pages.
    PrintRun(const Printable &document, PrinterDevice &printer, const PageChoice &choice);
    /// Throws away a job that was not ended.
    ~PrintRun();
    Q_DISABLE_COPY_MOVE(PrintRun)

    int sheetCount() const { return int(m_pages.size()) * m_choice.Copies; }
    int sheetsDone() const { return m_sheetsDone; }
    bool finished() const { return m_sheetsDone == sheetCount(); }

    /// The number of the page (from 1) that printSheet prints next.
    int page() const;
    /// Both throw PrinterError; then the job is over.
    void printSheet();
    void end();

private:
    bool PrintToPrinter(int page) const;
    void choosePages();

    std::unique_ptr<const PageLayout> m_layout;
    PrinterDevice &m_printer;
    PageChoice m_choice;
    std::vector<int> m_pages; ///< from 0, in the order of one copy
    int m_sheetsDone = 0;
};
